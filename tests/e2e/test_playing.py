import os
import pathlib
import time

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
