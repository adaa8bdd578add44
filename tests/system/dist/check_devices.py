#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Installs the files for devices into an empty folder and checks them as the system's programs read them."""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

RULES = "lib/udev/rules.d/60-lumen-desk-i2c.rules"
MODULES = "lib/modules-load.d/lumen-desk.conf"
USERS = "lib/sysusers.d/lumen-desk.conf"

# The keys of udev(7) that a rule of ours may use, with the operators that each takes.
MATCH = {"==", "!="}
ASSIGN = {"=", "+=", ":="}
KEYS = {"ACTION": MATCH, "SUBSYSTEM": MATCH, "SUBSYSTEMS": MATCH, "KERNEL": MATCH, "KERNELS": MATCH, "ATTR": MATCH,
        "ATTRS": MATCH, "DRIVERS": MATCH, "TAG": MATCH | ASSIGN, "GROUP": ASSIGN, "MODE": ASSIGN, "GOTO": {"="},
        "LABEL": {"="}}
TOKEN = re.compile(r'\s*([A-Z]+)(\{[^}"]+\})?\s*(==|!=|\+=|:=|=)\s*"([^"]*)"\s*(,|$)')


def rule_problems(text):
    """What udev would refuse in a file of rules, each with its line."""
    problems, labels, gotos = [], [], []
    for number, line in enumerate(text.splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        at, rest = 0, ","
        while at < len(line):
            token = TOKEN.match(line, at)
            if not token:
                problems.append(f"{number}: not a KEY==\"value\": {line[at:]}")
                break
            key, attribute, operator, value, rest = token.groups()
            at = token.end()
            if key not in KEYS:
                problems.append(f"{number}: unknown key {key}")
            elif operator not in KEYS[key]:
                problems.append(f"{number}: {key} takes no {operator}")
            if bool(attribute) != (key in ("ATTR", "ATTRS")):
                problems.append(f"{number}: {key} with a wrong {{attribute}}")
            if key == "MODE" and not re.fullmatch("0[0-7]{3}", value):
                problems.append(f"{number}: no mode: {value}")
            if key == "LABEL":
                labels.append((number, value))
            if key == "GOTO":
                gotos.append((number, value))
        if rest:
            problems.append(f"{number}: ends in a comma")
    for number, name in gotos:
        if not any(label == name and line > number for line, label in labels):
            problems.append(f"{number}: GOTO leads to no later LABEL: {name}")
    return problems


def check_rules(path):
    problems = rule_problems(path.read_text())
    text = path.read_text()
    granting = [line for line in text.splitlines() if "GROUP=" in line]
    if not granting:
        problems.append("no rule gives access")
    for line in granting:
        for part in ('TAG+="uaccess"', 'GROUP="i2c"', 'MODE="0660"'):
            if part not in line:
                problems.append(f"lacks {part}: {line}")
    # The access of seats is given by 73-seat-late.rules: later tags come too late.
    if int(path.name.split("-")[0]) >= 73:
        problems.append(f"{path.name} is read after the rules that give seats their access")
    udevadm = shutil.which("udevadm")
    if udevadm and "verify" in subprocess.run([udevadm, "--help"], capture_output=True, text=True).stdout:
        done = subprocess.run([udevadm, "verify", "--resolve-names=never", str(path)], capture_output=True, text=True)
        if done.returncode:
            problems.append("udevadm verify: " + done.stdout + done.stderr)
    return problems


def content(path):
    return [line for line in path.read_text().splitlines() if line and not line.startswith("#")]


def check(cmake, build):
    problems = []
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([cmake, "--install", build, "--component", "devices", "--prefix", folder],
                              capture_output=True, text=True)
        if done.returncode:
            return [done.stdout + done.stderr]
        root = pathlib.Path(folder)
        installed = sorted(str(path.relative_to(root)) for path in root.rglob("*") if path.is_file())
        if installed != sorted([RULES, MODULES, USERS]):
            return [f"installed: {installed}"]
        problems += [f"{RULES}: {each}" for each in check_rules(root / RULES)]
        if content(root / MODULES) != ["i2c-dev"]:
            problems.append(f"{MODULES}: {content(root / MODULES)}")
        if content(root / USERS) != ["g i2c - -"]:
            problems.append(f"{USERS}: {content(root / USERS)}")
        for path in installed:
            if (root / path).stat().st_mode & 0o777 != 0o644:
                problems.append(f"{path}: not readable for all, or writable")
    return problems


def self_test():
    """Each kind of mistake is found."""
    good = 'SUBSYSTEM!="i2c-dev", GOTO="end"\nATTRS{class}=="0x03*", TAG+="uaccess", MODE="0660"\nLABEL="end"\n'
    assert not rule_problems(good), rule_problems(good)
    for wrong in ('SUBSYSTEM="i2c-dev"', 'SUBSYTEM=="i2c-dev"', 'MODE="660"', 'GOTO="nowhere"', 'TAG+="a",',
                  'TAG+="a" MODE="0660"', 'ATTRS=="x"', 'TAG{x}=="a"', 'TAG+=uaccess', 'LABEL="end"\nGOTO="end"'):
        assert rule_problems(wrong), wrong
    return []


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--build")
    parser.add_argument("--self-test", action="store_true")
    options = parser.parse_args()
    problems = self_test() if options.self_test else check(options.cmake, options.build)
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
