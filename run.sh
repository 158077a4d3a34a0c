#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
#   ./run.sh           installs what is missing, builds Kindora and opens it
#   ./run.sh gallery   the same for the gallery of the general components
#
# Without a display the app runs in a virtual one of a phone's size, which a browser on this machine
# shows; Ctrl+C ends all of it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

case "${1:-}" in
  "") program=kindora folder=main ;;
  gallery) program=kindora-gallery folder=gallery ;;
  *)
    echo "usage: $0 [gallery]" >&2
    exit 2
    ;;
esac

tools/install-packages.sh build run
source tools/compiler-cache.sh
cmake --preset app
cmake --build --preset app --target "$program"
app=$PWD/build/app/$folder/$program

if [[ -n ${WAYLAND_DISPLAY:-} || -n ${DISPLAY:-} ]]; then
  exec "$app"
fi
exec tools/virtual-display.sh "$app"
