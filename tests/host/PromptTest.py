"""Runs the prompt on a pseudo-terminal and checks what a terminal would show: PromptTest.py PATCHBENCH"""

import os
import pty
import fcntl
import select
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest
from pathlib import Path

import pyte

BENCH = str(Path(sys.argv[1]).resolve())
PATIENCE = 10.0  # seconds that a busy machine may take for one step


class Terminal:
    """The bench on its own terminal. home: folder of its history; None: HOME is not set."""

    def __init__(self, columns=80, rows=24, home=None, folder="."):
        self.screen = pyte.Screen(columns, rows)
        self.stream = pyte.ByteStream(self.screen)
        self.control, terminal = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", rows, columns, 0, 0))
        environment = {"PATH": os.environ["PATH"], "TERM": "xterm", "LC_ALL": "C.UTF-8"}
        if home is not None:
            environment["HOME"] = str(home)
        self.process = subprocess.Popen([BENCH], stdin=terminal, stdout=terminal, stderr=terminal, cwd=folder, env=environment,
                                        preexec_fn=lambda: (os.setsid(), fcntl.ioctl(0, termios.TIOCSCTTY, 0)))
        os.close(terminal)

    def __enter__(self):
        self.wait_for(lambda lines: lines[-1:] == [">"])
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        os.close(self.control)

    def lines(self):
        return [line.rstrip() for line in self.screen.display if line.strip()]

    def read(self, seconds):
        ready, _, _ = select.select([self.control], [], [], seconds)
        try:
            data = os.read(self.control, 65536) if ready else b""
        except OSError:  # the program has ended
            return False
        self.stream.feed(data)
        return True

    def wait_for(self, holds):
        end = time.monotonic() + PATIENCE
        while not holds(self.lines()):
            if time.monotonic() > end or not self.read(0.05):
                if holds(self.lines()):
                    return
                raise AssertionError("the screen stays:\n" + "\n".join(self.lines()))

    def type(self, keys):
        os.write(self.control, keys.encode())

    def expect(self, *lines):
        """Waits until these are the last lines of the screen."""
        self.wait_for(lambda shown: shown[-len(lines):] == list(lines))

    def end(self):
        """Reads until the program ends; returns its status."""
        end = time.monotonic() + PATIENCE
        while self.process.poll() is None and time.monotonic() < end:
            self.read(0.05)
        while self.read(0):
            if not select.select([self.control], [], [], 0)[0]:
                break
        return self.process.poll()


class Prompt(unittest.TestCase):
    def test_each_line_is_drawn_once_and_its_output_follows(self):
        with Terminal() as terminal:
            terminal.type("new a bench.example\r")
            terminal.expect("> new a bench.example", ">")
            terminal.type("send a echo 1\r")
            terminal.expect("> new a bench.example", "> send a echo 1", "a out 0 echo 1", ">")

    def test_ctrl_d_ends_at_the_first_press(self):
        with Terminal() as terminal:
            terminal.type("mark\r")
            terminal.expect("> mark", "- mark", ">")
            terminal.type("\x04")
            self.assertEqual(terminal.end(), 0)

    def test_ctrl_c_gives_up_the_line_and_keeps_the_history(self):
        with Terminal() as terminal:
            terminal.type("mark first\r")
            terminal.expect("- mark first", ">")
            terminal.type("send nobody")
            terminal.expect("> send nobody")
            terminal.type("\x03")
            terminal.expect("> send nobody^C", ">")
            terminal.type("\x1b[A")
            terminal.expect("> mark first")
            terminal.type("\r")
            terminal.expect("> mark first", "- mark first", ">")

    def test_ctrl_c_ends_a_long_wait(self):
        with Terminal() as terminal:
            terminal.type("wait 3600000\r")
            terminal.expect("> wait 3600000")
            time.sleep(0.3)
            terminal.type("\x03")
            terminal.wait_for(lambda lines: lines[-1] == ">")

    def test_time_passes_and_output_goes_above_a_line_that_is_being_typed(self):
        with Terminal(columns=20) as terminal:
            terminal.type("new a bench.example\r")
            terminal.wait_for(lambda lines: lines[-1] == ">")
            terminal.type("send a delay 700\r")
            terminal.wait_for(lambda lines: lines[-1] == ">")
            terminal.type("send a echo one two three")  # wraps: two rows of 20 columns
            terminal.expect("> send a delay 700", "a out 0 delayed", "> send a echo one tw", "o three")
            terminal.type(" 4\r")
            terminal.expect("> send a echo one tw", "o three 4", "a out 0 echo one two", " three 4", ">")

    def test_completion_goes_on_where_the_word_stands(self):
        with Terminal() as terminal:
            terminal.type("new verb bench.ex\t")
            terminal.expect("> new verb bench.example")
            terminal.type("\r")
            terminal.expect("> new verb bench.example", ">")
            terminal.type("se\t")
            terminal.expect("send        setvalueof", "> se")
            terminal.type("n\tver\t")
            terminal.expect("> send verb")
            terminal.type("ec\t1\r")
            terminal.expect("> send verb echo 1", "verb out 0 echo 1", ">")

    def test_completions_are_listed_below_and_the_line_comes_back(self):
        with Terminal() as terminal:
            terminal.type("dis\t\x15")  # a single candidate is completed; Ctrl+U erases it
            terminal.type("di\t")
            terminal.wait_for(lambda lines: lines[-1] == "> di" and any("dialog" in line and "dict" in line and "disconnect" in line for line in lines))
            self.assertEqual(terminal.screen.cursor.x, 4)

    def test_a_file_name_with_a_blank_is_completed(self):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "two words.xml").touch()
            with Terminal(folder=folder) as terminal:
                terminal.type("dialog tw\t")
                terminal.expect("> dialog two\\ words.xml")

    def test_keys_that_come_during_a_command_are_kept_and_shown_once(self):
        with Terminal() as terminal:
            terminal.type("wait 600\r")
            terminal.expect("> wait 600")
            time.sleep(0.2)
            terminal.type("mark typed ahead\r")
            terminal.expect("> wait 600", "> mark typed ahead", "- mark typed ahead", ">")

    def test_letters_beyond_ascii(self):
        with Terminal() as terminal:
            terminal.type("mark Größe\x1b[D\x1b[D-\r")
            terminal.expect("> mark Grö-ße", "- mark Grö-ße", ">")

    def test_a_very_long_line_arrives_whole(self):
        with Terminal() as terminal:
            terminal.type("mark " + "x" * 600 + "\r")
            terminal.wait_for(lambda lines: lines[-1] == ">" and "".join(lines).count("x") == 2 * 600)


class History(unittest.TestCase):
    def test_comes_back_in_the_next_session(self):
        with tempfile.TemporaryDirectory() as home:
            with Terminal(home=home) as terminal:
                terminal.type("mark once\r")
                terminal.expect("- mark once", ">")
                terminal.process.send_signal(signal.SIGKILL)
                terminal.end()
            with Terminal(home=home) as terminal:
                terminal.type("\x1b[A")
                terminal.expect("> mark once")

    def test_that_cannot_be_written_is_told_once_and_nothing_is_lost(self):
        with Terminal(home="/nonexistent") as terminal:
            terminal.type("mark 1\r")
            terminal.expect("> mark 1", "patchbench: the history cannot be written to /nonexistent/.patchbench_history", "- mark 1", ">")
            terminal.type("mark 2\r")
            terminal.expect("> mark 2", "- mark 2", ">")
            terminal.type("quit\r")
            self.assertEqual(terminal.end(), 0)

    def test_without_a_home_there_is_none(self):
        with Terminal() as terminal:
            terminal.type("mark\r\x1b[A")
            terminal.expect("> mark", "- mark", "> mark")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
