"""The widgets on the desktop: where they lie, how they are moved, and what is kept of them."""

import json
import unittest
from contextlib import contextmanager

from harness import menu as rows
from harness.accessibility import wait_for_window
from harness.desktops import DESKTOPS
from harness.menu import Menu
from harness.screen import distance
from harness.user_input import LEFT, RIGHT
from harness.waiting import repeat_until, stays, wait_until
from harness.widgets import NAMES, PLACES, SIZES, TITLES, Widgets, all_placed
from harness.world import HEIGHT, WIDTH, World

CLOCK = {"windowOriginX": 20, "windowOriginY": 700}
EMPTY = (300, 600)  # of the desktop


@contextmanager
def desk(name, desktop="openbox", shown=None, **options):
    """A desktop with icons and a focused terminal. `shown` is the content of the widgets' file."""
    with World(f"widgets-{name}", desktop=DESKTOPS[desktop], **options) as world:
        world.desk = world.screen.open_desk(WIDTH, HEIGHT)
        wait_until(lambda: world.desk in world.screen.managed(), "the window of the icons")
        world.terminal = world.open_terminal()
        world.home.write_settings(**CLOCK)
        if shown:
            world.home.write("widgets.json", json.dumps(shown))
        world.widgets = Widgets(world)
        world.program = world.start_program()
        yield world


def stored(world, name):
    state = world.home.read("widgets.json").get(name, {})
    return state.get("x"), state.get("y")


class Desktop(unittest.TestCase):
    def assert_layers(self, world):
        """Above the icons, below the terminal, and no window has the focus but the terminal."""

        def in_order():
            stacking = world.screen.stacking()
            places = [stacking.index(world.widgets.window(name).id) for name in NAMES]
            return stacking.index(world.desk) < min(places) and max(places) < stacking.index(world.terminal.id)

        wait_until(in_order, "the widgets between the icons and the terminal")
        self.assert_focus(world)

    def assert_focus(self, world):
        self.assertEqual(world.screen.active_window(), world.terminal.id)

    def check(self, desktop):
        with desk(desktop, desktop) as world:
            self.show_all(world)
            self.lay_out(world)
            self.assert_on_every_workspace(world)
            self.assert_layers(world)
            self.click_on_the_icons(world)
            self.assert_layers(world)
            # No place is lost.
            world.program.kill()
            wait_until(lambda: world.widgets.window("goals") is None, "the windows to go")
            world.program = world.start_program()
            world.widgets.wait_for_places(PLACES)
            self.assert_layers(world)
            self.click_through(world)
            self.hide_all(world)

    def show_all(self, world):
        for name in NAMES:
            world.widgets.toggle(name)
            self.assert_focus(world)
        world.screenshot("cascade")
        places = [world.widgets.place(name) for name in NAMES]
        right = places[0][0] + SIZES[NAMES[0]][0]
        for index, ((x, y), name) in enumerate(zip(places, NAMES)):
            self.assertEqual((x + SIZES[name][0], y), (right - 28 * index, places[0][1] + 28 * index), name)

    def lay_out(self, world):
        """From the last one, which covers parts of the others, to the first."""
        for name in reversed(NAMES):
            there, to = world.widgets.panel(name), PLACES[name]
            grip = (there.right - 12, there.y + 10)
            world.input.drag(grip, (grip[0] + to[0] - there.x, grip[1] + to[1] - there.y))
            wait_until(lambda: world.widgets.place(name) == to, f"{name} at {to}")
            wait_until(lambda: stored(world, name) == to, f"the place of {name} in the file")
        world.input.move(*EMPTY)
        world.screenshot("placed")

    def assert_on_every_workspace(self, world):
        for workspace in (1, 0):
            world.select_workspace(workspace)
            for name in NAMES:
                wait_until(lambda: world.widgets.window(name), f"{name} on workspace {workspace}")
                states = world.screen.states(world.widgets.window(name).id)
                self.assertLessEqual({"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}, states, name)
        world.focus(world.terminal)

    def click_on_the_icons(self, world):
        repeat_until(
            lambda: world.input.click(*EMPTY, LEFT), lambda: world.screen.active_window() == world.desk, "the click"
        )
        world.focus(world.terminal)

    def click_through(self, world):
        """The arcade's surface is for play."""
        corner = {name: (world.widgets.panel(name).right - 8, world.widgets.panel(name).bottom - 8) for name in NAMES}
        world.input.click(*corner["arcade"], LEFT)
        stays(lambda: world.statistics() is None, "a desktop without the statistics")
        window = repeat_until(lambda: world.input.click(*corner["project"], LEFT), world.statistics, "the statistics")
        wait_until(lambda: world.screen.active_window() == window.id, "the focus on the statistics")
        world.input.key("ctrl+w")
        wait_until(lambda: world.statistics() is None, "the statistics to close")
        self.assertEqual(stored(world, "project"), PLACES["project"])

    def hide_all(self, world):
        for name in NAMES:
            world.widgets.toggle(name)
        hidden = {name: {"visible": False, "x": x, "y": y, "scale": 1} for name, (x, y) in PLACES.items()}
        wait_until(lambda: world.home.read("widgets.json") == hidden, "the file to say so")
        world.stop_program(world.program)
        world.start_program()
        stays(lambda: all(world.widgets.window(name) is None for name in NAMES), "a desktop without widgets")

    def test_from_the_menu_to_the_end_without_a_compositor(self):
        self.check("openbox")

    def test_from_the_menu_to_the_end_with_a_compositor(self):
        self.check("xfce")


class Ground(unittest.TestCase):
    def test_the_corners_are_clean_and_the_places_stay_while_a_compositor_comes_and_goes(self):
        with desk("ground", shown=all_placed()) as world:
            world.widgets.wait_for_places(PLACES)
            for running in (False, True, False):
                if running:
                    compositor = world.start_compositor()
                elif world.screen.selection_owner("_NET_WM_CM_S0"):
                    compositor.end()
                margin = 36 if running else 0
                for name, (width, _) in SIZES.items():
                    wait_until(
                        lambda: world.widgets.window(name).frame.width == width + margin, f"the shape of {name}, {running=}"
                    )
                world.widgets.wait_for_places(PLACES)
                self.assert_corners(world, allowance=60 if running else 3)
                world.screenshot(f"compositor-{running}")

    def assert_corners(self, world, allowance):
        behind = world.screen.pixel(*EMPTY)
        for name in NAMES:
            there = world.widgets.panel(name)
            corners = [(x, y) for x in (there.x, there.right - 1) for y in (there.y, there.bottom - 1)]

            def clean():
                colours = [world.screen.pixel(*corner) for corner in corners]
                inside = world.screen.pixel(there.x + 8, there.centre[1])
                return distance(inside, behind) > 10 and all(
                    colour != (0, 0, 0) and distance(colour, behind) <= allowance for colour in colours
                )

            wait_until(clean, f"clean corners of {name}")


class Names(unittest.TestCase):
    def test_each_widget_is_a_window_with_its_name_and_has_texts(self):
        with desk("names", shown=all_placed(), accessibility=True) as world:
            world.widgets.wait_for_places(PLACES)
            for title in TITLES.values():
                wait_for_window(
                    world.accessibility, world.program.pid, title, lambda read: len(read.texts()) > 1, "its texts"
                )


class Menus(unittest.TestCase):
    def test_a_right_click_on_a_widget_opens_the_menu(self):
        with desk("menu", shown={"goals": {"visible": True, "x": 700, "y": 300, "scale": 1}}) as world:
            world.widgets.wait_for_places({"goals": (700, 300)})
            menu = Menu(world)
            repeat_until(lambda: world.input.click(715, 310, RIGHT), menu.popups, "the menu")
            menu.go_down(1)
            world.input.key(*["Down"] * rows.WIDGETS, "Right")
            wait_until(lambda: len(menu.popups()) > 1, "the submenu")
            world.screenshot("menu")
            menu.close()


if __name__ == "__main__":
    unittest.main()
