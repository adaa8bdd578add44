#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Installs what is missing, builds everything and runs every test. Presets may be named: ./test.sh asan tsan fuzz dev
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup/packages.sh

presets=("$@")
[ ${#presets[@]} -gt 0 ] || presets=(dev)

ensure_packages "${run_packages[@]}" "${test_packages[@]}"

for preset in "${presets[@]}"; do
  [ "$preset" != fuzz ] || ensure_packages "${fuzz_packages[@]}"
  echo "== $preset: building"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- -k 0
  echo "== $preset: testing"
  ctest --preset "$preset" -j "$(nproc)"
done
