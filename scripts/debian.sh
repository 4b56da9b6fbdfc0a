# Sourced by the scripts beside it: what a Debian machine needs, and the build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# need PACKAGE...: installs those that are missing, and touches nothing if none is.
need() {
    local missing=() as_root=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        as_root=(sudo)
        command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; exit 1; }
    fi
    echo "installing ${missing[*]}"
    local log
    log=$(mktemp)
    {
        "${as_root[@]}" apt-get update &&
            "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
    } >"$log" 2>&1 </dev/null || { tail -n 20 "$log" >&2; echo "The packages could not be installed." >&2; exit 1; }
    rm -f "$log"
}

# build DIRECTORY CMAKE_ARGUMENT...: configures and builds in Release.
build() {
    local directory=$1
    shift
    cmake -S . -B "$directory" -G Ninja -DCMAKE_BUILD_TYPE=Release "$@"
    cmake --build "$directory"
}

toolchain=(g++ cmake ninja-build libpng-dev libnanoflann-dev)
