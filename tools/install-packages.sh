#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Installs the packages that Kindora needs and that this machine lacks. A machine that has them all
# is left alone: neither root nor the network is needed then.
#
#   tools/install-packages.sh build        what compiles the app
#   tools/install-packages.sh build run    ... and what shows it, with or without a display
#   tools/install-packages.sh build test   ... and what the tests use
set -euo pipefail

build_packages=(
  g++ cmake ninja-build pkg-config
  libicu-dev
  # Qt Quick and its QML compiler; qt6-base-dev brings the OpenGL headers.
  qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev
  libgl1-mesa-dev
  # The modules that the storyboards import: the QML compiler and qmllint read them too.
  qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-templates
  qml6-module-qtquick-window
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects
)

run_packages=(
  # Platform plugins, picture formats, software OpenGL and the app's typeface.
  qt6-qpa-plugins qt6-wayland libqt6svg6 libgl1-mesa-dri fonts-lato
  # The camera page, and the blur behind alerts; the app runs without them.
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects
  # A virtual display, shown as a page on the loopback address.
  xvfb x11vnc websockify novnc
)

test_packages=(
  # Libraries of the unit, property and storyboard tests.
  libgtest-dev libgmock-dev librapidcheck-dev qml6-module-qttest
  qt6-qpa-plugins libqt6svg6 fonts-lato
  # Checks.
  git clang clang-format clang-tidy cmake-format shellcheck desktop-file-utils
  # The end-to-end tests: a private display and bus, the accessibility tree, pointer and keys.
  xvfb libgl1-mesa-dri dbus-daemon at-spi2-core
  python3 python3-gi gir1.2-atspi-2.0 python3-xlib
)

benchmark_packages=(libbenchmark-dev libcairo2-dev libphonenumber-dev libprotobuf-dev)

coverage_packages=(gcovr)

fuzz_packages=(clang libclang-rt-14-dev)

usage() {
  echo "usage: $0 build|run|test|benchmark|coverage|fuzz ..." >&2
  exit 2
}

[[ $# -gt 0 ]] || usage
wanted=()
for group in "$@"; do
  case "$group" in
    build) wanted+=("${build_packages[@]}") ;;
    run) wanted+=("${run_packages[@]}") ;;
    test) wanted+=("${test_packages[@]}") ;;
    benchmark) wanted+=("${benchmark_packages[@]}") ;;
    coverage) wanted+=("${coverage_packages[@]}") ;;
    fuzz) wanted+=("${fuzz_packages[@]}") ;;
    *) usage ;;
  esac
done

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
  echo "This system has no apt. Please see to it that it has what these packages hold"
  echo "(names as on Debian):"
  printf '  %s\n' "${wanted[@]}" | sort -u
  for tool in c++ cmake ninja; do
    if ! command -v "$tool" >/dev/null; then
      echo "error: $tool is missing, so nothing can be built" >&2
      exit 1
    fi
  done
  exit 0
fi

is_installed() {
  [[ "$(dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | sort -u)" == installed ]]
}

missing=()
for package in "${wanted[@]}"; do
  if ! is_installed "$package" && [[ " ${missing[*]} " != *" $package "* ]]; then
    missing+=("$package")
  fi
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

echo "Installing: ${missing[*]}"
as_root=(env)
if [[ $(id -u) -ne 0 ]]; then
  if ! command -v sudo >/dev/null; then
    echo "error: these packages are missing, and installing them needs root or sudo:" >&2
    echo "  apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo env)
fi

apt() {
  "${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 -q "$@"
}

apt update || echo "The package lists could not be refreshed; trying with those at hand." >&2
apt install -y --no-install-recommends "${missing[@]}"
