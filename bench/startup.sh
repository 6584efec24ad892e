#!/usr/bin/env bash
# Times the editor's start beside those of an empty window of the same toolkit and of a window with
# one word in it, from the start of the process until the window stands painted on an X server of its
# own; then counts the CPU time that the editor takes while nobody touches it. Runs alternate; medians
# are printed, in Markdown.
set -euo pipefail

usage="usage: bench/startup.sh BUILD_FOLDER [RUNS]"
readonly build=${1:?$usage} runs=${2:-11} settle_seconds=3 idle_seconds=10

[[ $runs =~ ^[1-9][0-9]*$ ]] || { echo "$usage" >&2; exit 2; }
command -v Xvfb >/dev/null || { echo "startup: Xvfb is missing" >&2; exit 1; }

work=$(mktemp -d)
readonly work
processes=()
clean_up() {
    kill "${processes[@]}" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT

# The user's desktop and settings have no say here.
export HOME=$work XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
export DBUS_SESSION_BUS_ADDRESS=disabled:
unset XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE WAYLAND_DISPLAY

# Small enough for any window to cover its middle.
start_server() {
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
    processes+=($!)
    read -r DISPLAY <"$work/display"
    export DISPLAY=:$DISPLAY
}

time_to_window() {
    "$build/kirto_time_to_window" "$@"
}

median() {
    sort -n | awk '{ values[NR] = $1 } END { print values[int((NR + 1) / 2)] }'
}

# CPU time of a process so far, in clock ticks. The name in brackets may hold spaces.
ticks_of() {
    sed 's/.*) //' "/proc/$1/stat" | awk '{ print $12 + $13 }'
}

# Milliseconds of CPU time that the editor takes while it is left alone.
idle_time() {
    local editor before after
    "$build/kirto" &
    editor=$!
    processes+=("$editor")
    sleep "$settle_seconds"
    before=$(ticks_of "$editor")
    sleep "$idle_seconds"
    after=$(ticks_of "$editor")
    idle=$(((after - before) * 1000 / $(getconf CLK_TCK)))
}

start_server
# What is read from the disk for the first time is nobody's merit.
time_to_window "$build/kirto_bare_window" >/dev/null
time_to_window "$build/kirto" >/dev/null
for ((i = 0; i < runs; i++)); do
    time_to_window "$build/kirto_bare_window" >>"$work/empty"
    time_to_window "$build/kirto_bare_window" Kirto >>"$work/word"
    time_to_window "$build/kirto" >>"$work/editor"
done
idle_time

awk -v empty="$(median <"$work/empty")" -v word="$(median <"$work/word")" \
    -v editor="$(median <"$work/editor")" -v runs="$runs" 'BEGIN {
    printf "| start to painted window, median of %d | ms | kirto takes |\n|---|---|---|\n", runs
    printf "| empty window | %.0f | %.2f x |\n", empty, editor / empty
    printf "| window with one word | %.0f | %.2f x |\n", word, editor / word
    printf "| kirto | %.0f | |\n", editor
}'
printf '\nCPU time of the editor in %d idle seconds: %d ms\n' "$idle_seconds" "$idle"
