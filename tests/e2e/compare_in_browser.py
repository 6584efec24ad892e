#!/usr/bin/env python3
"""What a web browser makes of a GIF: every picture, pixel by pixel, and its duration.

    compare_in_browser.py FILE.gif    prints them as JSON, and fails where ImageMagick, which is
                                      told to put the frames on one canvas, gets other pictures

The browser is Chromium, without a window.
"""

import argparse
import hashlib
import json
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "oracle"))
import decode_in_browser  # noqa: E402

DEADLINE = 120.0  # seconds

PROGRAMS = (decode_in_browser.PROGRAM, "convert")


class Frame:
    """A picture of an animation: size, duration in milliseconds, and RGBA bytes."""

    def __init__(self, width, height, milliseconds, rgba):
        self.width, self.height = width, height
        self.milliseconds = milliseconds
        self.rgba = rgba

    def description(self):
        return {"width": self.width, "height": self.height, "milliseconds": self.milliseconds,
                "sha256": hashlib.sha256(self.rgba).hexdigest()}


def _rgba(pixels):
    """Blue, green, red and alpha in the other order."""
    turned = bytearray(pixels)
    turned[0::4], turned[2::4] = pixels[2::4], pixels[0::4]
    return bytes(turned)


def browser_frames(path):
    """The frames of a GIF as Chromium shows them."""
    decoded = decode_in_browser.decode([path], keep=_rgba)[0]
    if decoded.error:
        raise AssertionError(f"the browser can't decode {path}: {decoded.error}")
    return [Frame(width, height, microseconds / 1000, rgba)
            for width, height, microseconds, rgba in decoded.frames]


def imagemagick_frames(path):
    """The frames of a GIF as ImageMagick puts them on the canvas."""
    def convert(*arguments):
        return subprocess.run(["convert", f"gif:{path}", "-coalesce", "-depth", "8", *arguments],
                              check=True, capture_output=True, timeout=DEADLINE).stdout
    frames = []
    rgba = convert("rgba:-")
    lines = convert("-format", "%w %h %T\n", "info:-").decode().split("\n")
    for width, height, hundredths in (map(int, line.split()) for line in lines if line):
        size = width * height * 4
        frames.append(Frame(width, height, hundredths * 10, rgba[:size]))
        rgba = rgba[size:]
    return frames


def differences(frames, others):
    """What distinguishes two lists of frames, a sentence each. Colours of wholly transparent pixels
    don't count, nobody sees them."""
    if len(frames) != len(others):
        return [f"{len(frames)} frames are not {len(others)}"]
    found = []
    for index, (frame, other) in enumerate(zip(frames, others)):
        size, other_size = (frame.width, frame.height), (other.width, other.height)
        if size != other_size:
            found.append(f"frame {index} has the sizes {size} and {other_size}")
            continue
        pixels = [(a, b) for a, b in zip(_pixels(frame), _pixels(other)) if a != b]
        if pixels:
            found.append(f"frame {index} differs in {len(pixels)} pixels, first {pixels[0]}")
        if frame.milliseconds != other.milliseconds:
            found.append(f"frame {index} lasts {frame.milliseconds} and {other.milliseconds} ms")
    return found


def _pixels(frame):
    pixels = zip(*[iter(frame.rgba)] * 4)
    return [pixel if pixel[3] else (0, 0, 0, 0) for pixel in pixels]


def missing_programs():
    return [program for program in PROGRAMS if shutil.which(program) is None]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("file", metavar="FILE.gif")
    path = parser.parse_args().file
    missing = missing_programs()
    if missing:
        sys.exit(f"compare_in_browser: {', '.join(missing)} is missing")
    frames = browser_frames(path)
    print(json.dumps([frame.description() for frame in frames], indent=1))
    found = differences(frames, imagemagick_frames(path))
    if found:
        sys.exit("\n".join(found))


if __name__ == "__main__":
    main()
