"""Checks the files that the object writes: a JSON parser reads the export, an XML parser the reference page and the
snapshots; and the page describes the class as the bench sees it."""

import json
import re
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

    def test_export_has_a_line_for_each_attribute(self):
        lines = self.path("all.json").read_text().split("\n")
        self.assertEqual((lines[0], lines[-2:]), ("{", ["}", ""]))
        entries = lines[1:-2]
        self.assertTrue(all(line.startswith('    "') for line in entries))
        self.assertEqual([line.endswith(", ") for line in entries], [True] * (len(entries) - 1) + [False])
        for line in ('    "numsources" : 2, ', '    "windowtopleft" : [ 50.000000, 800.000000  ], ',
                     '    "name" : [ "1", "2" ], '):
            self.assertIn(line, entries)

    def test_snapshots_and_page_are_well_formed(self):
        for name in ("scenes.xml", "halcyra~.control.maxref.xml"):
            subprocess.run(["xmllint", "--noout", self.path(name)], check=True)
        snapshot = xml.parse(self.path("scenes.xml")).getroot().find("snapshot")
        self.assertEqual(snapshot.get("name"), "one & two")
        self.assertEqual([source.get("x") for source in snapshot][0], "0.1")

    def test_page_tells_of_the_attributes(self):
        page = xml.parse(self.path("halcyra~.control.maxref.xml")).getroot()
        documented = {a.get("name"): a.get("type") for a in page.findall("attributelist/attribute")}
        self.assertEqual(documented, {line[2]: type_of(line[3]) for line in self.heard("attr")})

    def test_page_tells_of_the_messages(self):
        page = xml.parse(self.path("halcyra~.control.maxref.xml")).getroot()
        documented = {m.get("name"): [a.get("type") for a in m.findall("arglist/arg")]
                      for m in page.findall("methodlist/method")}
        documented["dictionary"] = documented.pop("readdict")  # documented under its own name
        kinds = {line[2]: line[3:] for line in self.heard("method")}
        # messages for the host are not documented, except the double click
        self.assertEqual(set(kinds) - set(documented), {"assist", "getvalueof", "setvalueof"})
        for name, arguments in documented.items():
            with self.subTest(message=name):
                if kinds[name] == ["A_SYM"]:
                    self.assertEqual(arguments, ["symbol"])
                elif kinds[name] != ["A_GIMME"]:
                    self.assertEqual(arguments, [])


def type_of(word):
    """The documented type of a value as printed by the bench: quotes distinguish symbols of digits from numbers."""
    if re.fullmatch(r"-?\d+", word):
        return "int"
    return "float" if re.fullmatch(r"-?(\d+\.\d*|\d*\.\d+|\d+)(e[-+]\d+)?", word) else "symbol"


unittest.main()
