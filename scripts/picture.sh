#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# picture.sh PICTURE PROGRAM [ARGUMENT...]: starts a program on a virtual display of its own, saves a picture of its
# first window and ends it. Fails when the window was a message after which the program ended by itself and badly.
set -euo pipefail
picture=${1:?"usage: picture.sh PICTURE PROGRAM [ARGUMENT...]"}
shift

# shellcheck source=scripts/virtual_display.sh
. "$(dirname "$0")/virtual_display.sh"
settings
"$@" >"$work/program.log" 2>&1 &
program=$!
pids+=("$program")
window=
for _ in $(seq 150); do
    window=$(xdotool search --onlyvisible --pid "$program" --name . 2>/dev/null | tail -n 1) && [ -n "$window" ] && break
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
done
if [ -z "$window" ]; then
    echo "The program showed no window:" >&2
    cat "$work/program.log" >&2
    exit 1
fi
sleep 1 # Until everything is painted.
mkdir -p "$(dirname "$picture")"
import -window "$window" "$picture"
xdotool key Escape # It closes a message, and does nothing in a main window.
for _ in $(seq 20); do
    if ! kill -0 "$program" 2>/dev/null; then
        status=0
        wait "$program" || status=$?
        cat "$work/program.log" >&2
        exit "$status"
    fi
    sleep 0.1
done
