"""What a user does first, on the desktop of the table that TIDEWATCH_DESKTOP names."""

import os
import time
import unittest

from harness import menu as rows
from harness.desktops import DESKTOPS
from harness.menu import Menu
from harness.screen import Rectangle, difference
from harness.timing import Elapsed, EventTime
from harness.user_input import LEFT
from harness.waiting import repeat_until, wait_until
from harness.world import HEIGHT, WIDTH, World, sleep_until

DESKTOP = DESKTOPS[os.environ["TIDEWATCH_DESKTOP"]]

PLACE = (300, 200)
SIZE = (220, 124)
WORK_SECONDS = 20
THRESHOLD = 6
MARGIN = 28  # the statistics window's, both sides together
SMALLEST, LARGEST = (900, 620), (1360, 1000)


class Core(unittest.TestCase):
    """Each test has a program of its own, all have one desktop."""

    @classmethod
    def setUpClass(cls):
        cls.world = cls.enterClassContext(World(f"desktop-{DESKTOP.name}", desktop=DESKTOP))
        cls.menu = Menu(cls.world)
        cls.terminal = cls.world.open_terminal("WorkTerm")

    def setUp(self):
        self.world.input.move(WIDTH - 10, HEIGHT // 2)
        self.world.home.remove_record()
        self.program = None

    def tearDown(self):
        if self.program and self.program.is_running():
            self.world.screenshot(f"last-{self.id().rsplit('.')[-1]}")
            self.world.stop_program(self.program)

    def start(self, **settings):
        world = self.world
        world.home.write_settings(
            **{"sizeScale": 1.0, "windowOriginX": PLACE[0], "windowOriginY": PLACE[1], **settings}
        )
        world.focus(self.terminal)
        wait_until(lambda: world.focused_window() == self.terminal.id, "the focus on the terminal")
        self.start_again()

    def start_again(self):
        self.program = self.world.start_program()
        if DESKTOP.tray:
            self.menu.wait_for_icon()

    def panel(self):
        """The clock without the margin that it has on a composited desktop; None while it is hidden."""
        window = self.world.clock()
        if window is None:
            return None
        left, top = (window.frame.width - SIZE[0]) // 2, (window.frame.height - SIZE[1]) // 2
        return Rectangle(window.frame.x + left, window.frame.y + top, *SIZE)

    def wait_for_place(self, x, y):
        wait_until(lambda: self.panel() and (self.panel().x, self.panel().y) == (x, y), f"the clock at {x}, {y}")

    def wait_until_it_is_seen_to_count(self, what):
        x, y = PLACE
        area = Rectangle(x + 10, y + 10, SIZE[0] - 20, SIZE[1] - 20)
        before = self.world.screen.grab(area)
        wait_until(lambda: difference(before, self.world.screen.grab(area)), what)
        # Once more: the first difference may be that something else was there.
        before = self.world.screen.grab(area)
        wait_until(lambda: difference(before, self.world.screen.grab(area)), what)

    def open_menu(self):
        return self.menu.open_from_tray() if DESKTOP.tray else self.menu.open_from_clock()

    def toggle_clock(self):
        """By a row of the menu, which only a tray opens while the clock is hidden."""
        self.menu.click_row(self.open_menu(), rows.TOGGLE_VISIBLE)

    def test_work_is_booked_to_the_application_in_front_and_absence_is_not(self):
        self.start(idleThresholdSeconds=THRESHOLD)
        end = self.program.started + WORK_SECONDS
        for second in range(WORK_SECONDS):
            sleep_until(self.program.started + second)
            last = EventTime.of(lambda: self.world.input.type("work"))
            # The pointer comes by the clock.
            self.world.input.move(*(self.panel().centre if second % 4 < 2 else (WIDTH - 10, 300)))
        sleep_until(end + THRESHOLD + 8)
        self.world.stop_program(self.program)
        booked = self.world.home.day_seconds()
        Elapsed.between(self.program.began, last + THRESHOLD).assert_counted(booked)
        self.assertAlmostEqual(self.world.home.application_seconds("WorkTerm"), booked, delta=1)
        self.assertEqual(self.world.home.all_application_seconds(), self.world.home.application_seconds("WorkTerm"))

    def test_the_menu_opens_by_a_right_click_and_a_row_takes_a_click(self):
        self.start()
        popup = self.open_menu()
        self.world.screenshot("menu")
        self.menu.close()
        self.menu.click_row(self.open_menu(), rows.TOGGLE_VISIBLE)
        wait_until(lambda: self.world.clock() is None, "the clock to hide")
        wait_until(lambda: self.world.home.setting("windowVisible") == "false", "the setting")

    @unittest.skipUnless(DESKTOP.window_manager, "needs workspaces")
    def test_the_clock_is_on_all_workspaces_at_every_showing(self):
        self.start()
        for showing in ("the first", "the second"):
            self.world.select_workspace(1)
            self.wait_until_it_is_seen_to_count(f"the clock on another workspace, after {showing} showing")
            self.world.select_workspace(0)
            self.wait_until_it_is_seen_to_count(f"the clock, after {showing} showing")
            if showing == "the first":
                self.toggle_clock()
                wait_until(lambda: self.world.clock() is None, "the clock to hide")
                self.toggle_clock()
                wait_until(self.world.clock, "the clock to come back")

    @unittest.skipUnless(DESKTOP.window_manager, "needs layers")
    def test_the_clock_lies_above_others_and_leaves_the_focus_to_them(self):
        self.start()
        self.world.screen.place(self.terminal.id, 100, 100, 900, 500)
        wait_until(lambda: self.terminal_frame().contains(*self.panel().centre), "the terminal below the clock")
        self.world.input.click(self.terminal_frame().right - 20, self.terminal_frame().bottom - 20, LEFT)
        self.wait_until_it_is_seen_to_count("the clock above the terminal")
        x, y = self.panel().centre
        self.world.input.drag((x, y), (x + 40, y + 30))
        self.wait_for_place(PLACE[0] + 40, PLACE[1] + 30)
        before = self.world.screen.grab(self.terminal_frame())
        self.world.input.type("typed")
        wait_until(lambda: difference(before, self.world.screen.grab(self.terminal_frame())), "the typed letters")

    def terminal_frame(self):
        return self.world.screen.window(window_class="WorkTerm").frame

    def test_a_drag_moves_the_clock_and_restarts_find_it_there(self):
        self.start()
        self.wait_for_place(*PLACE)
        grip = (PLACE[0] + 20, PLACE[1] + 10)
        self.world.input.drag(grip, (grip[0] + 250, grip[1] + 150))
        place = (PLACE[0] + 250, PLACE[1] + 150)
        self.wait_for_place(*place)
        wait_until(lambda: self.world.home.setting("windowOriginY") == str(place[1]), "the place in the settings")
        for _ in range(2):
            self.world.stop_program(self.program)
            self.start_again()
            self.wait_for_place(*place)
            # A click stores the place too, whatever it is.
            self.world.input.click(place[0] + 30, place[1] + 30)
            wait_until(self.world.statistics, "the statistics window")
            self.assertEqual(self.world.home.setting("windowOriginX"), str(place[0]))
            self.assertEqual(self.world.home.setting("windowOriginY"), str(place[1]))

    def test_the_statistics_open_at_their_size_and_close_by_the_keyboard(self):
        self.start()
        spot = self.menu.tray_icon().frame.centre if DESKTOP.tray else self.panel().centre
        window = repeat_until(
            lambda: self.world.input.click(*spot, LEFT), self.world.statistics, "the statistics window"
        )
        wait_until(lambda: self.world.focused_window() == window.id, "the focus on it")
        if not DESKTOP.tiles:
            wait_until(lambda: self.outer_frame() == self.expected_frame(), f"{self.expected_frame()}")
            time.sleep(1)
            self.assertEqual(self.outer_frame(), self.expected_frame())
        self.world.screenshot("statistics")
        self.world.input.key("ctrl+w")
        wait_until(lambda: self.world.statistics() is None, "the statistics window to close")

    def outer_frame(self):
        window = self.world.statistics()
        left, right, top, bottom = self.world.screen.property(window.id, "_NET_FRAME_EXTENTS")[:4] or (0, 0, 0, 0)
        frame = window.frame
        return Rectangle(frame.x - left, frame.y - top, frame.width + left + right, frame.height + top + bottom)

    def expected_frame(self):
        area = Rectangle(*(self.world.screen.property(0, "_NET_WORKAREA")[:4] or (0, 0, WIDTH, HEIGHT)))
        width = min(max(area.width - MARGIN, SMALLEST[0]), LARGEST[0])
        height = min(max(area.height - MARGIN, SMALLEST[1]), LARGEST[1])
        return Rectangle(area.x + (area.width - width) // 2, area.y + (area.height - height) // 2, width, height)


if __name__ == "__main__":
    unittest.main()
