"""Runs the bench as a process on its own X display with a simulated pointer; shared by run and peers."""

import contextlib
import ctypes
import os
import pathlib
import queue
import subprocess
import threading
import time


def processor_seconds(pid):
    """CPU time of a process, summed over its living threads."""
    tasks = pathlib.Path(f"/proc/{pid}/task").glob("*/schedstat")
    return sum(int(task.read_text().split()[0]) for task in tasks) * 1e-9


class Bench:
    """A patchbench process that takes lines, and its CPU time and memory."""

    def __init__(self, build, place):
        self.process = subprocess.Popen([build / "bin" / "patchbench", "--window", place], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, bufsize=1)
        self.boxes = 0
        self.answers = queue.SimpleQueue()
        threading.Thread(target=self.listen, daemon=True).start()

    def listen(self):
        """Drains its output, so that it never blocks."""
        for line in self.process.stdout:
            if " assist " in line:
                self.answers.put(line.split()[0])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.kill()
        self.process.wait()

    def tell(self, *lines):
        self.process.stdin.write("".join(line + "\n" for line in lines))
        self.process.stdin.flush()

    def settle(self, box):
        """Waits until all commands sent so far are done."""
        self.tell(f"assist {box} inlet 0")
        while self.answers.get(timeout=120) != box:
            pass

    def seconds(self):
        return processor_seconds(self.process.pid)

    def kilobytes(self):
        for line in pathlib.Path(f"/proc/{self.process.pid}/status").read_text().splitlines():
            if line.startswith("VmRSS:"):
                return int(line.split()[1])
        return 0


class Display:
    """A private X server, its pointer, and the colours on its screen."""

    def __enter__(self):
        ends = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(ends[1]), "-screen", "0", "1920x1080x24", "-nolisten",
                                        "tcp"], pass_fds=[ends[1]], stderr=subprocess.DEVNULL)
        os.close(ends[1])
        with os.fdopen(ends[0]) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        self.x11, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for name in ("XOpenDisplay", "XGetImage"):
            getattr(self.x11, name).restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = self.x11.XGetPixel.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.connection))
        return self

    def __exit__(self, *_):
        self.server.kill()
        self.server.wait()

    def pixel(self, x, y):
        image = ctypes.c_void_p(self.x11.XGetImage(self.connection, self.root, x, y, 1, 1, ctypes.c_ulong(2**32 - 1), 2))
        value = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return value

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.connection, -1, x, y, ctypes.c_ulong(0))
        self.x11.XFlush(self.connection)

    def button(self, pressed):
        self.test.XTestFakeButtonEvent(self.connection, 1, int(pressed), ctypes.c_ulong(0))
        self.x11.XFlush(self.connection)


PAUSE = 1 / 60  # s between two pointer steps
LEFT, TOP = 800, 50  # where a window appears without a window manager


def milliseconds_a_step(pid, display, places, steps=300):
    """CPU time per move while dragging from the first place."""
    time.sleep(0.5)
    display.move(*places[0])
    time.sleep(0.1)
    display.button(True)
    time.sleep(0.5)
    start = processor_seconds(pid)
    for step in range(steps):
        display.move(*places[step % len(places)])
        time.sleep(PAUSE)
    time.sleep(0.1)
    used = processor_seconds(pid) - start
    display.button(False)
    return 1000 * used / steps


def scene_drag(build, display, sources):
    """Drags the source in front of the listener to and fro."""
    with Bench(build, "native") as bench:
        bench.tell(f"new h halcyra~.control @numsources {sources} @numspeakers {sources}", "send h open", "page h 2",
                   "send h source 1 xyz 0. 1. 0.")
        bench.settle("h")
        bench.tell("wait 60000")
        places = [(LEFT + 213 + i, TOP + 80 + i // 2) for i in (*range(0, 40, 2), *range(40, 0, -2))]
        return milliseconds_a_step(bench.process.pid, display, places)


def slider_drag(build, display):
    with Bench(build, "native") as bench:
        bench.tell("new h halcyra~.control", "send h open")
        bench.settle("h")
        bench.tell("wait 60000")
        return milliseconds_a_step(bench.process.pid, display, [(LEFT + x, TOP + 241) for x in (*range(80, 200, 3),)])
