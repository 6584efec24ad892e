import contextlib
import os
import random
import re
import time

from desktop_session import wait_until
from editor_test import EditorTest, RED
import long_work
import walk_accessibility as accessibility

ROUNDS = 3
# Makes the same choices again; a failed case names its seed.
SEED = "KIRTO_E2E_SEED"
# Seconds after the button has come up in which the work is canceled.
LATEST = 0.8

QUESTION = "Do you want to save your changes?"
PICTURES = tuple(f"{letter}.png" for letter in "abcdefghijkl")
DRAWING_FRAMES = 60
# What the status line says once there is a new frame.
FIRST_DONE = r"(?:loading|generating) (?:frame|tile) (?:[2-9]|\d\d+)\b.*"


class Canceling(EditorTest):
    """Work that takes long is stopped at a random moment, by the button and by Escape in turn, and
    by closing the window."""

    def setUp(self):
        super().setUp()
        self.seed = int(os.environ.get(SEED, random.SystemRandom().randrange(2 ** 32)))
        print(f"{SEED}={self.seed}")
        self.choices = random.Random(self.seed)
        self.turn = self.choices.randrange(2)
        self.longest = 0.0
        # File dialogs begin where the editor was started: names alone are typed faster.
        self.enterContext(contextlib.chdir(self.folder))
        # Several threads are done with the work before the button can be pressed.
        self.session.environment["KIRTO_THREADS"] = "1"
        self.button = None
        self.frames_before = 0

    def tearDown(self):
        print(f"longest: {self.longest:.3f} s")
        super().tearDown()

    # What takes long

    def start_open(self):
        self.session.key("ctrl+o")
        self.editor.name_file("Open Animation", "long.gif")

    def write_long_animation(self):
        noise, path = self.folder / "noise.png", self.folder / "long.gif"
        long_work.write_noise(noise, 500, gray=True)
        self.kirto_cli("--insert", noise, "--palette", "greyscale", "--save", path)
        long_work.repeat_frame(path, 80)

    def start_editor_on_slow_medium(self):
        environment = self.session.environment
        environment["LD_PRELOAD"] = str(self.programs / "tests/e2e/libkirto_slow_medium.so")
        self.start_editor()
        del environment["LD_PRELOAD"]

    def start_insert(self):
        self.session.key("ctrl+i")
        self.editor.name_file("Insert Frames", *PICTURES)

    def write_pictures(self, side=2500):
        first = self.folder / PICTURES[0]
        long_work.write_noise(first, side)
        long_work.link(first, PICTURES[1:])

    def start_insert_tiled(self, name="sheet.png", tiles=16):
        self.session.key("ctrl+t")
        self.session.wait_until_active("^Insert Tiled Frame$")
        dialog = self.editor.window("Insert Tiled Frame")
        for field in ("Rows:", "Columns:"):
            self.editor.enter(field, str(tiles), dialog)
        self.editor.click("text", "File name:", dialog)
        self.editor.name_file("Insert Tiled Frame", name)

    def write_sheet(self):
        long_work.write_noise(self.folder / "sheet.png", 6400, period=400)

    def start_fade(self):
        self.session.key("ctrl+f")
        self.session.wait_until_active("^Fade Effects$")
        dialog = self.editor.window("Fade Effects")
        self.editor.choose_item("to an rgb color", "from previous frame", dialog)
        self.editor.enter("Frame count:", "100", dialog)
        self.editor.click("push button", "OK", dialog)

    def start_editor_to_fade(self):
        self.write_pictures(side=1000)
        editor = self.start_editor(*PICTURES[:2])
        editor.wait_for_status(2, modified=True)
        self.frames_before = 2

    def start_save(self):
        self.session.key("ctrl+s")

    def start_preview(self):
        self.session.key("ctrl+p")

    def start_sequence(self, name):
        self.session.key("ctrl+a")
        self.session.wait_until_active("^Save Animation$")
        dialog = self.editor.window("Save Animation")
        self.editor.choose_item("Animated GIF", "XPM image sequence", dialog)
        self.editor.click("text", "File name:", dialog)
        self.editor.name_file("Save Animation", name)

    def start_editor_to_write(self, modified):
        """An editor with an animation that is opened faster than it is written; where it is, and
        the folder of previews."""
        previews = self.folder / "previews"
        previews.mkdir()
        (self.session.home / "config/Kirto_settings").write_text(
            f'palette_dither = true\nmisc_tempfilelocation = "{previews}"\n')
        picture, path = self.folder / "drawing.png", self.folder / "drawing.gif"
        self.session.call("convert", "-size", "1000x1000", "gradient:rgb(40,90,10)-rgb(200,130,77)",
                          picture)
        self.kirto_cli("--insert", picture, "--frame-palette", "optimal", "--save", path)
        long_work.repeat_frame(path, DRAWING_FRAMES)
        editor = self.start_editor(path)
        editor.wait_for_status(DRAWING_FRAMES, modified=False)
        if modified:
            editor.choose("Frame", "Move Down")
            editor.wait_for_status(DRAWING_FRAMES, modified=True)
        return path, previews

    # Stopping it

    def button_shows(self):
        if not self.button:
            found = self.editor.nodes("push button", "Cancel", self.editor.main_window())
            self.button = found[0] if found else None
        else:
            self.button.clear_cache()
        return self.button and accessibility.showing(self.button)

    def wait_for_random_moment(self):
        """Not long after the button has come up."""
        wait_until(self.button_shows, "the button to come up")
        time.sleep(self.choices.uniform(0, LATEST))

    def cancel(self):
        """Stops the work, and waits until the button is gone."""
        self.wait_for_random_moment()
        place = self.editor.middle(self.button)
        self.turn += 1
        begin = time.monotonic()
        if self.turn % 2:
            self.session.click(*place)
        else:
            self.session.key("Escape")
        wait_until(lambda: not self.button_shows(), "the button to go")
        self.longest = max(self.longest, time.monotonic() - begin)

    def wait_for_status(self, expression):
        """The match of the expression in the status line."""
        pattern = re.compile(f"^Status: {expression}$")
        line = next(label for label in self.editor.nodes("label")
                    if label.get_name().startswith("Status: "))

        def found():
            line.clear_cache()
            return pattern.search(line.get_name())
        return wait_until(found, f"the status line to say {expression!r}")

    def wait_for_kept(self):
        return int(self.wait_for_status(r"canceled, (\d+) new frame\(s\) kept")[1])

    def wait_for_frames(self, kept, modified):
        self.wait_for_status(rf"{self.frames_before + kept} frame\(s\), "
                             + ("modified" if modified else "unmodified"))

    def close_and_end(self, asks):
        """Closes the window in the middle of the work. The editor ends, and leaves nothing."""
        self.wait_for_random_moment()
        processes = self.session.processes()
        begin = time.monotonic()
        self.session.key("alt+F4")
        if asks:
            self.editor.wait_for_label(QUESTION)
            place = self.editor.middle(self.editor.node("push button", "Discard"))
            begin = time.monotonic()
            self.session.click(*place)
        self.assertEqual(self.editor.wait_for_end(), 0)
        self.longest = max(self.longest, time.monotonic() - begin)
        self.assertEqual(self.session.windows("Kirto"), [])
        # Decoders end with the editor.
        wait_until(lambda: self.session.processes() <= processes - {self.editor.process.pid},
                   "no process to be left behind")

    # What is left of it

    def check_kept(self, edit, start, modified=True, modified_before=False):
        """What was kept is one step of that name, of frames that all show the same."""
        kept = []
        for number in range(ROUNDS):
            start()
            if number == 0:
                self.wait_for_status(FIRST_DONE)
            self.cancel()
            kept.append(self.wait_for_kept())
            self.editor.wait_for_title("Kirto - untitled")
            if kept[-1] == 0:
                continue
            self.editor.wait_for_history(edit, "")
            self.session.key("ctrl+z")
            self.wait_for_frames(0, modified_before)
            self.session.key("ctrl+y")
            self.wait_for_frames(kept[-1], modified)
            if number < ROUNDS - 1:
                self.session.key("ctrl+z")
                self.wait_for_frames(0, modified_before)
        print(f"kept: {kept}")
        self.assertGreater(kept[0], 0)
        if kept[-1] > 0:
            self.check_frames(self.frames_before + kept[-1])

    def check_frames(self, count):
        """So many frames, which all show the same."""
        path = self.folder / "kept.gif"
        self.editor.save_as(path)
        self.editor.wait_for_status(count, modified=False)
        signatures = self.session.call("convert", path, "-format", "%#\n", "info:").split()
        self.assertEqual(signatures, signatures[:1] * count)

    def test_a_file_opened_leaves_its_first_frames_untitled(self):
        self.write_long_animation()
        self.start_editor_on_slow_medium()
        self.check_kept("Open", self.start_open, modified=False, modified_before=True)

    def test_an_insertion_leaves_its_first_images(self):
        self.write_pictures()
        self.start_editor()
        self.check_kept("Insert", self.start_insert)

    def test_an_insertion_of_tiles_leaves_the_first_ones(self):
        self.write_sheet()
        self.start_editor()
        self.check_kept("Insert Tiled", self.start_insert_tiled)

    def test_a_fade_leaves_its_first_frames(self):
        self.start_editor_to_fade()
        self.check_kept("Fade", self.start_fade, modified_before=True)

    def listing(self):
        return sorted(path.relative_to(self.folder) for path in self.folder.rglob("*"))

    def test_files_stay_as_they_were_where_the_writing_is_canceled(self):
        path, _ = self.start_editor_to_write(modified=True)
        self.frames_before = DRAWING_FRAMES
        content, listing = path.read_bytes(), self.listing()

        def check():
            self.assertEqual((path.read_bytes(), self.listing()), (content, listing))
        for start, last_word in (
                (self.start_save, "saving was canceled, the file is as it was before"),
                (self.start_preview, "the preview was canceled")):
            for _ in range(ROUNDS):
                start()
                self.cancel()
                self.wait_for_status(last_word)
                self.editor.wait_for_title("Kirto - drawing.gif")
                check()
        for number in range(ROUNDS):
            self.start_sequence(f"{number}-")
            self.cancel()
            written, count = self.wait_for_status(
                r"saving was canceled, (\d+) of (\d+) file\(s\) written").groups()
            self.editor.wait_for_title("Kirto - drawing.gif")
            self.assertEqual(int(count), DRAWING_FRAMES)
            files = [self.folder / f"{number}-{index:04}.xpm" for index in range(int(written))]
            self.assertEqual(len({file.read_bytes() for file in files}), min(len(files), 1))
            listing = sorted([*listing, *(file.relative_to(self.folder) for file in files)])
            check()
        self.editor.wait_for_history("Move Frame Down", "")
        self.session.key("ctrl+z")
        self.wait_for_frames(0, modified=False)

    # Closing the window

    def test_closing_ends_the_opening_of_a_file_without_a_question(self):
        self.write_long_animation()
        self.start_editor_on_slow_medium()
        self.start_open()
        self.close_and_end(asks=False)

    def test_closing_ends_an_insertion_and_asks(self):
        self.write_pictures()
        self.start_editor()
        self.start_insert()
        self.wait_for_status(FIRST_DONE)
        self.close_and_end(asks=True)

    def test_closing_ends_an_insertion_of_tiles_and_asks(self):
        self.write_sheet()
        self.start_editor()
        self.start_insert_tiled()
        self.wait_for_status(FIRST_DONE)
        self.close_and_end(asks=True)

    def test_closing_ends_a_fade_and_asks(self):
        self.start_editor_to_fade()
        self.start_fade()
        self.close_and_end(asks=True)

    def test_closing_ends_a_save_and_asks(self):
        path, _ = self.start_editor_to_write(modified=True)
        content, listing = path.read_bytes(), self.listing()
        self.start_save()
        self.close_and_end(asks=True)
        self.assertEqual((path.read_bytes(), self.listing()), (content, listing))

    def test_closing_ends_a_sequence_without_a_question(self):
        self.start_editor_to_write(modified=False)
        self.start_sequence("0-")
        self.close_and_end(asks=False)

    def test_closing_ends_a_preview_without_a_question(self):
        _, previews = self.start_editor_to_write(modified=False)
        self.start_preview()
        self.close_and_end(asks=False)
        self.assertEqual(list(previews.iterdir()), [])

    # A decoder of others, which can't be stopped

    def check_slow_decoder(self, start):
        """The work ends although the decoder goes on, and so does the editor."""
        long_work.write_slow_black(self.folder / "slow.png", 10000)
        self.start_editor()
        for _ in range(2):
            start()
            self.cancel()
            self.assertEqual(self.wait_for_kept(), 0)
            self.editor.wait_for_history("", "")
        self.session.key("ctrl+i")
        self.editor.name_file("Insert Frames", self.picture(RED).name)
        self.wait_for_frames(1, modified=True)
        self.session.key("ctrl+z")
        self.wait_for_frames(0, modified=False)
        start()
        self.close_and_end(asks=False)

    def test_a_slow_decoder_of_an_image_is_left_alone(self):
        def start():
            self.session.key("ctrl+i")
            self.editor.name_file("Insert Frames", "slow.png")
        self.check_slow_decoder(start)

    def test_a_slow_decoder_of_a_tile_sheet_is_left_alone(self):
        self.check_slow_decoder(lambda: self.start_insert_tiled("slow.png", tiles=2))
