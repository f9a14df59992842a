# Sourced by the launchers, which say in $prefix where Korvel was installed. Leaves the shell in the user's work folder,
# which is set up when it is not there.

share=$prefix/share/korvel
library=$prefix/lib/korvel

# Says what went wrong: in the terminal, and, started from a menu, in a box if the desktop has a tool for one.
tell() {
    echo "korvel: $1" >&2
    [ -t 2 ] && return
    if command -v zenity >/dev/null; then zenity --error --text="$1"
    elif command -v kdialog >/dev/null; then kdialog --error "$1"
    elif command -v xmessage >/dev/null; then xmessage "$1"
    fi || true
}

case ${XDG_DATA_HOME:-} in
/*) work=$XDG_DATA_HOME/korvel ;;
*) work=${HOME:-}/.local/share/korvel ;; # a relative path does not count
esac
if ! mkdir -p "$work" || ! cd "$work"; then
    tell "Korvel cannot work in $work."
    exit 1
fi

# Whatever the user put in a place, a link that leads nowhere included, is left alone.
taken() { [ -e "$1" ] || [ -L "$1" ]; }

# What is the user's from the first start on. Moved into place, so that half a copy never counts.
for starter in save.json profiles; do
    taken "$starter" || { cp -R "$share/$starter" "$starter.new" && mv "$starter.new" "$starter"; } ||
        tell "Korvel cannot write to $work."
done

# What ships.
for data in mcu programmer Languages demo; do
    taken "$data" || ln -s "$share/$data" "$data" || tell "Korvel cannot write to $work."
done
