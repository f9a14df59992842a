#!/usr/bin/env bash
# Builds the Debian package and the portable archive, both in build/package.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" dpkg-dev file librsvg2-bin
# Debian's flags harden the programs; CMake takes them over when it configures a folder for the first time.
CXXFLAGS=$(dpkg-buildflags --get CXXFLAGS)
CXXFLAGS+=" $(dpkg-buildflags --get CPPFLAGS)"
LDFLAGS=$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get LDFLAGS)
export CXXFLAGS LDFLAGS
umask 022
build package
cd build/package
rm -rf _CPack_Packages ./*.deb ./*.tar.gz
cpack
