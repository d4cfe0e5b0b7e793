#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# picture.sh PICTURE PROGRAM [ARGUMENT...]: starts a program on a virtual display of its own, saves a picture of its
# window and ends it.
set -euo pipefail
picture=${1:?"usage: picture.sh PICTURE PROGRAM [ARGUMENT...]"}
shift

work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# The server picks a free display and tells its number.
exec 3<>"$work/display"
# It must not start anew when a client was the last one for a moment.
Xvfb -displayfd 3 -noreset -screen 0 1280x900x24 -nolisten tcp >"$work/xvfb.log" 2>&1 3>"$work/display" &
pids+=($!)
for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    sleep 0.1
done
DISPLAY=:$(tr -d '[:space:]' <"$work/display")
export DISPLAY
openbox >"$work/openbox.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do # Until the window manager is there.
    xdotool get_num_desktops >/dev/null 2>&1 && break
    sleep 0.1
done

# Settings of its own, in which the first start is over.
export XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
mkdir -p "$XDG_CONFIG_HOME/Ornbury Workshops"
printf '[misc]\nautoOpen=1\n' >"$XDG_CONFIG_HOME/Ornbury Workshops/Ordelin.ini"
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
