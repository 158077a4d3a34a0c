#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/check-tidy.sh BUILD-FOLDER [FILE...]
#
# Runs clang-tidy over those of the project's own sources that a built tree compiles (or over the
# named ones), as many at a time as there are processors. So build/core means what lies below the
# line, about a minute's work, and build/dev everything.
set -euo pipefail
[[ $# -ge 1 ]] || {
  echo "usage: $0 BUILD-FOLDER [FILE...]" >&2
  exit 2
}
build=$(realpath -- "$1")
shift
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if [[ ! -f $build/compile_commands.json ]]; then
  echo "error: $build has no compile_commands.json; configure and build it first" >&2
  exit 1
fi
files=("$@")
if [[ ${#files[@]} -eq 0 ]]; then
  mapfile -t files < <(
    comm -12 \
      <(git ls-files -- {alerts,app,effects,gallery,layout,main,model,phoneformat}'/*.cpp' \
        {photos,platform,screens,toolkit}'/*.cpp' |
        sort) \
      <(sed -n "s|^ *\"file\": \"$PWD/\(.*\)\",\{0,1\}\$|\1|p" "$build/compile_commands.json" | sort -u)
  )
fi
if [[ ${#files[@]} -eq 0 ]]; then
  echo "error: $build compiles no tracked source file" >&2
  exit 1
fi

# clang-tidy counts what it left out of foreign headers; those lines say nothing of this project.
tidy() {
  local output status=0
  output=$(clang-tidy -p "$BUILD" --quiet "$1" 2>&1) || status=$?
  if [[ $status -ne 0 ]]; then
    printf '%s\n' "$output" | grep -vE '^[0-9]+ (warnings?|errors?).* generated\.$'
  fi
  return "$status"
}
export -f tidy
# Headers that another compiler has precompiled are no use to clang.
BUILD=$(mktemp -d)
trap 'rm -rf -- "$BUILD"' EXIT
sed -E 's/ -include (\\"[^"]*\\"|[^ "]*)//' "$build/compile_commands.json" >"$BUILD/compile_commands.json"
export BUILD
# shellcheck disable=SC2016  # the inner shell is to expand it
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'tidy "$1"' tidy
echo "clang-tidy has nothing to say about ${#files[@]} files."
