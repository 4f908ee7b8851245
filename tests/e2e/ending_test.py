"""Every orderly end writes the record: signals, and the loss of the X server."""

import signal
import unittest

from harness.timing import Elapsed, EventTime
from harness.waiting import wait_until
from harness.world import World, sleep_until


class Ending(unittest.TestCase):
    def test_each_signal_writes_the_day_and_ends_with_0(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number.name), World(f"ending-{number.name}") as world:
                program = world.start_program()
                sleep_until(program.began.latest + 3)
                ended = world.stop_program(program, number)
                Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())
                self.assertGreaterEqual(world.home.day_seconds(), 1)

    def test_a_signal_while_the_menu_is_open_ends_it_as_well(self):
        from harness.menu import Menu

        with World("ending-menu") as world:
            program = world.start_program()
            sleep_until(program.began.latest + 2.5)
            Menu(world).open_from_tray()
            world.stop_program(program)
            self.assertGreaterEqual(world.home.day_seconds(), 1)

    def test_the_loss_of_the_x_server_writes_the_day(self):
        lost = [r"X11 connection|XIO|xcb|display|X server|I/O error|IO error"]
        with World("ending-server", expected_warnings=lost) as world:
            world.home.write_settings(
                **{"gate.initialized": "true", "gate.ready": "false", "gate.workSeconds": 5, "gate.lockedUntil": 0}
            )
            program = world.start_program()
            sleep_until(program.began.latest + 4)
            lost = EventTime.of(lambda: (world.server.kill(), program.wait()))
            Elapsed.between(program.began, lost).assert_counted(world.home.day_seconds())
            # What is set on the way out has no other moment to reach the disk.
            self.assertGreater(int(world.home.setting("gate.workSeconds")), 5)

    def test_without_an_x_server_it_says_so_and_ends(self):
        with World("ending-displayless", expected_warnings=["no X server answers"]) as world:
            world.env["DISPLAY"] = f":{int(world.display[1:]) + 1000}"
            program = world.start_program(wait_for_clock=False)
            self.assertEqual(program.wait(30), 1)
            self.assertEqual(len(program.log().splitlines()), 1, program.log())
            self.assertFalse(world.home.data.exists())

    def test_the_clock_is_gone_at_once(self):
        with World("ending-quick") as world:
            program = world.start_program()
            ended = world.stop_program(program)
            self.assertLess(ended.latest - ended.earliest, 5)
            wait_until(lambda: world.clock() is None, "the clock to go")


if __name__ == "__main__":
    unittest.main()
