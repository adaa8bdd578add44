#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Installs what is missing, builds everything and runs every test. Presets may be named: ./test.sh asan tsan fuzz dev
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup/packages.sh

presets=("$@")
[ ${#presets[@]} -gt 0 ] || presets=(dev)

ensure_packages "${run_packages[@]}" "${test_packages[@]}"

# What fails beside others gets a second try by itself: tests with real servers share the machine's cores. It is named in
# both runs, and a test that needs its second try is a defect to mend.
run_tests() {
  ctest --preset "$1" -j "$(nproc)" && return
  echo "== $1: what failed is run once more, one test at a time"
  ctest --preset "$1" -j 1 --rerun-failed
}

for preset in "${presets[@]}"; do
  [ "$preset" != fuzz ] || ensure_packages "${fuzz_packages[@]}"
  echo "== $preset: building"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- -k 0
  echo "== $preset: testing"
  run_tests "$preset"
done
