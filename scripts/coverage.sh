#!/usr/bin/env bash
# Tells how much of src the tests run, line by line of each file; the report is build/coverage/report.html too.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" gcovr fonts-dejavu-core
cmake --preset dev -B build/coverage -DCMAKE_CXX_FLAGS="--coverage -fprofile-update=atomic" >/dev/null
cmake --build build/coverage
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage --output-on-failure
gcovr --root . --filter src/ --exclude-throw-branches build/coverage --print-summary \
    --html-details build/coverage/report.html --txt -
