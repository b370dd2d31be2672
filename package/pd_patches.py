#!/usr/bin/env python3
"""Writes the patches for Pure Data (help and examples) into a folder: pd_patches.py FOLDER PATCHBENCH

The rows are those of the Max help (help_content.py); pd_content.py has the differences. Each attribute gets a box that
suits its value, which the object reports on the bench.
"""

import json
import re
import subprocess
import sys
import textwrap
from pathlib import Path

sys.dont_write_bytecode = True

import help_content
import pd_content

OBJECT = "halcyra~.control"
# Pd's font of size 12, in pixels, and the padding of a box.
CHAR_WIDTH, LINE_HEIGHT = 7, 16
BOX_FRAME_WIDTH, BOX_FRAME_HEIGHT = 10, 6
LONGEST_LINE = 60  # characters; Pd itself wraps a box's text here

COLUMN_WIDTH = 520
MARGIN = 24
INDENT = 16  # of comments, beside the column's rail of cords
REMARK = 250  # from the column's left edge to the remarks
GAP = 6
PICTURE_SIZES = {"toggle": (20, 20), "number": (7 * CHAR_WIDTH + 6, LINE_HEIGHT + BOX_FRAME_HEIGHT), "symbol": (17 * CHAR_WIDTH + 6, LINE_HEIGHT + BOX_FRAME_HEIGHT)}


def escaped(text):
    """Escapes text for a patch file."""
    return text.replace("\\", "\\\\").replace(",", " \\,").replace(";", " \\;").replace("$", "\\$").replace("  ", " ")


def spoken(text):
    """A comment that survives Pd: a semicolon would break the line, and a number would lose the full stop after it."""
    text = re.sub(r"(\d)\.(?=\s+[A-Z])", r"\1 -", text.replace(";", ","))
    return re.sub(r"(\d)\.(?=[\s,]|$)", r"\1", text)


def wrapped(text, width):
    return [line for paragraph in text.split("\n") for line in textwrap.wrap(paragraph, width) or [""]]


class Attributes:
    """An object's attributes as the bench reports them: values right after creation, and how they are shown."""

    def __init__(self, bench, names):
        script = [f"new a {OBJECT} @numsources 2 @numspeakers 4 @numareas 1"]
        for name in names:
            script += [f"attr a {name}", f"property a {name} style"]
        run = subprocess.run([bench, "--window", "offscreen"], input="\n".join(script) + "\n", capture_output=True, text=True, check=True)
        self.values, self.styles = {}, {}
        for line in run.stdout.splitlines():
            words = line.split()
            if words[1] == "attr":
                self.values[words[2]] = words[3:]
            elif words[1] == "property":
                self.styles[words[2]] = words[4:]

    def boxes(self, name):
        """The feeders and message for an attribute's row."""
        values = self.values[name]
        if len(values) != 1:
            return [], " ".join([name, *(value.rstrip(".") for value in values)])
        if "onoff" in self.styles.get(name, []):
            return ["toggle"], f"{name} $1"
        return ["number" if values[0].replace(".", "").replace("-", "").replace("e", "").isdigit() else "symbol"], f"{name} $1"


class Page:
    """One canvas: boxes and cords, laid out in columns from rows."""

    def __init__(self, attributes):
        self.attributes = attributes
        self.items = []  # each as its lines in the file
        self.cords = []
        self.place = []  # x, y, width, height of each
        self.named = {}
        self.receivers = set()

    def add(self, text, x, y, width, height):
        self.items.append(text)
        self.place.append((x, y, width, height))
        return len(self.items) - 1

    def cord(self, source, destination, outlet=0, inlet=0):
        self.cords.append(f"#X connect {source} {outlet} {destination} {inlet};")

    def size(self, text):
        lines = wrapped(text, LONGEST_LINE)
        return max(3, *(len(line) for line in lines)) * CHAR_WIDTH + BOX_FRAME_WIDTH, len(lines) * LINE_HEIGHT + BOX_FRAME_HEIGHT

    def box(self, kind, text, x, y):
        return self.add(f"#X {kind} {x} {y} {escaped(text)};", x, y, *self.size(text))

    def comment(self, text, x, y, width):
        text, characters = spoken(text), max(12, int(width / CHAR_WIDTH) - 1)
        lines = wrapped(text, characters)
        self.add(f"#X text {x} {y} {escaped(text)}, f {characters};", x, y, max(map(len, lines)) * CHAR_WIDTH + 4, len(lines) * LINE_HEIGHT + 4)
        return len(lines) * LINE_HEIGHT + 4

    def heading(self, text, x, y, size=18):
        """A canvas that shows only its label."""
        width = int(len(text) * size * 0.62) + 8
        label = text.replace(",", "\\,").replace(" ", "\\ ")
        self.add(f"#X obj {x} {y} cnv 5 5 {size + 4} empty empty {label} 0 {size // 2 + 2} 0 {size} #fcfcfc #202020 0;", x, y, width, size + 6)
        return size + 10

    def feeder(self, kind, x, y):
        kind, *limits = kind.split()
        if kind == "toggle":
            return self.add(f"#X obj {x} {y} tgl 19 0 empty empty empty 17 7 0 10 #fcfcfc #000000 #000000 0 1;", x, y, *PICTURE_SIZES["toggle"])
        if kind in ("number", "flonum"):
            low, high = limits or ("0", "0")
            return self.add(f"#X floatatom {x} {y} 7 {low} {high} 0 - - - 0;", x, y, *PICTURE_SIZES["number"])
        if kind == "symbol":
            return self.add(f"#X symbolatom {x} {y} 17 0 0 0 - - - 0;", x, y, *PICTURE_SIZES["symbol"])
        return self.box("obj", " ".join([kind, *limits]), x, y)

    def chain(self, feeders, message, x, y):
        """Feeders below each other and the message below them; returns the message and its lower edge."""
        above = None
        for feeder in feeders:
            received = self.box("obj", f"r $0-{feeder.split()[0]}", x, y) if feeder in self.receivers else None
            if received is not None:
                y += self.place[received][3] + GAP
            made = self.named[feeder] = self.feeder(pd_content.CLASSES.get(feeder, feeder), x, y)
            for source in (above, received):
                if source is not None:
                    self.cord(source, made)
            above, y = made, y + self.place[made][3] + GAP
        made = self.box("msg", message, x, y)
        if above is not None:
            self.cord(above, made)
        return made, y + self.place[made][3]

    def object(self, name, text, x, y):
        """Another object, below the boxes that send messages to it; returns it and its upper edge."""
        above = None
        if name in self.receivers:
            above = self.box("obj", f"r $0-{name}", x, y)
            y += self.place[above][3] + GAP
        made = self.named[name] = self.box("obj", pd_content.CLASSES.get(text, text), x, y)
        if above is not None:
            self.cord(above, made, inlet=self.inlet(made, 0))
        return made, y

    def inlet(self, box, number):
        """The inlet for a Max inlet number."""
        return 1 - number if self.items[box].split()[4].rstrip(";") in pd_content.SWAPPED else number

    def row(self, row, x, y):
        """Lays out a row; returns the message for our object, or None, and the row's lower edge."""
        kind, *rest = row
        if kind == "say":
            return None, y + self.comment(rest[0], x + INDENT, y, COLUMN_WIDTH - 3 * INDENT) + GAP
        feed, remark, top, beside = None, rest[-1], y, None
        if kind == "send":
            feed, y = self.chain([], rest[0], x, y)
        elif kind == "attr":
            feeders, message = self.attributes.boxes(rest[0])
            feed, y = self.chain(feeders, message, x, y)
        elif kind == "from":
            feed, y = self.chain(rest[0], rest[1], x, y)
        elif kind == "to":
            made, y = self.chain([], rest[1], x + INDENT, y)
            target = self.box("obj", f"s $0-{rest[0].split()[0]}", x + INDENT, y + GAP)
            self.cord(made, target)
            beside, y = made, y + GAP + self.place[target][3]
        elif kind == "object":
            name, text, remark, *_ = rest
            made, y = self.object(name, text, x + INDENT, y)
            beside, y = made, y + self.place[made][3]
        if remark:
            # To the right of the row's boxes, or below them if there is no room.
            widest = max(px + width for px, py, width, _ in self.place if px < x + COLUMN_WIDTH and px >= x and py >= top)
            left = max(x + REMARK, widest + 10)
            if left > x + COLUMN_WIDTH - 140:
                left, top = x + INDENT, y + 2
            y = max(y, top + self.comment(remark, left, top, x + COLUMN_WIDTH - INDENT - left))
        return feed, y + GAP

    def column(self, sections, x, y):
        """Sections below each other, their messages on a rail that ends in a send; returns the lower edge."""
        feeds = []
        for heading, rows in sections:
            y += self.heading(heading, x + INDENT, y, 14)
            for row in rows:
                feed, y = self.row(row, x, y)
                if feed is not None:
                    feeds.append(feed)
            y += 8
        if feeds:
            target = self.box("obj", "s $0-in", x, y)
            for feed in feeds:
                self.cord(feed, target)
            y += self.place[target][3]
        return y

    def fill(self, content):
        """Lays out a page; returns its lower and its right edge."""
        self.receivers = {row[1] for column in content["columns"] for _, rows in column for row in rows if row[0] == "to"}
        y = 12 + self.heading(content["title"], MARGIN, 10, 20)
        width = max(1.4, len(content["columns"])) * COLUMN_WIDTH
        y += self.comment(content["digest"], MARGIN, y, width) + 8
        top, bottom = y + self.links(content, y), y
        for number, sections in enumerate(content["columns"]):
            bottom = max(bottom, self.column(sections, MARGIN + number * COLUMN_WIDTH, top))
        if "object" in content:
            bottom = self.tail(content, bottom + 18)
        for source, outlet, destination, *inlet in content.get("cords", []):
            target = self.named[destination]
            self.cord(self.named[source], target, outlet, self.inlet(target, inlet[0] if inlet else 0))
        self.check_apart()
        return max(x + w for x, _, w, _ in self.place) + MARGIN, bottom + MARGIN

    def check_apart(self):
        """Exits with a message if two boxes overlap."""
        for number, (ax, ay, aw, ah) in enumerate(self.place):
            for other, (bx, by, bw, bh) in enumerate(self.place[number + 1 :], number + 1):
                if ax < bx + bw and bx < ax + aw and ay < by + bh and by < ay + ah:
                    sys.exit(f"overlap: {self.items[number]} {self.items[other]}")

    def links(self, content, y):
        """The other pages, as subpatches in rows."""
        x, top = MARGIN, y
        for name, page, (width, height) in content.get("pages", []):
            text = "pd " + name.replace(" ", "-").replace("?", "see-also")
            own_width, own_height = self.size(text)
            if x + own_width > 2 * COLUMN_WIDTH:
                x, y = MARGIN, y + own_height + GAP
            frame = f"#N canvas 80 80 {width} {height} {text[3:]} 0;"
            self.add("\n".join([frame, *page.items, *page.cords, f"#X restore {x} {y} {text};"]), x, y, own_width, own_height)
            x += own_width + 12
        return y - top + (LINE_HEIGHT + BOX_FRAME_HEIGHT + 12 if content.get("pages") else 0)

    def tail(self, content, y):
        """Our object, and what its outlets are connected to."""
        x = MARGIN
        self_in = self.box("obj", "r $0-in", x, y)
        y += self.place[self_in][3] + GAP
        verb = self.named["verb"] = self.box("obj", content["object"], x, y)
        self.cord(self_in, verb)
        remark = content.get("remark", "click it when the patch is locked: its window opens")
        self.comment(remark, x + self.place[verb][2] + 12, y, 360)
        y += self.place[verb][3] + 20
        heard = content.get("hear", [])
        right = x
        if heard:
            route = self.box("obj", " ".join(["route", *heard]), x, y)
            self.cord(verb, route)
            y += self.place[route][3] + 16
            for number, word in enumerate(heard):
                printed = self.box("obj", f"print {word}", right, y)
                self.cord(route, printed, number)
                right += self.place[printed][2] + 12
        else:
            printed = self.box("obj", "print to-halcyra~", x, y)
            self.cord(verb, printed)
            right += self.place[printed][2] + 12
        answers = self.box("obj", "print answers", max(right, x + self.place[verb][2]), y)
        self.cord(verb, answers, 1)
        return y + self.place[answers][3]


def write(path, page, width, height):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("\n".join([f"#N canvas 60 40 {width} {height} 12;", *page.items, *page.cords]) + "\n", encoding="utf-8")


def meta(version):
    """A library's entry in Pd's help browser."""
    rows = [f"{key} {text}" for key, text in {**pd_content.META, "VERSION": version}.items()]
    texts = [f"#X text 12 {20 + 30 * number} {escaped(row)};" for number, row in enumerate(rows)]
    return "\n".join(["#N canvas 10 10 300 200 12;", "#N canvas 20 20 600 400 META 0;", *texts, "#X restore 30 30 pd META;"]) + "\n"


def adapted(content):
    """Replaces words and rows of a page where Pd differs."""
    return json.loads(pd_content.adapt(json.dumps(content, ensure_ascii=False)))


def attributes_in(contents):
    return [row[1] for content in contents for column in content["columns"] for _, rows in column for row in rows if row[0] == "attr"]


def main():
    if len(sys.argv) != 3:
        sys.exit(f"usage: {sys.argv[0]} FOLDER PATCHBENCH")
    folder, bench = Path(sys.argv[1]), Path(sys.argv[2]).resolve()
    help_pages = [pd_content.PAGES.get(content["tab"]) or adapted(content) for content in help_content.HELP]
    examples = {name: pd_content.EXAMPLES.get(name) or adapted(content) for name, content in help_content.EXAMPLES.items()}
    pd_content.check_all_used()
    attributes = Attributes(bench, attributes_in([*help_pages, *examples.values()]))

    basic, *others = help_pages
    folder.mkdir(parents=True, exist_ok=True)
    basic["pages"] = []
    for content in others:
        page = Page(attributes)
        basic["pages"].append((content["tab"], page, page.fill(content)))
    version = re.search(r"project\(halcyra VERSION ([\d.]+)", (Path(__file__).parents[1] / "CMakeLists.txt").read_text())[1]
    (folder / "halcyra~-meta.pd").write_text(meta(version), encoding="utf-8")
    for path, content in [(folder / f"{OBJECT}-help.pd", basic), (folder / "README.deken.pd", pd_content.README), *((folder / "examples" / f"{name}.pd", c) for name, c in examples.items())]:
        page = Page(attributes)
        write(path, page, *page.fill(content))


if __name__ == "__main__":
    main()
