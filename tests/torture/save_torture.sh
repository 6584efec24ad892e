#!/usr/bin/env bash
# save_torture.sh KIRTO_CLI KIRTO_SAMPLE short|whole
#
# Saves over an existing file while system calls fail, the program is killed, the disk is full or a
# file may not grow, and demands every time that
#   - the file is the old one or the new one, byte for byte,
#   - the program says that it succeeded only if the file is the new one,
#   - nothing else is left in the folder, unless the program was killed.
# Calls are made to fail by strace, so the kernel's own answers are what the program sees.
set -euo pipefail

cli=$(realpath "$1")
sample=$(realpath "$2")
size=$3

work=$(mktemp -d)
trap 'umount -q "$work/small" 2>/dev/null || true; rm -rf "$work"' EXIT
export HOME=$work/home XDG_CONFIG_HOME=$work/home LC_ALL=C
mkdir -p "$work/home" "$work/folder"
document=$work/folder/doc.gif

"$sample" "$work/old.gif"
"$cli" --quiet --open "$work/old.gif" --reverse --save "$work/new.gif"

cases=0
failures=0
all_failures=0

# end_row WHAT: tells how many cases there were since the row before, and adds the row to the table.
end_row() {
    echo "$1: $cases cases, $failures failures"
    if [ -n "${KIRTO_TORTURE_TABLE:-}" ]; then
        printf '%s\t%s\t%s\n' "$1" "$cases" "$failures" >>"$KIRTO_TORTURE_TABLE"
    fi
    all_failures=$((all_failures + failures))
    cases=0
    failures=0
}

save() { "$cli" --quiet --open "$work/old.gif" --reverse --save "$document"; }

reset() {
    find "$work/folder" -mindepth 1 -delete
    cp "$work/old.gif" "$document"
}

# check STATUS KILLED WHAT: judges the folder after one save.
check() {
    local status=$1 killed=$2 what=$3 state=torn litter
    cases=$((cases + 1))
    if cmp -s "$document" "$work/new.gif"; then state=new; fi
    if cmp -s "$document" "$work/old.gif"; then state=old; fi
    litter=$(find "$work/folder" -mindepth 1 ! -name doc.gif | wc -l)
    if [ "$state" = torn ] || { [ "$status" = 0 ] && [ "$state" = old ]; } ||
        { [ "$killed" = no ] && [ "$litter" != 0 ]; }; then
        failures=$((failures + 1))
        echo "FAILED: $what: exit $status, file $state, $litter other files"
    fi
}

# inject CALL WHEN ACTION KILLED: one save with strace's ACTION on the calls that WHEN names.
inject() {
    local status=0
    reset
    strace -f -qq -o /dev/null -e trace="$1" -e inject="$1:$3:when=$2" \
        "$cli" --quiet --open "$work/old.gif" --reverse --save "$document" >"$work/out" 2>&1 ||
        status=$?
    check "$status" "$4" "$1 $3 when $2"
}

# The number of times that one save makes the call.
count_calls() {
    reset
    strace -f -qq -o "$work/trace" -e trace="$1" \
        "$cli" --quiet --open "$work/old.gif" --reverse --save "$document" >"$work/out" 2>&1
    grep -c "$1(" "$work/trace" || true
}

failing_calls() {
    local errors=(ENOSPC) call count first n error
    [ "$size" = whole ] && errors=(ENOSPC EIO EROFS EDQUOT)
    for call in openat write pwrite64 fsync linkat renameat fchmod; do
        count=$(count_calls "$call")
        first=1
        [ "$size" = short ] && [ "$count" -gt 6 ] && first=$((count - 5))
        for n in $(seq "$first" "$count"); do
            for error in "${errors[@]}"; do
                inject "$call" "$n" "error=$error" no
                inject "$call" "$n+" "error=$error" no
            done
            # The shell's own word on the killed program is of no interest.
            inject "$call" "$n" "signal=KILL" yes 2>/dev/null
        done
    done
}

random_kills() {
    local runs=10 status pid
    [ "$size" = whole ] && runs=2000
    for _ in $(seq "$runs"); do
        reset
        status=0
        save >"$work/out" 2>&1 &
        pid=$!
        sleep "0.$(printf '%03d' $((RANDOM % 120)))"
        # The subshell of the function is the program's parent; both go.
        pkill -9 -P "$pid" 2>/dev/null || true
        kill -9 "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || status=$?
        check "$status" yes "kill at random"
    done
}

# Files may grow to so many KiB only; the last write before the limit is a short one.
limited_files() {
    local kib status
    for kib in 0 1 2 4 8 16 24 32 40; do
        reset
        status=0
        (ulimit -f "$kib" && save) >"$work/out" 2>&1 || status=$?
        check "$status" no "files limited to $kib KiB"
    done
}

# A full disk: the old file fits a small one, old and new together do not.
full_disk() {
    local kib status
    mkdir -p "$work/small"
    kib=$(($(stat -c %s "$work/old.gif") / 1024 + 12))
    if ! mount -t tmpfs -o "size=${kib}k" none "$work/small" 2>/dev/null; then
        echo "skipped: no small disk can be mounted here"
        return
    fi
    status=0
    document=$work/small/doc.gif
    cp "$work/old.gif" "$document"
    save >"$work/out" 2>&1 || status=$?
    check "$status" no "full disk of $kib KiB"
    [ "$status" != 0 ] || { failures=$((failures + 1)) && echo "FAILED: the full disk took the file"; }
    document=$work/folder/doc.gif
    umount "$work/small"
}

# What is on the disk after a power failure follows from the order of the calls: the data is synced
# before the new file takes the old one's name, and the folder after it.
power_loss_order() {
    reset
    strace -f -qq -y -o "$work/trace" -e trace=pwrite64,fsync,rename,renameat,renameat2 \
        "$cli" --quiet --open "$work/old.gif" --reverse --save "$document" >"$work/out" 2>&1
    cases=$((cases + 1))
    if ! awk -v folder="$work/folder" '
        /pwrite64\(/ && index($0, folder "/") { written = NR }
        /fsync\(/ && index($0, folder "/") { synced = NR }
        /rename/ && index($0, "doc.gif") { renamed = NR }
        /fsync\(/ && index($0, "<" folder ">") { folder_synced = NR }
        END { exit !(written && synced > written && renamed > synced && folder_synced > renamed) }
        ' "$work/trace"; then
        failures=$((failures + 1))
        echo "FAILED: the order of write, sync and rename"
        cat "$work/trace"
    fi
}

if strace -qq -o /dev/null true 2>/dev/null; then
    failing_calls
    end_row "saves with a call that fails or kills"
    power_loss_order
    end_row "orders of write, sync and rename"
else
    echo "skipped: strace can't be used here"
fi
random_kills
end_row "saves killed at random"
limited_files
end_row "saves with a limit to files"
full_disk
if [ "$cases" != 0 ]; then end_row "saves on a full disk"; fi
[ "$all_failures" = 0 ]
