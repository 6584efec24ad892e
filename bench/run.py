#!/usr/bin/env python3
"""Lets the engine compete with its peers and writes the tables of docs/benchmarks.md.

usage: bench/run.py BUILD_FOLDER [--quick] [--only PATTERN]

--quick takes two minutes: smaller files, three rounds; the document stays as it is. --only measures
the rows whose names have the pattern, a regular expression, and prints them.
"""

import argparse
import re
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

# The source tree stays as it is.
sys.dont_write_bytecode = True

import editor  # noqa: E402
import growth  # noqa: E402
import machine  # noqa: E402
import report  # noqa: E402
from contest import Failed, Track  # noqa: E402
from rows import Files, all_rows  # noqa: E402

PROJECT = Path(__file__).resolve().parent.parent


def say(text):
    print(f"--> {text}", flush=True)


def make_pictures(files):
    """The photographs as other programs store them."""
    photos = [f"photo{i}" for i in range(4 if files.quick else 10)]
    names = [f"{photo}.{kind}" for photo in photos for kind in ("jpg", "png")] + ["large.jpg"]

    def convert(name):
        source = files.path(f"{name.partition('.')[0]}.ppm")
        subprocess.run([files.magick, source, "-quality", "90", files.path(name)], check=True)

    with ThreadPoolExecutor(2) as pool:
        list(pool.map(convert, names))


def make_files(files):
    say("writing the files")
    files.work.mkdir(parents=True, exist_ok=True)
    command = [str(files.build / "kirto_bench_files"), str(files.work)]
    subprocess.run(command + (["--quick"] if files.quick else []), check=True)
    make_pictures(files)


def measure(row, track, files):
    """Compares what comes of a row, then times it on one core and on two. A line, and another one
    where sizes count, too."""
    try:
        note = row.check(track) if row.check else None
        results = track.compare(row.ours, row.peer, row.cores, row.rounds or files.rounds)
    except Failed as failure:
        return [report.Line(each, error=str(failure)) for each in (row, row.sizes) if each]
    lines = [report.Line(row, results, note=note)]
    if row.sizes:
        sizes = tuple(Path(entrant.command[-1]).stat().st_size
                      for entrant in (row.ours, row.peer))
        lines.append(report.Line(row.sizes, {1: sizes}))
    return lines


def measure_rows(rows, track, files):
    lines = []
    for row in rows:
        start = time.monotonic()
        measured = measure(row, track, files)
        text = "".join(line.markdown() for line in measured).rstrip()
        print(text, f"{time.monotonic() - start:.0f} s", flush=True)
        lines += measured
    return lines


def measure_growth(track, files):
    say("growth")
    return [(series, growth.measure(track, series)) for series in growth.all_series(files)]


def measure_editor(files):
    say("the editor")
    try:
        return editor.measure(files)
    except Failed as failure:
        return f"Not timed: {failure}\n"


def parse(arguments):
    parser = argparse.ArgumentParser(prog="./dev bench")
    parser.add_argument("build", type=Path)
    parser.add_argument("--quick", action="store_true", help="take two minutes")
    parser.add_argument("--only", metavar="PATTERN", help="measure these rows only")
    return parser.parse_args(arguments)


def main():
    chosen = parse(sys.argv[1:])
    start = time.monotonic()
    build = chosen.build.resolve()
    files = Files(build, build / "bench-files", chosen.quick)
    described = machine.describe(build)
    described.append(f"Rounds: {files.rounds}" + (", smaller files" if files.quick else ""))
    make_files(files)
    track = Track(files.work)
    rows = all_rows(files)
    if chosen.only:
        rows = [row for row in rows if row.has(re.compile(chosen.only))]
    say(f"{len(rows)} rows")
    lines = measure_rows(rows, track, files)
    whole = not chosen.only
    measured = measure_growth(track, files) if whole else []
    shown = measure_editor(files) if whole else ""
    text = report.document(described, lines, measured, shown, time.monotonic() - start)
    print(text)
    if whole and not chosen.quick:
        report.put_into(PROJECT / "docs/benchmarks.md", text)
    return 1 if any(line.error for line in lines) else 0


if __name__ == "__main__":
    sys.exit(main())
