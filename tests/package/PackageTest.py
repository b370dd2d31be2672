"""Checks the generated package: its patchers are valid, and the object accepts every message in their boxes.

Called as PackageTest.py FOLDER PATCHBENCH VERSION; FOLDER is filled by package/contents."""

import json
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "package"))

import rows

FOLDER, BENCH, VERSION = Path(sys.argv[1]), Path(sys.argv[2]).resolve(), sys.argv[3]
OBJECT = "halcyra~.control"
PATCHERS = sorted(p for p in FOLDER.rglob("*") if p.suffix in (".maxpat", ".maxhelp"))
# Forbidden in a message's output: complaints of the host and of the object.
COMPLAINT = re.compile(r'^\S+ (error|bug|warn|new failed)\b|doesn\'t understand')
# Service messages and those sent only by the host.
NOT_FOR_USERS = {"generatexml", "preset", "recallpreset"}
# Messages that ask for a file, and the dialog's answer: what is read was written before.
DIALOGS = {"writesnapshot": "snapshots.xml", "readsnapshot": "snapshots.xml", "exportdict": "state.json"}
COLUMN_WIDTH = 470
LAYOUT_CHECK = """
console.log(ringMessage(4, 1.5).join(" "));
console.log(iemMessage(JSON.stringify({ LoudspeakerLayout: { Loudspeakers: [
    { Azimuth: -30, Elevation: 0, Radius: 2, Channel: 2 }, { Azimuth: 0, Elevation: -90, Radius: 1, IsImaginary: true, Channel: 3 },
    { Azimuth: 30, Elevation: 0, Radius: 1, Channel: 1 }, { Azimuth: 180, Elevation: 45, Channel: 4 }] } })).join(" "));
for (const bad of ["", "{}", '{"Loudspeakers":[{"Azimuth":"left"}]}'])
    try { iemMessage(bad); } catch (problem) { console.log("refused"); }
"""


def load(path):
    return json.loads(path.read_text(encoding="utf-8"))["patcher"]


def pages():
    """Every patcher of every file, including tabs, with a name for failures."""
    for path in PATCHERS:
        root = load(path)
        yield path.name, root
        for box in root["boxes"]:
            if "patcher" in box["box"]:
                yield f'{path.name}, {box["box"]["text"]}', box["box"]["patcher"]


def boxes_of(page):
    return {b["box"]["id"]: b["box"] for b in page["boxes"]}


def cords_of(page):
    return [(tuple(c["patchline"]["source"]), tuple(c["patchline"]["destination"])) for c in page["lines"]]


def is_object(box):
    return box["maxclass"] == "newobj" and box["text"].split()[0] == OBJECT


def is_display(box, page):
    """A message box that displays another box's output."""
    boxes = boxes_of(page)
    return any(boxes[s[0]].get("text") == "prepend set" for s, d in cords_of(page) if d[0] == box["id"])


def overlap(a, b):
    (ax, ay, aw, ah), (bx, by, bw, bh) = a["patching_rect"], b["patching_rect"]
    return ax < bx + bw and bx < ax + aw and ay < by + bh and by < ay + ah


def split_message(text):
    """A message box's messages, split at unescaped commas."""
    return [part.strip() for part in re.split(r"(?<!\\),", text)]


def in_reading_order(boxes):
    return sorted(boxes, key=lambda box: (box["patching_rect"][0] // COLUMN_WIDTH, box["patching_rect"][1]))


def played(page, folder):
    """Bench commands for everything connected to the page's objects, in reading order."""
    boxes, cords = boxes_of(page), cords_of(page)
    commands = []
    for box in boxes.values():
        if is_object(box):
            commands.append(f'new {box["id"]} {box["text"]}')
        if box["maxclass"] == "newobj" and box["text"].startswith("dict "):
            commands.append(f'dict {box["text"].split()[1]} gain -6.')
    for box in in_reading_order(boxes.values()):
        for target in (boxes[d[0]] for s, d in cords if s[0] == box["id"] and is_object(boxes[d[0]])):
            if box["maxclass"] == "attrui":
                commands.append(f'send {target["id"]} get{box["attr"]}')
            elif box["maxclass"] == "message":
                feeders = [boxes[s[0]] for s, d in cords if d[0] == box["id"]]
                value = "1" if feeders and feeders[0]["maxclass"] in ("toggle", "number") else "1."
                for message in split_message(box["text"].replace("$1", value)):
                    if message.split()[0] in DIALOGS:
                        commands.append(f"dialog {folder}/{DIALOGS[message.split()[0]]}")
                    commands.append(f'send {target["id"]} {message}')
    return commands


def bench(commands, folder):
    run = subprocess.run([BENCH, "--window", "offscreen"], input="\n".join(commands) + "\n", cwd=folder, text=True, capture_output=True, timeout=120)
    return run.returncode, run.stdout.splitlines(), run.stderr


class Patchers(unittest.TestCase):
    def test_all_expected_files_are_there(self):
        self.assertEqual({p.name for p in PATCHERS} & {f"{OBJECT}.maxhelp", "Halcyra Overview.maxpat"}, {f"{OBJECT}.maxhelp", "Halcyra Overview.maxpat"})
        self.assertGreaterEqual(len(PATCHERS), 4)

    def test_boxes_are_well_formed_and_have_ids_of_their_own(self):
        for name, page in pages():
            with self.subTest(name):
                boxes = [b["box"] for b in page["boxes"]]
                self.assertEqual(len({b["id"] for b in boxes}), len(boxes))
                varnames = [b["varname"] for b in boxes if "varname" in b]
                self.assertEqual(len(set(varnames)), len(varnames))
                for box in boxes:
                    self.assertEqual(len(box.get("outlettype", [])), box["numoutlets"], box)
                    self.assertTrue(box["maxclass"] != "message" or box["text"] or is_display(box, page), box)

    def test_cords_join_existing_ports_once(self):
        for name, page in pages():
            with self.subTest(name):
                boxes, cords = boxes_of(page), cords_of(page)
                self.assertEqual(len(set(cords)), len(cords))
                for (source, outlet), (destination, inlet) in cords:
                    self.assertLess(outlet, boxes[source]["numoutlets"])
                    self.assertLess(inlet, boxes[destination]["numinlets"])

    def test_every_control_is_connected(self):
        for name, page in pages():
            with self.subTest(name):
                used = {s[0] for s, _ in cords_of(page)}
                for box in boxes_of(page).values():
                    if box["maxclass"] in ("message", "attrui", "flonum", "number", "toggle", "button") and not is_display(box, page):
                        self.assertIn(box["id"], used, box)

    def test_boxes_lie_apart_and_inside_the_window(self):
        for name, page in pages():
            with self.subTest(name):
                boxes = list(boxes_of(page).values())
                for number, box in enumerate(boxes):
                    x, y, width, height = box["patching_rect"]
                    self.assertTrue(x >= 0 and y >= 0 and width > 0 and height > 0, box)
                    if not page.get("showrootpatcherontab") == 0:
                        self.assertLessEqual(x + width, page["rect"][2], box)
                        self.assertLessEqual(y + height, page["rect"][3], box)
                    for other in boxes[number + 1 :]:
                        self.assertFalse(overlap(box, other), (box, other))

    def test_texts_have_room_in_their_boxes(self):
        for name, page in pages():
            for box in boxes_of(page).values():
                with self.subTest(name, box=box["id"]):
                    if box["maxclass"] in ("message", "newobj"):
                        self.assertGreaterEqual(box["patching_rect"][2], 6 * len(box["text"]) + 12)
                    if box["maxclass"] == "attrui":
                        self.assertGreaterEqual(box["text_width"], 6 * len(box["attr"]))
                        self.assertGreaterEqual(box["patching_rect"][2], box["text_width"] + 60, "room for the value")

    def test_help_has_its_tabs(self):
        root = load(FOLDER / "help" / f"{OBJECT}.maxhelp")
        tabs = [b["box"] for b in root["boxes"]]
        names = [t["text"][2:].strip('"') for t in sorted(tabs, key=lambda t: t["patching_rect"][0])]
        self.assertEqual((names[0], names[-1]), ("basic", "?"))
        self.assertLessEqual({"time structure", "filters", "scene", "snapshots", "state"}, set(names))
        self.assertTrue(all(t["patcher"]["showontab"] == 1 for t in tabs))
        self.assertEqual(root["lines"], [])

    def test_help_fits_a_small_screen_with_its_object_above_the_fold(self):
        root = load(FOLDER / "help" / f"{OBJECT}.maxhelp")
        self.assertLessEqual(root["rect"][3], 720)
        for tab in (b["box"] for b in root["boxes"]):
            tops = [b["patching_rect"][1] for b in boxes_of(tab["patcher"]).values() if is_object(b)]
            self.assertTrue(all(top < 200 for top in tops), tab["text"])

    def test_opening_a_patcher_prints_nothing(self):
        for name, page in pages():
            self.assertEqual([b["text"] for b in boxes_of(page).values() if b["maxclass"] == "newobj" and b["text"].split()[0] in ("print", "loadbang", "loadmess")], [], name)

    def test_windows_open_on_the_screen(self):
        for name, page in pages():
            for box in boxes_of(page).values():
                if is_object(box):
                    self.assertRegex(box["text"], r"@windowtopleft (60 60|90 90)$", name)

    def test_links_lead_to_files_of_the_package(self):
        names = {p.name for p in PATCHERS}
        links = [b["text"].split(" ", 1)[1] for _, page in pages() for b in boxes_of(page).values() if b["maxclass"] == "message" and b["text"].startswith("load ")]
        self.assertTrue(links)
        self.assertLessEqual(set(links), names)


class OnTheBench(unittest.TestCase):
    def test_everything_that_is_connected_to_the_object_is_understood(self):
        for name, page in pages():
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                commands = played(page, folder)
                if not commands:
                    continue
                status, lines, complaints = bench(commands, folder)
                self.assertEqual((status, complaints), (0, ""))
                self.assertEqual([line for line in lines if COMPLAINT.search(line)], [])

    def test_a_message_that_is_not_understood_would_be_seen(self):
        page = {"boxes": [{"box": {"id": "obj-1", "maxclass": "message", "text": "gain 1, frobnicate 3", "patching_rect": [0, 0, 1, 1]}},
                          {"box": {"id": "obj-2", "maxclass": "newobj", "text": OBJECT, "patching_rect": [0, 50, 1, 1]}}],
                "lines": [{"patchline": {"source": ["obj-1", 0], "destination": ["obj-2", 0]}}]}
        with tempfile.TemporaryDirectory() as folder:
            _, lines, _ = bench(played(page, folder), folder)
        self.assertEqual(len([line for line in lines if COMPLAINT.search(line)]), 1)

    def test_controls_and_arguments_name_attributes_of_the_class(self):
        _, lines, _ = bench([f"new x {OBJECT}", "attrs x"], FOLDER)
        attributes = {line.split()[2] for line in lines if line.startswith("x attr ")}
        self.assertIn("gain", attributes)
        for name, page in pages():
            for box in boxes_of(page).values():
                words = re.findall(r"@(\w+)", box["text"]) if is_object(box) else []
                with self.subTest(name, box=box["id"]):
                    self.assertLessEqual(set(words + ([box["attr"]] if "attr" in box else [])), attributes)

    def test_help_shows_every_attribute_for_users(self):
        _, lines, _ = bench([f"new x {OBJECT}", "attrs x"], FOLDER)
        attributes = {line.split()[2] for line in lines if line.startswith("x attr ")}
        root = load(FOLDER / "help" / f"{OBJECT}.maxhelp")
        said = " ".join(b.get("attr", b.get("text", "")) for t in root["boxes"] for b in boxes_of(t["box"]["patcher"]).values())
        self.assertEqual(attributes - set(re.findall(r"\w+", said)), set())

    def test_help_shows_every_message_for_users(self):
        _, lines, _ = bench([f"new x {OBJECT}", "methods x"], FOLDER)
        methods = {line.split()[2] for line in lines if line.startswith("x method ") and "A_CANT" not in line}
        root = load(FOLDER / "help" / f"{OBJECT}.maxhelp")
        shown = {m.split()[0] for t in root["boxes"] for b in boxes_of(t["box"]["patcher"]).values() if b["maxclass"] == "message" and b["text"] for m in split_message(b["text"])}
        self.assertIn("source", methods)
        self.assertEqual(methods - NOT_FOR_USERS - shown, set())


class Files(unittest.TestCase):
    def test_metadata(self):
        info = json.loads((FOLDER / "package-info.json").read_text())
        self.assertEqual((info["name"], info["version"]), ("halcyra", VERSION))
        self.assertIn(info["homepatcher"], {p.name for p in (FOLDER / "extras").iterdir()})
        self.assertIn("GNU", (FOLDER / "license.txt").read_text()[:2000])

    def test_icon_is_a_png_of_500_by_500(self):
        head = (FOLDER / "icon.png").read_bytes()[:24]
        self.assertEqual((head[1:4], int.from_bytes(head[16:20], "big"), int.from_bytes(head[20:24], "big")), (b"PNG", 500, 500))

    def test_reference_page_is_of_the_object(self):
        page = ElementTree.parse(FOLDER / "docs" / f"{OBJECT}.maxref.xml").getroot()
        self.assertEqual(page.get("name"), OBJECT)
        self.assertGreater(len(page.findall("attributelist/attribute")), 50)

    def test_reference_page_says_more_than_the_object(self):
        page = ElementTree.parse(FOLDER / "docs" / f"{OBJECT}.maxref.xml").getroot()
        for method in page.findall("methodlist/method"):
            if method.get("name") not in NOT_FOR_USERS | {"dblclick"}:
                self.assertTrue(method.findall("description/ul/li/m"), method.get("name"))
        for attribute in page.findall("attributelist/attribute"):
            self.assertNotEqual(attribute.findtext("digest"), "".join(attribute.find("description").itertext()), attribute.get("name"))
            for detail in attribute.findall("attributelist/attribute"):
                self.assertLess(len(detail.get("value")), 200, attribute.get("name"))

    def test_every_message_and_attribute_of_the_object_has_its_row_and_the_reverse(self):
        _, lines, _ = bench([f"new x {OBJECT}", "methods x", "attrs x"], FOLDER)
        methods = {line.split()[2] for line in lines if line.startswith("x method ") and "A_CANT" not in line}
        attributes = [line.split()[2] for line in lines if line.startswith("x attr ")]
        self.assertEqual(methods - {"preset", "recallpreset"}, {m.name for m in rows.messages()})
        self.assertEqual(set(attributes), {a.name for a in rows.attributes()})

    def test_examples_of_the_attributes_are_understood(self):
        commands = [f"new x {OBJECT} @numsources 2 @numspeakers 2"] + [f"send x {a.example}" for a in rows.attributes()]
        status, lines, complaints = bench(commands, FOLDER)
        self.assertEqual((status, complaints, [line for line in lines if COMPLAINT.search(line)]), (0, "", []))

    def test_pictures_of_patchers_are_there(self):
        named = {b["pic"] for _, page in pages() for b in boxes_of(page).values() if "pic" in b}
        self.assertEqual(len(named), 3)
        self.assertLessEqual(named, {p.name for p in (FOLDER / "media").iterdir()})

    def test_notices_name_every_library_that_is_linked_in(self):
        notices = (FOLDER / "third-party.txt").read_text(encoding="utf-8")
        for library in ("JUCE", "libpng", "libjpeg", "zlib", "GCC runtime", "MinGW-w64"):
            self.assertIn(f"== {library}", notices)
        self.assertIn(f"halcyra-{VERSION}-source.tar.xz", notices)
        self.assertGreater(len(notices), 5000, "the licences themselves")

    def test_layouts_are_made_from_rings_and_from_json(self):
        script = (FOLDER / "javascript" / "halcyra-layouts.js").read_text(encoding="utf-8") + LAYOUT_CHECK
        run = subprocess.run(["node", "-"], input=script, text=True, capture_output=True, timeout=60)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        messages = run.stdout.splitlines()
        self.assertEqual(messages[0], "speakers ad -45 1.5 45 1.5 135 1.5 -135 1.5")
        self.assertEqual(messages[1], "speakers aed -30 0 1 30 0 2 -180 45 1")
        self.assertEqual(messages[2:], ["refused"] * 3)
        with tempfile.TemporaryDirectory() as folder:
            status, lines, complaints = bench([f"new x {OBJECT} @numspeakers 3", f"send x {messages[1]}"], folder)
        self.assertEqual(status, 0)
        self.assertTrue(lines[-1].startswith("x out 0 speakers aed -30. 0. 1. 30. 0. 2. -180. 45."), lines[-1])

    def test_nothing_names_a_path_of_this_machine(self):
        for path in (p for p in FOLDER.rglob("*") if p.is_file() and p.suffix not in (".png", ".svg")):
            self.assertNotIn(str(FOLDER.resolve().parent), path.read_text(encoding="utf-8"), path)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
