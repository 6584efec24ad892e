import compare_in_browser
from desktop_session import wait_until
from editor_test import BLUE, EditorTest, GREEN, NAMES, RED, WHITE

TEN = (RED, GREEN, BLUE, WHITE, RED, GREEN, BLUE, WHITE, RED, GREEN)


class Arranging(EditorTest):
    """The jobs that several frames are selected for, with as few strokes as they take: a key, a
    word typed, a click or a drag each."""

    def setUp(self):
        super().setUp()
        self.strokes = 0

    def open_ten(self):
        path = self.animation("ten.gif", TEN)
        editor = self.start_editor(path)
        editor.wait_for_status(10, modified=False)
        return editor, path

    def key(self, *keys):
        for key in keys:
            self.session.key(key)
            self.strokes += 1

    def type(self, text):
        self.session.type(text)
        self.strokes += 1

    def in_dialog(self, title, *words):
        """Types words into the fields of a dialog one after the other, and confirms."""
        self.session.wait_until_active(f"^{title}$")
        for number, word in enumerate(words):
            if number > 0:
                self.key("Tab")
            self.type(word)
        self.key("Return")
        self.session.wait_for_no_window(f"^{title}$")
        self.session.wait_until_active("^Kirto - ")

    def save(self, editor, frames):
        editor.choose("File", "Save")
        editor.wait_for_status(frames, modified=False)

    def expect_in_browser(self, path, colors, milliseconds, drawn_on=()):
        """The browser shows frames of one color each, but for those that were drawn on, all for as
        long."""
        missing = compare_in_browser.missing_programs()
        if missing:
            self.skipTest(f"{', '.join(missing)} is missing; ./dev test installs it")
        shown = compare_in_browser.browser_frames(path)
        others = [number for number, (frame, color) in enumerate(zip(shown, colors, strict=True))
                  if frame.rgba != bytes(color) * (frame.width * frame.height)]
        self.assertEqual(others, list(drawn_on))
        self.assertEqual([frame.milliseconds for frame in shown], [milliseconds] * len(colors))

    def pauses(self, path):
        info = self.info(path)
        return [frame["pause_length"] if frame["use_pause"] else info["pause_length_global"]
                for frame in info["frames"]]

    def test_deletes_a_range_and_plays_all_at_one_speed_by_keyboard(self):
        editor, path = self.open_ten()
        self.key("ctrl+g")
        self.in_dialog("Select Range", "3-7")
        editor.wait_for_label("5 of 10 selected, 1.50 s of 3.00 s, 3.33 fps")
        self.key("Delete")
        editor.wait_for_status(5, modified=True)
        self.key("ctrl+l")
        self.in_dialog("Set Pause", "40ms")
        editor.wait_for_label("0.20 s, 25 fps")
        self.assertLessEqual(self.strokes, 8)
        self.save(editor, 5)
        self.assertEqual(self.colors(path), [RED, GREEN, BLUE, RED, GREEN])
        self.assertEqual(self.pauses(path), [4] * 5)
        self.expect_in_browser(path, [RED, GREEN, BLUE, RED, GREEN], 40)

    def test_plays_forward_and_back_by_keyboard(self):
        editor, path = self.open_ten()
        self.key("alt+a", "f")
        editor.wait_for_status(18, modified=True)
        self.assertLessEqual(self.strokes, 2)
        self.save(editor, 18)
        self.assertEqual(self.colors(path), list(TEN) + list(TEN[-2:0:-1]))
        self.expect_in_browser(path, list(TEN) + list(TEN[-2:0:-1]), 300)

    def test_drops_every_second_frame_and_keeps_the_duration_by_keyboard(self):
        editor, path = self.open_ten()
        self.key("alt+a", "d")
        self.session.wait_until_active("^Drop Every Nth$")
        self.key("Return")
        editor.wait_for_status(5, modified=True)
        self.assertLessEqual(self.strokes, 4)
        self.save(editor, 5)
        self.assertEqual(self.colors(path), list(TEN[::2]))
        self.assertEqual(self.pauses(path), [60] * 5)
        self.expect_in_browser(path, list(TEN[::2]), 600)

    def test_moves_frames_to_a_place_by_keyboard(self):
        editor, path = self.open_ten()
        self.key("ctrl+b")
        self.in_dialog("Move To", "8-9", "3")
        editor.wait_for_status(10, modified=True)
        self.save(editor, 10)
        self.assertEqual(self.colors(path), [*TEN[:3], *TEN[8:], *TEN[3:8]])

    def test_moves_frames_that_are_typed_with_their_place(self):
        editor, path = self.open_ten()
        self.key("ctrl+b")
        self.in_dialog("Move To", "7-9>3")
        editor.wait_for_status(10, modified=True)
        self.assertLessEqual(self.strokes, 4)
        self.save(editor, 10)
        self.expect_in_browser(path, [*TEN[:3], *TEN[7:], *TEN[3:7]], 300)

    def test_moves_frames_to_a_place_by_dragging_them(self):
        editor, path = self.open_ten()
        left, top, width, height = editor.thumbnail(8)
        self.session.click(left + width // 2, top + height // 2)
        editor.wait_for_label("frame0008")
        self.key("shift+Right")
        editor.wait_for_label("2 of 10 selected, 0.60 s of 3.00 s, 3.33 fps")
        place = editor.thumbnail(3)
        self.session.drag((left + width // 2, top + height // 2),
                          (place[0] + 2, place[1] + place[3] // 2),
                          has_begun=self.is_dragging, is_over=lambda: True)
        editor.wait_for_status(10, modified=True)
        self.save(editor, 10)
        self.assertEqual(self.colors(path), [*TEN[:3], *TEN[8:], *TEN[3:8]])

    def test_copies_frames_into_another_editor(self):
        editor, _ = self.open_ten()
        self.key("ctrl+g")
        self.in_dialog("Select Range", "0-4")
        editor.wait_for_label("5 of 10 selected, 1.50 s of 3.00 s, 3.33 fps")
        self.key("ctrl+c")
        other = self.start_editor()
        self.key("ctrl+v")
        other.wait_for_status(5, modified=True)
        path = self.folder / "copied.gif"
        other.save_as(path)
        self.assertEqual(self.colors(path), list(TEN[:5]))

    def test_copies_frames_that_are_typed_into_another_editor(self):
        editor, _ = self.open_ten()
        self.type("0-4")
        self.key("Return")
        editor.wait_for_label("5 of 10 selected, 1.50 s of 3.00 s, 3.33 fps")
        self.key("ctrl+c")
        other = self.start_editor()
        self.key("ctrl+v")
        other.wait_for_status(5, modified=True)
        self.assertLessEqual(self.strokes, 4)
        path = self.folder / "copied.gif"
        other.save_as(path)
        self.expect_in_browser(path, TEN[:5], 300)

    def test_cuts_a_sheet_of_tiles_with_spaces_between_them_by_keyboard(self):
        colors = [RED, GREEN, BLUE, WHITE, RED, GREEN]
        sheet = self.folder / "sheet.png"
        self.session.call("montage", "-size", "64x64", *(f"xc:{NAMES[color]}" for color in colors),
                          "-tile", "3x2", "-geometry", "64x64+1+1", "-background", "black",
                          f"png24:{sheet}")
        self.session.call("mogrify", "-shave", "1x1", sheet)
        editor = self.start_editor()
        self.key("ctrl+t")
        self.session.wait_until_active("^Insert Tiled Frame$")
        self.type(str(sheet))
        self.key("alt+w")
        self.type("64+2")
        editor.wait_for_label("196 × 130 pixels: 2 rows and 3 columns of 64 × 64 pixels.")
        self.key("Return")
        editor.wait_for_status(6, modified=True)
        self.assertLessEqual(self.strokes, 6)
        path = self.folder / "tiles.gif"
        editor.save_as(path)
        info = self.info(path)
        self.assertEqual((info["global_width"], info["global_height"]), (64, 64))
        self.expect_in_browser(path, colors, 1000)

    def test_crops_to_a_drawn_rectangle(self):
        editor, path = self.open_ten()
        self.key("alt+a", "c")
        self.session.wait_until_active("^Crop$")
        picture = editor.wait_for_name("Picture", editor.window("Crop"))
        middle = editor.middle(picture)
        self.session.drag((middle[0] - 40, middle[1] - 30), (middle[0] + 40, middle[1] + 30),
                          has_begun=lambda: True, is_over=lambda: True)
        self.strokes += 1
        self.key("Return")
        editor.wait_for_status(10, modified=True)
        self.assertLessEqual(self.strokes, 5)
        self.save(editor, 10)
        info = self.info(path)
        self.assertLess(info["global_width"], 80)
        wait_until(lambda: info["frames"][0]["width"] == info["global_width"], "the frames to fit")
        self.expect_in_browser(path, TEN, 300)

    def test_draws_a_caption_on_some_frames_by_keyboard(self):
        editor, path = self.open_ten()
        self.key("ctrl+g")
        self.in_dialog("Select Range", "5-9")
        editor.wait_for_label("5 of 10 selected, 1.50 s of 3.00 s, 3.33 fps")
        self.key("alt+a", "t")
        self.in_dialog("Text", "Hello")
        editor.wait_for_status(10, modified=True)
        self.assertLessEqual(self.strokes, 8)
        self.save(editor, 10)
        self.assertEqual(self.colors(path), [*TEN[:5], *[None] * 5])
        self.expect_in_browser(path, TEN, 300, drawn_on=range(5, 10))

    def test_makes_a_small_animation_of_numbered_pictures_by_keyboard(self):
        colors = [TEN[i % 4] for i in range(30)]
        # As a file manager would hand them over that does not count.
        pictures = sorted(str(self.picture(color, str(i + 1))) for i, color in enumerate(colors))
        editor = self.start_editor()
        self.key("ctrl+i")
        editor.name_file("Insert Frames", *pictures)
        self.strokes += 2
        editor.wait_for_status(30, modified=True)
        self.key("alt+a", "r")
        self.in_dialog("Resize Animation", "480")
        self.key("ctrl+l")
        self.in_dialog("Set Pause", "15fps")
        editor.wait_for_label("2.00 s, 15 fps")
        self.assertLessEqual(self.strokes, 10)
        path = self.folder / "small.gif"
        editor.save_as(path)
        info = self.info(path)
        self.assertEqual((info["global_width"], info["global_height"]), (480, 360))
        self.assertEqual([frame["name"] for frame in info["frames"]][:1], ["frame0000"])
        self.assertEqual(self.colors(path), colors)
        # Whole hundredths, unless animations are saved as browsers show them.
        self.expect_in_browser(path, colors, 60)
