"""Compares the output of the program named on the command line with scipy's freqz."""
import subprocess
import sys

import numpy
from scipy.signal import freqz

RATE = 44100.0
TOLERANCE = 1e-6  # dB
FLOOR = 1e-12  # squared magnitudes below this are clipped or lost to rounding

blocks = subprocess.run(sys.argv[1], capture_output=True, text=True, check=True).stdout.strip().split("\n\n")
worst, compared = 0.0, 0
for block in blocks:
    first, *rest = [[float(x) for x in line.split()] for line in block.splitlines()]
    b, a = first[:3], first[3:]
    table = numpy.array(rest)
    w, h = freqz(b, a, worN=table[:, 0], fs=RATE)
    _, top = freqz(b, [1], worN=table[:, 0], fs=RATE)
    sound = numpy.abs(top) ** 2 > FLOOR
    compared += int(sound.sum())
    worst = max(worst, float(numpy.max(numpy.abs(20 * numpy.log10(numpy.abs(h[sound])) - table[sound, 1]), initial=0)))

print(f"{len(blocks)} filters, {compared} points, worst difference {worst:.3g} dB")
sys.exit(0 if compared > 1000 and worst < TOLERANCE else 1)
