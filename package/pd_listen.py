#!/usr/bin/env python3
"""Writes halcyra-listen~.pd, its abstractions, and the example that uses it: pd_listen.py FOLDER

The listening aid makes the output of halcyra~.control audible with plain Pd objects. It is not the reverberator. It is
generated because its stages come in rows of eight.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

TAPS = 8  # of the early reflections and of the cluster, like numinternals by default
          # The delay generator's positions for eight taps between a stage's start and end, at an even distribution.
TABLE = [2, 5, 7, 11, 18, 23, 29, 37]
PLACES = [(entry - TABLE[0]) / (TABLE[-1] - TABLE[0]) for entry in TABLE]
MEAN = sum(PLACES) / TAPS
SMALLEST_SPAN = 3.2879817  # ms
SIGNS = "-++---++"
# Relative loop delays of the late reverberation. Their sum is the modal density, in seconds.
LOOPS = [0.61, 0.71, 0.79, 0.89, 1.01, 1.13, 1.27, 1.59]
STAGGER = 2.3  # ms between the entries of the loops
SPEED_OF_SOUND = 343  # m/s
FADE = 30  # ms


class Patch:
    """Boxes in sections side by side; within a section each box is below those that feed it."""

    ROW, CHARACTER = 34, 6  # pixels
    WIDEST = 1400

    def __init__(self, about):
        self.boxes, self.cords, self.sections = [], [], []
        self.section(about)

    def section(self, about):
        self.sections.append((about, len(self.boxes)))

    def put(self, kind, text):
        self.boxes.append((kind, text))
        return len(self.boxes) - 1

    def obj(self, text, *inlets):
        """Creates an object and connects its inlets: each to a box, a (box, outlet), or None."""
        text = text.replace("$", "\\$").replace(",", " \\,").replace(";", " \\;")
        box = self.put("obj", text)
        for number, source in enumerate(inlets):
            if source is not None:
                self.cord(source, box, number)
        return box

    def port(self, kind):
        return self.put("obj", kind)

    def msg(self, text, source=None):
        box = self.put("msg", text.replace("$", "\\$").replace(",", " \\,").replace(";", " \\;"))
        if source is not None:
            self.cord(source, box)
        return box

    def cord(self, source, destination, inlet=0):
        source, outlet = source if isinstance(source, tuple) else (source, 0)
        self.cords.append((source, outlet, destination, inlet))

    def smooth(self, source):
        """Converts a control value to a smoothed signal."""
        return self.obj("line~", self.obj(f"pack f {FADE}", source))

    def formula(self, text, *names):
        """An expression of values received by these names, recomputed whenever one arrives."""
        first, *others = [self.obj(f"r $0-{name}") for name in names]
        orders = [self.obj("t b f", value) for value in others]
        box = self.obj(f"expr {text}", first)
        for number, order in enumerate(orders, 1):
            self.cord((order, 1), box, number)
            self.cord((order, 0), box)
        return box

    def total(self, signals):
        first, *others = signals
        for other in others:
            first = self.obj("+~", first, other)
        return first

    def layers(self):
        """Depth of each box below what feeds it, ignoring feedback to older boxes."""
        depth = [1] * len(self.boxes)
        for box, (_, text) in enumerate(self.boxes):
            feeders = [depth[source] for source, _, destination, _ in self.cords if destination == box and source < box]
            depth[box] = 0 if text.startswith("inlet") else 1 + max(feeders, default=0)
        lowest = max(depth) + 1
        return [lowest if text.startswith("outlet") else layer for layer, (_, text) in zip(depth, self.boxes)]

    def places(self):
        """Places boxes row by row, wrapping long rows. Pd numbers inlets and outlets by position, so they keep their
        order."""
        layers, places, top = self.layers(), [None] * len(self.boxes), 10
        ends = [first for _, first in self.sections[1:]] + [len(self.boxes)]
        titles = []
        for (about, first), end in zip(self.sections, ends):
            titles.append((about, top))
            y = top + 24
            for layer in sorted({layers[box] for box in range(first, end)}):
                x = 20
                for box in (box for box in range(first, end) if layers[box] == layer):
                    width = len(self.boxes[box][1].replace("\\", "")) * self.CHARACTER + 30
                    if x + width > self.WIDEST:
                        x, y = 20, y + self.ROW
                    places[box] = (x, y)
                    x += width
                y += self.ROW
            top = y + 10
        return places, titles, top

    def sub(self, name, inner, *inlets):
        """Creates a subpatch and connects its inlets."""
        box = self.put(inner, f"pd {name}")
        for number, source in enumerate(inlets):
            self.cord(source, box, number)
        return box

    def lines(self, frame):
        """The file's statements; a subpatch's frame gives its name and closes it."""
        places, titles, bottom = self.places()
        lines = [f"#N canvas 40 40 {self.WIDEST if bottom > 500 else 900} {min(bottom + 40, 900)} {frame};"]
        for (kind, text), (x, y) in zip(self.boxes, places):
            if isinstance(kind, Patch):
                lines += [*kind.lines(f"{text[3:]} 0"), f"#X restore {x} {y} {text};"]
            else:
                lines.append(f"#X {kind} {x} {y} {text}, f {max(len(text.replace(chr(92), '')), 3)};")
        for about, y in titles:
            lines.append("#X text 20 {} {}, f 140;".format(y, about.replace(",", " \\,")))
        return lines + ["#X connect {} {} {} {};".format(*cord) for cord in self.cords]

    def write(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("\n".join(self.lines("10")) + "\n", encoding="utf-8")


def bands():
    """First-order three-band filter. The argument names the receiver of fl, fh and each band's gain."""
    p = Patch("Three bands: below fl, between, above fh. The argument names the receiver of fl, fh and three gains")
    x = p.port("inlet~")
    values = p.obj("unpack f f f f f", p.obj("r $1"))
    rate = p.obj("samplerate~", p.obj("loadbang"))
    both = p.obj("rzero~ -1", x)

    def below(outlet):
        """Lowpass by the bilinear transform, so that a band extends to the Nyquist frequency."""
        tangent = p.obj("expr tan(3.14159265*min(max($f1,20),$f2*0.49)/$f2)", (values, outlet), rate)
        scaled = p.obj("*~", both, p.obj("expr $f1/(1+$f1)", tangent))
        return p.obj("rpole~", scaled, p.obj("expr (1-$f1)/(1+$f1)", tangent))

    low, low_and_mid = below(0), below(1)
    mid, high = p.obj("-~", low_and_mid, low), p.obj("-~", x, low_and_mid)
    gained = [p.obj("*~", band, p.smooth((values, 2 + number))) for number, band in enumerate((low, mid, high))]
    out = p.total(gained)
    p.cord(out, p.port("outlet~"))
    return p


def tap():
    """Reads a delay line; when the time changes, crossfades to a second reader."""
    p = Patch("A reader of the delay line that the argument names. A new time is faded to, so it does not click")
    time = p.obj("change -1", p.port("inlet"))
    latest, idle = p.obj("f"), p.obj("spigot 1")
    order = p.obj("t b f", time)
    p.cord((order, 1), latest, 1)
    p.cord((order, 0), idle)
    start = p.obj("t b b b", idle)  # store the side, then the time, then wait for the fade
    p.cord((start, 1), latest)
    side = p.obj("f", (start, 2))
    p.cord(p.obj("== 0", side), side, 1)
    taken = p.obj("t f f", latest)
    current = p.obj("f")
    p.cord((taken, 1), current, 1)
    gate_a, gate_b = p.obj("spigot"), p.obj("spigot")
    p.cord((taken, 0), gate_a)
    p.cord((taken, 0), gate_b)
    sides = p.obj("t f f f", side)
    p.cord((sides, 2), gate_b, 1)
    p.cord(p.obj("== 0", (sides, 1)), gate_a, 1)
    fade = p.obj("line~", p.obj(f"pack f {FADE}", (sides, 0)))
    p.cord(p.msg("0", (start, 0)), idle, 1)
    done = p.obj("t b b", p.obj(f"delay {FADE + 5}", (start, 0)))
    p.cord(p.msg("1", (done, 1)), idle, 1)
    # Continue with what arrived meanwhile.
    ask = p.obj("t b b", (done, 0))
    differs = p.obj("!=")
    p.cord((ask, 1), current)
    p.cord(current, differs, 1)
    again = p.obj("f")
    p.cord((order, 1), again, 1)
    p.cord((ask, 0), again)
    p.cord(again, differs)
    p.cord(p.obj("sel 1", differs), idle)
    a, b = p.obj("delread~ $1 1", gate_a), p.obj("delread~ $1 1", gate_b)
    faded = p.obj("*~", p.obj("-~", b, a), fade)
    p.cord(p.obj("+~", a, faded), p.port("outlet~"))
    return p


def source():
    """One source: its direct sound, and its send to the room."""
    p = Patch("One source of halcyra-listen~, made by clone: its number, the name for throw~, the id of the whole")
    message, first, second = p.port("inlet"), p.port("inlet~"), p.port("inlet~")
    number = p.obj("f $1", p.obj("loadbang"))
    inputs = [p.obj("*~", inlet, p.obj(f"== {n}", number)) for n, inlet in ((1, first), (2, second))]
    sound = p.total([*inputs, p.obj("catch~ $2-$1")])
    p.obj("delwrite~ $0-line 1000", sound)

    p.section("Position: azimuth in degrees, distance in metres")
    kinds = p.obj("route aed xyz", message)
    spherical = p.obj("unpack f f f", (kinds, 0))
    cartesian = p.obj("unpack f f f", (kinds, 1))
    azimuth = p.obj("expr atan2($f1,$f2)*57.29578;sqrt($f1*$f1+$f2*$f2+$f3*$f3)", (cartesian, 0), (cartesian, 1), (cartesian, 2))
    distance = p.obj("max 0.2", (spherical, 2))
    p.cord((azimuth, 1), distance)

    p.section("Direct sound: it comes later and softer from farther away, from between the first two speakers")
    late = p.obj("delread4~ $0-line", p.smooth(p.obj(f"expr $f1*1000/{SPEED_OF_SOUND}", distance)))
    direct = p.obj("*~", late, p.smooth(p.obj("expr 1/$f1", distance)))
    place = p.obj("pack f f f")  # azimuth of the source, middle and half width of the base
    p.cord((spherical, 0), place)
    p.cord((azimuth, 0), place)
    base = p.obj("unpack f f", p.obj("r $3-base"))
    for outlet in (0, 1):
        p.cord((base, outlet), place, 1 + outlet)
    again = p.obj("t b", (base, 0))
    p.cord(again, place)
    values = p.obj("unpack f f f", place)
    # Mirrors sources behind the listener to the front, clamps to the base, then applies the tangent law.
    turned = p.obj("expr sin(($f1-$f2)*0.01745329);max($f3,5)*0.01745329", (values, 0), (values, 1), (values, 2))
    ratio = p.obj("expr tan(max(min(asin(max(min($f1,1),-1)),$f2),-$f2))/tan(min($f2,1.5533))", (turned, 0), (turned, 1))
    gains = p.obj("expr (1-$f1)/sqrt(2*(1+$f1*$f1));(1+$f1)/sqrt(2*(1+$f1*$f1))", ratio)
    sides = [p.obj("*~", direct, p.smooth((gains, side))) for side in (0, 1)]
    room = p.obj("*~", sound, p.smooth(p.obj("expr 1/sqrt(max($f1,1))", distance)))
    for signal in (*sides, room):
        p.cord(signal, p.port("outlet~"))
    return p


def filters(p, route):
    """The four filters' settings: G0 Gl Gm Gh in dB, fl and fh in Hz."""
    for outlet, name in enumerate(("direct", "room", "early", "cluster"), 1):
        values = p.obj("unpack f f f f f f", p.obj("route list", (route, outlet)))
        gains = p.obj("expr $f5;$f6;pow(10,($f1+$f2)/20);pow(10,($f1+$f3)/20);pow(10,($f1+$f4)/20)")
        packed = p.obj("pack f f f f f")
        for number in range(6):
            p.cord((values, number), gains, number)
        for number in range(5):
            p.cord((gains, number), packed, number)
        p.obj(f"s $0-{name}", packed)


def echo(prefix, number, shaped):
    """One tap of a stage: left and right for an early reflection, one side for the cluster."""
    p = Patch(f"Echo {number + 1} of {TAPS}, where the delay generator puts it between start and end")
    place = PLACES[number]
    if place == 0:
        time = p.formula("$f1", f"{prefix}-start")
    else:
        exponent = 1 / (1 / MEAN - 1)
        power = f"pow({place:.6f},(1/max($f3,0.1)-1)*{exponent:.6f})"
        time = p.formula(f"{power}*max($f2-$f1,{SMALLEST_SPAN})+$f1", f"{prefix}-start", f"{prefix}-end", f"{prefix}-distr")
    signal = p.obj("halcyra-listen-tap~ $0-bus", time)
    sign = -1 if SIGNS[number] == "-" else 1
    if not shaped:
        p.cord(p.obj(f"*~ {sign * 0.3}", signal), p.port("outlet~"))
        return p
    p.section("The ramp of the shape, and the width to both sides, farther out for later echoes")
    ramp = p.formula(f"{sign}*{TAPS}*pow(if($f1>0,{number + 1},{TAPS - number})/{TAPS}.,$f2)/$f3*0.25", "rising", "exponent", "ramp-sum")
    signal = p.obj("*~", signal, p.smooth(ramp))
    side = 1 if number % 2 else -1
    angle = p.formula(f"({side}*min($f1*{(number + 1) / TAPS:g}/90,1)+1)*0.7853982", f"{prefix}-width")
    pan = p.obj("expr cos($f1);sin($f1)", angle)
    for outlet in (0, 1):
        p.cord(p.obj("*~", signal, p.smooth((pan, outlet))), p.port("outlet~"))
    return p


def stage(p, prefix, shaped):
    """The echoes of the early reflections or the cluster, left and right."""
    left, right = [], []
    for number in range(TAPS):
        box = p.sub(f"{prefix}-{number + 1}", echo(prefix, number, shaped))
        if shaped:
            left.append((box, 0))
            right.append((box, 1))
        else:
            (right if number % 2 else left).append(box)
    return p.total(left), p.total(right)


def ramp():
    """The exponent of the early shape's ramp, as in the early gains."""
    p = Patch("The ramp of the early reflections' gains: whether it rises, its exponent, its sum")
    text = "if($f1<=0.25,1/max(4*$f1,0.000001),if($f1<=0.5,1-4*($f1-0.25),if($f1<=0.75,4*($f1-0.5),1/(1-min(4*($f1-0.75),0.9999)))))"
    exponent = p.formula(text, "early-shape")
    p.obj("s $0-rising", p.formula("$f1>0.5", "early-shape"))
    order = p.obj("t f f", exponent)
    power = "+".join(f"pow({number / TAPS:g},$f1)" for number in range(1, TAPS + 1))
    p.obj("s $0-ramp-sum", p.obj(f"expr {power}", (order, 1)))
    p.obj("s $0-exponent", (order, 0))
    return p


def loop(number):
    """One loop of the late reverberation: its output, and its input from the room."""
    share = LOOPS[number] / sum(LOOPS)
    p = Patch(f"Loop {number + 1} of {len(LOOPS)}: absorption in three bands at every turn, and by the air")
    is_open, air = p.port("inlet~"), p.port("inlet~")
    signal = p.obj(f"halcyra-listen-tap~ $0-loop{number}", p.formula(f"$f1*1000*{share:.6f}", "modaldensity"))
    decay = lambda ratio: f"if($f6!=0,1,pow(10,-3*$f1*{share:.6f}/max($f2*$f{ratio},0.01)))"
    gains = p.formula(f"$f7;$f8;{decay(3)};{decay(4)};{decay(5)}", "modaldensity", "tr0", "trl", "trm", "trh", "infinite", "fl", "fh")
    packed = p.obj("pack f f f f f")
    for value in range(5):
        p.cord((gains, value), packed, value)
    p.obj(f"s $0-absorption{number}", packed)
    signal = p.obj(f"halcyra-listen-bands~ $0-absorption{number}", signal)
    dull = p.obj("lop~ 10000", signal, p.formula("$f1", "airfreq"))
    read = p.obj("+~", signal, p.obj("*~", p.obj("-~", dull, signal), air))

    p.section("What enters, so early that it is heard at the start of the reverberation")
    time = p.formula(f"max($f1-$f2*1000*{share:.6f}+{number * STAGGER:g},0)", "reverb-start", "modaldensity")
    enters = p.obj("*~", p.obj("halcyra-listen-tap~ $0-bus", time), is_open)
    enters = p.obj(f"*~ {0.35 if number % 2 else -0.35}", enters)
    for signal in (read, enters):
        p.cord(signal, p.port("outlet~"))
    return p


def late(p):
    """Eight loops coupled by a reflection matrix. A frozen tail has no input and no loss to the air."""
    is_open = p.smooth(p.formula("$f1==0", "infinite"))
    air = p.smooth(p.formula("$f1!=0&&$f2==0", "air", "infinite"))
    loops = [p.sub(f"loop-{number + 1}", loop(number), is_open, air) for number in range(len(LOOPS))]
    mixed = p.obj(f"*~ {-2 / len(LOOPS)}", p.total(loops))
    for number, box in enumerate(loops):
        p.obj(f"delwrite~ $0-loop{number} 1200", p.total([box, (box, 1), mixed]))
    level = p.smooth(p.formula("pow(10,$f1/20)", "gain"))
    return [p.obj("*~", p.total(loops[side::2]), level) for side in (0, 1)]


def listen():
    p = Patch("A listening aid for halcyra~.control. It is not the reverberator. Arguments: how many sources, and a name: throw~ NAME-3 is source 3")
    message, first, second = p.port("inlet"), p.port("inlet~"), p.port("inlet~")
    route = p.obj("route source direct room early cluster reverb speakers", message)
    sources = p.obj("clone -s 1 halcyra-listen-source~ $1 $2 $0", (route, 0), first, second)
    p.obj("delwrite~ $0-bus 1000", (sources, 2))
    angles = p.obj("unpack s f f f f", (route, 6))  # aed; azimuth, elevation, distance; azimuth of the second
    base = p.obj("expr ($f1+$f2)/2;abs($f2-$f1)/2", (angles, 1), (angles, 4))
    p.obj("s $0-base", p.obj("pack f f", (base, 0), (base, 1)))

    p.section("The four filters")
    filters(p, route)

    p.section("The words of the stages")
    for outlet, name, words in ((3, "early", "start end distr shape width"), (4, "cluster", "start end distr")):
        stage_words = p.obj(f"route {words}", (route, outlet))
        for number, word in enumerate(words.split()):
            p.obj(f"s $0-{name}-{word}", (stage_words, number))
    words = "start gain tr0 trl trm trh fl fh air airfreq modaldensity infinite".split()
    reverb_words = p.obj("route " + " ".join(words), (route, 5))
    for number, word in enumerate(words):
        p.obj(f"s $0-{'reverb-start' if word == 'start' else word}", (reverb_words, number))

    p.section("Early reflections")
    p.sub("ramp", ramp())
    early = stage(p, "early", True)
    p.section("Cluster")
    cluster = stage(p, "cluster", False)
    p.section("Late reverberation")
    reverberation = late(p)

    p.section("Together")
    for side in (0, 1):
        room = p.total([p.obj("halcyra-listen-bands~ $0-early", early[side]), p.obj("halcyra-listen-bands~ $0-cluster", cluster[side]), reverberation[side]])
        room = p.obj("halcyra-listen-bands~ $0-room", room)
        direct = p.obj("halcyra-listen-bands~ $0-direct", (sources, side))
        p.cord(p.total([direct, room]), p.port("outlet~"))
    return p


def example():
    """A page that plays a short percussive sound on one click."""
    items = []

    def add(text):
        items.append(text)
        return len(items) - 1

    cords = []
    cord = lambda source, destination, outlet=0, inlet=0: cords.append(f"#X connect {source} {outlet} {destination} {inlet};")
    add(r"#X obj 24 10 cnv 5 5 24 empty empty Hearing\ the\ settings 0 12 0 20 #fcfcfc #202020 0;")
    add(r"#X text 24 44 halcyra-listen~ makes the settings audible. It is a listening aid and not the reverberator: its echoes and its decay follow the settings \, its sound is its own., f 82;")
    rows = [
        (r"\; pd dsp 1", "1: audio on"),
        ("open", "2: the window"),
        (r"roomsize 200 \, tr0 0.6", "a small room"),
        (r"roomsize 9000 \, tr0 3.5", "a large one"),
        ("source 1 aed -30 0 1", "near, on the left"),
        ("source 1 aed 40 0 6", "far, on the right"),
        ("room gains 0 0 0 -12", "darker"),
        ("infinite 1", "the tail is frozen"),
        ("infinite 0", "and let go"),
    ]
    messages = []
    for number, (text, remark) in enumerate(rows):
        y = 96 + 30 * number + (14 if number else 0)
        messages.append(add(f"#X msg 24 {y} {text};"))
        add("#X text 250 {} {}, f 26;".format(y, remark.replace(",", " \\,")))
    load, everything = add("#X obj 24 380 loadbang;"), add("#X msg 24 408 bang;")
    add(r"#X text 250 408 everything once, f 26;")
    control = add("#X obj 24 442 halcyra~.control @numsources 2 @numspeakers 2;")
    for message in messages[1:]:
        cord(message, control)
    add("#X text 460 96 3: click to play, f 22;")
    bang = add("#X obj 460 122 bng 30 250 50 0 empty empty empty 0 -6 0 10 #ffe0a0 #000000 #000000;")
    hit = add(r"#X msg 460 166 1 \, 0 60 1;")
    envelope = add("#X obj 460 196 vline~;")
    noise = add("#X obj 530 196 noise~;")
    struck = add("#X obj 460 230 *~;")
    body = add("#X obj 460 260 bp~ 700 2;")
    louder = add("#X obj 460 290 *~ 4;")
    for source, destination, inlet in ((bang, hit, 0), (hit, envelope, 0), (envelope, struck, 0), (noise, struck, 1), (struck, body, 0), (body, louder, 0)):
        cord(source, destination, 0, inlet)
    listen_box = add("#X obj 24 486 halcyra-listen~ 2 hearing;")
    add(r"#X text 240 486 settings \, source 1 \, source 2, f 50;")
    cord(control, listen_box)
    cord(louder, listen_box, 0, 1)
    sides = [add(f"#X obj {24 + 90 * side} 522 *~ 0.5;") for side in (0, 1)]
    dac = add("#X obj 24 558 dac~ 1 2;")
    for side, box in enumerate(sides):
        cord(listen_box, box, side)
        cord(box, dac, 0, side)
    cord(load, everything)
    cord(everything, control)
    return "\n".join(["#N canvas 80 60 720 610 12;", *items, *cords]) + "\n"


def main():
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} FOLDER")
    folder = Path(sys.argv[1])
    for name, patch in {"": listen(), "-source": source(), "-tap": tap(), "-bands": bands()}.items():
        patch.write(folder / f"halcyra-listen{name}~.pd")
    (folder / "examples").mkdir(exist_ok=True)
    (folder / "examples/halcyra-hearing.pd").write_text(example(), encoding="utf-8")


if __name__ == "__main__":
    main()
