#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Installs the program into an empty folder, moves it elsewhere, and uses it there as a person does.

With --deb the tree comes out of the Debian package that CPack makes.
"""

import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

START_LIMIT_S = 120

# Everything that is installed, below the prefix.
FILES = """
bin/lumen-desk
bin/lumen-deskctl
lib/lumen-desk/libLuShared.so
lib/lumen-desk/libPanelCore.so
lib/lumen-desk/libZrCore.so
lib/lumen-desk/packages/libTKPackage-1.11.0.0.so
lib/modules-load.d/lumen-desk.conf
lib/sysusers.d/lumen-desk.conf
lib/udev/rules.d/60-lumen-desk-i2c.rules
share/applications/lumen-desk.desktop
share/bash-completion/completions/lumen-deskctl
share/doc/lumen-desk/copyright
share/fish/vendor_completions.d/lumen-deskctl.fish
share/icons/hicolor/scalable/apps/lumen-desk.svg
share/man/man1/lumen-desk.1
share/man/man1/lumen-deskctl.1
share/metainfo/org.lumen_desk.LumenDesk.metainfo.xml
share/zsh/site-functions/_lumen-deskctl
""".split()
PROGRAMS = [name for name in FILES if name.startswith(("bin/", "lib/lumen-desk/"))]


class Problem(Exception):
    pass


def run(command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, **options)
    if done.returncode:
        raise Problem(f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}{done.stderr}")
    return done.stdout


def files_below(root):
    return sorted(str(path.relative_to(root)) for path in root.rglob("*") if not path.is_dir())


def check_files(root):
    have = files_below(root)
    if have != sorted(FILES):
        raise Problem(f"missing: {sorted(set(FILES) - set(have))}, unexpected: {sorted(set(have) - set(FILES))}")
    for name in FILES:
        mode = (root / name).stat().st_mode & 0o777
        wanted = {0o755} if name.startswith("bin/") else {0o644, 0o755} if name in PROGRAMS else {0o644}
        if mode not in wanted:
            raise Problem(f"{name} has the rights {mode:o}")


def check_library_paths(root, build):
    """Nobody looks for libraries anywhere but beside himself and in the system's folders."""
    for name in PROGRAMS:
        text = run(["readelf", "-d", root / name])
        for paths in re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", text):
            for path in filter(None, paths.split(":")):
                if not path.startswith("$ORIGIN") or build in path:
                    raise Problem(f"{name} looks for libraries in {path}")


def check_desktop(root):
    metainfo = root / "share/metainfo/org.lumen_desk.LumenDesk.metainfo.xml"
    run(["appstreamcli", "validate", "--no-net", metainfo])
    run(["desktop-file-validate", root / "share/applications/lumen-desk.desktop"])
    text = metainfo.read_text()
    version = re.search(r'<release version="([^"]*)"', text).group(1)
    told = run([root / "bin/lumen-desk", "--version"], env=environment(root))
    if version not in told.split():
        raise Problem(f"{metainfo.name} describes {version}, the program says {told.strip()}")


def check_manual(root):
    """The manual page names every option, and no other."""
    told = run([root / "bin/lumen-desk", "--help"], env=environment(root))
    options = set(re.findall(r"--[a-z-]+", told))
    page = (root / "share/man/man1/lumen-desk.1").read_text().replace("\\-", "-")
    expect("the options of the manual page", sorted(set(re.findall(r"--[a-z-]+", page))), sorted(options))


def environment(home):
    """Nothing of what leads a developer's program to its parts."""
    return {"PATH": "/usr/bin:/bin", "HOME": str(home), "XDG_RUNTIME_DIR": str(home), "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software",
            **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}}


def check_nothing_of(build, process):
    """The running program has opened nothing in the folder in which it was built."""
    folder = pathlib.Path("/proc") / str(process.pid)
    used = re.findall(r"\s(/\S+)$", (folder / "maps").read_text(), re.MULTILINE)
    for entry in (folder / "fd").iterdir():
        try:
            used.append(os.readlink(entry))
        except FileNotFoundError:  # closed meanwhile
            pass
    inside = sorted({path for path in used if path.startswith(build + "/")})
    if inside:
        raise Problem(f"the installed program uses {inside}")


class Desk:
    """The installed program at work."""

    def __init__(self, root, home):
        self.root, self.env = root, environment(home)
        self.socket = home / "control.sock"
        self.process = subprocess.Popen(
            [root / "bin/lumen-desk", "--simulate", "TK30Z", "--ddc-timing", "fast", "--services", "simulated",
             "--control", self.socket, "--config-dir", home / "config", "--data-dir", home / "data"],
            env=self.env, cwd=home, stderr=subprocess.PIPE, text=True)

    def ctl(self, *arguments):
        return run([self.root / "bin/lumen-deskctl", "--control", self.socket, *arguments], env=self.env).strip()

    def await_start(self):
        end = time.monotonic() + START_LIMIT_S
        while True:
            try:
                return json.loads(self.ctl("--json", "monitors"))
            except Problem as problem:
                if self.process.poll() is not None or time.monotonic() > end:
                    self.process.kill()
                    raise Problem(f"it does not start: {problem}\n{self.process.communicate()[1]}") from problem
                try:
                    self.process.wait(0.05)
                except subprocess.TimeoutExpired:
                    pass

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.communicate()


def expect(what, have, wanted):
    if have != wanted:
        raise Problem(f"{what}: {have!r} in place of {wanted!r}")


def check_use(root, build, home):
    desk = Desk(root, home)
    try:
        monitors = desk.await_start()
        expect("the monitors", [monitor["model"] for monitor in monitors], ["TK30Z"])
        expect("its support", monitors[0]["supported"], True)
        desk.ctl("set", "brightness.displayBrightness", "37")
        desk.ctl("idle")
        expect("the brightness", desk.ctl("get", "brightness.displayBrightness"), "37")
        desk.ctl("ui", "show")
        desk.ctl("idle")
        widgets = json.loads(desk.ctl("--json", "ui", "widgets"))
        if not any(widget["widget"] == "LuBrightnessWidget" and widget["shown"] for widget in widgets):
            raise Problem(f"no brightness in the window: {widgets}")
        expect("the QML warnings", json.loads(desk.ctl("--json", "ui", "warnings")), [])
        picture = home / "window.png"
        desk.ctl("ui", "screenshot", str(picture))
        if not picture.read_bytes().startswith(b"\x89PNG"):
            raise Problem("no picture of the window")
        check_nothing_of(build, desk.process)
        desk.ctl("quit")
        expect("the exit code", desk.process.wait(START_LIMIT_S), 0)
    finally:
        desk.close()


def installed(options, folder):
    prefix = folder / "prefix"
    run([options.cmake, "--install", options.build, "--prefix", prefix])
    return prefix


def unpacked(options, folder):
    run([options.cpack, "-G", "DEB", "-B", folder / "out"], cwd=options.build)
    package, = (folder / "out").glob("*.deb")
    listed = run(["dpkg-deb", "-c", package])
    expect("the owners", {line.split()[1] for line in listed.splitlines()}, {"root/root"})
    control = run(["dpkg-deb", "-f", package])
    for wanted in ("Package: lumen-desk", "libqt6core", "qml6-module-qtquick-templates"):
        if wanted not in control:
            raise Problem(f"the package does not tell {wanted}:\n{control}")
    run(["dpkg-deb", "-e", package, folder / "control"])
    run(["sh", "-n", folder / "control/postinst"])
    run(["dpkg-deb", "-x", package, folder / "unpacked"])
    return folder / "unpacked/usr"


def check(options):
    build = os.path.realpath(options.build)
    # The path of a socket is short.
    with tempfile.TemporaryDirectory(dir="/tmp") as name:
        folder = pathlib.Path(name)
        made = unpacked(options, folder) if options.deb else installed(options, folder)
        check_files(made)
        check_library_paths(made, build)
        home = folder / "home"
        home.mkdir(mode=0o700)
        moved = folder / "elsewhere"
        shutil.move(made, moved)
        check_desktop(moved)
        check_manual(moved)
        check_use(moved, build, home)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--cpack", default="cpack")
    parser.add_argument("--build", required=True)
    parser.add_argument("--deb", action="store_true")
    try:
        check(parser.parse_args())
    except Problem as problem:
        print(problem, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
