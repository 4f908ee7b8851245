"""Showing a file where there is a file manager, and where there is none."""

import unittest

from harness.menu import REVEAL, Menu
from harness.services import FileManager, register_folder_opener
from harness.waiting import stays, wait_until
from harness.world import World

class Reveal(unittest.TestCase):
    def world(self, name):
        world = self.enterContext(World(f"reveal-{name}"))
        # Only what the test registers: nothing of the machine that it runs on.
        world.env["XDG_DATA_DIRS"] = world.env["XDG_CONFIG_DIRS"] = str(world.folder / "none")
        return world

    def reveal(self, world):
        world.start_program()
        menu = Menu(world)
        menu.open_from_tray()
        before = {window.id for window in world.screen.windows()}
        menu.choose(REVEAL)
        return lambda: [
            window for window in world.screen.windows() if window.id not in before and window.frame.width > 200
        ]

    def assert_alert(self, world, dialogs):
        wait_until(dialogs, "the alert", 20)
        world.screenshot("alert")
        self.assertEqual(world.opened(), [])
        world.input.key("Return")
        wait_until(lambda: not dialogs(), "the end of the alert")

    def test_the_file_manager_on_the_bus_shows_the_file(self):
        world = self.world("bus")
        manager = FileManager(world.env["DBUS_SESSION_BUS_ADDRESS"])
        dialogs = self.reveal(world)
        wait_until(lambda: manager.shown, "the file")
        self.assertEqual(manager.shown, [f"file://{world.home.data}/today.json"])
        stays(lambda: not dialogs() and not world.opened(), "quiet")
        manager.close()

    def test_one_that_is_registered_for_folders_is_opened(self):
        world = self.world("registered")
        register_folder_opener(world, "System;FileManager;")
        dialogs = self.reveal(world)
        wait_until(world.opened, "the folder")
        self.assertEqual(world.opened(), [f"file://{world.home.data}"])
        stays(lambda: not dialogs(), "quiet")

    def test_a_web_browser_for_folders_is_not(self):
        world = self.world("browser")
        register_folder_opener(world, "Network;WebBrowser;")
        self.assert_alert(world, self.reveal(world))

    def test_without_any_an_alert_says_where_the_file_is(self):
        world = self.world("none")
        self.assert_alert(world, self.reveal(world))


if __name__ == "__main__":
    unittest.main()
