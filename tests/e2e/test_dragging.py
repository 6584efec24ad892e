from editor_test import (BLUE, EditorTest, GREEN, PEER_MIDDLE, RED, THUMBNAIL_GAP, WHITE)


class Dragging(EditorTest):
    def open_colors(self):
        path = self.animation()
        editor = self.start_editor(path)
        editor.wait_for_status(3, modified=False)
        return editor, path

    def grab(self, editor, index):
        left, top, width, height = editor.thumbnail(index)
        return left + width // 2, top + height // 2

    def test_dropped_files_are_inserted_between_thumbnails(self):
        editor, path = self.open_colors()
        peer = self.start_peer("offer", self.picture(WHITE))
        left, top, _, height = editor.thumbnail(2)
        self.session.drag(PEER_MIDDLE, (left - THUMBNAIL_GAP // 2, top + height // 2),
                          has_begun=lambda: "begun" in peer.output(),
                          is_over=lambda: "accepted" in peer.output())
        peer.wait_for_line("^dropped$")
        editor.wait_for_status(4, modified=True)
        editor.wait_for_label("white.png")
        editor.choose("File", "Save")
        editor.wait_for_status(4, modified=False)
        self.assertEqual(self.colors(path), [RED, GREEN, WHITE, BLUE])

    def test_files_dropped_below_all_thumbnails_are_appended(self):
        editor, path = self.open_colors()
        peer = self.start_peer("offer", self.picture(WHITE))
        left, top, width, height = editor.thumbnail(2)
        self.session.drag(PEER_MIDDLE, (left + width + 20, top + height + 40),
                          has_begun=lambda: "begun" in peer.output(),
                          is_over=lambda: "accepted" in peer.output())
        peer.wait_for_line("^dropped$")
        editor.wait_for_status(4, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(4, modified=False)
        self.assertEqual(self.colors(path), [RED, GREEN, BLUE, WHITE])

    def test_a_thumbnail_dragged_out_becomes_a_targa_file(self):
        editor, path = self.open_colors()
        folder = self.folder / "received"
        folder.mkdir()
        peer = self.start_peer("accept", folder)
        self.session.drag(self.grab(editor, 1), PEER_MIDDLE,
                          has_begun=self.is_dragging,
                          is_over=lambda: "entered" in peer.output())
        name = peer.wait_for_line("^copied (.*)$").group(1)
        self.assertEqual(self.pixels(f"tga:{folder / name}"), self.frames(path)[1])
        editor.wait_for_label("frame0001")
        editor.wait_for_status(3, modified=False)

    def test_a_thumbnail_is_saved_where_the_target_says(self):
        editor, path = self.open_colors()
        folder = self.folder / "received"
        folder.mkdir()
        peer = self.start_peer("direct-save", folder)
        self.session.drag(self.grab(editor, 2), PEER_MIDDLE,
                          has_begun=self.is_dragging,
                          is_over=lambda: "over" in peer.output().split())
        name = peer.wait_for_line("^saved (.*)$").group(1)
        self.assertEqual([file.name for file in folder.iterdir()], [name])
        self.assertEqual(self.pixels(f"tga:{folder / name}"), self.frames(path)[2])
        editor.wait_for_status(3, modified=False)

    def test_a_thumbnail_dragged_back_changes_nothing(self):
        editor, path = self.open_colors()
        self.session.drag(self.grab(editor, 0), self.grab(editor, 2),
                          has_begun=self.is_dragging, is_over=lambda: True)
        editor.choose("Frame", "Move Down")
        editor.wait_for_status(3, modified=True)
        editor.choose("File", "Save")
        editor.wait_for_status(3, modified=False)
        self.assertEqual(self.colors(path), [GREEN, RED, BLUE])
