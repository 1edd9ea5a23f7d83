#!/usr/bin/python3
"""What a run must not do is noticed: each rule once, with a program that breaks it."""
import json
import os
import pathlib
import random
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import kinds  # noqa: E402
import limits  # noqa: E402
import mutation  # noqa: E402
import seeds  # noqa: E402
from ppd import Ppd, mutate_option  # noqa: E402

# A script of the shell, and what is said of it; nothing for one that is as it should be.
SCRIPTS = [
    ("exit 0", ""),
    ("echo refused >&2; exit 1", ""),
    ("exit 1", "nothing was said"),
    ("echo no >&2; exit 7", "the exit status 7"),
    ("kill -SEGV $$", "SIGSEGV"),
    ("printf '\\033[31m'", "a control character"),
    ("printf '\\376'", "no UTF-8"),
    ("echo 'QString::arg: Argument missing' >&2", "an error of its own"),
    ("head -c 300000 /dev/zero | tr '\\0' x", "bytes were said"),
    ("trap '' HUP; sleep 60 & echo", "left behind"),
    ("set -m; sleep 60 & echo", "left behind"),  # a group of its own
    ("sleep 20", "no end"),
    ("touch ../tmp/rest", "left in the temporary folder"),
    ("echo refused >&2; touch job.ps; exit 1", "nothing was printed, and this was left"),
    ("exit 0 # prints", "printed, and there is []"),
    ("echo Red >job.ps", "printed without Ink=Blue"),
    ("echo Blue >job.ps", ""),
]
# A script of Python, and whether it is taken for one that does nothing any more.
WAITING = [
    ("time.sleep(60)", True),
    ("subprocess.run(['sleep', '60'])", True),
    ("[time.sleep(0.2) for _ in range(300)]", True),  # it only looks at the clock
    ("while time.monotonic() - begin < 2: pass", False),
    ("subprocess.run([sys.executable, '-c', 'while True: pass'], timeout=2)", False),
    ("subprocess.run([sys.executable, '-c', 'while True: pass'], timeout=2, process_group=0)", False),
    ("[(sum(range(4_000_000)), time.sleep(0.4)) for _ in range(5)]", False),
]
PPD = b"""*OpenUI *Ink/Ink: PickOne
*DefaultInk: Red
*Ink Red/Red: "Red"
*Ink Blue/Blue: "Blue"
*CloseUI: *Ink
"""


class LimitsTest(unittest.TestCase):
    def case(self, folder, script):
        case = kinds.Case(pathlib.Path(folder) / "case", random.Random(1), 1, "", "")
        if "job.ps" in script or "prints" in script:
            case.use_ppd(PPD)
            case.choices = ["Ink=Blue", "Ink=Red", "Ink=Blue"]
            case.print_to_file("document")
        return case

    def test_every_rule_is_enforced(self):
        limits.LOOKS = 10
        for script, said in SCRIPTS:
            with self.subTest(script), tempfile.TemporaryDirectory() as folder:
                case = self.case(folder, script)
                limits.WALL_SECONDS = 1
                try:
                    end = limits.run(["sh", "-c", script], dict(os.environ), case.folder)
                finally:
                    limits.WALL_SECONDS = 90
                problems = "; ".join(kinds.problems_of(case, end))
                self.assertEqual(bool(problems), bool(said), problems)
                self.assertIn(said, problems)

    def test_a_run_that_does_nothing_is_ended_early(self):
        for script, is_idle in WAITING:
            with self.subTest(script), tempfile.TemporaryDirectory() as folder:
                case = self.case(folder, "")
                limits.IDLE_SECONDS = 1
                try:
                    end = limits.run([sys.executable, "-c", "import subprocess, sys, time; begin = time.monotonic(); "
                                      + script], dict(os.environ), case.folder)
                finally:
                    limits.IDLE_SECONDS = 10
                self.assertEqual(end.status is None, is_idle, end.err)
                self.assertEqual("none of it lately" in "; ".join(kinds.problems_of(case, end)), is_idle)

    def test_a_window_is_closed_when_it_can_hear_of_it(self):
        """However long it takes to get there."""
        script = ("import signal, sys, time; time.sleep(0.6); "
                  "signal.signal(signal.SIGTERM, lambda *_: sys.exit(143)); time.sleep(8)")
        with tempfile.TemporaryDirectory() as folder:
            case = self.case(folder, "")
            end = limits.run([sys.executable, "-c", script], dict(os.environ), case.folder, end_after=0.2)
            self.assertEqual(end.status, 143)
            self.assertLess(end.wall, 5)

    def test_memory_and_time_are_measured(self):
        with tempfile.TemporaryDirectory() as folder:
            case = self.case(folder, "")
            script = "import time; x = bytes(600 << 20); x = b'1' * (600 << 20); time.sleep(0.3)"
            end = limits.run([sys.executable, "-c", script], dict(os.environ), case.folder, looks_at_memory=True)
            self.assertGreater(end.memory, 600 * 1024)
            self.assertIn("MiB of memory", "; ".join(kinds.problems_of(case, end)))
            end.cpu = 11
            self.assertIn("seconds of the processor", "; ".join(kinds.problems_of(case, end)))

    def test_the_same_seed_makes_the_same(self):
        ppd = seeds.texts("resources/ppd/*.ppd")[0]
        for change in (mutation.mutate_bytes, mutation.mutate_text, mutate_option):
            first, again = (change(random.Random(5), ppd, [PPD]) for _ in range(2))
            self.assertEqual(first, again)
            self.assertNotEqual(change(random.Random(6), ppd, [PPD]), first)

    def test_what_a_preset_lacks_is_noticed(self):
        ppd = PPD + b"*OpenGroup: InstallableOptions\n" + PPD.replace(b"Ink", b"Tank") + b"*CloseGroup\n"
        for options, said in [({"Ink": "Blue"}, ""), ({"Ink": "Red"}, "kept Ink=Red instead of Blue"),
                              ({}, "kept Ink=None instead of Blue")]:
            with self.subTest(options), tempfile.TemporaryDirectory() as folder:
                case = self.case(folder, "")
                case.use_ppd(ppd)
                case.keep_as_preset()
                case.choices = ["Ink=Red", "Tank=Blue", "Ink=Blue"]  # a tank is no setting of a job
                case.write("home/presets/Kept.json",
                           json.dumps({"name": "Kept", "options": options}).encode())
                case.write("home/presets/Broken.json", b"\xff")
                end = limits.run(["true"], dict(os.environ), case.folder)
                self.assertEqual("; ".join(kinds.problems_of(case, end)), said)

    def test_one_copy_has_nothing_to_be_collated(self):
        ppd = PPD.replace(b"Ink", b"Collate").replace(b"Red", b"False").replace(b"Blue", b"True")
        for stream, said in [("\\n%%RBINumCopies: 1\\nFalse", ""), ("\\n%%RBINumCopies: 2\\nTrue", ""),
                             ("\\n%%RBINumCopies: 2\\nFalse", "printed without Collate=True"),
                             ("False", "printed without Collate=True")]:
            with self.subTest(stream), tempfile.TemporaryDirectory() as folder:
                case = self.case(folder, "")
                case.use_ppd(ppd)
                case.choices = ["Collate=True"]
                case.print_to_file("document")
                end = limits.run(["sh", "-c", f"printf '{stream}' >job.ps"], dict(os.environ), case.folder)
                self.assertEqual("; ".join(kinds.problems_of(case, end)), said)

    def test_copies_that_the_printer_cannot_collate_are_an_attribute(self):
        collate = PPD.replace(b"Ink", b"Collate").replace(b"Red", b"False").replace(b"Blue", b"True")
        disk = b"*DefaultDisk: None\n"
        alone = b"*UIConstraints: *Collate True *Disk None\n"
        for lines, preset, said in [
                (alone + disk, {"attributes": {"collate": "true"}}, ""),
                (b"*UIConstraints: *Disk None *Collate True\n" + disk, {"attributes": {"collate": "true"}}, ""),
                (b'*cupsUIConstraints: "*Disk None *Collate"\n' + disk, {"attributes": {"collate": "true"}}, ""),
                (b'*cupsUIConstraints Store: "*Collate True *Disk None"\n' + disk,
                 {"attributes": {"collate": "true"}}, ""),
                (alone + disk, {"attributes": {"collate": "false"}}, "kept Collate=False instead of True"),
                (alone + disk, {"options": {"Collate": "True"}}, "kept Collate=None instead of True"),
                (alone + disk, {}, "kept Collate=None instead of True"),
                # It has a disk, or needs none.
                (alone, {"attributes": {"collate": "true"}}, "kept Collate=None instead of True"),
                (alone.replace(b"True", b"False") + disk, {"attributes": {"collate": "true"}},
                 "kept Collate=None instead of True"),
                (b"", {"options": {"Collate": "True"}}, "")]:
            with self.subTest(lines=lines, preset=preset), tempfile.TemporaryDirectory() as folder:
                case = self.case(folder, "")
                case.use_ppd(collate + lines)
                case.keep_as_preset()
                case.choices = ["Collate=True"]
                case.write("home/presets/Kept.json", json.dumps({"name": "Kept", **preset}).encode())
                end = limits.run(["true"], dict(os.environ), case.folder)
                self.assertEqual("; ".join(kinds.problems_of(case, end)), said)
                missing = [] if lines.endswith(disk) and b"Collate False" not in lines else ["Collate=True"]
                self.assertEqual(case.ppd.missing(["Collate=True"], b""), missing)

    def test_a_number_that_is_no_choice_is_a_custom_value(self):
        ppd = Ppd(PPD.replace(b"Ink Blue", b"Ink 3") + b'*Ink 7/Seven: "7"\n')
        for kept, choice, same in [("Custom.7", "7", True), ("Custom.7", "6", False), ("7", "7", True),
                                   ("Custom.3", "3", False), ("3", "3", True), (None, "7", False)]:
            with self.subTest(kept=kept, choice=choice):
                self.assertEqual(ppd.is_the_same("Ink", kept, choice), same)

    def test_choices_that_no_command_line_can_hold_are_not_asked_for(self):
        self.assertEqual(list(Ppd(PPD.replace(b"Ink Red", b"Ink R\0d")).codes["Ink"]), ["Blue"])

    def test_choices_are_read_from_every_sample_printer(self):
        for content in seeds.texts("resources/ppd/*.ppd"):
            ppd = Ppd(content)
            self.assertIn("PageSize", ppd.codes)
            self.assertEqual(ppd.missing(["PageSize=A5"], b""), ["PageSize=A5"])
            self.assertEqual(ppd.missing(["PageSize=A5"], content), [])


if __name__ == "__main__":
    unittest.main()
