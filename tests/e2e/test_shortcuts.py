import walk_accessibility as accessibility
from desktop_session import wait_until
from editor_test import EditorTest

# The text fields of the panels, with the edits that the menu offers to undo after them.
FIELDS = {
    "Width:": "Change Width",
    "Height:": "Change Height",
    "Pause length": "Change Pause Length",
    "Loop count": "Change Loop Count",
    "Background index:": "Change Background Index",
    "Transparent index": "Change Transparent Index",
    "X offset:": "Change X Offset",
    "Y offset:": "Change Y Offset",
    "Length:": "Change Frame Pause Length",
}
# The pop-up menus, where letters choose items. Each has the keyboard so many Tab keys after a field.
MENUS = {"web safe": ("Loop count", 1), "greyscale": ("Length:", 2)}
DIALOGS = {
    "ctrl+o": "Open Animation",
    "ctrl+i": "Insert Frames",
    "ctrl+t": "Insert Tiled Frame",
    "ctrl+f": "Fade Effects",
}
DOWN, UP, REMOVE = "Move Frame Down", "Move Frame Up", "Remove Frame"


class Shortcuts(EditorTest):
    """The menu's shortcuts, wherever the keyboard is."""

    def setUp(self):
        super().setUp()
        path, self.shown = self.folder / "shortcuts.gif", self.folder / "shown in the browser"
        of_each_frame = [word for number in range(3) for word in (
            "--select", number, "--frame-pause", 20 + number, "--frame-palette", "greyscale")]
        self.kirto_cli("--open", self.animation(), "--pause", "30", "--transparent", "1",
                       *of_each_frame, "--save", path)
        self.make_browser()
        self.start_editor(path).wait_for_status(3, modified=False)
        self.editor.select_thumbnail(1, "frame0001")
        self.status = next(label for label in self.editor.nodes("label")
                           if label.get_name().startswith("Status: "))

    def make_browser(self):
        """A browser that does no more than note what it is to show."""
        browser = self.folder / "browser"
        browser.write_text(f'#!/bin/sh\necho "$1" >> "{self.shown}"\n')
        browser.chmod(0o700)
        self.session.environment["BROWSER"] = str(browser)

    # What a user does and sees. The field has the keyboard before each key.

    def press(self, *keys):
        self.session.call("xdotool", "key", "--delay", "2", *keys)

    def put_keyboard_on(self, control):
        # A pop-up menu can't be asked to take it.
        field, tabs = MENUS.get(control.get_name(), (None, 0))
        if field and not self.has_keyboard(control):
            self.put_keyboard_on(self.editor.node("text", field))
            self.press(*["Tab"] * tabs)
        elif not field:
            control.grab_focus()
        wait_until(lambda: self.has_keyboard(control),
                   f"{accessibility.describe(control)} to have the keyboard")

    def has_keyboard(self, control):
        control.clear_cache()
        return accessibility.has(control, accessibility.Atspi.StateType.FOCUSED)

    def is_modified(self):
        self.status.clear_cache()
        return not self.status.get_name().endswith("unmodified")

    def check_edit(self, control, key, undo, redo, modified=None):
        self.put_keyboard_on(control)
        self.press(key)
        wait_until(lambda: self.editor.history() == (undo, redo),
                   f"{key} to work in {accessibility.describe(control)}; "
                   f"expected {undo!r} to undo and {redo!r} to redo")
        if modified is not None:
            wait_until(lambda: self.is_modified() == modified,
                       f"modified {modified} after {key} in {accessibility.describe(control)}")

    def check_window(self, control, key, title):
        """The key opens a window of that title, which is closed again."""
        self.put_keyboard_on(control)
        self.press(key)
        wait_until(lambda: self.session.active_title() == title,
                   f"{key} to open {title!r} from {accessibility.describe(control)}")
        self.press("Escape")
        self.session.wait_until_active("^Kirto - ")

    def check_mode(self, control):
        self.put_keyboard_on(control)
        self.press("ctrl+m")
        self.editor.node("list", "Frames")
        self.put_keyboard_on(control)
        self.press("ctrl+m")
        self.editor.node("filler", "Thumbnails")

    def check_preview(self, control):
        self.shown.unlink(missing_ok=True)
        self.put_keyboard_on(control)
        self.press("ctrl+p")
        wait_until(self.shown.exists, f"ctrl+p to work in {accessibility.describe(control)}")

    def check_edits(self, control):
        """The keys that change the document, which is what it was in the end."""
        # What the fields before have left to undo.
        earlier, _ = self.editor.history()
        self.check_edit(control, "ctrl+d", DOWN, "", modified=True)
        self.check_edit(control, "ctrl+z", earlier, DOWN, modified=False)
        self.check_edit(control, "ctrl+shift+z", DOWN, "")
        self.check_edit(control, "ctrl+u", UP, "")
        self.check_edit(control, "ctrl+z", DOWN, UP)
        self.check_edit(control, "ctrl+y", UP, "")
        self.check_edit(control, "ctrl+r", REMOVE, "", modified=True)
        self.check_edit(control, "ctrl+z", UP, REMOVE)
        for key in ("ctrl+n", "ctrl+q"):
            self.check_window(control, key, "Kirto")
        self.check_edit(control, "ctrl+s", UP, REMOVE, modified=False)

    def check_others(self, control):
        for key, title in DIALOGS.items():
            self.check_window(control, key, title)
        self.check_mode(control)
        self.check_preview(control)

    def test_work_in_every_text_field(self):
        for name in FIELDS:
            control = self.editor.node("text", name)
            before = accessibility.text(control)
            self.check_edits(control)
            self.check_others(control)
            # Nothing of it was done to the text.
            self.assertEqual(accessibility.text(control), before, name)

    def test_work_in_every_pop_up_menu(self):
        for name in MENUS:
            control = self.editor.node("combo box", name)
            self.check_edits(control)
            self.check_others(control)
            self.check_window(control, "ctrl+a", "Save Animation")
            self.assertEqual(control.get_name(), name)

    def test_what_is_being_typed_becomes_an_edit_before_it_is_undone(self):
        for name, edit in FIELDS.items():
            control = self.editor.node("text", name)
            before, after = accessibility.text(control), "3"
            self.assertNotEqual(before, after)
            self.put_keyboard_on(control)
            # In a text field this selects the text.
            self.press("ctrl+a", after)
            wait_until(lambda: accessibility.text(control) == after, f"{after} typed in {name}")
            self.check_edit(control, "ctrl+z", "", edit, modified=False)
            self.assertEqual(accessibility.text(control), before, name)
            self.check_edit(control, "ctrl+y", edit, "", modified=True)
            self.assertEqual(float(accessibility.text(control)), 3, name)
            self.check_edit(control, "ctrl+z", "", edit)
