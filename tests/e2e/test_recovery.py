import re
import signal

import walk_accessibility as accessibility
from desktop_session import wait_until
from editor_test import BLUE, EditorTest, GREEN, RED

QUESTION = "Do you want to save your changes?"
OFFER = (r'^The editor ended unexpectedly\. "{}" \({} frame\(s\), '
         r'\d{{4}}-\d\d-\d\d \d\d:\d\d\) can be recovered\.$')


class Recovery(EditorTest):
    """What an editor that did not come to its end leaves for the next one."""

    def setUp(self):
        super().setUp()
        self.recovery_folder = self.session.home / "state/kirto/recovery"

    def delay(self, milliseconds):
        """From now on editors write their copies so long after a change."""
        self.session.environment["KIRTO_RECOVERY_DELAY"] = str(milliseconds)

    def copies(self):
        return list(self.recovery_folder.glob("*.recovery"))

    def wait_for_copy(self):
        wait_until(self.copies, "a copy of the document")

    def modify_colors(self):
        """An editor whose document is an animation with its first two frames exchanged."""
        editor = self.start_editor(self.animation())
        editor.wait_for_status(3, modified=False)
        editor.choose("Frame", "Move Down")
        editor.wait_for_status(3, modified=True)
        return editor

    def crash(self):
        """An editor killed with its changed document, of which there is a copy."""
        self.delay(20)
        editor = self.modify_colors()
        self.wait_for_copy()
        editor.process.kill()
        self.assertEqual(len(self.copies()), 1)

    def start_asked(self, answer, name="colors.gif", frames=3):
        """An editor whose question, which is about the animation of that name, was answered."""
        editor = self.start_editor(asks=True)
        alert = editor.window("Kirto")
        text = wait_until(lambda: [label.get_name() for label in editor.nodes("label", root=alert)],
                          "the question")
        self.assertEqual(len(text), 1)
        self.assertRegex(text[0], OFFER.format(re.escape(name), frames))
        editor.click("push button", answer, alert)
        self.session.wait_until_active("^Kirto - ")
        return editor

    def check_recovered(self, name="colors.gif", colors=(GREEN, RED, BLUE)):
        """The next editor offers the document, and recovers it as it was."""
        editor = self.start_asked("Recover", name, len(colors))
        editor.wait_for_title(f"Kirto - {name}")
        editor.wait_for_status(len(colors), modified=True)
        editor.wait_for_history("", "")
        editor.save_as(self.folder / "recovered.gif")
        self.assertEqual(self.colors(self.folder / "recovered.gif"), list(colors))

    def start_unasked(self):
        """An editor that starts without a question."""
        editor = self.start_editor()
        editor.wait_for_status(0, modified=False)
        # The question would have come before this command is carried out.
        editor.choose("View", "Toggle Mode")
        editor.node("list", "Frames")
        self.assertIsNone(editor.window("Kirto"))
        return editor

    def test_recovers_after_a_kill_what_was_there(self):
        self.crash()
        self.check_recovered()
        self.assertEqual(self.copies(), [])

    def test_recovers_when_the_x_server_was_killed(self):
        display, server = self.session.start_server()
        editor = self.session.start(self.programs / "kirto", self.picture(RED), self.picture(BLUE),
                                    environment={**self.session.environment, "DISPLAY": display})
        root = accessibility.application("kirto", pid=editor.pid)
        wait_until(lambda: [node for _, node in accessibility.visible_nodes(root)
                            if node.get_name() == "Status: 2 frame(s), modified"], "the two frames")
        self.assertEqual(self.copies(), [])
        server.kill()
        server.wait()
        self.assertNotEqual(editor.wait_for_end(), 0)
        # In the order of the files' names.
        self.check_recovered("untitled", (BLUE, RED))

    def test_recovers_after_the_request_to_end_what_was_not_written_yet(self):
        editor = self.modify_colors()
        self.assertEqual(self.copies(), [])
        editor.process.process.send_signal(signal.SIGTERM)
        self.assertEqual(editor.wait_for_end(), -signal.SIGTERM)
        self.check_recovered()

    def test_leaves_nothing_behind_a_proper_end(self):
        self.delay(20)
        editor = self.modify_colors()
        self.wait_for_copy()
        editor.choose("File", "Quit")
        editor.answer(QUESTION, "Discard")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual(list(self.recovery_folder.iterdir()), [])
        self.start_unasked()

    def test_removes_the_copy_of_what_is_saved(self):
        self.delay(20)
        editor = self.modify_colors()
        self.wait_for_copy()
        editor.choose("File", "Save")
        editor.wait_for_status(3, modified=False)
        wait_until(lambda: not self.copies(), "the copy to go")
        editor.process.kill()
        self.start_unasked()

    def test_discard_removes_what_was_left(self):
        self.crash()
        editor = self.start_asked("Discard")
        wait_until(lambda: not self.copies(), "the copy to go")
        editor.wait_for_status(0, modified=False)
        editor.choose("File", "Quit")
        self.assertEqual(editor.wait_for_end(), 0)
        self.start_unasked()

    def test_later_keeps_what_was_left_for_the_next_start(self):
        self.crash()
        copies = self.copies()
        content = copies[0].read_bytes()
        editor = self.start_asked("Later")
        editor.wait_for_status(0, modified=False)
        editor.choose("File", "Quit")
        self.assertEqual(editor.wait_for_end(), 0)
        self.assertEqual((self.copies(), copies[0].read_bytes()), (copies, content))
        self.check_recovered()
