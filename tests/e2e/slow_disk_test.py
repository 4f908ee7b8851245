"""A disk that stalls for five seconds costs no second of work, and an end during it writes what was counted last."""

import os
import time
import unittest

from harness.timing import Elapsed, EventTime
from harness.waiting import wait_until
from harness.world import World

STALL = 5  # seconds, see slow_disk.cpp
BETWEEN_FLUSHES = 30


class SlowDisk(unittest.TestCase):
    def start(self, world):
        """A program in the middle of its first write; gives it and when the write began."""
        program = world.start_program(environment={"LD_PRELOAD": os.environ["TIDEWATCH_SLOW_DISK"]})
        began = EventTime.of(lambda: wait_until((world.home.data / "today.json.tmp").exists, "the write"))
        self.assertFalse((world.home.data / "today.json").exists())
        return program, began.latest

    def test_a_stalled_write_costs_no_second(self):
        with World("slow-disk", tray=False) as world:
            program, began = self.start(world)
            wait_until((world.home.data / "today.json").exists, "the end of the write")
            self.assertGreater(time.monotonic() - began, STALL - 1, "the disk did not stall")
            self.assertEqual(world.home.day_seconds(), BETWEEN_FLUSHES, "not the state of the flush's moment")
            time.sleep(2)
            ended = world.stop_program(program)
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())

    def test_an_end_during_the_write_waits_for_it_and_writes_what_is_newest(self):
        with World("slow-disk-end", tray=False) as world:
            program, _ = self.start(world)
            time.sleep(3)
            ended = world.stop_program(program)
            self.assertGreater(world.home.day_seconds(), BETWEEN_FLUSHES)
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())
            self.assertEqual(list(world.home.data.glob("*.tmp")), [])


if __name__ == "__main__":
    unittest.main()
