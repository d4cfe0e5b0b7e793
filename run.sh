#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the program and opens it on the sample list, or on the file named; fails when that
# can't be opened. Without a display it starts on a virtual one, saves a picture of its window under build/ and ends.
set -euo pipefail
file=${1:-}
if [ -n "$file" ]; then
    # Before anything is installed or built.
    if [ ! -f "$file" ] || [ ! -r "$file" ]; then
        echo "run.sh: $file is no file that can be read." >&2
        exit 1
    fi
    file=$(realpath -- "$file")
fi
cd "$(dirname "$0")"

scripts/setup.sh program
cmake --preset release -DORDELIN_WERROR="${ORDELIN_WERROR:-OFF}" >/dev/null
cmake --build --preset release --target ordelin

program=build/release/src/ordelin
file=${file:-$PWD/samples/vardagsord.gls}
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" -- "$file"
fi
scripts/setup.sh display
if ! scripts/picture.sh build/main-window.png "$program" -- "$file"; then
    echo "run.sh: $file could not be opened." >&2
    exit 1
fi
echo "There is no display here. A picture of the window is in $PWD/build/main-window.png"
