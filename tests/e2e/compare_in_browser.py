#!/usr/bin/env python3
"""What a web browser makes of a GIF: every picture, pixel by pixel, and its duration.

    compare_in_browser.py FILE.gif    prints them as JSON, and fails where ImageMagick, which is
                                      told to put the frames on one canvas, gets other pictures

The browser is Chromium, without a window; the file and the page that decodes it come from a server
on this machine.
"""

import argparse
import base64
import contextlib
import hashlib
import http.server
import json
import os
import pathlib
import queue
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

DEADLINE = 120.0  # seconds; a browser's first start on a busy machine takes its time

PROGRAMS = ("chromium", "convert")

# The network is not used, so nothing may be looked up or updated.
CHROMIUM = ("chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic",
            "--disable-dev-shm-usage", "--no-first-run", "--disable-background-networking",
            "--disable-component-update", "--disable-sync")


class Frame:
    """A picture of an animation: size, duration in milliseconds, and RGBA bytes."""

    def __init__(self, width, height, milliseconds, rgba):
        self.width, self.height = width, height
        self.milliseconds = milliseconds
        self.rgba = rgba

    def description(self):
        return {"width": self.width, "height": self.height, "milliseconds": self.milliseconds,
                "sha256": hashlib.sha256(self.rgba).hexdigest()}


class _Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def __init__(self, animation):
        super().__init__(("127.0.0.1", 0), _Handler)
        page = pathlib.Path(__file__).with_suffix(".html")
        self.files = {"/": ("text/html", page.read_bytes()),
                      "/animation.gif": ("image/gif", animation)}
        self.results = queue.Queue()


class _Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        if self.path not in self.server.files:
            self.send_error(404)
            return
        kind, content = self.server.files[self.path]
        self.send_response(200)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self.send_response(204)
        self.end_headers()
        self.server.results.put(json.loads(body))

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def _browser(url):
    """Runs the browser on the page; it and its helpers are gone afterwards."""
    with tempfile.TemporaryDirectory(prefix="kirto-browser-", ignore_cleanup_errors=True) as profile:
        log = pathlib.Path(profile, "output")
        with open(log, "wb") as output:
            process = subprocess.Popen(
                [*CHROMIUM, "--remote-debugging-port=0", f"--user-data-dir={profile}", url],
                stdin=subprocess.DEVNULL, stdout=output, stderr=output, start_new_session=True)
        try:
            yield process, log
        finally:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def _wait_for_result(server, process, log):
    end = time.monotonic() + DEADLINE
    while True:
        with contextlib.suppress(queue.Empty):
            return server.results.get(timeout=0.2)
        if process.poll() is not None or time.monotonic() > end:
            raise AssertionError("the browser gave no answer: " + log.read_text(errors="replace"))


def browser_frames(path):
    """The frames of a GIF as Chromium shows them."""
    server = _Server(pathlib.Path(path).read_bytes())
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        with _browser(f"http://127.0.0.1:{server.server_port}/") as (process, log):
            result = _wait_for_result(server, process, log)
    finally:
        server.shutdown()
        server.server_close()
    if "error" in result:
        raise AssertionError(f"the browser can't decode {path}: {result['error']}")
    return [Frame(frame["width"], frame["height"], frame["milliseconds"],
                  base64.b64decode(frame["rgba"])) for frame in result["frames"]]


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
