#!/usr/bin/env python3
"""The object in Pure Data without a display: saved state, message order, files, and invalid input."""

import random
import re
import shutil
import tempfile
import unittest
from pathlib import Path

from pd import CLASS, EXTERNALS, Patch, play


class PdTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def printed(self, patch, quit_at=50, *options):
        """The patch's console output until it quits."""
        patch.at(quit_at, r"\; pd quit")
        patch.write(self.folder / "test.pd")
        status, rows = play(self.folder / "test.pd", *options)
        self.assertEqual(status, 0, rows)
        return rows

    def control(self, patch, arguments="", name="left"):
        box = patch.obj(f"{CLASS} {arguments}".strip())
        printer = patch.obj(f"print {name}")
        answers = patch.obj("print right")
        patch.cord(box, printer)
        patch.cord(box, answers, 1)
        return box

    def saved_lines(self, path):
        return [line for line in path.read_text().split(";\n") if line.startswith("#A")]

    def save(self, patch, at, name):
        patch.at(at, rf"\; pd-test.pd savetofile {name} {self.folder}")


class SavedState(PdTest):
    def test_a_patch_that_is_saved_and_loaded_again_has_the_same_state(self):
        patch = Patch()
        control = self.control(patch, "@numsources 3 @windowtitle Hall")
        patch.at(1, r"roomsize 3000 \, gain -6.123456 \, direct 0.1 -3 0 -6.5 250 4000 \, source 2 xyz 0.1234567 1 0 \, source 1 name 7 \, source 3 name two\ words \, viewpoint front", control)
        self.save(patch, 5, "first.pd")
        self.printed(patch)
        first = self.saved_lines(self.folder / "first.pd")
        self.assertIn(r"#A saved name 7 2 two\ words", first)
        self.assertIn("0.123456702", next(line for line in first if "sourcespositions" in line))  # more than Pd's six digits
        self.assertEqual(first[-1], "#A saved")
        self.assertGreater(len(first), 8)

        # Another patch loads it and only saves it again.
        (self.folder / "loaded.pd").write_text(re.sub(r"#X obj \d+ \d+ loadbang", "#X obj 0 0 bag", (self.folder / "first.pd").read_text()))
        patch = Patch()
        patch.obj("loaded")
        patch.at(5, rf"\; pd-loaded.pd savetofile second.pd {self.folder}")
        rows = self.printed(patch)
        self.assertEqual(self.saved_lines(self.folder / "second.pd"), first)
        self.assertIn("left: reverb gain -6.12", rows)

    def test_a_fresh_object_saves_nothing(self):
        patch = Patch()
        self.control(patch, "@gain -3")
        self.save(patch, 5, "first.pd")
        self.printed(patch)
        self.assertEqual(self.saved_lines(self.folder / "first.pd"), [])

    def test_lines_that_are_damaged_are_logged_and_the_others_are_taken(self):
        patch = Patch()
        control = self.control(patch)
        patch.saved(control, "saved gain -6", "saved nonsense 1 2", "saved direct 1 2", "saved")
        unclosed = self.control(patch)
        patch.saved(unclosed, "saved tr0 3")
        patch.at(5, "getgain", control)
        patch.at(6, "gettr0", unclosed)
        rows = self.printed(patch)
        self.assertIn(f"error: {CLASS}: saved: there is no attribute nonsense", rows)
        self.assertIn(f"error: {CLASS}: saved direct: 6 values were expected, 2 were found", rows)
        self.assertIn("right: gain -6", rows)
        self.assertIn("right: tr0 3", rows)

    def test_a_state_of_another_size_is_taken_as_far_as_it_goes(self):
        kept = {2: ["yaw 10 20", "name a b", "sourcespositions 1 2 0 3 4 0"],
                3: ["yaw 10 20 30", "name a b c", "sourcespositions 1 2 0 3 4 0 5 6 0"],
                4: ["yaw 10 20 30 0", "name a b c 4", "sourcespositions 1 2 0 3 4 0 5 6 0 -1 8.74228e-08 0"]}
        for count, expected in kept.items():
            with self.subTest(sources=count):
                patch = Patch()
                control = self.control(patch, f"@numsources {count}")
                patch.saved(control, *(f"saved {line}" for line in kept[3]), "saved")
                patch.at(5, r"getyaw \, getname \, getsourcespositions \, getgain", control)
                rows = self.printed(patch)
                warned = [row for row in rows if "values were expected" in row]
                self.assertEqual(len(warned), 0 if count == 3 else 3, rows)
                self.assertEqual([row.removeprefix("right: ") for row in rows if row.startswith("right:")], [*expected, "gain 0"])

    def test_lines_behind_an_object_that_cannot_be_made_reach_no_other(self):
        patch = Patch()
        control = self.control(patch)
        broken = patch.obj(f"{CLASS}.nothing")
        patch.saved(broken, "saved gain -6", "saved")
        patch.at(5, "getgain", control)
        rows = self.printed(patch)
        self.assertIn("right: gain 0", rows)


class ExactRecall(PdTest):
    """Restores reachable states exactly, in one go, whatever limits their values impose on each other."""

    COUNT = 30

    def states(self):
        """Messages that lead to states with the linked times close together."""
        dice = random.Random(5)
        for _ in range(self.COUNT):
            pick = lambda low, high: f"{dice.uniform(low, high):.2f}"
            messages = [f"roomsize {dice.randint(10, 15000)}"]
            for word, low, high in (("reverb start", 1, 500), ("cluster end", 1, 300), ("cluster start", 1, 300), ("early end", 1, 120), ("early start", 1, 120), ("reverb tr0", 0.1, 30), ("reverb modaldensity", 0.2, 4), ("early distr", 0.1, 0.9), ("reverb fl", 20, 20000)):
                if dice.random() < 0.6:
                    messages.append(f"{word} {pick(low, high)}")
            dice.shuffle(messages)
            yield r" \, ".join([*messages, f"direct {pick(-60, 10)} 1 2 3 {pick(20, 20000)} {pick(20, 20000)}"])

    def saved_by_object(self, path):
        """The lines after each of our objects, except positions, which a cord rounds."""
        objects = path.read_text().split(f" {CLASS}")[1:]
        return [[line for line in text.split(";\n") if line.startswith("#A") and "positions" not in line] for text in objects]

    def assert_pairs_are_equal(self, states, copies):
        different = sum(state != copy for state, copy in zip(states, copies))
        self.assertEqual((len(states), len(copies), different), (self.COUNT, self.COUNT, 0))

    def test_saved_states_come_back(self):
        patch = Patch()
        for state in self.states():
            patch.at(1, state, self.control(patch))
        self.save(patch, 5, "first.pd")
        self.printed(patch)
        (self.folder / "loaded.pd").write_text(re.sub(r"#X obj \d+ \d+ loadbang", "#X obj 0 0 bag", (self.folder / "first.pd").read_text()))
        patch = Patch()
        patch.obj("loaded")
        patch.at(5, rf"\; pd-loaded.pd savetofile second.pd {self.folder}")
        self.printed(patch)
        first, second = (self.saved_by_object(self.folder / name) for name in ("first.pd", "second.pd"))
        self.assert_pairs_are_equal(first, second)

    def test_a_bang_over_a_cord_copies_the_state(self):
        patch = Patch()
        for state, before in zip(self.states(), reversed(list(self.states()))):
            one, other = patch.obj(CLASS), patch.obj(CLASS)
            patch.at(1, before, other)
            patch.at(2, state, one)
            gate = patch.obj("spigot")
            patch.cord(one, gate)
            patch.cord(gate, other)
            patch.at(3, "1", (gate, 1))
            patch.at(4, "bang", one)
        self.save(patch, 5, "first.pd")
        self.printed(patch)
        lines = self.saved_by_object(self.folder / "first.pd")
        self.assert_pairs_are_equal(lines[0::2], lines[1::2])


class Messages(PdTest):
    def test_an_object_has_sent_everything_when_its_message_returns(self):
        patch = Patch()
        control = self.control(patch)
        before, after = patch.obj("print before"), patch.obj("print after")
        trigger = patch.obj("t b a b")
        patch.cord(trigger, before, 2)
        patch.cord(trigger, control, 1)
        patch.cord(trigger, after, 0)
        patch.at(5, "tr0 3", trigger)
        rows = self.printed(patch)
        start = rows.index("before: bang")
        self.assertEqual(rows[start + 1 : start + 3], ["left: reverb tr0 3", "after: bang"])

    def test_what_one_object_sends_the_next_has_understood_when_the_cord_returns(self):
        patch = Patch()
        first, second = self.control(patch), self.control(patch, name="second")
        before, after, trigger = patch.obj("print before"), patch.obj("print after"), patch.obj("t b a b")
        patch.cord(first, trigger)
        for outlet, receiver in ((2, before), (1, second), (0, after)):
            patch.cord(trigger, receiver, outlet)
        patch.at(5, "tr0 3", first)
        rows = self.printed(patch)
        start = rows.index("second: reverb tr0 3")
        self.assertEqual((rows[start - 1], rows[start + 1]), ("before: bang", "after: bang"))

    def test_a_missing_display_is_logged_once(self):
        patch = Patch()
        control = self.control(patch)
        patch.at(5, r"open \, open \, vis 1", control)
        rows = self.printed(patch)
        self.assertEqual(rows.count(f"error: {CLASS}: open: there is no display to show the window on"), 1)

    def test_file_names_are_relative_to_the_patch_and_a_missing_one_is_asked_for(self):
        patch = Patch()
        control = self.control(patch)
        patch.at(5, r"store here \, writesnapshot kept.xml \, writesnapshot \, exportdict state.json", control)
        patch.write(self.folder / "other.pd")
        elsewhere = self.folder / "elsewhere"
        elsewhere.mkdir()
        patch.at(9, r"\; pd quit")
        patch.write(self.folder / "test.pd")
        _, rows = play(self.folder / "test.pd", folder=elsewhere)
        self.assertTrue((self.folder / "kept.xml").exists(), rows)
        self.assertTrue((self.folder / "state.json").exists(), rows)
        self.assertIn(f"error: {CLASS}: writesnapshot: a file name is needed, since there is no GUI to ask for one", rows)


class BadInput(PdTest):
    def test_arguments_and_messages_that_make_no_sense_leave_an_object_that_works(self):
        for arguments in ("1 2 3", "@numsources -5", "@numsources words", "@nonsense 4", "@numsources 1e+30", "@gain", "@ @ @"):
            with self.subTest(arguments):
                patch = Patch()
                control = self.control(patch, arguments)
                patch.at(5, r"symbol x \, 1 2 3 \, list a b \, gain \, gain a b \, nonsense \, saved \, getgain \, callback x", control)
                self.assertIn("right: gain 0", self.printed(patch))

    def test_a_second_copy_of_the_external_on_the_path_does_no_harm(self):
        shutil.copy(next(EXTERNALS.glob("*.pd_linux")), self.folder)
        patch = Patch()
        self.control(patch)
        other = patch.obj(f"{self.folder.name}/{CLASS}")
        patch.cord(other, patch.obj("print other"))
        patch.at(5, "getgain", 0)
        patch.at(6, "tr0 3", other)
        rows = self.printed(patch, 50, "-path", str(self.folder.parent))
        self.assertIn("right: gain 0", rows)

    def test_a_hundred_objects_live_in_one_patch(self):
        patch = Patch()
        for _ in range(100):
            self.control(patch)
        patch.at(5, r"tr0 3 \, gettr0", *range(0, 300, 3))
        rows = self.printed(patch)
        self.assertEqual(rows.count("left: reverb tr0 3"), 100)
        self.assertEqual(rows.count("right: tr0 3"), 100)


if __name__ == "__main__":
    unittest.main()
