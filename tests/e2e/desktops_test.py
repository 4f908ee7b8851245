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
MAXIMIZED = {"_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ"}




def needs(part):
    """Marks a test that a desktop without that part of its row does not have."""

    def mark(test):
        test.needed_part = part
        return test

    return mark


def load_tests(loader, _tests, _pattern):
    names = loader.getTestCaseNames(Core)
    parts = {name: getattr(getattr(Core, name), "needed_part", None) for name in names}
    return unittest.TestSuite(Core(name) for name, part in parts.items() if part is None or getattr(DESKTOP, part))


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

    def show_clock_again(self):
        """By a row of the menu; without a tray, whose menu is gone with the clock, by a second start."""
        self.click_toggle("the clock to hide", lambda: self.world.clock() is None)
        if DESKTOP.tray:
            self.click_toggle("the clock to come back", self.world.clock)
        else:
            self.world.start_program(wait_for_clock=False).wait()
            wait_until(self.world.clock, "the clock to come back")

    def click_toggle(self, what, condition):
        self.menu.click_row_until(self.open_menu, rows.TOGGLE_VISIBLE, condition, what)

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
        self.click_toggle("the clock to hide", lambda: self.world.clock() is None)
        wait_until(lambda: self.world.home.setting("windowVisible") == "false", "the setting")

    @needs("window_manager")
    def test_the_clock_is_on_all_workspaces_at_every_showing(self):
        self.start()
        for showing in ("the first", "the second"):
            self.world.select_workspace(1)
            self.wait_until_it_is_seen_to_count(f"the clock on another workspace, after {showing} showing")
            self.world.select_workspace(0)
            self.wait_until_it_is_seen_to_count(f"the clock, after {showing} showing")
            if showing == "the first":
                self.show_clock_again()

    @needs("window_manager")
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
            if DESKTOP.window_manager:
                self.assert_title_bar_is_complete()
                # It is the desktop alone that must not maximise it.
                self.world.screen.add_states(window.id, *MAXIMIZED)
                wait_until(lambda: MAXIMIZED <= self.world.screen.states(window.id), "the window to fill the screen")
        self.world.input.key("ctrl+w")
        wait_until(lambda: self.world.statistics() is None, "the statistics window to close")

    def assert_title_bar_is_complete(self):
        """A title, even the same one, makes the window manager draw the bar with the buttons anew."""
        window, frame = self.world.statistics(), self.outer_frame()
        edge = 4  # which a new drawing may shade in another way
        bar = Rectangle(frame.x, frame.y + edge, frame.width, window.frame.y - frame.y - edge)
        self.assertGreater(bar.height, 10)
        time.sleep(1)
        before = self.world.screen.grab(bar)
        self.world.screen.set_title(window.id, window.title)
        time.sleep(1)
        self.assertIsNone(difference(before, self.world.screen.grab(bar)))

    @needs("tray")
    def test_a_tray_that_crashes_and_comes_back_has_the_icon_and_its_menu_again(self):
        self.start()
        self.world.tray.kill()
        wait_until(lambda: self.menu.tray_icon() is None, "the tray to go")
        self.world.start_tray()
        self.open_menu()
        self.menu.close()

    @needs("compositor")
    def test_a_compositor_that_is_switched_off_and_on_leaves_the_clock_in_its_place(self):
        self.start()
        self.wait_for_place(*PLACE)
        for on in (False, True):
            self.world.switch_compositor(on)
            self.wait_for_place(*PLACE)
            has_margin = lambda: (self.world.clock().frame.width > SIZE[0]) == on
            wait_until(has_margin, "the margin of its shadow to come and go")
            self.wait_until_it_is_seen_to_count("the clock")
        self.assertEqual(self.world.home.setting("windowOriginX"), str(PLACE[0]))

    def test_questions_take_the_keyboard_and_are_left_by_it(self):
        self.start()
        self.open_menu()
        self.menu.choose(rows.PROJECT, 1)
        question = wait_until(lambda: self.world.screen.window(title="Nuevo proyecto"), "the question")
        wait_until(lambda: self.world.focused_window() == question.id, "the focus on it")
        self.world.input.type("Faro")
        self.world.input.key("Return")
        wait_until(lambda: self.world.screen.window(title="Nuevo proyecto") is None, "the question to go")
        wait_until(lambda: "Faro" in str(self.world.home.read("projects.json")), "the project")

    def test_the_save_dialog_takes_the_keyboard_and_is_left_by_it(self):
        self.start()
        self.open_menu()
        self.menu.choose(rows.EXPORT_DAY)
        dialog = wait_until(lambda: self.world.screen.window(title="Exportar día"), "the dialog")
        wait_until(lambda: self.world.focused_window() == dialog.id, "the focus on it")
        self.world.screenshot("save-dialog")
        self.world.input.key("Escape")
        wait_until(lambda: self.world.screen.window(title="Exportar día") is None, "the dialog to close")

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
