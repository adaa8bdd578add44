#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""House rules that a machine can check.

    tools/check_source.py [--root DIR]       checks the tree; exit code 1 with a line for each breach
    tools/check_source.py --self-test        proves each rule on a breach made up for it
"""

import argparse
import pathlib
import re
import sys
import tempfile

# Which part of the tree may include headers of which others: the architecture's layers.
LAYERS = {
    "packages/shared": ["packages/shared"],
    "packages/modules": ["packages/shared", "packages/modules"],
    "packages/tkpackage": ["packages/shared", "packages/modules", "packages/tkpackage"],
    "host/zrcore": ["packages/shared/ZrCore", "host/zrcore"],
    "host/ddc": ["host/ddc"],
    "host/ddc-i2c": ["host/ddc-i2c", "host/ddc"],
    "host/panelcore": ["packages/shared/ZrCore", "packages/shared/PanelCore", "host/panelcore", "host/ddc"],
    "host/services": ["packages/shared", "host/services", "host/lushared", "host/panelcore"],
    "host/services/api": ["packages/shared", "host/services/api"],
    "host/services": ["packages/shared", "host/services", "host/lushared"],
    "host/lushared": ["packages/shared", "host/lushared", "host/panelcore", "host/services/api"],
    "host/control": ["packages/shared", "host/control", "host/lushared", "host/panelcore", "host/services/api"],
    "host/qml": ["packages/shared", "host/qml", "host/lushared"],
    "host/app": ["packages/shared", "host", "simulator"],
    "simulator": ["simulator", "host/ddc/Bus.h"],
}

# Headers of display systems and of Linux devices: behind the services, the transport and the program's own start only.
PLATFORM_HEADER = re.compile(r"^(xcb/|X11/|wayland-|pulse/|libudev|linux/i2c|libinput|systemd/)")
PLATFORM_PLACES = ("host/services/", "host/ddc-i2c/", "host/app/")

SOURCE_SUFFIXES = {".h", ".cpp", ".cmake", ".sh", ".py", ".qml"}
SOURCE_NAMES = {"CMakeLists.txt", "run"}
SKIPPED = {"build", ".git", "node_modules"}
LICENCE = "SPDX-License-Identifier: Apache-2.0"
WAITING = re.compile(r"\b(QSKIP|QTest::qWait|QTest::qSleep|QThread::(m|u)?sleep|std::this_thread::sleep_for)\s*\(")
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def sources(root):
    for path in sorted(root.rglob("*")):
        relative = path.relative_to(root)
        if any(part in SKIPPED or part.startswith("build-") for part in relative.parts):
            continue
        if path.is_file() and (path.suffix in SOURCE_SUFFIXES or path.name in SOURCE_NAMES):
            yield relative


def layer_of(relative):
    name = relative.as_posix()
    found = [layer for layer in LAYERS if name.startswith(layer + "/")]
    return max(found, key=len) if found else None


def resolve(root, relative, include):
    """The file of this tree that an include names, or None for one of elsewhere."""
    candidates = [
        root / relative.parent / include,
        root / "packages/shared" / include,
        root / "host" / include,
        root / include,
    ]
    for candidate in candidates:
        if candidate.is_file():
            return candidate.resolve().relative_to(root.resolve()).as_posix()
    for module in sorted((root / "packages/modules").glob("*/src")):
        if (module / include).is_file():
            return (module / include).relative_to(root).as_posix()
    return None


def check_file(root, relative):
    text = (root / relative).read_text(encoding="utf-8")
    lines = text.splitlines()
    if not any(LICENCE in line for line in lines[:3]):
        yield f"{relative}: no licence line at the top"
    layer = layer_of(relative)
    is_test = relative.parts[0] == "tests"
    for number, line in enumerate(lines, 1):
        where = f"{relative}:{number}"
        if line.rstrip() != line:
            yield f"{where}: blanks at the end"
        if "\t" in line:
            yield f"{where}: a tab"
        match = INCLUDE.match(line)
        if match:
            include = match.group(1)
            if PLATFORM_HEADER.match(include) and not relative.as_posix().startswith(PLATFORM_PLACES + ("tests/",)):
                yield f"{where}: {include} belongs behind host/services"
            target = resolve(root, relative, include) if layer else None
            if target and not any(target == allowed or target.startswith(allowed + "/") for allowed in LAYERS[layer]):
                yield f"{where}: {layer} may not include {target}"
        if is_test and relative.suffix in {".cpp", ".h"} and WAITING.search(line):
            yield f"{where}: a test neither skips nor waits for a fixed time"
    if relative.suffix == ".h" and "#pragma once" not in text:
        yield f"{relative}: no #pragma once"


def check(root):
    for relative in sources(root):
        yield from check_file(root, relative)


SELF_TEST = [
    ("host/ddc/A.cpp", "int a;\n", "no licence line"),
    ("host/ddc/A.cpp", f"// {LICENCE}\nint a; \n", "blanks at the end"),
    ("host/ddc/A.cpp", f"// {LICENCE}\n\tint a;\n", "a tab"),
    ("host/ddc/A.h", f"// {LICENCE}\nint a;\n", "no #pragma once"),
    ("host/ddc/A.cpp", f"// {LICENCE}\n#include <lushared/B.h>\n", "host/ddc may not include host/lushared/B.h"),
    ("packages/modules/x/src/A.cpp", f"// {LICENCE}\n#include <lushared/B.h>\n", "packages/modules may not include"),
    ("host/lushared/A.cpp", f"// {LICENCE}\n#include <xcb/xcb.h>\n", "belongs behind host/services"),
    ("tests/unit/tst_a.cpp", f"// {LICENCE}\nQSKIP(\"\");\n", "neither skips nor waits"),
    ("tests/unit/tst_a.cpp", f"// {LICENCE}\nQTest::qWait(100);\n", "neither skips nor waits"),
]


def self_test():
    failures = 0
    for name, content, expected in SELF_TEST:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            helper = root / "host/lushared/B.h"
            helper.parent.mkdir(parents=True)
            helper.write_text(f"// {LICENCE}\n#pragma once\n", encoding="utf-8")
            if any(True for _ in check(root)):
                print("a sound tree is blamed")
                failures += 1
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content, encoding="utf-8")
            if not any(expected in breach for breach in check(root)):
                print(f"not noticed: {expected}")
                failures += 1
    print(f"{len(SELF_TEST)} breaches, {failures} failures")
    return 1 if failures else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--root", type=pathlib.Path, default=pathlib.Path(__file__).resolve().parent.parent)
    parser.add_argument("--self-test", action="store_true")
    arguments = parser.parse_args()
    if arguments.self_test:
        return self_test()
    breaches = list(check(arguments.root.resolve()))
    for breach in breaches:
        print(breach)
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
