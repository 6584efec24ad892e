import compare_in_browser
from editor_test import BLUE, EditorTest, GREEN, RED, WHITE


class Clipboard(EditorTest):
    """What passes over the clipboard of the X server, from and to another program."""

    def start_clipboard_peer(self, mode, kind, path):
        return self.session.start(self.programs / "tests/e2e/kirto_clipboard_peer", mode, kind, path)

    def open_colors(self):
        path = self.animation(colors=(RED, GREEN, BLUE))
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        return editor, path

    def test_pastes_an_image_of_another_program_behind_the_current_frame(self):
        peer = self.start_clipboard_peer("offer", "image/png", self.picture(WHITE))
        peer.wait_for_line("^offered$")
        editor, path = self.open_colors()
        self.session.key("ctrl+v")
        editor.wait_for_status(4, modified=True)
        editor.wait_for_history("Paste", "")
        editor.choose("File", "Save")
        editor.wait_for_status(4, modified=False)
        self.assertEqual(self.colors(path), [RED, WHITE, GREEN, BLUE])

    def test_pastes_all_frames_of_an_animation_of_another_program(self):
        other = self.animation("other.gif", (WHITE, BLUE))
        peer = self.start_clipboard_peer("offer", "image/gif", other)
        peer.wait_for_line("^offered$")
        editor, path = self.open_colors()
        self.session.key("ctrl+v")
        editor.wait_for_status(5, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(5, modified=False)
        self.assertEqual(self.colors(path), [RED, WHITE, BLUE, GREEN, BLUE])

    def test_says_what_can_not_be_pasted(self):
        broken = self.folder / "broken.png"
        broken.write_bytes(b"\x89PNG\r\n\x1a\n and nothing else")
        peer = self.start_clipboard_peer("offer", "image/png", broken)
        peer.wait_for_line("^offered$")
        editor, _ = self.open_colors()
        self.session.key("ctrl+v")
        editor.wait_for_label("What is on the clipboard can't be pasted because it was damaged "
                              "or is unsupported.")
        editor.wait_for_status(3, modified=False)

    def test_another_program_takes_an_animation_or_an_image(self):
        editor, _ = self.open_colors()
        self.session.type("1-2")
        self.session.key("Return")
        editor.wait_for_label("2 of 3 selected, 0.60 s of 0.90 s, 3.33 fps")
        holder = self.start_clipboard_peer("offer", "image/png", self.picture(WHITE))
        holder.wait_for_line("^offered$")
        self.session.key("ctrl+c")
        self.assertEqual(holder.wait_for_end(), 0)
        self.assertIn("lost", holder.output())

        gif, png = self.folder / "taken.gif", self.folder / "taken.png"
        for kind, path in (("image/gif", gif), ("image/png", png)):
            peer = self.start_clipboard_peer("take", kind, path)
            self.assertEqual(peer.wait_for_end(), 0, peer.output())
        frames = compare_in_browser.imagemagick_frames(gif)
        self.assertEqual([frame.milliseconds for frame in frames], [300, 300])
        self.assertEqual([frame.rgba[:4] for frame in frames], [bytes(GREEN), bytes(BLUE)])
        self.assertEqual(self.pixels(png)[:4], bytes(GREEN))
        editor.wait_for_status(3, modified=False)
