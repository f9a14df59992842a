#!/bin/sh
# Starts Korvel in this folder, which is also where it keeps what is yours: "save.json" and "profiles".
set -eu
glibc=2.35 # the oldest that will do
cd "$(dirname "$(readlink -f "$0")")"
# After the first start it goes on without this folder too.
tell() { echo "korvel: $1" >&2; }
lay_starters() { :; }
[ ! -r starter/launchers.sh ] || . starter/launchers.sh
# packages_of COMMAND COLUMN: a line with the command that installs what is missing, where the list has packages for it.
packages_of() {
    echo "$missing" | awk -v command="$1" -v column="$2" '
        NR == FNR { package[$1] = $column; next }
        package[$1] && !told[package[$1]]++ { names = names " " package[$1] }
        END { if (names) print "\n" command names }' starter/system-libraries.txt -
}
give_up() { tell "$1"; exit 1; }

# What the archive does not bring. Only its own plugins fit its Qt, and they are for X11.
system=$(getconf GNU_LIBC_VERSION 2>/dev/null) || give_up "Korvel needs glibc $glibc or newer."
printf 'glibc %s\n' "$glibc" "${system#glibc }" | sort -VC ||
    give_up "Korvel needs glibc $glibc or newer; this system has ${system#glibc }."
libraries=$(LC_ALL=C ldd ./korvel plugins/platforms/libqxcb.so 2>&1) || true
case $libraries in *"not a dynamic executable"*) give_up "This Korvel is not for this processor, $(uname -m)." ;; esac
missing=$(echo "$libraries" | sed -n 's/^[[:space:]]*\(.*\) => not found.*/\1/p' | sort -u)
[ -z "$missing" ] || give_up "Korvel needs libraries that this system does not have: $(echo $missing)\
$(packages_of "Debian, Ubuntu: apt install" 2)\
$(packages_of "Fedora: dnf install" 3)\
$(packages_of "Arch: pacman -S" 4)"
old=$(echo "$libraries" | grep 'version .* not found') && give_up "Korvel needs newer libraries than this system's:
$old"
unset QT_PLUGIN_PATH QT_QPA_PLATFORM QT_QPA_PLATFORM_PLUGIN_PATH
[ -n "${DISPLAY-}" ] || give_up "Korvel needs an X11 display, or XWayland on Wayland; here DISPLAY names none."
if command -v fc-list >/dev/null; then fc-list; else
    find /usr/share/fonts /usr/local/share/fonts ~/.fonts ~/.local/share/fonts -name '*.[ot]t[cf]*' 2>/dev/null
fi | grep -q . || tell "This system seems to have no font, and Korvel's window no letters.
Debian, Ubuntu: apt install fonts-dejavu-core
Fedora: dnf install dejavu-sans-fonts
Arch: pacman -S ttf-dejavu"

# The system's avrdude goes first, as do the user's own.
command -v avrdude >/dev/null || PATH=$PATH:$(pwd)/avrdude

# Unpacking the archive once more must not take your settings, so they are laid in place only here.
lay_starters starter && [ -w . ] && [ -w profiles ] || tell "Korvel cannot write to $(pwd).
It starts, but keeps no settings and no profiles.
Unpack the archive in a folder of your own to keep them."
exec ./korvel "$@"
