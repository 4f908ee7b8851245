"""Clean corners with and without a compositor, also when it comes and goes."""

import unittest

from harness.screen import distance
from harness.waiting import wait_until
from harness.world import World


def background(world):
    """The desktop's colour: a compositor paints one of its own."""
    return world.screen.pixel(2, 2)


class Compositor(unittest.TestCase):
    def test_the_corners_are_clean_before_during_and_after(self):
        with World("compositor") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_program()
            self.assert_clean(world, "without")
            self.assertEqual((world.clock().frame.x, world.clock().frame.width), (300, 220))

            compositor = world.start_compositor()
            wait_until(lambda: world.clock().frame.width > 220, "room for the shadow")
            self.assert_clean(world, "with", shadow=True)
            self.assertLess(sum(world.screen.pixel(410, 200 + 124 + 6)), sum(background(world)) - 6, "no shadow")

            compositor.end()
            wait_until(lambda: world.clock().frame.width == 220, "the plain shape again")
            self.assert_clean(world, "after")

    def test_started_under_a_compositor_it_keeps_its_place(self):
        with World("compositor-first") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_compositor()
            world.start_program()
            self.assert_clean(world, "with", shadow=True)
            world.input.drag((400, 260), (450, 300))
            wait_until(
                lambda: (world.home.setting("windowOriginX"), world.home.setting("windowOriginY")) == ("350", "240"),
                "the place in the settings",
            )

    def assert_clean(self, world, name, shadow=False):
        """At each corner of the clock, its background shows; in the middle, the clock does."""
        allowance = 60 if shadow else 3

        def clean():
            behind = background(world)
            middle = world.screen.pixel(310, 262)
            corners = [world.screen.pixel(x, y) for x in (300, 519) for y in (200, 323)]
            return distance(middle, behind) > 10 and all(
                distance(corner, behind) <= allowance and corner != (0, 0, 0) for corner in corners
            )

        wait_until(clean, f"clean corners {name} a compositor")
        world.screenshot(name)


if __name__ == "__main__":
    unittest.main()
