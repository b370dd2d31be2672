#!/usr/bin/env python3
"""Tests the layer check on a tree of three layers."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parents[2] / "cmake" / "layers"


class Layers(unittest.TestCase):
    """`views` links `model`, which links `core` privately; `program` links `views`."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()
        self.targets = {}
        self.add("core", [], [])
        self.add("model", ["core"], ["$<LINK_ONLY:core>"])
        self.add("views", ["model"], ["model"])
        self.add("views/parts", ["model"], [])
        self.add("program", ["views"], [], layer=False)
        self.write("src/program/Beside.h")
        self.write("src/core/ForAnotherSystem.h", "views/A.h")  # which nothing here includes

    def add(self, name, links, hands_on, layer=True):
        folder = self.root / "src" / name
        self.write(f"src/{name}/A.h")
        self.write(f"src/{name}/A.cpp", f"{name}/A.h")
        self.targets[name] = {"folder": str(folder), "HALCYRA_LAYER": [str(folder)] if layer else [], "SOURCES": ["A.cpp"],
                              "LINK_LIBRARIES": links, "INTERFACE_LINK_LIBRARIES": hands_on}

    def write(self, file, *includes):
        path = self.root / file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("".join(f'#include "{include}"\n' for include in includes))

    def checked(self):
        table = self.root / "layers.json"
        table.write_text(json.dumps(self.targets))
        done = subprocess.run([sys.executable, CHECK, self.root, table], capture_output=True, text=True)
        self.assertEqual(done.returncode, int(bool(done.stderr)), done.stderr)
        return done.stderr

    def test_rows(self):
        for file, include, refused in [
            ("src/model/A.cpp", "core/A.h", ""),
            ("src/model/A.cpp", "views/A.h", "views, which model does not link"),    # up
            ("src/core/A.cpp", "../model/A.h", "model, which core does not link"),   # by another path
            ("src/model/A.h", "core/A.h", "core, which model does not link"),        # linked, but not passed on
            ("src/views/A.cpp", "core/A.h", "core, which views does not link"),      # two levels down, not passed on
            ("src/program/A.cpp", "model/A.h", ""),                                  # two levels down, passed on
            ("src/program/A.cpp", "Beside.h", ""),
            ("src/views/A.cpp", "program/Beside.h", "no layer, which views does not link"),
            ("src/views/A.cpp", "views/parts/A.h", "views/parts, which views does not link"),  # a nested folder
            ("src/views/A.cpp", "juce_core.h", ""),                                  # from a library
        ]:
            with self.subTest(file=file, include=include):
                before = (self.root / file).read_text()
                (self.root / file).write_text(f'#include "{include}"\n{before}')
                found = self.checked()
                (self.root / file).write_text(before)
                self.assertIn(refused, found)
                self.assertEqual(bool(found), bool(refused), found)


if __name__ == "__main__":
    unittest.main()
