#!/usr/bin/python3
"""The listening aid, driven by the control's left outlet, rendered by Pd and measured."""

import math
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import numpy
from scipy import signal

from pd import CLASS, ROOT, Patch, play

RATE = 48000
SILENT = -200
QUIET_STAGES = {name: f"{name} {SILENT} 0 0 0 250 4000" for name in ("direct", "early", "cluster")}
NO_LATE = "gain -30"
FLAT = r"trl 1 \, trm 1 \, trh 1 \, roomairabsorption 0"


class Listening(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.aid = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.aid)
        subprocess.run([sys.executable, ROOT / "package/pd_listen.py", cls.aid], check=True)

    def render(self, settings, seconds, sound="impulse", during=""):
        """Both channels, starting at the onset of the sound."""
        folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        patch = Patch()
        control, printer = patch.obj(f"{CLASS} @numsources 3 @numspeakers 2"), patch.obj("print left")
        aid = patch.obj("halcyra-listen~ 3 test")
        patch.cord(control, aid)
        length = int(seconds * RATE)
        recorders = [patch.obj(f"tabwrite~ out{side}") for side in (0, 1)]
        for side, recorder in enumerate(recorders):
            patch.obj(f"table out{side} {length}")
            patch.cord(aid, recorder, side)
        receivers = list(recorders)
        if sound == "impulse":
            patch.obj("table impulse 64")
            player = patch.obj("tabplay~ impulse")
            patch.cord(player, aid, 0, 1)
            receivers.append(player)
        elif sound == "third":
            patch.obj("table impulse 64")
            player, thrown = patch.obj("tabplay~ impulse"), patch.obj("throw~ test-3")
            patch.cord(player, thrown)
            receivers.append(player)
        elif sound == "tone":
            patch.cord(patch.obj("osc~ 300"), aid, 0, 1)
        patch.at(1, r"\; pd dsp 1 \; impulse 0 1" if sound in ("impulse", "third") else r"\; pd dsp 1")
        patch.at(2, "bang", control)
        patch.at(3, settings, control)
        patch.at(600, "bang", *receivers)
        if during:
            patch.at(600 + 300 * seconds, during, control)
        file = patch.obj("soundfiler")
        patch.at(700 + seconds * 1000, "write -wave -bytes 4 out.wav out0 out1", file)
        patch.at(710 + seconds * 1000, r"\; pd quit")
        patch.write(folder / "test.pd")
        status, rows = play(folder / "test.pd", "-r", str(RATE), "-path", str(self.aid))
        self.assertEqual((status, [row for row in rows if "error" in row or "couldn't" in row]), (0, []))
        data = (folder / "out.wav").read_bytes()
        start = data.index(b"data") + 8
        return numpy.frombuffer(data[start : start + 8 * length], "<f4").reshape(-1, 2).T.astype(float)

    def t60(self, sound, low=None, high=None):
        """Decay from -5 to -35 dB of the remaining energy, in a band or overall."""
        if low:
            sound = signal.sosfilt(signal.butter(4, [low, high], "bandpass", fs=RATE, output="sos"), sound)
        left = numpy.cumsum(sound[::-1] ** 2)[::-1]
        decibels = 10 * numpy.log10(left / left[0] + 1e-30)
        first, last = numpy.argmax(decibels < -5), numpy.argmax(decibels < -35)
        return 2 * (last - first) / RATE

    def late_only(self, *settings):
        return r" \, ".join([*QUIET_STAGES.values(), *settings])

    def taps(self, sound):
        """Times in ms of isolated samples."""
        return numpy.nonzero(numpy.abs(sound) > 0.01)[0] / RATE * 1000

    def test_the_decay_time_is_the_one_that_is_set(self):
        for wanted in (0.5, 1, 2, 4, 8):
            with self.subTest(tr0=wanted):
                left, right = self.render(self.late_only(f"tr0 {wanted}", FLAT), wanted * 0.9 + 0.3)
                for side in (left, right):
                    measured = self.t60(side[int(0.15 * RATE) :])
                    print(f"tr0 {wanted}: {measured:.3f} s")
                    self.assertAlmostEqual(measured / wanted, 1, delta=0.05)

    def test_each_band_decays_by_its_ratio(self):
        settings = r"tr0 2 \, fl 250 \, fh 4000 \, trl 1.5 \, trm 1 \, trh 0.5 \, roomairabsorption 0"
        left, right = self.render(self.late_only(settings), 3)
        for low, high, wanted in ((25, 60, 3), (800, 1250, 2), (16000, 21000, 1)):
            with self.subTest(band=low):
                measured = (self.t60(left[int(0.15 * RATE) :], low, high) + self.t60(right[int(0.15 * RATE) :], low, high)) / 2
                print(f"band from {low} Hz: {measured:.3f} s, wanted {wanted}")
                self.assertAlmostEqual(measured / wanted, 1, delta=0.05)

    def test_the_air_takes_the_highs(self):
        left, _ = self.render(self.late_only(r"tr0 2 \, trl 1 \, trm 1 \, trh 1 \, roomairabsorption 1 \, roomairrolloff 5000"), 2)
        self.assertLess(self.t60(left[int(0.15 * RATE) :], 9000, 15000), 1)
        self.assertGreater(self.t60(left[int(0.15 * RATE) :], 100, 400), 1.9)

    def test_the_late_reverberation_begins_at_its_start(self):
        for start in (95.37, 150):
            sound = self.render(self.late_only(f"reverb start {start}", FLAT), 0.4)
            first = min(self.taps(side * 3)[0] for side in sound)
            print(f"reverb start {start}: first energy at {first:.2f} ms")
            self.assertAlmostEqual(first, start, delta=1)

    def test_early_and_cluster_taps_stand_where_the_delay_generator_puts_them(self):
        table = [2, 5, 7, 11, 18, 23, 29, 37]
        places = [(entry - 2) / 35 for entry in table]
        mean = sum(places) / 8
        for stage, other, start, end, distr in (("early", "cluster", 20, 60, 0.5), ("early", "cluster", 30, 50, 0.3), ("cluster", "early", 42.47, 105.64, 0.5)):
            with self.subTest(stage=stage, distr=distr):
                settings = [QUIET_STAGES["direct"], QUIET_STAGES[other], NO_LATE, "modaldensity 4", f"{stage} end {end}", f"{stage} start {start}", f"{stage} distr {distr}"]
                sound = self.render(r" \, ".join(settings), 0.15)
                exponent = (1 / distr - 1) / (1 / mean - 1)
                wanted = [place**exponent * (end - start) + start for place in places]
                heard = sorted({round(t) for side in sound for t in self.taps(side)})
                for time_of_tap in wanted:
                    self.assertLess(min(abs(t - time_of_tap) for side in sound for t in self.taps(side)), 0.1)
                self.assertGreaterEqual(min(heard), round(start) - 1)
                self.assertLessEqual(max(heard), round(end) + 1)

    def test_a_source_is_heard_from_its_side_by_its_distance_and_its_azimuth(self):
        dry = r" \, ".join([QUIET_STAGES["early"], QUIET_STAGES["cluster"], NO_LATE, "modaldensity 4", "speakers ad -45 1 45 1"])
        for azimuth, distance in ((30, 1), (-30, 1), (0, 2)):
            left, right = self.render(rf"{dry} \, source 1 aed {azimuth} 0 {distance}", 0.1)
            peak = [numpy.abs(side).max() for side in (left, right)]
            ratio = (peak[1] - peak[0]) / (peak[1] + peak[0])
            wanted = math.tan(math.radians(azimuth)) / math.tan(math.radians(45))
            print(f"azimuth {azimuth}: left {peak[0]:.3f}, right {peak[1]:.3f}")
            self.assertAlmostEqual(ratio, wanted, delta=0.02)
            self.assertAlmostEqual(math.hypot(*peak) * distance, 1, delta=0.1)
            self.assertAlmostEqual(numpy.abs(left + right).argmax() / RATE * 1000, distance / 343 * 1000, delta=0.1)

    def test_a_source_beyond_the_inlets_is_reached_by_name(self):
        settings = r"source 1 aed -40 0 1 \, source 3 aed 40 0 1 \, speakers ad -45 1 45 1"
        left, right = self.render(settings, 0.05, sound="third")
        self.assertGreater(numpy.abs(right).max(), 0.5)
        self.assertLess(numpy.abs(left[: RATE // 100]).max(), 0.2)

    def test_the_filters_change_their_bands(self):
        dry = [QUIET_STAGES["early"], QUIET_STAGES["cluster"], NO_LATE, "modaldensity 4", "source 1 aed 0 0 1"]
        spectra = []
        for direct in ("direct 0 0 0 0 250 4000", "direct -3 6 0 -9 250 4000"):
            left, _ = self.render(r" \, ".join([*dry, direct]), 0.09)
            spectra.append(numpy.abs(numpy.fft.rfft(left, RATE)))  # a bin is 1 Hz
        for frequency, wanted in ((30, 3), (1000, -3), (20000, -12)):
            change = 20 * math.log10(spectra[1][frequency] / spectra[0][frequency])
            print(f"direct filter at {frequency} Hz: {change:.2f} dB, wanted {wanted}")
            self.assertAlmostEqual(change, wanted, delta=1)

    def test_silence_gives_silence(self):
        sound = self.render(r"tr0 4 \, infinite 1 \, roomsize 3000", 0.5, sound="silence")
        self.assertEqual(numpy.abs(sound).max(), 0)

    def test_a_frozen_tail_stays(self):
        left, _ = self.render(self.late_only(FLAT, r"tr0 1 \, roomairabsorption 0"), 3, during="infinite 1")
        energy = lambda start: numpy.sum(left[int(start * RATE) : int((start + 0.5) * RATE)] ** 2)
        self.assertGreater(energy(1.2), 0)
        self.assertAlmostEqual(10 * math.log10(energy(2.4) / energy(1.2)), 0, delta=1)

    def test_moving_the_early_start_does_not_click(self):
        settings = r" \, ".join([QUIET_STAGES["direct"], QUIET_STAGES["cluster"], NO_LATE, "modaldensity 4", "early end 80"])
        clicks = []
        for during in ("", r"early start 37"):
            left, _ = self.render(settings, 1, sound="tone", during=during)
            spectrum = numpy.fft.rfft(left)
            spectrum[: 5000 * len(left) // RATE] = 0  # apart from the 300 Hz tone, what remains is a click
            inside = numpy.fft.irfft(spectrum, len(left))[RATE // 20 : -RATE // 20]
            clicks.append(20 * math.log10(numpy.abs(inside).max() / numpy.abs(left).max()))
        print(f"above 5 kHz, beside the tone: {clicks[0]:.1f} dB at rest, {clicks[1]:.1f} dB while it moves")
        self.assertLess(clicks[1], -60)


if __name__ == "__main__":
    unittest.main()
