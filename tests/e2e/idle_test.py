"""The clock stands still without the user, and goes on with the user."""

import unittest

from harness.screen import difference
from harness.timing import Elapsed, EventTime
from harness.world import World, sleep_until

THRESHOLD = 60


class Idle(unittest.TestCase):
    def test_booking_stops_at_the_threshold_and_goes_on_at_the_first_key(self):
        with World("idle") as world:
            world.home.write_settings(idleThresholdSeconds=THRESHOLD, activeThemeID="minimal", sizeScale=1.0)
            world.open_terminal("WorkTerm")
            program = world.start_program()
            sleep_until(program.started + 5)
            last_input = EventTime.of(lambda: world.input.type("the last words"))

            sleep_until(last_input.latest + THRESHOLD + 6)
            standing = world.screenshot("standing", world.clock().frame)
            sleep_until(last_input.latest + THRESHOLD + 15)
            self.assertIsNone(
                difference(standing, world.screen.grab(world.clock().frame)), "the clock counted without the user"
            )

            back = EventTime.of(lambda: world.input.type("back again"))
            sleep_until(back.latest + 6)
            self.assertIsNotNone(difference(standing, world.screenshot("going", world.clock().frame)))
            ended = world.stop_program(program)

            worked = Elapsed.between(program.began, last_input + THRESHOLD) + Elapsed.between(back, ended)
            worked.assert_counted(world.home.day_seconds())
            worked.assert_counted(world.home.application_seconds("WorkTerm"))

    def test_a_movement_of_the_mouse_is_presence_too(self):
        with World("idle-mouse") as world:
            world.home.write_settings(idleThresholdSeconds=6)
            program = world.start_program()
            for second in range(1, 19):
                sleep_until(program.began.latest + second)
                world.input.move(600 + second, 400)
            ended = world.stop_program(program)
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())


if __name__ == "__main__":
    unittest.main()
