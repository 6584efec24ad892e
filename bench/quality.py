#!/usr/bin/env python3
"""Compares how near to photographs animations of 256 colors a frame come, at equal file size.

    bench/quality.py BUILD_FOLDER [--frames N] [--clip RAW]

BUILD_FOLDER: of an optimised build, with kirto-cli in it. --clip: pixels of 640 x 480, blue, green,
red and 255 each, as kirto_bench_files writes them (BUILD_FOLDER/bench-files/clip.raw), N of which
are taken (12), at half that size. Needs ffmpeg; gifski is left out where it is neither in the path
nor what the environment variable GIFSKI names (npm pack gifski brings a program for Linux).

Each way that we save is compared with the best that the others do in no more bytes: their settings
are tried from the most colors, or the best quality, downward. SSIM is ffmpeg's, over red, green and
blue; the error is the mean of the absolute differences of the components, 0 to 255.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

WIDTH, HEIGHT, PAUSE = 320, 240, 8
FFMPEG = ("ffmpeg", "-hide_banner", "-loglevel", "error", "-nostdin", "-y")
# A file may be so much larger and still count as of the same size.
TOLERANCE = 1.005


def run(*command):
    return subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE)


class Contest:
    def __init__(self, build, clip, frames, folder):
        self.build, self.folder = build, folder
        self.pattern = folder / "photo%03d.png"
        run(*FFMPEG, "-f", "rawvideo", "-pix_fmt", "bgr0", "-s", "640x480", "-r", 25, "-i", clip,
            "-frames:v", frames, "-vf", f"scale={WIDTH}:{HEIGHT}:flags=area", "-pix_fmt", "rgb24",
            "-start_number", 0, self.pattern)
        self.photos = sorted(folder.glob("photo*.png"))
        self.reference = self.pixels(("-i", self.pattern))

    def pixels(self, source):
        return run(*FFMPEG, *source, "-fps_mode", "passthrough", "-f", "rawvideo", "-pix_fmt",
                   "rgb24", "-").stdout

    def measured(self, name, gif):
        """The size, the SSIM and the mean error of a file; None where frames were left out."""
        pixels = self.pixels(("-ignore_loop", 1, "-i", gif))
        if len(pixels) != len(self.reference):
            return None
        error = sum(map(abs, map(int.__sub__, pixels, self.reference))) / len(pixels)
        shown, wanted = self.folder / "shown.raw", self.folder / "wanted.raw"
        shown.write_bytes(pixels)
        wanted.write_bytes(self.reference)
        raw = ("-f", "rawvideo", "-pix_fmt", "rgb24", "-s", f"{WIDTH}x{HEIGHT}", "-r", 25, "-i")
        log = run("ffmpeg", "-hide_banner", "-nostdin", *raw, shown, *raw, wanted, "-lavfi",
                  "[0]format=gbrp[a];[1]format=gbrp[b];[a][b]ssim", "-f", "null", "-").stderr
        ssim = float(re.search(rb"All:([0-9.]+)", log).group(1))
        return name, gif.stat().st_size, ssim, error

    def ours(self, dithering, joint):
        gif = self.folder / "ours.gif"
        inserted = [word for photo in self.photos for word in ("--insert", photo)]
        run(self.build / "kirto-cli", "--quiet", *inserted, "--pause", PAUSE, "--set",
            f"animation_dithering={dithering}", "--set",
            f"animation_jointcolors={'true' if joint else 'false'}", "--faithful", "--save", gif)
        how = ("no dithering", "diffusion", "pattern")[dithering]
        return self.measured(f"{how}, {'joint colors' if joint else 'colors of each frame'}", gif)

    def theirs_with_ffmpeg(self):
        gif = self.folder / "ffmpeg.gif"
        for colors in (256, 192, 128, 96, 64, 48, 32):
            for mode, new in (("full", 0), ("single", 1)):
                for dither in ("sierra2_4a", "floyd_steinberg", "bayer:bayer_scale=3", "none"):
                    graph = (f"split[a][b];[a]palettegen=max_colors={colors}:stats_mode={mode}[p];"
                             f"[b][p]paletteuse=new={new}:dither={dither}")
                    run(*FFMPEG, "-r", 12.5, "-i", self.pattern, "-filter_complex", graph, gif)
                    yield self.measured(f"{colors} colors, {mode}, {dither}", gif)

    def theirs_with_gifski(self, program):
        gif = self.folder / "gifski.gif"
        for quality in range(100, 19, -8):
            run(program, "--quiet", "--fps", 12, "--quality", quality, "-o", gif, *self.photos)
            yield self.measured(f"quality {quality}", gif)


def best_within(candidates, size):
    """Of those in no more bytes the one with the highest SSIM; None where there is none."""
    return max((each for each in candidates if each and each[1] <= size * TOLERANCE),
               key=lambda each: each[2], default=None)


def row(side, measured):
    name, size, ssim, error = measured
    return f"| {side} | {name} | {size:,} | {ssim:.4f} | {error:.2f} |"


def table(contest, gifski):
    peers = {"ffmpeg": list(contest.theirs_with_ffmpeg())}
    if gifski:
        peers["gifski"] = list(contest.theirs_with_gifski(gifski))
    yield "| program | settings | bytes | SSIM | mean error |"
    yield "|---|---|---|---|---|"
    for joint in (False, True):
        for dithering in (0, 1, 2):
            ours = contest.ours(dithering, joint)
            yield row("**Kirto**", ours)
            for peer, candidates in peers.items():
                best = best_within(candidates, ours[1])
                yield row(peer, best) if best else f"| {peer} | none so small | | | |"


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("build", type=Path)
    parser.add_argument("--frames", type=int, default=12)
    parser.add_argument("--clip", type=Path)
    chosen = parser.parse_args()
    clip = chosen.clip or chosen.build / "bench-files" / "clip.raw"
    gifski = os.environ.get("GIFSKI") or shutil.which("gifski")
    if not gifski:
        print("gifski is missing, and left out", file=sys.stderr)
    with tempfile.TemporaryDirectory(prefix="kirto-quality-") as folder:
        contest = Contest(chosen.build, clip, chosen.frames, Path(folder))
        for line in table(contest, gifski):
            print(line, flush=True)


if __name__ == "__main__":
    main()
