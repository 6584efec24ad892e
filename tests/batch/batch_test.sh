#!/usr/bin/env bash
# batch_test.sh KIRTO_CLI KIRTO_SAMPLE SHRINK: many files by GNU parallel, with workers killed at random
# moments: every output that is there is whole, nothing lies beside it, and the same command given
# again does what is left.
set -euo pipefail

cli=$1
sample=$2
shrink=$3
readonly files=500 kills=40
work=$(mktemp -d)
readonly cli sample shrink work
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config KIRTO_THREADS=1
PATH=$work/bin:$PATH
cd "$work"
mkdir bin in out
cp "$cli" bin/kirto-cli

fail() {
    printf 'batch: %s\n' "$*" >&2
    exit 1
}

# Runs the jobs; the number of those that failed is no concern of this.
run_jobs() {
    find in -name '*.gif' | sort |
        parallel --will-cite -j 4 --joblog jobs.log "$shrink" >/dev/null 2>errors.log || true
}

# Kills one of the workers, which nobody else runs from this folder.
kill_one() {
    local worker
    worker=$(find /proc -maxdepth 2 -name exe -lname "$PWD/bin/kirto-cli" 2>/dev/null | head -n 1)
    worker=${worker#/proc/}
    [[ -n $worker ]] && kill -KILL "${worker%/exe}" 2>/dev/null
}

"$sample" first.gif
"$cli" --quiet --open first.gif --select 0-4 --save small.gif
"$cli" --quiet --open small.gif --resize 50% --save expected.gif
for ((i = 0; i < files; ++i)); do
    cp small.gif "in/$i.gif"
done

run_jobs &
jobs=$!
killed=0
while ((killed < kills)) && kill -0 "$jobs" 2>/dev/null; do
    if kill_one; then killed=$((killed + 1)); fi
done
wait "$jobs"
((killed > 0)) || fail "no worker was there to be killed"

for output in out/*; do
    cmp -s "$output" expected.gif || fail "$output is not whole after $killed kills"
done
[[ -z $(find out -name '.*' -type f) ]] || fail "killed workers have left files: $(ls -A out)"
first=$(find out -name '*.gif' | wc -l)

run_jobs
for ((i = 0; i < files; ++i)); do
    cmp -s "out/$i.gif" expected.gif || fail "out/$i.gif is missing or not whole"
done
[[ -z $(awk 'NR > 1 && $7 != 0' jobs.log) ]] || fail "a job has failed: $(cat errors.log)"
printf '%s files, %s workers killed, %s whole files after that, all in the end\n' \
    "$files" "$killed" "$first"
