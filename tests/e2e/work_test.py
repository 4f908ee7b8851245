"""Work at a terminal is booked: to the day, and to the application in front."""

import signal
import time
import unittest

from harness.screen import difference
from harness.timing import Elapsed, EventTime
from harness.waiting import wait_until
from harness.world import World, sleep_until

WORK_SECONDS = 40


class Work(unittest.TestCase):
    def test_forty_seconds_of_typing_are_on_disk_after_the_end(self):
        with World("work") as world:
            world.home.write_settings(sizeScale=1.0, activeThemeID="minimal")
            terminal = world.open_terminal("WorkTerm")
            program = world.start_program()
            self.assertEqual(world.screen.active_window(), terminal.id, "the clock took the focus")

            early = world.screenshot("clock-early", world.clock().frame)
            self.type_until(world, program.started + WORK_SECONDS)
            late = world.screenshot("clock-late", world.clock().frame)
            self.assertIsNotNone(difference(early, late), "the clock did not count")

            world.screenshot("desktop")
            self.assertEqual(world.screen.active_window(), terminal.id)
            ended = world.stop_program(program)

            booked = world.home.day_seconds()
            Elapsed.between(program.began, ended).assert_counted(booked)
            self.assertAlmostEqual(world.home.application_seconds("WorkTerm"), booked, delta=1)
            self.assertEqual(world.home.all_application_seconds(), world.home.application_seconds("WorkTerm"))

    def test_each_application_gets_the_seconds_in_which_it_was_in_front(self):
        with World("two-applications") as world:
            first = world.open_terminal("FirstTerm")
            second = world.open_terminal("SecondTerm")
            world.input.focus(first.id)
            program = world.start_program()
            sleep_until(program.began.latest + 6)
            change = EventTime.of(lambda: world.input.focus(second.id))
            sleep_until(change.latest + 10)
            ended = world.stop_program(program)

            Elapsed.between(program.began, change).assert_counted(world.home.application_seconds("FirstTerm"))
            Elapsed.between(change, ended).assert_counted(world.home.application_seconds("SecondTerm"))

    def test_an_application_whose_window_is_destroyed_gets_no_more_seconds(self):
        with World("destroyed-window") as world:
            terminal = world.open_terminal("GoneTerm")
            program = world.start_program()
            sleep_until(program.began.latest + 6)
            # Nobody else tells of the window's end: it stays the active one by name.
            world.window_manager.send(signal.SIGSTOP)
            try:
                gone = EventTime.of(lambda: world.screen.disconnect_owner(terminal.id))
                sleep_until(gone.latest + 10)
                ended = world.stop_program(program)
            finally:
                world.window_manager.send(signal.SIGCONT)

            Elapsed.between(program.began, gone).assert_counted(world.home.application_seconds("GoneTerm"))
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())

    def test_without_any_window_in_front_the_day_grows_alone(self):
        with World("no-application") as world:
            program = world.start_program()
            sleep_until(program.began.latest + 4)
            ended = world.stop_program(program)

            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())
            self.assertEqual(world.home.all_application_seconds(), 0)

    def test_what_is_on_disk_after_half_a_minute_survives_a_kill(self):
        with World("kill") as world:
            world.open_terminal("WorkTerm")
            program = world.start_program()
            wait_until(
                lambda: world.home.day_seconds() > 0 and world.home.all_application_seconds() > 0,
                "the first periodic write",
            )
            elapsed = time.monotonic() - program.started
            program.kill()
            self.assertGreater(elapsed, 28, "the write came before its time")

            self.assertEqual(world.home.day_seconds(), 30)
            self.assertAlmostEqual(world.home.application_seconds("WorkTerm"), 30, delta=1)

    @staticmethod
    def type_until(world, end):
        while time.monotonic() < end:
            world.input.type("work ")
            sleep_until(min(end, time.monotonic() + 1))


if __name__ == "__main__":
    unittest.main()
