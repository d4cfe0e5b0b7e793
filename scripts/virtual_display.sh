# SPDX-License-Identifier: MIT
# To be sourced: starts a virtual display of its own with a window manager, and settings of its own in which the first
# start of the program is over. Sets $work, a folder that goes at the end; processes in "pids" are ended then.
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
export DISPLAY XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
openbox >"$work/openbox.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do # Until the window manager is there.
    xdotool get_num_desktops >/dev/null 2>&1 && break
    sleep 0.1
done

# settings [TEXT]: the settings of the next start, with TEXT (with escapes) behind those that are needed. It recovers
# nothing.
settings() {
    rm -rf "$XDG_CONFIG_HOME" "$XDG_STATE_HOME"
    mkdir -p "$XDG_CONFIG_HOME/Ornbury Workshops"
    printf '[misc]\nautoOpen=1\n%b' "${1:-}" >"$XDG_CONFIG_HOME/Ornbury Workshops/Ordelin.ini"
}
