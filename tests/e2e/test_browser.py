import compare_in_browser
from editor_test import BLUE, EditorTest, GREEN, RED


class Browser(EditorTest):
    def setUp(self):
        missing = compare_in_browser.missing_programs()
        if missing:
            self.skipTest(f"{', '.join(missing)} is missing; ./dev test installs it")
        super().setUp()

    def test_shows_a_saved_animation_as_the_editor_has_it(self):
        path = self.animation(colors=(RED, GREEN, BLUE))
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.select_thumbnail(1, "frame0001")
        editor.click("check box", "Use pause")
        editor.enter("Length:", "120")
        editor.wait_for_status(3, modified=True)
        editor.choose("Frame", "Fade Effects...")
        self.session.wait_until_active("^Fade Effects$")
        dialog = editor.window("Fade Effects")
        editor.choose_item("to an rgb color", "to next frame", dialog)
        editor.enter("Frame count:", "3", dialog)
        editor.click("push button", "OK", dialog)
        editor.wait_for_status(6, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(6, modified=False)

        shown = compare_in_browser.browser_frames(path)
        self.assertEqual([frame.milliseconds for frame in shown],
                         [300, 1200, 300, 300, 300, 300])
        self.assertEqual([frame.rgba for frame in shown], self.frames(path))
        self.assertEqual(
            compare_in_browser.differences(shown, compare_in_browser.imagemagick_frames(path)), [])
