import desktop_session
from editor_test import EditorTest, WHITE

# After so many edits of the session the document is saved.
SAVED = 6


class Step:
    """An edit, as the menu names it, with what was shown just before and after it."""

    def __init__(self, name, before, after, frames):
        self.name, self.before, self.after, self.frames = name, before, after, frames


class Undo(EditorTest):
    """A whole session of edits, undone and made again."""

    def setUp(self):
        super().setUp()
        self.path = self.animation()
        self.original = self.info(self.path), self.frames(self.path)
        self.start_editor(self.path).wait_for_status(3, modified=False)
        self.editor.choose("View", "Toggle Mode")
        self.editor.node("list item", "frame #0002    frame0002")
        self.steps = []
        self.shown = self.settled()
        self.make_session()

    # The session

    def settled(self):
        """What is shown once it does not change any more."""
        shown = [None, None]

        def twice():
            shown[0], shown[1] = shown[1], self.editor.seen()
            return shown[0] == shown[1]
        desktop_session.wait_until(twice, "the window to settle")
        return shown[1]

    def edit(self, name, frames, make):
        """Makes an edit that the menu is to call by that name, and that leaves so many frames."""
        before = self.shown
        make()
        self.editor.wait_for_history(name, "")
        self.editor.wait_for_status(frames, modified=True)
        self.shown = self.settled()
        self.steps.append(Step(name, before, self.shown, frames))
        self.assertNotEqual(before, self.shown, f"nothing to be seen of {name!r}")

    def make_session(self):
        editor, press = self.editor, self.session.key
        pictures = [self.picture(WHITE, name) for name in ("one", "two")]

        def insert():
            press("ctrl+i")
            editor.name_file("Insert Frames", *pictures)
        self.edit("Insert", 5, insert)
        self.edit("Change Width", 5, lambda: editor.enter("Width:", "123"))
        self.edit("Change Loop", 5, lambda: editor.click("check box", "Use loop:"))
        self.edit("Change Pause Length", 5, lambda: editor.enter("Pause length", "45"))
        editor.click("list item", "frame #0003    frame0001")
        editor.wait_for_label("frame0001")
        self.shown = self.settled()
        self.edit("Change X Offset", 5, lambda: editor.enter("X offset:", "7"))
        self.edit("Remove Frame", 4, lambda: press("ctrl+r"))
        assert len(self.steps) == SAVED
        press("ctrl+s")
        editor.wait_for_status(4, modified=False)
        self.edit("Move Frame Up", 4, lambda: press("ctrl+u"))
        self.edit("Reverse All", 4, lambda: editor.choose("Frame", "Reverse All"))
        self.edit("Fade", 6, self.fade)
        self.edit("Change Palette", 6, lambda: editor.choose_item("web safe", "greyscale"))

    def fade(self):
        self.session.key("ctrl+f")
        self.session.wait_until_active("^Fade Effects$")
        dialog = self.editor.window("Fade Effects")
        self.editor.enter("Frame count:", "2", dialog)
        self.editor.click("push button", "OK", dialog)
        self.session.wait_until_active("^Kirto - ")

    # Back and forth

    def check(self, state, shown, frames, what):
        self.editor.wait_for_history(self.steps[state - 1].name if state > 0 else "",
                                     self.steps[state].name if state < len(self.steps) else "")
        self.editor.wait_for_seen(shown, what)
        self.editor.wait_for_status(frames, modified=state != SAVED)

    def undo_all(self, undo):
        """Takes every step back by undo(name), and looks at the document after each."""
        for state in reversed(range(len(self.steps))):
            step = self.steps[state]
            undo(step.name)
            frames = self.steps[state - 1].frames if state > 0 else 3
            self.check(state, step.before, frames, f"what was before {step.name!r}")

    def redo_all(self, redo):
        for state, step in enumerate(self.steps, 1):
            redo(step.name)
            self.check(state, step.after, step.frames, f"what was after {step.name!r}")

    def test_goes_back_and_forth_by_keyboard_and_by_menu(self):
        self.undo_all(lambda name: self.session.key("ctrl+z"))
        self.redo_all(lambda name: self.session.key("ctrl+shift+z"))
        self.undo_all(lambda name: self.editor.choose("Edit", f"Undo {name}"))
        self.redo_all(lambda name: self.editor.choose("Edit", f"Redo {name}"))

    def test_saves_what_was_undone_and_made_again_as_it_was(self):
        count, start, end, again = len(self.steps), *(
            self.folder / name for name in ("start.gif", "end.gif", "again.gif"))
        self.editor.save_as(end)
        self.editor.wait_for_status(6, modified=False)
        self.session.key(*["ctrl+z"] * count)
        self.editor.wait_for_history("", self.steps[0].name)
        self.editor.save_as(start)
        self.editor.wait_for_status(3, modified=False)
        self.session.key(*["ctrl+y"] * count)
        self.editor.wait_for_history(self.steps[-1].name, "")
        self.editor.wait_for_status(6, modified=True)
        self.editor.save_as(again)
        self.editor.wait_for_status(6, modified=False)
        self.assertEqual(again.read_bytes(), end.read_bytes())
        self.assertEqual((self.info(start)["frames"], self.frames(start)),
                         (self.original[0]["frames"], self.original[1]))
        self.drop_what_was_undone()

    def drop_what_was_undone(self):
        """A new edit leaves nothing to make again, and the saved state out of reach."""
        self.session.key(*["ctrl+z"] * (len(self.steps) - 1))
        self.editor.wait_for_history(self.steps[0].name, self.steps[1].name)
        self.editor.choose("Frame", "Move Down")
        self.editor.wait_for_history("Move Frame Down", "")
        self.session.key("ctrl+z", "ctrl+z")
        self.editor.wait_for_history("", self.steps[0].name)
        self.editor.wait_for_status(3, modified=True)
