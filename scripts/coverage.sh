#!/usr/bin/env bash
# Tells how much of src the tests run: the lines of each file, then the branches, which lines do not show. The report is
# build/coverage/report.html too.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" gcovr fonts-dejavu-core
cmake --preset dev -B build/coverage -DCMAKE_CXX_FLAGS="--coverage -fprofile-update=atomic" >/dev/null
cmake --build build/coverage
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage --output-on-failure
report() {
    gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches build/coverage "$@"
}
report --print-summary --html-details build/coverage/report.html --txt -
report --branches --txt -
