#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Checks the package's schema files: form by XSD, and what an XSD cannot say by the rules below.

check_schemas.py [--root <schema folder>]   checks, prints each complaint, exit code 1 if there is one
check_schemas.py --self-test                damages copies of the files and proves that every rule notices
"""

import argparse
import itertools
import pathlib
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

sys.dont_write_bytecode = True  # A check leaves nothing behind in the source tree.

import self_test  # noqa: E402
import shortcut_files  # noqa: E402

HERE = pathlib.Path(__file__).resolve().parent
DEFAULT_ROOT = HERE.parent.parent / "packages" / "tkpackage" / "schema"

MODELS = ("TK10", "TK20", "TK30", "TK30X", "TK30Z", "TK40", "TK40X")
PAIRS = (("TK30", "TK30X"), ("TK40", "TK40X"))
MENU_MODELS = ("TK20", "TK30Z")
SHORTCUT_SERIES = ("TK", "ZQ", "FN", "YH")

FILES = {
    "mode-list.xsd": [f"model/{model}.xml" for model in MODELS],
    "feature-list.xsd": [f"model/{model}_ext.xml" for model in MODELS],
    "delay-table.xsd": ["TK_vcpDelay.xml"],
    "osd-table.xsd": [f"osdSetting/{model}_osd.xml" for model in MENU_MODELS],
    "resolutions.xsd": ["Resolutions.xml"],
}
SHORTCUT_FILES = [f"{series}DefaultShortcuts.xml" for series in SHORTCUT_SERIES]
HEADER = b'<?xml version="1.0" encoding="UTF-8"?>\n<!-- SPDX-License-Identifier: Apache-2.0 -->\n'

MODULES = set("""LuAiContrast LuApplicationMode LuAutoPivot LuBackLight LuABPlus LuABSetting LuBrightness LuColorWeakness
LuDaisyChain LuDirectSearch LuDpiScaling LuDualView LuEcoPrivacy LuHidpi LuInputSource LuKvmSwitch LuLowBlueLight
LuNightProtection LuPartition LuPipPbp LuSmartKvmBasic LuResolution LuVolume LuMultiMonitorSync LuOsdSetting LuFlow
LuShortcuts""".split())

# Categories with several entries and the types that they may have. In all others the type is the category.
LIST_CATEGORIES = {
    "Gamma": ("1.8", "2.0", "2.2", "2.4", "2.6", "sRGB"),
    "Gamut": ("Native", "sRGB", "Rec709", "DCIP3", "AdobeRGB", "Rec2020"),
    "ColorTemperature": ("5000", "6500", "9300", "DCI", "UserDefine"),
    "Audio Mode": None,
    "Editable Audio Mode": None,
    "PIP PBP AB": ("PIP", "PBP", "PBP 2:1", "PBP 3:1", "PBP 5:9", "PBPx4"),
    "Input Source": ("DVI", "HDMI", "HDMI1", "HDMI2", "DisplayPort", "MiniDisplayPort", "USB-C", "Thunderbolt3"),
    "Kvm": ("Auto", "TypeC", "TypeB"),
}
NUMBER_CATEGORIES = {
    "MaxVolume": (1, 100),
    "MinABSensitivity": (0, 100),
    "MaxABSensitivity": (1, 100),
    "Max AB Sensitivity": (1, 100),
    "TransitionStepInterval": (1, 60000),
}
CHOICE_CATEGORIES = {
    "AB Type": ("AB", "VO"),
    "LowBlueLight": ("normal", "plus"),
    "EcoPrivacy Type": ("Normal", "BackGlow"),
    "AiContrast Type": ("LocalContrast",),
    "SmartKvm Type": ("SmartKvmBasic",),
    "LockStandardVersion": ("2.0",),
    "Multi Monitor Sync": MODELS,
}
FREE_CATEGORIES = ("DirectSearch",)
TOGETHER = (("Volume", "MaxVolume"), ("EcoPrivacy", "EcoPrivacy Options"), ("EcoPrivacy", "EcoPrivacy Type"),
            ("AiContrast", "AiContrast Type"), ("AB Sensor", "AB Type"),
            ("Multi Monitor Sync", "Multi Monitor Sync Modules"))

MENU_CHOICES = ("Language", "DisplayMode", "AMA", "AutoPowerOff", "QuickInputAutoScan", "UsbCConfiguration",
                "RgbPcRange")
MENU_FLAGS = {"PowerOnCharging": 0x68, "StandbyCharging": 0x68, "PowerOffCharging": 0x68, "DeepSleep": 0xD6}
USB_HINTS = ("Resolution_Width", "Resolution_Height", "RefreshRate")
OSD_LANGUAGES = 21

# Rows that act differently from how they look, kept as they are.
BLANK_IDENTIFIERS = {"MacBookPro18,1 ", "Mac15,11 "}
TIMES_SIGNS = {"Mac15,13": 3}

RULES = ("files", "header", "well-formed", "xsd", "pair-bytes", "type-is-name", "mode-hdr", "mode-backlight",
         "feature-type", "feature-value", "feature-together", "feature-range", "feature-input", "feature-group",
         "osd-kind", "osd-on-off", "osd-flag", "osd-flag-overlap", "osd-hint", "osd-languages", "resolution-odd",
         "resolution-order", "shortcuts-unclosed", "shortcuts-end", "shortcuts-elements", "shortcuts-attributes",
         "shortcuts-action", "shortcuts-duplicate", "shortcuts-empty", "shortcuts-keys", "shortcuts-reserved",
         "shortcuts-shared", "shortcuts-mac")


class Complaints:
    """Collects what is wrong, each with its file and the rule that it breaks."""

    def __init__(self):
        self.found = []

    def add(self, file, rule, text):
        assert rule in RULES, rule
        self.found.append((file, rule, text))

    def reporter(self, file):
        return lambda rule, text: self.add(file, rule, text)


def find_xmllint():
    """The path of xmllint; without it nothing can be said about the files, so that is an error and no pass."""
    program = shutil.which("xmllint")
    if not program:
        sys.exit("check_schemas.py: xmllint is missing; install the package libxml2-utils")
    return program


def check_files(root, complaints):
    """All files are there, no other is, and each starts in the same way."""
    expected = set(itertools.chain(SHORTCUT_FILES, *FILES.values()))
    present = {path.relative_to(root).as_posix() for path in root.rglob("*") if path.is_file()}
    for file in sorted(expected - present):
        complaints.add(file, "files", "is missing")
    for file in sorted(present - expected):
        complaints.add(file, "files", "is no file of the schemas")
    for file in sorted(expected & present):
        data = (root / file).read_bytes()
        if not data.startswith(HEADER) or b"\r" in data or b"<!DOCTYPE" in data or not data.endswith(b">\n"):
            complaints.add(file, "header", "must begin with the XML header and the licence line, hold no document"
                                           " type or carriage return, and end with a line end")
    return expected & present


def check_xsd(root, present, complaints):
    """Form of every well-formed file. Returns the root elements of those that can be parsed."""
    trees, xmllint = {}, find_xmllint()
    for schema, files in FILES.items():
        for file in files:
            if file not in present:
                continue
            try:
                trees[file] = ElementTree.parse(root / file).getroot()
            except (ElementTree.ParseError, ValueError) as error:
                complaints.add(file, "well-formed", str(error))
        candidates = [str(root / file) for file in files if file in trees]
        if not candidates:
            continue
        run = subprocess.run([xmllint, "--noout", "--nonet", "--schema", str(HERE / schema), *candidates],
                             capture_output=True, text=True, encoding="utf-8", errors="replace", check=False)
        lines = [line for line in run.stderr.splitlines() if "Schemas validity error" in line]
        for line in lines:
            path, text = re.match(r"(.*?\.xml):(\d+.*)", line).groups()
            complaints.add(pathlib.Path(path).relative_to(root).as_posix(), "xsd", f"{schema}: line {text}")
        if run.returncode and not lines:
            sys.exit(f"check_schemas.py: xmllint failed on {schema}:\n{run.stderr}")
    return trees


def check_pairs(root, present, complaints):
    """Sister models share their files to the byte."""
    for (first, second), suffix in itertools.product(PAIRS, (".xml", "_ext.xml")):
        names = [f"model/{model}{suffix}" for model in (first, second)]
        if all(name in present for name in names) and len({(root / name).read_bytes() for name in names}) != 1:
            complaints.add(names[1], "pair-bytes", f"must equal {names[0]} to the byte")


def check_modes(tree, report):
    for mode in tree.iter("VCPcode"):
        name, hdr = mode.get("Name"), mode.get("isHDR") == "on"
        if mode.get("Type") != name:
            report("type-is-name", f"{name}: Type is {mode.get('Type')!r}")
        if hdr != (name == "HDR"):
            report("mode-hdr", f"{name}: isHDR must be on in HDR and nowhere else")
        if mode.get("BacklightControlEnable") == "on" and not hdr:
            report("mode-backlight", f"{name}: back-light control belongs to the HDR mode")


def value_fault(category, value):
    """Why a value does not fit its category, or an empty text."""
    if category in NUMBER_CATEGORIES:
        low, high = NUMBER_CATEGORIES[category]
        fits = re.fullmatch(r"0|[1-9]\d{0,5}", value) and low <= int(value) <= high
        return "" if fits else f"must be a number from {low} to {high}"
    if category in CHOICE_CATEGORIES:
        return "" if value in CHOICE_CATEGORIES[category] else f"must be one of {CHOICE_CATEGORIES[category]}"
    if category == "EcoPrivacy Options":
        numbers = [int(part) if re.fullmatch(r"[1-9]\d{0,3}", part) else 0 for part in value.split(",")]
        fits = numbers[0] > 0 and all(a < b for a, b in zip(numbers, numbers[1:]))
        return "" if fits else "must be ascending positive numbers, separated by commas"
    if category == "Multi Monitor Sync Modules":
        names = value.split(",")
        fits = set(names) <= MODULES and len(names) == len(set(names))
        return "" if fits else "must be class names of modules, each once, separated by commas"
    if category in FREE_CATEGORIES:
        return ""
    return "" if value in ("on", "off") else "must be on or off"


def check_features(file, tree, report):
    values = {}
    for entry in tree.iter("VCPcode"):
        category, kind, value = (entry.get(key, "") for key in ("Category", "Type", "Value"))
        if entry.get("Name") != kind:
            report("type-is-name", f"{category}: Type is {kind!r}, Name {entry.get('Name')!r}")
        allowed = LIST_CATEGORIES.get(category, (category,))
        if allowed is not None and kind not in allowed:
            report("feature-type", f"{category} has no type {kind!r}")
        fault = value_fault(category, value)
        if fault:
            report("feature-value", f"{category} {kind}: {value!r} {fault}")
        values[category, kind] = value
    present = {category for category, _ in values}
    for first, second in TOGETHER:
        if (first in present) != (second in present):
            report("feature-together", f"{first} and {second} need each other")
    low, high = (values.get((name, name), "") for name in ("MinABSensitivity", "MaxABSensitivity"))
    if low.isdecimal() and (not high.isdecimal() or int(low) >= int(high)):
        report("feature-range", "MinABSensitivity must lie below MaxABSensitivity")
    if not any(category == "Input Source" and value == "on" for (category, _), value in values.items()):
        report("feature-input", "no input source is on")
    model = pathlib.Path(file).name.removesuffix("_ext.xml")
    group = next((first for first, second in PAIRS if model == second), model)
    if values.get(("Multi Monitor Sync",) * 2) != group:
        report("feature-group", f"Multi Monitor Sync must be {group}")


def check_menu(tree, report):
    masks = {}
    for function in tree.iter("Function"):
        name = function.get("Name")
        codes = {entry.get("Name"): entry.get("Code") for entry in function.iter("Entry")}
        flag = function.find("Flag")
        if (name in MENU_FLAGS) != (flag is not None):
            report("osd-kind", f"{name} must have {'a flag' if name in MENU_FLAGS else 'entries'}")
        elif flag is not None:
            check_flag(name, flag, masks.setdefault(MENU_FLAGS[name], {}), report)
        elif name not in MENU_CHOICES and set(codes) != {"On", "Off"}:
            report("osd-on-off", f"{name} must have exactly the entries On and Off")
        if name == "Language" and len(codes) != OSD_LANGUAGES:
            report("osd-languages", f"{len(codes)} languages instead of {OSD_LANGUAGES}")
        check_hints(name, codes, {h.get("Property"): h.get("Value") for h in function.iter("ExtraHint")}, report)


def check_flag(name, flag, others, report):
    """A mask has bits, its counterpart has others, and no function of the same VCP code uses them."""
    try:
        on, off = (int(flag.get(key, "0x00"), 16) for key in ("OnFlag", "OffFlag"))
    except ValueError:
        return
    if on == 0 or on & off or (flag.get("OffFlag") and off == 0):
        report("osd-flag", f"{name}: the masks must have bits and none in common")
    for other, mask in others.items():
        if mask & (on | off):
            report("osd-flag-overlap", f"{name} and {other} share a bit of one VCP code")
    others[name] = on | off


def check_hints(name, codes, hints, report):
    """The panel reads these hints and no others."""
    if name == "UsbCConfiguration":
        expected = {f"{value}_{hint}" for value in codes for hint in USB_HINTS}
        numbers = all(re.fullmatch(r"[1-9]\d{1,4}", value or "") for value in hints.values())
        if set(hints) != expected or not numbers:
            report("osd-hint", f"{name} needs exactly the numbers {', '.join(sorted(expected))}")
    elif set(hints) != ({"Ports"} if name == "UsbCAwake" else set()):
        report("osd-hint", f"{name} has a hint too many or too few")


def check_resolutions(tree, report):
    for model in tree.iter("Model"):
        identifier, sizes = model.get("Identifier", ""), model.get("Resolutions", "")
        bare = identifier.strip()
        if (identifier != bare) != (bare + " " in BLANK_IDENTIFIERS):
            report("resolution-odd", f"{identifier!r}: only {sorted(BLANK_IDENTIFIERS)} end with a blank")
        if sizes.count("×") != TIMES_SIGNS.get(identifier, 0):
            report("resolution-odd", f"{identifier!r}: {sizes.count('×')} multiplication signs instead of"
                                     f" {TIMES_SIGNS.get(identifier, 0)}")
        pairs = [tuple(map(int, size.groups())) for size in re.finditer(r"(\d+)[x×](\d+)", sizes)]
        if any(a[0] >= b[0] or a[1] >= b[1] for a, b in zip(pairs, pairs[1:])) or any(w <= h for w, h in pairs):
            report("resolution-order", f"{identifier!r}: sizes must be landscape and grow")


def check(root):
    """All complaints about the files below root."""
    complaints = Complaints()
    present = check_files(root, complaints)
    trees = check_xsd(root, present, complaints)
    check_pairs(root, present, complaints)
    for schema, check_tree in (("mode-list.xsd", lambda file, tree, report: check_modes(tree, report)),
                               ("feature-list.xsd", check_features),
                               ("osd-table.xsd", lambda file, tree, report: check_menu(tree, report)),
                               ("resolutions.xsd", lambda file, tree, report: check_resolutions(tree, report))):
        for file in FILES[schema]:
            if file in trees:
                check_tree(file, trees[file], complaints.reporter(file))
    for file in SHORTCUT_FILES:
        if file in present:
            shortcut_files.check(file, (root / file).read_bytes(), complaints.reporter(file))
    return complaints.found


def main():
    parser = argparse.ArgumentParser(description="Checks the schema files of the package.")
    parser.add_argument("--root", type=pathlib.Path, default=DEFAULT_ROOT, help="schema folder")
    parser.add_argument("--self-test", action="store_true", help="prove every rule on a damaged copy")
    arguments = parser.parse_args()
    root = arguments.root.resolve()
    if not root.is_dir():
        sys.exit(f"check_schemas.py: {root} is no folder")
    if arguments.self_test:
        return self_test.run(root, check, RULES)
    found = check(root)
    for file, rule, text in found:
        print(f"{file}: {text} [{rule}]")
    print(f"{len(found)} complaints about {root}" if found else f"The schema files in {root} are in order.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
