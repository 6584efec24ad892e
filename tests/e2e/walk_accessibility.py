#!/usr/bin/env python3
"""Walks what a screen reader is told about a running program.

    walk_accessibility.py NAME    prints the tree of the program called NAME on this desktop, and
                                  fails when something that takes the keyboard has no name
"""

import argparse
import contextlib
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version comes first)

ANSWER_MILLISECONDS = 5000
POLL = 0.05


def application(name, deadline=60.0, pid=None):
    """The running program of that name, or of that process, once it is known to the desktop."""
    Atspi.set_timeout(ANSWER_MILLISECONDS, 10 * ANSWER_MILLISECONDS)
    end = time.monotonic() + deadline
    while time.monotonic() < end:
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for child in children(desktop):
            with contextlib.suppress(GLib.Error):  # an earlier one that has just gone
                if child.get_name() == name and pid in (None, child.get_process_id()):
                    return child
        time.sleep(POLL)
    raise AssertionError(f"no program {name} is accessible on this desktop")


def children(node):
    """The children that are still there."""
    found = []
    for index in range(node.get_child_count()):
        try:
            child = node.get_child_at_index(index)
        except GLib.Error:
            continue
        if child is not None:
            found.append(child)
    return found


def has(node, *states):
    known = node.get_state_set()
    return all(known.contains(state) for state in states)


def showing(node):
    return has(node, Atspi.StateType.SHOWING)


def visible_nodes(root, depth=0):
    """Pairs of a depth and a node: the root and everything below it that is on the screen."""
    root.clear_cache()
    yield depth, root
    for child in children(root):
        try:
            if showing(child):
                yield from visible_nodes(child, depth + 1)
        except GLib.Error:
            continue  # went away while it was looked at


def takes_keyboard(node):
    return has(node, Atspi.StateType.FOCUSABLE)


def describe(node):
    marks = "".join(mark for mark, state in (
        ("*", Atspi.StateType.FOCUSED), ("+", Atspi.StateType.CHECKED),
        ("!", Atspi.StateType.FOCUSABLE)) if has(node, state))
    return f"{node.get_role_name()} {node.get_name()!r} {marks}".rstrip()


def text(node):
    """What a text field holds."""
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def contents(root):
    """What is shown below a node, a line each: role, name, text, and whether it is marked or can be
    used."""
    lines = []
    for _, node in visible_nodes(root):
        try:
            marks = "".join(mark for mark, state in (
                ("+", Atspi.StateType.CHECKED), (">", Atspi.StateType.SELECTED),
                ("e", Atspi.StateType.ENABLED)) if has(node, state))
            role = node.get_role_name()
            held = text(node) if role == "text" else ""
            lines.append(f"{role} {node.get_name()!r} {held} {marks}")
        except GLib.Error:
            continue  # went away while it was looked at
    return lines


def menu_items(window, menu):
    """The items of a menu of the window's menu bar, whether it is open or not."""
    bar = next(child for child in children(window) if child.get_role_name() == "menu bar")
    entry = next(child for child in children(bar) if child.get_name() == menu)
    items = children(children(entry)[0])
    for item in items:
        item.clear_cache()
    return items


def tree(root):
    return "\n".join("  " * depth + describe(node) for depth, node in visible_nodes(root))


def nameless(root):
    """Descriptions, with their parents', of what takes the keyboard and has no name."""
    return [f"{describe(node)} in {describe(node.get_parent())}"
            for _, node in visible_nodes(root)
            if takes_keyboard(node) and not node.get_name().strip()]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("name", metavar="NAME")
    root = application(parser.parse_args().name)
    print(tree(root))
    found = nameless(root)
    if found:
        sys.exit("without a name: " + "\n".join(found))


if __name__ == "__main__":
    main()
