#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. Usage: scripts/test.sh [PRESET]
# (release, dev, asan or qt6)
source "$(dirname "$0")/common.sh"

preset=${1:-release}
packages=("${build_packages[@]}" fonts-dejavu-core)
[ "$preset" != qt6 ] || packages+=(qt6-base-dev qt6-serialport-dev)
need_packages "${packages[@]}"
build "$preset"
ctest --preset "$preset"
