"""What every end-to-end test of the editor stands on: a desktop, the editor on it, and hands.

The editor is seen from outside only: by its windows, by what it tells screen readers, and by its
files. A case runs in a process of its own, see run_case.py.
"""

import difflib
import json
import os
import pathlib
import subprocess
import unittest

import desktop_session
import walk_accessibility as accessibility
from desktop_session import DEADLINE, wait_until

# Where the editor's window is put: all of its controls are in sight, and there is room beside it.
WINDOW = (10, 40, 1000, 900)
# Where the other side of drag and drop stands.
PEER = (1200, 300)
PEER_MIDDLE = (1300, 375)

# Thumbnails stand as far from the edges and from each other, in pixels.
THUMBNAIL_LEFT, THUMBNAIL_TOP, THUMBNAIL_GAP = 4, 5, 5

RED, GREEN, BLUE, WHITE = (255, 0, 0, 255), (0, 255, 0, 255), (0, 0, 255, 255), (255, 255, 255, 255)
NAMES = {RED: "red", GREEN: "lime", BLUE: "blue", WHITE: "white"}
WIDTH, HEIGHT = 80, 60


class Editor:
    """The running editor. Mouse and keyboard do what a user's would. With `asks` it begins with a
    question, which waits for its answer then."""

    def __init__(self, session, program, *files, asks=False):
        self.session = session
        self.process = session.start(program, *files)
        window = session.wait_for_window("^Kirto - ")
        session.place_window(window, *WINDOW)
        session.wait_until_active("^Kirto$" if asks else "^Kirto - ")
        self.root = accessibility.application("kirto", pid=self.process.pid)
        wait_until(lambda: self.main_window() and self._stands_where_it_should(window),
                   "the editor's window to be in place")

    def _stands_where_it_should(self, window):
        geometry = self.session.call("xdotool", "getwindowgeometry", "--shell", window)
        return f"WIDTH={WINDOW[2]}\nHEIGHT={WINDOW[3]}" in geometry

    # What there is to see

    def window(self, title):
        """The accessible window of that title; none when there is none."""
        for child in accessibility.children(self.root):
            if child.get_name() == title:
                return child
        return None

    def main_window(self):
        for child in accessibility.children(self.root):
            if child.get_name().startswith("Kirto - "):
                return child
        return None

    def nodes(self, role, name=None, root=None):
        return [node for _, node in accessibility.visible_nodes(root or self.root)
                if node.get_role_name() == role and name in (None, node.get_name())]

    def node(self, role, name, root=None):
        """The first visible control of that role and name, once there is one."""
        return wait_until(lambda: self.nodes(role, name, root), f"the {role} {name!r}")[0]

    def title(self):
        window = self.main_window()
        return window.get_name() if window else None

    def wait_for_title(self, title):
        wait_until(lambda: self.title() == title, f"the title {title!r}")

    def wait_for_name(self, name, root=None):
        """The first visible control of that name, whatever it is."""
        return wait_until(lambda: [node for _, node in accessibility.visible_nodes(root or self.root)
                                   if node.get_name() == name], f"{name!r}")[0]

    def wait_for_label(self, text, root=None):
        return self.node("label", text, root)

    def wait_for_status(self, frames, modified):
        self.wait_for_label(f"Status: {frames} frame(s), {'modified' if modified else 'unmodified'}")

    def field(self, name, root=None):
        """What a text field holds."""
        return accessibility.text(self.node("text", name, root))

    def wait_for_field(self, name, value, root=None):
        wait_until(lambda: self.field(name, root) == value, f"{value!r} in the field {name!r}")

    def seen(self):
        """All that the main window shows, line by line, but for the menus and the buttons that
        follow them, the status line with the memory taken, which steps that can be made again take
        as well, and what has the keyboard. It tells two states of a document apart."""
        aside = ("label 'Status: ", "(tool bar)", " in memory")
        return [line for line in accessibility.contents(self.main_window())
                if not any(part in line for part in aside)]

    def wait_for_seen(self, lines, what):
        """Waits until the main window shows what was seen earlier."""
        try:
            wait_until(lambda: self.seen() == lines, what)
        except AssertionError as error:
            changes = difflib.unified_diff(lines, self.seen(), "expected", "shown", lineterm="")
            raise AssertionError("\n".join([str(error), *changes])) from None

    def history(self):
        """The names of the edits that the menu offers to undo and to redo; empty ones for none."""
        names = []
        for item in accessibility.menu_items(self.main_window(), "Edit")[:2]:
            offered = accessibility.has(item, accessibility.Atspi.StateType.ENABLED)
            names.append(item.get_name().partition(" ")[2] if offered else "")
        return tuple(names)

    def wait_for_history(self, undo, redo):
        wait_until(lambda: self.history() == (undo, redo),
                   f"the menu to offer to undo {undo!r} and to redo {redo!r}")

    # What there is to do

    def middle(self, node):
        extents = node.get_extents(accessibility.Atspi.CoordType.SCREEN)
        return extents.x + extents.width / 2, extents.y + extents.height / 2

    def click(self, role, name, root=None):
        self.session.click(*self.middle(self.node(role, name, root)))

    def choose(self, menu, item):
        """Chooses a command of the menu bar with the mouse."""
        self.click("menu item", menu)
        self.click("menu item", item)

    def choose_item(self, menu, item, root=None):
        """Chooses an item of a pop-up menu that shows the item `menu` now."""
        self.click("combo box", menu, root)
        self.click("list item", item)

    def focus(self, role, name, root=None):
        """Brings the keyboard to a control by the Tab key, as somebody without a mouse would."""
        control = self.node(role, name, root)
        for _ in range(100):
            holder = wait_until(self._keyboard_holder, "something to have the keyboard")
            if holder == control:
                return
            self.session.key("Tab")
            wait_until(lambda: self._keyboard_holder() not in (None, holder),
                       f"the keyboard to leave {accessibility.describe(holder)}")
        raise AssertionError(f"the Tab key does not lead to the {role} {name!r}")

    def _keyboard_holder(self):
        """The control that has the keyboard; none in the moment in which it changes."""
        for _, node in accessibility.visible_nodes(self.root):
            focused = accessibility.has(node, accessibility.Atspi.StateType.FOCUSED)
            if focused and accessibility.takes_keyboard(node):
                return node
        return None

    def enter(self, name, value, root=None):
        """Replaces what a text field holds, and leaves it."""
        self.click("text", name, root)
        self.session.key("ctrl+a")
        self.session.type(value)
        self.session.key("Tab")

    def name_file(self, title, *paths):
        """Names files in a file dialog by their paths, and confirms."""
        self.session.wait_until_active(f"^{title}$")
        name = self.node("text", "File name:", self.window(title))
        wait_until(lambda: accessibility.has(name, accessibility.Atspi.StateType.FOCUSED),
                   "the file dialog to take a name")
        self.session.key("ctrl+a")
        self.session.type(" ".join(f'"{path}"' for path in paths) if paths[1:] else str(*paths))
        self.session.key("Return")
        self.session.wait_for_no_window(f"^{title}$")

    def open(self, path):
        self.choose("File", "Open...")
        self.name_file("Open Animation", path)
        self.wait_for_title(f"Kirto - {pathlib.Path(path).name}")

    def save_as(self, path):
        self.choose("File", "Save As...")
        self.name_file("Save Animation", path)
        self.wait_for_title(f"Kirto - {pathlib.Path(path).name}")

    def answer(self, text, button):
        """Waits for the alert with that text, and answers it with a click."""
        self.wait_for_label(text)
        self.session.wait_until_active("^Kirto$")
        self.click("push button", button, self.window("Kirto"))

    def wait_for_end(self):
        return self.process.wait_for_end()

    # Thumbnails

    def _thumbnail_height(self):
        prefix = "Thumbnail height: "
        for label in self.nodes("label"):
            if label.get_name().startswith(prefix):
                return int(label.get_name()[len(prefix):])
        raise AssertionError("there is no thumbnail height")

    def thumbnail(self, index):
        """Left, top, width and height of a thumbnail on the screen. All frames have the size of
        EditorTest's pictures."""
        view = self.node("filler", "Thumbnails").get_extents(accessibility.Atspi.CoordType.SCREEN)
        height = self._thumbnail_height()
        width = WIDTH * height // HEIGHT
        a_row = 1
        while THUMBNAIL_LEFT + (a_row + 1) * (width + THUMBNAIL_GAP) < view.width:
            a_row += 1
        row, column = divmod(index, a_row)
        return (view.x + THUMBNAIL_LEFT + column * (width + THUMBNAIL_GAP),
                view.y + THUMBNAIL_TOP + row * (height + THUMBNAIL_GAP), width, height)

    def select_thumbnail(self, index, name):
        """Clicks a thumbnail; the frame of that name is the current one then."""
        left, top, width, height = self.thumbnail(index)
        self.session.click(left + width // 2, top + height // 2)
        self.wait_for_label(name)


class EditorTest(unittest.TestCase):
    """A case of the editor on a desktop of its own. `programs` is the build folder, and `failures`
    the folder for what a failed case leaves behind; both are set by whoever runs the case."""

    programs = None
    failures = None
    longMessage = True

    def setUp(self):
        self.session = self.enterContext(desktop_session.DesktopSession())
        os.environ.update(self.session.environment)
        self.folder = self.session.folder / "files"
        self.folder.mkdir()
        self.editor = None

    def tearDown(self):
        if any(error for _, error in self._outcome.result.errors + self._outcome.result.failures):
            self._keep_evidence()

    def _keep_evidence(self):
        """A picture of the screen, and what could be seen and read there."""
        self.failures.mkdir(parents=True, exist_ok=True)
        picture = self.failures / f"{self.id()}.png"
        self.session.screenshot(picture)
        print(f"The screen: {picture}")
        if self.editor:
            print(f"The editor printed: {self.editor.process.output()}")
            if self.editor.process.running():
                print(f"The editor showed:\n{accessibility.tree(self.editor.root)}")

    # Programs

    def start_editor(self, *files, asks=False):
        self.editor = Editor(self.session, self.programs / "kirto", *files, asks=asks)
        return self.editor

    def start_peer(self, mode, *arguments):
        """The other side of drag and drop, beside the editor's window."""
        peer = self.session.start(self.programs / "tests/e2e/kirto_dnd_peer", *PEER, mode,
                                  *arguments)
        peer.wait_for_line("^ready$")
        return peer

    def kirto_cli(self, *arguments):
        return self.session.call(self.programs / "kirto-cli", "--quiet", *arguments)

    # The desktop

    def is_dragging(self):
        """True while the editor's picture of what is dragged follows the pointer, in a window that
        has the program's name for its title."""
        windows = self.session.call("xwininfo", "-root", "-children")
        return '"kirto": ("kirto" "kirto")' in windows

    # Files

    def picture(self, color, name=None):
        """An image file of one colour."""
        path = self.folder / f"{name or NAMES[color]}.png"
        self.session.call("convert", "-size", f"{WIDTH}x{HEIGHT}", f"xc:{NAMES[color]}",
                          f"png24:{path}")
        return path

    def animation(self, name="colors.gif", colors=(RED, GREEN, BLUE)):
        """An animation whose frames have one colour each, and a pause of 0.3 seconds."""
        path = self.folder / name
        inserts = [word for color in colors for word in ("--insert", self.picture(color))]
        self.kirto_cli(*inserts, "--pause", "30", "--save", path)
        return path

    def pixels(self, path):
        """The pixels of an image file, four bytes each."""
        return subprocess.run(["convert", path, "-depth", "8", "rgba:-"], check=True,
                              capture_output=True, timeout=DEADLINE).stdout

    def frames(self, path):
        """The pixels of every frame of an animation, as kirto-cli exports it."""
        folder = self.folder / f"frames of {pathlib.Path(path).name}"
        folder.mkdir()
        self.kirto_cli("--open", path, "--save-sequence", folder / "frame.png")
        return [self.pixels(frame) for frame in sorted(folder.iterdir())]

    def colors(self, path):
        """The colour of every frame of an animation; none for a frame that has several."""
        return [tuple(frame[:4]) if frame == frame[:4] * (len(frame) // 4) else None
                for frame in self.frames(path)]

    def info(self, path):
        return json.loads(self.kirto_cli("--open", path, "--info-json"))
