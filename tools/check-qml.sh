#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/check-qml.sh BUILD-FOLDER
#
# Lints every QML module of a built tree. Any remark fails, those too that the linter calls mere
# information, and so does a tracked QML file that no module lists: it would be neither linted nor
# compiled. Files that are loaded by name lie beside those that name them, which the linter cannot see.
set -euo pipefail
[[ $# -eq 1 ]] || {
  echo "usage: $0 BUILD-FOLDER" >&2
  exit 2
}
build=$(realpath -- "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

output=$(cmake --build "$build" --target all_qmllint 2>&1) || {
  printf '%s\n' "$output"
  exit 1
}
if grep -E '^(Info|Warning|Error): ' <<<"$output"; then
  printf '%s\n' "$output"
  exit 1
fi

mapfile -d '' -t files < <(git ls-files -z -- '*.qml' ':!tests')
# As they are written for a shell, less its quotes.
commands=$(ninja -C "$build" -t commands all_qmllint | tr -d '\\"')
failed=0
for file in "${files[@]}"; do
  if [[ $commands != *"$PWD/$file"* ]]; then
    echo "$file: belongs to no QML module"
    failed=1
  fi
  while IFS= read -r named; do
    if [[ ! -f $(dirname -- "$file")/$named ]]; then
      echo "$file: names $named, which does not lie beside it"
      failed=1
    fi
  done < <(grep -oP '"\K[A-Za-z]+\.qml(?=")' -- "$file" || true)
done
if [[ ${#files[@]} -eq 0 ]]; then
  echo "error: no QML file is tracked here" >&2
  failed=1
fi
[[ $failed -ne 0 ]] || echo "${#files[@]} QML files are clean."
exit "$failed"
