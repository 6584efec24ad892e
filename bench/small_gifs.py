#!/usr/bin/env python3
"""Compares how small exported GIF files get with those of gifsicle that are as near to photographs.

    bench/small_gifs.py BUILD_FOLDER [--frames N] [--clip RAW]

As bench/quality.py, whose clip and measures these are. Exports of fewer colors and of loss are
compared with the smallest file that gifsicle -O3 makes with --lossy and --colors, of the export
without loss, whose SSIM is no lower.
"""

import argparse
import tempfile
from pathlib import Path

from quality import PAUSE, Contest, run

LOSSES = (0, 10, 20, 40, 70, 100, 150, 200)
COLORS = (256, 128, 64, 32)
GIFSICLE_LOSSES = (0, 5, 10, 20, 30, 40, 60, 80, 120, 160, 200)


class SmallContest(Contest):
    def export(self, dither, colors, loss, name="ours.gif"):
        gif = self.folder / name
        inserted = [word for photo in self.photos for word in ("--insert", photo)]
        choices = (f"dither={dither}", f"colors={colors}", f"loss={loss}")
        run(self.build / "kirto-cli", "--quiet", *inserted, "--pause", PAUSE,
            *[word for choice in choices for word in ("--export-set", choice)], "--export", gif)
        return gif

    def ours(self, dither, colors, loss):
        gif = self.export(dither, colors, loss)
        return self.measured(f"dither={dither} colors={colors} loss={loss}", gif)

    def gifsicle(self, dither):
        source = self.export(dither, 256, 0, "source.gif")
        gif = self.folder / "theirs.gif"
        for colors in COLORS:
            for loss in GIFSICLE_LOSSES:
                words = [f"--lossy={loss}"] if loss else []
                words += [f"--colors={colors}"] if colors < 256 else []
                run("gifsicle", "-O3", *words, source, "-o", gif)
                yield self.measured(f"of dither={dither}: -O3 {' '.join(words)}", gif)


def smallest(candidates, ssim):
    return min((each for each in candidates if each and each[2] >= ssim),
               key=lambda each: each[1], default=None)


def table(contest):
    theirs = [each for dither in ("none", "diffusion") for each in contest.gifsicle(dither)]
    yield "| export | bytes | SSIM | gifsicle | bytes | SSIM | ours of theirs |"
    yield "|---|---|---|---|---|---|---|"
    for dither in ("none", "diffusion"):
        for colors in COLORS:
            for loss in LOSSES:
                ours = contest.ours(dither, colors, loss)
                if not ours:
                    continue
                best = smallest(theirs, ours[2])
                peer = (f"| {best[0]} | {best[1]:,} | {best[2]:.4f} | {ours[1] / best[1]:.0%} |"
                        if best else "| none so near | | | |")
                yield f"| {ours[0]} | {ours[1]:,} | {ours[2]:.4f} {peer}"


def main():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("build", type=Path)
    parser.add_argument("--frames", type=int, default=12)
    parser.add_argument("--clip", type=Path)
    chosen = parser.parse_args()
    clip = chosen.clip or chosen.build / "bench-files" / "clip.raw"
    with tempfile.TemporaryDirectory(prefix="kirto-small-gifs-") as folder:
        for line in table(SmallContest(chosen.build, clip, chosen.frames, Path(folder))):
            print(line, flush=True)


if __name__ == "__main__":
    main()
