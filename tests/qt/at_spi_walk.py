#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# A puzzle as a screen reader meets it, over a bus of its own: at_spi_walk.py PROGRAM DATA_FOLDER
# Opens a puzzle, walks the board, assigns, undoes and asks for a hint. Ends with 77 where no bus or display can be
# started.
import os
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

SKIPPED = 77
warnings.simplefilter("ignore")  # newer bindings have newer names
PATIENCE = 60  # seconds; a busy machine is no failure


def wait(what, condition):
    until = time.monotonic() + PATIENCE
    while time.monotonic() < until:
        try:
            found = condition()
        except Exception:  # an object that has just gone
            found = None
        if found:
            return found
        time.sleep(0.05)
    sys.exit("waited in vain: " + what)


def start_display():
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24"], pass_fds=[write],
                              stderr=subprocess.DEVNULL)
    os.close(write)
    number = os.read(read, 16).decode().strip()
    if not number:
        sys.exit(SKIPPED)
    os.environ["DISPLAY"] = ":" + number
    return server


def all_under(node):
    yield node
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield from all_under(child)


def walk(application):
    def find(name, *roles):
        return next((node for node in all_under(application) if node.get_name().startswith(name)
                     and (not roles or node.get_role_name() in roles)), None)

    def button(name):
        return find(name, "push button", "button")  # as older and newer ones call it

    def press(node, action="Press"):
        names = [node.get_action_name(i) for i in range(node.get_n_actions())]
        if not node.do_action(names.index(action)):
            sys.exit("no answer from " + node.get_name())

    window = wait("the window", lambda: application.get_child_at_index(0))
    assert window.get_role_name() in ("window", "frame"), window.get_role_name()
    wait("the first round", lambda: not find("Very Easy", "progress bar"))
    press(find("Medium"), "Toggle")
    press(button("Next"))
    board = wait("the board", lambda: find("Sudoku board", "table"))
    table = board.get_table_iface()
    assert (table.get_n_rows(), table.get_n_columns()) == (9, 9)
    wait("the puzzle", lambda: "given" in " ".join(table.get_accessible_at(0, c).get_name() for c in range(9)))
    cells = [table.get_accessible_at(row, column) for row in range(9) for column in range(9)]
    for number, cell in enumerate(cells):
        expected = "row %s column %d, " % ("ABCDEFGHJ"[number // 9], number % 9 + 1)
        assert cell.get_name().startswith(expected), cell.get_name()
    cell = next(cell for cell in cells if "empty, marks" in cell.get_name())
    before = cell.get_name()
    digit = before.rsplit(" ", 1)[1]
    press(next(mark for mark in all_under(cell) if mark.get_name().startswith("mark " + digit)))
    wait("the digit", lambda: cell.get_name() == before.split(", ")[0] + ", " + digit)
    press(button("Undo"))
    wait("the digit to go", lambda: cell.get_name() == before)
    press(button("Hint"))
    wait("the hint", lambda: find("Show help on "))


def main():
    if shutil.which("Xvfb") is None or shutil.which("dbus-run-session") is None:
        sys.exit(SKIPPED)
    if "KESTREL_OWN_BUS" not in os.environ:
        os.environ["KESTREL_OWN_BUS"] = "1"
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable] + sys.argv)
    try:
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
    except (ImportError, ValueError):
        sys.exit(SKIPPED)
    display = start_display()
    game = None
    try:
        with tempfile.TemporaryDirectory() as home:
            environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
            game = subprocess.Popen([sys.argv[1], "--home", home, "--program", sys.argv[2]], env=environment)

            def application():
                desktop = Atspi.get_desktop(0)
                every = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
                return next((each for each in every if each is not None and each.get_name() == "kestrel-sudoku"
                             and each.get_child_count() > 0), None)

            walk(wait("the program", application))
            game.kill()
            game.wait()
    finally:
        if game is not None:
            game.kill()
        display.kill()


main()
