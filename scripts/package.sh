#!/usr/bin/env bash
# Builds the Debian package and the portable archive, both in build/package.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" dpkg-dev fakeroot file librsvg2-bin patchelf
# Debian's flags harden the programs; CMake takes them over when it configures a folder for the first time.
CXXFLAGS=$(dpkg-buildflags --get CXXFLAGS)
CXXFLAGS+=" $(dpkg-buildflags --get CPPFLAGS)"
LDFLAGS=$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get LDFLAGS)
export CXXFLAGS LDFLAGS
# What is in the packages is as old as the last commit, or as the last entry of the changelog where there is no history,
# and belongs to root, whoever makes them.
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$([ -e .git ] && git log -1 --format=%ct 2>/dev/null ||
        date -ud "$(sed -nE '/^## /{s/.*\((.*)\)/\1/p;q}' CHANGELOG.md) 12:00" +%s)
fi
export SOURCE_DATE_EPOCH
umask 022
build package
cd build/package
rm -rf _CPack_Packages ./*.deb ./*.tar.*
fakeroot cpack
