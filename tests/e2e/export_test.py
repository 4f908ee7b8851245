"""The day and a project as files, through the real dialog."""

import json
import subprocess
import unittest
from contextlib import contextmanager

from harness import menu as rows
from harness.home import today
from harness.menu import Menu
from harness.statistics_window import GOALS, StatisticsWindow
from harness.waiting import stays, wait_until
from harness.world import World

HEADER = "bundle_id,app_name,category,tier,seconds,hms,percent\n"
FAILED = "No se pudo escribir el archivo"
PROJECT = "0A0B0C0D-0000-4000-8000-000000000001"
PROJECTS = '{"projects": [{"id": "%s", "name": "Corto", "colorHex": "#7BD88F", "archived": false}]}' % PROJECT


@contextmanager
def running(name, **options):
    with World(f"export-{name}", **options) as world:
        world.home.write_settings(sizeScale=0.5)
        world.home.write("today.json", '{"%s": 120}' % today())
        world.home.write("apps.json", '{"%s": {"a,b": 90, "writer": 30}}' % today())
        world.home.write("projects.json", PROJECTS)
        world.home.write("project_time.json", '{"2026-01-05": {"%s": {"writer": 3600}}}' % PROJECT)
        world.program = world.start_program()
        yield world, Menu(world)


def dialog(world, title):
    window = wait_until(lambda: world.screen.window(title=title), f"the dialog {title}")
    wait_until(lambda: world.screen.active_window() == window.id, "the dialog's focus")
    return window


def exported_day(world, menu):
    menu.open_from_tray()
    menu.choose(rows.EXPORT_DAY)
    return dialog(world, "Exportar día")


class Day(unittest.TestCase):
    def test_it_is_written_where_the_dialog_proposes(self):
        with running("day") as (world, menu):
            window = exported_day(world, menu)
            world.screenshot("dialog")
            world.input.key("Return")
            path = world.home.path / f"tidewatch-{today()}.csv"
            wait_until(path.exists, "the file")
            self.assertEqual(
                path.read_text(encoding="utf-8"),
                HEADER
                + '"a,b","a,b",Sin categorizar,sincategorizar,90,00:01:30,75.00\n'
                + "writer,writer,Sin categorizar,sincategorizar,30,00:00:30,25.00\n",
            )
            wait_until(lambda: world.screen.window(title=window.title) is None, "the dialog to go")

    def test_it_goes_where_the_user_says_and_gets_its_extension(self):
        with running("elsewhere") as (world, menu):
            exported_day(world, menu)
            world.input.key("ctrl+a")
            world.input.type(str(world.folder / "mine"))
            world.input.key("Return")
            wait_until((world.folder / "mine.csv").exists, "the file")

    def test_escape_writes_nothing(self):
        with running("escape") as (world, menu):
            window = exported_day(world, menu)
            world.input.key("Escape")
            wait_until(lambda: world.screen.window(title=window.title) is None, "the dialog to go")
            self.assertEqual(list(world.home.path.glob("*.csv")), [])

    def test_a_file_that_is_there_is_replaced_after_a_question_in_spanish(self):
        with running("replace") as (world, menu):
            path = world.home.path / f"tidewatch-{today()}.csv"
            path.write_text("old", encoding="utf-8")
            exported_day(world, menu)
            world.input.key("Return")
            wait_until(lambda: len(popups(world)) > 1, "the question")
            world.screenshot("question")
            self.assertEqual(path.read_text(encoding="utf-8"), "old")
            world.input.key("alt+s")
            wait_until(lambda: path.read_text(encoding="utf-8").startswith(HEADER), "the new file")

    def test_a_place_that_is_gone_meanwhile_is_told(self):
        with running("gone") as (world, menu):
            documents = world.home.path / "Documents"
            documents.mkdir()
            exported_day(world, menu)
            documents.rmdir()
            world.input.key("Return")
            dialog(world, FAILED)
            world.screenshot("alert")
            world.input.key("Return")
            stays(world.program.is_running, "the program", 0.5)

    def test_the_clock_counts_on_while_the_dialog_is_open(self):
        with running("counting") as (world, menu):
            exported_day(world, menu)
            before = world.screen.grab(world.clock().frame)
            wait_until(lambda: world.screen.grab(world.clock().frame) != before, "the clock to count")


def popups(world):
    """The program's managed windows beside the clock."""
    clock = world.clock()
    return [
        window
        for window in world.screen.windows()
        if window.id in world.screen.managed()
        and window.window_class == clock.window_class
        and window.id != clock.id
    ]


def asked_for_report(world, _=None):
    window = StatisticsWindow(world, world.program)
    window.open()
    window.select(GOALS)
    window.tab_to("push button", "Generar reporte PDF del mes…")
    world.input.key("Return")
    return dialog(world, "Guardar reporte")


def export_project(world, menu):
    menu.open_from_tray()
    menu.go_down(rows.PROJECT + 1)
    world.input.key("Right", "Down", "Right")
    wait_until(lambda: len(menu.popups()) == 3, "the project's menu")
    world.input.key("Down", "Down", "Down", "Return")
    return dialog(world, "Exportar proyecto")


def written(world):
    return {path for path in world.home.path.rglob("*") if path.suffix in (".csv", ".pdf")}


class Cancelled(unittest.TestCase):
    def test_each_export_writes_nothing_and_says_nothing(self):
        with running("cancelled", accessibility=True) as (world, menu):
            monitor = world.start("dbus-monitor", "--session", "member=ShowItems")
            for ask in (exported_day, export_project, asked_for_report):
                window = ask(world, menu)
                world.input.key("alt+F4" if ask is export_project else "Escape")
                wait_until(lambda: world.screen.window(title=window.title) is None, "the dialog to go")
                stays(lambda: world.screen.window(title=FAILED) is None, "no message", 0.5)
            self.assertEqual(written(world), set())
            self.assertNotIn("ShowItems", monitor.log())
            self.assertEqual(world.opened(), [])


class Names(unittest.TestCase):
    """A project's file has the project's name, whatever letters that has."""

    def export(self, name, project):
        with running(f"name-{name}") as (world, menu):
            projects = {"projects": [{"id": PROJECT, "name": project, "colorHex": "#7BD88F", "archived": False}]}
            world.stop_program(world.program)
            world.home.write("projects.json", json.dumps(projects))
            world.start_program()
            export_project(world, menu)
            world.screenshot("dialog")
            world.input.key("Return")
            wait_until(lambda: written(world), "the file")
            wait_until(lambda: world.screen.window(title="Exportar proyecto") is None, "the dialog to go")
            (path,) = written(world)
            self.assertTrue(path.read_text(encoding="utf-8").endswith("# total,,,,,3600,01:00:00\n"))
            return path

    def test_quotes_slashes_and_line_breaks(self):
        path = self.export("quotes", 'Pantalla 27" / "el\nbueno"')
        self.assertEqual(path.name, 'tidewatch-Pantalla 27" - "el\nbueno".csv')

    def test_two_hundred_letters_of_two_bytes(self):
        path = self.export("long", "ñ" * 200)
        self.assertEqual(path.name, f"tidewatch-{'ñ' * 120}.csv")

    def test_a_leading_dot_and_other_scripts(self):
        path = self.export("scripts", ".映画 שלום 👨\u200d👩\u200d👧")
        self.assertEqual(path.name, "tidewatch-.映画 שלום 👨\u200d👩\u200d👧.csv")


class Project(unittest.TestCase):
    def test_its_whole_history_is_written(self):
        with running("project") as (world, menu):
            export_project(world, menu)
            world.input.key("Return")
            path = world.home.path / "tidewatch-Corto.csv"
            wait_until(path.exists, "the file")
            self.assertEqual(
                path.read_text(encoding="utf-8"),
                "date,bundle_id,app_name,category,tier,seconds,hms\n"
                "2026-01-05,writer,writer,Sin categorizar,sincategorizar,3600,01:00:00\n"
                "\n"
                "# total,,,,,3600,01:00:00\n",
            )


class Report(unittest.TestCase):
    def test_the_month_is_written_as_a_page_and_shown_in_the_file_manager(self):
        with running("report", accessibility=True) as (world, _):
            monitor = world.start("dbus-monitor", "--session", "member=ShowItems")
            asked_for_report(world)
            world.input.key("Return")
            path = world.home.path / "fathom-reporte.pdf"
            wait_until(path.exists, "the page")
            said = subprocess.run(["pdfinfo", path], capture_output=True, text=True, check=True).stdout
            self.assertRegex(said, r"Pages:\s+1\n")
            self.assertRegex(said, r"Page size:\s+612 x 792 pts")
            wait_until(lambda: f"file://{path}" in monitor.log(), "the file manager to be asked")


if __name__ == "__main__":
    unittest.main()
