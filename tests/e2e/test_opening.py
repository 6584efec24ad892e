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
