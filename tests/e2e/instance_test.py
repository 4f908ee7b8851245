"""One instance at a time, and a day that goes on over restarts."""

import time
import unittest

from harness.home import today
from harness.menu import Menu
from harness.timing import Elapsed
from harness.waiting import wait_until
from harness.world import World, sleep_until


class SecondStart(unittest.TestCase):
    def test_it_brings_the_statistics_of_the_first_up_writes_its_day_and_ends_with_0(self):
        with World("second-start") as world:
            world.home.write_settings(windowVisible="false")
            first = world.start_program(wait_for_clock=False)
            wait_until(Menu(world).tray_icon, "the first instance")
            sleep_until(first.started + 3.5)
            self.assertIsNone(world.clock())

            second = world.start_program(wait_for_clock=False)
            self.assertEqual(second.wait(), 0)
            wait_until(world.statistics, "the statistics window")
            self.assertIsNone(world.clock())
            self.assertTrue(first.is_running())
            wait_until(lambda: world.home.day_seconds() >= 2, "the day on disk")
            self.assertLess(world.home.day_seconds(), 30, "it was only written when its time had come")

    def test_it_needs_no_session_bus(self):
        with World("second-start-no-bus", tray=False) as world:
            world.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
            world.start_program()
            self.assertEqual(world.start_program(wait_for_clock=False).wait(), 0)

    def test_a_killed_instance_does_not_stand_in_the_way(self):
        with World("after-kill") as world:
            world.start_program().kill()
            wait_until(lambda: world.clock() is None, "the clock to go")
            world.stop_program(world.start_program())


class Restart(unittest.TestCase):
    def test_the_day_goes_on_where_it_stood(self):
        with World("restart") as world:
            world.home.write("today.json", '{"2020-02-03": 77, "%s": 5000}' % today())
            world.home.write("apps.json", '{"%s": {"WorkTerm": 4000}}' % today())
            world.open_terminal("WorkTerm")
            program = world.start_program()
            sleep_until(program.began.latest + 5)
            first = Elapsed.between(program.began, world.stop_program(program))
            self.assertEqual(world.home.read("today.json")["2020-02-03"], 77)
            after_first = world.home.read("today.json")[today()]
            first.assert_counted(after_first, before=5000)

            program = world.start_program()
            sleep_until(program.began.latest + 5)
            second = Elapsed.between(program.began, world.stop_program(program))
            second.assert_counted(world.home.read("today.json")[today()], before=after_first)
            (first + second).assert_counted(world.home.application_seconds("WorkTerm"), before=4000)

    def test_a_garbled_record_is_an_empty_one(self):
        with World("garbled", expected_warnings=["could not be read; it is kept as"]) as world:
            world.home.write("today.json", '{"2020-02-03": 77,')
            world.home.write("apps.json", "[1, 2]")
            program = world.start_program()
            sleep_until(program.started + 3)
            world.stop_program(program)
            self.assertEqual(list(world.home.read("today.json")), [today()])
            self.assertEqual(world.home.read("apps.json"), {})
            for name, content in (("today.json", '{"2020-02-03": 77,'), ("apps.json", "[1, 2]")):
                kept = list(world.home.data.glob(f"{name}.damaged-*"))
                self.assertEqual([file.read_text(encoding="utf-8") for file in kept], [content])

    def test_the_record_is_the_users_alone(self):
        with World("modes") as world:
            world.stop_program(world.start_program())
            self.assertEqual(world.home.data.stat().st_mode & 0o777, 0o700)
            for name in ("today.json", "apps.json"):
                self.assertEqual((world.home.data / name).stat().st_mode & 0o777, 0o600)

    def test_nothing_but_the_record_and_the_settings_is_written(self):
        with World("traces") as world:
            world.stop_program(world.start_program())
            time.sleep(0.2)
            written = {
                str(path.relative_to(world.home.path)) for path in world.home.path.rglob("*") if path.is_file()
            } - {".cache/openbox/openbox.log"}
            self.assertLessEqual(
                written,
                {
                    ".tidewatch/today.json",
                    ".tidewatch/apps.json",
                    ".tidewatch/hours.json",
                    ".tidewatch/minutes.json",
                    ".tidewatch/project_time.json",
                    ".tidewatch/lock",
                    ".config/brightlooms/tidewatch.conf",
                },
            )


if __name__ == "__main__":
    unittest.main()
