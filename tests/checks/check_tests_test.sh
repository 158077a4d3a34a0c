#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Plants tests in a small tree and sees tools/check-tests.py refuse those that lie elsewhere than
# their subjects.
set -euo pipefail
check=$(realpath -- "$(dirname "${BASH_SOURCE[0]}")/../../tools/check-tests.py")
tree=$(mktemp -d)
trap 'rm -rf -- "$tree"' EXIT
git -C "$tree" init --quiet

plant() {
  mkdir -p -- "$tree/$(dirname "$1")"
  touch -- "$tree/$1"
  git -C "$tree" add -- "$1"
}
uproot() { git -C "$tree" rm --quiet --force -- "$1"; }

accepted() {
  "$check" "$tree" >"$tree/said" || {
    echo "refused, but should not be:" && cat "$tree/said"
    exit 1
  }
}
# refused PATH REASON: with the test at that path planted, just that is the complaint.
refused() {
  plant "$1"
  if "$check" "$tree" >"$tree/said"; then
    echo "accepted, but should not be: $1"
    exit 1
  fi
  diff <(echo "$1: $2") "$tree/said"
  uproot "$1"
}

if "$check" "$tree" 2>/dev/null; then
  echo "a tree without tests was accepted"
  exit 1
fi
plant model/User.h
plant model/UserPhoto.h
plant ui/list/List.qml
plant ui/Row.h
plant tests/model/UserTest.cpp
plant tests/model/UserDeathTest.cpp
plant tests/model/UserPhotoSizeTest.cpp
plant tests/model/UsersTest.cpp
plant tests/ui/list/ListTest.cpp
plant tests/ui/TypicalDayTest.cpp
accepted
refused tests/ui/UserTest.cpp "User lies in model"
refused tests/ui/UserDeathTest.cpp "User lies in model"
refused tests/ui/UserPhotoSizeTest.cpp "UserPhoto lies in model"
refused tests/ui/ListTest.cpp "List lies in ui/list"
refused tests/ui/list/RowTest.cpp "Row lies in ui"
refused tests/elsewhere/TypicalDayTest.cpp "there are no sources in elsewhere"
refused tests/TypicalDayTest.cpp "there are no sources in ."
accepted
plant ui/list/Row.h
plant tests/ui/list/RowTest.cpp
accepted
echo "Tests that lie elsewhere are refused."
