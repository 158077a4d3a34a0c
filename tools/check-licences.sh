#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Fails when a tracked source file does not name its copyright and its licence near its top.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -d '' -t files < <(
  git ls-files -z -- '*.h' '*.cpp' '*.qml' '*.js' '*.py' '*.sh' '*.cmake' '*CMakeLists.txt' \
    '*.desktop' .ci/run
)
if [[ ${#files[@]} -eq 0 ]]; then
  echo "error: no source file is tracked here" >&2
  exit 1
fi
failed=0
for file in "${files[@]}"; do
  top=$(head -n 8 -- "$file")
  if [[ $top != *'SPDX-FileCopyrightText: '* || $top != *'SPDX-License-Identifier: Apache-2.0'* ]]; then
    echo "$file: its top names no copyright or no licence"
    failed=1
  fi
done
[[ $failed -ne 0 ]] || echo "${#files[@]} files name their licence."
exit "$failed"
