#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# shellcheck disable=SC2154
# Read by package-test.sh: nothing of Qt is installed or asked for below the line.
if find "$tree" -path '*qt*' | grep .; then fail "these belong to what is drawn by Qt"; fi
if grep -rl 'Qt6' "$tree/lib"; then fail "these ask for Qt"; fi
# Asked for, what was not installed is missing with its reason; offered, it is left out.
if configure find absent -DWANTED=effects_qt; then fail "effects_qt was found"; fi
grep -q 'Kindora has no component "effects_qt" here' "$folder/absent.log" || fail "no reason" absent
configure find offered -DWANTED=effects -DOFFERED=effects_qt || fail "effects was not found" offered
grep -q 'There is Kindora::effects\.' "$folder/offered.log" || fail "no target" offered
