"""A milestone of the day reaches the user once, through whichever service the desktop has."""

import json
import unittest

from harness.home import WELCOMED
from harness.menu import Menu
from harness.waiting import wait_until
from harness.world import World, sleep_until

# Ten seconds of work are the whole goal of a day.
SMALL_GOAL = {
    "dailyHours": 10 / 3600,
    "dailyProductivity": 0.8,
    "monthlyHours": 140,
    "notificationsEnabled": True,
    "weeklyHours": 35,
}


def messages_on_screen(world):
    return [window for window in world.screen.windows() if window.window_class == "Dunst"]


class Messages(unittest.TestCase):
    def test_a_milestone_is_shown_once_also_across_a_restart(self):
        with World("messages") as world:
            world.home.write("goals.json", json.dumps(SMALL_GOAL))
            monitor = world.start("dbus-monitor", "--session", "member=Notify")
            wait_until(monitor.log, "the monitor to listen")
            program = world.start_program()
            wait_until(lambda: messages_on_screen(world), "the message")
            world.screenshot("message")
            # No icon of the program is installed here.
            wait_until(lambda: 'string "image-data"' in monitor.log(), "the picture in the message")
            wait_until(lambda: len(self.fired(world)) >= 2, "the second milestone")
            self.assertEqual(len(self.fired(world)), 2, self.fired(world))
            self.assert_silent_restart(world, program)

    def test_the_first_start_ever_welcomes_its_user(self):
        with World("messages-welcome") as world:
            world.home.settings_file.unlink()
            program = world.start_program()
            wait_until(lambda: messages_on_screen(world), "the message")
            world.screenshot("welcome")
            self.assertEqual(world.home.setting(WELCOMED), "true")
            self.assert_silent_restart(world, program)

    def test_the_first_start_without_a_tray_points_to_the_clock(self):
        with World("messages-welcome-no-tray", tray=False) as world:
            world.home.settings_file.unlink()
            program = world.start_program()
            wait_until(lambda: messages_on_screen(world), "the message")
            world.screenshot("welcome")
            wait_until(lambda: self.own_windows(world), "the hint below the clock")
            self.assert_silent_restart(world, program)

    def test_without_a_notification_service_the_tray_shows_the_message(self):
        with World("messages-older", session_bus=False, expected_warnings=["Notif deliver error"]) as world:
            world.home.write("goals.json", json.dumps(SMALL_GOAL))
            program = world.start_program()
            icon = wait_until(Menu(world).tray_icon, "the tray icon")
            (balloon,) = wait_until(lambda: self.own_windows(world, icon), "the tray's message")
            world.screenshot("balloon")
            self.assertGreater(balloon.frame.width, 100)
            seconds = world.home.day_seconds()
            wait_until(lambda: world.home.day_seconds() > seconds, "the next periodic write")
            world.stop_program(program)

    def assert_silent_restart(self, world, program):
        world.stop_program(program)
        world.start("dunstctl", "close-all")
        wait_until(lambda: not messages_on_screen(world), "the end of the message")
        again = world.start_program()
        sleep_until(again.started + 5)
        self.assertEqual(messages_on_screen(world), [])
        world.stop_program(again)

    @staticmethod
    def fired(world):
        """The keys of the milestones that were announced."""
        return [key for key in world.home.settings() if key.startswith("notif-goal")]

    @staticmethod
    def own_windows(world, *known):
        """The windows of the program but the clock and the known ones."""
        known = {world.clock().id, *(window.id for window in known)}
        ours = (window for window in world.screen.windows() if window.window_class == "tidewatch")
        return [window for window in ours if window.frame.width > 60 and window.id not in known]


if __name__ == "__main__":
    unittest.main()
