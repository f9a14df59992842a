#!/usr/bin/env bash
# Plays with the program at random under the sanitizers, with something hostile in avrdude's place: monkey.sh [SECONDS]
# (600 without). Clicks, types, picks from lists, answers boxes and loads profiles, for some seconds at a time; then ends
# the program and starts it again, which must bring back every setting as it was left. A finding and what led to it stay
# in build/monkey. SEED=NUMBER repeats the same moves. Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for what is typed, and the names of the language files

seconds=${1:-600}
RANDOM=${SEED:=$RANDOM}
need_packages "${build_packages[@]}" fonts-dejavu-core xdotool xvfb
build asan korvel korvel_data korvel_languages >/dev/null

program=$PWD/build/asan/bin/korvel
export ASAN_OPTIONS=detect_leaks=0 # the desktop's own libraries leak; the tests look for leaks of ours
folder=$PWD/build/monkey
rm -rf "$folder"
mkdir -p "$folder"
cp -r data/{programmer,profiles,demo,save.json} build/asan/bin/Languages "$folder"
mkdir "$folder/mcu"
cp -r data/mcu/{meanings,ATmega16.json,ATtiny10.json,ATxmega128A1U.json,ATtiny1614.json} "$folder/mcu"
cd "$folder"
cat >hostile <<'END'
#!/usr/bin/env bash
# Does this or that of what avrdude might do, and of what it never should.
echo "$*" >>runs
for argument; do
    case $argument in *:r:*.hex:r) file=${argument#*:r:} && head -c $((RANDOM % 4)) /dev/urandom >"${file%:r}" ;; esac
done
case $((RANDOM % 10)) in
    0) sleep 0.$((RANDOM % 9)) ;;
    1) head -c 100000 /dev/urandom ;;
    2) printf 'getsync() %.0s' {1..20} >&2 && sleep 30 ;;
    3) kill -SEGV $$ ;;
    4) echo 'avrdude: verification error' >&2 && exit 1 ;;
    5) head -c 300000 /dev/zero | tr '\0' '#' >&2 ;;
    6) exec 1>&- 2>&- && sleep 0.3 ;;
    7) echo 'Device signature = 0xffffff' && exit 1 ;;
esac
END
chmod +x hostile
sed -i 's|"avrdude": "avrdude"|"avrdude": "./hostile"|' save.json profiles/*.json

mkfifo display
Xvfb -displayfd 9 -screen 0 800x768x24 9<>display >/dev/null 2>&1 &
server=$!
trap 'kill $server' EXIT
read -r number <display
export DISPLAY=:$number

fail() {
    echo "$1 (SEED=$SEED); see build/monkey"
    tail -n 30 log
    exit 1
}

start() {
    echo "== start" >>log
    "$program" >>log 2>&1 &
    pid=$!
    timeout 60 xdotool search --sync --onlyvisible --name '^Korvel 5' >window || fail "No window came"
    sleep 0.5
}

# Ends the program as the desktop would, whatever box is open.
end() {
    kill -TERM "$pid" 2>/dev/null || fail "The program has gone"
    for _ in {1..300}; do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    kill -0 "$pid" 2>/dev/null && { kill -KILL "$pid"; fail "The program does not end"; }
    wait "$pid" || fail "The program ended with $?"
    ! grep -qE 'Sanitizer|runtime error' log || fail "The sanitizers have found something"
}

words=(firmware.hex 328p E4 ff mega profile 'C:/a b.bin' 'я' usb 0)
keys=(Tab Tab Return Escape space Down Up Left BackSpace Delete ctrl+a ctrl+v Home shift+End Page_Down)
answers=(Return Escape "alt+y" "alt+n" space)
moves=0
move() {
    local x=$((140 + RANDOM % 520)) y=$((56 + RANDOM % 655))
    case $((RANDOM % 10)) in
        0 | 1 | 2 | 3) xdotool mousemove $x $y click 1 ;;
        4) xdotool mousemove $((150 + RANDOM % 300)) 75 click 1 ;; # the tabs
        5) xdotool type --delay 2 "${words[RANDOM % ${#words[@]}]}" ;;
        6) xdotool key Tab Down Down Down Return ;; # picks where it comes to a list
        7) xdotool key "${answers[RANDOM % ${#answers[@]}]}" ;;
        *) xdotool key "${keys[RANDOM % ${#keys[@]}]}" ;;
    esac
    moves=$((moves + 1))
}

restarts=0
changes=0
touch runs
while [ $SECONDS -lt "$seconds" ]; do
    cp save.json before.json
    start
    for ((i = 0; i < 150; ++i)); do
        move
        kill -0 "$pid" 2>/dev/null || { wait "$pid" || true; fail "The program has gone after $moves moves"; }
        sleep 0.03
    done
    end
    cmp -s save.json before.json || changes=$((changes + 1))
    cp save.json left.json
    start
    end
    cmp -s save.json left.json || { diff left.json save.json | head -n 20; fail "A setting is not what it was"; }
    restarts=$((restarts + 1))
done
echo "$moves moves, $(wc -l <runs) runs, $restarts restarts, $changes of them with new settings, and no finding (SEED=$SEED)"
