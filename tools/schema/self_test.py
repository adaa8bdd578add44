# SPDX-License-Identifier: Apache-2.0
"""Proves that the checker notices: each row damages a copy of one file and names the rule that must complain."""

import pathlib
import shutil
import tempfile


def swap(old, new, count=1):
    """A damage that replaces text; it fails loudly when the text is not there."""
    def damage(path):
        text = path.read_text(encoding="utf-8")
        if old not in text:
            raise LookupError(f"{path.name} does not hold {old!r}")
        path.write_bytes(text.replace(old, new, count).encode("utf-8"))
    return damage


def raw(change):
    """A damage on bytes."""
    return lambda path: path.write_bytes(change(path.read_bytes()))


def remove(path):
    path.unlink()


def create(path):
    path.write_text("<VCPTree/>\n", encoding="utf-8")


MODES = "model/TK10.xml"
FEATURES = "model/TK10_ext.xml"
WIDE = "model/TK30Z_ext.xml"
DELAYS = "TK_vcpDelay.xml"
MENU = "osdSetting/TK30Z_osd.xml"
SIZES = "Resolutions.xml"
KEYS = "TKDefaultShortcuts.xml"
DOUBLE = "YHDefaultShortcuts.xml"

ENGLISH = '<Entry Name="English" Code="0x02"/>'
MODULE_LIST = "LuBrightness,LuNightProtection,LuLowBlueLight,LuColorWeakness"

# What is done, to which file, the damage, the rule that must complain, a part of what it must say.
DAMAGES = [
    ("a file is missing", MODES, remove, "files", "missing"),
    ("a menu table is missing", MENU, remove, "files", "missing"),
    ("a shortcut file is missing", DOUBLE, remove, "files", "missing"),
    ("an unknown model has a file", "model/TK50.xml", create, "files", "no file"),
    ("a byte order mark", DELAYS, raw(lambda b: b"\xef\xbb\xbf" + b), "header", "begin"),
    ("no XML header", KEYS, raw(lambda b: b.split(b"\n", 1)[1]), "header", "begin"),
    ("carriage returns", SIZES, raw(lambda b: b.replace(b"\n", b"\r\n")), "header", "carriage"),
    ("a document type", DELAYS, swap("<VcpDelay>", "<!DOCTYPE VcpDelay><VcpDelay>"), "header", "document"),
    ("no line end", DELAYS, raw(lambda b: b[:-1]), "header", "line end"),
    ("a cut file", MODES, raw(lambda b: b[:len(b) // 2]), "well-formed", ""),
    ("a byte that is no UTF-8", SIZES, raw(lambda b: b.replace(b"MacBook8", b"MacBook\xff")), "well-formed", ""),
    ("an empty file", FEATURES, raw(lambda b: b""), "well-formed", ""),

    ("an unknown mode attribute", MODES, swap('SHCode="0x00"', 'SHCode="0x00" HueEnabled="on"'), "xsd", "HueEnabled"),
    ("a flag neither on nor off", MODES, swap('ContrastEnable="on"', 'ContrastEnable="yes"'), "xsd", "yes"),
    ("a mode code of three digits", MODES, swap('Code="0x31"', 'Code="0x131"'), "xsd", "0x131"),
    ("a mode code in lower case", MODES, swap('Code="0x0F"', 'Code="0x0f"'), "xsd", "0x0f"),
    ("a mode without a code", MODES, swap(' Code="0x31"', ""), "xsd", "Code"),
    ("a mode code twice", MODES, swap('Code="0x31"', 'Code="0x30"'), "xsd", "Duplicate"),
    ("a mode name twice", MODES, swap('Name="ePaper"', 'Name="Cinema"'), "xsd", "Duplicate"),
    ("an unknown mode name", MODES, swap('Name="ePaper"', 'Name="Paper"'), "xsd", "Paper"),
    ("another mode category", MODES, swap('"Picture Mode"', '"Sound Mode"'), "xsd", "Sound Mode"),
    ("another second code", MODES, swap('SHCode="0x00"', 'SHCode="0x01"'), "xsd", "0x01"),
    ("an unknown element", MODES, swap("</VCPList>", "<Node/></VCPList>"), "xsd", "Node"),
    ("a second list", MODES, swap("</VCPList>", "</VCPList><VCPList/>"), "xsd", "VCPList"),
    ("text between the modes", MODES, swap("</VCPList>", "modes</VCPList>"), "xsd", "VCPList"),
    ("Type differs from a mode's Name", MODES, swap('Type="User"', 'Type="sRGB"'), "type-is-name", "User"),
    ("a HDR mode that says nothing", MODES, swap(' isHDR="on"', ""), "mode-hdr", "HDR"),
    ("a second HDR mode", MODES, swap('Code="0x32" SHCode="0x00"', 'Code="0x32" SHCode="0x00" isHDR="on"'),
     "mode-hdr", "Cinema"),
    ("back-light control outside HDR", MODES, swap('Code="0x12" SHCode="0x00"',
     'Code="0x12" SHCode="0x00" BacklightControlEnable="on"'), "mode-backlight", "User"),
    ("the first of a pair changed", "model/TK30.xml", swap('"0x0A"', '"0x0B"'), "pair-bytes", "TK30.xml"),
    ("the second of a pair changed", "model/TK40X_ext.xml", raw(lambda b: b + b"\n"), "pair-bytes", "TK40_ext.xml"),

    ("an unknown category", FEATURES, swap('Category="Hidpi"', 'Category="HiDpi"'), "xsd", "HiDpi"),
    ("an unknown feature attribute", FEATURES, swap('Value="on"', 'Value="on" Unit="ms"'), "xsd", "Unit"),
    ("a feature without a value", FEATURES, swap(' Value="50"', ""), "xsd", "Value"),
    ("an empty value", FEATURES, swap('Value="50"', 'Value=""'), "xsd", "Value"),
    ("a feature entry twice", FEATURES, swap('Type="2.0" Name="2.0"', 'Type="1.8" Name="1.8"'), "xsd", "Duplicate"),
    ("Type differs from a feature's Name", FEATURES, swap('Name="2.0"', 'Name="2.1"'), "type-is-name", "Gamma"),
    ("a gamma that does not exist", FEATURES, swap('Type="2.0" Name="2.0"', 'Type="2.1" Name="2.1"'),
     "feature-type", "2.1"),
    ("an input that does not exist", FEATURES, swap('Type="DVI" Name="DVI"', 'Type="VGA" Name="VGA"'),
     "feature-type", "VGA"),
    ("a type beside its category", FEATURES, swap('Type="Hidpi" Name="Hidpi"', 'Type="Dpi" Name="Dpi"'),
     "feature-type", "Dpi"),
    ("a feature neither on nor off", FEATURES, swap('Category="Hidpi" Value="on"', 'Category="Hidpi" Value="On"'),
     "feature-value", "Hidpi"),
    ("a volume over its range", FEATURES, swap('Value="50"', 'Value="101"'), "feature-value", "MaxVolume"),
    ("a volume of zero", FEATURES, swap('Value="50"', 'Value="0"'), "feature-value", "MaxVolume"),
    ("a number with a sign", FEATURES, swap('Value="50"', 'Value="-50"'), "feature-value", "MaxVolume"),
    ("an unknown ambient type", FEATURES, swap('Value="AB"', 'Value="AC"'), "feature-value", "AB Type"),
    ("an unknown low-blue-light kind", FEATURES, swap('Value="plus"', 'Value="extra"'), "feature-value", "LowBlueLight"),
    ("descending privacy times", FEATURES, swap("5,10,20", "5,20,10"), "feature-value", "EcoPrivacy Options"),
    ("a privacy time of zero", FEATURES, swap('"5,10', '"0,10'), "feature-value", "EcoPrivacy Options"),
    ("an unknown module", FEATURES, swap("LuColorWeakness", "LuColourWeakness"), "feature-value", "Modules"),
    ("a module twice", FEATURES, swap(MODULE_LIST, MODULE_LIST + ",LuBrightness"), "feature-value", "Modules"),
    ("an unknown sync group", FEATURES, swap('Value="TK10"', 'Value="TK11"'), "feature-value", "Multi Monitor Sync"),
    ("another model's sync group", FEATURES, swap('Value="TK10"', 'Value="TK20"'), "feature-group", "TK10"),
    ("privacy without times", FEATURES, swap(
     '<VCPcode Type="EcoPrivacy Options" Name="EcoPrivacy Options" Category="EcoPrivacy Options" Value="5,10,20,30,60"/>',
     ""), "feature-together", "EcoPrivacy Options"),
    ("a sensitivity range upside down", WIDE, swap('"MinABSensitivity" Value="0"', '"MinABSensitivity" Value="10"'),
     "feature-range", "below"),
    ("no input left", FEATURES, swap('Category="Input Source" Value="on"', 'Category="Input Source" Value="off"', 9),
     "feature-input", "input"),

    ("an unknown delay attribute", DELAYS, swap('Delay="500"', 'Delay="500" Unit="ms"'), "xsd", "Unit"),
    ("a delay of zero", DELAYS, swap('Delay="500"', 'Delay="0"'), "xsd", "Delay"),
    ("a delay over its range", DELAYS, swap('Delay="5000"', 'Delay="50000"'), "xsd", "50000"),
    ("a delay with a unit", DELAYS, swap('Delay="500"', 'Delay="500ms"'), "xsd", "500ms"),
    ("a delay for a code of one digit", DELAYS, swap('"0x08"', '"0x8"'), "xsd", "0x8"),
    ("two delays of one code", DELAYS, swap('"0x08"', '"0xDC"'), "xsd", "Duplicate"),
    ("two delays of one code in a model", DELAYS, swap('"0x94"', '"0x04"'), "xsd", "Duplicate"),
    ("delays of an unknown model", DELAYS, swap('"TK30Z"', '"TK31"'), "xsd", "TK31"),
    ("delays of another package", DELAYS, swap('"TK"', '"TL"'), "xsd", "TL"),
    ("a model's delays twice", DELAYS, swap("</VcpDelay>",
     '<Model Name="TK30Z"><Entry VcpCode="0x10" Delay="1"/></Model></VcpDelay>'), "xsd", "Duplicate"),

    ("an unknown menu function", MENU, swap('"AMA"', '"Ama"'), "xsd", "Ama"),
    ("a menu function twice", MENU, swap('"AMA"', '"Language"'), "xsd", "Duplicate"),
    ("an unknown function attribute", MENU, swap('Enabled="on"', 'Enabled="on" Kind="choice"'), "xsd", "Kind"),
    ("a function neither on nor off", MENU, swap('Enabled="on"', 'Enabled="true"'), "xsd", "true"),
    ("a function without content", MENU, swap('<Flag OnFlag="0x04"/>', ""), "xsd", "Function"),
    ("a choice name twice", MENU, swap('Name="French"', 'Name="English"'), "xsd", "Duplicate"),
    ("a choice code twice", MENU, swap('Code="0x03"', 'Code="0x02"'), "xsd", "Duplicate"),
    ("a choice code in decimals", MENU, swap('Code="0x03"', 'Code="3"'), "xsd", "Code"),
    ("a hint twice", MENU, swap("_Resolution_Height", "_Resolution_Width"), "xsd", "Duplicate"),
    ("a flag beside entries", MENU, swap(ENGLISH, ENGLISH + '<Flag OnFlag="0x01"/>'), "xsd", "Flag"),
    ("a choice written as a flag", MENU, swap('Name="StandbyCharging"', 'Name="AutoPowerOff"'), "osd-kind", "AutoPower"),
    ("a flag written as a choice", MENU, swap('<Flag OnFlag="0x04"/>', '<Entry Name="On" Code="0x04"/>'),
     "osd-kind", "Standby"),
    ("a switch with a third entry", MENU, swap('<Entry Name="On" Code="0x01"/>',
     '<Entry Name="On" Code="0x01"/><Entry Name="Auto" Code="0x05"/>'), "osd-on-off", "InputAutoSwitch"),
    ("a switch without an off code", MENU, swap('<Entry Name="Off" Code="0x00"/>', ""), "osd-on-off", "InputAutoSwitch"),
    ("an empty mask", MENU, swap('OnFlag="0x04"', 'OnFlag="0x00"'), "osd-flag", "Standby"),
    ("masks with a common bit", MENU, swap('OffFlag="0x10"', 'OffFlag="0x30"'), "osd-flag", "DeepSleep"),
    ("two flags on one bit", MENU, swap('OnFlag="0x04"', 'OnFlag="0x02"'), "osd-flag-overlap", "PowerOnCharging"),
    ("a USB hint missing", MENU, swap('<ExtraHint Property="USB2.0_RefreshRate" Value="120"/>', ""), "osd-hint", "USB2.0"),
    ("a USB hint of no value", MENU, swap('"USB2.0_RefreshRate"', '"USB1.0_RefreshRate"'), "osd-hint", "USB2.0"),
    ("a USB hint that is no number", MENU, swap('Value="3840"', 'Value="4K"'), "osd-hint", "numbers"),
    ("no ports in the hint", MENU, swap('Property="Ports"', 'Property="Port"'), "osd-hint", "UsbCAwake"),
    ("a hint that nobody reads", MENU, swap(
     '<Entry Name="Premium" Code="0x02"/>', '<Entry Name="Premium" Code="0x02"/><ExtraHint Property="A" Value="1"/>'),
     "osd-hint", "AMA"),
    ("a language too few", MENU, swap(ENGLISH, ""), "osd-languages", "20"),

    ("a row too few", SIZES, swap('  <Model Identifier="MacBook8,1" Resolutions="1024x640, 1280x800, 1440x900"/>\n', ""),
     "xsd", "Model"),
    ("an identifier twice", SIZES, swap('"MacBook9,1"', '"MacBook8,1"'), "xsd", "Duplicate"),
    ("an identifier of no such computer", SIZES, swap('"MacBook9,1"', '"MacBook9"'), "xsd", "MacBook9"),
    ("an unknown row attribute", SIZES, swap('Identifier="MacBook9,1"', 'Identifier="MacBook9,1" Inch="12"'), "xsd", "Inch"),
    ("sizes without a separator", SIZES, swap("1024x640, 1280x800", "1024x640 1280x800"), "xsd", "Resolutions"),
    ("a size of one number", SIZES, swap("1024x640, ", "1024, "), "xsd", "Resolutions"),
    ("a third blank", SIZES, swap('"MacBook9,1"', '"MacBook9,1 "'), "resolution-odd", "MacBook9,1"),
    ("an odd row put right", SIZES, swap('"Mac15,11 "', '"Mac15,11"'), "resolution-odd", "Mac15,11"),
    ("a sign put right", SIZES, swap("1280×828", "1280x828"), "resolution-odd", "Mac15,13"),
    ("a sign in another row", SIZES, swap("1024x640", "1024×640"), "resolution-odd", "MacBook8,1"),
    ("sizes out of order", SIZES, swap("1024x640, 1280x800", "1280x800, 1024x640"), "resolution-order", "MacBook8,1"),
    ("a size in portrait", SIZES, swap("1024x640", "640x1024"), "resolution-order", "MacBook8,1"),

    ("closed entries", KEYS, swap('">\n  <Entry', '"/>\n  <Entry'), "shortcuts-unclosed", "unclosed"),
    ("a shortcut file put right", KEYS, raw(lambda b: b.replace(b'">\n  <Entry', b'"/>\n  <Entry')
     .replace(b'">\n</Osd', b'"/>\n</Osd')), "shortcuts-unclosed", "unclosed"),
    ("an error half way", KEYS, swap("<Entry Name=\"Kvm", "<<Entry Name=\"Kvm"), "shortcuts-end", "as far as"),
    ("text after the root", KEYS, swap("</OsdSetting>", "</OsdSetting><!-- end -->"), "shortcuts-end", "as far as"),
    ("an unknown element among shortcuts", KEYS, swap("<Entry ", "<Item "), "shortcuts-elements", "Entry"),
    ("another root of the shortcuts", KEYS, swap("OsdSetting", "Shortcuts", 2), "shortcuts-elements", "OsdSetting"),
    ("an unknown shortcut attribute", KEYS, swap('MacKeys=""', 'MacKeys="" LinuxKeys=""'), "shortcuts-attributes",
     "Brightness_Decrease"),
    ("no Mac column", KEYS, swap(' MacKeys=""', ""), "shortcuts-attributes", "Brightness_Decrease"),
    ("an unknown action", KEYS, swap("Volume_Mute", "Volume_Silence"), "shortcuts-action", "Volume_Silence"),
    ("an action twice", KEYS, swap("Volume_Decrease", "Volume_Increase"), "shortcuts-duplicate", "Volume_Increase"),
    ("an action without keys", KEYS, swap("Shift+Ctrl+O", ""), "shortcuts-empty", "LoopAllSpeakerOutput"),
    ("keys without a modifier", KEYS, swap("Ctrl+Shift+F1", "F1"), "shortcuts-keys", "F1"),
    ("a Mac modifier in the Windows column", KEYS, swap("Ctrl+Shift+F1", "Cmd+Shift+F1"), "shortcuts-keys", "Cmd"),
    ("a modifier twice", KEYS, swap("Ctrl+Shift+F1", "Ctrl+Ctrl+F1"), "shortcuts-keys", "Ctrl+Ctrl"),
    ("an unknown key", KEYS, swap("Ctrl+Shift+F1", "Ctrl+Shift+F13"), "shortcuts-keys", "F13"),
    ("reserved keys", KEYS, swap("Ctrl+Shift+F1", "Ctrl+A"), "shortcuts-reserved", "Ctrl+A"),
    ("two actions on the same keys", KEYS, swap("Ctrl+Shift+F1", "Ctrl+Shift+F2"), "shortcuts-shared", "Volume_Mute"),
    ("a third input on the same keys", DOUBLE, swap('"Ctrl+Shift+4"', '"Ctrl+Shift+3"'), "shortcuts-shared", "HDMI3"),
    ("a Mac column of its own", KEYS, swap("Opt+Cmd+K", "Opt+Ctrl+K"), "shortcuts-mac", "Opt+Cmd+K"),
    ("Mac keys for a brightness step", KEYS, swap('WinKeys="Ctrl+Shift+F4" MacKeys=""',
     'WinKeys="Ctrl+Shift+F4" MacKeys="Cmd+Shift+F4"'), "shortcuts-mac", "Brightness_Decrease"),
]


def prove(root, check, row):
    """An empty text if the damage is noticed as the row says, else what went wrong."""
    what, file, damage, rule, fragment = row
    with tempfile.TemporaryDirectory(prefix="lumen-schema-") as folder:
        copy = pathlib.Path(folder).resolve() / "schema"
        shutil.copytree(root, copy)
        damage(copy / file)
        complaints = check(copy)
    for _, found_rule, text in complaints:
        if found_rule == rule and fragment in text:
            return ""
    listed = "".join(f"\n    {path}: {text} [{found_rule}]" for path, found_rule, text in complaints)
    return f"{what} ({file}): no complaint [{rule}] with {fragment!r}; complaints:{listed or ' none'}"


def run(root, check, rules):
    """Runs every row; exit code 0 if all damages are noticed, the files themselves are clean and no rule is unproven."""
    faults = [f"the undamaged files: {file}: {text} [{rule}]" for file, rule, text in check(root)]
    faults += [fault for fault in (prove(root, check, row) for row in DAMAGES) if fault]
    faults += [f"rule {rule} is proven by no damage" for rule in rules if rule not in {row[3] for row in DAMAGES}]
    for fault in faults:
        print(fault)
    print(f"{len(DAMAGES)} damaged copies, {len(rules)} rules, {len(faults)} faults")
    return 1 if faults else 0
