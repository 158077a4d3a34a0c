#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# tools/virtual-display.sh COMMAND [ARGUMENT...]
#
# Runs a command on a virtual screen of 390 x 844 points, which a browser on this machine shows.
# Only the loopback address is served. When the command ends, or on Ctrl+C, everything that was
# started here ends with it; the command's exit status is passed on.
# The functions that the trap reaches look unreachable to the linter.
# shellcheck disable=SC2317
set -euo pipefail

readonly screen_size=390x844x24
readonly first_port=6080
readonly last_port=6179
readonly web_root=/usr/share/novnc

[[ $# -gt 0 ]] || {
  echo "usage: $0 COMMAND [ARGUMENT...]" >&2
  exit 2
}

work=$(mktemp -d)
chmod 700 "$work"
started=()

# Every helper leads a process group of its own, so that Ctrl+C reaches this script first and the
# helpers are then ended in order; it also gets a signal should this script be killed outright.
start() {
  local log=$1
  shift
  setsid setpriv --pdeathsig TERM -- "$@" >>"$work/$log.out" 2>>"$work/$log.err" &
  started+=($!)
}

any_left() {
  local leader
  for leader in "${started[@]}"; do
    if kill -0 -- "-$leader" 2>/dev/null; then
      return 0
    fi
  done
  return 1
}

signal_all() {
  local index
  for ((index = ${#started[@]} - 1; index >= 0; --index)); do
    kill "-$1" -- "-${started[index]}" 2>/dev/null || true
  done
}

cleanup() {
  local status=$? attempt
  trap '' INT TERM HUP
  trap - EXIT
  signal_all TERM
  for ((attempt = 0; attempt < 40; ++attempt)); do
    any_left || break
    sleep 0.05
  done
  signal_all KILL
  # Takes the ended helpers off the process table, without a word about how they ended.
  wait "${started[@]}" 2>/dev/null || true
  rm -rf -- "$work"
  exit "$status"
}
trap cleanup EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

fail() {
  echo "error: $1" >&2
  cat -- "$work/$2.out" "$work/$2.err" >&2 2>/dev/null || true
  exit 1
}

# await PID LOG CONDITION...: waits for the condition while the process lives, 20 s at most.
await() {
  local process=$1 log=$2 attempt
  shift 2
  for ((attempt = 0; attempt < 400; ++attempt)); do
    if "$@"; then
      return 0
    fi
    kill -0 "$process" 2>/dev/null || return 1
    sleep 0.05
  done
  echo "gave up waiting" >>"$work/$log.err"
  return 1
}

answers() { (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }

start display Xvfb -displayfd 1 -screen 0 "$screen_size" -nolisten tcp
await "${started[-1]}" display test -s "$work/display.out" || fail "no virtual display" display
DISPLAY=:$(<"$work/display.out")
export DISPLAY

# A socket in a folder of ours: only the page's server can reach the screen through it.
start screen x11vnc -display "$DISPLAY" -unixsock "$work/screen.socket" -rfbport 0 -noipv6 \
  -forever -shared -nopw -quiet -nodpms -wait 10 -defer 5
await "${started[-1]}" screen test -S "$work/screen.socket" || fail "the screen is not shared" screen

port=$first_port
while true; do
  [[ $port -le $last_port ]] || fail "no free port from $first_port to $last_port" page
  if ! answers "$port"; then
    start page websockify --web "$web_root" --unix-target "$work/screen.socket" "127.0.0.1:$port"
    if await "${started[-1]}" page answers "$port" && kill -0 "${started[-1]}" 2>/dev/null; then
      break
    fi
  fi
  port=$((port + 1))
done

echo
echo "Open this address in a browser (Ctrl+C here ends the app):"
echo "  http://127.0.0.1:$port/vnc.html?autoconnect=1&resize=scale"

if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
  mkdir -m 700 "$work/runtime"
  export XDG_RUNTIME_DIR=$work/runtime
fi
if [[ -z ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]]; then
  export LANG=C.UTF-8
fi
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb

setsid setpriv --pdeathsig TERM -- "$@" &
started+=($!)
# The screen or its page failing would leave an app that nobody sees: the first to end, ends all.
status=0
wait -n -p ended "${started[@]}" || status=$?
if [[ ${ended:-} != "${started[-1]}" ]]; then
  fail "the virtual display ended" display
fi
exit "$status"
