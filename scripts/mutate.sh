#!/usr/bin/env bash
# Tells how good the tests are: puts the faults of scripts/mutations.txt into a copy of the sources, one at a time,
# builds, and runs the tests. mutate.sh [NUMBER...] tries these faults only; mutate.sh --list tells their numbers. Fails
# when fewer than 90 % are noticed, or when a fault does not fit the sources any more. Two faults at a time on two cores;
# all of them take more than forty minutes. Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

seconds=120 # for each test program; one that hangs has noticed the fault
needed=90 # per cent
faults=() # each "FILE: OLD TEXT ==> NEW TEXT"
while read -r line; do
    case $line in
        '#'* | '') ;;
        src/* | tools/*) file=$line ;;
        *) faults+=("$file: $line") ;;
    esac
done <scripts/mutations.txt
chosen=("$@")
[ $# -gt 0 ] || mapfile -t chosen < <(seq ${#faults[@]})
if [ "${1:-}" = --list ]; then
    printf '%s\n' "${faults[@]}" | nl
    exit
fi

# The test programs that are most likely to notice a fault in a file; all others come after them.
first_tests() {
    case $1 in
        */PlainLabels.cpp | */ExtraArguments.cpp | */JsonFile.cpp | */MemoryKind.cpp | */Trust.cpp) echo tst_attacks ;;
        src/app/main.cpp) echo tst_start ;;
        src/app/log/*) echo 'tst_avrdude|tst_app' ;;
        src/memory/FirmwareFile.cpp) echo 'tst_memory|tst_firmware' ;;
        src/app/record/FuseByte.cpp) echo tst_fuses ;;
        src/app/*) echo 'tst_app|tst_start' ;;
        src/about/*) echo tst_update ;;
        src/base/*) echo 'tst_settings|tst_app' ;;
        src/*) cut -d / -f 2 <<<"$1" | sed 's/^/tst_/' ;;
        tools/ts2json/*) echo tst_i18n ;;
        *) echo 'tst_virtual_programmer|tst_endtoend' ;;
    esac
}

# Brings the tree of a worker up to date. Goes by content: a fault that an interrupted run left is gone then too.
refresh() {
    local path
    git ls-files -co --exclude-standard -z | while IFS= read -r -d '' path; do
        [ ! -f "$path" ] || cmp -s "$path" "$1/$path" || install -D -m "$(stat -c %a "$path")" "$path" "$1/$path"
    done
}

# Succeeds when a test fails, is stuck, or takes its program down, twice: a busy machine alone is no reason.
# $1: the worker's folder; $2: which tests, all if empty.
is_noticed() {
    ! timeout 600 ctest --test-dir "$1/build" --timeout "$seconds" --stop-on-failure --repeat until-pass:2 -j 2 \
        ${2:+-R "^($2)\$"} --output-on-failure >>"$1/log" 2>&1
}

# Tries one fault and prints what came of it. $1: the worker's folder; $2: the fault's number.
try() {
    local file=${faults[$2 - 1]%%: *} fault=${faults[$2 - 1]#*: }
    local old=${fault%% ==>*} new=${fault#* ==>} path content rest first
    new=${new# }
    path=$1/tree/$file
    content=$(<"$file")
    rest=${content/"$old"/}
    if [ "$content" = "$rest" ] || [ "${rest/"$old"/}" != "$rest" ]; then
        echo "stale"
        return
    fi
    line=$(grep -nF -- "$old" "$file" | cut -d : -f 1)
    printf '%s\n' "${content/"$old"/"$new"}" >"$path"
    echo "== $2 $file:$line: $fault" >"$1/log"
    first=$(first_tests "$file")
    # shellcheck disable=SC2086
    if ! cmake --build "$1/build" --target korvel-virtual-programmer korvel-ts2json ${first//|/ } >>"$1/log" 2>&1; then
        echo "does not build"
    elif is_noticed "$1" "$first"; then
        echo "noticed"
    elif cmake --build "$1/build" >>"$1/log" 2>&1 && is_noticed "$1" ""; then
        echo "noticed"
    else
        echo "survived"
    fi
    cat "$1/log" >>"$1/all.log"
    cp "$file" "$path"
}

# Tries every second fault, where there are two workers. $1: the worker's number.
work() {
    local folder=$PWD/build/mutate/$1 i number
    mkdir -p "$folder/tree"
    refresh "$folder/tree"
    : >"$folder/all.log"
    if ! { cmake -S "$folder/tree" -B "$folder/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-g0 &&
        cmake --build "$folder/build"; } >"$folder/log" 2>&1 || is_noticed "$folder" ""; then
        echo "The sources do not build or pass as they are; see $folder/log" >&2
        return 1
    fi
    for ((i = $1; i < ${#chosen[@]}; i += workers)); do
        number=${chosen[i]}
        echo "$(try "$folder" "$number") $number ${faults[number - 1]}" | tee -a "$results"
    done
}

need_packages "${build_packages[@]}" fonts-dejavu-core git
workers=$(nproc)
[ "$workers" -lt ${#chosen[@]} ] || workers=1
mkdir -p build/mutate
results=$PWD/build/mutate/results
: >"$results"
pids=()
for ((worker = 0; worker < workers; ++worker)); do
    work "$worker" &
    pids+=($!)
done
for pid in "${pids[@]}"; do
    wait "$pid" || exit 1
done

noticed=$(grep -c '^noticed' "$results" || true)
useless=$(grep -cE '^(stale|does not build)' "$results" || true)
tried=$((${#chosen[@]} - useless))
echo
grep -v '^noticed' "$results" | sort || true
echo "$noticed of $tried faults were noticed; $useless do not fit the sources"
[ "$useless" -eq 0 ] && [ $((100 * noticed)) -ge $((needed * tried)) ]
