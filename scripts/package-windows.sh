#!/usr/bin/env bash
# Builds Korvel for Windows on a Debian machine and packs it: build/windows/korvel-5.6-windows-x86_64.zip. Builds Qt and
# avrdude too, from Debian's source packages, once: they are kept in ~/.cache/korvel/windows or where
# KORVEL_WINDOWS_CACHE says. KORVEL_QTSERIALPORT names the source of Qt's serial port module, a folder or an archive,
# where that package cannot be had.
source "$(dirname "$0")/common.sh"
source scripts/windows-libraries.sh
export LC_ALL=C.UTF-8 # for the names of the language files

make_windows_libraries
build windows korvel korvel-ts2json korvel-virtual-programmer korvel_data korvel_languages korvel_packaging
cd build/windows
rm -rf _CPack_Packages ./*.zip
cpack
ls -l ./*.zip
