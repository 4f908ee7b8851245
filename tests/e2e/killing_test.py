"""Kills the real program at random moments: no file is ever less than whole, and at most 29 seconds are lost.

TIDEWATCH_LONG=1 kills 500 times instead of 20; TIDEWATCH_SEED repeats the moments of an earlier run.
"""

import glob
import os
import random
import re
import subprocess
import time
import unittest

from harness.home import FILES, leaves
from harness.waiting import wait_until
from harness.world import CLOCK_TITLE, World

KILLS = 500 if os.environ.get("TIDEWATCH_LONG") == "1" else 20
SEED = int(os.environ.get("TIDEWATCH_SEED") or random.SystemRandom().randrange(2**32))

SPEED = 10  # seconds of the program's clock in one of ours, so that half a minute between writes is over soon
FLUSH_SECONDS = 30 / SPEED
YEARS = 2  # of work in the record: long enough that its writing takes a while
DAY = "2026-03-10"
SECONDS_BEFORE = 5000  # of that day, when the first program starts
LOST_AT_MOST = 29


class Killing(unittest.TestCase):
    def test_whatever_the_moment_the_files_are_whole_and_the_next_start_goes_on(self):
        print(f"seed {SEED}")
        self.random = random.Random(SEED)
        self.looks = self.flushes = self.unfinished = 0
        with World("killing", accessibility=True) as world:
            self.world = world
            self.clock = self.fast_clock()
            self.prepare()
            record = self.read()
            for kill in range(KILLS):
                with self.subTest(kill=kill):
                    record = self.work_and_kill(record, (self.starting, self.ticking, self.writing)[kill % 3])
            print(
                f"{KILLS} kills, {self.looks} after a look at the clock, {self.flushes} after a completed write, "
                f"{self.unfinished} in the middle of one"
            )
            self.assertGreater(self.looks, 0, "no program was killed while it counted")
            # Of those that are left to tick, about every second one lives that long.
            self.assertGreater(self.flushes, KILLS // 12 - 1, "too few programs lived to write")
            self.assertGreater(self.unfinished, 0, "no program was killed while it wrote")
            self.assert_nothing_lies_about(record)

    def prepare(self):
        home = self.world.home
        home.data.mkdir(mode=0o700)
        # Nobody touches the mouse, however long this takes, and whoever is away books nothing.
        home.write_settings(idleThresholdSeconds=10**9)
        subprocess.run([os.environ["TIDEWATCH_MAKE_RECORD"], str(home.data), str(YEARS)], check=True)
        content = (home.data / "today.json").read_text(encoding="utf-8")
        home.write("today.json", content.rstrip().removesuffix("}").rstrip() + f',\n  "{DAY}" : {SECONDS_BEFORE}\n}}')

    @staticmethod
    def fast_clock():
        """The variables under which a program's clock runs fast, from the same moment on each time."""
        (library,) = glob.glob("/usr/lib/*/faketime/libfaketimeMT.so.1")
        return {"LD_PRELOAD": library, "FAKETIME": f"@{DAY} 09:00:00 x{SPEED}", "NO_FAKE_STAT": "1"}

    def read(self):
        """Every counter of every file; a file that is not there or not whole fails."""
        for name in FILES:
            self.assertTrue((self.world.home.data / name).exists(), f"{name} is gone")
        return {name: leaves(self.world.home.read(name)) for name in FILES}

    # When to kill

    def starting(self, program):
        time.sleep(self.random.uniform(0, 1))

    def ticking(self, program):
        self.wait_for_clock(program)
        time.sleep(self.random.uniform(0, 2 * FLUSH_SECONDS))

    def writing(self, program):
        """As soon as a file's successor is there, or a moment later."""
        self.wait_for_clock(program)
        delay = self.random.uniform(0, 0.03)
        wait_until(lambda: list(self.world.home.data.glob("*.tmp")), "a write", every=0)
        time.sleep(delay)

    def wait_for_clock(self, program):
        return wait_until(lambda: self.seconds_on_clock(program), "the clock")

    def seconds_on_clock(self, program):
        """What the program has counted today, as it says itself; None before its clock is there."""
        window = self.world.accessibility.window(program.pid, CLOCK_TITLE)
        for text in window.texts() if window else ():
            if match := re.match(r"Hoy (\d+):(\d\d):(\d\d)", text):
                hours, minutes, seconds = map(int, match.groups())
                return 3600 * hours + 60 * minutes + seconds
        return None

    # From start to kill

    def work_and_kill(self, before, wait_for_the_moment):
        program = self.world.start_program(wait_for_clock=False, environment=self.clock)
        wait_for_the_moment(program)
        # While it writes it does not answer, and what it says afterwards is not of that moment.
        counted = self.seconds_on_clock(program) if wait_for_the_moment == self.ticking else None
        self.assertTrue(program.is_running(), "the program ended by itself")
        program.kill()
        return self.assert_nothing_lost(before, counted)

    def assert_nothing_lost(self, before, counted):
        after = self.read()
        for name in FILES:
            for path, seconds in before[name].items():
                self.assertGreaterEqual(after[name].get(path, -1), seconds, f"{name}: {path}")
        was, now = (record["today.json"][(DAY,)] for record in (before, after))
        self.assertEqual((now - was) % 30, 0, "something else than whole periods was written")
        if counted is not None:
            self.looks += 1
            self.assertGreaterEqual(counted, was, "it did not go on from what was on the disk")
            self.assertLessEqual(counted - now, LOST_AT_MOST)
        self.flushes += now > was
        self.unfinished += bool(list(self.world.home.data.glob("*.tmp")))
        return after

    def assert_nothing_lies_about(self, before):
        """One orderly life after all the kills takes what they left with it."""
        program = self.world.start_program(wait_for_clock=False, environment=self.clock)
        wait_until(lambda: (self.seconds_on_clock(program) or 0) > before["today.json"][(DAY,)], "the clock to go on")
        self.world.stop_program(program)
        self.assertGreater(self.read()["today.json"][(DAY,)], before["today.json"][(DAY,)])
        names = {path.name for path in self.world.home.data.iterdir()}
        self.assertLessEqual(names, {*FILES, "lock", "reopen.socket"})


if __name__ == "__main__":
    unittest.main()
