#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Checks that every language has every text of the package, finished and fit to be shown.

check_translations.py [--root <translations folder>]   prints each complaint, exit code 1 if there is one
check_translations.py --self-test                      proves every rule on a damaged copy
"""

import argparse
import pathlib
import re
import shutil
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter

HERE = pathlib.Path(__file__).resolve().parent
DEFAULT_ROOT = HERE.parent.parent / "packages" / "tkpackage" / "translations"
LANGUAGES = "cs de en es fr hr hu it ja ko nl pl pt ro ru sv zh zh_TW".split()
LOCALES = {"zh": "zh_CN"}  # "zh" is the simplified script, which its locale says.
RULES = ("files", "well-formed", "language", "duplicate", "missing", "unfinished", "placeholder", "blanks", "source")


def read_language(path, language, report):
    """The texts of one file as {(context, source, comment): message}, None if it cannot be read."""
    try:
        root = ElementTree.parse(path).getroot()
    except (ElementTree.ParseError, ValueError) as error:
        report("well-formed", str(error))
        return None
    if root.tag != "TS" or root.get("language") != LOCALES.get(language, language) or root.get("sourcelanguage") != "en":
        report("language", f"must be a TS file of {LOCALES.get(language, language)} from en")
    texts = {}
    for context in root.iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name", ""), message.findtext("source", ""), message.findtext("comment", ""))
            if key in texts:
                report("duplicate", f"{key[0]}: {key[1]!r} occurs twice")
            texts[key] = message.find("translation")
    return texts


def check_text(key, translation, language, report):
    """Checks one translation against its source."""
    context, source, _ = key
    text = (translation.text or "") if translation is not None else ""
    if not text.strip() or translation.get("type"):
        report("unfinished", f"{context}: {source!r} has no finished translation")
        return
    if Counter(re.findall(r"%L?\d+|%n", text)) != Counter(re.findall(r"%L?\d+|%n", source)):
        report("placeholder", f"{context}: {source!r} has other placeholders than {text!r}")
    if (text[0].isspace(), text[-1].isspace()) != (source[:1].isspace(), source[-1:].isspace()):
        report("blanks", f"{context}: {text!r} begins or ends with another blank than {source!r}")
    if language == "en" and text != source:
        report("source", f"{context}: {text!r} must be the source text {source!r}")


def check(root):
    """All complaints as (file, rule, text)."""
    found = []
    expected = {f"TKPackage_{language}.ts": language for language in LANGUAGES}
    present = {path.name for path in root.iterdir()}
    for file in sorted(set(expected) ^ present):
        found.append((file, "files", "is missing" if file in expected else "is no file of the translations"))
    languages = {}
    for file in sorted(set(expected) & present):
        texts = read_language(root / file, expected[file], lambda rule, text, file=file: found.append((file, rule, text)))
        if texts is not None:
            languages[file] = texts
    every = sorted(set().union(*languages.values())) if languages else []
    if not every:
        found.append((str(root), "missing", "no language has a text"))
    for file, texts in languages.items():
        for key in every:
            if key not in texts:
                found.append((file, "missing", f"{key[0]}: {key[1]!r}"))
            else:
                check_text(key, texts[key], expected[file], lambda rule, text, file=file: found.append((file, rule, text)))
    return found


def swap(old, new):
    def damage(path):
        text = path.read_text(encoding="utf-8")
        if old not in text:
            raise LookupError(f"{path.name} does not hold {old!r}")
        path.write_text(text.replace(old, new, 1), encoding="utf-8")
    return damage


GERMAN = "TKPackage_de.ts"
MESSAGE = re.compile(r"    <message>.*?</message>\n", re.S)
DAMAGES = [
    ("a language is missing", "TKPackage_cs.ts", lambda path: path.unlink(), "files"),
    ("a language too many", "TKPackage_xx.ts", lambda path: path.write_text("<TS/>", encoding="utf-8"), "files"),
    ("a cut file", GERMAN, lambda path: path.write_bytes(path.read_bytes()[:200]), "well-formed"),
    ("another language's file", GERMAN, swap('language="de"', 'language="fr"'), "language"),
    ("a text twice", GERMAN, lambda path: path.write_text(MESSAGE.sub(lambda m: m[0] * 2, path.read_text("utf-8"), 1),
                                                          encoding="utf-8"), "duplicate"),
    ("a text is missing", GERMAN, lambda path: path.write_text(MESSAGE.sub("", path.read_text("utf-8"), 1),
                                                               encoding="utf-8"), "missing"),
    ("a context by another name", GERMAN, swap("<name>LuPivotWidget", "<name>LuPivotsWidget"), "missing"),
    ("a new text in one language only", GERMAN, swap("</context>", "<message><source>New</source><translation>Neu"
                                                     "</translation></message></context>"), "missing"),
    ("an unfinished translation", GERMAN, swap("<translation>", '<translation type="unfinished">'), "unfinished"),
    ("an empty translation", GERMAN, swap("<translation>Lokaler Kontrast<", "<translation><"), "unfinished"),
    ("a placeholder too many", GERMAN, swap("Lokaler Kontrast", "Lokaler Kontrast %1"), "placeholder"),
    ("a trailing blank", GERMAN, swap("Lokaler Kontrast", "Lokaler Kontrast "), "blanks"),
    ("another English", "TKPackage_en.ts", swap("<translation>Local Contrast", "<translation>Local contrast"), "source"),
]


def self_test(root):
    """Runs every damage; exit code 0 if each is noticed, the files are clean and no rule is unproven."""
    faults = [f"the undamaged files: {complaint}" for complaint in check(root)]
    faults += [f"rule {rule} is proven by no damage" for rule in RULES if rule not in {row[3] for row in DAMAGES}]
    for what, file, damage, rule in DAMAGES:
        with tempfile.TemporaryDirectory(prefix="lumen-translations-") as folder:
            copy = pathlib.Path(folder) / "translations"
            shutil.copytree(root, copy)
            damage(copy / file)
            complaints = check(copy)
        if rule not in {complaint[1] for complaint in complaints}:
            faults.append(f"{what}: no complaint [{rule}]; complaints: {complaints or 'none'}")
    for fault in faults:
        print(fault)
    print(f"{len(DAMAGES)} damaged copies, {len(RULES)} rules, {len(faults)} faults")
    return 1 if faults else 0


def main():
    parser = argparse.ArgumentParser(description="Checks the package's translations.")
    parser.add_argument("--root", type=pathlib.Path, default=DEFAULT_ROOT, help="folder of the .ts files")
    parser.add_argument("--self-test", action="store_true", help="prove every rule on a damaged copy")
    arguments = parser.parse_args()
    if not arguments.root.is_dir():
        sys.exit(f"check_translations.py: {arguments.root} is no folder")
    if arguments.self_test:
        return self_test(arguments.root)
    found = check(arguments.root)
    for file, rule, text in found:
        print(f"{file}: {text} [{rule}]")
    print(f"{len(found)} complaints about {arguments.root}" if found else f"{len(LANGUAGES)} languages are complete.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
