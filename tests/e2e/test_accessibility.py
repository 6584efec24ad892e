import walk_accessibility as accessibility
from editor_test import EditorTest


class Accessibility(EditorTest):
    """Whatever takes the keyboard has a name that a screen reader can say."""

    def open_colors(self):
        editor = self.start_editor(self.animation())
        editor.wait_for_status(3, modified=False)
        return editor

    def check(self, window):
        taking = [node for _, node in accessibility.visible_nodes(window)
                  if accessibility.takes_keyboard(node)]
        self.assertGreater(len(taking), 1, accessibility.tree(window))
        self.assertEqual(accessibility.nameless(window), [], accessibility.tree(window))

    def test_names_the_main_window_in_thumbnail_mode(self):
        editor = self.open_colors()
        editor.node("filler", "Thumbnails")
        self.check(editor.main_window())

    def test_names_the_main_window_in_frame_list_mode(self):
        editor = self.open_colors()
        editor.choose("View", "Toggle Mode")
        editor.node("push button", "Move Up")
        self.check(editor.main_window())

    def test_names_the_player(self):
        editor = self.open_colors()
        editor.choose("View", "Show Player")
        editor.node("list", "Timeline")
        self.check(editor.main_window())

    def test_names_the_fade_dialog(self):
        editor = self.open_colors()
        editor.choose("Frame", "Fade Effects...")
        self.session.wait_until_active("^Fade Effects$")
        self.check(editor.window("Fade Effects"))

    def test_names_every_page_of_the_preferences(self):
        editor = self.start_editor()
        editor.choose("View", "Preferences...")
        self.session.wait_until_active("^Preferences$")
        window = editor.window("Preferences")
        pages = {"Global": "Width in pixels:", "Palette": "Background index:",
                 "Thumbnail": "Minimum thumbnail height:", "Animation": "Write interlaced frames",
                 "Miscellaneous": "Write temporary files to:"}
        for page, control in pages.items():
            editor.click("page tab", page, window)
            editor.wait_for_name(control, window)
            self.check(window)

    def test_names_an_alert(self):
        editor = self.open_colors()
        editor.choose("Frame", "Move Down")
        editor.wait_for_status(3, modified=True)
        editor.choose("File", "Quit")
        self.session.wait_until_active("^Kirto$")
        self.check(editor.window("Kirto"))
