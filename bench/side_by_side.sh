#!/usr/bin/env bash
# Times whole jobs of kirto-cli, gifsicle and ffmpeg on the same files: CPU seconds of the whole
# process, the median of RUNS runs, or of as many as begin within ten seconds. Prints a table in
# Markdown.
set -euo pipefail

usage="usage: bench/side_by_side.sh BUILD_FOLDER [RUNS]"
readonly build=${1:?$usage} runs=${2:-5} patience=10

[[ $runs =~ ^[1-9][0-9]*$ ]] || { echo "$usage" >&2; exit 2; }
for program in gifsicle ffmpeg; do
    command -v "$program" >/dev/null || { echo "side_by_side: $program is missing" >&2; exit 1; }
done

work=$(mktemp -d)
readonly work
trap 'rm -rf "$work"' EXIT

# The user's settings have no say here.
export XDG_CONFIG_HOME=$work

kirto() {
    "$build/kirto-cli" --quiet "$@"
}

ffmpeg_quietly() {
    ffmpeg -hide_banner -loglevel error -nostdin -y "$@"
}

# The 216 web-safe colors as ffmpeg takes a palette: a picture of 16 x 16 pixels.
write_web_palette() {
    awk 'BEGIN {
        print "P3 16 16 255"
        for (i = 0; i < 256; i++)
            if (i < 216)
                print 255 - 51 * int(i / 36), 255 - 51 * (int(i / 6) % 6), 255 - 51 * (i % 6)
            else
                print "0 0 0"
    }' >"$work/web.ppm"
}

# Each job reads $1 and writes $2.
save_kirto() { kirto --open "$1" --save "$2"; }
save_gifsicle() { gifsicle -U "$1" -o "$2"; }
save_ffmpeg() {
    ffmpeg_quietly -i "$1" \
        -lavfi 'split[a][b];[a]palettegen[p];[b][p]paletteuse=dither=none' "$2"
}

dither_kirto() { kirto --open "$1" --palette web-safe --dither on --save "$2"; }
dither_gifsicle() { gifsicle -U --use-colormap web --dither "$1" -o "$2"; }
dither_ffmpeg() {
    ffmpeg_quietly -i "$1" -i "$work/web.ppm" -lavfi 'paletteuse=dither=floyd_steinberg' "$2"
}

# Kirto has no palettes of a chosen size: this job is the others' alone.
reduce_gifsicle() { gifsicle -U --colors 64 --dither "$1" -o "$2"; }
reduce_ffmpeg() {
    ffmpeg_quietly -i "$1" -lavfi \
        'split[a][b];[a]palettegen=max_colors=64[p];[b][p]paletteuse=dither=floyd_steinberg' "$2"
}

frames_of() {
    gifsicle --info "$1" 2>/dev/null | grep -c '^  + image'
}

# cpu_time COMMAND...: user and system time of one run, in seconds
cpu_time() {
    local TIMEFORMAT='%3U %3S'
    { time "$@" >/dev/null 2>"$work/errors"; } 2>&1 | awk '{ printf "%.3f\n", $1 + $2 }'
}

# median_time JOB ANIMATION: of all runs; a job that fails or loses frames ends the script
median_time() {
    local source=$work/$2.gif target=$work/result.gif end=$((SECONDS + patience)) i
    for ((i = 0; i < runs && (i == 0 || SECONDS < end); i++)); do
        rm -f "$target"
        cpu_time "$1" "$source" "$target" || { cat "$work/errors" >&2; return 1; }
    done | sort -n | awk '{ times[NR] = $1 } END { print times[int((NR + 1) / 2)] }'
    [[ $(frames_of "$target") == "$(frames_of "$source")" ]] || {
        echo "side_by_side: $1 does not keep the frames of $2" >&2
        return 1
    }
}

ratio() {
    awk -v own="$1" -v peer="$2" 'BEGIN { printf "%.3f s (%.1f x)", peer, own / peer }'
}

# row NAME JOB ANIMATION
row() {
    local name=$1 job=$2 animation=$3 own=- cells=() program time
    if declare -F "${job}_kirto" >/dev/null; then
        own=$(median_time "${job}_kirto" "$animation")
    fi
    for program in gifsicle ffmpeg; do
        time=$(median_time "${job}_$program" "$animation")
        if [[ $own == - ]]; then
            cells+=("$time s")
        else
            cells+=("$(ratio "$own" "$time")")
        fi
    done
    [[ $own == - ]] || own="$own s"
    printf '| %-26s | %-8s | %8s | %-17s | %-17s |\n' "$name" "$animation" "$own" "${cells[@]}"
}

"$build/kirto_bench_files" "$work"
write_web_palette

echo "CPU time of whole jobs; in brackets, Kirto's time as a multiple of the other's."
echo
printf '| %-26s | %-8s | %8s | %-17s | %-17s |\n' job animation kirto gifsicle ffmpeg
echo '|---|---|---|---|---|'
for animation in small sprites screen changes photo large; do
    row 'open and save' save "$animation"
done
# With one palette for all frames, so that the palette of the file is really replaced.
for animation in sprites screen photo large; do
    row 'dither to web-safe colors' dither "$animation"
done
for animation in sprites photo large; do
    row 'dither to 64 colors' reduce "$animation"
done
