# Sourced after common.sh. Makes what Korvel for Windows is built with and what it ships with, each once: Qt, its serial
# port module, the USB libraries of avrdude, and avrdude. All of it lies in the cache, with the licences.

shopt -s inherit_errexit

# Paths are taken as seen from where the script was started.
from_start() { (cd "$OLDPWD" && realpath -m "$1"); }
KORVEL_WINDOWS_CACHE=$(from_start "${KORVEL_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/korvel/windows}")
[ -z "${KORVEL_QTSERIALPORT:-}" ] || KORVEL_QTSERIALPORT=$(from_start "$KORVEL_QTSERIALPORT")
export KORVEL_WINDOWS_CACHE KORVEL_QTSERIALPORT
windows_target=x86_64-w64-mingw32
windows_toolchain=$PWD/cmake/windows-x86_64.cmake

windows_packages=(g++ make perl cmake ninja-build g++-mingw-w64-x86-64-posix flex bison cmark-gfm ca-certificates xz-utils
    bzip2 fonts-dejavu-core python3 wine wine64)

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
    "${apt[@]}" source --only-source --tar-only qtbase-opensource-src libusb-1.0 hidapi avrdude
    if [ -n "${KORVEL_QTSERIALPORT:-}" ]; then
        cp -r "$KORVEL_QTSERIALPORT" qtserialport
    elif ! "${apt[@]}" source --only-source --tar-only qtserialport-opensource-src; then
        echo "The source of Qt's serial port module cannot be had. Get qtserialport-everywhere-src 5.15 from the Qt" \
            "project and start again with KORVEL_QTSERIALPORT=ARCHIVE_OR_FOLDER."
        return 1
    fi
}

# The upstream archive of a Debian source package, and where it comes from.
source_of() { ls "$KORVEL_WINDOWS_CACHE/sources/$1"_*.orig.tar.*; }
origin_of() { echo "unchanged: source package $1 of $(. /etc/os-release && echo "$PRETTY_NAME")"; }

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

make_usb() {
    local archive source
    rm -rf "$KORVEL_WINDOWS_CACHE/usb"
    archive=$(source_of libusb-1.0)
    source=$(unpack "$archive" libusb)
    cd "$source"
    ./configure --host=$windows_target --prefix="$KORVEL_WINDOWS_CACHE/usb" --disable-shared CC=$windows_target-gcc-posix
    make -j"$(nproc)"
    make install
    credit libusb "libusb $(version_of "$archive"), $(origin_of libusb-1.0)" "$source/COPYING"

    archive=$(source_of hidapi)
    source=$(unpack "$archive" hidapi)
    cmake -S "$source" -B "$source/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$windows_toolchain" \
        -DBUILD_SHARED_LIBS=OFF -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_LIBDIR=lib \
        -DCMAKE_INSTALL_PREFIX="$KORVEL_WINDOWS_CACHE/usb"
    cmake --build "$source/build" --target install
    credit hidapi "hidapi $(version_of "$archive"), $(origin_of hidapi)" "$source"/LICENSE{,-bsd,-orig}.txt
}

make_avrdude() {
    local archive source program manifest=$PWD/packaging/windows
    archive=$(source_of avrdude)
    source=$(unpack "$archive" avrdude)
    $windows_target-windres -O coff -I "$manifest" "$manifest/avrdude.rc" "$source/utf8.o"
    cmake -S "$source" -B "$source/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$windows_toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS="-I$KORVEL_WINDOWS_CACHE/usb/include -ffile-prefix-map=$source=avrdude" \
        -DCMAKE_EXE_LINKER_FLAGS="-static -s $source/utf8.o" -DCMAKE_DISABLE_FIND_PACKAGE_Git=ON \
        -DCMAKE_INSTALL_SYSCONFDIR=/etc
    cmake --build "$source/build"
    rm -rf "$KORVEL_WINDOWS_CACHE/avrdude"
    mkdir "$KORVEL_WINDOWS_CACHE/avrdude"
    program=$(find "$source/build" -name avrdude.exe)
    cp "$program" "$source/build/src/avrdude.conf" "$KORVEL_WINDOWS_CACHE/avrdude/"
    credit avrdude "avrdude $(version_of "$archive"), $(origin_of avrdude), but for a manifest that has it take UTF-8 \
file names" "$source/COPYING"
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

# Makes one of them unless the cache has it as the recipe above, and those before it, would make it now.
recipes=()
make_once() {
    local recipe=$1 mark=$KORVEL_WINDOWS_CACHE/$1.made log=$KORVEL_WINDOWS_CACHE/$1.log now
    recipes+=("$recipe")
    now=$(declare -f "${recipes[@]}" | sha256sum)
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
    for recipe in make_sources make_qt make_qtserialport make_usb make_avrdude make_wine; do
        make_once "$recipe"
    done
    credit_runtime
}
