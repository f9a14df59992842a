# Shared by the scripts beside it, which source it. Leaves the shell in the checkout's top folder.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build_packages=(g++ cmake ninja-build qtbase5-dev libqt5serialport5-dev avrdude python3)

# Installs those of the named Debian packages that are missing; where there is no apt, names them all and gives up.
need_packages() {
    [ -z "${KORVEL_SKIP_PACKAGES:-}" ] || return 0
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        echo "This system has no apt. Install what these Debian packages hold, set KORVEL_SKIP_PACKAGES=1, and start" \
            "again: $*" >&2
        exit 1
    fi
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Run this as root: apt-get install ${missing[*]}" >&2; exit 1; }
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset; further arguments name targets.
build() {
    local preset=$1
    shift
    cmake --preset "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# The processes that a script has started; a script that fills it traps its end with stop_started.
started=()
stop_started() {
    local i
    for ((i = ${#started[@]} - 1; i >= 0; i--)); do # the display last
        kill "${started[i]}" 2>/dev/null && wait "${started[i]}" || true
    done
}

# Waits up to a minute for the command to succeed.
wait_for() {
    local i
    for ((i = 0; i < 300; i++)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.2
    done
    echo "Waited in vain for: $*" >&2
    return 1
}
