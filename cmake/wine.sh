#!/bin/sh
# wine.sh CACHE PROGRAM [ARGUMENT...]: runs a program that was built for Windows, with the libraries and the avrdude of
# the cache. Works in a Wine folder of its own, in the cache too, unless WINEPREFIX names another.
set -eu
cache=$1
shift
runtime=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
threads=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")
export WINEPATH="Z:$cache/qt/bin;Z:$cache/avrdude;Z:$runtime;Z:$threads"
export WINEPREFIX="${WINEPREFIX:-$cache/wine}" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
# No offers to install Mono and Gecko, and no menu entries or file types for the desktop that this runs on.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree=;mshtml=;winemenubuilder.exe=}"
exec wine "$@"
