#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Fails when a tracked C++ file is not as clang-format would write it, and says where.
# With --fix it writes the files instead.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mode=(--dry-run -Werror)
if [[ ${1:-} == --fix ]]; then
  mode=(-i)
fi

mapfile -d '' -t files < <(git ls-files -z -- '*.h' '*.cpp')
if [[ ${#files[@]} -eq 0 ]]; then
  echo "error: no C++ file is tracked here" >&2
  exit 1
fi
clang-format --style=file "${mode[@]}" -- "${files[@]}"
echo "${#files[@]} files are formatted."
