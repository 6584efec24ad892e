from desktop_session import wait_until
from editor_test import EditorTest, GREEN, RED

DAMAGED = "The animation can't be opened because it was corrupted or unreadable."
OPENED = "Opened as browsers do. Animations are read and saved that way from now on."
SAVED = "In browsers 100 % of the pixels lost their color, by 11.7 of 255 on average: 216 colors."
# No color of the palette that new animations have.
ODD = (18, 52, 86, 255)


class Faithful(EditorTest):
    """What the editor offers where the defined rules read or save otherwise than browsers do."""

    def wait_for_no_label(self, text):
        wait_until(lambda: not self.editor.nodes("label", text), f"the label {text!r} to go")

    def settings(self):
        return (self.session.home / "config" / "Kirto_settings").read_text()

    def without_its_end(self):
        path = self.animation(colors=(RED, GREEN))
        path.write_bytes(path.read_bytes()[:-1])
        return path

    def open_without_its_end(self):
        """An editor that opens such a file as browsers do; and the file."""
        path = self.without_its_end()
        editor = self.start_editor()
        editor.choose("File", "Open...")
        editor.name_file("Open Animation", path)
        editor.answer(DAMAGED, "Open as Browsers Do")
        editor.wait_for_status(2, modified=False)
        return editor, path

    def odd_picture(self):
        path = self.folder / "odd.png"
        self.session.call("convert", "-size", "80x60", "xc:#123456", f"png24:{path}")
        return path

    def save_odd_picture(self):
        editor = self.start_editor()
        editor.choose("Frame", "Insert...")
        editor.name_file("Insert Frames", self.odd_picture())
        editor.wait_for_status(1, modified=True)
        path = self.folder / "odd.gif"
        editor.save_as(path)
        editor.wait_for_label(SAVED)
        return editor, path

    def test_opens_what_browsers_open_and_undoes_it(self):
        editor, _ = self.open_without_its_end()
        editor.wait_for_title("Kirto - colors.gif")
        editor.wait_for_label(OPENED)
        self.assertIn("animation_faithful", self.settings())

        editor.focus("push button", "Undo", editor.main_window())
        self.session.key("space")
        self.wait_for_no_label(OPENED)
        editor.wait_for_status(0, modified=False)
        editor.wait_for_title("Kirto - untitled")

    def test_opens_such_a_file_without_a_question_from_then_on(self):
        editor, path = self.open_without_its_end()
        editor.choose("File", "Quit")
        self.assertEqual(editor.wait_for_end(), 0)
        editor = self.start_editor(path)
        editor.wait_for_status(2, modified=False)

    def test_tells_what_a_save_has_lost_and_shows_it(self):
        editor, path = self.save_odd_picture()
        editor.click("push button", "Show")
        self.session.wait_until_active("^Differences$")
        window = editor.window("Differences")
        editor.wait_for_label("Frame 1 of 1", window)
        editor.click("push button", "Close", window)
        self.session.wait_for_no_window("^Differences$")

        editor.click("push button", "Close", editor.main_window())
        self.wait_for_no_label(SAVED)
        editor.wait_for_status(1, modified=False)
        self.assertNotEqual(self.colors(path), [ODD])

    def test_saves_again_as_browsers_show_it(self):
        editor, path = self.save_odd_picture()
        before = path.stat().st_mtime_ns
        editor.click("push button", "Save Faithfully")
        self.wait_for_no_label(SAVED)
        wait_until(lambda: path.stat().st_mtime_ns != before, "the file to be written again")
        editor.wait_for_status(1, modified=False)
        self.assertIn("animation_faithful", self.settings())
        self.assertEqual(self.colors(path), [ODD])

    def test_ends_while_a_save_is_compared(self):
        editor = self.start_editor()
        editor.choose("Frame", "Insert...")
        editor.name_file("Insert Frames", self.odd_picture())
        editor.wait_for_status(1, modified=True)
        editor.choose("File", "Quit")
        editor.answer("Do you want to save your changes?", "Save")
        editor.name_file("Save Animation", self.folder / "last.gif")
        self.assertEqual(editor.wait_for_end(), 0)
