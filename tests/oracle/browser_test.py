#!/usr/bin/env python3
"""Compares what our reader makes of animations, by the rules of browsers, with what a browser does.

    browser_test.py DECODED_FRAMES [FOLDER]

DECODED_FRAMES is the program of that name. The animations are made at random, by hand and by saving
faithfully, and those of the corpus if there is one, or else those of the folder. Ends with 77, which stands for "skipped", where there is
no browser.

Durations and repetitions are those of the decoder. A player may make more of them: Chromium plays
frames of 10 ms and less as if they took 100 ms.
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

# The source tree stays as it is.
sys.dont_write_bytecode = True

import decode_in_browser  # noqa: E402

SKIPPED = 77
ANIMATIONS = 500
SAVED = 200

# What the browser does not decode, and we do.
OURS_ONLY = {
    "pygif__max-width.gif": "a row of 65535 pixels is more than it takes",
}
# What neither decodes.
NEITHER = {
    "pygif__max-codes.gif": "its code size is 12",
    "pygif__zero-size.gif": "it has no images",
}


def decode(program, paths):
    """What our reader and the browser, both at a time, make of each file."""
    with tempfile.TemporaryFile() as output:
        process = subprocess.Popen([program, *paths], stdout=output)
        theirs = decode_in_browser.decode(paths)
        if process.wait() != 0:
            raise AssertionError(f"{program} failed")
        output.seek(0)
        return [json.loads(line) for line in output], theirs


def difference(ours, theirs):
    """What distinguishes the two, a sentence; "" if nothing does."""
    if theirs.error:
        return theirs.error
    if ours["failed"]:
        return "we fail"
    if len(ours["frames"]) != theirs.frame_count:
        return f"{len(ours['frames'])} frames are not {theirs.frame_count}"
    for number, (our, their) in enumerate(zip(ours["frames"], theirs.frames)):
        if tuple(our) != their:
            return f"frame {number} is {our}, in the browser {their}"
    # To a browser everything that does not move repeats for ever.
    moves = theirs.frame_count > 1
    if moves and ours["repetitions"] != theirs.repetitions:
        return f"{ours['repetitions']} repetitions, in the browser {theirs.repetitions}"
    return ""


def corpus_animations():
    """The sound animations of the corpus, which is where KIRTO_CORPUS says or beside the checkout."""
    beside = pathlib.Path(__file__).parents[2] / "../shared/corpus"
    folder = pathlib.Path(os.environ.get("KIRTO_CORPUS", beside))
    return sorted((folder / "gif").glob("*.gif"))


def expected(path, ours, theirs):
    """Whether the two stand to each other as they should. Says why not."""
    found = difference(ours, theirs)
    if path.name in NEITHER:
        right = bool(theirs.error) and not ours["frames"]
    elif path.name in OURS_ONLY:
        right = bool(theirs.error) and not ours["failed"]
    else:
        right = not found
    if not right:
        print(f"{path}: {found}")
    return right


def main():
    program, *folder = sys.argv[1:]
    if decode_in_browser.is_missing():
        print("skipped: chromium is missing")
        sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory(prefix="kirto-made-") as made:
        if folder:
            paths = sorted(pathlib.Path(folder[0]).glob("*.gif"))
        else:
            subprocess.run([program, "--make", str(ANIMATIONS), made], check=True)
            subprocess.run([program, "--save", str(SAVED), made], check=True)
            paths = sorted(pathlib.Path(made).iterdir()) + corpus_animations()
        ours, theirs = decode(program, paths)
    right = sum(expected(*each) for each in zip(paths, ours, theirs))
    frames = sum(len(each.frames) for each in theirs)
    print(f"{right} of {len(paths)} animations as expected, {frames} frames in the browser")
    sys.exit(right != len(paths))


if __name__ == "__main__":
    main()
