#!/usr/bin/env bash
# Builds Korvel for Windows on a Debian machine and packs it, into build/windows: korvel-5.6-windows-x86_64.zip to unpack
# anywhere, and korvel-5.6-windows-x86_64-setup.exe, an installer with the same in it. Builds Qt and avrdude too, once:
# they are kept in ~/.cache/korvel/windows or where KORVEL_WINDOWS_CACHE says. Their sources are Debian's source packages
# and, of the libraries that avrdude's project builds it with for Windows, that project's repositories.
# KORVEL_AVRDUDE_LIBRARIES names a folder with archives of those instead, and KORVEL_QTSERIALPORT the source of Qt's serial
# port module, a folder or an archive, where that package cannot be had.
source "$(dirname "$0")/common.sh"
source scripts/windows-libraries.sh
export LC_ALL=C.UTF-8 # for the names of the language files

make_windows_libraries
build windows korvel korvel-ts2json korvel-virtual-programmer korvel_data korvel_languages korvel_packaging
cd build/windows
rm -rf _CPack_Packages ./*.zip ./*-setup.exe
cpack
ls -l ./*.zip ./*-setup.exe
