import contextlib
import os
import signal
import subprocess

from desktop_session import wait_until
from editor_test import EditorTest, GREEN, RED
import long_work


class Decoding(EditorTest):
    """Images are read by a process of the editor, to which anything may happen."""

    def decoders(self):
        found = subprocess.run(["pgrep", "-P", str(self.editor.process.pid), "kirto-decode"],
                               capture_output=True, text=True)
        return [int(number) for number in found.stdout.split()]

    def insert(self, name):
        self.session.key("ctrl+i")
        self.editor.name_file("Insert Frames", name)

    def test_a_decoder_that_is_killed_costs_the_picture_that_it_was_reading(self):
        # Compressed as well as can be, which takes long to undo.
        long_work.write_noise(self.folder / "large.png", 4000, 500)
        self.editor = self.start_editor()
        with contextlib.chdir(self.folder):
            self.insert(self.folder / "large.png")
        os.kill(wait_until(self.decoders, "a decoder")[0], signal.SIGKILL)
        self.editor.answer("This file can't be inserted because this file type is unsupported: large.png",
                           "OK")
        self.editor.wait_for_status(0, modified=False)

        self.insert(self.folder / "large.png")
        self.editor.wait_for_status(1, modified=True)

    def test_a_decoder_that_is_killed_between_two_pictures_costs_nothing(self):
        self.editor = self.start_editor()
        self.insert(self.picture(RED))
        self.editor.wait_for_status(1, modified=True)
        os.kill(self.decoders()[0], signal.SIGKILL)

        self.insert(self.picture(GREEN))
        self.editor.wait_for_status(2, modified=True)

    def test_the_decoders_end_with_the_editor_that_is_killed(self):
        self.editor = self.start_editor()
        self.insert(self.picture(RED))
        self.editor.wait_for_status(1, modified=True)
        decoders = self.decoders()
        self.assertTrue(decoders)

        self.editor.process.kill()

        def ended():
            return not any(os.path.exists(f"/proc/{number}/exe") for number in decoders)
        wait_until(ended, "the decoders to end")
