"""Checks the documentation pages: links resolve, help and documents agree.

Called as PagesTest.py ROOT PATCHBENCH."""

import re
import shlex
import subprocess
import sys
import tempfile
import unittest
from html.parser import HTMLParser
from pathlib import Path

import markdown

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(sys.argv[1]).resolve() / "package"))

import rows

ROOT, BENCH = Path(sys.argv[1]).resolve(), str(Path(sys.argv[2]).resolve())
PAGES = sorted([*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")])


class Reader(HTMLParser):
    """A page's links, pictures, and headings by anchor, as a browser would see them."""

    def __init__(self, text):
        super().__init__()
        self.links, self.anchors, self.heading = [], set(), None
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        named = dict(attributes)
        if tag in ("a", "img"):
            self.links.append(named.get("href") or named.get("src"))
        if re.fullmatch(r"h\d", tag):
            self.heading = ""

    def handle_data(self, data):
        if self.heading is not None:
            self.heading += data

    def handle_endtag(self, tag):
        if re.fullmatch(r"h\d", tag):
            self.anchors.add(re.sub(r"[^\w\- ]", "", self.heading.lower()).replace(" ", "-"))
            self.heading = None


def read(path):
    return Reader(markdown.markdown(path.read_text(encoding="utf-8"), extensions=["tables", "fenced_code"]))


def played(commands):
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run([BENCH, "--window", "offscreen"], input="\n".join(commands) + "\n", cwd=folder, text=True, capture_output=True, timeout=120)
    return run.returncode, run.stdout, run.stderr


class Links(unittest.TestCase):
    def test_lead_to_pages_pictures_and_headings(self):
        self.assertGreater(len(PAGES), 8)
        count = 0
        for page in PAGES:
            for link in read(page).links:
                count += 1
                file, _, anchor = link.partition("#")
                target = (page.parent / file).resolve() if file else page
                with self.subTest(page=page.name, link=link):
                    self.assertTrue(target.exists())
                    if anchor:
                        self.assertIn(anchor, read(target).anchors)
        self.assertGreater(count, 20)

    def test_tables_are_tables(self):
        for page in PAGES:
            html = markdown.markdown(page.read_text(encoding="utf-8"), extensions=["tables", "fenced_code"])
            self.assertNotRegex(re.sub(r"<(pre|code)>.*?</\1>", "", html, flags=re.S), r"\|---", page.name)


class Help(unittest.TestCase):
    def test_every_example_of_a_command_works(self):
        _, listed, _ = played(["help"])
        verbs = [line.split()[1] for line in listed.splitlines()[:-1]]
        self.assertGreater(len(verbs), 20)
        for verb in verbs:
            _, explained, _ = played([f"help {verb}"])
            example = next(line for line in explained.splitlines() if line.startswith("# example: "))[len("# example: "):]
            before = ["new verb halcyra~.control @numsources 2 @numspeakers 2", "send verb open"]
            if verb != "new":
                before += ["new other halcyra~.control @numsources 2 @numspeakers 2", "connect verb 0 other" if verb == "disconnect" else "mark"]
            status, _, complaints = played([*before, example])
            with self.subTest(verb, example=example):
                self.assertEqual((shlex.split(example)[0], status, complaints), (verb, 0, ""))

    def test_every_message_is_explained_as_the_table_has_it(self):
        for message in rows.messages():
            _, explained, _ = played([f"help {message.name}"])
            for form in message.forms:
                self.assertIn(f"# send NAME {form.form}\n#     {form.meaning}\n# example: send verb {form.example}\n", explained)

    def test_an_unknown_topic_is_told(self):
        self.assertEqual(played(["help nonsense"])[0], 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
