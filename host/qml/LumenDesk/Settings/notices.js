// SPDX-License-Identifier: Apache-2.0
.pragma library

// What others have written and the program uses at run time. `library` is the beginning of its file's name.
const notices = [
    { "name": "Qt 6: Core, D-Bus, GUI, Multimedia, Network, OpenGL, QML, Quick, SVG", "library": "libQt6", "licence": "LGPL-3.0-only", "address": "https://www.qt.io" },
    { "name": "GNU C++ run-time library", "library": "libstdc++", "licence": "GPL-3.0-or-later WITH GCC-exception-3.1", "address": "https://gcc.gnu.org" },
    { "name": "GNU C run-time support", "library": "libgcc_s", "licence": "GPL-3.0-or-later WITH GCC-exception-3.1", "address": "https://gcc.gnu.org" },
    { "name": "GNU C library", "library": "libc.so,libm.so,ld-linux", "licence": "LGPL-2.1-or-later", "address": "https://www.gnu.org/software/libc" },
    { "name": "libudev", "library": "libudev", "licence": "LGPL-2.1-or-later", "address": "https://systemd.io" },
    { "name": "XCB", "library": "libxcb", "licence": "MIT", "address": "https://xcb.freedesktop.org" },
    { "name": "libxkbcommon", "library": "libxkbcommon", "licence": "MIT", "address": "https://xkbcommon.org" },
    { "name": "Wayland, client library", "library": "libwayland-client", "licence": "MIT", "address": "https://wayland.freedesktop.org" },
    { "name": "Plasma's Wayland protocols, made into the program", "library": "", "licence": "LGPL-2.1-or-later", "address": "https://invent.kde.org/libraries/plasma-wayland-protocols" },
    { "name": "PulseAudio, client library", "library": "libpulse", "licence": "LGPL-2.1-or-later", "address": "https://www.freedesktop.org/wiki/Software/PulseAudio" },
    { "name": "OpenSSL", "library": "libcrypto,libssl", "licence": "Apache-2.0", "address": "https://www.openssl.org" },
    { "name": "Inter, the typeface, where it is installed", "library": "", "licence": "OFL-1.1", "address": "https://rsms.me/inter" }
]
