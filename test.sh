#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
#   ./test.sh             installs what is missing, builds everything and runs every test
#   ./test.sh asan        the same with the address and undefined behaviour sanitizers
#   ./test.sh tsan        ... with the thread sanitizer
#   ./test.sh coverage    ... with coverage, reported in build/coverage/report/index.html
#
# Any names of CMake presets will do. Without one they are three that prove different things: what lies
# below the line under the address and undefined behaviour sanitizers (core), what has more than one
# thread under the thread sanitizer (races), and what lies above the line as it ships (above).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

presets=("$@")
if [[ ${#presets[@]} -eq 0 ]]; then
  presets=(core races above)
fi

groups=(build test)
for preset in "${presets[@]}"; do
  case "$preset" in
    app | fuzz) echo "error: the preset $preset has no tests" >&2 && exit 2 ;;
    release) groups+=(benchmark) ;;
    coverage) groups+=(coverage) ;;
  esac
done
tools/install-packages.sh "${groups[@]}"
source tools/compiler-cache.sh

# A test too, but worth knowing before a long build.
tools/check-format.sh

for preset in "${presets[@]}"; do
  cmake --preset "$preset"
  cmake --build --preset "$preset"
done
for preset in "${presets[@]}"; do
  if [[ $preset == above ]]; then
    # This tree compiles all that ships.
    tools/check-tidy.py build/above
  fi
  if [[ $preset == coverage ]]; then
    find build/coverage -name '*.gcda' -delete
  fi
  ctest --preset "$preset" --parallel "$(nproc)"
  if [[ $preset == coverage ]]; then
    mkdir -p build/coverage/report
    gcovr --root . --object-directory build/coverage --exclude 'build/' --exclude 'tests/' \
      --html-details build/coverage/report/index.html
  fi
done
