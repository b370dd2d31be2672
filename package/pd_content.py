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
    "cubic metres, with a point: times": "cubic metres: times",
    "use the controls, messages, the inspector or the box": "use messages, or write them into the box with an @",
    "neither pattr nor preset nor the patcher saves them": "the patch does not save them",
    "1: scene messages wait for the main thread. Use it when they come from a metro in overdrive": "has no effect in Pd, which has one thread",
    "its left outlet goes to halcyra~": "its left outlet goes to halcyra~ or halcyra-listen~",
    "a separate object.": "a separate object, or to halcyra-listen~, an aid for the ear.",
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
    "digest": "The patch keeps the settings: save it, and they come back when it is loaded. Undo, copy and duplicate keep them too.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "columns": [
        [
            ("With the patch", [
                ("say", "Saved: all attributes that differ from the state in which the box was made, that is reverb settings, filters, positions, the view and the window. When the patch is loaded, the object sends all of them once everything is connected."),
                ("say", "Not saved: snapshots, the corners of areas, the places of anchors, names and colours of speakers, what is shown or hidden one by one, the room size slider, the selection."),
                ("say", "What is changed by hand in the window marks the patch as changed; messages do not."),
            ]),
        ],
        [
            ("Ask", [
                ("send", "dump gain", "one attribute with its name; without a name, all in one list"),
                ("send", "bang", "sends all positions, filters and reverb settings"),
                ("send", "exportdict", "all attributes into a JSON file; asks where. A file name may follow, relative to the patch"),
                ("send", "postattributes gain", "posts it in the Pd window; without a name, all"),
                ("send", "reset", "the time structure and the filters return to their defaults"),
            ]),
        ],
    ],
}

NOTES = {
    "tab": "?",
    "title": "See also",
    "digest": "README.deken.pd tells what is in this package.",
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
                ("say", "route: takes what leaves the left outlet apart."),
                ("say", "declare -path: lets a patch find the objects of a folder."),
                ("say", "Numbers: Pd knows one kind. A whole number reaches the object as a whole number, any other as a float."),
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
            ("In: for instance /halcyra source 1 aed 30. 0. 1.", [
                ("object", "in", "netreceive -u -b 7400", "the port to send to"),
                ("object", "parsed", "oscparse", ""),
                ("object", "trimmed", "list trim", ""),
                ("object", "ours", "route halcyra", "takes the address off"),
            ]),
            ("Out: every change", [
                ("object", "list", "list", ""),
                ("object", "address", "oscformat halcyra", "puts it back"),
                ("to", "out", "connect 127.0.0.1 7401", "the other program's machine and port: first click this"),
                ("object", "out", "netsend -u -b", ""),
            ]),
            ("Try it", [
                ("send", "source 1 aed 45 0 1", "leaves by OSC as well"),
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
                ("say", "A right click on the object and Help lead to its help patch, one topic in each of its subpatches."),
                ("say", "examples: small patches to start from. halcyra-hearing.pd lets you hear the settings by halcyra-listen~, a listening aid that is not the reverberator."),
            ]),
        ],
        [
            ("What it needs", [
                ("say", "Pd 0.53 or later on 64-bit Linux with X11, FreeType, OpenGL and glibc 2.35 or later."),
                ("say", "halcyra~, the reverberator itself, is a separate object and not part of this package."),
                ("say", "Under the GNU General Public License, version 3 or later: LICENSE.txt. What is linked in: NOTICES.txt."),
            ]),
        ],
    ],
}
