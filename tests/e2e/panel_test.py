"""The floating clock as a window: its place, its layer, its clicks and drags."""

import time
import unittest

from harness.menu import TOGGLE_VISIBLE, Menu
from harness.screen import difference
from harness.user_input import LEFT
from harness.waiting import stays, wait_until
from harness.world import HEIGHT, WIDTH, World

MARGIN = 24


def place(world):
    frame = world.clock().frame
    return frame.x, frame.y


def visible_area(world):
    """x, y, width, height that panels leave free."""
    return world.screen.property(0, "_NET_WORKAREA")[:4]


class Place(unittest.TestCase):
    def test_at_first_it_is_in_the_top_right_corner(self):
        with World("panel-first") as world:
            world.start_program()
            frame = world.clock().frame
            x, y, width, _ = visible_area(world)
            self.assertEqual((frame.right, frame.y), (x + width - MARGIN, y + MARGIN))
            self.assertEqual((frame.width, frame.height), (55, 31))

    def test_a_drag_moves_it_and_a_restart_finds_it_there(self):
        with World("panel-drag") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            program = world.start_program()
            self.assertEqual(place(world), (300, 200))
            grip = (320, 210)
            world.input.drag(grip, (grip[0] + 250, grip[1] + 150))
            wait_until(lambda: place(world) == (550, 350), "the clock at its new place")
            world.stop_program(program)
            world.start_program()
            self.assertEqual(place(world), (550, 350))

    def test_it_is_dragged_by_its_whole_surface(self):
        with World("panel-surface") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_program()
            for spot in ((30, 30), (190, 30), (110, 62), (30, 100), (190, 100)):
                x, y = place(world)
                world.input.drag((x + spot[0], y + spot[1]), (x + spot[0] + 40, y + spot[1] + 20))
                wait_until(lambda: place(world) == (x + 40, y + 20), f"the clock dragged at {spot}")

    def test_at_each_showing_it_asks_not_to_be_activated(self):
        with World("panel-showing") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_program()
            menu = Menu(world)
            for _ in range(2):
                self.assertEqual(world.screen.property(world.clock().id, "_NET_WM_USER_TIME"), [0])
                for shown in (False, True):
                    menu.open_from_tray()
                    menu.choose(TOGGLE_VISIBLE)
                    wait_until(lambda: bool(world.clock()) == shown, "the clock to hide and to come back")

    def test_a_place_off_the_screen_is_ignored(self):
        with World("panel-missing-screen") as world:
            world.home.write_settings(windowOriginX=5000, windowOriginY=200)
            world.start_program()
            x, y, width, _ = visible_area(world)
            self.assertEqual((world.clock().frame.right, world.clock().frame.y), (x + width - MARGIN, y + MARGIN))


class Gestures(unittest.TestCase):
    def test_a_click_writes_the_stores_and_moves_nothing(self):
        with World("panel-click") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_program()
            time.sleep(2.5)
            self.assertEqual(world.home.day_seconds(), 0)
            world.input.drag((340, 240), (342, 242), steps=2)
            wait_until(lambda: world.home.day_seconds() >= 1, "the day on disk")
            self.assertLess(world.home.day_seconds(), 30, "it was only written when its time had come")
            self.assertEqual(place(world), (300, 200))

    def test_a_drag_is_no_click(self):
        with World("panel-no-click") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=300, windowOriginY=200)
            world.start_program()
            time.sleep(2.5)
            world.input.drag((340, 240), (380, 260))
            wait_until(lambda: place(world) == (340, 220), "the clock at its new place")
            stays(lambda: world.home.day_seconds() == 0, "a day not written")
            wait_until(lambda: world.home.setting("windowOriginX") == "340", "the place in the settings")


class Layer(unittest.TestCase):
    def test_it_lies_above_others_on_every_workspace_without_focus_or_taskbar_entry(self):
        with World("panel-layer") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=200, windowOriginY=100, activeThemeID="minimal")
            world.start_program()
            terminal = world.open_terminal()
            self.assertTrue(terminal.frame.contains(*world.clock().frame.centre), "the terminal lies elsewhere")
            world.input.click(terminal.frame.x + 5, terminal.frame.bottom - 5, LEFT)
            clock = world.clock()
            self.assertGreater(
                world.screen.stacking().index(clock.id), world.screen.stacking().index(terminal.id)
            )
            self.assertLessEqual(
                {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"},
                world.screen.states(clock.id),
            )
            self.assertEqual(world.screen.property(clock.id, "_NET_WM_DESKTOP"), [0xFFFFFFFF])

            world.screen.select_desktop(1)
            wait_until(lambda: world.screen.window(window_class="WorkTerm") is None, "the other workspace")
            self.assertIsNotNone(world.clock())
            world.screen.select_desktop(0)

    def test_a_drag_does_not_take_the_keyboard(self):
        with World("panel-focus") as world:
            world.home.write_settings(sizeScale=1.0, windowOriginX=700, windowOriginY=400)
            world.start_program()
            terminal = world.open_terminal()
            x, y = world.clock().frame.centre
            world.input.drag((x, y), (x + 40, y + 20))
            wait_until(lambda: world.clock().frame.centre == (x + 40, y + 20), "the clock where it was dragged")
            self.assertEqual(world.screen.active_window(), terminal.id)
            before = world.screen.grab(terminal.frame)
            world.input.type("typed")
            wait_until(lambda: difference(before, world.screen.grab(terminal.frame)), "the typed letters")

    def test_a_full_screen_window_covers_it(self):
        with World("panel-full-screen") as world:
            world.home.write_settings(sizeScale=1.0)
            world.start_program()
            world.start("xterm", "-fullscreen", "-class", "FilmTerm", "-bg", "#112233", "-e", "sleep", "60")
            film = wait_until(lambda: world.screen.window(window_class="FilmTerm"), "the film")
            wait_until(lambda: world.screen.window(window_class="FilmTerm").frame.width == WIDTH, "the whole screen")
            self.assertEqual(world.screen.window(window_class="FilmTerm").frame.height, HEIGHT)
            wait_until(
                lambda: world.screen.stacking().index(film.id) > world.screen.stacking().index(world.clock().id),
                "the film above the clock",
            )


if __name__ == "__main__":
    unittest.main()
