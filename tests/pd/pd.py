"""Runs patches in Pure Data without its window; shared by the tests in this folder."""

import os
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True

ROOT = Path(__file__).resolve().parents[2]
EXTERNALS = Path(os.environ.get("HALCYRA_PD_FOLDER", ROOT / "build/release/pd"))
CLASS = "halcyra~.control"
UNDER = os.environ.get("HALCYRA_PD_UNDER", "").split()  # a program to run Pd under, with its options
QUIET = ["-noprefs", "-nrt", "-noaudio", "-nomidi", "-stderr"]


class Patch:
    """The text of a patch file, box by box. Boxes are identified by number."""

    def __init__(self):
        self.boxes, self.cords = [], []

    def box(self, kind, text):
        self.boxes.append((f"#X {kind} {20 + 200 * (len(self.boxes) // 30)} {20 + 24 * (len(self.boxes) % 30)} {text};", []))
        return len(self.boxes) - 1

    def obj(self, text):
        return self.box("obj", text)

    def msg(self, text):
        return self.box("msg", text)

    def saved(self, box, *lines):
        """Adds the lines after a box in the file."""
        self.boxes[box][1].extend(f"#A {line};" for line in lines)

    def cord(self, source, destination, outlet=0, inlet=0):
        self.cords.append(f"#X connect {source} {outlet} {destination} {inlet};")

    def at(self, milliseconds, text, *receivers):
        """Sends a message at a time after loading; a receiver is a box or (box, inlet)."""
        if not hasattr(self, "start"):
            self.start = self.obj("loadbang")
        delay, message = self.obj(f"delay {milliseconds}"), self.msg(text)
        self.cord(self.start, delay)
        self.cord(delay, message)
        for receiver in receivers:
            box, inlet = receiver if isinstance(receiver, tuple) else (receiver, 0)
            self.cord(message, box, 0, inlet)

    def write(self, path):
        lines = ["#N canvas 0 0 600 400 12;"]
        for box, behind in self.boxes:
            lines += [box, *behind]
        Path(path).write_text("\n".join(lines + self.cords) + "\n", encoding="utf-8")


def play(path, *options, timeout=120, display=False, folder=None):
    """Runs a patch to its end; returns the exit status and the console's rows."""
    environment = dict(os.environ)
    if not display:
        environment.pop("DISPLAY", None)
    command = [*UNDER, "puredata", "-nogui", "-batch", *QUIET, "-path", EXTERNALS, *options, path]
    run = subprocess.run(command, cwd=folder or Path(path).parent, env=environment, capture_output=True, text=True, errors="replace", timeout=timeout)
    return run.returncode, run.stderr.splitlines()
