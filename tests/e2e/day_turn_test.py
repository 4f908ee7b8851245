"""Each second is on the day to which it belongs, however the day turns."""

import contextlib
import json
import signal
import time
import unittest

from harness.menu import DAY_START, DAY_STARTS, Menu
from harness.program_clock import ProgramClock
from harness.waiting import wait_until
from harness.world import World

OLD_DAY, NEW_DAY = "2026-01-15", "2026-01-16"
MIDNIGHT = f"{NEW_DAY} 00:00:00"
BEFORE = 5000

# Between a clock that is read here and one that is read there.
TOLERANCE = 2


class DayTurn(unittest.TestCase):
    @contextlib.contextmanager
    def program_on(self, day, name, days, **settings):
        """A desktop with a terminal in front, and the program, which sees the afternoon of `day`."""
        with World(f"day-turn-{name}") as world:
            clock = ProgramClock(world.folder)
            clock.set(f"{day} 15:00:00")
            world.home.write("today.json", json.dumps(days))
            world.home.write("goals.json", json.dumps({
                "dailyHours": 1.0, "dailyProductivity": 0.6, "weeklyHours": 30.0, "monthlyHours": 120.0,
                "notificationsEnabled": True,
            }))
            world.home.write_settings(**settings)
            world.open_terminal("WorkTerm")
            program = world.start_program(environment=clock.environment)
            yield world, clock, program

    def assert_worked(self, world, before, most):
        """Each day has some of the seconds in which it could be worked on, and each of them is one of the terminal's,
        which had the focus all the time."""
        today, applications = world.home.read("today.json"), world.home.read("apps.json")
        self.assertEqual(set(today), set(most))
        for day, seconds in most.items():
            worked = today[day] - before.get(day, 0)
            self.assertGreater(worked, 0, day)
            self.assertLessEqual(worked, seconds + TOLERANCE, day)
            self.assertAlmostEqual(worked, sum(applications[day].values()), delta=TOLERANCE)

    def test_midnight_while_active(self):
        days = {OLD_DAY: BEFORE}
        with self.program_on(OLD_DAY, "active", days) as (world, clock, program):
            clock.set(f"{OLD_DAY} 23:59:56")
            clock.sleep_until(f"{NEW_DAY} 00:00:05")
            world.screenshot("after-midnight", world.clock().frame)
            world.stop_program(program)
            after = clock.seconds_after(MIDNIGHT)
            self.assert_worked(world, days, {OLD_DAY: program.age() - after, NEW_DAY: after})
            self.assertEqual(world.home.setting(f"notif-goal100-{OLD_DAY}"), "true")
            self.assertIsNone(world.home.setting(f"notif-goal100-{NEW_DAY}"))
            self.assertIsNone(world.home.setting(f"notif-goal80-{NEW_DAY}"))

    def test_midnight_while_idle(self):
        with self.program_on(OLD_DAY, "idle", {OLD_DAY: BEFORE}, idleThresholdSeconds=1) as (world, clock, program):
            time.sleep(2)
            clock.set(f"{OLD_DAY} 23:59:58")
            clock.sleep_until(f"{NEW_DAY} 00:00:03")
            world.stop_program(program)
            today = world.home.read("today.json")
            self.assertAlmostEqual(today[OLD_DAY], BEFORE, delta=TOLERANCE)
            self.assertEqual(today[NEW_DAY], 0)

    def test_a_process_that_slept_over_midnight(self):
        days = {OLD_DAY: BEFORE}
        with self.program_on(OLD_DAY, "asleep", days) as (world, clock, program):
            time.sleep(2)
            program.send(signal.SIGSTOP)
            worked = program.age()
            clock.set(f"{OLD_DAY} 23:00:00")
            time.sleep(2)
            clock.set(f"{NEW_DAY} 08:00:00")
            program.send(signal.SIGCONT)
            time.sleep(4)
            world.stop_program(program)
            after = clock.seconds_after(f"{NEW_DAY} 08:00:00")
            self.assert_worked(world, days, {OLD_DAY: worked, NEW_DAY: after})

    def test_another_start_of_the_day_chosen_in_the_night(self):
        days = {OLD_DAY: 25000, NEW_DAY: 110}
        with self.program_on(NEW_DAY, "start-of-day", days) as (world, clock, program):
            clock.set(f"{NEW_DAY} 02:00:00")
            self.choose_start_of_day(world, 4)
            chosen = program.age()
            time.sleep(4)
            self.choose_start_of_day(world, 0)
            on_old_day = program.age() - chosen
            time.sleep(3)
            world.stop_program(program)
            self.assert_worked(world, days, {OLD_DAY: on_old_day, NEW_DAY: program.age() - on_old_day})

    def test_a_clock_that_is_set_by_hours(self):
        days = {OLD_DAY: BEFORE}
        with self.program_on(OLD_DAY, "jump", days) as (world, clock, program):
            clock.set(f"{NEW_DAY} 01:00:00")
            time.sleep(4)
            on_new_day = clock.seconds_after(f"{NEW_DAY} 01:00:00")
            clock.set(f"{OLD_DAY} 21:00:00")
            time.sleep(4)
            world.stop_program(program)
            self.assert_worked(world, days, {OLD_DAY: program.age() - on_new_day, NEW_DAY: on_new_day})

    def choose_start_of_day(self, world, hour):
        menu = Menu(world)
        menu.open_from_tray()
        menu.choose(DAY_START, DAY_STARTS.index(hour))
        wait_until(lambda: world.home.setting("dayStartHour") == str(hour), "the start of the day to be stored")


if __name__ == "__main__":
    unittest.main()
