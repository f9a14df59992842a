#!/usr/bin/env bash
# Fuzzes the readers of what comes from outside, under the sanitizers: fuzz.sh [SECONDS [READER...]], for each reader
# (600 seconds and all of them without arguments). What was tried is kept in build/fuzz/corpus, a finding in
# build/fuzz/findings. Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8

seconds=${1:-600}
[ $# -gt 0 ] && shift
readers=("$@")
[ ${#readers[@]} -gt 0 ] || readers=(settings profile programmer language description translation update output firmware protocol)

need_packages "${build_packages[@]}" clang
version=$(clang++ -dumpversion)
[ "${version%%.*}" -lt 14 ] || need_packages "libclang-rt-${version%%.*}-dev" # before 14 clang brings the sanitizers
CXX=clang++ cmake --preset dev -B build/fuzz -DKORVEL_FUZZ=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all" >/dev/null
cmake --build build/fuzz --target "${readers[@]/#/fuzz-}"

cd build/fuzz
mkdir -p findings
seed() { mkdir -p "corpus/$1" && cp -n "${@:2}" "corpus/$1/"; }
seed settings ../../data/save.json ../../data/profiles/*
seed profile ../../data/profiles/*
seed programmer ../../data/programmer/USBasp.json ../../data/programmer/Virtual*.json
seed language ../../tests/data/settings.json
seed description ../../data/mcu/ATmega16.json ../../data/mcu/ATtiny10.json
seed translation ../../translations/Deutsch.ts
seed firmware ../../data/demo/* ../../tests/data/*.elf
printf 'S105000001FEFB\nS5030001FB\nS9030000FC\n' >corpus/firmware/srecords
mkdir -p corpus/update corpus/output corpus/protocol
printf '\0\1\24\12\5\264\3\0\0\0\0\21\0\0\14\4\300\2\0\0\0\0\200\0\0\1\2\6\64\0\0\0\0\0' >corpus/protocol/session
echo '{"version": "6.0", "url": "https://korvel.example", "url_linux": ""}' >corpus/update/newer
echo 'avrdude: error: program enable: target does not answer. Device signature = 0xffffff' >corpus/output/error

printf '"%s"\n' '\"mcu\":' '\"FuseBytes\":' '\"bits\":' '\"default\":' '\"fusesBytes\":' '\"currentValue\":' \
    '\"version\":' '\"url\":' '\"avrdude\":' '\"arguments\":' '\"cmdFlashWrite\":' '\"flashWrite\":' '\"id\":' \
    '\"port\":' '-U' '../' '<img src=' '<source>' '<translation' 'verification error' 'getsync()' >words
folders=/tmp
[ ! -d /dev/shm ] || folders=/dev/shm # the settings are synchronised to the disk at every save
TMPDIR=$(mktemp -d -p $folders)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=fast_unwind_on_malloc=0 \
    LSAN_OPTIONS=suppressions=$PWD/../../tests/leaks.supp
status=0
for reader in "${readers[@]}"; do # paths are absolute, because the harness changes its working folder
    echo "== $reader"
    fuzz/bin/fuzz-"$reader" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -dict=words \
        -artifact_prefix="$PWD/findings/$reader-" -print_final_stats=1 "$PWD/corpus/$reader" 2>"findings/$reader.log" || status=1
    grep -E 'ERROR|SUMMARY|stat::number_of_executed_units|stat::average_exec|cov:' "findings/$reader.log" | tail -n 4
done
exit $status
