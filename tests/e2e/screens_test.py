"""Screens that are detached, change their resolution or their scale factor while the program runs."""

import contextlib
import json
import unittest

from harness.monitors import Monitors
from harness.screen import Rectangle, difference
from harness.shared_settings import SharedSettings
from harness.waiting import stays, wait_until
from harness.widgets import SIZES, Widgets
from harness.world import World

DESKTOP = (1920, 1080)
LEFT, RIGHT = Rectangle(0, 0, 960, 1080), Rectangle(960, 0, 960, 1080)
MARGIN = 24
SIZE = (220, 124)
LABEL = Rectangle(20, 14, 180, 20)
"""What stands still on the clock, without a scale factor, from its top left corner."""

WIDGET = "project"


class Screens(unittest.TestCase):
    def enter(self, name, place=(300, 200)):
        world = self.enterContext(World(name, size=DESKTOP))
        world.home.write_settings(sizeScale=1.0, windowOriginX=place[0], windowOriginY=place[1])
        return world

    def wait_for_frame(self, world, x, y, width, height):
        frame = Rectangle(x, y, width, height)
        wait_until(lambda: world.clock() and world.clock().frame == frame, f"the clock at {frame}")
        stays(lambda: world.clock().frame == frame, f"the clock at {frame}")

    def frame_at_rest(self, world):
        """Where the clock is, once it has been there for a second."""
        frames = []

        def rests():
            frames.append(world.clock().frame)
            return len(frames) > 10 and all(frame == frames[-1] for frame in frames[-10:])

        wait_until(rests, "the clock to rest", every=0.1)
        return frames[-1]

    def drag_by(self, world, x, y):
        start = world.clock().frame.centre
        world.input.drag(start, (start[0] + x, start[1] + y))

    def two_monitors(self, world):
        monitors = Monitors(world)
        monitors.attach("left", LEFT)
        monitors.attach("right", RIGHT)
        return monitors

    def label(self, world, factor):
        frame = world.clock().frame
        return world.screen.grab(
            Rectangle(
                frame.x + LABEL.x * factor, frame.y + LABEL.y * factor, LABEL.width * factor, LABEL.height * factor
            )
        )

    def test_a_clock_whose_screen_is_detached_comes_into_reach_and_goes_back_with_it(self):
        world = self.enter("screens-detached", place=(1400, 700))
        monitors = self.two_monitors(world)
        world.start_program()
        self.wait_for_frame(world, 1400, 700, *SIZE)
        monitors.detach("right")
        self.wait_for_frame(world, LEFT.right - MARGIN - SIZE[0], MARGIN, *SIZE)
        self.assertEqual(world.home.setting("windowOriginX"), "1400")
        monitors.attach("right", RIGHT)
        self.wait_for_frame(world, 1400, 700, *SIZE)
        # Put elsewhere in the meantime, it stays there.
        monitors.detach("right")
        self.wait_for_frame(world, LEFT.right - MARGIN - SIZE[0], MARGIN, *SIZE)
        self.drag_by(world, -200, 100)
        place = (LEFT.right - MARGIN - SIZE[0] - 200, MARGIN + 100)
        self.wait_for_frame(world, *place, *SIZE)
        monitors.attach("right", RIGHT)
        self.wait_for_frame(world, *place, *SIZE)

    def test_a_clock_on_a_screen_whose_resolution_changes_stays_in_reach(self):
        world = self.enter("screens-resolution", place=(900, 740))
        world.start_program()
        self.wait_for_frame(world, 900, 740, *SIZE)
        monitors = Monitors(world)
        monitors.change_resolution(1024, 768)
        self.wait_for_frame(world, 1024 - SIZE[0], 768 - SIZE[1], *SIZE)
        monitors.restore_resolution(*DESKTOP)
        self.wait_for_frame(world, 900, 740, *SIZE)
        monitors.change_resolution(800, 600)
        bottom_right_of_all = world.screen.property(0, "_NET_WORKAREA")
        self.wait_for_frame(world, 800 - MARGIN - SIZE[0], bottom_right_of_all[1] + MARGIN, *SIZE)

    def test_another_scale_factor_redraws_the_clock_as_after_a_start(self):
        world = self.enter("screens-scale")
        settings = self.enterContext(contextlib.closing(SharedSettings(world.display)))
        program = world.start_program()
        self.wait_for_frame(world, 300, 200, *SIZE)
        plain = self.label(world, 1)
        settings.set_scale(2)
        self.wait_for_frame(world, 600, 400, 2 * SIZE[0], 2 * SIZE[1])
        doubled = self.label(world, 2)
        world.screenshot("doubled")
        settings.set_scale(1)
        self.wait_for_frame(world, 300, 200, *SIZE)
        wait_until(lambda: difference(plain, self.label(world, 1)) is None, "the clock as it was")
        settings.set_scale(2)
        world.stop_program(program)
        world.start_program()
        self.wait_for_frame(world, 600, 400, 2 * SIZE[0], 2 * SIZE[1])
        wait_until(lambda: difference(doubled, self.label(world, 2)) is None, "the same picture after a start")
        self.assertIsNotNone(difference(plain.resize(doubled.size), doubled))

    def test_a_clock_that_is_dragged_to_a_screen_of_another_scale_factor_is_as_sharp_there(self):
        world = self.enter("screens-two-scales", place=(500, 200))
        self.two_monitors(world)
        factors = {"QT_SCREEN_SCALE_FACTORS": "left=1;right=2"}
        program = world.start_program(environment=factors)
        self.wait_for_frame(world, 500, 200, *SIZE)
        self.drag_by(world, 700, 100)
        wait_until(lambda: world.clock().frame.width == 2 * SIZE[0], "the clock at twice the size")
        frame = self.frame_at_rest(world)
        world.screenshot("right")
        self.assertEqual(frame.height, 2 * SIZE[1])
        self.assertTrue(RIGHT.contains(*frame.centre))
        doubled = self.label(world, 2)
        world.stop_program(program)
        program = world.start_program(environment=factors)
        self.wait_for_frame(world, frame.x, frame.y, frame.width, frame.height)
        wait_until(lambda: difference(doubled, self.label(world, 2)) is None, "the same picture after a start")
        self.drag_by(world, -900, 0)
        wait_until(lambda: world.clock().frame.width == SIZE[0], "the clock at its size")
        self.assertTrue(LEFT.contains(*world.clock().frame.centre))

    def enter_with_widget(self, name, place):
        """With the one widget that shows nothing that changes: no project is active."""
        world = self.enter(name)
        world.home.write("widgets.json", json.dumps({WIDGET: {"visible": True, "x": place[0], "y": place[1], "scale": 1}}))
        return world, Widgets(world)

    def wait_for_widget(self, widgets, x, y, factor=1):
        width, height = SIZES[WIDGET]
        frame = Rectangle(x, y, width * factor, height * factor)
        wait_until(lambda: widgets.window(WIDGET) and widgets.window(WIDGET).frame == frame, f"the widget at {frame}")
        stays(lambda: widgets.window(WIDGET).frame == frame, f"the widget at {frame}")

    def test_a_widget_whose_screen_is_detached_comes_into_reach_and_goes_back_with_it(self):
        world, widgets = self.enter_with_widget("screens-widget-detached", (1400, 700))
        monitors = self.two_monitors(world)
        world.start_program()
        self.wait_for_widget(widgets, 1400, 700)
        monitors.detach("right")
        wait_until(lambda: LEFT.contains(*widgets.window(WIDGET).frame.centre), "the widget on the other screen")
        self.assertEqual(json.loads((world.home.data / "widgets.json").read_text())[WIDGET]["x"], 1400)
        monitors.attach("right", RIGHT)
        self.wait_for_widget(widgets, 1400, 700)

    def test_another_scale_factor_redraws_a_widget_as_after_a_start(self):
        world, widgets = self.enter_with_widget("screens-widget-scale", (600, 300))
        settings = self.enterContext(contextlib.closing(SharedSettings(world.display)))

        def picture():
            return world.screen.grab(widgets.window(WIDGET).frame)

        program = world.start_program()
        self.wait_for_widget(widgets, 600, 300)
        plain = picture()
        settings.set_scale(2)
        self.wait_for_widget(widgets, 1200, 600, factor=2)
        doubled = picture()
        world.screenshot("doubled")
        settings.set_scale(1)
        self.wait_for_widget(widgets, 600, 300)
        wait_until(lambda: difference(plain, picture()) is None, "the widget as it was")
        settings.set_scale(2)
        world.stop_program(program)
        world.start_program()
        self.wait_for_widget(widgets, 1200, 600, factor=2)
        wait_until(lambda: difference(doubled, picture()) is None, "the same picture after a start")
        self.assertIsNotNone(difference(plain.resize(doubled.size), doubled))


if __name__ == "__main__":
    unittest.main()
