#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Installs what is missing, builds Lumen Desk and starts it. Arguments go to the program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup/packages.sh

ensure_packages "${run_packages[@]}"

echo "Building (build/run) ..."
cmake --preset run >/dev/null
cmake --build --preset run

program=build/run/bin/lumen-desk
if [ $# -gt 0 ]; then
  exec "$program" "$@"
fi

# Whether a monitor that a package serves is connected: asked of the program itself, which only reads.
has_supported_monitor() {
  compgen -G '/dev/i2c-*' >/dev/null || return 1
  local work pid monitors found=1
  work=$(mktemp -d)
  "$program" --headless --control "$work/run/c.sock" --config-dir "$work/config" --data-dir "$work/data" 2>/dev/null &
  pid=$!
  for _ in $(seq 50); do
    if monitors=$(build/run/bin/lumen-deskctl --control "$work/run/c.sock" --json monitors 2>/dev/null); then
      grep -Eq '"supported": ?true' <<<"$monitors" && found=0
      break
    fi
    sleep 0.1
  done
  kill -TERM "$pid" 2>/dev/null
  wait "$pid" || true
  rm -rf "$work"
  return $found
}

session=(--simulate TK30Z)
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  if has_supported_monitor; then
    echo "Starting on the connected monitors."
    exec "$program"
  fi
  echo "No supported monitor is connected: starting on a simulated TK30Z. Change it from another terminal, for instance:"
  echo "  build/run/bin/lumen-deskctl sim set 0xF3 1"
  exec "$program" "${session[@]}"
fi

picture=$PWD/build/lumen-desk.png
echo "There is no display server: the session runs off-screen on a simulated TK30Z."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
socket=$work/run/control.sock
"$program" "${session[@]}" --control "$socket" --config-dir "$work/config" --data-dir "$work/data" 2>"$work/log" &
pid=$!
ctl() { build/run/bin/lumen-deskctl --control "$socket" "$@"; }
for _ in $(seq 100); do
  ctl monitors >/dev/null 2>&1 && break
  kill -0 "$pid" 2>/dev/null || { cat "$work/log" >&2; exit 1; }
  sleep 0.1
done
echo "The monitor:"
ctl monitors
echo "A click on the tile \"Local Contrast\" ..."
ctl ui press "Local Contrast"
ctl raw idle '{}' >/dev/null
echo "... went over the wire as:"
ctl sim traffic | awk 'NR == 1 || $3 == 243' # VCP 0xF3
echo "The monitor's own menu switches it off again; the tile follows:"
ctl sim set 0xF3 0
ctl sync
ctl get aiContrast.state
ctl ui screenshot "$picture"
kill -TERM "$pid"
wait "$pid"
echo "A picture of the window: $picture"
