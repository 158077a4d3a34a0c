#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# shellcheck disable=SC2154
# Read by package-test.sh: the QML tools know the modules, and without Qt only the part that draws is
# missing.
cmake --build "$folder/program" --target example_qmllint >"$folder/lint.log" 2>&1 ||
  fail "the linter remarks something in the example" lint
without_qt=-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
if configure find wanted $without_qt -DWANTED=effects_qt; then fail "effects_qt was found"; fi
tr -s ' \n' ' ' <"$folder/wanted.log" |
  grep -q 'component "effects_qt" needs "Qt6 6.4 .*", which was not found' ||
  fail "it was not said that Qt is missing" wanted
configure find offered $without_qt -DWANTED=effects -DOFFERED=effects_qt ||
  fail "effects was not found" offered
grep -q 'There is Kindora::effects\.' "$folder/offered.log" || fail "no target" offered
grep -q 'There is no Kindora::effects_qt\.' "$folder/offered.log" || fail "half a target" offered
