#!/usr/bin/env bash
# Builds what is missing and runs the whole test suite, offscreen.
#
#   scripts/test.sh              the normal build (build/)
#   scripts/test.sh --sanitize   the AddressSanitizer + UBSan build (build-asan/)
#   QT_MAJOR=6 scripts/test.sh   the same against Qt 6 (build-qt6/, build-qt6-asan/)
#
# Extra arguments after the optional --sanitize go to ctest (for example -R plugin).
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$root/scripts/qtversion.sh"
if [ "${1:-}" = "--sanitize" ]; then
    shift
    "$root/scripts/setup.sh" --sanitize
    build_dir=$(cc_build_dir ON)
else
    "$root/scripts/setup.sh"
    build_dir=$(cc_build_dir OFF)
fi

export QT_QPA_PLATFORM=offscreen
cd "$build_dir"
ctest --output-on-failure --parallel "$(nproc 2>/dev/null || echo 2)" "$@"
