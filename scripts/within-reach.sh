#!/usr/bin/env bash
# Two whole sessions without a mouse, with the real avrdude and the virtual programmer: with keys alone, and through the
# interface of screen readers (AT-SPI). Each chooses part and programmer, writes the flash, reads the fuses, changes one,
# and saves and writes a profile; what is said is printed. Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" xvfb xdotool openbox fonts-dejavu-core dbus at-spi2-core python3-pyatspi
build release korvel korvel-virtual-programmer korvel_data korvel_languages >/dev/null
scratch=$(mktemp -d)
cleanup() {
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
wait_for xdotool get_num_desktops # a window that comes earlier may stay hidden

bin=$PWD/build/release/bin
hand=$PWD/scripts/within-reach.py
for way in keys reader; do
    echo "== $way"
    mkdir "$scratch/$way"
    cd "$scratch/$way"
    cp -r "$bin"/{mcu,programmer,Languages,demo} "$bin/../../../data/save.json" .
    mkdir profiles
    "$bin/korvel-virtual-programmer" --part ATmega8 --port 0 >programmer.log &
    started+=($!)
    wait_for grep -q Listening programmer.log
    port=$(grep -o '127.0.0.1:[0-9]*' programmer.log)
    sed -i "s/127.0.0.1:7016/$port/" 'programmer/Virtual programmer.json'
    QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session -- sh -c '
        "$1" & korvel=$!
        /usr/bin/python3 "$2" "$3" && kill $korvel && wait $korvel' sh "$bin/korvel" "$hand" "$way" 2>korvel.log ||
        { tail -n 5 korvel.log; exit 1; }
    avrdude -q -q -p m8 -c stk500v1 -P "net:$port" -U flash:v:demo/blink.hex:i -U hfuse:v:0xD1:m
    grep -q Heard profiles/Heard.json
done
echo "both sessions went through: part, programmer, flash, fuses and a profile"
