#!/usr/bin/env bash
# Takes a Debian bookworm machine from a fresh clone to a built tree: installs the
# Debian packages that are missing, configures once and builds. Re-running it when
# nothing changed costs only the package check and an up-to-date build.
#
#   scripts/setup.sh [--sanitize] [extra cmake -D options]
#
# QT_MAJOR picks the Qt to build against: 5 (the default) or 6. The build folder is
# build, build-asan (--sanitize), build-qt6 or build-qt6-asan; BUILD_DIR overrides it.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$root/scripts/qtversion.sh"
sanitize=OFF
if [ "${1:-}" = "--sanitize" ]; then
    sanitize=ON
    shift
fi
build_dir=$(cc_build_dir "$sanitize")

packages=(
    cmake ninja-build g++ pkg-config
    "${cc_qt_packages[@]}"
    fonts-dejavu-core         # offscreen rendering needs at least one font
    xvfb xauth imagemagick    # the real designer under a virtual display, and screenshots of it
    x11-utils                 # xwininfo: scripts/designer.sh waits for the Designer window
)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || missing+=("$p")
done
if [ "${#missing[@]}" -gt 0 ]; then
    sudo=""
    [ "$(id -u)" = 0 ] || sudo=sudo
    echo "Installing: ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

jobs=$(nproc 2>/dev/null || echo 2)
if [ ! -f "$build_dir/CMakeCache.txt" ] || [ "$#" -gt 0 ]; then
    cmake -S "$root" -B "$build_dir" -G Ninja \
        -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" \
        -DCC_QT_MAJOR="$cc_qt_major" -DCC_SANITIZE="$sanitize" "$@"
fi
cmake --build "$build_dir" --parallel "$jobs"
