#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Plants a page in a small tree and sees tools/check-theme.py refuse each way to name a colour.
set -euo pipefail
check=$(realpath -- "$(dirname "${BASH_SOURCE[0]}")/../../tools/check-theme.py")
tree=$(mktemp -d)
trap 'rm -rf -- "$tree"' EXIT
git -C "$tree" init --quiet

# plant LINE: the tree's only page has that line.
plant() {
  printf 'import QtQuick\n%s\n' "$1" >"$tree/Page.qml"
  git -C "$tree" add -- Page.qml
}
accepted() {
  plant "$1"
  "$check" "$tree" >"$tree/said" || {
    echo "refused, but should not be:" && cat "$tree/said"
    exit 1
  }
}
# refused LINE LITERAL: the literal is the complaint.
refused() {
  plant "$1"
  if "$check" "$tree" >"$tree/said"; then
    echo "accepted, but should not be: $1"
    exit 1
  fi
  diff <(echo "Page.qml:2: $2") "$tree/said"
}

if "$check" "$tree" 2>/dev/null; then
  echo "a tree without pages was accepted"
  exit 1
fi
accepted 'Rectangle { color: Theme.ground }'
accepted 'Rectangle { color: Qt.alpha(Theme.dim, 0.4) }'
accepted 'Rectangle { color: root.filled ? Theme.card : "transparent" }'
accepted 'Item { // color: "white"'
accepted 'PictureItem { imageName: "back"; text: "white" }'
refused 'Rectangle { color: Qt.rgba(0.5, 0.5, 0.5, 1) }' 'Qt.rgba('
refused 'Rectangle { color: "#fff" }' '"#fff"'
refused 'Rectangle { color: "white" }' 'color: "white"'
refused 'Rectangle { border.color: root.on ? Theme.ink : "red" }' 'color: root.on ? Theme.ink : "red"'
refused 'PictureItem { tint: "black" }' 'tint: "black"'
refused 'property color textColor: "gray"' 'textColor: "gray"'
echo "Colours in pages are refused."
