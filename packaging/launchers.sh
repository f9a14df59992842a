# What the launchers share: they source it.

# Says what went wrong: in the terminal, and to who started from a menu or a file manager in a box, if the desktop has a
# tool for one.
tell() {
    echo "korvel: $1" >&2
    [ -t 2 ] && return
    if command -v zenity >/dev/null; then zenity --error --no-markup --title=Korvel --text="$1"
    elif command -v kdialog >/dev/null; then kdialog --title Korvel --error "$1"
    elif command -v xmessage >/dev/null; then xmessage -center -default okay "$1"
    elif command -v notify-send >/dev/null; then notify-send Korvel "$1"
    fi >/dev/null 2>&1 || true
}

# Whatever the user put in a place, a link that leads nowhere included, is left alone.
taken() { [ -e "$1" ] || [ -L "$1" ]; }

# Lays what is the user's from the first start on here from the given folder, which keeps its own. Moved into place, so
# that half a copy never counts.
lay_starters() {
    for starter in save.json profiles; do
        taken "$starter" ||
            { rm -rf "$starter.new" && cp -R "$1/$starter" "$starter.new" && mv "$starter.new" "$starter"; } || return
    done
}
