# SPDX-License-Identifier: Apache-2.0
"""Rules of the default-shortcut files.

Their Entry elements are not closed, on purpose: readers take each start element and stop at the error that the root's
end tag then is. So no XSD can hold for them, and these rules stand in its place.
"""

import re
import xml.parsers.expat

ATTRIBUTES = ("Name", "WinKeys", "MacKeys")

ACTIONS = {
    "Input": "SwitchtoUSBC SwitchtoDisplayport SwitchtoHDMI SwitchtoHDMI1 SwitchtoHDMI2 SwitchtoHDMI3"
             " SwitchtoThunderbolt3",
    "ColorMode": "LoopAllColorMode SwitchtoCoding SwitchtoCodingLightTheme SwitchtoCodingDarkTheme"
                 " SwitchtoCodingPaperColor SwitchtoStandard SwitchtoMbook SwitchtoCinema SwitchtoePaper SwitchtoUser"
                 " SwitchtosRGB SwitchtoGame SwitchtoCinemaHDRi SwitchtoGameHDRi SwitchtoHDR SwitchtoRec709"
                 " SwitchtoDisplayP3 SwitchtoDCIP3 SwitchtoUser1 SwitchtoUser2",
    "Brightness": "Decrease Increase",
    "Volume": "Decrease Increase Mute LoopAllSpeakerOutput LoopAllAudioMode",
    "NightProtection": "Decrease Increase",
    "EcoPrivacy": "TurnOnOff",
    "ExtraCopyPaste": "Copy Paste",
    "Kvm": "LoopAllKvmSwitch",
}
ACTION_NAMES = {f"{title}_{name}" for title, names in ACTIONS.items() for name in names.split()}

KEY = r"(?:[A-Z0-9]|F(?:[1-9]|1[0-2])|Left|Right|Up|Down)"
WIN_KEYS = re.compile(rf"(?:(?:Ctrl|Shift|Alt)\+)+{KEY}")
MAC_KEYS = re.compile(rf"(?:(?:Cmd|Ctrl|Shift|Opt)\+)+{KEY}")

# What the person may never choose may not be a default either.
RESERVED = set("""Ctrl+X Ctrl+C Ctrl+V Ctrl+Z Alt+F4 Alt+A Alt+F8 Alt+Space Alt+Right Alt+Left Ctrl+F4 Ctrl+A Ctrl+D
Ctrl+E Ctrl+R Ctrl+F5 Ctrl+Y Ctrl+Right Ctrl+Left Ctrl+Up Ctrl+Down Alt+Shift+Right Alt+Shift+Left Alt+Shift+Up
Alt+Shift+Down Ctrl+Shift+Right Ctrl+Shift+Left Ctrl+Shift+Up Ctrl+Shift+Down Ctrl+Space+Right Ctrl+Space+Left
Ctrl+Space+Up Ctrl+Space+Down Ctrl+Space Shift+F10 Shift+Right Shift+Left Shift+Up Shift+Down""".split())

# A monitor of that series has only one input of each pair, so that both may have the same keys.
EITHER_OR = {
    "YHDefaultShortcuts.xml": [{"Input_SwitchtoHDMI1", "Input_SwitchtoHDMI"},
                               {"Input_SwitchtoHDMI2", "Input_SwitchtoDisplayport"}],
}


def mac_counterpart(name, win_keys):
    """The Mac keys that belong to the Windows keys of an action, None where the file is free to choose."""
    title = name.split("_")[0]
    if title in ("Input", "ExtraCopyPaste"):
        return win_keys.replace("Ctrl", "Cmd")
    if title in ("ColorMode", "NightProtection", "EcoPrivacy"):
        return win_keys.replace("Ctrl+Alt", "Opt+Ctrl")
    if title == "Kvm":
        return win_keys.replace("Ctrl+Alt", "Opt+Cmd")
    if title == "Brightness" or name in ("Volume_Decrease", "Volume_Increase", "Volume_Mute"):
        return ""
    return None


def pull_entries(data):
    """Reads as the program's reader does: (start elements as (depth, name, attributes), closed names, stop reason).

    Stop reason is None when the file ended well-formed, else the expat error code.
    """
    starts, closed, depth = [], [], [0]

    def start(name, attributes):
        starts.append((depth[0], name, attributes))
        depth[0] += 1

    def end(name):
        closed.append(name)
        depth[0] -= 1

    parser = xml.parsers.expat.ParserCreate()
    parser.StartElementHandler = start
    parser.EndElementHandler = end
    try:
        parser.Parse(data, True)
    except xml.parsers.expat.ExpatError as error:
        return starts, closed, (error.code, parser.ErrorByteIndex)
    return starts, closed, None


def check(file_name, data, report):
    """Checks one file; report(rule, text) takes each complaint."""
    starts, closed, stop = pull_entries(data)
    mismatch = xml.parsers.expat.errors.codes[xml.parsers.expat.errors.XML_ERROR_TAG_MISMATCH]
    if stop is None or closed:
        report("shortcuts-unclosed", "Entry elements must stay unclosed")
    elif stop[0] != mismatch or not data[:stop[1]].endswith(b"</") or data[stop[1]:].strip() != b"OsdSetting>":
        report("shortcuts-end", "a reader must come as far as </OsdSetting>, which must end the file")
    if not starts or starts[0][1] != "OsdSetting" or starts[0][2] or any(s[1] != "Entry" for s in starts[1:]):
        report("shortcuts-elements", "the root must be OsdSetting without attributes and hold Entry elements only")
        return
    seen, used = set(), {"WinKeys": {}, "MacKeys": {}}
    for _, _, attributes in starts[1:]:
        name = attributes.get("Name", "")
        if tuple(attributes) != ATTRIBUTES:
            report("shortcuts-attributes", f"entry {name!r} must have exactly {', '.join(ATTRIBUTES)}")
            continue
        if name not in ACTION_NAMES:
            report("shortcuts-action", f"unknown action {name!r}")
        if name in seen:
            report("shortcuts-duplicate", f"{name} occurs twice")
        seen.add(name)
        check_keys(file_name, attributes, used, report)


def check_keys(file_name, attributes, used, report):
    """Checks the key texts of one entry against the grammar, the other entries and each other."""
    name, win, mac = (attributes[key] for key in ATTRIBUTES)
    if not win and not mac:
        report("shortcuts-empty", f"{name} has keys on no platform")
    for column, pattern in (("WinKeys", WIN_KEYS), ("MacKeys", MAC_KEYS)):
        keys = attributes[column]
        if not keys:
            continue
        parts = keys.split("+")
        if not pattern.fullmatch(keys) or len(parts) != len(set(parts)):
            report("shortcuts-keys", f"{name}: {column} {keys!r} is no key sequence")
        if keys in RESERVED:
            report("shortcuts-reserved", f"{name}: {column} {keys!r} belongs to the system")
        other = used[column].setdefault(keys, name)
        if other != name and {other, name} not in EITHER_OR.get(file_name, []):
            report("shortcuts-shared", f"{name} and {other} share {column} {keys!r}")
    expected = mac_counterpart(name, win)
    if expected is not None and mac != expected:
        report("shortcuts-mac", f"{name}: MacKeys {mac!r} must be {expected!r}")
