#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# shellcheck disable=SC2154
# Read by package-test.sh: the QML tools know the modules.
cmake --build "$folder/program" --target example_qmllint >"$folder/lint.log" 2>&1 ||
  fail "the linter remarks something in the example" lint
