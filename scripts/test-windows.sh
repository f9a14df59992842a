#!/usr/bin/env bash
# Tries Korvel for Windows under Wine: runs the tests, then uses what scripts/package-windows.sh makes, which it calls
# first, as a person would: unpacks the archive into a folder with a blank and a Cyrillic letter in its name, writes the
# virtual chip with the mouse, chooses a language; installs, updates and uninstalls. Leaves screenshots in build/windows.
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
checkout=$PWD
shots=$PWD/build/windows
archive=$(ls "$PWD"/build/windows/*.zip)
setup=$(ls "$PWD"/build/windows/*-setup.exe)
firmware=$PWD/tests/data/firmware.elf
# Windows takes names for UTF-8 only where the archive says so.
python3 - "$archive" <<'PYTHON'
import sys, zipfile
names = [file for file in zipfile.ZipFile(sys.argv[1]).infolist() if not file.filename.isascii()]
sys.exit(0 if names and all(file.flag_bits & 0x800 for file in names) else "names that are not marked as UTF-8")
PYTHON

fail() { echo "$1" >&2; exit 1; }

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
unpacked=$(du -sb . | cut -f 1)
for program in ./korvel*.exe; do
    grep -aq longPathAware "$program" && LC_ALL=C grep -aqP 'F\0i\0l\0e\0V\0e\0r\0s\0i\0o\0n' "$program" ||
        fail "$program has no manifest or no version."
done
grep -q $'start korvel.exe.*\r$' <(tr A-Z a-z <README.txt) || fail "README.txt is not for Windows."

# The avrdude of the archive knows programmers of each library, and looks for them.
for programmer in usbasp usbtiny avrispmkII ft232r pickit4_updi; do
    said=$(wine ./avrdude.exe -c $programmer -p t1614 2>&1 || true)
    grep -qE 'cannot|unable|not found|no device' <<<"$said" && ! grep -qi 'support' <<<"$said" ||
        fail "avrdude cannot drive $programmer: $said"
done

start_programmer() {
    wine ./korvel-virtual-programmer.exe "$@" >"$scratch/programmer.log" 2>&1 &
    programmer=$!
    wait_for grep -q Listening "$scratch/programmer.log"
}
# What was started with wine goes with the program itself.
end_program() { wine taskkill /f /im "$1" >/dev/null 2>&1; }
start_programmer --state chip.json
taken=$(wine ./korvel-virtual-programmer.exe 2>&1) && fail "A second virtual programmer takes the same port."
grep -q 7016 <<<"$taken" || fail "A second virtual programmer does not say that the port is taken: $taken"

find_window() { window=$(xdotool search --onlyvisible --name "$1" | head -n 1) && [ -n "$window" ]; }
start_korvel() {
    wine "${1-./korvel.exe}" >/dev/null 2>&1 &
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
    wine ./avrdude.exe -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U "flash:v:$1:${2-i}" >/dev/null 2>&1
}

! verify demo/blink.hex || fail "The chip holds the firmware before it was written."
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
verify demo/blink.hex || fail "The chip does not hold the firmware."
# avrdude splits a request at colons: a path with a drive, blanks and backslashes, read and verified.
wine ./avrdude.exe -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U 'flash:r:C:\users\Public\My Доска\read back.hex:i'
verify 'C:\users\Public\My Доска\read back.hex'
verify '../read back.hex'

picture written
eval "$(xdotool getwindowgeometry --shell "$window")" # which has grown
click 459 $((HEIGHT - 217)) # the language
xdotool type Deutsch
xdotool key Return
accept Korvel
close_korvel
grep -q '"name": "Blink"' save.json || fail "The profile is not in the settings."
grep -q '"language": "Deutsch"' save.json || fail "The language is not in the settings."
start_korvel
click 189 22
picture german
differing=$(compare -metric AE "$shots/profiles.png" "$shots/german.png" null: 2>&1 || true)
[ "${differing%%.*}" -gt 1000 ] || fail "The window looks as it did in English."
close_korvel
# Whether a program whose name begins so runs in this Wine, which does not list them itself.
runs() {
    local process
    for process in $(grep -la "[\\/]${1/#?/[${1:0:1}]}" /proc/[0-9]*/cmdline 2>/dev/null); do
        grep -qzxF "WINEPREFIX=$WINEPREFIX" "${process%cmdline}environ" 2>/dev/null && return
    done
    false
}
runs_no_more() { ! runs "$1"; }
verify "$firmware" e && fail "The chip holds the other firmware before it was written."
wine ./avrdude.exe -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U "flash:w:Z:${firmware//\//\\}:e" >/dev/null 2>&1
verify "$firmware" e || fail "An ELF file was not written."

echo "== in the system's folder, and killed"
folder=$PWD
(cd "$WINEPREFIX/drive_c/windows/system32" && start_korvel "$folder/korvel.exe" && picture system && close_korvel &&
    [ ! -e save.json ]) || fail "Korvel works in the system's folder."
end_program korvel-virtual-programmer.exe
wait_for runs_no_more korvel-virtual
start_programmer --silent
start_korvel
click 369 143 # Write, for the flash
picture working
wait_for runs avrdude.exe
end_program korvel.exe
sleep 1 # it gives up by itself only later
runs avrdude.exe && fail "avrdude goes on when Korvel is ended by force."
end_program korvel-virtual-programmer.exe
wait_for runs_no_more korvel-virtual

echo "== setup.exe"
# An older version, with two files that this one does not have.
mkdir -p "$scratch/more/mcu"
echo older | tee "$scratch/more/older.dll" >"$scratch/more/mcu/ATolder.json"
(cd "$shots" && cpack -G NSIS -B "$scratch/older" -D CPACK_PACKAGE_VERSION=5.5 \
    -D "CPACK_INSTALLED_DIRECTORIES=$scratch/more;.") >/dev/null
wine "$scratch"/older/*-setup.exe /S
installed=$(ls -d "$WINEPREFIX"/drive_c/users/*/AppData/Local/Programs/Korvel)
cp "$installed/mcu/ATmega16.json" "$installed/mcu/Mine.json"
[ -e "$installed/older.dll" ] && [ -e "$installed/mcu/ATolder.json" ] || fail "The older version lacks its own files."
wine "$setup" /S
[ ! -e "$installed/older.dll" ] && [ ! -e "$installed/mcu/ATolder.json" ] && [ -e "$installed/mcu/Mine.json" ] ||
    fail "An update left what only the older version had, or took what is the user's."
menu=$(ls "$WINEPREFIX"/drive_c/users/*/"AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Korvel.lnk")
uninstaller='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Korvel'
version=$(sed -nE 's/^project\(Korvel VERSION (\S+) .*/\1/p' "$checkout/CMakeLists.txt")
wine reg query "$uninstaller" /v DisplayVersion | grep -F "$version" >/dev/null || fail "Korvel is not among the installed programs."
for entry in *; do
    [ -e "$installed/$entry" ] || [ "$entry" = chip.json ] || fail "setup.exe lacks $entry."
done
cd "$installed"
start_programmer
wine start /unix "$menu" >/dev/null 2>&1 # as the menu does
wait_for find_window '^Korvel [0-9]'
sleep 2
picture installed
# Ends with 2, and nobody has touched the installed files and the entry.
installation() { find "$installed" -type f -printf '%p %s %C@\n' | sort; wine reg query "$uninstaller"; }
refuses() {
    local before code=0
    before=$(installation)
    wine "$@" || code=$?
    [ "$code" = 2 ] && [ "$(installation)" = "$before" ]
}
refuses "$setup" /S || fail "setup.exe replaces a program that runs."
click 189 22 # Profiles
click 130 272 # the list
xdotool type Blink
xdotool key Return
sleep 1
click 381 272 # Write
accept Profiles
verify demo/blink.hex || fail "The chip does not hold the firmware."
xdotool windowfocus --sync "$window" key alt+F4
wait_for runs_no_more korvel.exe
refuses "$setup" /S || fail "setup.exe replaces a virtual programmer that runs."

# After a double click only its own window tells why a second one ends.
wine start /unix "$installed/korvel-virtual-programmer.exe" >/dev/null 2>&1
wait_for find_window 'virtual-programmer'
sleep 2
picture console
find_window 'virtual-programmer' || fail "The console closes before anybody can read it."
xdotool windowfocus --sync "$window" key Return
console_is_gone() { ! find_window 'virtual-programmer'; }
wait_for console_is_gone
end_program korvel-virtual-programmer.exe
wait_for runs_no_more korvel-virtual

# What an older version and its user have left is taken over or taken away, each as it should be.
cp save.json mine.json
cp mcu/ATmega16.json mcu/Mine.json
echo damaged >mcu/ATmega8.json
rm 'profiles/Blink complete.json'
wine "$setup" /S
cmp save.json mine.json && [ -e mcu/Mine.json ] && [ ! -e 'profiles/Blink complete.json' ] ||
    fail "An update took what is the user's."
cmp mcu/ATmega8.json "$folder/mcu/ATmega8.json" || fail "An update left an old description."
mv mine.json "$scratch"
cd "$scratch"

stranger=$WINEPREFIX/drive_c/Stranger
mkdir "$stranger"
echo mine >"$stranger/notes.txt"
refuses "$setup" /S '/D=C:\Stranger' && [ "$(ls "$stranger")" = notes.txt ] || fail "setup.exe takes a stranger's folder."
refuses "$setup" /S '/D=Z:\proc\Korvel' || fail "setup.exe does not say that it cannot write."

# An uninstaller that cannot delete a file stays, to try again.
cp "$installed"/{korvel-virtual-programmer,lesson}.exe # which holds Qt's libraries
wine "$installed/lesson.exe" >"$scratch/programmer.log" 2>&1 &
wait_for grep -q Listening "$scratch/programmer.log"
is_entered() { wine reg query "$uninstaller" >/dev/null 2>&1; }
wine "$installed/korvel-uninstall.exe" /S "_?=$(winepath -w "$installed")" && fail "It uninstalls what is held."
[ -e "$installed/korvel-uninstall.exe" ] && is_entered || fail "After a failure nothing is left to uninstall with."
end_program lesson.exe
wait_for runs_no_more lesson
rm "$installed/lesson.exe"

# Of two installations the entries are the later one's.
wine "$setup" /S '/D=C:\Second'
second=$WINEPREFIX/drive_c/Second
for entry in "$folder"/*; do
    [ -e "$second/${entry##*/}" ] || [[ $entry == */chip.json ]] || fail "setup.exe lacks ${entry##*/}."
done
# It goes on in a copy of itself, which can delete it.
uninstall() {
    wine "$1/korvel-uninstall.exe" /S
    wait_for runs_no_more 'Un[._]'
    [ ! -e "$1/korvel-uninstall.exe" ] || fail "The uninstaller is still there."
}
uninstall "$installed"
[ -e "$menu" ] && is_entered || fail "Uninstalling took the entries of another installation."
uninstall "$second"
left=$(cd "$installed" && find . -type f | sort | tr '\n' ' ')
[ "$left" = './mcu/Mine.json ./profiles/Blink.json ./save.json ' ] || fail "Uninstalling left $left"
[ ! -e "$menu" ] && ! is_entered || fail "Uninstalling left its entries."

echo "archive: $unpacked bytes unpacked, $(stat -c %s "$archive") packed: started, wrote a chip, kept the settings"
echo "setup.exe: $(stat -c %s "$setup") bytes: installed, wrote a chip, updated, uninstalled but for the user's files"
