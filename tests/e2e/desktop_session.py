"""A desktop for one test: an X server, a message bus, a window manager and a home folder of its own.

Nothing is shared with the desktop that the test is run on. What the test starts, and whatever that
starts in turn, ends with the session. Waiting is always for a condition, with a deadline that a busy
machine keeps easily.
"""

import contextlib
import ctypes
import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import tempfile
import time

from gi.repository import GLib

DEADLINE = 60.0  # seconds; long enough for a machine that builds at the same time
POLL = 0.05

PROGRAMS = ("Xvfb", "openbox", "dbus-daemon", "xdotool", "xprop", "import")

_PR_SET_PDEATHSIG = 1
_PR_SET_CHILD_SUBREAPER = 36
_libc = ctypes.CDLL(None, use_errno=True)


def missing_programs():
    """The programs a session needs that are not installed."""
    return [program for program in PROGRAMS if shutil.which(program) is None]


def wait_until(condition, what, deadline=DEADLINE):
    """Returns the first true value of condition(); fails when none comes in time. A program that is
    too busy to tell what its window shows is asked again."""
    end = time.monotonic() + deadline
    while True:
        try:
            value = condition()
        except GLib.GError:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {deadline:.0f} seconds in vain for {what}")
        time.sleep(POLL)


def end_with_parent():
    """What a child process calls first, so that it ends with this one."""
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def _children_of(pid, ended=True):
    """Those that have ended and that nobody has asked about since, too, unless told otherwise."""
    children = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        with contextlib.suppress(OSError):
            # The name in brackets may itself hold brackets and spaces.
            fields = stat.read_text(errors="replace").rpartition(")")[2].split()
            if int(fields[1]) == pid and (ended or fields[0] != "Z"):
                children.append(int(stat.parent.name))
    return children


class Program:
    """A program of the session. What it prints, on either stream, is kept in a file."""

    def __init__(self, command, environment, log):
        self.name = pathlib.Path(command[0]).name
        self.log = log
        with open(log, "wb") as output:
            self.process = subprocess.Popen(
                command, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                stderr=subprocess.STDOUT, preexec_fn=end_with_parent)

    @property
    def pid(self):
        return self.process.pid

    def output(self):
        return self.log.read_text(errors="replace")

    def running(self):
        return self.process.poll() is None

    def wait_for_line(self, expression, deadline=DEADLINE):
        """The first match of the expression, which is anchored at lines, in what was printed."""
        pattern = re.compile(expression, re.MULTILINE)

        def found():
            match = pattern.search(self.output())
            if not match and not self.running():
                match = pattern.search(self.output())
                if not match:
                    raise AssertionError(f"{self.name} ended early and printed: {self.output()}")
            return match
        return wait_until(found, f"{self.name} to print {expression!r}", deadline)

    def wait_for_end(self, deadline=DEADLINE):
        """The exit status of the program, once it has ended by itself."""
        wait_until(lambda: not self.running(), f"{self.name} to end", deadline)
        return self.process.returncode

    def end(self):
        """Ends the program as logging out would, and by force when that is not enough."""
        if not self.running():
            return
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.kill()

    def kill(self):
        """Ends the program at once; it learns nothing of it."""
        self.process.kill()
        self.process.wait()


class DesktopSession:
    """Use it in a with statement. Programs find the session by `environment`."""

    def __init__(self, width=1600, height=1000):
        self._size = f"{width}x{height}x24"
        self._programs = []
        self.folder = None
        self.environment = None

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kirto-e2e-"))
        try:
            # Whoever loses its parent becomes a child of this process, and is found at the end.
            _libc.prctl(_PR_SET_CHILD_SUBREAPER, 1)
            self._make_environment()
            self.environment["DISPLAY"], _ = self.start_server()
            self._start_bus()
            self._start_window_manager()
        except BaseException:
            self._end_everything()
            raise
        return self

    def __exit__(self, *_):
        self._end_everything()

    def start(self, *command, environment=None):
        """Starts a program in the session."""
        log = self.folder / f"{len(self._programs)}-{pathlib.Path(command[0]).name}.log"
        program = Program([str(word) for word in command], environment or self.environment, log)
        self._programs.append(program)
        return program

    def call(self, *command, check=True):
        """Runs a program of the session to its end; what it printed."""
        done = subprocess.run([str(word) for word in command], env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=DEADLINE)
        if check and done.returncode != 0:
            raise AssertionError(f"{command} failed: {done.stdout}{done.stderr}")
        return done.stdout

    def processes(self):
        """The ids of what was started and still runs, and of what programs that have ended left."""
        return set(_children_of(os.getpid(), ended=False))

    # Windows

    def windows(self, title):
        """The ids of the visible windows whose title matches the expression."""
        return self.call("xdotool", "search", "--onlyvisible", "--name", title, check=False).split()

    def wait_for_window(self, title):
        return wait_until(lambda: self.windows(title), f"a window titled {title!r}")[0]

    def wait_for_no_window(self, title):
        wait_until(lambda: not self.windows(title), f"no window titled {title!r}")

    def active_title(self):
        return self.call("xdotool", "getactivewindow", "getwindowname", check=False).strip()

    def wait_until_active(self, title):
        """Waits until a window whose title matches has the keyboard; keys pressed now go there."""
        wait_until(lambda: re.search(title, self.active_title()), f"{title!r} to become active")

    def place_window(self, window, x, y, width, height):
        self.call("xdotool", "windowmove", window, x, y, "windowsize", window, width, height)

    def screenshot(self, path):
        self.call("import", "-window", "root", path)

    # Keyboard and mouse

    def key(self, *keys):
        self.call("xdotool", "key", "--clearmodifiers", "--delay", "30", *keys)

    def type(self, text):
        self.call("xdotool", "type", "--clearmodifiers", "--delay", "15", "--", text)

    def move(self, x, y):
        self.call("xdotool", "mousemove", round(x), round(y))

    def click(self, x, y, button=1):
        self.call("xdotool", "mousemove", round(x), round(y), "click", button)

    def press(self, x, y):
        self.move(x, y)
        self.call("xdotool", "mousedown", 1)

    def release(self):
        self.call("xdotool", "mouseup", 1)

    def drag(self, start, end, has_begun, is_over):
        """Drags from start to end. The pointer keeps moving a little until has_begun(), which tells
        that the source has begun a drag, and at the end until is_over(), which tells that the
        target has noticed. Then the button is released."""
        self.press(*start)
        self._wiggle(start, has_begun, "the drag to begin")
        steps = 8
        for step in range(1, steps + 1):
            self.move(*(a + (b - a) * step / steps for a, b in zip(start, end)))
            time.sleep(POLL)
        self._wiggle(end, is_over, "the target to notice the drag")
        self.release()

    def _wiggle(self, point, condition, what):
        x, y = point
        turns = iter(range(10 ** 6))

        def moved():
            if condition():
                return True
            # Far enough for a drag to begin, near enough to stay on what is dragged.
            self.move(x + (12 if next(turns) % 2 else 0), y)
            return False
        wait_until(moved, what)
        self.move(x, y)

    # Start and end

    def _make_environment(self):
        home = self.folder / "home"
        runtime = self.folder / "runtime"
        for folder in (home, runtime, home / "config", home / "data", home / "cache",
                       home / "state"):
            folder.mkdir(mode=0o700)
        kept = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ}
        self.environment.update(
            HOME=str(home), XDG_CONFIG_HOME=str(home / "config"), XDG_DATA_HOME=str(home / "data"),
            XDG_CACHE_HOME=str(home / "cache"), XDG_STATE_HOME=str(home / "state"),
            XDG_RUNTIME_DIR=str(runtime), TMPDIR=str(self.folder),
            LANG="C.UTF-8", XDG_SESSION_TYPE="x11", QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")

    @property
    def home(self):
        return pathlib.Path(self.environment["HOME"])

    def _first_line(self, command, descriptor_option):
        """Starts a program that writes one line to a descriptor when it is ready; the line and the
        program."""
        reading, writing = os.pipe()
        log = open(self.folder / f"{command[0]}.log", "wb")
        process = subprocess.Popen(
            [*command, *descriptor_option(writing)], env=self.environment, pass_fds=(writing,),
            stdin=subprocess.DEVNULL, stdout=log, stderr=log, preexec_fn=end_with_parent)
        os.close(writing)
        line = b""
        with os.fdopen(reading, "rb", buffering=0) as stream, log:
            while not line.endswith(b"\n"):
                ready, _, _ = select.select([stream], [], [], DEADLINE)
                piece = stream.read(256) if ready else b""
                if not piece:
                    raise AssertionError(f"{command[0]} did not start; status {process.poll()}")
                line += piece
        return line.decode().strip(), process

    def start_server(self):
        """Starts an X server; its display and its process."""
        number, process = self._first_line(
            ["Xvfb", "-screen", "0", self._size, "-nolisten", "tcp", "-noreset"],
            lambda descriptor: ["-displayfd", str(descriptor)])
        return f":{number}", process

    def _start_bus(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"], _ = self._first_line(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile"],
            lambda descriptor: [f"--print-address={descriptor}"])

    def _start_window_manager(self):
        self.start("openbox")
        wait_until(lambda: "0x" in self.call("xprop", "-root", "_NET_SUPPORTING_WM_CHECK",
                                             check=False), "the window manager")

    def _end_everything(self):
        for program in reversed(self._programs):
            program.end()
        # The server and the bus, and whatever others left behind.
        for sign in (signal.SIGTERM, signal.SIGKILL):
            end = time.monotonic() + 10
            while time.monotonic() < end:
                children = _children_of(os.getpid())
                if not children:
                    break
                for child in children:
                    with contextlib.suppress(ProcessLookupError):
                        os.kill(child, sign)
                    with contextlib.suppress(ChildProcessError):
                        os.waitpid(child, os.WNOHANG)
                time.sleep(POLL)
        shutil.rmtree(self.folder, ignore_errors=True)
