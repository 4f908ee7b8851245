"""A picture of the clock in each theme; each differs from the others, and each counts."""

import unittest

from harness.menu import THEMES
from harness.screen import Rectangle, difference
from harness.waiting import wait_until
from harness.world import World

SIZES = {
    "ochre": (220, 124),
    "editorial": (220, 124),
    "minimal": (180, 70),
    "hacker": (260, 110),
    "liquid": (230, 132),
}


class Themes(unittest.TestCase):
    def test_all_themes(self):
        pictures = {}
        with World("themes") as world:
            world.start_compositor()
            for theme in THEMES:
                world.home.write_settings(
                    sizeScale=1.0, activeThemeID=theme, windowOriginX=300, windowOriginY=200, idleThresholdSeconds=900
                )
                program = world.start_program()
                width, height = SIZES[theme]
                frame = world.clock().frame
                self.assertEqual((frame.width - width, frame.height - height), (2 * (300 - frame.x),) * 2)
                inside = Rectangle(300, 200, width, height)
                first = world.screen.grab(inside)
                wait_until(lambda: difference(first, world.screen.grab(inside)), f"{theme} to count")
                pictures[theme] = world.screenshot(theme, frame)
                world.stop_program(program)
                wait_until(lambda: world.clock() is None, "the clock to go")
        for one in THEMES:
            for other in THEMES:
                if one < other and pictures[one].size == pictures[other].size:
                    self.assertIsNotNone(difference(pictures[one], pictures[other]), f"{one} looks like {other}")

    def test_an_unknown_theme_is_the_first(self):
        with World("theme-unknown") as world:
            world.home.write_settings(sizeScale=1.0, activeThemeID="nonsense")
            world.start_program()
            self.assertEqual((world.clock().frame.width, world.clock().frame.height), SIZES["ochre"])


if __name__ == "__main__":
    unittest.main()
