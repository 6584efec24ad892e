#!/usr/bin/env bash
# run.sh BUILD FRAMES FRAMES: kirto-waits in a home folder of its own.
set -euo pipefail

build=$(cd "$1" && pwd)
readonly build
shift
work=$(mktemp -d)
readonly work
trap 'rm -rf "$work"' EXIT

mkdir -p "$work/home" "$work/run" "$work/desk"
chmod 700 "$work/run"
export HOME=$work/home XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/home/config
export XDG_STATE_HOME=$work/home/state XDG_DATA_HOME=$work/home/data BROWSER=true
unset DISPLAY WAYLAND_DISPLAY
cd "$work/desk"
"$build/kirto-waits" "$@"
