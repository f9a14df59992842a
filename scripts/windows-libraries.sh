# Sourced after common.sh. Makes what Korvel for Windows is built with and what it ships with, each once: Qt, its serial
# port module, and avrdude with the libraries that its own project builds it with for Windows. All of it lies in the
# cache, with the licences.

shopt -s inherit_errexit

# Paths are taken as seen from where the script was started.
from_start() { (cd "$OLDPWD" && realpath -m "$1"); }
KORVEL_WINDOWS_CACHE=$(from_start "${KORVEL_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/korvel/windows}")
[ -z "${KORVEL_QTSERIALPORT:-}" ] || KORVEL_QTSERIALPORT=$(from_start "$KORVEL_QTSERIALPORT")
[ -z "${KORVEL_AVRDUDE_LIBRARIES:-}" ] || KORVEL_AVRDUDE_LIBRARIES=$(from_start "$KORVEL_AVRDUDE_LIBRARIES")
export KORVEL_WINDOWS_CACHE KORVEL_QTSERIALPORT KORVEL_AVRDUDE_LIBRARIES
windows_target=x86_64-w64-mingw32
windows_toolchain=$PWD/cmake/windows-x86_64.cmake

windows_packages=(g++ make perl cmake ninja-build g++-mingw-w64-x86-64-posix flex bison cmark-gfm ca-certificates xz-utils
    bzip2 git nsis patch fonts-dejavu-core python3 wine wine64)

# Fetches all sources before anything is built: what cannot be had shows at once. The lists of packages lie in the cache:
# the system's own are left alone, and need not name any sources.
make_sources() {
    local lists=$KORVEL_WINDOWS_CACHE/scratch/apt file
    mkdir -p "$lists"/{sources.list.d,lists/partial,cache/archives/partial}
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
        [ ! -e "$file" ] || sed -E 's/^deb( |\t)/deb-src\1/; s/^Types:.*/Types: deb-src/' "$file" \
            >"$lists/${file#/etc/apt/}"
    done
    local apt=(apt-get -q -q -o "Dir::Etc::SourceList=$lists/sources.list" -o "Dir::Etc::SourceParts=$lists/sources.list.d"
        -o "Dir::State::Lists=$lists/lists" -o "Dir::Cache=$lists/cache" -o APT::Sandbox::User=)
    rm -rf "$KORVEL_WINDOWS_CACHE/sources"
    mkdir "$KORVEL_WINDOWS_CACHE/sources"
    cd "$KORVEL_WINDOWS_CACHE/sources"
    "${apt[@]}" update
    "${apt[@]}" source --only-source --tar-only qtbase-opensource-src avrdude
    if [ -n "${KORVEL_QTSERIALPORT:-}" ]; then
        cp -r "$KORVEL_QTSERIALPORT" qtserialport
    elif ! "${apt[@]}" source --only-source --tar-only qtserialport-opensource-src; then
        echo "The source of Qt's serial port module cannot be had. Get qtserialport-everywhere-src 5.15 from the Qt" \
            "project and start again with KORVEL_QTSERIALPORT=ARCHIVE_OR_FOLDER."
        return 1
    fi
    fetch_avrdude_library libelf 0c55bfe1d3020a20bddf6ce57c0d9d98ccb12586
    fetch_avrdude_library libusb 1da30556b7abf7feebd856b0adac979996b7ca01
    fetch_avrdude_library libhidapi 8ba3bf46696ec788e3ae9be69ea7b294166d5409
    fetch_avrdude_library libftdi d141311aad458e7a2f28c027b06b837b2285ca6c
}

# Lays an archive of a commit of the libraries that avrdude's own CMake files name into the current folder:
# fetch_avrdude_library NAME COMMIT. Git and the web site of the project write the commit into the archives they make.
fetch_avrdude_library() {
    local name=$1 commit=$2 archive=avrdude-$1-${2:0:12}.tar.gz repository=https://github.com/avrdudes/$1
    if [ -n "${KORVEL_AVRDUDE_LIBRARIES:-}" ]; then
        cp "$KORVEL_AVRDUDE_LIBRARIES/$archive" .
        local found
        found=$(commit_of "$archive")
        [ "$found" = "$commit" ] || {
            echo "$KORVEL_AVRDUDE_LIBRARIES/$archive is of commit ${found:-unknown}, and commit $commit of $repository" \
                "is wanted. \"git archive\" makes the right one."
            return 1
        }
        return
    fi
    git init -q --bare "$name.git"
    git -C "$name.git" fetch -q --depth 1 "$repository" "$commit" || {
        echo "The source of avrdude's $name cannot be had. Start again with KORVEL_AVRDUDE_LIBRARIES naming a folder" \
            "that has an archive of that commit of $repository as $archive."
        return 1
    }
    git -C "$name.git" archive --prefix "$name/" --output "$PWD/$archive" "$commit"
    rm -rf "$name.git"
}

# Only the beginning of the archive is read, so zcat may complain.
commit_of() { { zcat "$1" 2>/dev/null || true; } | git get-tar-commit-id || true; }

# The upstream archive of a Debian source package, and where it comes from.
source_of() { ls "$KORVEL_WINDOWS_CACHE/sources/$1"_*.orig.tar.*; }
origin_of() { echo "unchanged: source package $1 of $(. /etc/os-release && echo "$PRETTY_NAME")"; }
origin_of_library() {
    local archive
    archive=$(ls "$KORVEL_WINDOWS_CACHE/sources/avrdude-$1"-*)
    echo "$1 of the avrdude project, https://github.com/avrdudes/$1, commit $(commit_of "$archive")"
}

# Unpacks a source into the folder "scratch" of the cache and prints where it lies; a folder is taken as it is.
unpack() {
    local source=$1 folder=$KORVEL_WINDOWS_CACHE/scratch/$2
    if [ -d "$source" ]; then
        cp -r "$source" "$folder"
    else
        mkdir -p "$folder"
        tar -C "$folder" -xf "$source" --strip-components=1
    fi
    echo "$folder"
}

# Says where a part comes from, and lays its licences beside that: credit NAME ORIGIN FILE...
credit() {
    local folder=$KORVEL_WINDOWS_CACHE/licences/$1
    rm -rf "$folder"
    mkdir -p "$folder"
    echo "$2" >"$folder/ORIGIN.txt"
    shift 2
    local file
    for file in "$@"; do
        cp "$file" "$folder/$(basename "$file" .txt).txt"
    done
}

# The version in the name of an upstream archive.
version_of() { basename "$1" | sed -E 's/^[^_]*_(.*)\.orig\.tar\..*/\1/'; }

make_qt() {
    local archive source build=$KORVEL_WINDOWS_CACHE/scratch/qt-build name
    archive=$(source_of qtbase-opensource-src)
    source=$(unpack "$archive" qt)
    # The linker wants these two in this spelling.
    mkdir -p "$KORVEL_WINDOWS_CACHE/scratch/spelling" "$build"
    for name in Secur32 Crypt32; do
        ln -sf "/usr/$windows_target/lib/lib${name,}.a" "$KORVEL_WINDOWS_CACHE/scratch/spelling/lib$name.a"
    done
    rm -rf "$KORVEL_WINDOWS_CACHE/qt"
    # The prefix is baked into the libraries; it is none of this machine's paths.
    cd "$build"
    "$source/configure" -opensource -confirm-license -xplatform win32-g++ \
        -device-option CROSS_COMPILE=$windows_target- -prefix /qt -extprefix "$KORVEL_WINDOWS_CACHE/qt" \
        -release -shared -no-opengl -no-dbus -no-icu -schannel -no-openssl -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg \
        -qt-freetype -qt-harfbuzz -nomake examples -nomake tests -no-feature-sql -no-feature-printer \
        -no-feature-tabletevent -no-feature-concurrent -no-pch -L "$KORVEL_WINDOWS_CACHE/scratch/spelling" \
        QMAKE_CXXFLAGS+="-ffile-prefix-map=$source=qt"
    make -j"$(nproc)"
    make install
    credit qt "Qt $(version_of "$archive"), $(origin_of qtbase-opensource-src)" "$source"/LICENSE.{LGPL3,GPL3}
    local text
    find "$source"/src/{corelib,gui,3rdparty} -iname '*licen[cs]e*' -o -name 'COPYING*' -o -name FTL.TXT |
        grep -vE '/(android|angle|gradle|harfbuzz|icc|pixman|VulkanMemoryAllocator|wasm|xcb)/' | # none of this is in there
        while IFS= read -r text; do
            name=${text#"$source/src/"}
            cp "$text" "$KORVEL_WINDOWS_CACHE/licences/qt/$(tr / - <<<"${name%.txt}").txt"
        done
}

make_qtserialport() {
    local archive=$KORVEL_WINDOWS_CACHE/sources/qtserialport source version
    [ -e "$archive" ] || archive=$(source_of qtserialport-opensource-src)
    source=$(unpack "$archive" qtserialport)
    version=$(sed -n 's/^MODULE_VERSION *= *//p' "$source/.qmake.conf")
    mkdir -p "$KORVEL_WINDOWS_CACHE/scratch/qtserialport-build"
    # Headers that are made for releases, and are not in what comes from the repository.
    [ -d "$source/include" ] ||
        perl "$KORVEL_WINDOWS_CACHE/qt/bin/syncqt.pl" -version "$version" -outdir "$source" "$source"
    cd "$KORVEL_WINDOWS_CACHE/scratch/qtserialport-build"
    "$KORVEL_WINDOWS_CACHE/qt/bin/qmake" "$source"
    make -j"$(nproc)"
    make install
    credit qtserialport "Qt SerialPort $version, unchanged: qtserialport of the Qt project" "$source"/LICENSE.LGPL*
}

make_avrdude() {
    local windows=$PWD/packaging/windows resources=$PWD/resources/windows archive source name folders=()
    archive=$(source_of avrdude)
    source=$(unpack "$archive" avrdude)
    for name in libelf libusb libhidapi libftdi; do
        unpack "$(ls "$KORVEL_WINDOWS_CACHE/sources/avrdude-$name"-*)" $name
        folders+=("-DFETCHCONTENT_SOURCE_DIR_${name^^}=$KORVEL_WINDOWS_CACHE/scratch/$name")
    done
    patch -p 1 -d "$KORVEL_WINDOWS_CACHE/scratch/libusb" <"$windows/libusb-no-arguments.patch"
    $windows_target-windres -O coff -I "$resources" "$windows/avrdude.rc" "$source/utf8.o"
    # libusb uses functions that a Windows header takes away by default; what its sources ask a linker of Microsoft for
    # is named here, after all that needs it.
    cmake -S "$source" -B "$source/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$windows_toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS="-ffile-prefix-map=$KORVEL_WINDOWS_CACHE/scratch=." \
        -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$KORVEL_WINDOWS_CACHE/scratch=. -DSTRSAFE_NO_DEPRECATE" \
        -DCMAKE_EXE_LINKER_FLAGS="-static -s $source/utf8.o" \
        -DCMAKE_C_STANDARD_LIBRARIES="-lstdc++ -lwinusb -lsetupapi -lcfgmgr32 -lhid" \
        -DUSE_EXTERNAL_LIBS=ON -DFETCHCONTENT_FULLY_DISCONNECTED=ON "${folders[@]}" \
        -DCMAKE_DISABLE_FIND_PACKAGE_Git=ON -DCMAKE_INSTALL_SYSCONFDIR=/etc
    cmake --build "$source/build"
    rm -rf "$KORVEL_WINDOWS_CACHE/avrdude"
    mkdir "$KORVEL_WINDOWS_CACHE/avrdude"
    cp "$source/build/src/"avrdude.{exe,conf} "$KORVEL_WINDOWS_CACHE/avrdude/"
    credit avrdude "avrdude $(version_of "$archive"), $(origin_of avrdude), but for a manifest that has it take UTF-8 \
file names" "$source/COPYING"
    cd "$KORVEL_WINDOWS_CACHE/scratch"
    credit libelf "$(origin_of_library libelf)" libelf/COPYING.LIB
    credit libusb "$(origin_of_library libusb), with packaging/windows/libusb-no-arguments.patch" libusb/COPYING_{GPL,LGPL}.txt
    credit libhidapi "$(origin_of_library libhidapi)" libhidapi/LICENSE{,-bsd,-gpl3,-orig}.txt
    credit libftdi "$(origin_of_library libftdi)" libftdi/{LICENSE,COPYING.LIB}
}

# What the compiler adds to every program.
credit_runtime() {
    credit runtime "The run-time libraries of GCC and mingw-w64, from Debian's packages gcc-mingw-w64-x86-64-posix-runtime \
and mingw-w64-x86-64-dev ($(dpkg-query -W -f '${Version}' gcc-mingw-w64-x86-64-posix-runtime), \
$(dpkg-query -W -f '${Version}' mingw-w64-x86-64-dev)); sources: gcc-mingw-w64 and mingw-w64" \
        /usr/share/common-licenses/GPL-3
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$KORVEL_WINDOWS_CACHE/licences/runtime/gcc.txt"
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$KORVEL_WINDOWS_CACHE/licences/runtime/mingw-w64.txt"
}

# The Wine folder that cmake/wine.sh uses. Wine keeps Qt's variables from programs, unless they are set in there: tests
# need no screen then, and print what they find.
make_wine() {
    rm -rf "$KORVEL_WINDOWS_CACHE/wine"
    cmake/wine.sh "$KORVEL_WINDOWS_CACHE" wineboot --init
    local setting
    for setting in QT_QPA_PLATFORM=offscreen 'QT_QPA_FONTDIR=Z:\usr\share\fonts\truetype\dejavu' \
        QT_FORCE_STDERR_LOGGING=1; do
        cmake/wine.sh "$KORVEL_WINDOWS_CACHE" reg add 'HKCU\Environment' /v "${setting%=*}" /d "${setting#*=}" /f
    done
    WINEPREFIX=$KORVEL_WINDOWS_CACHE/wine wineserver -w # that is when it is on the disk
}

# What make_avrdude is made with beside the recipes: the functions that it calls and files of ours.
beside_make_avrdude() {
    declare -f source_of origin_of origin_of_library commit_of unpack credit version_of
    cat packaging/windows/{libusb-no-arguments.patch,avrdude.rc} resources/windows/program.manifest "$windows_toolchain"
}

# Makes one of them unless the cache has it as the recipe above, and those before it, would make it now. What Qt takes
# beside its recipe is not looked at: half an hour is too long for a word in a comment. Delete make_qt.made by hand.
recipes=()
make_once() {
    local recipe=$1 mark=$KORVEL_WINDOWS_CACHE/$1.made log=$KORVEL_WINDOWS_CACHE/$1.log now
    recipes+=("$recipe")
    now=$({ declare -f "${recipes[@]}" && { [ "$recipe" != make_avrdude ] || beside_make_avrdude; }; } | sha256sum)
    [ ! -e "$mark" ] || [ "$(cat "$mark")" != "$now" ] || return 0
    echo "== ${recipe/_/ }: the log is $log"
    rm -rf "$mark" "$KORVEL_WINDOWS_CACHE/scratch"
    mkdir -p "$KORVEL_WINDOWS_CACHE/scratch"
    trap 'tail -n 20 "$log" >&2; echo "$recipe failed" >&2' ERR
    ("$recipe") >"$log" 2>&1 # not in a condition, where it would go on after an error
    trap - ERR
    rm -r "$KORVEL_WINDOWS_CACHE/scratch"
    echo "$now" >"$mark"
}

make_windows_libraries() {
    need_packages "${windows_packages[@]}"
    if [[ $($windows_target-g++ -v 2>&1) != *'Thread model: posix'* ]]; then
        echo "$windows_target-g++ is not the posix variant: see update-alternatives --config $windows_target-g++" >&2
        exit 1
    fi
    local recipe
    for recipe in make_sources make_qt make_qtserialport make_avrdude make_wine; do
        make_once "$recipe"
    done
    credit_runtime
}
