#!/usr/bin/env bash
# Checks the translations, which part includes which, that every place names the same version, the links of the documents
# as they are and as they are installed, and layout (clang-format) and code (clang-tidy) of all our sources. Changes
# nothing.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the translations

need_packages "${build_packages[@]}" clang-format clang-tidy cmark-gfm git python3 qttools5-dev-tools \
    g++-mingw-w64-x86-64-posix pkgconf
scratch=$(mktemp -d)
trap 'rm -r "$scratch"' EXIT
scripts/meanings.py >"$scratch/meanings.cpp"
lupdate -silent src translations/toolkit.cpp "$scratch/meanings.cpp" -ts "$scratch/texts.ts"
scripts/check-translations.py "$scratch/texts.ts" translations/*.ts
# Each language is told of where people choose a program: by its name, and in it.
for file in translations/*.ts; do
    language=$(basename "$file" .ts)
    code=$(sed -nE 's/^<TS .* language="([^"]*)".*/\1/p' "$file")
    grep -qF "$language" README.md docs/guide.md || { echo "README.md does not name $language" >&2; exit 1; }
    [ "${code%_*}" != en ] || continue
    grep -qE "^Comment\[(${code%_*}|$code)\]=" packaging/korvel.desktop &&
        grep -qE "<summary xml:lang=\"(${code%_*}|$code)\">" packaging/*.metainfo.xml.in ||
        { echo "packaging/korvel.desktop or the metainfo beside it does not speak $language" >&2; exit 1; }
done
scripts/check-includes.py

# The entries of CHANGELOG.md are those of the About tab, and the first one says which version this is and of which day.
entries=$(sed -nE 's/^## (.*) \((.*)-(.*)-(.*)\)$/v\1 - \4.\3.\2/p' CHANGELOG.md)
told=$(sed -nE 's/^ *\(?"(v[0-9.]+)( \(beta\))?( - [0-9.]+) ?\\n"$/\1\3/p' src/about/AboutView.cpp)
if [ "$entries" != "$told" ]; then
    printf 'src/about/AboutView.cpp tells of\n%s\nCHANGELOG.md of\n%s\n' "$told" "$entries" >&2
    exit 1
fi
read -r version date < <(sed -nE '/^## /{s/^## (.*) \((.*)\)$/\1 \2/p;q}' CHANGELOG.md)
while IFS=@ read -r file line; do
    grep -qxF -- "$line" "$file" || { echo "$file lacks this line: $line" >&2; exit 1; }
done <<EOF
CMakeLists.txt@project(Korvel VERSION $version LANGUAGES CXX)
packaging/arch/PKGBUILD@pkgver=$version
packaging/rpm/korvel.spec@Version:        $version
packaging/man/korvel.1@.TH KORVEL 1 "$date" "Korvel $version" "User Commands"
packaging/man/korvel-ts2json.1@.TH KORVEL-TS2JSON 1 "$date" "Korvel $version" "User Commands"
packaging/man/korvel-virtual-programmer.1@.TH KORVEL-VIRTUAL-PROGRAMMER 1 "$date" "Korvel $version" "User Commands"
EOF
# So do the names of packages in texts.
stale=$(git grep -noE 'korvel[-_][0-9]+(\.[0-9]+)*' -- '*.md' '*.sh' | grep -vE "[-_]${version//./\\.}$" || true)
[ -z "$stale" ] || { printf 'of another version than %s:\n%s\n' "$version" "$stale" >&2; exit 1; }
echo "version: $version of $date everywhere"

sources_in() { git ls-files --cached --others --exclude-standard "$@"; } # new ones, too
mapfile -t sources < <(sources_in 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h' 'tests/*.cpp' 'tests/*.h' \
    'bench/*.cpp' 'fuzz/*.cpp' 'translations/*.cpp')
clang-format --dry-run --Werror "${sources[@]}"
echo "clang-format: ${#sources[@]} files are in order"

# clang-tidy wants the generated headers and a record of how each file is compiled.
build release
mapfile -t units < <(sources_in 'src/*.cpp' 'tools/*.cpp')
printf '%s\0' "${units[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/release
echo "clang-tidy: ${#units[@]} files are in order"

cmake --install build/release --prefix "$scratch/installed" >/dev/null
scripts/check-links.py "$scratch"/installed/share/doc/korvel/*.html

# What Windows alone compiles. The headers of the system's Qt do for that; only linking takes a Qt for Windows.
mapfile -t units < <(git grep -l Q_OS_ -- 'src/*.cpp' 'tools/*.cpp' 'tests/stand-in/*.cpp')
read -r -a includes < <(pkg-config --cflags-only-I Qt5Widgets Qt5Network Qt5SerialPort)
for unit in "${units[@]}"; do
    x86_64-w64-mingw32-g++-posix -c -o /dev/null -std=c++17 -Wall -Wextra -Werror -DKORVEL_VERSION='""' \
        -DKORVEL_UPDATE_HOST='""' -Isrc "${includes[@]/#-I/-isystem}" "$unit"
done
echo "for Windows: ${#units[@]} files compile"
