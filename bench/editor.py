"""The editor on an X server of its own: how soon it shows what, beside bare windows."""

import contextlib
import os
import shutil
import statistics
import subprocess
import tempfile
import time

from contest import Failed

FIRST_PAINT = 100  # milliseconds, with 3,000 frames
SCROLLING = 16  # milliseconds, 95 of 100 notches of the wheel
STEPS = 100
SETTLING, IDLE = 3, 10  # seconds


@contextlib.contextmanager
def x_server():
    """The name of a display of 800 x 600 pixels: any window covers its middle."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "800x600x24", "-nolisten", "tcp",
         "-noreset"],
        pass_fds=(writing,), stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        with os.fdopen(reading) as display:
            yield f":{display.readline().strip()}"
    finally:
        server.kill()
        server.wait()


def desktop_of(display, home):
    """The user's desktop and settings have no say."""
    hidden = ("XDG_CURRENT_DESKTOP", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY")
    variables = {name: value for name, value in os.environ.items() if name not in hidden}
    return {**variables, "DISPLAY": display, "HOME": home, "XDG_CONFIG_HOME": home,
            "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:"}


class Editor:
    def __init__(self, files, environment):
        self.files = files
        self.environment = environment

    def program(self, name):
        return str(self.files.build / name)

    def times(self, *command):
        """Milliseconds to the first painted window, and for each notch of the wheel."""
        result = subprocess.run([self.program("kirto_time_to_window"), *command],
                                env=self.environment, stdout=subprocess.PIPE, text=True)
        if result.returncode != 0:
            raise Failed(f"{command} showed nothing")
        return [float(line) for line in result.stdout.split()]

    def contest(self, commands, rounds):
        """The medians of the times to the first paint; programs take turns."""
        for command in commands:
            self.times(*command)  # what is read from the disk for the first time is nobody's merit
        taken = [[self.times(*command)[0] for command in commands] for _ in range(rounds)]
        return [statistics.median(column) for column in zip(*taken)]

    def idle(self):
        """Milliseconds of processor time while nobody touches the editor."""
        editor = subprocess.Popen([self.program("kirto")], env=self.environment,
                                  stderr=subprocess.DEVNULL)
        try:
            time.sleep(SETTLING)
            before = self.ticks(editor.pid)
            time.sleep(IDLE)
            return (self.ticks(editor.pid) - before) * 1000 / os.sysconf("SC_CLK_TCK")
        finally:
            editor.kill()
            editor.wait()

    @staticmethod
    def ticks(process):
        with open(f"/proc/{process}/stat") as stat:
            fields = stat.read().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])


def table(bare, word, editor, many, notches):
    """Milliseconds in Markdown; what misses its goal is bold."""
    worst = statistics.quantiles(notches, n=20)[-1]
    mark = lambda value, goal: f"**{value:.1f}**" if value > goal else f"{value:.1f}"
    return ("| | ms | goal |\n|---|---|---|\n"
            f"| an empty window is painted | {bare:.1f} | |\n"
            f"| a window with one word is painted | {word:.1f} | |\n"
            f"| the editor is painted | {editor:.1f} ({editor / word:.2f} x the word) | |\n"
            "| 14. the editor with 3,000 frames is painted "
            f"| {mark(many, FIRST_PAINT)} | <= {FIRST_PAINT} |\n"
            f"| 14. a notch of the wheel in 3,000 frames, 95th percentile of {len(notches)} "
            f"| {mark(worst, SCROLLING)} | <= {SCROLLING} |\n"
            f"| the same, median | {statistics.median(notches):.1f} | |\n")


def measure(files):
    if not shutil.which("Xvfb"):
        raise Failed("Xvfb is missing")
    with x_server() as display, tempfile.TemporaryDirectory() as home:
        editor = Editor(files, desktop_of(display, home))
        window, kirto = editor.program("kirto_bare_window"), editor.program("kirto")
        many = (kirto, files.path("frames3000.gif"))
        medians = editor.contest([(window,), (window, "Kirto"), (kirto,), many],
                                 3 if files.quick else 11)
        notches = editor.times("--scroll", str(STEPS), *many)[1:]
        text = table(*medians, notches)
        if not files.quick:
            text += (f"\nLeft alone for {IDLE} seconds, the editor takes {editor.idle():.0f} ms of "
                     "processor time.\n")
        return text
