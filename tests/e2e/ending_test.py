"""Every orderly end writes the record: signals, and the loss of the X server."""

import signal
import unittest

from harness.moments import Lapse, Moment
from harness.waiting import wait_until
from harness.world import World, sleep_until


class Ending(unittest.TestCase):
    def test_each_signal_writes_the_day_and_ends_with_0(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number.name), World(f"ending-{number.name}") as world:
                program = world.start_program()
                sleep_until(program.began.latest + 3)
                ended = world.stop_program(program, number)
                Lapse.between(program.began, ended).assert_counted(world.home.day_seconds())
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
            program = world.start_program()
            sleep_until(program.began.latest + 4)
            lost = Moment.of(lambda: (world.server.kill(), program.wait()))
            Lapse.between(program.began, lost).assert_counted(world.home.day_seconds())

    def test_the_clock_is_gone_at_once(self):
        with World("ending-quick") as world:
            program = world.start_program()
            ended = world.stop_program(program)
            self.assertLess(ended.latest - ended.earliest, 5)
            wait_until(lambda: world.clock() is None, "the clock to go")


if __name__ == "__main__":
    unittest.main()
