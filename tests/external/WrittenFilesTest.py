"""The files that the object writes are what others can read: the JSON export by a JSON reader, the reference page and
the snapshots by an XML reader; and the page tells of the class as the bench sees it."""

import json
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

BENCH = Path(sys.argv.pop()).resolve()

SCRIPT = """
new x halcyra~.control @numsources 2 @numspeakers 2 @windowtitle "a \\"quoted\\" \\\\ title"
send x source 1 xyz 0.1 0.2 0.3
send x store "one & two"
send x writesnapshot scenes.xml
send x exportdict all.json
send x generatexml
attrs x
methods x
"""


class WrittenFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        run = subprocess.run([BENCH, "--window", "offscreen"], input=SCRIPT, cwd=cls.folder.name, text=True,
                             capture_output=True, check=True)
        cls.lines = [line.split() for line in run.stdout.splitlines()]

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def path(self, name):
        return Path(self.folder.name, name)

    def heard(self, kind):
        return [line for line in self.lines if line[:2] == ["x", kind]]

    def test_export_is_json_with_every_attribute(self):
        exported = json.loads(self.path("all.json").read_text())
        self.assertEqual(exported["windowtitle"], 'a "quoted" \\ title')
        self.assertEqual(exported["numsources"], 2)
        self.assertEqual(len(exported["direct"]), 6)
        self.assertEqual(sorted(exported), sorted(line[2] for line in self.heard("attr")))

    def test_snapshots_and_page_are_well_formed(self):
        for name in ("scenes.xml", "halcyra~.control.maxref.xml"):
            subprocess.run(["xmllint", "--noout", self.path(name)], check=True)
        snapshot = xml.parse(self.path("scenes.xml")).getroot().find("snapshot")
        self.assertEqual(snapshot.get("name"), "one & two")
        self.assertEqual([source.get("x") for source in snapshot][0], "0.1")

    def test_page_tells_of_the_class(self):
        page = xml.parse(self.path("halcyra~.control.maxref.xml")).getroot()
        attributes = {a.get("name"): a.get("type") for a in page.findall("attributelist/attribute")}
        self.assertEqual(set(attributes), {line[2] for line in self.heard("attr")})
        self.assertEqual(attributes["gain"], "float")
        self.assertEqual(attributes["infinite"], "int")
        self.assertEqual(attributes["format"], "symbol")
        messages = {m.get("name") for m in page.findall("methodlist/method")}
        # the message `dictionary` goes by another name in the documentation
        self.assertLessEqual(messages - {"readdict"}, {line[2] for line in self.heard("method")})
        self.assertGreaterEqual(messages, {"direct", "reverb", "source", "store", "bang", "open"})


unittest.main()
