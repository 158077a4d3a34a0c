#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tests/packaging/package-test.sh BUILD-FOLDER COMPONENT COMPILER [FLAGS]
#
# Installs a component by itself, builds the program of its folder here against what was installed,
# which knows nothing of the project's folders, and compares what the program writes with expected.txt.
# The folder's more.sh, if any, is run besides. FLAGS are those that a program needs to be linked with
# the libraries as built.
set -euo pipefail
[[ $# -ge 3 && $# -le 4 ]] || {
  echo "usage: $0 BUILD-FOLDER COMPONENT COMPILER [FLAGS]" >&2
  exit 2
}
build=$(realpath -- "$1") component=$2 compiler=$3 flags=${4-}
here=$(dirname "$(realpath -- "${BASH_SOURCE[0]}")")
project=$(realpath -- "$here/../..")
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
cp -r "$here/$component" "$here/find" "$folder"
# Moved after the install: nothing in it may know where it was installed first.
cmake --install "$build" --component "$component" --prefix "$folder/first" >"$folder/install.log"
tree=$folder/tree
mv "$folder/first" "$tree"

fail() {
  echo "error: $1"
  [[ $# -eq 1 ]] || cat "$folder/$2.log"
  exit 1
}

# configure FOLDER BUILD [OPTION...]
configure() {
  cmake -S "$folder/$1" -B "$folder/$2" -G Ninja -DCMAKE_PREFIX_PATH="$tree" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" "${@:3}" >"$folder/$2.log" 2>&1
}

# What was installed speaks of no folder of the project, and its headers name no other that is not there.
if grep -rIlF -e "$project" -e "$build" "$tree"; then fail "these know the project's folders"; fi
while IFS= read -r header; do
  [[ -f $tree/include/kindora/$header ]] || fail "$header is included and not installed"
done < <(grep -rhoP '^#include "\K[^"]+' "$tree/include/kindora" | sort -u)

configure "$component" program || fail "the example was not configured" program
cmake --build "$folder/program" >"$folder/build.log" 2>&1 || fail "the example was not built" build
QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$folder "$folder/program/example" >"$folder/written.txt" ||
  fail "the example failed"
diff "$folder/written.txt" "$here/$component/expected.txt"

if configure find nothing -DWANTED=nothing; then fail "a component that does not exist was found"; fi
grep -q 'Kindora has no component "nothing"' "$folder/nothing.log" ||
  fail "it was not said that there is no such component" nothing

if [[ -f $here/$component/more.sh ]]; then
  # shellcheck source=/dev/null
  source "$here/$component/more.sh"
fi
echo "$component can be installed and used alone."
