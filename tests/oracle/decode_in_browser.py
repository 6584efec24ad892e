"""What a web browser makes of GIF, WebP and PNG files: every frame, pixel by pixel, with its duration.

The browser is Chromium, without a window; the files and the page that decodes them come from a server
on this machine.
"""

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
import tempfile
import threading
import time

# Seconds between two answers; a browser's first start on a busy machine takes its time.
PATIENCE = 120.0

PROGRAM = "chromium"

# The network is not used, so nothing may be looked up or updated.
OPTIONS = ("--headless", "--no-sandbox", "--disable-gpu", "--disable-quic",
           "--disable-dev-shm-usage", "--no-first-run", "--disable-background-networking",
           "--disable-component-update", "--disable-sync", "--remote-debugging-port=0")


def digest_of(pixels):
    return hashlib.md5(pixels).hexdigest()


class Decoded:
    """An animation: "repetitions" as the browser says it, an error or "", and for each frame its
    width, its height, its duration in microseconds and what keep() makes of its pixels, which are
    blue, green, red and alpha."""

    def __init__(self, body, keep):
        header, _, pixels = body.partition(b"\n")
        found = json.loads(header)
        self.error = found["error"]
        self.repetitions = found.get("repetitions")
        self.frame_count = found.get("count", 0)
        self.frames = []
        start = 0
        for frame in found["frames"]:
            end = start + frame["width"] * frame["height"] * 4
            kept = keep(pixels[start:end])
            self.frames.append((frame["width"], frame["height"], frame["microseconds"], kept))
            start = end


class _Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def __init__(self, paths, keep):
        super().__init__(("127.0.0.1", 0), _Handler)
        self.page = pathlib.Path(__file__).with_suffix(".html").read_bytes()
        self.paths = paths
        self.keep = keep
        self.results = queue.Queue()


class _Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        _, folder, *rest = self.path.split("/")
        if folder == "":
            self._answer(200, "text/html", self.server.page)
        elif folder == "animation" and int(rest[0]) < len(self.server.paths):
            path = pathlib.Path(self.server.paths[int(rest[0])])
            self._answer(200, f"image/{path.suffix[1:]}", path.read_bytes())
        else:
            self._answer(404, "text/plain", b"")

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self._answer(204, None, b"")
        end = self.path == "/end"
        self.server.results.put(body.decode() if end else Decoded(body, self.server.keep))

    def _answer(self, status, kind, content):
        self.send_response(status)
        if kind:
            self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def _browser(url):
    """Runs the browser on the page; it and its helpers are gone afterwards."""
    with tempfile.TemporaryDirectory(prefix="kirto-browser-", ignore_cleanup_errors=True) as profile:
        log = pathlib.Path(profile, "output")
        with open(log, "wb") as output:
            process = subprocess.Popen(
                [PROGRAM, *OPTIONS, f"--user-data-dir={profile}", url],
                stdin=subprocess.DEVNULL, stdout=output, stderr=output, start_new_session=True)
        try:
            yield process, log
        finally:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def _next_result(server, process, log):
    end = time.monotonic() + PATIENCE
    while True:
        with contextlib.suppress(queue.Empty):
            return server.results.get(timeout=0.2)
        if process.poll() is not None or time.monotonic() > end:
            raise AssertionError("the browser gave no answer: " + log.read_text(errors="replace"))


def is_missing():
    return shutil.which(PROGRAM) is None


def decode(paths, keep=digest_of):
    """Each of the files as the browser decodes it, in order."""
    server = _Server(paths, keep)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    decoded = []
    try:
        with _browser(f"http://127.0.0.1:{server.server_port}/") as (process, log):
            while not isinstance(result := _next_result(server, process, log), str):
                decoded.append(result)
    finally:
        server.shutdown()
        server.server_close()
    if result != "done":
        raise AssertionError(f"the browser stopped at {paths[len(decoded)]}: {result}")
    return decoded
