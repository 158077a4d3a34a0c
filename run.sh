#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Installs what is missing, builds Kindora and opens it. Without a display the app runs in a virtual
# one of a phone's size, which a browser on this machine shows; Ctrl+C ends all of it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/install-packages.sh build run
source tools/compiler-cache.sh
cmake --preset app
cmake --build --preset app --target kindora
app=$PWD/build/app/app/main/kindora

if [[ -n ${WAYLAND_DISPLAY:-} || -n ${DISPLAY:-} ]]; then
  exec "$app"
fi
exec tools/virtual-display.sh "$app"
