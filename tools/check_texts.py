#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Checks that every text that a QML file shows through qsTr() stands in the translations of its library.

check_texts.py <QML folder> <translations folder>   prints what is missing, exit code 1 if there is anything
check_texts.py --self-test                          proves that a missing text is found
"""

import json
import pathlib
import re
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

TEXT = re.compile(r'qsTr\(\s*("(?:[^"\\]|\\.)*")')


def shown_texts(folder):
    """(context, text) of each qsTr() below a folder; the context is the file's name, as QML has it."""
    for path in sorted(folder.rglob("*.qml")):
        for match in TEXT.finditer(path.read_text(encoding="utf-8")):
            yield path.stem, json.loads(match.group(1))


def known_texts(path):
    return {
        (context.findtext("name"), message.findtext("source"))
        for context in ElementTree.parse(path).getroot().iter("context")
        for message in context.iter("message")
    }


def missing(qml, translations):
    wanted = sorted(set(shown_texts(qml)))
    files = sorted(translations.glob("*.ts"))
    if not wanted or not files:
        return [f"nothing to look at: {len(wanted)} texts, {len(files)} languages"]
    found = []
    for path in files:
        known = known_texts(path)
        found += [f"{path.name}: {context}: {text!r} is missing" for context, text in wanted if (context, text) not in known]
    return found


def self_test():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "Page.qml").write_text('Item { property string a: qsTr("One"); property string b: qsTr("Two \\"2\\"") }')
        message = "<message><source>{}</source><translation>x</translation></message>"
        for texts, problems in ((["One", 'Two "2"'], 0), (["One"], 1), ([], 2)):
            body = "".join(message.format(text) for text in texts)
            (folder / "a_de.ts").write_text(f"<TS><context><name>Page</name>{body}</context></TS>")
            if len(missing(folder, folder)) != problems:
                sys.exit(f"{texts}: not {problems} problems")
        (folder / "Page.qml").unlink()
        if not missing(folder, folder):
            sys.exit("an empty folder passes")


def main():
    if sys.argv[1:] == ["--self-test"]:
        self_test()
        return 0
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    problems = missing(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
