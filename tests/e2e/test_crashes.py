import dataclasses
import os
import random
import subprocess
import time

from desktop_session import end_with_parent
from editor_test import EditorTest, HEIGHT, WIDTH
import walk_accessibility as accessibility

ROUNDS = 50
# Makes the same choices again; a failed case names its seed.
SEED = "KIRTO_E2E_SEED"

PICTURES = ("a", "b", "c", "d")
FIRST_PAUSE = 10
# Milliseconds from a change to its copy, and how many times as long a user who goes on may wait.
DELAY, PATIENCE = 30, 6


@dataclasses.dataclass(frozen=True)
class State:
    """A state of the session: the frames, the current one among them, and the pause."""
    order: tuple
    current: int
    pause: int

    def paused(self, pause):
        return State(self.order, self.current, pause)

    def moved(self, step):
        order, there = list(self.order), self.current + step
        order[self.current], order[there] = order[there], order[self.current]
        return State(tuple(order), there, self.pause)


class Player:
    """Goes on with the session in a running editor, until a given time. No two states of it are the
    same, for each second edit is another pause."""

    def __init__(self, editor, state, first_pause, choices, folder):
        self.editor, self.choices, self.beside = editor, choices, folder / "beside"
        self.field = editor.node("text", "Pause length")
        self.field.grab_focus()
        self.states = [state]  # those that the document may have been in
        self.pause = first_pause
        self.killed = None
        self.seen = []  # pairs of a time and a pause that was shown then
        self.longest = 0.0  # seconds that somebody had to wait here who looked or wrote

    def play_and_kill(self, seconds):
        """Plays so long, and kills the editor."""
        end = time.monotonic() + seconds
        while self.killed is None:
            keys = self.start_keys([*self.move(), *self.change_pause()])
            self.look(end)
            if time.monotonic() >= end:
                self.editor.process.kill()
                self.killed = time.monotonic()
            # The rest of the keys goes to nobody; none may stay pressed.
            keys.wait()

    def move(self):
        """The key that moves the current frame, where it can be moved to a random side."""
        state, step = self.states[-1], self.choices.choice((-1, 1))
        if not 0 <= state.current + step < len(PICTURES):
            return []
        self.states.append(state.moved(step))
        return ["ctrl+u" if step < 0 else "ctrl+d"]

    def change_pause(self):
        self.pause += 1
        self.states.append(self.states[-1].paused(self.pause))
        return ["ctrl+a", *str(self.pause), "Return"]

    def start_keys(self, keys):
        return subprocess.Popen(
            ["xdotool", "key", "--delay", str(self.choices.randrange(1, 20)), *keys],
            env=self.editor.session.environment, stdin=subprocess.DEVNULL,
            preexec_fn=end_with_parent)

    def look(self, end):
        """Looks at the pause until it is the newest one, or the time has come."""
        last, shown = time.monotonic(), ""
        while last < end and shown != f"{self.pause}.00":
            shown = accessibility.text(self.field)
            with open(self.beside, "wb") as file:
                file.write(b".")
                file.flush()
                os.fsync(file.fileno())
            now = time.monotonic()
            self.longest = max(self.longest, now - last)
            last = now
        if shown == f"{self.pause}.00":
            self.seen.append((last, self.pause))

    def oldest_to_expect(self):
        """The pause that was there so long before the kill that its copy was complete. A machine
        that lets everybody wait gets more time."""
        grace = 0.25 + 4 * self.longest + PATIENCE * DELAY / 1000
        return max((pause for seen, pause in self.seen if seen < self.killed - grace), default=0)


class Crashes(EditorTest):
    def setUp(self):
        super().setUp()
        self.seed = int(os.environ.get(SEED, random.SystemRandom().randrange(2 ** 32)))
        print(f"{SEED}={self.seed}")
        self.choices = random.Random(self.seed)
        self.session.environment["KIRTO_RECOVERY_DELAY"] = str(DELAY)
        self.pictures = {name: self.noise(name) for name in PICTURES}
        self.path = self.folder / "session.gif"
        self.used_pause = FIRST_PAUSE

    def noise(self, name):
        """An image that takes a while to write."""
        path = self.folder / f"{name}.png"
        self.session.call("convert", "-size", f"{2 * WIDTH}x{2 * HEIGHT}", "-seed", ord(name),
                          "xc:gray", "+noise", "Random", f"png24:{path}")
        return path

    def saved(self, state):
        """What a saved GIF of that state holds."""
        path = self.folder / "expected.gif"
        inserts = [word for name in state.order for word in ("--insert", self.pictures[name])]
        self.kirto_cli(*inserts, "--pause", state.pause, "--save", path)
        return path.read_bytes()

    def play(self, editor, state):
        """Goes on with the session and kills the editor in the middle of it. Returns the states
        that it may have been in, and the oldest pause that must not be lost."""
        player = Player(editor, state, self.used_pause, self.choices, self.folder)
        player.play_and_kill(self.choices.uniform(0.02, 1.0))
        self.used_pause = player.pause
        return player.states, player.oldest_to_expect()

    def start_again(self):
        """The next editor, with what the killed one has left. Where that is nothing, the killed one
        was not changed since it was started."""
        left = list((self.session.home / "state/kirto/recovery").glob("*.recovery"))
        self.assertLessEqual(len(left), 1)
        if not left:
            editor = self.start_editor(self.path)
            editor.wait_for_status(len(PICTURES), modified=False)
            editor.wait_for_label("frame0000")
            return editor, False
        # Nobody has written to the file since the copy was made: saving asks nothing.
        an_hour_ago = time.time() - 3600
        os.utime(self.path, (an_hour_ago, an_hour_ago))
        editor = self.start_editor(asks=True)
        editor.click("push button", "Recover", editor.window("Kirto"))
        editor.wait_for_status(len(PICTURES), modified=True)
        self.session.wait_until_active("^Kirto - ")
        self.session.key("ctrl+s")
        editor.wait_for_status(len(PICTURES), modified=False)
        self.session.wait_until_active("^Kirto - ")
        return editor, True

    def found(self, states):
        """Which of the states was saved: by its pixels, and all else that a file holds."""
        pause = round(self.info(self.path)["pause_length_global"])
        content = self.path.read_bytes()
        for state in states:
            if state.pause == pause and content == self.saved(state):
                return state
        raise AssertionError(f"pause {pause}, which is no state of {states}")

    def test_recover_a_recent_state_wherever_the_editor_is_killed(self):
        state = State(PICTURES, 0, FIRST_PAUSE)
        self.path.write_bytes(self.saved(state))
        editor = self.start_editor(self.path)
        editor.wait_for_status(len(PICTURES), modified=False)
        left = 0
        for number in range(ROUNDS):
            states, oldest = self.play(editor, state)
            editor, offered = self.start_again()
            state = self.found(states)
            left += offered
            self.assertGreaterEqual(state.pause, oldest, f"round {number}, seed {self.seed}")
            self.assertEqual(offered, state != states[0])
            if not offered:
                state = dataclasses.replace(state, current=0)
        self.assertGreater(left, ROUNDS // 2)
