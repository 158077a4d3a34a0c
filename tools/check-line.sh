#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/check-line.sh BUILD-FOLDER
#
# Holds a tree that was built without Qt against its own records: no file that the compiler read and
# no library that a program needs may be Qt's.
set -euo pipefail
[[ $# -eq 1 ]] || {
  echo "usage: $0 BUILD-FOLDER" >&2
  exit 2
}
build=$(realpath -- "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Names from the top folder on, so that the folders above it have no say.
read_files=$(ninja -C "$build" -t deps | sed "s|$PWD/||")
if ! grep -q '\.h$' <<<"$read_files"; then
  echo "error: $build has no record of what was compiled" >&2
  exit 1
fi
failed=0
if grep -iE '(^|/| )qt[a-z0-9]*/' <<<"$read_files" | sort -u | grep .; then
  echo "Below the line the compiler read these."
  failed=1
fi

programs=0
while IFS= read -r -d '' program; do
  programs=$((programs + 1))
  if readelf -d "$program" 2>/dev/null | grep -E 'NEEDED.*libQt'; then
    echo "$program needs these."
    failed=1
  fi
done < <(find "$build" -path '*/CMakeFiles' -prune -o -type f -name 'test_*' -perm -u+x -print0)
if [[ $programs -eq 0 ]]; then
  echo "error: $build holds no test program" >&2
  failed=1
fi
[[ $failed -ne 0 ]] || echo "$programs programs know nothing of Qt."
exit "$failed"
