# Sourced by the launchers, which say in $prefix where Korvel was installed and in $library where this file lies. Leaves
# the shell in the user's work folder, which is set up when it is not there.

share=$prefix/share/korvel

. "$library/launchers.sh"

case ${XDG_DATA_HOME:-} in
/*) work=$XDG_DATA_HOME/korvel ;;
*) work=${HOME:-}/.local/share/korvel ;; # a relative path does not count
esac
if ! mkdir -p "$work" || ! cd "$work"; then
    tell "Korvel cannot work in $work."
    exit 1
fi

lay_starters "$share" || unwritable=yes
# What ships.
for data in mcu programmer Languages demo; do
    taken "$data" || ln -s "$share/$data" "$data" || unwritable=yes
done
taken docs || ln -s "$prefix/share/doc/korvel" docs || unwritable=yes
[ -z "${unwritable-}" ] || tell "Korvel cannot write to $work."
