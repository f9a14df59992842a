#!/usr/bin/env bash
# Brings translations/*.ts up to date with the texts in the code and what data/mcu/meanings says of fuses: new ones come
# in as unfinished, and those that are no longer there go. Translators then open the files in Qt Linguist.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the files

need_packages qttools5-dev-tools
meanings=$(mktemp --suffix=.cpp)
trap 'rm -f "$meanings"' EXIT
scripts/meanings.py >"$meanings"
for file in translations/*.ts; do
    header=$(sed -n '/^<!-- /,$ { p; /-->$/q }' "$file")
    lupdate -silent -locations none -no-obsolete src translations/toolkit.cpp "$meanings" -ts "$file"
    # lupdate writes no comments.
    [ -z "$header" ] || printf '%s\n' "$header" | sed -i '/^<!DOCTYPE TS>$/r /dev/stdin' "$file"
done
