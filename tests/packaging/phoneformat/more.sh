#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# shellcheck disable=SC2154
# Read by package-test.sh: what arrived in $tree, and the tool.
arrived=$(cd "$tree" && find . -type f | sed 's|^\./||; s|^lib/[^/]*-linux-[^/]*/|lib/|; s|^lib64/|lib/|' |
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
lib/cmake/Kindora/Needs-phoneformat.cmake
lib/libkindora_phoneformat.a
share/doc/kindora-phoneformat/LICENSE
share/doc/kindora-phoneformat/NOTICE
share/kindora/PhoneFormats.dat
END

# The installed tool finds the data that were installed with it, not those of the project.
rm "$tree/share/kindora/PhoneFormats.dat"
printf 'code 44\ncountries gb\nset 2\n20 any "##-#"\n' >"$folder/plans.txt"
tool=$tree/bin/kindora-phoneformat
"$tool" compile "$folder/plans.txt" "$tree/share/kindora/PhoneFormats.dat"
[[ $("$tool" format --country gb <<<207) == 20-7 ]] || fail "the tool read other data"
