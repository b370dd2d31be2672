#!/usr/bin/env python3
"""Writes the package's patchers (help, overview, examples) into a package folder: patchers.py FOLDER

Their contents are rows in help_content.py; this file turns rows into boxes and cords. The patchers are generated
when the package is built and not checked in: thousands of lines of coordinates would hide the hundred that matter,
and could not be reviewed.
"""

import json
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import help_content

COLUMN_WIDTH = 470
ROW = 26
MARGIN = 20
GUTTER = 12  # between a column's left edge and its boxes; room for the cords
COMMENT_GAP = 10
CONTROL_WIDTH = 240
NAME_WIDTH = 150  # of an attribute's name in its control
OBJECT = "halcyra~.control"
WINDOW_PLACE = " @windowtopleft 60 60"  # visible on every screen; the default is mostly off a small one
DISPLAY_WIDTH = 330  # of the message boxes that show the output

# Class of a box: inlets, and the type of each outlet. Those of `route` and `t` depend on their arguments.
PORTS = {
    "comment": (1, []),
    "message": (2, [""]),
    "attrui": (1, [""]),
    "toggle": (1, ["int"]),
    "button": (1, ["bang"]),
    "flonum": (1, ["", "bang"]),
    "number": (1, ["", "bang"]),
    "preset": (1, ["preset", "int", "preset", "int"]),
    "dict.view": (1, []),
    "fpic": (1, ["jit_matrix"]),
    ">": (2, ["int"]),
    "change": (1, ["", "int", "int"]),
    "js": (1, [""]),
    "opendialog": (1, ["", "bang"]),
    "udpreceive": (1, [""]),
    "udpsend": (1, []),
    "gate": (2, [""]),
    OBJECT: (1, ["", ""]),
    "autopattr": (1, ["", "", "", ""]),
    "dict": (2, ["dictionary", "", "", ""]),
    "line": (3, ["", "", "bang"]),
    "loadbang": (1, ["bang"]),
    "metro": (2, ["bang"]),
    "pattrstorage": (1, [""]),
    "pcontrol": (1, [""]),
    "prepend": (1, [""]),
    "print": (1, []),
}
# Classes with a fixed look: their size.
PICTURES = {"toggle": (22, 22), "button": (22, 22), "flonum": (60, 22), "number": (60, 22), "preset": (100, 40), "dict.view": (300, 60), "fpic": (279, 139)}


def ports(text):
    words = text.split()
    if words[0] == "route":
        return len(words) if len(words) > 2 else 2, [""] * len(words)
    return PORTS[words[0]]


def text_width(text):
    return max(40.0, round(6.3 * len(text) + 14))


def text_height(text, width):
    per_line = int((width - 8) / 5.9)
    lines = 0
    for paragraph in text.split("\n"):
        used, count = 0, 1
        for word in paragraph.split():
            if used and used + 1 + len(word) > per_line:
                used, count = 0, count + 1
            used += len(word) + (1 if used else 0)
        lines += count
    return 20.0 + 14.0 * (lines - 1)


class Page:
    """One patcher: boxes and cords, laid out in columns from rows."""

    def __init__(self):
        self.boxes = []
        self.lines = []
        self.named = {}
        self.place = {}
        self.pending = []  # messages to other boxes, with their column's left edge

    def box(self, maxclass, x, y, width, height, **own):
        kind = own.get("text", maxclass) if maxclass == "newobj" else maxclass
        inlets, outlets = (0, []) if "patcher" in own else ports(kind)
        entry = {"id": f"obj-{len(self.boxes) + 1}", "maxclass": maxclass, "numinlets": inlets, "numoutlets": len(outlets)}
        if outlets:
            entry["outlettype"] = outlets
        entry["patching_rect"] = [float(x), float(y), float(width), float(height)]
        if maxclass in ("toggle", "button", "flonum", "number"):
            entry["parameter_enable"] = 0
        entry.update(own)
        self.boxes.append({"box": entry})
        self.place[entry["id"]] = (x, y, width, height)
        return entry["id"]

    def cord(self, source, destination, outlet=0, inlet=0, midpoints=None):
        line = {"source": [source, outlet], "destination": [destination, inlet]}
        if midpoints:
            line["midpoints"] = [float(p) for p in midpoints]
        self.lines.append({"patchline": line})

    def cord_by_gutter(self, source, destination, left, above):
        """Routes a cord around the boxes in between: down the column's gutter, then in from this far above its end."""
        fx, fy, _, height = self.place[source]
        x, y, _, _ = self.place[destination]
        turn, gutter, bus = fy + height + 4, left + 4, y - above
        self.cord(source, destination, midpoints=[fx + 9, turn, gutter, turn, gutter, bus, x + 9, bus])

    def comment(self, text, x, y, width, size=12.0, bold=False):
        height = text_height(text, width) if size == 12.0 else size * 1.6
        self.box("comment", x, y, width, height, text=text, fontsize=size, fontface=1 if bold else 0)
        return height

    def object(self, text, x, y, **own):
        """Creates a box from its text: a class with its own look, or an object with arguments."""
        kind = text.split()[0]
        if kind in PICTURES:
            width, height = PICTURES[kind]
            limits = dict(zip(("minimum", "maximum"), map(float, text.split()[1:]))) if kind in ("flonum", "number") else {}
            pictures = {"pic": text.split()[1], "autofit": 1} if kind == "fpic" else {}
            return self.box(kind, x, y, width, height, **limits, **pictures, **own)
        if kind == OBJECT and "@windowtopleft" not in text:
            text += WINDOW_PLACE
        return self.box("newobj", x, y, text_width(text), 22, text=text, **own)

    def height_of(self, name):
        return self.place[name][3]

    def row(self, row, x, y):
        """Lays out one row; returns the box that feeds our object, or None, and the row's height."""
        kind, *rest = row
        room = COLUMN_WIDTH - 2 * GUTTER
        if kind == "say":
            return None, self.comment(rest[0], x, y, room) + 6
        if kind == "object":
            name, text, remark, *own = rest
            made = self.named[name] = self.object(text, x, y, **(own[0] if own else {}))
        elif kind == "attr":
            name, remark = rest
            made = self.box("attrui", x, y, CONTROL_WIDTH, 22, attr=name, text_width=float(NAME_WIDTH))
        elif kind == "send":
            text, remark = rest
            made = self.box("message", x, y, text_width(text), 22, text=text)
        elif kind == "to":
            target, text, remark = rest
            made = self.box("message", x, y, text_width(text), 22, text=text)
            self.pending.append((made, target, x - GUTTER))
        elif kind == "from":  # feeders below each other, then the message that they fill or trigger
            feeders, text, remark = rest
            top, above = y, None
            for feeder in feeders:
                made = self.named[feeder] = self.object(feeder, x, y)
                if above:
                    self.cord(above, made)
                above, y = made, y + ROW
            made = self.box("message", x, y, text_width(text), 22, text=text)
            self.cord(above, made)
            return made, y - top + self.remark(remark, x, y, made)
        return (made if kind in ("attr", "send") else None), self.remark(remark, x, y, made)

    def remark(self, text, x, y, beside):
        _, _, width, height = self.place[beside]
        if not text:
            return max(ROW, height + 4)
        left = x + max(width, CONTROL_WIDTH) + COMMENT_GAP
        used = self.comment(text, left, y, x + COLUMN_WIDTH - 2 * GUTTER - left)
        return max(ROW, height + 4, used + 4)

    def column(self, sections, x, y):
        """Lays out sections below each other; returns the boxes that feed our object and the lower edge."""
        feeds = []
        for heading, rows in sections:
            self.comment(heading, x + GUTTER, y, COLUMN_WIDTH - 2 * GUTTER, 14.0, bold=True)
            y += 24
            for row in rows:
                feed, height = self.row(row, x + GUTTER, y)
                if feed:
                    feeds.append((feed, x))
                y += height
            y += 6
        return feeds, y

    def fill(self, content):
        """Title and digest, our object with its output, then the columns that feed it."""
        self.comment(content["title"], MARGIN, 8, COLUMN_WIDTH, 20.0, bold=True)
        y = 44 + self.comment(content["digest"], MARGIN, 40, max(len(content["columns"]), content.get("width", 1)) * COLUMN_WIDTH) + 18
        if "object" in content:
            y = self.head(content, y) + 12
        feeds, bottom = [], y
        for number, sections in enumerate(content["columns"]):
            made, lower = self.column(sections, MARGIN + number * COLUMN_WIDTH, y)
            feeds, bottom = feeds + made, max(bottom, lower)
        for feed, left in feeds:
            self.cord_by_gutter(feed, self.named["verb"], left, 10)
        self.other_cords(content)
        return max(x + width for x, _, width, _ in self.place.values()) + MARGIN, bottom + 10

    def head(self, content, y):
        x = MARGIN + GUTTER
        own = {"varname": content["varname"]} if "varname" in content else {}
        verb = self.named["verb"] = self.object(content["object"], x, y, **own)
        self.comment(content.get("remark", "double-click it (locked): its window opens"), x + self.place[verb][2] + COMMENT_GAP, y, 330)
        lower = self.display(verb, 0, x, y + ROW, "what leaves on the left, for halcyra~")
        right = x + DISPLAY_WIDTH + 120
        if "answers" not in content:
            return max(lower, self.display(verb, 1, right, y + ROW, "answers, on the right"))
        above, outlet = verb, 1
        for text in content["answers"]:
            made = self.object(text, right, y + ROW)
            if text.startswith("route"):
                self.display(made, 1, x, lower + 8, "other answers: lists")
            self.cord(above, made, outlet=outlet)
            above, outlet, y = made, 0, y + self.height_of(made) + 4
        return max(lower, y + ROW)

    def display(self, source, outlet, x, y, remark):
        """A message box that shows an outlet's output; returns its lower edge."""
        shown = self.object("prepend set", x, y)
        self.comment(remark, x + self.place[shown][2] + COMMENT_GAP, y, 260)
        box = self.box("message", x, y + ROW, DISPLAY_WIDTH, 22, text="")
        self.cord(source, shown, outlet=outlet)
        self.cord(shown, box)
        return y + ROW + 22

    def other_cords(self, content):
        for source, outlet, destination, *inlet in content.get("cords", []):
            self.cord(self.named[source], self.named[destination], outlet=outlet, inlet=inlet[0] if inlet else 0)
        for message, target, left in self.pending:
            self.cord_by_gutter(message, self.named[target], left, 4)


def patcher(page, width, height, **own):
    return {
        "fileversion": 1,
        "appversion": {"major": 8, "minor": 0, "revision": 0, "architecture": "x64", "modernui": 1},
        "classnamespace": "box",
        "rect": own.pop("rect", [100.0, 100.0, float(width), float(height)]),
        "gridsize": [15.0, 15.0],
        **own,
        "boxes": page.boxes,
        "lines": page.lines,
    }


def single(content):
    page = Page()
    width, height = page.fill(content)
    return {"patcher": patcher(page, width, height)}


def tabbed(contents):
    """Turns each content into a tab; a tab cannot refer to another tab's boxes. The last one is called "?"."""
    root, tabs = Page(), []
    for content in contents:
        page = Page()
        tabs.append((content["tab"], page, page.fill(content)))
    width = max(w for _, _, (w, _) in tabs)
    height = max(h for _, _, (_, h) in tabs)
    x = MARGIN
    for number, (name, page, _) in enumerate(tabs):
        inner = patcher(page, width, height, rect=[0.0, 26.0, float(width), float(height)], showontab=1)
        text = f'p "{name}"' if " " in name else f"p {name}"
        varname = "q_tab" if name == "?" else "basic_tab" + (f"[{number}]" if number else "")
        root.box("newobj", x, MARGIN, text_width(text), 22, text=text, patcher=inner, varname=varname)
        x += text_width(text) + 10
    return {"patcher": patcher(root, width, height + 26, showrootpatcherontab=0, showontab=0)}


def write(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(json.dumps(content, indent=1) + "\n", encoding="utf-8")


def main():
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} FOLDER")
    folder = Path(sys.argv[1])
    write(folder / "help" / f"{OBJECT}.maxhelp", tabbed(help_content.HELP))
    write(folder / "extras" / "Halcyra Overview.maxpat", single(help_content.OVERVIEW))
    for name, content in help_content.EXAMPLES.items():
        write(folder / "examples" / f"{name}.maxpat", single(content))
    for name, content in help_content.CLIPPINGS.items():
        write(folder / "clippings" / "Halcyra" / f"{name}.maxpat", single(content))
    # Shown by the host's object search.
    write(folder / "interfaces" / "halcyra-obj-qlookup.json", {OBJECT: help_content.LOOKUP})


if __name__ == "__main__":
    main()
