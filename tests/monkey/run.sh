#!/usr/bin/env bash
# run.sh BUILD SEED ACTIONS: random actions on the editor, in a home folder of its own, with sound
# files, a damaged one and text that is none. Says how long the windows took to answer at most.
set -euo pipefail

build=$(cd "$1" && pwd)
seed=$2
actions=$3
readonly build seed actions
work=$(mktemp -d)
readonly work
trap 'rm -rf "$work"' EXIT

mkdir -p "$work/home" "$work/files" "$work/run" "$work/desk"
chmod 700 "$work/run"
export HOME=$work/home XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/home/config
export XDG_STATE_HOME=$work/home/state XDG_DATA_HOME=$work/home/data BROWSER=true
unset DISPLAY WAYLAND_DISPLAY
cd "$work/files"
"$build/kirto-sample" ball.gif
"$build/kirto-sample" walk.gif
"$build/kirto-cli" --quiet --open ball.gif --select 0 --save-frame image.png
"$build/kirto-cli" --quiet --open walk.gif --save-sheet sheet.png
head -c 3000 ball.gif >cut.gif
printf 'no animation at all' >text.gif
cd "$work/desk"
# The row of a table: what, how many, found.
row() {
    [[ -z ${KIRTO_TORTURE_TABLE:-} ]] ||
        printf 'random actions on the windows, seed %s\t%s\t%s\n' "$seed" "$actions" "$1" >>"$KIRTO_TORTURE_TABLE"
}
"$build/kirto-monkey" --seed "$seed" --actions "$actions" "$work"/files/* 2>"$work/errors" || {
    status=$?
    row 1
    grep -v 'This plugin does not support\|GifLoad\|Created by' "$work/errors" >&2 || true
    exit "$status"
}
row 0
