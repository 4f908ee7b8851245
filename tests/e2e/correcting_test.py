"""What is done in the statistics window: days, tabs, filters, other classes, other goals, the month's report."""

import subprocess
import unittest
from contextlib import contextmanager

from harness import worked_days as record
from harness.menu import Menu
from harness.statistics_window import DETAILS, GOALS, OVERVIEW, TABS, StatisticsWindow
from harness.user_input import RIGHT
from harness.waiting import wait_until
from harness.world import World

# The rows of an application's menu, and of the menus in it.
CATEGORY, TIER, RESTORE = range(3)
DEVELOPMENT = 2  # among the categories
NEUTRAL = 1  # among the tiers

EDITOR_ROW = "Visual Studio Code, Productivo, Desarrollo, 19m, 55%"
BROWSER_ROW = "Firefox, Productivo, Navegador, 8m, 23%"
CHAT_ROW = "Discord, Distrayendo, Social, 4m, 12%"
MUSIC_ROW = "Spotify, Neutral, Música, 3m, 9%"
UNKNOWN_ROW = "mystery, Sin categorizar, Sin categorizar, 42s, 2%"
ALL_ROWS = [EDITOR_ROW, BROWSER_ROW, CHAT_ROW, MUSIC_ROW, UNKNOWN_ROW]


@contextmanager
def window_open(name):
    with World(f"correcting-{name}", accessibility=True) as world:
        world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
        record.write(world.home)
        world.program = world.start_program()
        window = StatisticsWindow(world, world.program)
        window.open()
        yield world, window


def rows(read):
    return read.names("list item")


class Going(unittest.TestCase):
    def test_tabs_come_by_click_and_by_key_and_days_by_their_buttons(self):
        with window_open("going") as (world, window):
            for tab in reversed(TABS):
                window.click("page tab", tab)
                window.tab(tab)
            for tab in TABS:
                window.select(tab)
            window.select(OVERVIEW)
            window.click("push button", "Día anterior")
            window.wait_for_text("label", record.short_date(1))
            # Of the day before there is nothing to compare with.
            window.wait_for_text("panel", "PRODUCTIVIDAD: 75%, 39m")
            window.click("push button", "Día anterior")
            window.wait_for_text("panel", "PRODUCTIVIDAD: —, 0s")
            window.click("push button", "Día siguiente")
            window.wait_for_text("label", record.short_date(1))
            window.click("push button", "hoy")
            window.wait_for_text("label", record.short_date())
            window.wait_for_text("panel", "PRODUCTIVIDAD: 87%, 35m, +12% vs ayer")
            # There is no tomorrow.
            window.click("push button", "Día siguiente")
            window.wait_for_text("label", record.short_date())
            # Nor is the window lost by Escape's other meanings: it closes.
            world.input.key("Escape")
            wait_until(lambda: world.statistics() is None, "the window to close")

    def test_the_tabulator_goes_through_all_that_can_be_worked_in_the_order_of_reading(self):
        with window_open("tabulator") as (world, window):
            window.select(DETAILS)
            stops = []
            for _ in range(13):
                world.input.key("Tab")
                stops.append(wait_until(window.focused, "the focus"))
            start = stops.index(("push button", "Día anterior"))
            self.assertEqual(
                stops[start:] + stops[:start],
                [
                    ("push button", "Día anterior"),
                    ("push button", "hoy"),
                    ("page tab", DETAILS),
                    ("check box", "Productivo"),
                    ("check box", "Neutral"),
                    ("check box", "Distrayendo"),
                    ("check box", "Sin categorizar"),
                    ("text", "buscar"),
                    *(("list item", row) for row in ALL_ROWS),
                ],
            )


class Filtering(unittest.TestCase):
    def test_chips_and_search_let_rows_in_and_out(self):
        with window_open("filtering") as (world, window):
            self.assertEqual(rows(window.select(DETAILS)), ALL_ROWS)
            window.click("check box", "Productivo")
            read = window.wait_for(lambda read: rows(read) == ALL_ROWS[2:], "the others")
            self.assertNotIn("checked", read.find("check box", "Productivo")[0].states)
            self.assertIn("checked", read.find("check box", "Neutral")[0].states)
            for tier in ("Neutral", "Distrayendo", "Sin categorizar"):
                window.click("check box", tier)
            window.wait_for_text("label", "Sin actividad para los filtros seleccionados.")
            for tier in ("Productivo", "Neutral", "Distrayendo", "Sin categorizar"):
                window.click("check box", tier)
            window.wait_for(lambda read: rows(read) == ALL_ROWS, "all rows again")
            window.click("text", "buscar")
            world.input.type("Navega")
            window.wait_for(lambda read: rows(read) == [BROWSER_ROW], "the one of that category")
            world.input.key("Escape")
            window.wait_for(lambda read: rows(read) == ALL_ROWS, "all rows after the search")
            self.assertIsNotNone(world.statistics())


class Classes(unittest.TestCase):
    def menu_of(self, world, window, row):
        window.click("list item", row, RIGHT)
        menu = Menu(world)
        wait_until(menu.popups, "the menu of the row")
        return menu

    def test_another_category_moves_every_figure_and_the_default_brings_it_back(self):
        with window_open("category") as (world, window):
            icon = wait_until(Menu(world).tray_icon, "the tray icon").frame
            wait_until(lambda: self.steady(world, icon), "the tray icon to stop changing")
            before = world.screen.grab(icon)
            window.select(DETAILS)

            self.menu_of(world, window, CHAT_ROW).choose(CATEGORY, DEVELOPMENT)
            moved = "Discord, Productivo, Desarrollo, 4m, 12%"
            window.wait_for_text("list item", moved)
            self.assertEqual(
                world.home.read("categories.json"),
                {"appOverrides": {record.CHAT: "Desarrollo"}, "tierOverrides": []},
            )
            wait_until(lambda: world.screen.grab(icon) != before, "another figure in the tray")
            overview = window.select(OVERVIEW)
            # Yesterday counts anew as well: there is nothing left that distracts.
            self.assertIn("PRODUCTIVIDAD: 100%, 35m, +0% vs ayer", overview.names("panel"))
            self.assertIn("Productivo: 31m", overview.names("panel"))
            self.assertIn("Distrayendo: 0s", overview.names("panel"))

            window.select(DETAILS)
            self.menu_of(world, window, moved).choose(RESTORE)
            window.wait_for_text("list item", CHAT_ROW)
            self.assertEqual(world.home.read("categories.json"), {"appOverrides": {}, "tierOverrides": []})
            wait_until(lambda: world.screen.grab(icon) == before, "the old figure in the tray")
            self.assertIn("PRODUCTIVIDAD: 87%, 35m, +12% vs ayer", window.select(OVERVIEW).names("panel"))

    @staticmethod
    def steady(world, icon):
        first = world.screen.grab(icon)
        looks = iter(range(15))
        wait_until(lambda: next(looks, None) is None, "some time to pass", every=0.1)
        return world.screen.grab(icon) == first

    def test_another_tier_of_a_category_is_chosen_without_the_mouse(self):
        with window_open("tier") as (world, window):
            window.select(DETAILS)
            window.tab_to("list item", EDITOR_ROW)
            world.input.key("Down")
            wait_until(lambda: window.focused() == ("list item", BROWSER_ROW), "the next row")
            world.input.key("Menu")
            menu = Menu(world)
            wait_until(menu.popups, "the menu of the row")
            menu.choose(TIER, NEUTRAL)
            window.wait_for_text("list item", "Firefox, Neutral, Navegador, 8m, 23%")
            self.assertEqual(world.home.read("categories.json")["tierOverrides"], ["Navegador", "neutral"])
            # The row keeps the keyboard.
            wait_until(lambda: window.focused() == ("list item", "Firefox, Neutral, Navegador, 8m, 23%"), "the focus")

    def test_a_reader_opens_the_menu_too(self):
        with window_open("reader") as (world, window):
            window.select(DETAILS)
            window.wait_for_text("list item", CHAT_ROW).act("Press")
            menu = Menu(world)
            wait_until(menu.popups, "the menu of the row")
            menu.close()


class Goals(unittest.TestCase):
    def test_steppers_and_switch_are_saved_at_once(self):
        with window_open("goals") as (world, window):
            window.select(GOALS)
            window.tab_to("spin box", "Horas por día")
            world.input.key("Up", "Up", "Up")
            self.saved(world, dailyHours=7.5)
            self.assertIn("7.5h", window.tab(GOALS).texts())
            window.wait_for(lambda read: any("/ 7h 30m" in name for name in read.names("progress bar")), "the goal")
            world.input.key("Tab", "minus")
            self.saved(world, dailyHours=7.5, dailyProductivity=0.75)
            # As a reader steps: by the action.
            window.wait_for_text("spin box", "Horas por semana").act("Increase")
            self.saved(world, weeklyHours=36)
            window.wait_for(
                lambda read: read.find("spin box", "Horas por semana")[0].value()[0] == 36, "the value on the bus"
            )
            window.tab_to("check box", "Notificaciones de metas")
            world.input.key("space")
            self.saved(world, notificationsEnabled=False)
            window.wait_for(
                lambda read: "checked" not in read.find("check box", "Notificaciones de metas")[0].states,
                "the switch to be off",
            )

    def test_a_stepper_takes_clicks_on_its_halves(self):
        with window_open("stepper") as (world, window):
            window.select(GOALS)
            # What lies below is scrolled to first.
            window.tab_to("spin box", "Horas por mes")
            frame = window.wait_for_text("spin box", "Horas por mes").frame()
            world.input.click(frame.right - frame.width // 4, frame.centre[1])
            self.saved(world, monthlyHours=145)
            world.input.click(frame.x + frame.width // 4, frame.centre[1])
            self.saved(world, monthlyHours=140)

    @staticmethod
    def saved(world, **goals):
        def there():
            stored = world.home.read("goals.json")
            return all(stored.get(name) == value for name, value in goals.items())

        wait_until(there, f"{goals} in goals.json")


class Report(unittest.TestCase):
    def test_the_months_page_goes_where_the_dialog_is_told(self):
        with window_open("report") as (world, window):
            window.select(GOALS)
            window.tab_to("push button", "Generar reporte PDF del mes…")
            world.input.key("Return")
            dialog = wait_until(lambda: world.screen.window(title="Guardar reporte"), "the dialog")
            wait_until(lambda: world.screen.active_window() == dialog.id, "the dialog's focus")
            path = world.folder / "noviembre.pdf"
            world.input.key("ctrl+a")
            world.input.type(str(path))
            world.input.key("Return")
            wait_until(path.exists, "the page")
            self.assertTrue(path.read_bytes().startswith(b"%PDF-"))
            words = self.output(["pdftotext", "-layout", str(path), "-"])
            for expected in ("FATHOM", "Visual Studio Code", "Firefox"):
                self.assertIn(expected, words)
            about = self.output(["pdfinfo", str(path)])
            self.assertRegex(about, r"Pages: +1\b")
            self.assertRegex(about, r"Page size: +612 x 792 pts")

    @staticmethod
    def output(command):
        return subprocess.run(command, check=True, capture_output=True, text=True, timeout=20).stdout


if __name__ == "__main__":
    unittest.main()
