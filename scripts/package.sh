#!/usr/bin/env bash
# Builds the Debian package and, on Debian 12, the portable archive, both in build/package. With --check from scratch,
# and once more in build/package-check, and fails where the two differ.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files
case "$#${1:-}" in 0 | 1--check) ;; *) echo "Usage: package.sh [--check]" >&2; exit 2 ;; esac

need_packages "${build_packages[@]}" cmark-gfm dpkg-dev fakeroot file librsvg2-bin patchelf
# The archive brings what Debian 12 has: packaging/licences.txt and packaging/system-libraries.txt list that.
system="$(. /etc/os-release && echo "${ID:-} ${VERSION_ID:-}") $(dpkg --print-architecture)"
generators=DEB
targets=(all)
left_out=
if [ "$system" = "debian 12 amd64" ]; then
    generators+=";TXZ"
    targets+=(korvel_bundle)
else
    left_out="The portable archive is left out: it is made on debian 12 amd64, and this is $system."
fi
shopt -s nullglob # for the archive that is left out
# Debian's flags harden the programs; CMake takes them over when it configures a folder for the first time.
flags="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
LDFLAGS=$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get LDFLAGS)
export LDFLAGS
# What is in the packages is as old as the last commit, or as the last entry of the changelog where there is no history,
# and belongs to root, whoever makes them.
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$([ -e .git ] && git log -1 --format=%ct 2>/dev/null ||
        date -ud "$(sed -nE '/^## /{s/.*\((.*)\)/\1/p;q}' CHANGELOG.md) 12:00" +%s)
fi
export SOURCE_DATE_EPOCH
umask 022

# Makes the packages in the given folder, whose name must not get into them.
make_packages() (
    CXXFLAGS="$flags -ffile-prefix-map=$PWD/$1=." cmake --preset package -B "$1"
    cmake --build "$1" --target "${targets[@]}"
    cd "$1"
    rm -rf _CPack_Packages ./*.deb ./*.tar.*
    fakeroot cpack -G "$generators"
)

# What is in a tar: a line for each member, and the sums of the files with their names.
members() {
    tar --full-time -tvf "$1"
    tar -xf "$1" --to-command='echo "$(sha256sum) $TAR_FILENAME"'
}

# Fails where two packages differ, and names the first member that does.
compare() {
    cmp "$1" "$2" && return
    local scratch part
    scratch=$(mktemp -d)
    for package in "$1" "$2"; do
        if [[ $package == *.deb ]]; then
            for part in ctrl fsys; do
                dpkg-deb "--$part-tarfile" "$package" >"$scratch/tar"
                members "$scratch/tar"
            done
        else
            members "$package"
        fi >"$scratch/$([ "$package" = "$1" ] && echo first || echo second)"
    done
    echo "The first difference:"
    diff "$scratch/first" "$scratch/second" | sed -n '2,/^>/p' || true
    rm -r "$scratch"
    return 1
} >&2

[ -z "${1:-}" ] || rm -rf build/package build/package-check
make_packages build/package
if [ -n "${1:-}" ]; then
    make_packages build/package-check
    for package in build/package/*.{deb,tar.xz}; do
        compare "$package" "build/package-check/$(basename "$package")"
    done
    rm -r build/package-check
    echo "Made twice, the packages are the same byte for byte."
fi
ls -l build/package/*.{deb,tar.xz}
[ -z "$left_out" ] || echo "$left_out"
