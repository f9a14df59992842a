#!/usr/bin/env bash
# Installs what is missing, builds Korvel and starts it in its own folder, build/release/bin.
# With --demo, in a folder of its own, build/release/demo, set up afresh and with a virtual programmer running: press
# Write, and the virtual chip holds a firmware.
source "$(dirname "$0")/common.sh"

demo=
case "${1:-}" in
'') ;;
--demo) demo=yes ;;
*) echo "Usage: scripts/run.sh [--demo]" >&2; exit 2 ;;
esac

packages=("${build_packages[@]}" fonts-dejavu-core)
screen=yes
if [ "$(uname -s)" = Linux ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    screen=
    packages+=(xvfb xdotool imagemagick)
fi
need_packages "${packages[@]}"
build release korvel korvel-virtual-programmer korvel_data korvel_languages

trap 'trap - EXIT INT TERM; stop_started' EXIT
trap 'exit 130' INT TERM

cd build/release
if [ -n "$demo" ]; then
    # A folder of the demo's own, so that it never touches the settings in bin.
    mkdir -p demo
    rm -rf demo/profiles
    cp -a bin/{korvel,korvel-virtual-programmer,mcu,programmer,Languages,demo} ../../data/profiles demo/
    # The starter settings, with the virtual programmer and the sample firmware.
    sed -e 's/"USBasp"/"Virtual programmer"/' -e 's/"usbasp"/"stk500v1"/' \
        -e 's/"arguments": ""/"arguments": "-P net:127.0.0.1:7016"/' \
        -e 's/"flashWrite": ""/"flashWrite": "demo\/blink.hex"/' -e 's/"flashRead": ""/"flashRead": "read.hex"/' \
        ../../data/save.json >demo/save.json
    cd demo
    ./korvel-virtual-programmer --state chip.json >programmer.log 2>&1 &
    programmer=$!
    started+=("$programmer")
    is_up() { grep -q Listening programmer.log; }
    is_up_or_gone() { is_up || ! kill -0 "$programmer"; }
    if ! wait_for is_up_or_gone || ! is_up; then
        cat programmer.log >&2
        exit 1
    fi
    echo "The virtual programmer is running; its chip is kept in $PWD/chip.json"
else
    cd bin
fi

if [ -z "$screen" ]; then
    Xvfb -displayfd 3 -screen 0 1024x768x24 -dpi 96 -noreset -nolisten tcp 3>xvfb.display 2>/dev/null &
    started+=($!)
    wait_for test -s xvfb.display || { echo "Xvfb does not start" >&2; exit 1; }
    DISPLAY=:$(cat xvfb.display)
    export DISPLAY
    rm xvfb.display
    echo "There is no display: starting on a virtual one, $DISPLAY"
fi

./korvel &
korvel=$!
started+=("$korvel")
if [ -z "$screen" ]; then
    # Not before there is a window: without one, import waits for a click and holds up every other program.
    wait_for xdotool search --onlyvisible --name '^Korvel [0-9]' || { echo "No window appears" >&2; exit 1; }
    sleep 0.5 # to paint
    import -window "$(xdotool search --onlyvisible --name '^Korvel [0-9]' | head -n 1)" korvel.png
    echo "A screenshot of the window is in $PWD/korvel.png; press Ctrl+C to end"
fi
wait "$korvel"
