#!/usr/bin/env bash
# Tries what scripts/package.sh made on Debian 12 as a user would: the Debian package in fresh roots of Debian 12 and 13
# and Ubuntu 24.04, the archive in those of Debian 12, 13 and 11 and Ubuntu 22.04; Ubuntu where the mirror has it.
# Installs it, starts it under Xvfb as an ordinary user, writes the virtual chip with the mouse, removes it, and looks
# at what is left. Needs root and about ten minutes. Asks the checkers of Debian and of desktops first. Leaves
# screenshots in build/package.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of folders
[ "$(id -u)" -eq 0 ] || { echo "Run this as root: it makes a root folder of its own." >&2; exit 1; }
# With mounts of its own, which end with it, however it ends.
[ -n "${KORVEL_OWN_MOUNTS:-}" ] || KORVEL_OWN_MOUNTS=1 exec unshare --mount scripts/test-package.sh
set -E
trap 'echo "test-package.sh: failed in line $LINENO, called from ${BASH_LINENO[*]}" >&2' ERR
need_packages cmark-gfm debootstrap git iproute2 python3 lintian appstream desktop-file-utils
packages=$PWD/build/package
deb=$(echo "$packages"/*.deb)
archive=$(echo "$packages"/*.tar.xz)
[ -e "$deb" ] && [ -e "$archive" ] || { echo "First make both packages: scripts/package.sh on Debian 12." >&2; exit 1; }
this_debian=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' |
    awk '/\/debian\/$/ && !n++')
[ -n "$mirror" ] || { echo "apt knows no mirror of Debian." >&2; exit 1; }
tried=()

scratch=$(mktemp -d)
root=$scratch/root
cleanup() {
    umount -l "$root/proc" "$root/dev" "$root"/home/tester/*/* 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap 'cleanup; rmdir "$scratch"' EXIT

# In a network of its own: nobody else's displays and virtual programmers are there.
in_root() {
    unshare --net sh -c 'ip link set lo up && exec "$@"' sh \
        chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"
}
as_user() { in_root su - tester -c "export LANG=C.UTF-8; $1"; }
apt() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@" \
        >"$root/apt.log" 2>&1 || { tail "$root/apt.log"; false; }
}
install() { apt install --no-install-recommends "$@"; }

# make_root RELEASE MIRROR [COMPONENTS SCRIPT]: a system as bare as it gets, with a user.
make_root() {
    cleanup
    mkdir "$root"
    chmod 755 "$root"
    debootstrap --variant=minbase --components="${3:-main}" "$1" "$root" "$2" ${4:+"$4"} >"$packages/debootstrap.log"
    cp -a /etc/apt/{apt,auth}.conf.d "$root/etc/apt/"
    if [ "$1" = "$this_debian" ]; then cp -a /etc/apt/. "$root/etc/apt/"; fi
    cp /etc/resolv.conf "$root/etc/"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    apt update
    in_root useradd --create-home --shell /bin/sh tester
}

# A display and a hand for the mouse.
add_display() {
    install xvfb xauth xdotool openbox imagemagick fonts-dejavu-core
    cat >"$root/use.sh" <<'EOF'
# use.sh PROGRAMMER KORVEL FIRMWARE [AVRDUDE]: loads the first sample profile, presses Write, closes the window, and
# verifies the chip. Without FIRMWARE it only looks at the window.
set -eu
await() { timeout 60 sh -c "until $1 >/dev/null 2>&1; do sleep 0.2; done"; }
await 'xdotool getdisplaygeometry' # openbox gives up at once
openbox & started=$!
trap 'kill $started' EXIT
await 'xdotool get_num_desktops' # a window that comes while openbox starts stays hidden
"$1" --state chip.json & started="$started $!"
"$2" & korvel=$!
if command -v xmessage >/dev/null; then # which the launcher tells with
    box=$(timeout 60 xdotool search --sync --onlyvisible --class xmessage | head -n 1)
    import -window root box.png
    xdotool windowfocus --sync "$box" key Return
fi
window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Korvel [0-9]' | head -n 1)
sleep 1
close() {
    xdotool windowfocus --sync "$window" key alt+F4
    sleep 1
    xdotool search --onlyvisible --name '^Korvel$' && xdotool key Return # the box where settings cannot be saved
    wait "$korvel"
}
if [ $# = 2 ]; then
    import -window root written.png
    close
    exit
fi
at() { xdotool mousemove --window "$window" "$1" "$2" click 1; sleep 1; }
at 205 23          # the Profiles tab
at 130 303         # the list of profiles
xdotool key Home Return
sleep 1
at 380 303         # Write
sleep 5
import -window root written.png
xdotool key Return # the box
sleep 1
close
"${4:-avrdude}" -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U "flash:v:$3:i"
EOF
}

# Runs use.sh with the given arguments and keeps the screenshot under the given name. Xvfb without -noreset turns away
# who comes just after its only client has gone.
run_use() {
    local name=$1
    shift
    as_user "rm -f chip.json; xvfb-run -a -n 60 -s '-screen 0 800x760x24 -dpi 96 -noreset' sh /use.sh ${*@Q}" 2>&1 |
        tee "$root/said.txt"
    cp "$root/home/tester/written.png" "$packages/$name.png"
}
# The same; the profile that it loaded must be in the settings afterwards.
use() {
    local name=$1 settings=$2
    shift 2
    rm -f "$root/home/tester/$settings"
    run_use "$name" "$@"
    grep -q '"name": "Blink"' "$root/home/tester/$settings" || { echo "the settings were not kept" >&2; false; }
}
said() { grep -q -- "$1" "$root/said.txt" || { echo "did not say: $1" >&2; false; }; }

echo "== what distributions check"
lintian --allow-root -EvIL +pedantic --fail-on error,warning,info,pedantic,experimental "$deb"
dpkg-deb -x "$deb" "$root"
# The reserved name in our identifier is no domain that AppStream knows.
appstreamcli validate --no-net --pedantic --strict --override=cid-maybe-not-rdns=pedantic "$root"/usr/share/metainfo/*
desktop-file-validate "$root"/usr/share/applications/*
scripts/check-links.py "$root"/usr/share/doc/korvel/*.html

# try_deb NAME: in the root that is there, which has a display.
try_deb() {
    echo "== the Debian package on $1"
    cp "$deb" "$root/korvel.deb"
    install /korvel.deb
    # A first start that was interrupted does no harm.
    as_user 'mkdir -p .local/share/korvel/profiles.new/half'
    use_deb "$1 deb"
    as_user 'cd .local/share/korvel && test ! -e profiles.new -a ! -e profiles/half -a -s profiles/Blink.json -a -s docs/guide.html'
    tried+=("$(basename "$deb") on $1: installed, wrote a chip")
}
use_deb() {
    use "$1" .local/share/korvel/save.json korvel-virtual-programmer korvel /usr/share/korvel/demo/blink.hex
}

make_root bookworm "$mirror"
add_display
try_deb "Debian 12"
# A folder of the user's own stays as it is, and the rest still works.
as_user 'cd .local/share/korvel && rm mcu && mkdir mcu && cp /usr/share/korvel/mcu/ATmega16.json mcu/My.json'
use_deb "Debian 12 deb"
as_user 'cd .local/share/korvel && test "$(ls mcu)" = My.json && test -L programmer'
# So does a link that leads nowhere; and a language of one's own comes beside those that ship.
echo '<TS><context><message><source>Write</source><translation>Schrijven</translation></message></context></TS>' \
    >"$root/home/tester/my.ts"
as_user 'cd .local/share/korvel && ln -sfn /media/none programmer && korvel-ts2json ~/my.ts Nederlands &&
    test "$(readlink programmer)" = /media/none && grep -q Schrijven Languages/Nederlands.json &&
    test -f Languages/Nederlands.json -a -L Languages/Deutsch.json -a ! -e korvel-ts2json'
apt purge korvel
left=$(in_root find / -xdev -iname '*korvel*' -not -path '/home/*' -not -path '/proc/*' -not -name korvel.deb)
[ -z "$left" ] || { printf 'left behind:\n%s\n' "$left" >&2; false; }
as_user 'test -s .local/share/korvel/save.json'
tried+=("... $(stat -c %s "$deb") bytes; kept the user's own folder, removed without a trace")

folder=$(basename "$archive" .tar.xz)
place='Мои программы' # whose name has a blank and letters that few systems use
own=$place/$folder
add_archive() {
    cp "$archive" "$root/korvel.tar.xz"
    install xz-utils
    as_user "mkdir -p '$place' && tar -C '$place' -xf /korvel.tar.xz"
}
start() { ! as_user "${1:-} './$own/korvel.sh'" >"$root/said.txt" 2>&1 || { echo "it started" >&2; false; }; }
programs=("./$own/korvel-virtual-programmer" "./$own/korvel.sh")
write() { use "$1" "$own/save.json" "${programs[@]}" "$own/demo/blink.hex" "${@:2}"; }

# try_archive NAME RELEASE MIRROR [COMPONENTS SCRIPT]
try_archive() {
    echo "== the archive on $1"
    make_root "${@:2}"
    add_archive
    # What the launcher says is missing is enough, but for a display.
    start
    said 'needs libraries that this system does not have: .*libX11.so.6'
    install $(sed -n 's/^Debian, Ubuntu: apt install //p' "$root/said.txt")
    start
    said 'needs an X11 display'
    mv "$root/usr/share/fonts" "$root/usr/share/no-fonts"
    start "DISPLAY=:60"
    mv "$root/usr/share/no-fonts" "$root/usr/share/fonts"
    said 'seems to have no font'
    [ -z "$(in_root find / -xdev -name 'libQt*' -not -path '/home/*')" ]
    add_display
    write "$1" "./$own/avrdude/avrdude"
    # Unpacking it once more takes nothing that is the user's.
    before=$(cat "$root/home/tester/$own/save.json")
    [ -s "$root/home/tester/$own/docs/guide.html" ]
    as_user "tar -C '$place' -xf /korvel.tar.xz"
    [ "$before" = "$(cat "$root/home/tester/$own/save.json")" ]
    tried+=("$folder on $1: said what was missing, wrote a chip with its own avrdude"
        "... unpacked once more: kept the settings")
}

try_archive "Debian 12" bookworm "$mirror"
tried+=("$folder: $(stat -c %s "$archive") bytes, unpacked $(du -sm "$root/home/tester/$own" | cut -f 1) MB")
install avrdude
printf '#!/bin/sh\nexit 1\n' >"$root/home/tester/$own/avrdude/avrdude"
write "Debian 12 with avrdude"
tried+=("... with the system's avrdude there: wrote a chip with that")

try_archive "Debian 13" trixie "$mirror"
kept() { (cd "$root/home/tester/$own" && find . -type f -exec sha256sum {} + | sort); }
before=$(kept)
mount --bind "$root/home/tester/$own" "$root/home/tester/$own"
mount -o remount,bind,ro "$root/home/tester/$own"
run_use "Debian 13 read-only" "${programs[@]}" "$own/demo/blink.hex" "./$own/avrdude/avrdude"
said 'Korvel cannot write to /home/tester/Мои программы'
umount "$root/home/tester/$own"
[ "$before" = "$(kept)" ]
tried+=("... on a read-only place: said so, wrote a chip")
try_deb "Debian 13"
rm -r "$root/home/tester/$own"/{save.json,profiles}
in_root chown -R root: "/home/tester/$place"
install x11-utils
run_use "Debian 13 as another user" "${programs[@]}"
said 'Korvel cannot write to /home/tester/Мои программы'
cp "$root/home/tester/box.png" "$packages/Debian 13 box.png"
[ ! -e "$root/home/tester/$own/save.json" ]
tried+=("$folder where somebody else unpacked it and none started it before: said so in a box, went on")

echo "== the archive on Debian 11"
make_root bullseye "$mirror"
add_archive
start
said 'needs glibc 2.35 or newer; this system has 2.31'
tried+=("$folder on Debian 11: said that glibc is too old")

ubuntu=("${mirror%debian/}ubuntu/" main,universe gutsy) # all releases are made as that one was
if wget -q --spider "${ubuntu[0]}dists/noble/Release"; then
    try_archive "Ubuntu 22.04" jammy "${ubuntu[@]}"
    make_root noble "${ubuntu[@]}"
    add_display
    try_deb "Ubuntu 24.04"
else
    tried+=("Ubuntu: left out, as the mirror does not have it")
fi
echo "== tried"
printf '%s\n' "${tried[@]}"
