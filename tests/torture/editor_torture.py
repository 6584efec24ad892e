#!/usr/bin/python3
"""editor_torture.py BUILD_FOLDER short|whole

Ends the editor in every state that it can be in, by each of the ways that there are, and demands every time
that
  - it has ended two seconds later,
  - the document's file can be opened, and is the old one or the new one,
  - nothing else is left in its folder, unless the editor was killed,
  - the next editor offers what was not saved, and recovers it.
Each case has a desktop and a process of its own; `editor_torture.py BUILD_FOLDER STATE ENDING` is one. Besides, the
editor is killed again and again while it saves, at any moment: `editor_torture.py BUILD_FOLDER kills COUNT`.
"""

import os
import pathlib
import random
import signal
import subprocess
import sys
import time
import unittest

E2E = pathlib.Path(__file__).resolve().parent.parent / "e2e"
sys.path.insert(0, str(E2E))
sys.dont_write_bytecode = True

import desktop_session  # noqa: E402
import run_case  # noqa: E402

SKIPPED = 77
FRAMES = 30
MOST_SECONDS = 2.0

STATES = ("idle", "loading", "saving", "fading", "dialog", "exporting", "playing", "file changed", "file removed",
          "folder read-only", "disk full")
ENDINGS = {"killed": signal.SIGKILL, "told to end": signal.SIGTERM, "hung up": signal.SIGHUP, "without a screen": None}
KILLS = 200
LONGEST_SAVE = 0.5  # seconds from the key to the end, about
IN_SHORT = (("saving", "killed"), ("fading", "told to end"), ("dialog", "without a screen"))


def make_slow_editor():
    """A case's class whose editor takes long to save; what it needs is imported where there is a desktop."""
    import long_work
    from editor_test import EditorTest

    class SlowEditor(EditorTest):
        def setUp(self):
            super().setUp()
            self.session.environment["KIRTO_THREADS"] = "1"
            (self.session.home / "config/Kirto_settings").write_text("palette_dither = true\n")

        def copies(self):
            return list((self.session.home / "state/kirto/recovery").glob("*.recovery"))

        def write_animation(self, path, frames, side=600):
            picture = self.folder / "drawing.png"
            self.session.call("convert", "-size", f"{side}x{side}", "gradient:rgb(40,90,10)-rgb(200,130,77)", picture)
            self.kirto_cli("--insert", picture, "--frame-palette", "optimal", "--save", path)
            long_work.repeat_frame(path, frames)
            picture.unlink()

    return SlowEditor


def make_case(state, ending):
    """The case as a test of unittest."""
    from desktop_session import wait_until

    class EndedEditor(make_slow_editor()):
        def setUp(self):
            super().setUp()
            self.session.environment["KIRTO_RECOVERY_DELAY"] = "20"
            if state == "disk full":
                self.mount_small_disk()
            self.path = self.folder / "drawing.gif"

        def mount_small_disk(self):
            if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=32m", "none", self.folder], check=False).returncode:
                self.skipTest("no small disk can be mounted here")
            self.addCleanup(subprocess.run, ["umount", "-l", self.folder], check=True)

        def fill_disk(self):
            with open(self.folder / "filler", "wb", buffering=0) as filler:
                try:
                    while filler.write(bytes(4096)):
                        pass
                except OSError:
                    pass

        def start(self):
            """An editor with a change that is not saved, of which there is a copy."""
            self.write_animation(self.path, FRAMES)
            editor = self.start_editor(self.path)
            editor.wait_for_status(FRAMES, modified=False)
            editor.choose("Frame", "Move Down")
            editor.wait_for_status(FRAMES, modified=True)
            wait_until(self.copies, "a copy of the document")
            return editor

        def reach(self, editor):
            key = self.session.key
            if state == "saving":
                key("ctrl+s")
                time.sleep(0.1)
            elif state == "fading":
                key("ctrl+f")
                self.session.wait_until_active("^Fade Effects$")
                dialog = editor.window("Fade Effects")
                editor.enter("Frame count:", "100", dialog)
                editor.click("push button", "OK", dialog)
                time.sleep(0.1)
            elif state == "dialog":
                key("ctrl+f")
                self.session.wait_until_active("^Fade Effects$")
            elif state == "exporting":
                key("ctrl+e")
                self.session.wait_until_active("^Export$")
            elif state == "playing":
                key("ctrl+shift+p")
                key("space")
            elif state == "file changed":
                self.path.write_bytes(b"GIF89a")
            elif state == "file removed":
                self.path.unlink()
            elif state == "folder read-only":
                self.folder.chmod(0o500)
                key("ctrl+s")
            elif state == "disk full":
                self.fill_disk()
                key("ctrl+s")
                self.session.wait_until_active("^Kirto$")  # an alert, which waits

        def server(self):
            return next(pid for pid in self.session.processes()
                        if pathlib.Path(f"/proc/{pid}/comm").read_text().strip() == "Xvfb")

        def end(self, editor):
            process = editor.process.process
            start = time.monotonic()
            if ENDINGS[ending] is None:
                os.kill(self.server(), signal.SIGKILL)
            else:
                process.send_signal(ENDINGS[ending])
            process.wait(timeout=desktop_session.DEADLINE)
            self.assertLess(time.monotonic() - start, MOST_SECONDS)
            self.assertNotEqual(process.returncode, 0)

        def check_file(self, old):
            self.folder.chmod(0o700)
            (self.folder / "filler").unlink(missing_ok=True)
            if state == "file removed":
                self.assertFalse(self.path.exists())
                return
            now = self.path.read_bytes()
            if state == "file changed":
                self.assertEqual(now, b"GIF89a")
            elif now != old:
                self.assertIn(state, ("saving", "folder read-only"))
                self.assertEqual(self.info(self.path)["frame_count"], FRAMES)
            if ending != "killed":
                self.assertEqual(sorted(self.folder.iterdir()), [self.path])

        def check_recovered(self, saved):
            if saved and not self.copies():
                return
            self.assertEqual(len(self.copies()), 1)
            if ending == "without a screen":
                return  # nor has the next one a screen here
            editor = self.start_editor(asks=True)
            editor.click("push button", "Recover", editor.window("Kirto"))
            wait_until(lambda: [label for label in editor.nodes("label")
                                if label.get_name().startswith("Status: ") and
                                label.get_name().endswith(" modified")], "the document")

        def test_ended(self):
            if state == "loading":
                self.load_and_end()
                return
            editor = self.start()
            old = self.path.read_bytes()
            self.reach(editor)
            self.end(editor)
            self.check_file(old)
            self.check_recovered(state in ("saving", "folder read-only"))

        def load_and_end(self):
            self.write_animation(self.path, 3000)
            old = self.path.read_bytes()
            process = self.session.start(self.programs / "kirto", self.path)
            self.session.wait_for_window("^Kirto - ")

            class Loading:
                pass
            loading = Loading()
            loading.process = process
            self.end(loading)
            self.check_file(old)
            self.assertEqual(self.copies(), [])

    return EndedEditor("test_ended")


def make_kills(count):
    """A case that kills the editor so many times between the key that saves and the end of saving."""
    class KilledEditor(make_slow_editor()):
        def test_killed(self):
            path = self.folder / "drawing.gif"
            self.write_animation(path, FRAMES)
            old = path.read_bytes()
            ends = {"old": 0, "new": 0}
            for number in range(count):
                path.write_bytes(old)
                self.kill_while_saving(path)
                now = path.read_bytes()
                ends["old" if now == old else "new"] += 1
                if now != old:
                    self.assertEqual(self.info(path)["frame_count"], FRAMES - 1, f"after kill {number}")
                for other in self.folder.iterdir():
                    if other != path:
                        other.unlink()
                for copy in self.copies():
                    copy.unlink()
            print(ends)
            if count == KILLS:
                self.assertTrue(all(ends.values()), "saves that end and saves that don't")

        def kill_while_saving(self, path):
            editor = self.session.start(self.programs / "kirto", path)
            self.session.wait_until_active("^Kirto - drawing.gif$")
            time.sleep(1)  # for the frames
            self.session.key("ctrl+r", "ctrl+s")
            time.sleep(random.uniform(0, LONGEST_SAVE))
            editor.process.kill()
            editor.process.wait(timeout=desktop_session.DEADLINE)
            self.session.wait_for_no_window("^Kirto - ")

    return KilledEditor("test_killed")


def run_one(build, state, ending):
    from editor_test import EditorTest
    EditorTest.programs = pathlib.Path(build).resolve()
    EditorTest.failures = EditorTest.programs / "tests/e2e/failures"
    case = make_kills(int(ending)) if state == "kills" else make_case(state, ending)
    result = unittest.TextTestRunner(verbosity=0).run(case)
    return 0 if result.wasSuccessful() else 1


def run_apart(build, state, ending):
    """Runs a case in a process of its own, and tells what it found."""
    done = subprocess.run([sys.executable, __file__, build, state, ending], capture_output=True, text=True, check=False)
    if done.returncode == 0:
        return True
    print(f"FAILED: {state}, {ending}:\n{done.stdout[-3000:]}{done.stderr[-3000:]}", flush=True)
    return False


def add_row(what, count, failures):
    print(f"{what}: {count} cases, {failures} failures")
    if os.environ.get("KIRTO_TORTURE_TABLE"):
        with open(os.environ["KIRTO_TORTURE_TABLE"], "a", encoding="utf-8") as rows:
            rows.write(f"{what}\t{count}\t{failures}\n")


def main():
    if sys.argv[3:]:
        return run_one(*sys.argv[1:])
    build, form = sys.argv[1:]
    if run_case.missing():
        print("skipped: a program or a library for desktops is missing")
        return SKIPPED
    cases = IN_SHORT if form == "short" else [(state, ending) for state in STATES for ending in ENDINGS]
    failures = sum(not run_apart(build, *case) for case in cases)
    add_row("editors ended in the middle of something", len(cases), failures)
    if form == "whole":
        killed = run_apart(build, "kills", str(KILLS))
        add_row("editors killed while they save", KILLS, int(not killed))
        failures += int(not killed)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
