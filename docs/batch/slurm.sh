#!/bin/sh
#SBATCH --job-name=shrink
#SBATCH --array=0-9
#SBATCH --cpus-per-task=1
#SBATCH --requeue
# A tenth of the files each, in any order and as often as one likes.
export KIRTO_THREADS=1
find in -name '*.gif' | sort | awk -v n="$SLURM_ARRAY_TASK_ID" 'NR % 10 == n' |
    xargs -r -d '\n' ./shrink.sh
status=$?
# xargs says 123 for whatever its command has ended with but 255.
[ "$status" -ne 123 ] || scontrol requeue "$SLURM_JOB_ID"
exit "$status"
