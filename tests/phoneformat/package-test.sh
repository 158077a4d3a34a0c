#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tests/phoneformat/package-test.sh BUILD-FOLDER COMPILER [FLAGS]
#
# Installs the phone formatter by itself and builds a program against it that knows nothing of the
# project's folders. FLAGS are those that a program needs to be linked with the library as built.
set -euo pipefail
[[ $# -ge 2 && $# -le 3 ]] || {
  echo "usage: $0 BUILD-FOLDER COMPILER [FLAGS]" >&2
  exit 2
}
build=$1 compiler=$2 flags=${3-}
consumer=$(realpath -- "$(dirname "${BASH_SOURCE[0]}")/consumer")
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
cp -r "$consumer" "$folder/source"
# Moved after the install: nothing in it may know where it was installed first.
cmake --install "$build" --component phoneformat --prefix "$folder/first" >"$folder/install.log"
mv "$folder/first" "$folder/tree"

arrived=$(cd "$folder/tree" && find . -type f | sed 's|^\./||; s|^lib/[^/]*-linux-[^/]*/|lib/|; s|^lib64/|lib/|' |
  grep -v '^lib/cmake/Kindora/Kindora-phoneformat-[a-z]*\.cmake$' | LC_ALL=C sort)
diff <(echo "$arrived") - <<END
bin/kindora-phoneformat
include/kindora/phoneformat/CallingCodeInfo.h
include/kindora/phoneformat/LuPhoneFormat.h
include/kindora/phoneformat/PhoneFormatData.h
include/kindora/phoneformat/PhoneFormatEnvironment.h
include/kindora/phoneformat/PhoneRule.h
include/kindora/phoneformat/RuleIndex.h
include/kindora/phoneformat/RuleSet.h
include/kindora/phoneformat/SetIndex.h
include/kindora/phoneformat/Uncopied.h
lib/cmake/Kindora/Kindora-phoneformat.cmake
lib/cmake/Kindora/KindoraConfig.cmake
lib/cmake/Kindora/KindoraConfigVersion.cmake
lib/libkindora_phoneformat.a
share/doc/kindora-phoneformat/LICENSE
share/doc/kindora-phoneformat/NOTICE
share/kindora/PhoneFormats.dat
END

configure() {
  cmake -S "$folder/source" -B "$folder/$1" -G Ninja -DCMAKE_PREFIX_PATH="$folder/tree" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" -DCOMPONENT="$1" \
    >"$folder/$1.log" 2>&1
}

show() {
  cat "$folder/$1.log"
  exit 1
}

configure phoneformat || show phoneformat
cmake --build "$folder/phoneformat" >"$folder/build.log" || show build
[[ $("$folder/phoneformat/consumer") == '020 7123 4567' ]]

# The installed tool finds the data that were installed with it, not those of the project.
rm "$folder/tree/share/kindora/PhoneFormats.dat"
printf 'code 44\ncountries gb\nset 2\n20 any "##-#"\n' >"$folder/plans.txt"
tool=$folder/tree/bin/kindora-phoneformat
"$tool" compile "$folder/plans.txt" "$folder/tree/share/kindora/PhoneFormats.dat"
[[ $("$tool" format --country gb <<<207) == 20-7 ]]

if configure nothing; then
  echo "a component that does not exist was found"
  exit 1
fi
grep -q 'Kindora has no component "nothing"' "$folder/nothing.log" || show nothing
echo "The phone formatter can be installed and used alone."
