#!/usr/bin/env python3
"""Counts the instructions of the kernels and compares them with the counts on record.

usage: count_instructions.py PROGRAM COUNTS COMPILER [--record]

Fails when a kernel takes over 5 % more than its count in the file COUNTS. The compiler is named as
the file's first line names the one that the counts are from; with another one, or without valgrind,
the counts say nothing, and the exit status is 77. --record writes the file instead.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
TOLERANCE = 0.05
HEADING = "# Instructions of the kernels, compiled by "

# The C library also has variants for features of the processor.
PLAIN_LIBRARY = "glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX2,-AVX,-ERMS,-FSRM,-SSSE3,-SSE4_1,-SSE4_2"


def count(program):
    """The instructions of each kernel by its name."""
    with tempfile.TemporaryDirectory() as folder:
        prefix = Path(folder) / "counts"
        subprocess.run(
            ["valgrind", "--tool=callgrind", "--collect-atstart=no", "--quiet",
             f"--callgrind-out-file={prefix}", program],
            check=True, env={**os.environ, "GLIBC_TUNABLES": PLAIN_LIBRARY})
        counts = {}
        for dump in Path(folder).iterdir():
            text = dump.read_text()
            name = re.search(r"^desc: Trigger: Client Request: (\w+)$", text, re.MULTILINE)
            if name:
                total = re.search(r"^summary: (\d+)", text, re.MULTILINE)
                counts[name.group(1)] = int(total.group(1))
        return counts


def record(path, compiler, counts):
    lines = [f"{HEADING}{compiler}"] + [f"{name} {counts[name]}" for name in sorted(counts)]
    path.write_text("\n".join(lines) + "\n")


def compare(recorded, counts):
    """Prints each kernel; returns the names of those that fail."""
    failed = []
    for name in sorted(recorded.keys() | counts.keys()):
        if name not in recorded or name not in counts:
            print(f"{name}: {'not on record' if name in counts else 'on record, but not counted'}")
            failed.append(name)
            continue
        growth = counts[name] / recorded[name] - 1
        print(f"{name}: {counts[name]} instructions, {recorded[name]} on record ({growth:+.1%})")
        if growth > TOLERANCE:
            failed.append(name)
        if growth < -TOLERANCE:
            print(f"{name}: faster; the target record_instruction_counts puts that on record")
    return failed


def main():
    program, path, compiler = sys.argv[1], Path(sys.argv[2]), sys.argv[3]
    if not shutil.which("valgrind"):
        print("Skipped: there is no valgrind.")
        return SKIPPED
    if sys.argv[4:] == ["--record"]:
        record(path, compiler, count(program))
        print(path.read_text(), end="")
        return 0
    heading, *lines = path.read_text().splitlines()
    if heading != HEADING + compiler:
        print(f"Skipped: this is {compiler}, the counts are from {heading.removeprefix(HEADING)}.")
        return SKIPPED
    recorded = {name: int(number) for name, number in (line.split() for line in lines)}
    failed = compare(recorded, count(program))
    if failed:
        print(f"Not within {TOLERANCE:.0%} of what is on record: {', '.join(failed)}. If that is "
              "meant, build the target record_instruction_counts.")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
