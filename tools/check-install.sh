#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/check-install.sh BUILD-FOLDER
#
# Installs a built tree into a folder of its own and holds what arrives against what is to arrive.
set -euo pipefail
[[ $# -eq 1 ]] || {
  echo "usage: $0 BUILD-FOLDER" >&2
  exit 2
}
stage=$(mktemp -d)
trap 'rm -rf -- "$stage"' EXIT
cmake --install "$1" --prefix "$stage" >/dev/null

app_id=org.kindora.Kindora
diff <(cd "$stage" && find . -type f | sort) - <<EOF
./bin/kindora
./share/applications/$app_id.desktop
./share/icons/hicolor/scalable/apps/$app_id.svg
EOF
test -x "$stage/bin/kindora"
desktop-file-validate "$stage/share/applications/$app_id.desktop"
echo "The program, its desktop entry and its icon are installed."
