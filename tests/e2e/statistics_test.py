"""The statistics window among the other windows of a desktop."""

import time
import unittest
from contextlib import contextmanager

from harness import menu as rows
from harness.menu import Menu
from harness.user_input import LEFT
from harness.waiting import stays, wait_until
from harness.world import HEIGHT, WIDTH, World

MARGIN = 28  # of the screen, both sides together
DARK, LIGHT = b"dark", b"light"


@contextmanager
def running(name, **settings):
    with World(f"statistics-{name}") as world:
        settings.setdefault("sizeScale", 0.5)
        settings.setdefault("windowOriginX", 20)
        settings.setdefault("windowOriginY", 20)
        world.home.write_settings(**settings)
        world.program = world.start_program()
        yield world, Menu(world)


def opened(world):
    window = wait_until(world.statistics, "the statistics window")
    wait_until(lambda: world.screen.active_window() == window.id, "the focus")
    return wait_until(lambda: world.screen.property(window.id, "_NET_FRAME_EXTENTS") and world.statistics(), "a frame")


def closed(world):
    wait_until(lambda: world.statistics() is None, "the statistics window to close")


class Opening(unittest.TestCase):
    def test_a_left_click_on_the_tray_icon_opens_it(self):
        with running("tray") as (world, menu):
            icon = wait_until(menu.tray_icon, "the tray icon")
            world.input.click(*icon.frame.centre, LEFT)
            opened(world)
            self.assertGreaterEqual(world.home.day_seconds(), 0)

    def test_a_click_on_the_clock_opens_it_and_another_closes_it(self):
        with running("clock") as (world, _):
            world.input.click(*world.clock().frame.centre, LEFT)
            opened(world)
            world.input.click(*world.clock().frame.centre, LEFT)
            closed(world)

    def test_the_menu_and_its_key_open_it(self):
        with running("menu") as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.STATISTICS)
            opened(world)
            world.input.key("ctrl+w")
            closed(world)
            menu.open_from_tray()
            world.input.key("ctrl+e")
            opened(world)

    def test_it_takes_the_focus_from_an_application_that_is_worked_in(self):
        with running("focus") as (world, menu):
            world.open_terminal()
            world.input.type("busy")
            second = world.start_program(wait_for_clock=False)
            self.assertEqual(second.wait(), 0)
            window = opened(world)
            self.assertGreater(world.screen.stacking().index(window.id), 0)


class Place(unittest.TestCase):
    def outer(self, world, window):
        left, right, top, bottom = world.screen.property(window.id, "_NET_FRAME_EXTENTS")
        frame = window.frame
        return frame.x - left, frame.y - top, frame.width + left + right, frame.height + top + bottom

    def test_it_stands_frame_included_in_the_middle_of_the_screen_each_time(self):
        with running("place") as (world, menu):
            expected = (MARGIN // 2, MARGIN // 2, WIDTH - MARGIN, HEIGHT - MARGIN)
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            self.assertEqual(self.outer(world, window), expected)
            world.input.resize(window.id, 830, 570)
            wait_until(lambda: world.statistics().frame.width == 830, "the smaller window")
            world.start_program(wait_for_clock=False).wait()
            wait_until(lambda: self.outer(world, world.statistics()) == expected, "the old size and place")

    def test_maximised_or_full_screen_it_comes_back_to_its_size_when_it_is_shown_again(self):
        with running("maximised") as (world, _):
            expected = (MARGIN // 2, MARGIN // 2, WIDTH - MARGIN, HEIGHT - MARGIN)
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            wait_until(lambda: self.outer(world, world.statistics()) == expected, "its size")
            maximised = ("_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ")
            for states in (maximised, ("_NET_WM_STATE_FULLSCREEN",)):
                world.screen.add_states(window.id, *states)
                wait_until(lambda: world.statistics().frame.width == WIDTH, f"{states}")
                world.start_program(wait_for_clock=False).wait()
                wait_until(lambda: self.outer(world, world.statistics()) == expected, f"its size after {states}")
                stays(lambda: self.outer(world, world.statistics()) == expected, "its size", 1)
                self.assertFalse(world.screen.states(window.id) & set(states))

    def test_it_gets_no_smaller_than_its_least_size(self):
        with running("least") as (world, _):
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            world.input.focus(window.id)
            world.input.resize(window.id, 300, 200)
            wait_until(lambda: world.statistics().frame.width < 1000, "a smaller window")
            time.sleep(0.3)
            frame = world.statistics().frame
            self.assertEqual((frame.width, frame.height), (820, 560))

    def test_it_is_in_the_taskbar(self):
        with running("taskbar") as (world, _):
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            self.assertFalse(world.screen.states(window.id) & {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_ABOVE"})


class Closing(unittest.TestCase):
    def test_the_window_managers_button_closes_it_and_the_program_goes_on(self):
        with running("close-button") as (world, _):
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            world.input.key("alt+F4")
            closed(world)
            stays(world.program.is_running, "the program", 1)
            world.start_program(wait_for_clock=False).wait()
            self.assertNotEqual(opened(world).id, window.id)

    def test_the_program_ends_in_order_while_it_is_open(self):
        with running("end") as (world, _):
            world.start_program(wait_for_clock=False).wait()
            opened(world)
            world.stop_program(world.program)


class Theme(unittest.TestCase):
    def test_ground_and_frame_follow_the_theme_while_it_is_open(self):
        with running("theme") as (world, menu):
            world.start_program(wait_for_clock=False).wait()
            window = opened(world)
            self.assertEqual(bytes(world.screen.property(window.id, "_GTK_THEME_VARIANT")), DARK)
            corner = (window.frame.right - 12, window.frame.bottom - 60)
            before = world.screen.grab().getpixel(corner)
            menu.open_from_tray()
            menu.choose(rows.THEME, rows.THEMES.index("editorial"))
            wait_until(lambda: sum(world.screen.grab().getpixel(corner)) > sum(before) + 300, "the light ground")
            self.assertEqual(bytes(world.screen.property(window.id, "_GTK_THEME_VARIANT")), LIGHT)
            world.screenshot("editorial")


if __name__ == "__main__":
    unittest.main()
