from editor_test import BLUE, EditorTest, GREEN, RED


class Editing(EditorTest):
    def test_reorders_frames_by_menu(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.choose("Frame", "Move Down")
        editor.wait_for_status(3, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(3, modified=False)
        self.assertEqual(self.colors(path), [GREEN, RED, BLUE])

    def test_reverses_all_frames(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_label("frame0000")
        editor.choose("Frame", "Reverse All")
        editor.wait_for_label("frame0002")
        # To reverse is no modification, so "Save" would write nothing.
        editor.wait_for_status(3, modified=False)
        editor.save_as(self.folder / "reversed.gif")
        self.assertEqual(self.colors(self.folder / "reversed.gif"), [BLUE, GREEN, RED])

    def test_fades_to_the_next_frame(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.choose("Frame", "Fade Effects...")
        self.session.wait_until_active("^Fade Effects$")
        dialog = editor.window("Fade Effects")
        editor.choose_item("to an rgb color", "to next frame", dialog)
        editor.enter("Frame count:", "4", dialog)
        editor.click("push button", "OK", dialog)
        editor.wait_for_status(7, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(7, modified=False)
        colors = self.colors(path)
        self.assertEqual([colors[0], *colors[5:]], [RED, GREEN, BLUE])
        # On its way from red to green each frame is redder than the next.
        reds = [frame[0] for frame in self.frames(path.rename(self.folder / "faded.gif"))[:6]]
        self.assertEqual(reds, sorted(reds, reverse=True))
        self.assertEqual(len(set(reds)), 6)

    def test_saves_edited_pauses(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        editor.enter("Pause length", "45")
        editor.wait_for_status(3, modified=True)
        editor.wait_for_field("Pause length", "45.00")
        editor.select_thumbnail(1, "frame0001")
        editor.click("check box", "Use pause")
        editor.enter("Length:", "120")
        editor.wait_for_field("Length:", "120.00")
        editor.choose("File", "Save")
        editor.wait_for_status(3, modified=False)
        pauses = self.session.call("identify", "-format", "%T ", path).split()
        self.assertEqual(pauses, ["45", "120", "45"])

    def test_what_is_saved_is_what_is_opened_again(self):
        source, target = self.animation(), self.folder / "again.gif"
        editor = self.start_editor(source)
        editor.wait_for_status(3, modified=False)
        editor.save_as(target)
        editor.wait_for_status(3, modified=False)
        editor.choose("File", "New")
        editor.wait_for_title("Kirto - untitled")
        editor.wait_for_status(0, modified=False)
        editor.open(target)
        editor.wait_for_status(3, modified=False)
        editor.wait_for_field("Pause length", "30.00")
        self.assertEqual(self.frames(target), self.frames(source))
        self.assertEqual(self.info(target)["frames"], self.info(source)["frames"])
