#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Fails when a tracked file is not as its formatter would write it, and says where: C++ by
# clang-format, CMake by cmake-format. CMake and QML files have lines of 100 columns at most; they and
# scripts have no tabs and no blanks at the ends of lines. With --fix the formatters write the files.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C.UTF-8

fix=
if [[ ${1:-} == --fix ]]; then
  fix=yes
fi
failed=0

# Fills `files` with the tracked files of a kind, which there must be.
list() {
  mapfile -d '' -t files < <(git ls-files -z -- "$@")
  if [[ ${#files[@]} -eq 0 ]]; then
    echo "error: nothing like $* is tracked here" >&2
    exit 1
  fi
}

list '*.h' '*.cpp'
mode=(--dry-run -Werror)
[[ -z $fix ]] || mode=(-i)
clang-format --style=file "${mode[@]}" -- "${files[@]}" || failed=1
count=${#files[@]}

list '*.cmake' '*CMakeLists.txt'
mode=(--check)
[[ -z $fix ]] || mode=(-i)
cmake-format "${mode[@]}" -- "${files[@]}" || failed=1
count=$((count + ${#files[@]}))

# qmlformat of Qt 6.4 joins lines that were broken and loses values of pragmas, so that only this
# much of QML is held: steps of four blanks, but where an expression goes on.
list '*.qml'
if grep -nP '^(?:    )* {1,3}(?:[a-z][\w.]*:|[A-Z]\w* \{|[}\])])' -- "${files[@]}"; then
  echo "These lines are not indented by steps of four blanks."
  failed=1
fi
count=$((count + ${#files[@]}))

list '*.cmake' '*CMakeLists.txt' '*.py' '*.qml' '*.sh' .ci/run
if grep -nP '\t|[ \t\r]$' -- "${files[@]}"; then
  echo "These lines have tabs or end in blanks."
  failed=1
fi
for file in "${files[@]}"; do
  if [[ -s $file && -n $(tail -c 1 -- "$file") ]]; then
    echo "$file: its last line does not end"
    failed=1
  fi
done
list '*.cmake' '*CMakeLists.txt' '*.qml'
if grep -nP '^.{101}' -- "${files[@]}"; then
  echo "These lines have more than 100 columns."
  failed=1
fi

[[ $failed -ne 0 ]] || echo "$count files are formatted."
exit "$failed"
