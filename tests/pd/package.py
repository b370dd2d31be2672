#!/usr/bin/env python3
"""Checks the packed package for Pd: every patch opens, everything in it can be clicked, every name resolves.

Usage: package.py FOLDER PATCHBENCH; FOLDER is filled by package/pd.
"""

import hashlib
import re
import shutil
import socket
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

from pd import CLASS, QUIET, play

FOLDER, BENCH = Path(sys.argv.pop(1)).resolve(), Path(sys.argv.pop(1)).resolve()
LIBRARY = FOLDER / "halcyra~"
PATCHES = sorted(LIBRARY.rglob("*.pd"))
BOX = re.compile(r"#X (obj|msg|text|floatatom|symbolatom|restore|array|coords)\b")
# What Pd may log without a display, without a user to answer a panel, and where the listening aid is opened on its own
# and so has no number of sources.
EXPECTED = re.compile(r"there is no display|a file name is needed|can't resize to zero")
COMPLAINT = re.compile(r"error|couldn't|can't|no method|doesn't understand|failed|warning", re.IGNORECASE)


def statements(path):
    """A patch file's statements."""
    return [part.strip() for part in re.split(r"(?<!\\);\n", path.read_text(encoding="utf-8")) if part.strip()]


def symbol_value(attribute):
    script = f"new a {CLASS}\nattr a {attribute}\n"
    run = subprocess.run([BENCH, "--window", "offscreen"], input=script, capture_output=True, text=True, check=True)
    return run.stdout.splitlines()[-1].split(" ", 3)[3].strip('"') or "x"


def clicking(path):
    """The patch with a delay on each message and number box of each canvas, and how many there are."""
    out, canvases, clicks = [], [], 0
    for statement in statements(path):
        if statement.startswith("#N canvas"):
            canvases.append([])
        closes = statement.startswith("#X restore")
        if closes:
            clicks += click_all(out, canvases.pop(), clicks)
        out.append(statement)
        if BOX.match(statement) and not statement.startswith("#X coords"):
            canvases[-1].append(statement)
    clicks += click_all(out, canvases.pop(), clicks)
    out += ["#X obj 0 0 loadbang", f"#X obj 0 0 delay {10 + clicks}", r"#X msg 0 0 \; pd quit"]
    return out, clicks


def click_all(out, boxes, before):
    """Appends a click on each box of the canvas about to be closed."""
    added, clicks = len(boxes), 0
    for number, box in enumerate(boxes):
        kind, *words = box.split()[1:]
        if kind == "symbolatom" or kind == "floatatom" or (kind == "obj" and words[2] in ("tgl", "bng")):
            following = boxes[number + 1].split()
            value = f"symbol {symbol_value(following[4])}" if kind == "symbolatom" else "1"
        elif kind == "msg":
            value = "bang" if "$1" not in box else "1"
            if any(b.split()[1] == "symbolatom" for b in boxes[max(0, number - 1) : number]):
                continue  # its symbol box sends it
        else:
            continue
        out += ["#X obj 0 0 loadbang", f"#X obj 0 0 delay {1 + before + clicks}", f"#X msg 0 0 {value}"]
        out += [f"#X connect {added} 0 {added + 1} 0", f"#X connect {added + 1} 0 {added + 2} 0", f"#X connect {added + 2} 0 {number} 0"]
        added, clicks = added + 3, clicks + 1
    return clicks


class Package(unittest.TestCase):
    def test_every_patch_opens_and_all_that_it_offers_can_be_clicked(self):
        self.assertGreaterEqual(len(PATCHES), 10)
        total = printed = 0
        for path in PATCHES:
            with self.subTest(path.name), tempfile.TemporaryDirectory() as work:
                copy = Path(work) / "halcyra~"
                shutil.copytree(LIBRARY, copy)
                lines, clicks = clicking(path)
                top = self.top_count(lines)
                lines += [f"#X connect {top} 0 {top + 1} 0", f"#X connect {top + 1} 0 {top + 2} 0"]
                target = copy / path.relative_to(LIBRARY)
                target.write_text(";\n".join(lines) + ";\n", encoding="utf-8")
                status, rows = play(target, "-path", str(copy))
                complaints = [row for row in rows if COMPLAINT.search(row) and not EXPECTED.search(row)]
                self.assertEqual((status, complaints), (0, []))
                total, printed = total + clicks, printed + len(rows)
        print(f"{len(PATCHES)} patches, {total} clicks, {printed} rows")
        self.assertGreater(total, 150)
        self.assertGreater(printed, 500)

    def top_count(self, lines):
        """The number of the first of the three boxes that clicking() appends at the top level."""
        depth, count = 0, 0
        for line in lines[1:-3]:
            if line.startswith("#N canvas"):
                depth += 1
            elif line.startswith("#X restore"):
                depth -= 1
            if depth == 0 and BOX.match(line) and not line.startswith("#X coords"):
                count += 1
        return count

    def test_every_file_and_object_that_a_patch_names_is_there(self):
        names = {path.name for path in LIBRARY.rglob("*")}
        mentioned = set()
        for path in PATCHES:
            for statement in statements(path):
                if statement.startswith("#X text"):
                    mentioned |= set(re.findall(r"[\w~.-]+\.(?:pd|txt)\b", statement))
                    mentioned |= {f"{name}.pd" for name in re.findall(r"halcyra-[a-z-]+~", statement)}
        self.assertIn("halcyra-hearing.pd", mentioned)
        self.assertEqual(mentioned - names, set())

    def test_the_osc_example_takes_messages_and_gives_changes(self):
        text = lambda word: word.encode() + b"\0" * (4 - len(word) % 4)
        numbers = lambda *values: struct.pack(f">{len(values)}f", *values)
        message = text("/halcyra") + text(",sfsfff") + text("source") + numbers(1) + text("aed") + numbers(30, 0, 1.5)
        lines = statements(LIBRARY / "examples/halcyra-osc.pd")
        boxes = [line for line in lines if BOX.match(line)]
        dialled = next(number for number, box in enumerate(boxes) if "connect 127" in box)
        lines += ["#X obj 0 0 loadbang", f"#X connect {len(boxes)} 0 {dialled} 0"]
        datagrams = lambda: socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        with tempfile.TemporaryDirectory() as work, datagrams() as other:
            other.bind(("127.0.0.1", 0))
            other.settimeout(0.2)
            with datagrams() as free:
                free.bind(("127.0.0.1", 0))
                ours = free.getsockname()
            path = Path(work) / "test.pd"
            content = ";\n".join(lines) + ";\n"
            path.write_text(content.replace("7400", str(ours[1])).replace("7401", str(other.getsockname()[1])), encoding="utf-8")
            pd = subprocess.Popen(["puredata", "-nogui", *QUIET, "-path", LIBRARY, path], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                for _ in range(100):  # until Pd listens
                    other.sendto(message, ours)
                    try:
                        got = other.recv(1024)
                        break
                    except TimeoutError:
                        got = b""
            finally:
                pd.kill()
                pd.wait()
        self.assertEqual(got, message)

    def test_the_archives_hold_the_folder_and_match_their_sums(self):
        archives = sorted(FOLDER.glob("*.dek"))
        self.assertEqual([re.sub(r"v[\d.]+", "v", path.name) for path in archives], ["halcyra~[v](Linux-amd64-32).dek", "halcyra~[v](Sources).dek"])
        for path in archives:
            summed = hashlib.sha256(path.read_bytes()).hexdigest()
            self.assertEqual(Path(f"{path}.sha256").read_text().split()[0], summed)
            with zipfile.ZipFile(path) as archive:
                self.assertTrue(all(name.startswith("halcyra~/") for name in archive.namelist()))
                if "Linux" in path.name:
                    self.assertEqual({Path(n).name for n in archive.namelist() if not n.endswith("/")}, {p.name for p in LIBRARY.rglob("*") if p.is_file()})
                else:  # everything in the binary can be built from it
                    names = "\n".join(archive.namelist())
                    for needed in ("halcyra/README.md", "juce/juce_gui_basics/juce_gui_basics.h", "libraries/libpng1.6_", "libraries/libjpeg-turbo_", "libraries/zlib_"):
                        self.assertIn(f"halcyra~/{needed}", names)
        objects = [row.split("\t")[0] for row in Path(f"{archives[0]}.txt").read_text().splitlines()]
        self.assertEqual(objects, [CLASS, "halcyra-listen~"])


if __name__ == "__main__":
    unittest.main()
