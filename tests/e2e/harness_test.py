"""The harness itself, on a terminal in the place of the program."""

import unittest

from harness.processes import Process
from harness.screen import Rectangle, difference
from harness.waiting import TimeOut, wait_until
from harness.world import BACKGROUND, World


class Harness(unittest.TestCase):
    def test_a_terminal_opens_takes_keys_and_is_dragged(self):
        with World("harness") as world:
            terminal = world.open_terminal("WorkTerm")
            self.assertEqual(world.screen.active_window(), terminal.id)

            before = world.screen.grab(terminal.frame)
            world.input.type("abc")
            wait_until(lambda: difference(before, world.screen.grab(terminal.frame)), "the typed letters")

            title_bar = (terminal.frame.x + 100, terminal.frame.y - 8)
            world.input.drag(title_bar, (title_bar[0] + 200, title_bar[1] + 100))
            moved = wait_until(
                lambda: self.moved(world, terminal), "the terminal at its new place"
            )
            self.assertEqual((moved.frame.x - terminal.frame.x, moved.frame.y - terminal.frame.y), (200, 100))
            self.assertEqual(world.screen.pixel(2, 2), BACKGROUND)

    @staticmethod
    def moved(world, terminal):
        now = world.screen.window(window_class="WorkTerm")
        return now if now.frame.x == terminal.frame.x + 200 else None

    def test_waiting_ends(self):
        with self.assertRaises(TimeOut):
            wait_until(lambda: False, "nothing", seconds=0.1)

    def test_everything_ends_with_its_world(self):
        with World("harness-end") as world:
            processes = list(world._processes)
            self.assertTrue(all(process.is_running() for process in processes))
        self.assertFalse(any(process.is_running() for process in processes))

    def test_an_unannounced_warning_fails_and_an_announced_one_does_not(self):
        with World("harness-log", expected_warnings=["announced"]) as world:
            world.programs.append(self.speaker(world, "an announced warning"))
            world.check_log()
            world.programs.append(self.speaker(world, "a surprise"))
            with self.assertRaisesRegex(AssertionError, "a surprise"):
                world.check_log()
            world.programs.clear()

    @staticmethod
    def speaker(world, words):
        process = Process(["echo", words], world.env, world.folder / f"{words}.log")
        process.wait()
        return process

    def test_processor_time_and_memory_are_measured(self):
        with World("harness-cost") as world:
            busy = world.start("sh", "-c", "while :; do :; done")
            wait_until(lambda: busy.processor_seconds() > 0.1, "the process to have worked")
            self.assertGreater(busy.private_memory_kilobytes(), 100)

    def test_a_difference_is_bounded(self):
        with World("harness-pixels") as world:
            before = world.screen.grab(Rectangle(0, 0, 400, 300))
            self.assertIsNone(difference(before, world.screen.grab(Rectangle(0, 0, 400, 300))))


if __name__ == "__main__":
    unittest.main()
