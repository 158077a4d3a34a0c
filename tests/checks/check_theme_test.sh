#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Plants a page in a small tree and sees tools/check-theme.py refuse each way to name a colour, and
# a number that the theme has.
set -euo pipefail
check=$(realpath -- "$(dirname "${BASH_SOURCE[0]}")/../../tools/check-theme.py")
tree=$(mktemp -d)
trap 'rm -rf -- "$tree"' EXIT
git -C "$tree" init --quiet
mkdir -p "$tree/toolkit/view"
cat >"$tree/toolkit/view/ThemeValues.h" <<'HEADER'
inline constexpr double kCardRadius = 20;
inline constexpr double kBodySize = 17;
inline constexpr int kFadeDuration = 200;
HEADER

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
accepted 'Rectangle { radius: Theme.cardRadius; width: 20 }'
accepted 'Rectangle { radius: 2; ring.radius: 20 }'
accepted 'NumberAnimation { duration: Theme.fadeDuration }'
accepted 'PauseAnimation { duration: 2000 }'
accepted 'PlainText { points: Theme.bodySize; x: 17 }'
refused 'Rectangle { radius: 20 }' 'radius: 20 is Theme.cardRadius'
refused 'NumberAnimation { duration: 200 }' 'duration: 200 is Theme.fadeDuration'
refused 'PlainText { points: 17 }' 'points: 17 is Theme.bodySize'
refused 'AlertTexts { titlePoints: 17 }' 'Points: 17 is Theme.bodySize'
refused 'Text { font: Appearance.boldFont(17) }' 'Font(17 is Theme.bodySize'
echo "Colours and the theme's numbers are refused in pages."
