#!/usr/bin/env bash
# Tries what scripts/package.sh made as a user would, each package in a fresh Debian root: installs it, starts it under
# Xvfb as an ordinary user, writes the virtual chip with the mouse, removes it, and looks at what is left. Needs root
# and a few minutes. Leaves screenshots in build/package. Asks the checkers of Debian and of desktops first.
source "$(dirname "$0")/common.sh"
[ "$(id -u)" -eq 0 ] || { echo "Run this as root: it makes a root folder of its own." >&2; exit 1; }
need_packages debootstrap lintian appstream desktop-file-utils
packages=$PWD/build/package
deb=$(ls "$packages"/*.deb)
archive=$(ls "$packages"/*.tar.gz)

root=$(mktemp -d)
cleanup() {
    umount -l "$root/proc" "$root/dev" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap cleanup EXIT

in_root() { chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { in_root su - tester -c "$1"; }
install() { in_root apt-get install -q -y --no-install-recommends "$@" >"$root/apt.log" 2>&1 || { tail "$root/apt.log"; false; }; }

# A Debian as bare as it gets, with a user, a display and a hand for the mouse.
make_root() {
    cleanup
    mkdir -p "$root"
    chmod 755 "$root"
    local mirror
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
    debootstrap --variant=minbase "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root" "$mirror" >/dev/null
    cp -a /etc/apt/. "$root/etc/apt/"
    cp /etc/resolv.conf "$root/etc/"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mount --make-rslave "$root/dev" # so that unmounting it stays in here
    in_root apt-get update -q >/dev/null
    install xvfb xauth xdotool openbox imagemagick fonts-dejavu-core
    in_root useradd --create-home tester
    cat >"$root/use.sh" <<'EOF'
# use.sh PROGRAMMER KORVEL FIRMWARE: loads the first sample profile, presses Write, closes the window.
set -eu
openbox & started=$!
until xdotool get_num_desktops >/dev/null 2>&1; do sleep 0.1; done # a window that comes while it starts stays hidden
"$1" --state chip.json & started="$started $!"
trap 'kill $started' EXIT
"$2" & korvel=$!
window=$(xdotool search --sync --onlyvisible --name '^Korvel [0-9]' | head -n 1)
sleep 1
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
xdotool windowfocus --sync "$window" key alt+F4
wait "$korvel"
avrdude -q -q -p m16 -c stk500v1 -P net:127.0.0.1:7016 -U "flash:v:$3:i"
EOF
}

# Runs use.sh with the given arguments; the profile that it loaded must be in the settings afterwards.
use() {
    local settings=$1
    shift
    as_user "rm -f chip.json '$settings'"
    as_user "xvfb-run -a -s '-screen 0 800x760x24 -dpi 96' sh /use.sh $*"
    grep -q '"name": "Blink"' "$root/home/tester/$settings" || { echo "the settings were not kept" >&2; false; }
}

echo "== what distributions check"
lintian --allow-root -EvIL +pedantic --fail-on error,warning,info,pedantic,experimental "$deb"
dpkg-deb -x "$deb" "$root"
# The reserved name in our identifier is no domain that AppStream knows.
appstreamcli validate --no-net --pedantic --strict --override=cid-maybe-not-rdns=pedantic "$root"/usr/share/metainfo/*
desktop-file-validate "$root"/usr/share/applications/*

make_root
echo "== the Debian package"
cp "$deb" "$root/korvel.deb"
install /korvel.deb
use .local/share/korvel/save.json korvel-virtual-programmer korvel /usr/share/korvel/demo/blink.hex
cp "$root/home/tester/written.png" "$packages/deb.png"
# A folder of the user's own stays as it is, and the rest still works.
as_user 'cd .local/share/korvel && rm mcu && mkdir mcu && cp /usr/share/korvel/mcu/ATmega16.json mcu/My.json'
use .local/share/korvel/save.json korvel-virtual-programmer korvel /usr/share/korvel/demo/blink.hex
as_user 'cd .local/share/korvel && test "$(ls mcu)" = My.json && test -L programmer'
# So does a link that leads nowhere; and a language of one's own comes beside those that ship.
echo '<TS><context><message><source>Write</source><translation>Schrijven</translation></message></context></TS>' \
    >"$root/home/tester/my.ts"
as_user 'cd .local/share/korvel && ln -sfn /media/none programmer && korvel-ts2json ~/my.ts Nederlands &&
    test "$(readlink programmer)" = /media/none && grep -q Schrijven Languages/Nederlands.json &&
    test -f Languages/Nederlands.json -a -L Languages/Deutsch.json -a ! -e korvel-ts2json'
in_root apt-get purge -q -y korvel >/dev/null
left=$(in_root find / -xdev -iname '*korvel*' -not -path '/home/*' -not -path '/proc/*' -not -name korvel.deb)
[ -z "$left" ] || { printf 'left behind:\n%s\n' "$left" >&2; false; }
as_user 'test -s .local/share/korvel/save.json'
echo "installed, wrote a chip, kept the user's own folder, removed without a trace"

make_root
echo "== the archive"
install avrdude libqt5widgets5 libqt5network5 libqt5serialport5
tar -C "$root/home/tester" -xzf "$archive" --no-same-owner
in_root chown -R tester: /home/tester
folder=$(basename "$archive" .tar.gz)
use "$folder/save.json" "./$folder/korvel-virtual-programmer" "./$folder/korvel.sh" "$folder/demo/blink.hex"
cp "$root/home/tester/written.png" "$packages/archive.png"
# Unpacking it once more takes nothing that is the user's.
before=$(cat "$root/home/tester/$folder/save.json")
tar -C "$root/home/tester" -xzf "$archive" --no-same-owner
[ "$before" = "$(cat "$root/home/tester/$folder/save.json")" ]
as_user "rm -r '$folder'"
echo "unpacked, wrote a chip, kept the settings through a second unpacking"
