#!/usr/bin/env python3
"""Runs the bench's transcripts in Pure Data, which must print the same output.

Usage: transcripts.py PATCHBENCH [NAME ...]

Commands that Pd does not support, or delivers differently, are skipped on both sides; LEFT_OUT gives the reasons.
"""

import difflib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

from pd import CLASS, ROOT, Patch, play

BENCH = Path(sys.argv[1]).resolve()
PLAYED = {"new", "send", "attr", "connect", "disconnect", "wait", "dialog"}
# Prefixes of skipped commands, and why.
LEFT_OUT = [
    (r"mark\b", "what was printed before is left out in the transcript, and compared here"),
    (r"(mouse|key|page)\b|send \S+ open\b", "this Pd has no display"),
    (r"(hold|release|thread)\b", "Pd has one thread, and a message is done when it returns"),
    (r"(dict|preset|[gs]etvalueof)\b|send \S+ (dumpdict|dictionary)\b", "Pd has no dictionaries and no presets"),
    (r"(property|assist)\b", "Pd asks for nothing of the kind"),
    (r"(free|quit)\b", "a patch that plays has no message that deletes a box"),
    (r'.* "[-+.\d][^"]*"|.* ""', "a symbol that looks like a number, or an empty one: Pd has none"),
    (r"send \S+ bang .", "Pd drops what stands behind bang"),
    (r"send \S+ roomsize [-+]?\d+( |$)", "every number of Pd is a float, and roomsize takes it"),
    (r"send \S+ (rotate|(reverb )?infinite) [-+]?\d*\.", "Pd's whole numbers are longs, with a point or without"),
]
WORD = re.compile(r'"(?:[^"\\]|\\.)*"|\S+')
NUMBER = re.compile(r"[-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?")
OUTLET = re.compile(r"\S+\.[01]")
LOG = re.compile(r"^Exception occurred in .*\n.*\n\n\n", re.MULTILINE)  # on stderr, which the bench keeps separate
SMALLEST = 900  # minimum of commands compared in all, so that a player that skips everything fails


def number(word):
    """Rounds a number to six digits, as Pd prints it."""
    if not NUMBER.fullmatch(word):
        return word
    try:
        return "%g" % struct.unpack("f", struct.pack("f", float(word)))[0]
    except OverflowError:
        return word


def numbers(text):
    return " ".join(number(word) for word in text.split())


def unquoted(word):
    return re.sub(r"\\(.)", r"\1", word[1:-1]) if word.startswith('"') else word


def heard_on_bench(line):
    """A line of the bench as (box, what); None if Pd shows nothing for it."""
    box, kind, *rest = line.split(" ", 2)
    rest = rest[0] if rest else ""
    values = lambda text: " ".join(unquoted(w) if w.startswith('"') else number(w) for w in WORD.findall(text))
    if kind == "out":
        outlet, text = rest.split(" ", 1)
        return f"{box}.{outlet} " + values(text)
    if kind == "attr":
        return f"{box}.1 " + values(rest)
    prefix = {"error": "error: ", "bug": "error: bug: ", "warn": "warning: ", "post": ""}.get(kind)
    return None if prefix is None else prefix + numbers(rest.replace(f"{box}: ", "", 1))


def heard_in_pd(line):
    if printed := re.match(rf"({OUTLET.pattern}): (.*)", line):
        return f"{printed[1]} " + numbers(re.sub(r"\\(.)", r"\1", printed[2]))
    if row := re.match(rf"(error: )?{re.escape(CLASS)}: (.*)", line):
        return (row[1] or "") + numbers(row[2])
    return line


def word_in_pd(word):
    return re.sub(r"([ ;,$\\])", r"\\\1", unquoted(word))


def selected(lines):
    """The supported commands, new boxes first, and how many were skipped."""
    played, answer = [], None
    for line in lines:
        words = WORD.findall(line)
        if any(re.match(pattern, line) for pattern, _ in LEFT_OUT):
            continue
        if words[0] not in PLAYED:
            raise SystemExit(f"no row tells why this is not played: {line}")
        if words[0] == "dialog":  # where the bench asks, Pd gets a name
            answer = words[1:]
        elif answer is not None and words[0] == "send":
            line, answer = " ".join([line, *answer]), None
        if words[0] != "dialog" or answer is None:
            played.append(line)
    return sorted(played, key=lambda line: not line.startswith("new ")), len(lines) - len(played)


def patch_of(lines, path):
    """The commands as a patch: one message box each, sent a millisecond apart."""
    patch, boxes, time = Patch(), {}, 1
    for line in lines:
        words = WORD.findall(line)
        if words[0] == "new":
            boxes[words[1]] = patch.obj(" ".join([CLASS, *map(word_in_pd, words[3:])]))
            for outlet in (0, 1):
                printer = patch.obj(f"print {words[1]}.{outlet}")
                patch.cord(boxes[words[1]], printer, outlet)
            continue
        if words[0] == "wait":
            time += int(words[1])
            continue
        if words[0] in ("connect", "disconnect"):
            patch.at(time, rf"\; pd-{path.name} {words[0]} {boxes[words[1]]} {words[2]} {boxes[words[3]]} 0")
        else:
            message = ["get" + words[2]] if words[0] == "attr" else map(word_in_pd, words[2:])
            patch.at(time, " ".join(message), boxes[words[1]])
        time += 1
    patch.at(time, r"\; pd quit")
    patch.write(path)


def bench(lines, folder):
    script = folder / "script"
    script.write_text("\n".join(lines) + "\n", encoding="utf-8")
    run = subprocess.run([BENCH, "--window", "offscreen", script], cwd=folder, capture_output=True, text=True, timeout=120)
    return [heard for heard in map(heard_on_bench, run.stdout.splitlines()) if heard is not None]


def compare(script):
    """Returns the number of commands compared, and the differences."""
    lines = [line for line in script.read_text(encoding="utf-8").splitlines() if line.strip()]
    commands, left_out = selected([line for line in lines if not line.startswith("#")])
    count = sum(line.split()[0] in ("send", "attr") for line in commands)
    if count == 0:
        return 0, 0, []
    with tempfile.TemporaryDirectory() as work:
        work = Path(work)
        files = script.with_suffix(".files")
        for side in ("bench", "pd"):
            shutil.copytree(files, work / side) if files.is_dir() else (work / side).mkdir()
        makers = [line for line in commands if line.startswith("new ")]
        # Pd has no cords while objects are created: only the console shows output.
        at_first = bench(makers, work / "bench")
        expected = [row for row in at_first if not OUTLET.match(row)] + bench(commands, work / "bench")[len(at_first):]
        patch_of(commands, work / "pd/patch.pd")
        status, rows = play(work / "pd/patch.pd")
        rows = LOG.sub("", "\n".join(rows)).splitlines()
        strip = lambda text, side: text.replace(f"{work}/{side}", "HERE")
        got = [strip(heard_in_pd(row), "pd") for row in rows]
        expected = [strip(row, "bench") for row in expected]
    difference = list(difflib.unified_diff(expected, got, "bench", "pd", lineterm="", n=0))
    if status != 0:
        difference.append(f"Pd ended with {status}")
    return count, left_out, difference


def main():
    folder = ROOT / "tests/transcripts"
    scripts = sorted(folder.glob("*.bench"))
    wanted = sys.argv[2:]
    total = failed = played = 0
    for script in scripts:
        if wanted and script.stem not in wanted:
            continue
        count, left_out, difference = compare(script)
        total, played = total + count, played + (count > 0)
        if difference:
            failed += 1
            print(f"{script.stem}: {count} commands, differs", *difference[:40], sep="\n    ")
        elif wanted:
            print(f"{script.stem}: {count} commands are equal, {left_out} left out")
    print(f"{played} transcripts played in Pd, {total} commands, {failed} differ")
    sys.exit(1 if failed or (not wanted and total < SMALLEST) else 0)


if __name__ == "__main__":
    main()
