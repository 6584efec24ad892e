import shutil
import subprocess
import unittest

from editor_test import EditorTest, HEIGHT, WIDTH


class Opening(EditorTest):
    def test_starts_with_an_empty_document(self):
        editor = self.start_editor()
        self.assertEqual(editor.title(), "Kirto - untitled")
        editor.wait_for_status(0, modified=False)
        editor.wait_for_label("None")

    def test_opens_an_animation_by_menu(self):
        path = self.animation()
        editor = self.start_editor()
        editor.open(path)
        editor.wait_for_status(3, modified=False)
        editor.wait_for_field("Width:", str(WIDTH))
        editor.wait_for_field("Height:", str(HEIGHT))
        editor.wait_for_field("Pause length", "30.00")
        editor.wait_for_label("frame0000")

    def test_opens_the_animation_of_the_command_line(self):
        editor = self.start_editor(self.animation())
        editor.wait_for_title("Kirto - colors.gif")
        editor.wait_for_status(3, modified=False)

    def test_says_that_a_file_is_no_animation(self):
        path = self.folder / "broken.gif"
        path.write_bytes(b"no animation at all")
        editor = self.start_editor()
        editor.choose("File", "Open...")
        editor.name_file("Open Animation", path)
        alert = self.session.wait_for_window("^Kirto$")
        self.assertTrue(alert)
        editor.wait_for_status(0, modified=False)

    def test_opens_a_recent_animation_by_keyboard_from_the_empty_window_and_by_menu(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_title("Kirto - colors.gif")
        self.session.key("ctrl+q")
        editor.wait_for_end()

        editor = self.start_editor()
        editor.focus("list", "Recent animations")
        self.session.key("Return")
        editor.wait_for_title("Kirto - colors.gif")

        self.session.key("ctrl+n")
        editor.wait_for_title("Kirto - untitled")
        self.session.key("alt+f", "r", "1")
        editor.wait_for_title("Kirto - colors.gif")

    @unittest.skipUnless(shutil.which("ffmpeg"), "ffmpeg is not installed")
    def test_opens_a_part_of_a_video_by_keyboard(self):
        path = self.folder / "clip.mkv"
        subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-f", "lavfi",
                        "-i", "testsrc=s=64x48:r=10:d=4", "-y", path], check=True)
        editor = self.start_editor()
        editor.choose("File", "Open...")
        editor.name_file("Open Animation", path)
        self.session.wait_until_active("Insert Video")
        dialog = editor.window("Insert Video")
        editor.wait_for_name("40 frames of 64 × 48 pixels, at most 1 MB.", dialog)
        self.session.key("ctrl+a")
        self.session.type("1")
        self.session.key("alt+w", "ctrl+a")
        self.session.type("32")
        editor.wait_for_name("30 frames of 32 × 24 pixels, at most 1 MB.", dialog)
        self.session.key("Return")
        editor.wait_for_status(30, modified=False)
        editor.wait_for_title("Kirto - clip.gif")
        editor.wait_for_field("Width:", "32")
