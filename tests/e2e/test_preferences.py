from editor_test import EditorTest


class Preferences(EditorTest):
    def open_preferences(self):
        editor = self.start_editor()
        editor.choose("View", "Preferences...")
        self.session.wait_until_active("^Preferences$")
        return editor, editor.window("Preferences")

    def quit(self, editor):
        editor.choose("File", "Quit")
        self.assertEqual(editor.wait_for_end(), 0)

    def test_are_in_force_after_a_restart(self):
        editor, window = self.open_preferences()
        editor.enter("Width in pixels:", "123", window)
        editor.click("page tab", "Miscellaneous", window)
        editor.click("radio button", "Frame list mode", window)
        editor.click("push button", "Save", window)
        self.session.wait_for_no_window("^Preferences$")
        self.quit(editor)

        editor = self.start_editor()
        editor.wait_for_field("Width:", "123")
        editor.wait_for_label("Preview: 100%")
        editor.choose("View", "Preferences...")
        self.session.wait_until_active("^Preferences$")
        editor.wait_for_field("Width in pixels:", "123", editor.window("Preferences"))

    def test_are_dropped_by_cancel(self):
        editor, window = self.open_preferences()
        before = editor.field("Width in pixels:", window)
        editor.enter("Width in pixels:", "123", window)
        editor.click("push button", "Cancel", window)
        self.session.wait_for_no_window("^Preferences$")
        editor.choose("View", "Preferences...")
        self.session.wait_until_active("^Preferences$")
        self.assertEqual(editor.field("Width in pixels:", editor.window("Preferences")), before)

    def test_refuse_what_is_out_of_range(self):
        editor, window = self.open_preferences()
        editor.click("page tab", "Thumbnail", window)
        editor.enter("Maximum thumbnail height:", "5000", window)
        editor.answer("This value can't be greater than 1000.", "OK")
        editor.wait_for_field("Maximum thumbnail height:", "1000", window)
