# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Debian packages that the scripts need; sourced by run.sh and test.sh.

# To build and run the program.
run_packages=(
  build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-private-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-multimedia-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6svg6 qt6-svg-plugins qt6-shader-baker
  libgl-dev libvulkan-dev libxkbcommon-dev libegl-dev libxcb1-dev libudev-dev libpulse-dev libssl-dev
  libxcb-randr0-dev libxcb-record0-dev libxcb-res0-dev libxcb-xinput-dev libxcb-xtest0-dev libxkbcommon-x11-dev
  plasma-wayland-protocols libwayland-dev libwayland-bin
  qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-window
  qml6-module-qtquick-templates
  fonts-inter fonts-noto-core fonts-wqy-microhei
)

# To run every test.
test_packages=(
  python3 libxml2-utils appstream desktop-file-utils dpkg-dev file libbenchmark-dev xvfb xauth xdotool binutils
  umockdev libumockdev-dev ddcutil i2c-tools
  mutter kwin-wayland libkf5screen-bin libkf6screen-bin libkscreen-bin qtwayland5 qt6-wayland
  xdg-desktop-portal xdg-desktop-portal-kde
  dbus python3-dbusmock pulseaudio pulseaudio-utils pipewire pipewire-pulse wireplumber
  xserver-xorg-core xserver-xorg-video-dummy xserver-xorg-dev x11-xserver-utils x11-xkb-utils x11-utils
  libxcb-shape0-dev openbox xfwm4 kwin-x11 xcompmgr
  xdg-utils xfce4-settings gsettings-desktop-schemas libglib2.0-bin libglib2.0-dev-bin
)

# To run the fuzzers.
fuzz_packages=(clang libclang-rt-dev)

# Installs what is missing of the packages that it is given. Needs root or sudo only if something is missing.
ensure_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are missing and there is no sudo to install them: ${missing[*]}" >&2
      return 1
    }
    root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${root[@]}" apt-get update -qq || echo "The package lists could not be refreshed; trying with the old ones." >&2
  # A package that this release does not have under this name is left out: another one of the list brings its files.
  local known=()
  for package in "${missing[@]}"; do
    # A name that other packages only mention has no candidate, although apt knows it.
    if LC_ALL=C apt-cache policy "$package" | grep -q '^  Candidate: [^(]'; then
      known+=("$package")
    else
      echo "This release has no package $package; going on without it."
    fi
  done
  [ ${#known[@]} -eq 0 ] ||
    DEBIAN_FRONTEND=noninteractive "${root[@]}" apt-get install -y -qq --no-install-recommends "${known[@]}" >/dev/null
}
