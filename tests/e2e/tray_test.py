"""Desktops without a tray, and with one that comes and goes."""

import unittest

from harness.menu import QUIT, TOGGLE_VISIBLE, Menu
from harness.waiting import stays, wait_until
from harness.world import World, sleep_until


def hint(world):
    """The program's words about the missing tray, while they are on the screen."""
    return next((window for window in world.screen.windows() if world.screen.is_tooltip(window.id)), None)


class Tray(unittest.TestCase):
    def test_without_one_the_menu_opens_on_the_clock_and_the_program_says_so_once(self):
        with World("tray-none", tray=False) as world:
            world.home.write_settings(sizeScale=1.0)
            program = world.start_program()
            wait_until(lambda: hint(world), "the hint")
            world.screenshot("hint")
            wait_until(lambda: not hint(world), "the hint to go")
            menu = Menu(world)
            menu.open_from_clock()
            menu.choose(QUIT)
            self.assertEqual(program.wait(), 0)

    def test_without_one_a_hidden_clock_says_how_it_comes_back_and_does(self):
        with World("tray-none-hidden", tray=False) as world:
            world.home.write_settings(sizeScale=1.0)
            program = world.start_program()
            place = world.clock().frame
            menu = Menu(world)
            menu.open_from_clock()
            menu.choose(TOGGLE_VISIBLE)
            wait_until(lambda: world.clock() is None, "the clock to hide")
            wait_until(lambda: hint(world), "the hint")
            world.screenshot("hidden")
            world.start_program(wait_for_clock=False).wait()
            wait_until(world.clock, "the clock")
            self.assertEqual(world.clock().frame, place)
            wait_until(lambda: world.home.setting("windowVisible") == "true", "the setting")
            world.screenshot("back")
            menu.open_from_clock()
            menu.choose(QUIT)
            self.assertEqual(program.wait(), 0)

    def test_one_that_comes_later_takes_the_icon(self):
        with World("tray-later", tray=False) as world:
            program = world.start_program()
            menu = Menu(world)
            sleep_until(program.started + 2)
            tray = world.start_tray()
            wait_until(menu.tray_icon, "the icon")
            tray.end()
            wait_until(lambda: menu.tray_icon() is None, "the tray to go")
            world.start_tray()
            wait_until(menu.tray_icon, "the icon in the new tray")
            menu.open_from_tray()
            menu.close()

    def test_the_icon_is_drawn_and_stands_still_while_its_figure_does(self):
        with World("tray-icon") as world:
            world.start_program()
            icon = wait_until(Menu(world).tray_icon, "the icon")

            def colours():
                return len(world.screen.grab(icon.frame).getcolors(100000))

            wait_until(lambda: colours() > 3, "something drawn")
            world.screenshot("icon", icon.frame)
            stays(lambda: colours() > 3, "the icon")


if __name__ == "__main__":
    unittest.main()
