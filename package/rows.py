"""The tables behind the documents: parses messages.txt and attributes.txt, and queries the object itself.

Used by docs/make, package/enrich and package/patchers.py."""

import re
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).resolve().parent
OBJECT = "halcyra~.control"


@dataclass
class Form:
    form: str
    meaning: str
    example: str


@dataclass
class Message:
    name: str
    digest: str
    section: str
    forms: list = field(default_factory=list)


@dataclass
class Attribute:
    name: str
    text: str
    example: str


def messages():
    section, found = "", []
    for line in (HERE / "messages.txt").read_text(encoding="utf-8").splitlines():
        columns = line.split(" | ")
        if line.startswith("## "):
            section = line[3:]
        elif heading := re.match(r"\[(\w+)\] (.*)", line):
            found.append(Message(heading[1], heading[2], section))
        elif len(columns) == 3 and not line.startswith("#"):
            found[-1].forms.append(Form(*columns))
    return found


def attributes():
    lines = (HERE / "attributes.txt").read_text(encoding="utf-8").splitlines()
    return [Attribute(*line.split(" | ")) for line in lines if line.count(" | ") == 2 and not line.startswith("#")]


def tidy(value):
    """Removes the extra digits of single precision, and a trailing point."""
    return " ".join(f"{float(word):.6g}" if re.fullmatch(r"-?\d*\.\d*(e-?\d+)?", word) else word for word in value.split())


def short_default(value):
    """A default for readers: tidy numbers, and a list of equal values, up to 250 of them, as that single value."""
    value = tidy(value)
    words = value.split()
    return f"{words[0]} for each" if len(words) > 20 and len(set(words)) == 1 else value


def facts(bench):
    """The attributes as the object reports them: name -> {type, default, minvalue, maxvalue, units, category, choices}."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([bench, "--window", "offscreen"], input=f"new page {OBJECT}\nsend page generatexml\n", cwd=folder, text=True, capture_output=True, check=True)
        root = ElementTree.parse(Path(folder) / f"{OBJECT}.maxref.xml").getroot()
    found = {}
    for attribute in root.findall("attributelist/attribute"):
        properties = {p.get("name"): p.get("value") for p in attribute.findall("attributelist/attribute")}
        found[attribute.get("name")] = {
            **properties,
            "type": attribute.get("type"),
            "default": short_default(properties.get("default", "")),
            "choices": [e.get("name") for e in attribute.findall("enumlist/enum")],
        }
    return found


def setup_of(example):
    """Bench commands required before a message's example: a dialog's answer, a dictionary to read."""
    word = example.split()[0]
    if example in ("writesnapshot", "readsnapshot"):
        return ["dialog scenes.xml"]
    if example == "exportdict":
        return ["dialog state.json"]
    if word == "dictionary":
        return [f"dict {example.split()[1]} gain -6."]
    return []
