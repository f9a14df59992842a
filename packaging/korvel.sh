#!/bin/sh
# Starts Korvel in this folder, which is also where it keeps what is yours: "save.json" and "profiles".
set -eu
cd "$(dirname "$(readlink -f "$0")")"
tell() { echo "korvel: $1" >&2; }
[ ! -r starter/tell.sh ] || . starter/tell.sh

if missing=$(ldd ./korvel | grep 'not found'); then
    tell "Korvel needs Qt 5.15. On Debian or Ubuntu: apt-get install libqt5widgets5 libqt5network5 libqt5serialport5
$missing"
    exit 1
fi
command -v avrdude >/dev/null || echo "Korvel needs avrdude. On Debian or Ubuntu: apt-get install avrdude" >&2

# Unpacking the archive once more must not take your settings, so they are laid in place only here.
for starter in save.json profiles; do
    [ -e "$starter" ] || cp -R "starter/$starter" . || unwritable=yes
done
[ -z "${unwritable-}" ] || tell "Korvel cannot write to $(pwd)."
exec ./korvel "$@"
