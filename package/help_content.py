"""Contents of the package's patchers: one table of rows per page. patchers.py lays them out.

A page: tab (help only), title, digest, columns of sections (heading, rows), and the object's text. Outlet messages
appear in message boxes; answers replaces the right outlet's by a chain.

Rows:
    ("say", text)                        a comment
    ("send", message, remark)            a message box to our object
    ("attr", attribute, remark)          a control for one attribute
    ("from", feeders, message, remark)   controls that fill ($1) or trigger a message to our object; named by their text
    ("object", name, text, remark)       another box, identified by a name
    ("to", name, message, remark)        a message box to that box
"""

MIN_SIZES = "halcyra~.control @numsources 2 @numspeakers 4"

BASIC = {
    "tab": "basic",
    "title": "halcyra~.control",
    "digest": "The control interface of a room reverberator: a window with three tabs, and the same settings as messages. It makes no sound: connect its left outlet to halcyra~, a separate object.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4 @windowtitle Help",
    "columns": [
        [
            ("The window", [
                ("send", "open", "opens the window, or brings it to the front; a double click on the box does the same"),
                ("send", "wclose", "hides it; the object keeps working"),
                ("attr", "windowtitle", "one word"),
                ("attr", "windowtopleft", "top, then left, in pixels: where it first opens"),
                ("attr", "windowmoveable", "0: windowtopleft is ignored"),
            ]),
            ("Settings", [
                ("attr", "gain", "level of the late reverberation, dB"),
                ("from", ["flonum 0.1 30"], "tr0 $1", "decay time in seconds"),
                ("send", "reverb tr0 1.5", "the same by its name in the reverberator"),
                ("send", "getgain", "queries a value: the answer is at the right outlet. Every attribute has a get"),
                ("send", "bang", "sends all positions, filters and reverb settings again, for example to a newly loaded reverberator"),
            ]),
        ],
        [
            ("Sizes", [
                ("say", "numsources (1 to 64), numspeakers (1 to 64) and numinternals (2 to 16) are fixed when the box is created: type them into the box as @numsources 4. A saved state fits only an object of the same sizes."),
                ("send", "getnumsources", "the number of sources"),
            ]),
            ("Outlets", [
                ("say", "Left: every change by message or in the window, in the form that halcyra~ accepts, such as reverb tr0 2. or source 1 aed 30. 0. 1. Unchanged reverb values are not sent again; positions always are, so do not connect two objects in a loop."),
                ("say", "Right: answers to get messages, to dump and to dumpdict."),
            ]),
            ("Good to know", [
                ("say", "Sliders and messages move in the same steps; filters are exact. Out-of-range values are clipped. A word in place of a number counts as 0; other invalid input is rejected and changes nothing."),
                ("send", "version", "posts the version in the Max window"),
                ("attr", "useopengl", "draws the window with OpenGL"),
                ("attr", "showfps", "shows its frame rate"),
            ]),
        ],
    ],
}

TIME = {
    "tab": "time structure",
    "title": "Time structure",
    "digest": "Early reflections, then a cluster of denser ones, then the late reverberation: three stages on one time axis, in milliseconds. A time is limited by its neighbours: a start by the start of the stage before and its own end, an end by its own start and the end of the other stage.",
    "object": MIN_SIZES,
    "columns": [
        [
            ("Room size", [
                ("from", ["flonum 10 15000"], "roomsize $1", "cubic metres; sets the three stages and the modal density at once. Takes a float, so write 2000. with its point"),
            ]),
            ("Early reflections", [
                ("attr", "early_start", "ms"),
                ("attr", "early_end", "ms"),
                ("attr", "early_distr", "0.5 is even"),
                ("attr", "early_shape", "below 0.5 they fall, above they rise"),
                ("attr", "early_width", "degrees"),
                ("send", "early start 18.5", "the same by the reverberator's names: start, end, distr, shape, width"),
            ]),
            ("Cluster", [
                ("attr", "cluster_start", "ms, up to 300"),
                ("attr", "cluster_end", "ms, up to 300"),
                ("attr", "cluster_distr", "0.5 is even"),
                ("send", "cluster end 90", "likewise: start, end, distr"),
            ]),
        ],
        [
            ("Late reverberation", [
                ("attr", "reverb_start", "ms, 1 to 500"),
                ("attr", "modaldensity", "0.2 to 4"),
                ("attr", "tr0", "decay time, seconds"),
                ("attr", "trl", "low frequencies: times tr0"),
                ("attr", "trm", "middle frequencies: times tr0"),
                ("attr", "trh", "high frequencies: times tr0"),
                ("attr", "fl", "low to middle, Hz"),
                ("attr", "fh", "middle to high, Hz"),
                ("attr", "roomairabsorption", "air absorbs highs"),
                ("attr", "roomairrolloff", "from this frequency, Hz"),
                ("attr", "infinite", "freezes the tail"),
                ("send", "reverb air 1", "the reverberator's names: start, gain, tr0, trl, trm, trh, fl, fh, air, airfreq, modaldensity, infinite"),
            ]),
            ("Reset", [
                ("send", "reset", "resets the time structure and the four filters"),
            ]),
        ],
    ],
}

FILTERS = {
    "tab": "filters",
    "title": "Filters",
    "digest": "Four three-band filters: direct sound, room, early reflections, cluster. Each has an overall gain, a low, a middle and a high gain in dB, and two crossover frequencies in Hz.",
    "object": MIN_SIZES,
    "columns": [
        [
            ("All six values", [
                ("say", "In this order: overall gain (-200 to 30 dB), low, middle, high gain (-30 to 30 dB), low/middle and middle/high frequency (20 to 20000 Hz)."),
                ("send", "direct 0 0 0 -6 250 4000", ""),
                ("send", "room 0 -3 0 -9 300 3500", ""),
                ("send", "early params 0 0 -2 -6 250 4000", "optionally after params or hlshelf"),
                ("send", "cluster hlshelf 0 0 0 -12 200 5000", ""),
            ]),
        ],
        [
            ("Some of them", [
                ("send", "direct gains -3 0 0 -6", "the four gains; keeps the frequencies"),
                ("send", "room freqs 177 5657", "the two frequencies; keeps the gains"),
                ("send", "early Gh -9", "one: G0, Gl, Gm, Gh in dB, fl, fh in Hz"),
                ("send", "cluster gh 0.5", "g0, gl, gm, gh are linear power gains: 0.5 is -3 dB"),
                ("from", ["flonum -30 30"], "room Gl $1", "from a number"),
                ("send", "getroom", "queries the six values"),
            ]),
            ("In the window", [
                ("say", "Drag a dot of a curve up or down for a gain, one of the two vertical lines sideways for a frequency; the wheel moves the last one."),
                ("say", "The overall gain's slider ranges from -60 to 10 dB; messages cover the full range."),
            ]),
        ],
    ],
}

SCENE = {
    "tab": "scene",
    "title": "Scene",
    "digest": "Sources, in metres or in degrees and metres: x to the right, y to the front, z up; azimuth 0 is in front and increases clockwise. Indices start at 1.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4 @numareas 1 @numanchors 1",
    "columns": [
        [
            ("Sources", [
                ("send", "sourcespositions -1 1 0 1 1 0", "x y z of all sources in one list. For many sources this is far cheaper than a message each"),
                ("send", "source 1 aed 30 0 1", "one source: azimuth, elevation, distance"),
                ("send", "source 2 xyz 0.5 1 0", "also xy, x, y, z, ad, ae, ade, az, azim, elev, azimelev, dist, ambrel3, wfs"),
                ("from", ["number -180 180"], "source 1 azim $1", "keeps elevation and distance"),
                ("send", "source 1 azim++ 10", "a step; also elev++, dist++, dist*=, x++, y++, z++"),
                ("send", "source 1 name voice", "also yaw, aperture, radius, visible, showaperture, showcoordinates, orientationmode, color (four numbers), lookat (x y z)"),
                ("send", "source 2 color 0.2 0.6 1 1", "red, green, blue, alpha from 0 to 1"),
                ("attr", "format", "output format"),
            ]),
        ],
        [
            ("From a fast process", [
                ("attr", "defer", "1: queues scene messages for the main thread. Use it for a metro in overdrive"),
            ]),
            ("Everything", [
                ("send", "rotate 0 15 0 0", "the whole scene (1, 2, ... for one source): yaw, pitch, roll in degrees"),
                ("send", "adjustzoom", "fits all into the view"),
            ]),
            ("Try it", [
                ("say", "Open the window, go to its third page and drag a source: the output is shown above."),
                ("send", "open", ""),
            ]),
        ],
    ],
}

SPEAKERS = {
    "tab": "speakers",
    "title": "Speakers, listener, areas, anchors",
    "digest": "Objects around the sources. Positions use the formats of sources.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4 @numareas 1 @numanchors 1",
    "columns": [
        [
            ("Speakers", [
                ("send", "speakers ad -45 1 45 1 135 1 -135 1", "all at once; loudspeakers is the same"),
                ("send", "speakerspositions -1 1 0 1 1 0 1 -1 0 -1 -1 0", "x y z of all"),
                ("send", "speaker 1 aed -30 0 1", "one; loudspeaker is the same"),
                ("send", "loudspeakers xy -1 1 1 1 1 -1 -1 -1", ""),
                ("send", "loudspeaker 2 name right", "also color, visible"),
            ]),
        ],
        [
            ("Listener, areas, anchors", [
                ("send", "listener xyz 0 0 0", ""),
                ("send", "listener yaw 20", "also pitch, roll; rpy takes roll, pitch, yaw"),
                ("attr", "numareas", "number of areas"),
                ("attr", "showareas", ""),
                ("send", "area 1 xy -1 1 1 1 1 2 -1 2", "the corners; areas is the same"),
                ("send", "areas 1 name stage", "also color, visible, clear"),
                ("attr", "numanchors", "number of anchors"),
                ("attr", "showanchors", ""),
                ("send", "anchor 1 xyz 0 2 0", "a fixed mark"),
            ]),
        ],
    ],
}

VIEW = {
    "tab": "view",
    "title": "View",
    "digest": "What the scene tab shows and what the mouse may edit. All are attributes: use the controls, messages, the inspector or the box.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "remark": "open the window and go to its third tab",
    "columns": [
        [
            ("View", [
                ("attr", "viewpoint", "top or front"),
                ("attr", "zoom", "from 0.1"),
                ("attr", "autozoom", ""),
                ("attr", "zoomlock", "locks the zoom"),
                ("attr", "rightclicklock", "no menu"),
                ("attr", "showviewer", "0 saves drawing time"),
                ("attr", "showlegend", ""),
            ]),
            ("Objects", [
                ("attr", "showsources", ""),
                ("attr", "showsourceslabel", ""),
                ("attr", "showaperture", ""),
                ("attr", "showradius", ""),
                ("attr", "showspeakers", ""),
                ("attr", "showspeakerslabel", ""),
                ("attr", "showspeakershull", "uses some CPU time"),
                ("attr", "showlistener", ""),
                ("attr", "showheadphones", ""),
            ]),
        ],
        [
            ("The mouse may move", [
                ("attr", "sourceseditable", ""),
                ("attr", "speakerseditable", ""),
                ("attr", "listenereditable", ""),
                ("attr", "circularconstraint", "only around the centre"),
                ("attr", "radiusconstraint", "drags keep the distance"),
            ]),
            ("Grid and background", [
                ("attr", "gridmode", "none, circular, square"),
                ("attr", "gridspacing", "metres"),
                ("attr", "gridlines", ""),
                ("attr", "showangulardivisions", ""),
                ("attr", "numangulardivisions", ""),
                ("attr", "backgroundimage", "a PNG or JPEG file, or none"),
                ("attr", "backgroundimagescale", ""),
                ("attr", "backgroundimageopacity", ""),
            ]),
            ("Levels", [
                ("attr", "showsourceslevels", ""),
                ("send", "sourceslevels -12 -20", "dB per source, from your own meter"),
            ]),
        ],
    ],
}

DETAILS = {
    "tab": "details",
    "title": "Details of the view",
    "digest": "More that the scene tab can show: sizes, colours, and aids that are off by default. radius, orientationmode, sourcecolor, name, yaw and aperture take one list with a value per source; shorter lists are ignored.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "remark": "open the window and go to its third tab",
    "columns": [
        [
            ("Sources", [
                ("attr", "radius", "metres"),
                ("attr", "orientationmode", "yawconstraint, translation, follow, listenerconstraint"),
                ("attr", "sourcecolor", "four numbers each"),
                ("attr", "aperturecolor", ""),
                ("attr", "sourceproportion", "size of their icons"),
            ]),
            ("Speakers", [
                ("attr", "showspeakersradius", "their distance"),
                ("attr", "showspeakersprojection", "on the sphere"),
                ("attr", "showspeakerstriangulation", "uses some CPU time"),
                ("attr", "showspeakerslevels", ""),
                ("attr", "speakerslevels", "dB, from your own meter"),
                ("attr", "speakersproportion", "size of their icons"),
            ]),
        ],
        [
            ("Listener", [
                ("attr", "listenerposition", "x y z"),
                ("attr", "listeneryaw", "degrees"),
                ("attr", "listenerpitch", "degrees"),
                ("attr", "listenerroll", "degrees"),
                ("attr", "listenerproportion", "size of its icon"),
            ]),
            ("Background", [
                ("attr", "showbackgroundimage", ""),
                ("attr", "backgroundimagexoffset", "pixels"),
                ("attr", "backgroundimageyoffset", "pixels"),
                ("attr", "backgroundimageangle", "degrees"),
                ("attr", "backgroundimagequality", "low, medium, high"),
                ("attr", "backgroundcolor", ""),
                ("attr", "gridcolor", ""),
                ("attr", "dashedgrid", ""),
            ]),
        ],
    ],
}

MARKS = {
    "tab": "room",
    "title": "Room, marks and position of the view",
    "digest": "Walls, anchors and areas in the scene tab, and the position of its view.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "remark": "open the window and go to its third tab",
    "columns": [
        [
            ("Room and marks", [
                ("attr", "showshoebox", "a box of six walls"),
                ("attr", "shoeboxcorners", "two opposite corners: x y z, x y z"),
                ("attr", "showanchorslabel", ""),
                ("attr", "areasmonitoring", "tracks which areas contain what; this object sends nothing about it"),
            ]),
        ],
        [
            ("Position of the view", [
                ("attr", "xoffset", "pixels"),
                ("attr", "yoffset", "pixels"),
                ("attr", "zoffset", "pixels"),
                ("attr", "globalproportion", ""),
                ("attr", "display", "0: the window opens empty"),
            ]),
        ],
    ],
}

KEYS = {
    "tab": "keys and mouse",
    "title": "Keys and mouse",
    "digest": "In the scene tab of the window. Click into the scene first, so that it gets the keys.",
    "object": MIN_SIZES,
    "remark": "try it: open the window and go to its third tab",
    "columns": [
        [
            ("Mouse", [
                ("say", "Click: selects a source. Shift-click adds to the selection or removes from it. A drag moves all selected sources."),
                ("say", "Drag on empty space: a rectangle selects the sources in it."),
                ("say", "Right click: a menu for editing, visibility and the view."),
                ("say", "In the top view a drag changes x and y, in the front view x and z; the third coordinate is kept."),
                ("say", "Double click on a slider of the first tab: resets it."),
            ]),
            ("Wheel", [
                ("say", "Zooms."),
                ("say", "With a source selected: shift raises or lowers it; with the apertures shown, ctrl changes the aperture and alt rotates the source."),
                ("say", "With the listener selected and editable: alt rotates it."),
            ]),
            ("Keys of the other tabs", [
                ("say", "tab, shift + tab: next control, previous control"),
                ("say", "arrows: move a slider by a step, with shift by ten"),
                ("say", "return, space: press a button or a switch"),
            ]),
        ],
        [
            ("Keys", [
                ("say", "tab: selects the next source; shift + tab and ctrl + tab leave the scene"),
                ("say", "alt + arrows: move the selection by 0.1 m, with shift by 1 m; alt + page up and page down, along the hidden axis"),
                ("say", "alt + home, alt + end: select the next speaker, the listener, if editable"),
                ("say", "ctrl + a: selects all sources"),
                ("say", "v: switches top and front view"),
                ("say", "g: next grid mode"),
                ("say", "a, s, l: shows or hides apertures, speakers, the listener"),
                ("say", "c: moves only around the centre, or freely"),
                ("say", "+ and -: zoom;  = resets it to 1"),
                ("say", "arrows: scroll the view"),
                ("say", "ctrl + w: closes the window, on the first two tabs"),
                ("say", "ctrl + z: undoes the last edit, on every page; ctrl + shift + z or ctrl + y redoes it"),
            ]),
            ("Start", [
                ("send", "open", ""),
                ("send", "sourceseditable 1", "if the mouse does not move sources, they are locked"),
            ]),
        ],
    ],
}

SNAPSHOTS = {
    "tab": "snapshots",
    "title": "Snapshots",
    "digest": "A snapshot stores the positions of all sources under a name, in the object only: neither pattr nor preset nor the patcher saves them, so write them to a file.",
    "object": MIN_SIZES,
    "columns": [
        [
            ("Store", [
                ("send", "source 1 aed -60 0 1, source 2 aed 60 0 1, store wide", "1: a scene, stored as wide"),
                ("send", "source 1 aed -10 0 2, source 2 aed 10 0 2, store far", "2: another, stored as far"),
            ]),
            ("Recall", [
                ("send", "recall wide", "3: back to the first"),
                ("from", ["flonum 0 1"], "xsnapshot wide far $1", "4: between the two, from 0 to 1"),
            ]),
        ],
        [
            ("Files", [
                ("send", "writesnapshot", "all snapshots to an XML file; asks where. A file name may follow"),
                ("send", "clearsnapshot far", "deletes one; without a name, all"),
                ("send", "clearsnapshot", ""),
                ("send", "readsnapshot", "reads such a file; asks which. A file name may follow"),
            ]),
        ],
    ],
}

STATE = {
    "tab": "state",
    "title": "State",
    "digest": "How the settings are saved: with the patcher, in presets, in dictionaries, in a file.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4",
    "varname": "verb",
    "answers": ["route dictionary", "prepend dictionary", "dict", "dict.view"],
    "columns": [
        [
            ("pattr and preset", [
                ("say", "Saved: all attributes: reverb settings, filters, positions, view and window. Not saved: snapshots, corners of areas, positions of anchors, names and colours of speakers, visibility of single objects, the room size slider, the selection. A new object overwrites positions, names, colours and levels after an @ in the box: set them by pattr, a preset or a message."),
                ("say", "A state fits only an object with the same sizes (numsources, numspeakers, numinternals); others are rejected as a whole, with a message."),
                ("to", "states", "store 1", ""),
                ("to", "states", "recall 1", ""),
                ("object", "states", "pattrstorage verb-states", "", {"varname": "verb-states"}),
                ("object", "auto", "autopattr", "saves every box with a scripting name; this object's is verb", {"varname": "auto"}),
                ("object", "presets", "preset", "shift-click stores, click recalls"),
            ]),
        ],
        [
            ("Dictionaries and lists", [
                ("send", "dumpdict", "all attributes as a dictionary, on the right outlet"),
                ("send", "dumpdict gain tr0 room", "only these. Copy it at once, as the dict below does: it is cleared afterwards"),
                ("to", "settings", "set gain -6., set tr0 3.2", "sets entries of the dict below"),
                ("object", "settings", "dict verb-settings", ""),
                ("send", "dictionary verb-settings", "sets what that dict contains"),
                ("send", "dump gain", "a list; without a name, all in one list"),
            ]),
            ("Files", [
                ("send", "exportdict", "all attributes to a JSON file; asks where. A file name may follow"),
                ("send", "postattributes gain", "posts it in the Max window; without a name, all"),
            ]),
        ],
    ],
    "cords": [("presets", 0, "verb")],
}

NOTES = {
    "tab": "?",
    "title": "See also",
    "digest": "The reference page of halcyra~.control lists every message and every attribute with its range.",
    "columns": [
        [
            ("In Max", [
                ("say", "pattrstorage and autopattr: many states, and interpolation."),
                ("say", "preset: a few states, by a click."),
                ("say", "dict: settings by name, from a file or other objects."),
                ("say", "route: separates the messages of the left outlet."),
            ]),
        ],
        [
            ("In this package", [
                ("say", "Extras > Halcyra Overview has the examples."),
                ("say", "halcyra~ is the reverberator itself, a separate object that is not part of this package."),
            ]),
        ],
    ],
}

HELP = [BASIC, TIME, FILTERS, SCENE, SPEAKERS, VIEW, DETAILS, MARKS, KEYS, SNAPSHOTS, STATE, NOTES]

FIRST_STEPS = {
    "title": "First steps",
    "digest": "One object, a few settings, and a chain of two: the second accepts what the first one sends.",
    "object": "halcyra~.control @numsources 2 @numspeakers 2",
    "remark": "its left outlet goes to halcyra~",
    "columns": [
        [
            ("A small room and a large one", [
                ("send", "open", "the window shows what you change"),
                ("send", "roomsize 200., tr0 0.6, gain -6", "a small room"),
                ("send", "roomsize 9000., tr0 3.5, gain 0", "a large one"),
                ("send", "room gains 0 0 0 -9", "darker"),
                ("send", "reset", "back to the defaults"),
            ]),
            ("A second object follows the first", [
                ("object", "second", "halcyra~.control @numsources 2 @numspeakers 2 @windowtitle Second @windowtopleft 90 90", ""),
                ("to", "second", "open", "its window follows the first"),
            ]),
        ],
    ],
    "cords": [("verb", 0, "second")],
}

MOVING = {
    "title": "A moving source",
    "digest": "Steps on a clock: a metro rotates one source, a number moves the other.",
    "object": "halcyra~.control @numsources 2 @numspeakers 4 @defer 1",
    "columns": [
        [
            ("Movement", [
                ("send", "source 1 aed 0 0 1, source 2 aed 180 0 2", "the start"),
                ("from", ["toggle", "metro 50"], "source 1 azim++ 2", "40 degrees a second"),
                ("from", ["flonum 0.2 5"], "source 2 dist $1", "metres"),
                ("send", "sourcespositions -1 1 0 1 1 0", "all sources in one list"),
                ("attr", "format", "output format"),
            ]),
        ],
    ],
}

CROSSFADE = {
    "title": "From scene to scene",
    "digest": "Two snapshots and interpolation between them, by a line or by hand.",
    "object": "halcyra~.control @numsources 3 @numspeakers 4",
    "columns": [
        [
            ("First store both", [
                ("send", "sourcespositions -2 1 0 0 2 0 2 1 0, store apart", ""),
                ("send", "sourcespositions -0.2 1 0 0 1 0 0.2 1 0, store together", ""),
            ]),
            ("Then go", [
                ("from", ["line 0. 50", "flonum 0 1"], "xsnapshot apart together $1", "0 is apart, 1 is together; line outputs every 50 ms"),
                ("to", "line 0. 50", "0., 1. 4000", "there in four seconds"),
                ("to", "line 0. 50", "1., 0. 4000", "and back"),
            ]),
        ],
    ],
}

TUTORIAL = {
    "title": "Tutorial: a moving scene in six steps",
    "digest": "Click the boxes from top to bottom, the left column first. It ends with two snapshots of a scene and a line that moves from one to the other.",
    "object": "halcyra~.control @numsources 3 @numspeakers 4",
    "varname": "verb",
    "columns": [
        [
            ("1  Open the window", [
                ("send", "open", "three pages: time structure, filters, scene"),
            ]),
            ("2  Choose a room", [
                ("send", "roomsize 2000.", "cubic metres, with a point: sets times and density"),
                ("from", ["flonum 0.1 30"], "tr0 $1", "drag the number: decay time in seconds"),
                ("send", "gain -3", "level of the late reverberation, dB"),
            ]),
            ("3  Colour it", [
                ("send", "room gains 0 -2 0 -6", "less low and high frequencies in the room"),
                ("send", "cluster Gh -9", "one gain of one filter"),
            ]),
        ],
        [
            ("4  Place three sources", [
                ("send", "source 1 aed -60 0 2, source 1 name voice", "azimuth, elevation, distance; a name"),
                ("send", "source 2 aed 60 0 2, source 2 name guitar", ""),
                ("send", "source 3 xyz 0 -1 0, source 3 name strings", "or in metres"),
                ("send", "store wide", "stores the positions as wide"),
            ]),
            ("5  Another scene", [
                ("send", "sourcespositions -0.3 1 0 0.3 1 0 0 2 0", "all sources in one list"),
                ("send", "store close", "stores them as close"),
            ]),
            ("6  Let it move", [
                ("from", ["line 0. 50", "flonum 0 1"], "xsnapshot wide close $1", "0 is wide, 1 is close"),
                ("to", "line 0. 50", "0., 1. 4000", "there in four seconds"),
                ("to", "line 0. 50", "1., 0. 4000", "and back"),
                ("send", "writesnapshot", "only the object has the snapshots: save them"),
            ]),
        ],
    ],
}

LAYOUTS = {
    "title": "Speaker layouts",
    "digest": "Azimuth and distance of every speaker in one message; as many as the box has. Azimuth 0 is in front and increases clockwise, so left is negative.",
    "columns": [
        [
            ("Two to five", [
                ("to", "two", "speakers ad -30 1 30 1", "stereo"),
                ("object", "two", "halcyra~.control @numspeakers 2 @windowtitle Two", ""),
                ("to", "three", "speakers ad -30 1 30 1 0 1", "left, right, centre"),
                ("object", "three", "halcyra~.control @numspeakers 3 @windowtitle Three", ""),
                ("to", "four", "speakers ad -45 1 45 1 135 1 -135 1", "a square, clockwise"),
                ("object", "four", "halcyra~.control @numspeakers 4 @windowtitle Four", ""),
                ("to", "five", "speakers ad -30 1 30 1 0 1 -110 1 110 1", "left, right, centre, surrounds"),
                ("object", "five", "halcyra~.control @numspeakers 5 @windowtitle Five", ""),
            ]),
        ],
        [
            ("Six to eight", [
                ("to", "six", "speakers ad -30 1 30 1 90 1 150 1 -150 1 -90 1", "a hexagon"),
                ("object", "six", "halcyra~.control @numspeakers 6 @windowtitle Six", ""),
                ("to", "seven", "speakers ad -30 1 30 1 0 1 -90 1 90 1 -150 1 150 1", ""),
                ("object", "seven", "halcyra~.control @numspeakers 7 @windowtitle Seven", ""),
                ("to", "eight", "speakers ad -22.5 1 22.5 1 67.5 1 112.5 1 157.5 1 -157.5 1 -112.5 1 -67.5 1", ""),
                ("object", "eight", "halcyra~.control @numspeakers 8 @windowtitle Eight", ""),
            ]),
            ("A ring of any number, and layouts of the IEM plug-ins", [
                ("object", "any", "halcyra~.control @numspeakers 12 @windowtitle Ring", ""),
                ("object", "layouts", "js halcyra-layouts.js", "makes one speakers message"),
                ("to", "layouts", "ring 12 1.5", "twelve in a circle of 1.5 metres"),
                ("object", "ask", "opendialog", "then choose a JSON file"),
                ("object", "file", "prepend iem", ""),
                ("to", "ask", "bang", "a layout of the IEM plug-ins, with twelve speakers"),
            ]),
        ],
    ],
    "cords": [("ask", 0, "file"), ("file", 0, "layouts"), ("layouts", 0, "any")],
}

OSC = {
    "title": "OSC to and from another program",
    "digest": "Another program sends /halcyra with the words of a message as its arguments, and receives every change in the same form.",
    "object": "halcyra~.control @numsources 2 @numspeakers 2",
    "varname": "verb",
    "columns": [
        [
            ("In: for example /halcyra source 1 aed 30. 0. 1.", [
                ("object", "in", "udpreceive 7400", "the port to send to"),
                ("object", "ours", "route /halcyra", "removes the address"),
            ]),
            ("Out: every change", [
                ("object", "address", "prepend /halcyra", "adds it again"),
                ("object", "out", "udpsend 127.0.0.1 7401", "the other program's machine and port"),
            ]),
            ("Try it", [
                ("send", "source 1 aed 45 0 1", "also sent by OSC"),
            ]),
        ],
    ],
    "cords": [("in", 0, "ours"), ("ours", 0, "verb"), ("verb", 0, "address"), ("address", 0, "out")],
}

SILENT = {
    "title": "Silent sources disappear",
    "digest": "A level in dB hides its source below a threshold and shows it above. Replace each number by your own meter.",
    "object": "halcyra~.control @numsources 2 @numspeakers 2 @showsourceslevels 1",
    "columns": [
        [
            ("Source 1", [
                ("from", ["flonum -60 6", "> -50.", "change"], "source 1 visible $1", "only when it changes"),
            ]),
            ("Source 2", [
                ("from", ["number -60 6", "> -50", "change 0"], "source 2 visible $1", ""),
            ]),
            ("Levels at the sources", [
                ("send", "sourceslevels -12 -40", "dB per source, drawn while showsourceslevels is 1"),
            ]),
        ],
    ],
}

SURFACES = {
    "title": "Two surfaces for one reverberator",
    "digest": "Positions are always sent again, so two objects in a loop would never stop. Only one of two gates is open: the leading surface's output goes to the other one, and to halcyra~, which belongs below both gates.",
    "columns": [
        [
            ("Which one leads", [
                ("object", "first", "halcyra~.control @numsources 2 @numspeakers 2 @windowtitle First", ""),
                ("object", "second", "halcyra~.control @numsources 2 @numspeakers 2 @windowtitle Second @windowtopleft 90 90", ""),
                ("object", "to-second", "gate 1 1", "open: the first leads"),
                ("object", "to-first", "gate 1 0", "open: the second leads"),
                ("to", "to-first", "0", "1: close the way back"),
                ("to", "to-second", "1", "2: the first leads"),
                ("to", "to-second", "0", "1: close the way there"),
                ("to", "to-first", "1", "2: the second leads"),
                ("to", "first", "open", ""),
                ("to", "second", "open", ""),
                ("to", "first", "source 1 aed 30 0 1", "moves in both windows while the first leads"),
            ]),
        ],
    ],
    "cords": [("first", 0, "to-second", 1), ("to-second", 0, "second"), ("second", 0, "to-first", 1), ("to-first", 0, "first")],
}

COLOURS = {
    "title": "Colours for everyone",
    "digest": "Eight colours that colour-blind users can distinguish, also by brightness; the first ones are for the first sources.",
    "object": "halcyra~.control @numsources 8 @numspeakers 2",
    "columns": [
        [
            ("One message for all", [
                ("send", "sourcecolor 0.9 0.62 0 1 0.34 0.71 0.91 1 0 0.62 0.45 1 0.94 0.89 0.26 1 0 0.45 0.7 1 0.84 0.37 0 1 0.8 0.47 0.65 1 0.1 0.1 0.1 1", ""),
            ]),
            ("Or one by one", [
                ("send", "source 1 color 0.9 0.62 0 1", "orange"),
                ("send", "source 2 color 0.34 0.71 0.91 1", "light blue"),
                ("send", "source 3 color 0 0.62 0.45 1", "green"),
                ("send", "source 4 color 0.94 0.89 0.26 1", "yellow"),
            ]),
        ],
    ],
    "width": 2,
}

WRAP = {
    "title": "Angles that wrap",
    "digest": "From azimuth 170 to -170 a line of numbers passes through the front, 340 degrees the wrong way. Between two snapshots a source moves straight in x y z, through the back.",
    "object": "halcyra~.control @numsources 1 @numspeakers 2",
    "columns": [
        [
            ("The long way round", [
                ("from", ["number -180 180"], "source 1 azim $1", "drag from 170 to -170"),
            ]),
            ("The short way", [
                ("send", "source 1 aed 170 0 1, store here", "1"),
                ("send", "source 1 aed -170 0 1, store there", "2"),
                ("from", ["line 0. 50", "flonum 0 1"], "xsnapshot here there $1", "interpolates x, y and z"),
                ("to", "line 0. 50", "0., 1. 2000", "there"),
                ("to", "line 0. 50", "1., 0. 2000", "and back"),
            ]),
        ],
    ],
}

EXAMPLES = {
    "halcyra-tutorial": TUTORIAL,
    "halcyra-first-steps": FIRST_STEPS,
    "halcyra-moving-source": MOVING,
    "halcyra-scene-to-scene": CROSSFADE,
    "halcyra-speaker-layouts": LAYOUTS,
    "halcyra-osc": OSC,
    "halcyra-silent-sources": SILENT,
    "halcyra-two-surfaces": SURFACES,
    "halcyra-colours": COLOURS,
    "halcyra-angles": WRAP,
}

# Pasted into a patcher from its menu: small and self-contained.
CLIPPINGS = {
    "control with a display": {
        "title": "halcyra~.control",
        "digest": "Set the sizes in the box before you store states.",
        "object": "halcyra~.control @numsources 4 @numspeakers 8",
        "columns": [[("Start", [("send", "open", ""), ("send", "bang", "sends everything again")])]],
    },
    "fade between two scenes": {**CROSSFADE, "title": "Fade between two scenes"},
}

LOOKUP = {
    "digest": "Control interface of a room reverberator",
    "description": "A window and a set of messages for the parameters of halcyra~: time structure, filters, and a scene of sources, speakers and a listener.",
    "module": "max",
    "category": ["Interaction"],
    "keyword": ["reverb", "room", "spatialisation", "source", "speaker", "snapshot"],
    "seealso": ["pattrstorage", "preset", "dict"],
}

OVERVIEW = {
    "title": "Halcyra",
    "digest": "halcyra~.control controls a room reverberator, in its window and by messages. It makes no sound: halcyra~, the reverberator, is a separate object and not part of this package. Without it everything here works silently.",
    "columns": [
        [
            ("Start here", [
                ("to", "loader", "load halcyra-tutorial.maxpat", "six steps to a moving scene"),
                ("to", "loader", "load halcyra~.control.maxhelp", "the help, one topic per tab"),
                ("object", "loader", "pcontrol", ""),
            ]),
            ("Examples", [
                ("to", "loader", "load halcyra-first-steps.maxpat", "two objects in a chain"),
                ("to", "loader", "load halcyra-moving-source.maxpat", "positions on a clock"),
                ("to", "loader", "load halcyra-scene-to-scene.maxpat", "interpolation between snapshots"),
                ("to", "loader", "load halcyra-speaker-layouts.maxpat", "stereo to eight, rings, JSON"),
                ("to", "loader", "load halcyra-osc.maxpat", "to and from another program"),
                ("to", "loader", "load halcyra-silent-sources.maxpat", "hidden by their levels"),
                ("to", "loader", "load halcyra-two-surfaces.maxpat", "for one reverberator"),
                ("to", "loader", "load halcyra-colours.maxpat", "for colour-blind users too"),
                ("to", "loader", "load halcyra-angles.maxpat", "that wrap"),
            ]),
        ],
        [
            ("The three pages of the window", [
                ("object", "time", "fpic halcyra-time-structure.png", "time structure"),
                ("object", "filters", "fpic halcyra-filters.png", "filters"),
                ("object", "scene", "fpic halcyra-scene.png", "scene"),
            ]),
        ],
    ],
}
