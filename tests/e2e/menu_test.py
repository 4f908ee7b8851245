"""The menu opens by real clicks, and its commands take effect."""

import datetime
import json
import time
import unittest
from contextlib import contextmanager

from harness import menu as rows
from harness.home import today
from harness.local_time import now_in, zone_where_it_is
from harness.menu import Menu
from harness.screen import difference
from harness.services import register_folder_opener
from harness.timing import Elapsed, EventTime
from harness.user_input import LEFT, RIGHT
from harness.waiting import stays, wait_until
from harness.world import HEIGHT, WIDTH, World, sleep_until


@contextmanager
def running(name, **settings):
    """A desktop with the program in it, and its menu's handle."""
    with World(f"menu-{name}") as world:
        settings.setdefault("sizeScale", 1.0)
        world.home.write_settings(**settings)
        world.program = world.start_program()
        yield world, Menu(world)


def wait_for_setting(world, key, value):
    wait_until(lambda: world.home.setting(key) == value, f"{key}={value}, not {world.home.settings()}")


class Opening(unittest.TestCase):
    def test_a_right_click_on_the_tray_icon_opens_it(self):
        with running("right-click") as (world, menu):
            menu.open_from_tray(RIGHT)
            world.screenshot("menu")
            menu.close()

    def test_a_left_click_on_the_tray_icon_opens_it_while_the_statistics_are_open(self):
        with running("left-click") as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.STATISTICS)
            wait_until(world.statistics, "the statistics window")
            menu.open_from_tray(LEFT)
            menu.close()
            self.assertIsNotNone(world.statistics())

    def test_a_right_click_on_the_clock_opens_it(self):
        with running("clock-click") as (world, menu):
            menu.open_from_clock()
            menu.close()

    def test_it_opens_again_and_leaves_the_focus_where_it_was(self):
        with running("twice") as (world, menu):
            terminal = world.open_terminal()
            for _ in range(3):
                menu.open_from_tray()
                menu.close()
            self.assertEqual(world.screen.active_window(), terminal.id)
            before = world.screen.grab(terminal.frame)
            world.input.type("still here")
            wait_until(lambda: difference(before, world.screen.grab(terminal.frame)), "the terminal to take keys")

    def test_the_clock_counts_on_while_it_is_open(self):
        with running("counting", activeThemeID="minimal") as (world, menu):
            menu.open_from_tray()
            before = world.screen.grab(world.clock().frame)
            wait_until(lambda: difference(before, world.screen.grab(world.clock().frame)), "the clock to count")
            sleep_until(world.program.began.latest + 7)
            menu.close()
            ended = world.stop_program(world.program)
            Elapsed.between(world.program.began, ended).assert_counted(world.home.day_seconds())


class Keys(unittest.TestCase):
    def test_they_choose_their_row_while_a_menu_within_the_menu_is_open(self):
        with running("inner-keys") as (world, menu):
            for key, happened in (
                ("ctrl+h", lambda: world.clock() is None),
                ("ctrl+e", world.statistics),
                ("ctrl+q", lambda: not world.program.is_running()),
            ):
                menu.open_from_tray()
                world.input.key("Down", "Right")
                wait_until(lambda: len(menu.popups()) == 2, "the submenu")
                world.input.key(key)
                wait_until(happened, key)
                wait_until(lambda: not menu.popups(), "the menu to close")
            self.assertEqual(world.program.wait(), 0)


class Names(unittest.TestCase):
    """Projects of a file that was written by hand."""

    LONG = "Larga " * 8000

    def test_none_without_end_with_line_breaks_and_right_to_left_are_rows_of_one_line(self):
        names = ("", self.LONG, "Uno\nDos\n" * 20, "שלום עולם " * 30, "👨\u200d👩\u200d👧\u200d👦" * 40, "Corto")
        projects = [
            {"id": f"0A0B0C0D-0000-4000-8000-00000000000{number}", "name": name, "colorHex": "#7BD88F", "archived": False}
            for number, name in enumerate(names)
        ]
        with running("names") as (world, menu):
            world.stop_program(world.program)
            active = projects[1]["id"]
            world.home.write("projects.json", json.dumps({"projects": projects, "activeProjectID": active}))
            world.program = world.start_program()
            menu.open_from_tray()
            menu.go_down(rows.PROJECT + 1)
            world.input.key("Right")
            wait_until(lambda: len(menu.popups()) == 2, "the submenu")
            time.sleep(0.5)
            world.screenshot("projects")
            projects_menu = menu.popups()[1].frame
            self.assertLess(projects_menu.width, 450)
            self.assertLess(projects_menu.height, 330)
            # The first project has no name; its menu renames it, and so it is a row.
            world.input.key("Down", "Right", "Down", "Return")
            dialog = wait_until(lambda: world.screen.window(title="Renombrar proyecto"), "the dialog")
            wait_until(lambda: world.screen.active_window() == dialog.id, "the focus")
            world.input.type("Ahora")
            world.screenshot("rename")
            world.input.key("Return")
            wait_until(lambda: world.home.read("projects.json")["projects"][0]["name"] == "Ahora", "the new name")
            self.delete_the_second(world, menu)
            wait_until(lambda: len(world.home.read("projects.json")["projects"]) == len(names) - 1, "one project less")

    def delete_the_second(self, world, menu):
        menu.open_from_tray()
        menu.go_down(rows.PROJECT + 1)
        world.input.key("Right", "Down", "Down", "Right")
        wait_until(lambda: len(menu.popups()) == 3, "the project's menu")
        world.input.key("Up", "Return")
        dialog = wait_until(lambda: self.question(world), "the question")
        wait_until(lambda: world.screen.active_window() == dialog.id, "the focus")
        world.screenshot("delete")
        self.assertLess(dialog.frame.width, 450)
        self.assertLess(dialog.frame.height, 260)
        world.input.key("Return")

    @staticmethod
    def question(world):
        return next((window for window in world.screen.windows() if window.title.startswith("Borrar \"Larga")), None)


class Choices(unittest.TestCase):
    def test_every_theme_takes_effect(self):
        with running("themes") as (world, menu):
            for index, theme in list(enumerate(rows.THEMES))[1:] + [(0, rows.THEMES[0])]:
                before = world.screen.grab(world.clock().frame)
                menu.open_from_tray()
                if theme == rows.THEMES[1]:
                    self.picture_submenu(world, menu)
                menu.choose(rows.THEME, index)
                wait_for_setting(world, "activeThemeID", theme)
                wait_until(lambda: difference(before, world.screen.grab(world.clock().frame)), f"the theme {theme}")

    @staticmethod
    def picture_submenu(world, menu):
        world.input.key("Down", "Right")
        wait_until(lambda: len(menu.popups()) == 2, "the submenu")
        time.sleep(0.2)
        world.screenshot("submenu")
        menu.close()
        menu.open_from_tray()

    def test_a_size_makes_the_clock_grow_about_its_top_left_corner(self):
        with running("size", sizeScale=0.5, windowOriginX=300, windowOriginY=200) as (world, menu):
            self.assertEqual((world.clock().frame.width, world.clock().frame.height), (110, 62))
            menu.open_from_tray()
            menu.choose(rows.SIZE, rows.SIZES.index(1.0))
            wait_for_setting(world, "sizeScale", "1")
            wait_until(lambda: world.clock().frame.width == 220, "the clock at its new size")
            stays(lambda: world.clock().frame.width == 220, "the new size", 0.5)
            frame = world.clock().frame
            self.assertEqual((frame.x, frame.y, frame.height), (300, 200, 124))

    def test_the_smallest_and_the_largest_size_work(self):
        with running("extremes", windowOriginX=10, windowOriginY=10) as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.SIZE, rows.SIZES.index(5.0))
            wait_until(lambda: world.clock().frame.width == 1100, "the largest clock")
            world.screenshot("largest")
            menu.open_from_tray()
            menu.choose(rows.SIZE, rows.SIZES.index(0.1))
            wait_until(lambda: world.clock().frame.width == 22, "the smallest clock")

    def test_a_size_out_of_all_reason_ends_at_the_edge_of_the_screen(self):
        for scale in ("50", "1e300", "inf", "nan"):
            with running(f"size-{scale}", sizeScale=scale, windowOriginX=0, windowOriginY=0) as (world, _):
                frame = world.clock().frame
                self.assertLessEqual((frame.width, frame.height), (WIDTH, HEIGHT))
                if scale == "50":
                    world.screenshot("panel")
                    self.assertEqual(frame.width, WIDTH)
                self.assertLess(world.program.resident_memory_kilobytes(), 300_000)
                world.stop_program(world.program)

    def test_an_idleness_threshold_is_stored(self):
        with running("idle") as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.IDLE, rows.IDLE_SECONDS.index(600))
            wait_for_setting(world, "idleThresholdSeconds", "600")

    def test_a_start_of_the_day_moves_the_running_day(self):
        with running("day-start") as (world, menu):
            world.stop_program(world.program)
            self.assertEqual(list(world.home.read("today.json")), [today()])
            world.home.write("today.json", "{}")
            morning = zone_where_it_is(5)
            world.env["TZ"] = morning
            world.program = world.start_program()
            menu.open_from_tray()
            menu.choose(rows.DAY_START, rows.DAY_STARTS.index(8))
            wait_for_setting(world, "dayStartHour", "8")
            time.sleep(3)
            world.stop_program(world.program)
            days = [now_in(morning) - datetime.timedelta(days=ago) for ago in (1, 0)]
            self.assertEqual(list(world.home.read("today.json")), [day.strftime("%Y-%m-%d") for day in days])

    def test_a_row_takes_a_click_of_the_mouse(self):
        with running("mouse") as (world, menu):
            popup = menu.open_from_tray()
            menu.click_row(popup, rows.TOGGLE_VISIBLE)
            wait_until(lambda: world.clock() is None, "the clock to hide")


class Commands(unittest.TestCase):
    def test_the_clock_hides_and_shows(self):
        with running("visible", windowOriginX=400, windowOriginY=300) as (world, menu):
            place = world.clock().frame
            menu.open_from_tray()
            menu.choose(rows.TOGGLE_VISIBLE)
            wait_until(lambda: world.clock() is None, "the clock to hide")
            wait_for_setting(world, "windowVisible", "false")
            menu.open_from_tray()
            menu.choose(rows.TOGGLE_VISIBLE)
            wait_until(world.clock, "the clock to show")
            wait_for_setting(world, "windowVisible", "true")
            self.assertEqual(world.clock().frame, place)

    def test_hidden_it_counts_and_stays_hidden_over_a_restart(self):
        with running("hidden") as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.TOGGLE_VISIBLE)
            wait_until(lambda: world.clock() is None, "the clock to hide")
            sleep_until(world.program.began.latest + 5)
            ended = world.stop_program(world.program)
            Elapsed.between(world.program.began, ended).assert_counted(world.home.day_seconds())
            world.start_program(wait_for_clock=False)
            wait_until(menu.tray_icon, "the tray icon")
            stays(lambda: world.clock() is None, "the hidden clock", 1)

    def test_a_reset_empties_the_day_at_once_and_nothing_else(self):
        with running("reset") as (world, menu):
            world.open_terminal("WorkTerm")
            sleep_until(world.program.began.latest + 6)
            menu.open_from_tray()
            asked = time.monotonic()
            menu.choose(rows.RESET)
            wait_until(lambda: world.home.read("today.json") == {today(): 0}, "the day at 0 on disk")
            reset = EventTime(asked, time.monotonic())
            ended = world.stop_program(world.program)
            Elapsed.between(reset, ended).assert_counted(world.home.day_seconds())
            self.assertGreaterEqual(world.home.application_seconds("WorkTerm"), 3)

    def test_the_data_file_is_written_and_shown_in_the_file_manager(self):
        with running("reveal") as (world, menu):
            register_folder_opener(world, "System;FileManager;")
            monitor = world.start("dbus-monitor", "--session", "member=ShowItems")
            wait_until(monitor.log, "the monitor to listen")
            sleep_until(world.program.began.latest + 2)
            menu.open_from_tray()
            menu.choose(rows.REVEAL)
            wait_until(lambda: f"file://{world.home.data}/today.json" in monitor.log(), "the file manager to be asked")
            # None answers on this bus, so the folder is opened instead.
            wait_until(lambda: world.opened() == [f"file://{world.home.data}"], "the folder to be opened")
            self.assertGreaterEqual(world.home.day_seconds(), 1)

    def test_start_at_login_writes_an_entry_that_starts_this_program_and_takes_it_back(self):
        with running("login") as (world, menu):
            menu.open_from_tray()
            menu.choose(rows.LOGIN_ITEM)
            wait_until(world.home.login_entry.exists, "the entry")
            entry = world.home.login_entry.read_text(encoding="utf-8")
            self.assertIn('Exec="', entry)
            self.assertIn("/tidewatch\"", entry)
            menu.open_from_tray()
            menu.choose(rows.LOGIN_ITEM)
            wait_until(lambda: not world.home.login_entry.exists(), "the entry to go")

    def test_quit_writes_the_day_and_ends_with_0(self):
        with running("quit") as (world, menu):
            sleep_until(world.program.began.latest + 3)
            menu.open_from_tray()
            ended = EventTime.of(lambda: (menu.choose(rows.QUIT), world.wait_for_end(world.program)))
            Elapsed.between(world.program.began, ended).assert_counted(world.home.day_seconds())

    def test_a_key_equivalent_works_in_the_open_menu(self):
        with running("key") as (world, menu):
            menu.open_from_tray()
            world.input.key("ctrl+q")
            self.assertEqual(world.program.wait(), 0)


if __name__ == "__main__":
    unittest.main()
