from editor_test import BLUE, EditorTest, GREEN, RED, WHITE


class Keyboard(EditorTest):
    def test_does_a_whole_job_alone(self):
        path, picture = self.animation(), self.picture(WHITE)
        press, editor = self.session.key, self.start_editor()

        press("ctrl+o")
        editor.name_file("Open Animation", path)
        self.session.wait_until_active("^Kirto - ")
        editor.wait_for_status(3, modified=False)

        # Arrow keys select, from the first frame to the last.
        press("Right")
        editor.wait_for_label("frame0001")
        press("Right")
        editor.wait_for_label("frame0002")
        press("ctrl+u")
        editor.wait_for_status(3, modified=True)

        press("ctrl+s")
        editor.wait_for_status(3, modified=False)
        self.assertEqual(self.colors(path), [RED, BLUE, GREEN])

        press("Delete")
        editor.wait_for_status(2, modified=True)
        press("Insert")
        editor.name_file("Insert Frames", picture)
        editor.wait_for_status(3, modified=True)
        editor.wait_for_label("white.png")

        self.fade_out(editor)
        self.set_pause(editor)

        press("alt+f")
        editor.node("menu item", "Save As...")
        press("a")
        target = self.folder / "by keyboard.gif"
        editor.name_file("Save Animation", target)
        editor.wait_for_status(5, modified=False)
        press("ctrl+q")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(self.info(target)["frames"][0]["name"], "frame0000")
        self.assertEqual(len(self.colors(target)), 5)

    def test_moves_a_frame_from_within_a_field(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.select_thumbnail(1, "frame0001")
        editor.focus("text", "X offset:")
        self.session.key("ctrl+a")
        self.session.type("5")
        self.session.key("ctrl+u")
        editor.wait_for_status(3, modified=True)
        editor.select_thumbnail(1, "frame0000")
        editor.wait_for_field("X offset:", "0")
        editor.select_thumbnail(0, "frame0001")
        editor.wait_for_field("X offset:", "5")

    def fade_out(self, editor):
        """Two frames from the current one to black."""
        self.session.key("ctrl+f")
        self.session.wait_until_active("^Fade Effects$")
        dialog = editor.window("Fade Effects")
        editor.focus("text", "Frame count:", dialog)
        self.session.key("ctrl+a")
        self.session.type("2")
        self.session.key("Return")
        editor.wait_for_status(5, modified=True)

    def set_pause(self, editor):
        """A pause of half a second for all frames."""
        self.session.wait_until_active("^Kirto - ")
        editor.focus("text", "Pause length")
        self.session.key("ctrl+a")
        self.session.type("50")
        self.session.key("Tab")
        editor.wait_for_field("Pause length", "50.00")
