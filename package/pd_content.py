"""How the patches for Pure Data differ from those for Max: classes, words, and separate pages."""

import help_content

# Boxes with other names.
CLASSES = {"line 0. 50": "line 0 50", "gate 1 1": "spigot 1", "gate 1 0": "spigot 0"}

# Classes whose two inlets are swapped.
SWAPPED = {"spigot"}

# Phrases in help_content.py and their replacements.
WORDS = {
    "a double click on the box does the same": "a click on the box, or Properties of its menu, does the same",
    "posts the version in the Max window": "posts the version in the Pd window",
    ". Takes a float, so write 2000. with its point": "",
    "cubic metres, with a point: sets times": "cubic metres: sets times",
    "use the controls, messages, the inspector or the box": "use messages, or type them into the box with an @",
    "neither pattr nor preset nor the patcher saves them": "the patch does not save them",
    "1: queues scene messages for the main thread. Use it for a metro in overdrive": "has no effect in Pd, which has one thread",
    "its left outlet goes to halcyra~": "its left outlet goes to halcyra~ or halcyra-listen~",
    "a separate object.": "a separate object, or to halcyra-listen~, a listening aid.",
    "asks where. A file name may follow": "asks where. A file name may follow, relative to the patch",
    "0., 1. 4000": "0, 1 4000",
    "1., 0. 4000": "1, 0 4000",
}

_used = set()


def adapt(text):
    for old, new in WORDS.items():
        if old in text:
            _used.add(old)
            text = text.replace(old, new)
    return text


def check_all_used():
    """Fails on a phrase that no longer occurs: Max's words would remain in Pd's help."""
    if missing := WORDS.keys() - _used:
        raise SystemExit(f"pd_content.py: not in the help: {sorted(missing)}")


STATE = {
    "tab": "state",
    "title": "State",
    "digest": "The patch saves the settings and restores them when it is loaded. Undo, copy and duplicate keep them too.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "columns": [
        [
            ("With the patch", [
                ("say", "Saved: all attributes that differ from those of a new box: reverb settings, filters, positions, view and window. When the patch is loaded, the object sends all of them once everything is connected."),
                ("say", "Not saved: snapshots, corners of areas, positions of anchors, names and colours of speakers, visibility of single objects, the room size slider, the selection."),
                ("say", "Edits in the window mark the patch as changed; messages do not."),
            ]),
        ],
        [
            ("Query", [
                ("send", "dump gain", "one attribute with its name; without a name, all in one list"),
                ("send", "bang", "sends all positions, filters and reverb settings"),
                ("send", "exportdict", "all attributes to a JSON file; asks where. A file name may follow, relative to the patch"),
                ("send", "postattributes gain", "posts it in the Pd window; without a name, all"),
                ("send", "reset", "resets the time structure and the filters"),
            ]),
        ],
    ],
}

NOTES = {
    "tab": "?",
    "title": "See also",
    "digest": "README.deken.pd lists the package's contents.",
    "columns": [
        [
            ("In this package", [
                ("say", "examples: a tutorial in six steps, small patches for one task each (moving sources, snapshots, speaker layouts, OSC, colours), and hearing the settings."),
                ("say", "halcyra-listen~ makes the settings audible. It is a listening aid and not the reverberator."),
                ("say", "halcyra~ is the reverberator itself, a separate object that is not part of this package."),
            ]),
        ],
        [
            ("In Pd", [
                ("say", "route: separates the messages of the left outlet."),
                ("say", "declare -path: lets a patch find objects in a folder."),
                ("say", "Numbers: Pd has only floats. The object receives whole numbers as integers, all others as floats."),
            ]),
        ],
    ],
}

# Pages that replace those of the same tab.
PAGES = {"state": STATE, "?": NOTES}

OSC = {
    **help_content.OSC,
    "columns": [
        [
            ("In: for example /halcyra source 1 aed 30. 0. 1.", [
                ("object", "in", "netreceive -u -b 7400", "the port to send to"),
                ("object", "parsed", "oscparse", ""),
                ("object", "trimmed", "list trim", ""),
                ("object", "ours", "route halcyra", "removes the address"),
            ]),
            ("Out: every change", [
                ("object", "list", "list", ""),
                ("object", "address", "oscformat halcyra", "adds it again"),
                ("to", "out", "connect 127.0.0.1 7401", "the other program's machine and port: first click this"),
                ("object", "out", "netsend -u -b", ""),
            ]),
            ("Try it", [
                ("send", "source 1 aed 45 0 1", "also sent by OSC"),
            ]),
        ],
    ],
    "cords": [
        ("in", 0, "parsed"), ("parsed", 0, "trimmed"), ("trimmed", 0, "ours"), ("ours", 0, "verb"),
        ("verb", 0, "list"), ("list", 0, "address"), ("address", 0, "out"),
    ],
}

# Vanilla Pd has no scripts to compute or read layouts.
LAYOUTS = {
    **help_content.LAYOUTS,
    "columns": [[(heading, rows) for heading, rows in column if not any("js " in str(row[2]) for row in rows)] for column in help_content.LAYOUTS["columns"]],
    "cords": [],
}

# Examples that replace those of the same name.
EXAMPLES = {"halcyra-osc": OSC, "halcyra-speaker-layouts": LAYOUTS}

META = {
    "NAME": "halcyra~",
    "DESCRIPTION": "control interface of a room reverberator, with a window of three tabs, and a listening aid",
    "KEYWORDS": "control GUI reverb spatialisation room",
    "AUTHOR": "The halcyra developers",
    "LICENSE": "GPL-3.0-or-later",
}

README = {
    "title": "halcyra~",
    "digest": "halcyra~.control is the control interface of a room reverberator: a window with three tabs, and the same settings as messages. It makes no sound itself.",
    "remark": "click it when the patch is locked: its window opens",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "columns": [
        [
            ("Start", [
                ("send", "open", "opens the window"),
                ("say", "Right-click the object and choose Help for its help patch, with one topic per subpatch."),
                ("say", "examples: small patches to start from. halcyra-hearing.pd plays the settings with halcyra-listen~, a listening aid that is not the reverberator."),
            ]),
        ],
        [
            ("What it needs", [
                ("say", "Pd 0.53 or later on 64-bit Linux with X11, FreeType, OpenGL and glibc 2.35 or later."),
                ("say", "halcyra~, the reverberator itself, is a separate object and not part of this package."),
                ("say", "Under the GNU General Public License, version 3 or later: LICENSE.txt. Linked libraries: NOTICES.txt."),
            ]),
        ],
    ],
}
