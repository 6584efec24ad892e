from desktop_session import wait_until
from editor_test import BLUE, EditorTest, GREEN, RED

QUESTION = "Do you want to save your changes?"


class Quitting(EditorTest):
    def modify_colors(self):
        """An editor whose document is an animation with its first two frames exchanged."""
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.choose("Frame", "Move Down")
        editor.wait_for_status(3, modified=True)
        return editor, path

    @staticmethod
    def appears(what):
        """Whether it is there before long."""
        try:
            return wait_until(what, "it", deadline=10)
        except AssertionError:
            return False

    def insert_untitled(self):
        """An editor with one new frame."""
        editor = self.start_editor()
        editor.choose("Frame", "Insert...")
        editor.name_file("Insert Frames", self.picture(RED))
        editor.wait_for_status(1, modified=True)
        return editor

    def test_ends_at_once_without_changes(self):
        editor = self.start_editor(self.animation())
        editor.wait_for_status(3, modified=False)
        editor.choose("File", "Quit")
        self.assertEqual(editor.wait_for_end(), 0)

    def test_cancel_stays(self):
        editor, path = self.modify_colors()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Cancel")
        self.session.wait_for_no_window("^Kirto$")
        editor.wait_for_status(3, modified=True)
        # The answer is used up: asked again, the editor asks again.
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Discard")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.colors(path), [RED, GREEN, BLUE])

    def test_discard_leaves_the_file_as_it_was(self):
        editor, path = self.modify_colors()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Discard")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.colors(path), [RED, GREEN, BLUE])

    def test_save_writes_the_file_and_ends(self):
        editor, path = self.modify_colors()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Save")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.colors(path), [GREEN, RED, BLUE])

    def test_the_window_s_close_button_asks_as_well(self):
        editor, path = self.modify_colors()
        # A menu that is just closing may still hold the keyboard, and keep the key from the window
        # manager.
        for _ in range(3):
            self.session.key("alt+F4")
            if self.appears(lambda: editor.nodes("label", QUESTION)):
                break
        editor.answer(QUESTION, "Save")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.colors(path), [GREEN, RED, BLUE])

    def test_save_asks_where_to_when_untitled(self):
        editor = self.insert_untitled()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Save")
        editor.name_file("Save Animation", self.folder / "new.gif")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.colors(self.folder / "new.gif"), [RED])

    def test_a_cancelled_save_panel_leaves_the_window_open(self):
        editor = self.insert_untitled()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Save")
        self.session.wait_until_active("^Save Animation$")
        editor.click("push button", "Cancel", editor.window("Save Animation"))
        self.session.wait_for_no_window("^Save Animation$")
        editor.wait_for_status(1, modified=True)
        self.assertTrue(editor.process.running())
