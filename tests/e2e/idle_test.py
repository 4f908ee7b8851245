"""The clock stands still without the user, and goes on with the user."""

import time
import unittest

from harness.screen import difference
from harness.world import World, sleep_until

THRESHOLD = 60
TOLERANCE = 2


class Idle(unittest.TestCase):
    def test_booking_stops_at_the_threshold_and_goes_on_at_the_first_key(self):
        with World("idle") as world:
            world.home.write_settings(idleThresholdSeconds=THRESHOLD, activeThemeID="minimal", sizeScale=1.0)
            world.open_terminal("WorkTerm")
            program = world.start_program()
            sleep_until(program.started + 5)
            world.hands.type("the last words")
            last_input = time.monotonic()

            sleep_until(last_input + THRESHOLD + 3)
            standing = world.screenshot("standing", world.clock().frame)
            sleep_until(last_input + THRESHOLD + 12)
            self.assertIsNone(
                difference(standing, world.screen.grab(world.clock().frame)), "the clock counted without the user"
            )

            world.hands.type("back again")
            back = time.monotonic()
            sleep_until(back + 6)
            self.assertIsNotNone(difference(standing, world.screenshot("going", world.clock().frame)))
            world.stop_program(program)
            stopped = time.monotonic()

            expected = (last_input + THRESHOLD - program.started) + (stopped - back)
            self.assertAlmostEqual(world.home.day_seconds(), expected, delta=TOLERANCE)
            self.assertAlmostEqual(world.home.application_seconds("WorkTerm"), expected, delta=TOLERANCE)

    def test_a_movement_of_the_mouse_is_presence_too(self):
        with World("idle-mouse") as world:
            world.home.write_settings(idleThresholdSeconds=3)
            program = world.start_program()
            for second in range(1, 13):
                sleep_until(program.started + second)
                world.hands.move(600 + second, 400)
            world.stop_program(program)
            self.assertAlmostEqual(world.home.day_seconds(), 12, delta=TOLERANCE)


if __name__ == "__main__":
    unittest.main()
