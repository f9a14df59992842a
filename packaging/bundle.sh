#!/usr/bin/env bash
# bundle.sh FOLDER PROGRAM...: lays into FOLDER what the portable archive holds beside Korvel's data: the programs, and
# from the packages installed here Qt, avrdude, the libraries that they need beyond system-libraries.txt, and the
# licences of all that.
set -euo pipefail
export LC_ALL=C
packaging=$(cd "$(dirname "$0")" && pwd)
folder=$1
shift
rm -rf "$folder"
mkdir -p "$folder"/{lib,plugins,avrdude/lib,licences/common}
fail() { echo "bundle.sh: $1" >&2; exit 1; }

plugins=$(qmake -qt=5 -query QT_INSTALL_PLUGINS)
is_of_system() { awk -v name="$1" '$1 == name { found = 1 } END { exit !found }' "$packaging/system-libraries.txt"; }

# take FILE PATH: copies the file to the path in the folder, notes where it comes from, and puts it on the list of those
# whose libraries are still to be brought.
declare -A origins
todo=()
take() {
    local real package
    real=$(readlink -f "$1")
    package=$(dpkg -S "$real" 2>/dev/null || dpkg -S "${real#/usr}" 2>/dev/null) || fail "$real is of no package"
    install -D -m "$(stat -c %a "$real")" "$real" "$folder/$2"
    origins[$2]=${package%%: *}
    [[ $2 == *.conf || $2 == *.rules ]] || todo+=("$2")
}

# follow PATH LIBRARIES: brings what the program or library at that path and the ones that it needs are linked to.
# Whatever is loaded looks there before all else: an LD_LIBRARY_PATH of the user's has no say, and one of ours, which
# avrdude and the browser would inherit, is not needed.
follow() {
    local current needed found target library
    while [ ${#todo[@]} -gt 0 ]; do
        current=${todo[0]}
        todo=("${todo[@]:1}")
        found=$(ldd "$folder/$current")
        for needed in $(patchelf --print-needed "$folder/$current"); do
            target=$1/$needed
            if [ -e "$folder/$target" ] || is_of_system "$needed"; then continue; fi
            library=$(awk -v name="$needed" '$1 == name && $3 ~ "^/" { print $3 }' <<<"$found")
            [ -n "$library" ] || fail "$current needs $needed, which this system does not have"
            take "$library" "$target"
        done
        patchelf --force-rpath --set-rpath \
            "\$ORIGIN/$(realpath -m --relative-to="$folder/$(dirname "$current")" "$folder/$1")" "$folder/$current"
    done
}

for program in "$@"; do
    strip -o "$folder/$(basename "$program")" "$program"
    todo+=("$(basename "$program")")
done
for plugin in platforms/libqxcb platforminputcontexts/lib{compose,ibus}platforminputcontextplugin; do
    take "$plugins/$plugin.so" "plugins/$plugin.so"
done
follow lib
printf '[Paths]\nPrefix=.\nPlugins=plugins\n' >"$folder/qt.conf"

# avrdude finds its configuration beside itself.
take "$(command -v avrdude)" avrdude/avrdude
take /etc/avrdude.conf avrdude/avrdude.conf
take /lib/udev/rules.d/60-avrdude.rules avrdude/60-avrdude.rules
follow avrdude/lib

# Licences: a folder for each source package; licences.txt must have a line for each and for nothing else.
for file in $(printf '%s\n' "${!origins[@]}" | sort); do
    read -r source version < <(dpkg-query -W -f '${source:Package} ${source:Version}\n' "${origins[$file]}")
    licences=$folder/licences/$source
    if [ ! -d "$licences" ]; then
        mkdir "$licences"
        cp "/usr/share/doc/${origins[$file]%%:*}/copyright" "$licences/copyright"
        {
            echo "Debian's source package $source $version. \"apt-get source $source=$version\" fetches it on Debian,"
            echo "and https://snapshot.debian.org/package/$source/$version/ has it for everybody. Of it are:"
        } >"$licences/ORIGIN.txt"
    fi
    echo "$file" >>"$licences/ORIGIN.txt"
done
for licence in $(grep -rhoE '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$folder/licences" | sort -u); do
    cp -L "$licence" "$folder/licences/common/$(basename "$licence")"
done
difference=$(diff <(ls "$folder/licences") \
    <(sed -n '1,/^Korvel.txt/d; s/^\([^ ]\+\) .*/\1/p' "$packaging/licences.txt" | sort)) ||
    fail "licences.txt does not fit what is in the archive:
$difference"

# What the system has to be at least: glibc as korvel.sh says, which compares with the system's own, and the libstdc++
# of GCC 12, as the oldest releases with such a glibc have.
glibc=$(sed -n 's/^glibc=\([0-9.]*\).*/\1/p' "$packaging/korvel.sh")
symbols=$(find "$folder" -type f \( -perm /111 -o -name '*.so*' \) -exec objdump -T {} +)
for promised in "GLIBC_$glibc" GLIBCXX_3.4.30 CXXABI_1.3.13; do
    needed=$(grep -o "\<${promised%_*}_[0-9][0-9.]*" <<<"$symbols" | sort -Vu | tail -n 1)
    echo "The archive needs $needed."
    printf '%s\n' "$needed" "$promised" | sort -VC || fail "that is newer than $promised"
done
named=$(grep -oE 'glibc [0-9]+\.[0-9]+' "$packaging"/../{README.md,docs/*.md} | grep -vF "glibc $glibc" || true)
[ -z "$named" ] || fail "The documents name another glibc than $glibc: $named"

find "$folder" -type d -exec chmod 755 {} +
