import json

import walk_accessibility as accessibility
from desktop_session import wait_until
from editor_test import BLUE, EditorTest, GREEN, RED


class Exporting(EditorTest):
    def export(self, format_key, name, question=None):
        """Exports the animation of three colors by keyboard, in the format that the key chooses, and
        replaces files where that question is asked."""
        editor = self.start_editor(self.animation())
        self.session.key("ctrl+e")
        self.session.wait_until_active("^Export$")
        dialog = editor.window("Export")
        editor.focus("combo box", "GIF", dialog)
        self.session.key(format_key)
        path = self.folder / name
        button = editor.node("push button", "Export...", dialog)
        wait_until(lambda: accessibility.has(button, accessibility.Atspi.StateType.ENABLED),
                   "the file to be made")
        self.session.key("alt+x")
        editor.name_file("Export As", path)
        if question:
            editor.answer(question, "Replace")
        self.session.wait_for_no_window("^Export$")
        wait_until(path.exists, f"{name} to be there")
        return path

    def test_writes_an_animated_webp_by_keyboard(self):
        path = self.export("w", "colors.webp")
        self.assertEqual(path.read_bytes()[8:12], b"WEBP")
        self.assertEqual(self.info(path)["frame_count"], 3)
        self.assertEqual(self.colors(path), [RED, GREEN, BLUE])

    def test_writes_an_animated_png_by_keyboard(self):
        path = self.export("a", "colors.png")
        self.assertEqual(path.read_bytes()[:4], b"\x89PNG")
        self.assertEqual(self.info(path)["frame_count"], 3)

    def test_writes_a_sheet_and_its_text_by_keyboard(self):
        path = self.export("s", "colors.png")
        text = json.loads(path.with_suffix(".json").read_text())
        self.assertEqual(text["meta"]["image"], "colors.png")
        self.assertEqual(len(text["frames"]), 3)
        self.assertEqual(path.read_bytes()[:4], b"\x89PNG")

    def test_asks_before_it_replaces_files_that_were_not_named(self):
        (self.folder / "colors0001.png").write_bytes(b"mine")
        (self.folder / "colors.png").write_bytes(b"mine as well")
        self.export("n", "colors.png",
                    "Some of the files exist already (1). Do you want to replace them?")
        self.assertEqual((self.folder / "colors0001.png").read_bytes()[:4], b"\x89PNG")
        self.assertTrue((self.folder / "colors0002.png").exists())
        self.assertEqual((self.folder / "colors.png").read_bytes(), b"mine as well")
