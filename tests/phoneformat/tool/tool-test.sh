#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tests/phoneformat/tool/tool-test.sh PROGRAM
#
# Calls the command-line tool as a person would and compares what it prints and how it leaves.
set -euo pipefail
[[ $# -eq 1 ]] || {
  echo "usage: $0 PROGRAM" >&2
  exit 2
}
tool=$(realpath -- "$1")
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
cd "$folder"
failed=0

# expect NAME STATUS OUTPUT ERRORS COMMAND...: the command's standard input is this function's own.
expect() {
  local name=$1 status=$2 output=$3 errors=$4 actual=0
  shift 4
  "$@" >out 2>err || actual=$?
  if [[ $actual -ne $status || $(<out) != "$output" || $(<err) != "$errors" ]]; then
    printf '%s: left with %s\n--- output\n%s\n--- errors\n%s\n' \
      "$name" "$actual" "$(<out)" "$(<err)"
    failed=1
  fi
}

usage=$("$tool" 2>&1 || true)
[[ $usage == usage:* ]] || failed=1

expect 'national numbers' 0 $'020 7123 4567\n\n*67' '' \
  "$tool" format --country gb <<<$'02071234567\nx\n*67'
expect 'international numbers need no country' 0 $'+44 20 7123 4567\n02071234567' '' \
  "$tool" format <<<$'+442071234567\n02071234567'
expect 'a last line without an end, and carriage returns' 0 $'+1 415\n+1 415-5' '' \
  "$tool" format < <(printf '+1415\r\n+14155')
expect 'verdicts' 0 $'valid\ninvalid\ninvalid' '' \
  "$tool" valid --country gb <<<$'02071234567\n020712345\nx'
expect 'no numbers' 0 '' '' "$tool" valid </dev/null
expect 'an unknown country' 1 '' 'kindora-phoneformat: small.dat: knows no country "de"' \
  env -C "$folder" bash -c "printf 'code 44\ncountries gb\nset 2\n20 any \"## #\"\n' >small.txt
    '$tool' compile small.txt small.dat && '$tool' format --country de --data small.dat"
expect 'data of its own' 0 '+44 20 7' '' "$tool" format --data small.dat <<<'+44207'
expect 'a dump' 0 $'code 44\ncountries gb\nset 2\n  20  any  "## #"' '' "$tool" dump small.dat
expect 'a dump of --data' 0 $'code 44\ncountries gb\nset 2\n  20  any  "## #"' '' \
  "$tool" dump --data small.dat
expect 'a clean file' 0 '' '' "$tool" lint small.dat

"$tool" dump small.dat >again.txt
expect 'a dump is a source' 0 '' '' "$tool" compile again.txt again.dat
cmp small.dat again.dat || failed=1

mkdir sources
cp small.txt sources/b.txt
printf 'code 1\ncountries us\n' >sources/a.txt
echo 'no source' >sources/README
expect 'a folder is read in the order of its names' 0 '' '' "$tool" compile sources both.dat
[[ $("$tool" dump both.dat | grep code) == $'code 1\ncode 44' ]] || failed=1

printf 'code 44\ncountries gb\nset 2\n20 any "##[["\n30\n' >bad.txt
expect 'mistakes in a source' 1 '' \
  $'bad.txt:4: "[[" without "]]" in "##[["\nbad.txt:5: a rule is a range, a prefix and a pattern in quotes' \
  "$tool" compile bad.txt bad.dat
[[ ! -e bad.dat ]] || failed=1
expect 'a plan without a country' 1 '' 'bad.txt:1: calling code 44 has no country' \
  bash -c "echo code 44 >bad.txt; '$tool' compile bad.txt bad.dat"
head -c 40 small.dat >cut.dat
expect 'a damaged file' 1 '' \
  'cut.dat: calling code 44: a rule at 38 lies outside the file of 40 bytes' "$tool" lint cut.dat
expect 'no file' 1 '' 'kindora-phoneformat: none.dat: cannot be read' "$tool" lint none.dat
expect 'no data' 1 '' 'kindora-phoneformat: none.dat: cannot be read' \
  "$tool" format --data none.dat </dev/null
expect 'no source' 1 '' 'kindora-phoneformat: none.txt: cannot be read' \
  "$tool" compile none.txt out.dat
mkdir empty
expect 'an empty folder' 1 '' 'kindora-phoneformat: empty: holds no source' \
  "$tool" compile empty out.dat
expect 'an output that cannot be written' 1 '' \
  'kindora-phoneformat: none/out.dat: cannot be written' "$tool" compile small.txt none/out.dat

expect 'no command' 2 '' "$usage" "$tool"
expect 'an unknown command' 2 '' "$usage" "$tool" form
expect 'an unknown option' 2 '' "$usage" "$tool" format --nation gb
expect 'an option without its value' 2 '' "$usage" "$tool" format --country
expect 'operands that nobody asked for' 2 '' "$usage" "$tool" valid 123
expect 'an option that the command does not take' 2 '' "$usage" "$tool" lint --country gb small.dat
expect 'too few operands' 2 '' "$usage" "$tool" compile small.txt
expect 'too many operands' 2 '' "$usage" "$tool" lint small.dat both.dat

[[ $failed -ne 0 ]] || echo "The tool does as it is told."
exit "$failed"
