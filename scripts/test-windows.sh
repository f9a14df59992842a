#!/usr/bin/env bash
# Tries Korvel for Windows under Wine: runs the tests, then uses the archive of scripts/package-windows.sh, which it
# makes first, as a person would: unpacks it into a folder with a blank and a Cyrillic letter in its name, writes the
# virtual chip with the mouse, chooses a language. Leaves screenshots in build/windows.
source "$(dirname "$0")/common.sh"
source scripts/windows-libraries.sh
export LC_ALL=C.UTF-8

need_packages "${windows_packages[@]}" avrdude xvfb xauth xdotool openbox imagemagick fonts-wine unzip
if (exec 3<>/dev/tcp/127.0.0.1/7016) 2>/dev/null; then
    echo "Something listens on port 7016, which the virtual programmer needs. End it and start again." >&2
    exit 1
fi
scripts/package-windows.sh
build windows

echo "== the tests"
ctest --preset windows

echo "== the archive"
shots=$PWD/build/windows
archive=$(ls "$PWD"/build/windows/*.zip)
# Windows takes names for UTF-8 only where the archive says so.
python3 - "$archive" <<'PYTHON'
import sys, zipfile
names = [file for file in zipfile.ZipFile(sys.argv[1]).infolist() if not file.filename.isascii()]
sys.exit(0 if names and all(file.flag_bits & 0x800 for file in names) else "names that are not marked as UTF-8")
PYTHON

# A Windows with nothing of ours on it but the archive, unpacked.
scratch=$(mktemp -d)
export WINEPREFIX=$scratch/wine WINEARCH=win64 WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
cleanup() {
    wineserver -k 2>/dev/null && wineserver -w || true
    stop_started
    rm -rf "$scratch"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

Xvfb -displayfd 3 -screen 0 1024x800x24 -dpi 96 -noreset -nolisten tcp 3>"$scratch/display" 2>/dev/null &
started+=($!)
wait_for test -s "$scratch/display"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
openbox >/dev/null 2>&1 &
started+=($!)
wine wineboot --init >/dev/null 2>&1
wineserver -w
desktop="$WINEPREFIX/drive_c/users/Public/My Доска"
mkdir "$desktop"
unzip -q "$archive" -d "$desktop"
cd "$desktop/$(basename "$archive" .zip)"
wine ./korvel-virtual-programmer.exe --state chip.json >"$scratch/programmer.log" 2>&1 &
wait_for grep -q Listening "$scratch/programmer.log"

find_window() { window=$(xdotool search --onlyvisible --name "$1" | head -n 1) && [ -n "$window" ]; }
start_korvel() {
    wine ./korvel.exe >/dev/null 2>&1 &
    korvel=$!
    wait_for find_window '^Korvel [0-9]'
    sleep 2 # to paint
}
click() { xdotool mousemove --window "$window" "$1" "$2" click 1; sleep 1; }
is_closed() { ! kill -0 "$korvel"; }
close_korvel() {
    xdotool windowfocus --sync "$window" key alt+F4
    wait_for is_closed
    wait "$korvel"
}
# Waits for the box with this title, presses its button and waits until it is gone.
is_shown() { xdotool search --onlyvisible --name "^$1\$"; }
is_gone() { ! is_shown "$1"; }
accept() {
    wait_for is_shown "$1"
    sleep 1
    import -window root "$shots/box-$1.png"
    xdotool key Return
    wait_for is_gone "$1"
}
picture() { import -window "$window" "$shots/$1.png"; }
# Holds the chip against a file, with the avrdude of the archive.
verify() {
    wine ./avrdude.exe -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U "flash:v:$1:i" >/dev/null 2>&1
}

! verify demo/blink.hex || { echo "The chip holds the firmware before it was written." >&2; exit 1; }
start_korvel
picture programming
click 131 22 # the Fuses tab
picture fuses
click 248 22 # About
picture about
click 189 22 # Profiles
click 130 272 # the list
xdotool type Blink
xdotool key Return
sleep 1
picture profiles
click 381 272 # Write
accept Profiles
verify demo/blink.hex || { echo "The chip does not hold the firmware." >&2; exit 1; }
# avrdude splits a request at colons: a path with a drive, blanks and backslashes, read and verified.
wine ./avrdude.exe -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U 'flash:r:C:\users\Public\My Доска\read back.hex:i'
verify 'C:\users\Public\My Доска\read back.hex'
verify '../read back.hex'

click 459 438 # the language
xdotool type Deutsch
xdotool key Return
accept Korvel
close_korvel
grep -q '"name": "Blink"' save.json || { echo "The profile is not in the settings." >&2; exit 1; }
grep -q '"language": "Deutsch"' save.json || { echo "The language is not in the settings." >&2; exit 1; }
start_korvel
click 189 22
picture german
differing=$(compare -metric AE "$shots/profiles.png" "$shots/german.png" null: 2>&1 || true)
[ "${differing%%.*}" -gt 1000 ] || { echo "The window looks as it did in English." >&2; exit 1; }
close_korvel
echo "$(du -sb . | cut -f 1) bytes unpacked, $(stat -c %s "$archive") packed: started, wrote a chip, kept the settings"
