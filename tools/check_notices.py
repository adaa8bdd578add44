#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compares the open-source notices with the libraries that the program really links.

    tools/check_notices.py BUILD_DIR     exit code 1 with a line for each library without a notice, or the other way round
"""

import pathlib
import re
import subprocess
import sys

NOTICES = pathlib.Path(__file__).resolve().parent.parent / "host/qml/LumenDesk/Settings/notices.js"
# The program's own, and what a sanitizer adds to a build of the developers.
OWN = ("libZrCore", "libPanelCore", "libLuShared", "libTKPackage", "libasan", "libubsan", "libtsan")


def linked(build):
    files = [build / "bin/lumen-desk", build / "bin/lumen-deskctl"]
    files += [file for file in (build / "lib").rglob("*.so*") if file.is_file()]
    found = set()
    for file in files:
        text = subprocess.run(["readelf", "-d", str(file)], capture_output=True, text=True, check=True).stdout
        found.update(re.findall(r"\(NEEDED\)[^\[]*\[([^\]]+)\]", text))
    return {name for name in found if not name.startswith(OWN)}


def named():
    prefixes = []
    for entry in re.findall(r'"library": "([^"]*)"', NOTICES.read_text(encoding="utf-8")):
        prefixes += [prefix for prefix in entry.split(",") if prefix]
    return prefixes


def main():
    build = pathlib.Path(sys.argv[1])
    libraries = linked(build)
    prefixes = named()
    problems = [f"{name}: no notice" for name in sorted(libraries) if not name.startswith(tuple(prefixes))]
    # Which part of a family is linked depends on the release.
    optional = ("libssl", "libcrypto", "ld-linux", "libm.so")
    problems += [f"{prefix}: not linked" for prefix in prefixes
                 if prefix not in optional and not any(name.startswith(prefix) for name in libraries)]
    if not libraries:
        problems.append(f"{build}: nothing is linked there")
    print("\n".join(problems) or f"{len(libraries)} libraries, each with its notice")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
