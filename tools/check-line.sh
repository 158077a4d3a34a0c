#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/check-line.sh BUILD-FOLDER
#
# Holds the programs of a tree that was built without Qt against the line: no library that they need
# may be Qt's. What the compiler read is tools/check-arrows.py's affair.
set -euo pipefail
[[ $# -eq 1 ]] || {
  echo "usage: $0 BUILD-FOLDER" >&2
  exit 2
}
build=$(realpath -- "$1")

failed=0
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
