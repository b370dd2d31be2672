#!/usr/bin/env python3
"""The object in Pure Data on a private display: real pointer and keys, Pd's window, JACK, and the end of Pd.

Usage: xvfb-run -a -s "-screen 0 1920x1080x24" gui.py
"""

import os
import re
import shutil
import signal
import socket
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from pd import CLASS, EXTERNALS, QUIET, Patch

PATIENCE = 30  # seconds allowed per step on a busy machine
GLOBAL_SLIDER = (138, 241)  # decay time, on the first page of the window
MENU = 32  # height of the menu in Pd's windows
BOX = (60, 60)  # where a patch's first box is


def run(*words):
    return subprocess.run([str(word) for word in words], capture_output=True, text=True).stdout.strip()


def until(question, what):
    """Polls until the result is not empty, and returns it."""
    end = time.monotonic() + PATIENCE
    while not (answer := question()):
        if time.monotonic() > end:
            raise AssertionError(f"not in {PATIENCE} s: {what}")
        time.sleep(0.03)
    return answer


def windows(title):
    return run("xdotool", "search", "--onlyvisible", "--name", title).split()


def drag(window, start, way):
    """Drags with the left button, in steps like a user's."""
    x, y = start
    run("xdotool", "windowactivate", window, "mousemove", "--window", window, x, y, "sleep", 0.1, "mousedown", 1)
    for step in range(1, 6):
        run("xdotool", "mousemove", "--window", window, x + way * step // 5, y, "sleep", 0.02)
    run("xdotool", "mouseup", 1)


def click(window, x, y, button=1):
    run("xdotool", "windowactivate", "--sync", window, "mousemove", "--window", window, x, y, "sleep", 0.1, "click", button)


def key(window, *keys):
    """Without key --window, which leaves modifiers down."""
    run("xdotool", "windowactivate", "--sync", window, "sleep", 0.1, "key", *keys)


class Pd:
    """A running Pd whose patch listens on a socket: say() sends a message to a box."""

    def __init__(self, folder, *options, gui=False, objects=1, arguments="", sound=False):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        patch = Patch()
        self.folder, names = folder, [f"c{number}" for number in range(objects)]
        boxes = [patch.obj(f"{CLASS} @windowtitle {name} {arguments}".strip()) for name in names]
        if sound:  # a signal that is never silent
            patch.cord(patch.obj("sig~ 0.5"), patch.obj("dac~ 1"))
            patch.at(1, r"\; pd dsp 1")
        receiver, route = patch.obj(f"netreceive {self.port}"), patch.obj("route " + " ".join([*names, "quit"]))
        patch.cord(receiver, route)
        for number, box in enumerate(boxes):
            patch.cord(route, box, number)
            for outlet in (0, 1):
                patch.cord(box, patch.obj(f"print {names[number]}.{outlet}"), outlet)
        patch.cord(route, patch.msg(r"\; pd quit"), objects)
        self.path = folder / "test.pd"
        patch.boxes[0] = (patch.boxes[0][0].replace("#X obj 20 20", f"#X obj {BOX[0]} {BOX[1]}"), [])
        patch.write(self.path)
        self.log = open(folder / "log", "w+")
        audio = [] if "-jack" in options else ["-noaudio"]
        quiet = [option for option in QUIET if option != "-noaudio"]
        command = ["puredata", *([] if gui else ["-nogui"]), *quiet, *audio, "-path", EXTERNALS, *options, self.path]
        self.process = subprocess.Popen(command, cwd=folder, stderr=self.log, stdout=self.log)
        self.socket = until(self.connect, "Pd listens")

    def connect(self):
        try:
            return socket.create_connection(("127.0.0.1", self.port))
        except OSError:
            if self.process.poll() is not None:
                raise AssertionError(f"Pd ended: {self.rows()}")
            return None

    def say(self, message):
        self.socket.sendall((message + ";\n").encode())

    def rows(self):
        return (self.folder / "log").read_text(errors="replace").splitlines()

    def heard(self, pattern):
        """Waits for a row of the console."""
        return until(lambda: next((row for row in reversed(self.rows()) if re.search(pattern, row)), None), f"{pattern} in {self.rows()[-5:]}")

    def open(self, name="c0"):
        self.say(f"{name} open")
        return until(lambda: windows(f"^{name}$"), f"the window of {name}")[0]

    def resident(self):
        """Memory in kB."""
        return int(re.search(r"VmRSS:\s+(\d+)", Path(f"/proc/{self.process.pid}/status").read_text())[1])

    def quit(self):
        self.say("quit")
        return self.process.wait(PATIENCE)

    def end(self):
        self.socket.close()
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self.log.close()


class GuiTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        until(lambda: run("wmctrl", "-m"), "the window manager")

    @classmethod
    def tearDownClass(cls):
        cls.manager.kill()
        cls.manager.wait()

    def pd(self, *options, **keywords):
        folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        pd = Pd(folder, *options, **keywords)
        self.addCleanup(pd.end)
        return pd


class Window(GuiTest):
    def check_a_drag(self, pd):
        drag(pd.open(), GLOBAL_SLIDER, 80)
        pd.heard(r"c0\.0: reverb tr0 [3-9]")
        pd.say("c0 gettr0")
        self.assertRegex(pd.heard(r"c0\.1: tr0"), r"tr0 [3-9]")
        self.assertEqual(pd.quit(), 0)

    def test_a_drag_leaves_the_outlet(self):
        self.check_a_drag(self.pd())

    def test_a_drag_leaves_the_outlet_while_jack_runs_polled_and_in_callbacks(self):
        for options in ([], ["-callback"]):
            with self.subTest(options):
                server = f"halcyra{os.getpid()}"
                os.environ["JACK_DEFAULT_SERVER"] = server
                jack = subprocess.Popen(["jackd", "-r", "-n", server, "-d", "dummy", "-r", "48000", "-p", "480"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                try:
                    until(lambda: subprocess.run(["jack_wait", "-s", server, "-c"], capture_output=True, text=True).stdout.startswith("running") or jack.poll(), "JACK")
                    pd = self.pd("-jack", "-nojackconnect", "-outchannels", "2", "-inchannels", "0", *options)
                    drag(pd.open(), GLOBAL_SLIDER, 80)
                    pd.heard(r"c0\.0: reverb tr0 [3-9]")
                    pd.end()  # bare Pd hangs on quit in callback mode
                finally:
                    jack.send_signal(signal.SIGTERM)
                    jack.wait()

    def test_the_window_is_hidden_by_its_button_by_its_key_and_by_message_and_comes_back(self):
        pd = self.pd()
        for hide in (lambda window: run("wmctrl", "-i", "-c", window), lambda window: key(window, "ctrl+w"), lambda _: pd.say("c0 wclose"), lambda _: pd.say("c0 vis 0")):
            window = pd.open()
            hide(window)
            until(lambda: not windows("^c0$"), "the window is hidden")
        pd.say("c0 vis 1")
        until(lambda: windows("^c0$"), "the window is shown")

    def test_no_thread_of_ours_runs_at_real_time_priority(self):
        pd = self.pd("-rt")
        pd.open()
        time.sleep(0.5)
        policies = {int(task): os.sched_getscheduler(int(task)) for task in os.listdir(f"/proc/{pd.process.pid}/task")}
        if policies.pop(pd.process.pid) != os.SCHED_FIFO:
            self.skipTest("Pd may not run at real-time priority here")
        self.assertGreaterEqual(len(policies), 1)
        self.assertEqual(set(policies.values()), {os.SCHED_OTHER})

    def test_two_objects_have_a_window_each(self):
        pd = self.pd(objects=2)
        pd.open("c0")
        drag(pd.open("c1"), GLOBAL_SLIDER, 80)
        pd.heard(r"c1\.0: reverb tr0 [3-9]")
        self.assertFalse([row for row in pd.rows() if row.startswith("c0.0: reverb")])
        pd.say("c1 wclose")
        until(lambda: not windows("^c1$"), "the window is hidden")
        self.assertTrue(windows("^c0$"))

    def test_opening_and_closing_leaves_no_memory_behind(self):
        pd = self.pd()
        sizes = []
        for cycles in (1000, 500):
            for _ in range(cycles):
                pd.say("c0 open")
                pd.say("c0 wclose")
            pd.say("c0 gettr0")
            pd.heard(r"c0\.1: tr0")
            time.sleep(0.5)
            sizes.append(pd.resident())
        print(f"500 cycles of open and close: {sizes[1] - sizes[0]} kB")
        self.assertLess(sizes[1] - sizes[0], 300)

    def test_pd_quits_with_windows_open(self):
        for _ in range(50):
            pd = self.pd(objects=2)
            pd.open("c0")
            pd.open("c1")
            self.assertEqual(pd.quit(), 0, pd.rows())
            pd.end()


class PdWindow(GuiTest):
    """With Pd's own windows."""

    def setUp(self):
        self.it = self.pd("-font-size", "12", gui=True)
        self.canvas = until(lambda: windows(r"^test\.pd"), "Pd's window")[0]
        time.sleep(0.5)

    def title(self):
        return run("xdotool", "getwindowname", self.canvas)

    def click_the_box(self):
        click(self.canvas, BOX[0] + 40, BOX[1] + 10 + MENU)
        return until(lambda: windows("^c0$"), "the window of the object")[0]

    def select_the_box(self):
        key(self.canvas, "ctrl+e")
        # Selects it by a rectangle around its right end: a click would start editing its text.
        run("xdotool", "mousemove", "--window", self.canvas, BOX[0] + 140, BOX[1] - 20 + MENU, "sleep", 0.1, "mousedown", 1)
        run("xdotool", "mousemove", "--window", self.canvas, BOX[0] + 200, BOX[1] + 12 + MENU, "sleep", 0.1)
        run("xdotool", "mousemove", "--window", self.canvas, BOX[0] + 250, BOX[1] + 12 + MENU, "sleep", 0.1, "mouseup", 1)

    def saved_lines(self, path):
        return [line for line in path.read_text().split(";\n") if line.startswith("#A")]

    def test_what_is_set_by_hand_is_saved_and_only_that_marks_the_patch(self):
        clean = self.title()
        window = self.click_the_box()
        self.it.say("c0 tr0 7")
        self.it.heard(r"c0\.0: reverb tr0 7")
        time.sleep(0.3)
        self.assertEqual(self.title(), clean)
        drag(window, GLOBAL_SLIDER, 40)
        self.it.heard(r"c0\.0: reverb tr0 [^7]")
        until(lambda: self.title() != clean, "the mark of a changed patch")
        key(self.canvas, "ctrl+s")
        until(lambda: self.title() == clean, "the patch is saved")
        lines = self.saved_lines(self.it.path)
        self.assertRegex(lines[0], r"#A saved tr0 ")
        self.assertEqual(lines[-1], "#A saved")

        # Loading and saving it again changes nothing.
        text = self.it.path.read_text()
        self.it.say("quit")
        self.it.process.wait(PATIENCE)
        again = subprocess.run(["puredata", "-nogui", *QUIET, "-path", EXTERNALS, "-send", f"pd-test.pd savetofile again.pd {self.it.folder}", "-send", "pd quit", self.it.path], cwd=self.it.folder, capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual(self.saved_lines(self.it.folder / "again.pd"), lines, again.stderr)

    def test_an_object_that_is_deleted_while_its_window_is_open_comes_back_by_undo(self):
        self.click_the_box()
        self.it.say("c0 tr0 7")
        self.it.heard(r"c0\.0: reverb tr0 7")
        self.select_the_box()
        key(self.canvas, "BackSpace")
        until(lambda: not windows("^c0$"), "the window is gone")
        key(self.canvas, "ctrl+z")
        time.sleep(0.5)
        self.it.say("c0 gettr0")
        self.assertRegex(self.it.heard(r"c0\.1: tr0"), "tr0 7$")
        self.assertEqual(self.it.quit(), 0)

    def test_properties_in_the_menu_of_the_box_open_the_window(self):
        click(self.canvas, BOX[0] + 90, BOX[1] + 10 + MENU, button=3)
        time.sleep(0.5)
        run("xdotool", "key", "Down", "Return")
        until(lambda: windows("^c0$"), "the window of the object")

    def test_a_duplicate_has_the_state_of_its_original(self):
        self.it.say("c0 tr0 7")
        self.select_the_box()
        key(self.canvas, "ctrl+d")
        time.sleep(0.5)
        key(self.canvas, "ctrl+s")
        until(lambda: self.it.path.read_text().count(f"{CLASS} @windowtitle") == 2, "the patch is saved")
        self.assertEqual(self.saved_lines(self.it.path).count("#A saved tr0 7"), 2)

    def test_a_file_message_without_a_name_opens_a_panel(self):
        self.it.say("c0 writesnapshot")
        panel = until(lambda: windows("^Save As$|^Save as"), f"the panel, among {run('wmctrl', '-l')}")[0]
        key(panel, "Escape")
        self.it.say("c0 gettr0")
        self.it.heard(r"c0\.1: tr0")


if __name__ == "__main__":
    unittest.main()
