import os
import pathlib
import time

import walk_accessibility as accessibility
from desktop_session import wait_until
from editor_test import EditorTest

# For so long nothing may happen, in seconds. Idleness shows in no other way than by time that passes.
IDLE = 2


class Playing(EditorTest):
    def setUp(self):
        super().setUp()
        self.start_editor(self.animation()).wait_for_status(3, modified=False)

    def position(self):
        """What the player says about where it is; empty when there is no player."""
        labels = [label.get_name() for label in self.editor.nodes("label")
                  if " of 3, " in label.get_name()]
        return labels[0] if labels else ""

    def processor_time(self):
        """Of the editor, in seconds."""
        fields = pathlib.Path(f"/proc/{self.editor.process.pid}/stat").read_text().split(")")[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def play(self, repeat):
        """Unfolds the player, and lets it play from the start."""
        self.session.key("ctrl+shift+p")
        self.editor.choose_item("As saved", repeat)
        self.editor.node("filler", "Picture").grab_focus()
        self.session.key("Home")
        wait_until(lambda: self.position().startswith("#0"), "the first frame")
        self.session.key("space")

    def test_goes_on_by_space_and_rests_when_paused(self):
        self.play("Always")
        for number in (1, 2, 0, 1):
            wait_until(lambda: self.position().startswith(f"#{number} "), f"frame {number}")

        self.session.key("space")
        self.editor.node("push button", "Play")
        where = self.position()
        before = self.processor_time()
        time.sleep(IDLE)
        self.assertLessEqual(self.processor_time() - before, 0.02)
        self.assertEqual(self.position(), where)

    def test_makes_the_frame_current_where_it_ends(self):
        self.play("Once")
        self.editor.wait_for_label("frame0002")
        self.assertEqual(self.position(), "#2 of 3, 0.60 s of 0.90 s")
        self.editor.node("push button", "Play")
        self.session.key("ctrl+shift+p")
        wait_until(lambda: not self.position(), "the player to be folded away")

    def test_moves_frames_and_sets_pauses_in_the_timeline(self):
        self.session.key("ctrl+shift+p")
        names = [f"Frame {number}, 0.30 s" for number in range(3)]
        blocks = [self.editor.node("list item", name) for name in names]
        places = [block.get_extents(accessibility.Atspi.CoordType.SCREEN) for block in blocks]
        middle = places[0].y + places[0].height // 2

        # The right edge of the second block, to two thirds of its width.
        edge = places[1].x + places[1].width - 1
        self.drag_by((edge, middle), -places[1].width // 3)
        self.editor.wait_for_history("Set Pause", "")
        self.editor.node("list item", "Frame 1, 0.20 s")
        self.session.key("ctrl+z")
        self.editor.wait_for_history("", "Set Pause")
        self.editor.node("list item", "Frame 1, 0.30 s")

        # The first frame, to behind the second.
        start = places[0].x + places[0].width // 2, middle
        self.drag_by(start, places[0].width + places[0].width // 4)
        self.editor.wait_for_history("Move Frames", "")
        self.session.key("ctrl+z")
        self.editor.wait_for_history("", "Move Frames")

    def drag_by(self, start, distance):
        x, y = start
        self.session.press(x, y)
        for part in range(1, 5):
            self.session.move(x + distance * part // 4, y)
        self.session.release()
