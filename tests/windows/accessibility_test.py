#!/usr/bin/python3 -B
"""Walks the running program as a screen reader does, by names, roles and actions on the accessibility bus.

usage: accessibility_test.py PROGRAM

It starts a display, a window manager and a message bus of its own, and ends with 77 where they are missing."""

import contextlib
import importlib.util
import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

NEEDED = ("Xvfb", "openbox", "dbus-run-session")
PATIENCE = 10
VIEWER = '#!/bin/sh\necho "$1" >> "$OPENED"\n'
# Parts of a control that Qt adds; they are reached through the control.
PARTS = {"list", "list item", "table cell", "column header", "row header", "popup menu"}


@contextlib.contextmanager
def screen():
    """The number of a virtual display."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    try:
        with os.fdopen(read_end) as line:
            number = line.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        yield f":{number}"
    finally:
        server.terminate()
        server.wait()


def stage():
    """Runs this script once more, on a display and a bus of its own."""
    missing = [name for name in NEEDED if shutil.which(name) is None]
    if importlib.util.find_spec("pyatspi") is None or not Path("/usr/libexec/at-spi-bus-launcher").exists():
        missing.append("python3-pyatspi, at-spi2-core")
    if missing:
        print("Skipped, the program was not tested: there is no", ", ".join(missing))
        return 77
    # The bus may still write while the directory is removed.
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home, screen() as display:
        environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
                       "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "HOME": home, "XDG_CONFIG_HOME": home,
                       "XDG_DATA_HOME": home, "XDG_CACHE_HOME": home, "XDG_RUNTIME_DIR": home,
                       "PATH": f"{home}:{os.environ['PATH']}", "OPENED": f"{home}/opened"}
        for name in ("WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS", "XDG_CURRENT_DESKTOP"):
            environment.pop(name, None)
        viewer = Path(home, "xdg-open")
        viewer.write_text(VIEWER)
        viewer.chmod(0o755)
        noise = Path(home, "bus.log")
        manager = subprocess.Popen(["openbox"], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            with open(noise, "w") as log:
                walk = [sys.executable, "-B", "-W", "ignore", __file__, *sys.argv[1:], "--inside"]
                result = subprocess.run(["dbus-run-session", "--", *walk], env=environment, stdout=log, stderr=log).returncode
            if result != 0:
                print(noise.read_text())
            return result
        finally:
            manager.terminate()
            manager.wait()


def wait_for(what, condition):
    """What the condition gives as soon as it gives something."""
    end = time.monotonic() + PATIENCE
    while True:
        # The object may disappear while it is asked.
        with contextlib.suppress(Exception):
            if (found := condition()):
                return found
        if time.monotonic() > end:
            raise AssertionError(f"no sign of {what}")
        time.sleep(0.02)


def walk(node):
    yield node
    for child in node:
        if child is not None:
            yield from walk(child)


def actions(node):
    try:
        action = node.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def text(node):
    return node.queryText().getText(0, -1)


def caption(node):
    return "".join(r.getTarget(0).name for r in node.getRelationSet()
                   if r.getRelationType() == pyatspi.RELATION_LABELLED_BY)


def has(node, state):
    return node.getState().contains(state)


class Program(unittest.TestCase):
    program = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        binaries = self.folder / "bin"
        binaries.mkdir()
        # The log of the sessions lies beside the program.
        shutil.copy(self.program, binaries)
        (self.folder / "documents").symlink_to(Path(self.program).parent.parent / "documents")
        self.opened = Path(os.environ["OPENED"])
        self.opened.unlink(missing_ok=True)
        self.start()

    def start(self, environment=None):
        self.process = subprocess.Popen([self.folder / "bin" / "qismora"], cwd=self.folder, env=environment)
        self.addCleanup(self.process.wait)
        self.addCleanup(self.process.kill)
        desktop = pyatspi.Registry.getDesktop(0)
        self.application = wait_for("the program", lambda: next(
            a for a in desktop if a.get_process_id() == self.process.pid and a.childCount))
        self.menu = self.window("Main menu")

    def window(self, name):
        return wait_for(f"the window {name}", lambda: next(
            w for w in self.application if w.name == name and has(w, pyatspi.STATE_SHOWING)))

    def gone(self, name):
        wait_for(f"{name} to go", lambda: all(
            w.name != name or not has(w, pyatspi.STATE_SHOWING) for w in self.application))

    def find(self, where, role, name):
        """The control of that role whose accessible name begins so."""
        try:
            return wait_for("", lambda: next(
                n for n in walk(where) if n.getRoleName() == role and n.name.startswith(name)))
        except AssertionError:
            there = [f"{n.getRoleName()} {n.name}" for n in walk(where) if n.name and has(n, pyatspi.STATE_SHOWING)]
            self.fail(f"no sign of a {role} {name}; there are: " + ", ".join(there))

    def press(self, where, role, name, action="Press"):
        control = self.find(where, role, name)
        control.queryAction().doAction(actions(control).index(action))

    def choose(self, entry):
        self.press(self.menu, "radio button", entry, "Toggle")

    def type(self, where, field, words):
        self.find(where, "text", field).queryEditableText().setTextContents(words)

    def answer(self, button="OK"):
        """Presses a button of the message box that opens, and returns its text."""
        box = wait_for("a message box", lambda: next(
            w for w in self.application if w.getRoleName() in ("alert", "dialog") and has(w, pyatspi.STATE_SHOWING)))
        self.assert_named(box)
        words = wait_for("its text", lambda: " ".join(n.name for n in walk(box) if n.getRoleName() == "label"))
        self.press(box, "push button", button)
        wait_for("the message box to close", lambda: box not in list(self.application) or not has(box, pyatspi.STATE_SHOWING))
        return words

    def announcements(self):
        """Listens from now on; what it returns gives the notifications that have appeared."""
        names = []

        def hear(event):
            with contextlib.suppress(Exception):  # what has appeared may be gone already
                if event.source.getRoleName() == "notification":
                    names.append(event.source.name)

        def heard():
            while GLib.MainContext.default().iteration(False):
                pass
            return names

        pyatspi.Registry.registerEventListener(hear, "object:state-changed:showing")
        self.addCleanup(pyatspi.Registry.deregisterEventListener, hear, "object:state-changed:showing")
        return heard

    def assert_named(self, window):
        """Whatever can be reached or pressed has a role and a name, or a caption that names it."""
        names = wait_for(f"the controls of {window.name}", lambda: [
            (node.getRoleName(), node.name.strip() or caption(node))
            for node in walk(window) if has(node, pyatspi.STATE_SHOWING) and node.getRoleName() not in PARTS
            and (has(node, pyatspi.STATE_FOCUSABLE) or actions(node))])
        for role, name in names:
            self.assertTrue(name, f"a {role} of {window.name} has no name")
            self.assertNotIn(role, ("unknown", "filler", "invalid"), name)

    def leave(self, changed=False):
        self.press(self.menu, "menu item", "Exit")
        if changed:  # the question goes with the program
            question = wait_for("the question", lambda: next(
                w for w in self.application if w.getRoleName() in ("alert", "dialog") and has(w, pyatspi.STATE_SHOWING)))
            self.press(question, "push button", "Discard")
        self.assertEqual(self.process.wait(PATIENCE), 0)

    def test_a_case_is_typed_run_and_read(self):
        self.choose("FIND SHARES")
        study = self.window("Case Study")
        self.assert_named(study)
        gender = next(n for n in walk(study) if n.getRoleName() == "combo box")
        self.assertEqual(caption(gender), "Gender of the deceased")
        for field, figure in (("Wives", "1"), ("Sons", "1"), ("Daughters", "1"), ("Name of the deceased", "Amina"),
                            ("Gross estate", "24000"), ("Funeral", "0"), ("Debts", "0"), ("Wills", "0")):
            self.type(study, field, figure)
        self.press(study, "push button", "Wives")
        self.assertIn("Current data executed successfully.", self.answer())
        self.find(study, "label", "Heading of the result: WIFE'S SHARE")
        self.find(study, "label", "Amount and fraction: 3000  (1/8)")
        self.find(study, "label", "What was last computed: Share of Wives")
        self.assertIn("one eighth", text(self.find(study, "text", "Narrative of the share")).lower())

        announced = self.announcements()
        self.press(study, "menu item", "Residuaries")
        final = "Answer of Residuaries: final."
        wait_for("the state of the answer", lambda: final in announced())
        self.assertEqual(announced().count(final), 1)
        report = self.find(study, "text", "Report")
        wait_for("the distribution", lambda: "SONS (1) = 14000 (14/24)" in text(report))
        self.assertIn("ALIVE by the deceased Amina", text(report))
        self.assert_named(study)

        self.press(study, "check box", "Full Uncle", "Toggle")
        self.assertTrue(has(self.find(study, "check box", "Full Uncle"), pyatspi.STATE_CHECKED))
        self.press(study, "push button", "Who inherits among class II")
        self.assertIn("CLASS II RESIDUARIES", self.answer())
        self.press(study, "list item", "Female", "Toggle")
        self.find(study, "push button", "Husband")
        self.press(study, "push button", "Arabic view")
        self.find(study, "push button", "Sons, in Arabic")
        self.press(study, "push button", "Clear the case")
        wait_for("an empty case", lambda: text(self.find(study, "text", "Sons")) == "0")
        self.assertFalse(has(self.find(study, "check box", "Full Uncle"), pyatspi.STATE_CHECKED))

        self.type(study, "Wills", "9000")
        self.press(study, "push button", "Daughters")
        self.assertIn("one third", self.answer("No"))
        self.answer()
        announced = self.announcements()
        self.press(study, "menu item", "Full Report")
        self.answer()
        report = Path(self.folder, "amina.txt")
        self.assertTrue(report.exists())
        self.find(study, "notification", f"Saved: {report}")
        wait_for("the announcement", lambda: f"Saved: {report}" in announced())
        self.press(study, "menu item", "Back")
        self.gone("Case Study")
        self.leave(changed=True)

    def test_the_division_is_read_while_the_family_changes(self):
        self.choose("FIND SHARES")
        study = self.window("Case Study")
        for field, figure in (("Wives", "1"), ("Daughters", "2"), ("Gross estate", "24000"), ("Funeral", "0"),
                              ("Debts", "0"), ("Wills", "0")):
            self.type(study, field, figure)
        self.press(study, "menu item", "Division")
        division = wait_for("the division", lambda: next(
            w for w in self.application if w.name.startswith("Division") and has(w, pyatspi.STATE_SHOWING)))
        self.assert_named(division)
        self.find(division, "notification", "24,000.00 is divided among 3 heirs.")
        grid = self.find(division, "table", "Who receives what").queryTable()

        announced = self.announcements()
        self.type(study, "Mother", "1")
        wait_for("the announcement", lambda: any("among 4 heirs" in words for words in announced()))
        self.assertEqual(sum("among 4 heirs" in words for words in announced()), 1)
        rows = [grid.getAccessibleAt(row, 0).name for row in range(grid.nRows)]
        self.assertIn("Mother: Heads 1, Share 7/40, of 40 7, Together 4,200.00", rows[2])
        self.assertIn("because there are children (Quran 4:11); after Radd 7/40", rows[2])
        tree = self.find(division, "image", "Family tree")
        self.assertIn("Mother: 7/40", tree.description)

        self.type(study, "Sons", "many")
        self.find(division, "notification", "Nothing is divided while a field cannot be read.")
        self.assertIn("is not a whole number", self.find(division, "label", "Sons: ").name)
        self.press(study, "menu item", "Back")
        self.gone("Case Study")
        self.leave(changed=True)

    def test_the_other_windows_are_opened_read_and_left(self):
        self.assert_named(self.menu)
        for entry, title in (("Quranic Laws", "QURANIC LAWS OF INHERITANCE"), ("Indian Acts", "INDIAN ACTS COSIDERED"),
                             ("Exclusion", "EXCLUSION RULES"), ("Rules of 'Aul'", "RULES OF 'AUL' & 'RADD'")):
            self.choose(entry)
            page = self.window("Law page")
            self.assert_named(page)
            self.find(page, "label", f"Title of the page: {title}")
            self.assertGreater(len(text(self.find(page, "text", "Page"))), 500)
            self.press(page, "menu item", "Close")
            self.gone("Law page")

        self.press(self.menu, "menu item", "Disclaimer")
        wait_for("the disclaimer", lambda: "Congratulations User!" in text(self.find(self.menu, "text", "Disclaimer")))
        self.press(self.menu, "push button", "Disclaimer Terms:")
        self.press(self.menu, "menu item", "About")
        catalogue = self.window("About this program")
        self.assert_named(catalogue)
        self.find(catalogue, "label", "Program: Qismora")
        self.press(catalogue, "push button", "Close")
        self.gone("About this program")

        self.choose("Relations Made Easy")
        self.assertIn("RelationsEU.pdf", self.answer())
        wait_for("the viewer", lambda: "RelationsEU.pdf" in self.opened.read_text())
        self.press(self.menu, "push button", "Documents and resources")
        resources = self.window("Documents")
        self.assert_named(resources)
        self.press(resources, "push button", "Schools")
        self.assertIn("Schools of Thoughts.pdf", self.answer())
        self.press(resources, "menu item", "Back")
        self.menu = self.window("Main menu")
        self.leave()

        self.start()  # the second session finds the line of the first
        self.press(self.menu, "push button", "Number of this session: 2")
        log = self.window("Session log")
        self.assert_named(log)
        grid = next(n for n in walk(log) if n.getRoleName() == "table").queryTable()
        self.assertEqual(grid.getAccessibleAt(1, 0).name, "1")
        self.find(log, "label", "Total duration: 0day(s):00h:")
        self.leave()

    def test_a_display_that_goes_away_leaves_the_line_of_the_session(self):
        self.leave()
        with screen() as display:
            self.start({**os.environ, "DISPLAY": display})
        self.assertEqual(self.process.wait(PATIENCE), 1)
        lines = (self.folder / "bin" / "popuQism.ppl").read_text().splitlines()
        self.assertEqual([line.split()[0] for line in lines], ["1", "2"])


if __name__ == "__main__":
    if sys.argv[-1] != "--inside":
        sys.exit(stage())
    import pyatspi
    from gi.repository import GLib

    Program.program = os.path.abspath(sys.argv[1])
    unittest.main(argv=sys.argv[:1], verbosity=2)
