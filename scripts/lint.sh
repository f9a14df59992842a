#!/usr/bin/env bash
# Checks layout (clang-format) and code (clang-tidy) of all our sources. Changes nothing.
source "$(dirname "$0")/common.sh"

need_packages "${build_packages[@]}" clang-format clang-tidy
mapfile -t sources < <(git ls-files 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h' 'tests/*.cpp' 'tests/*.h')
clang-format --dry-run --Werror "${sources[@]}"
echo "clang-format: ${#sources[@]} files are in order"

# clang-tidy wants the generated headers and a record of how each file is compiled.
build release
mapfile -t units < <(git ls-files 'src/*.cpp' 'tools/*.cpp')
printf '%s\0' "${units[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/release
echo "clang-tidy: ${#units[@]} files are in order"
