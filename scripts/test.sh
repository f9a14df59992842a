#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. Usage: scripts/test.sh [PRESET]   (release, dev or asan)
source "$(dirname "$0")/common.sh"

preset=${1:-release}
need_packages "${build_packages[@]}" fonts-dejavu-core
build "$preset"

export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
# For the asan preset. The suppressions name libraries, so the whole call stack is needed.
export LSAN_OPTIONS="suppressions=$PWD/tests/leaks.supp:print_suppressions=0" ASAN_OPTIONS=fast_unwind_on_malloc=0
ctest --test-dir "build/$preset" --output-on-failure --no-tests=error
