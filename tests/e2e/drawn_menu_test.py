"""The menu as a tray gets it that draws it itself: every detail of its rows, anew at each opening."""

import contextlib
import json
import unittest
from contextlib import contextmanager

from harness.offered_menu import OfferedMenu
from harness.services import TrayOnTheBus
from harness.waiting import wait_until
from harness.world import World

NAMES = ("R&D", "snake_case", "A && B", "&first", "_", "x_&_y", "last&", "__init__", "a&b&c", "plain")
COLOURS = ("#7BD88F", "#6B9ED4", "#E8C458", "#D15757", "#B08FE5", "#5BC9B8", "#E59B5B", "#D88FB7", "#7BD88F", "#010203")
ACTIVE = 1
SETTLING_OPENINGS, OPENINGS = 60, 200
GROWTH_KILOBYTES = 400  # a row that is not destroyed takes a kilobyte, and a menu has about seventy


def identifier(number):
    return f"0A0B0C0D-0000-4000-8000-{number:012d}"


PROJECTS = {
    "activeProjectID": identifier(ACTIVE),
    "projects": [
        {"id": identifier(number), "name": name, "colorHex": colour, "archived": False}
        for number, (name, colour) in enumerate(zip(NAMES, COLOURS))
    ],
}


def rgb(colour):
    return tuple(bytes.fromhex(colour[1:]))


@contextmanager
def offered_menu(name):
    with World(f"drawn-menu-{name}", tray=False) as world:
        world.home.write("projects.json", json.dumps(PROJECTS))
        address = world.env["DBUS_SESSION_BUS_ADDRESS"]
        with contextlib.closing(TrayOnTheBus(address)) as tray:
            world.program = world.start_program()
            wait_until(lambda: tray.items, "the item in the tray")
            with contextlib.closing(OfferedMenu(address, tray.items[0])) as menu:
                yield world, menu


def texts(rows):
    return [each.label for each in rows]


def row(rows, label):
    found = [each for each in rows if each.label == label]
    if len(found) != 1:
        raise AssertionError(f"{len(found)} rows {label!r} among {texts(rows)}")
    return found[0]


class DrawnMenu(unittest.TestCase):
    def test_a_tray_is_told_every_detail_of_the_rows(self):
        with offered_menu("details") as (_, menu):
            rows = menu.open()
            choices = [each.label for each in rows if each.enabled and not each.separates]
            self.assertEqual(
                choices,
                ["Tema", "Tamaño", "Idle", "El día empieza", "Proyecto", "Widgets de escritorio", "Ocultar ventana",
                 "Reiniciar día", "Estadísticas…", "Revelar archivo de datos", "Exportar día (CSV)…", "Iniciar al arrancar", "Salir"],
            )
            told = [each.label.split(":")[0].split(" · ")[0] for each in rows if not each.enabled and not each.separates]
            self.assertEqual(told, ["Hoy", "Sesión", "Hoy", "Productivo", "Neutral", "Distrayendo"])
            self.assertFalse(rows[0].separates or rows[-1].separates)
            self.assertTrue(rows[1].separates)

            keys = {each.label: each.key for each in rows if each.key}
            control = {"Ocultar ventana": "H", "Estadísticas…": "E", "Salir": "Q"}
            self.assertEqual(keys, {label: (("Control", key),) for label, key in control.items()})

            self.assertEqual([each.label for each in row(rows, "Idle").rows if each.checked], ["5 min"])
            self.assertEqual([each.label for each in row(rows, "Tema").rows if each.checked], ["Ochre"])
            self.assertFalse(row(rows, "Iniciar al arrancar").checked)

    def test_projects_have_their_names_as_typed_and_their_colours(self):
        with offered_menu("projects") as (_, menu):
            submenu = row(menu.open(), "Proyecto").rows
            projects = [each for each in submenu if each.rows]
            self.assertEqual([each.label for each in projects], list(NAMES))
            self.assertEqual([each.swatch for each in projects], [rgb(colour) for colour in COLOURS])
            self.assertEqual([each.label for each in projects if each.checked], [NAMES[ACTIVE]])
            colours = row(projects[ACTIVE].rows, "Cambiar color").rows
            self.assertEqual([each.swatch for each in colours], [rgb(colour) for colour in COLOURS[:8]])
            self.assertEqual([each.label for each in colours if each.checked], ["Azul"])

    def test_each_opening_has_the_rows_of_its_moment(self):
        with offered_menu("moment") as (world, menu):
            first = menu.open()
            menu.click(row(first, "Ocultar ventana"))
            wait_until(lambda: world.clock() is None, "the clock to hide")
            second = menu.open()
            menu.click(row(second, "Mostrar ventana"))
            wait_until(world.clock, "the clock to come back")

            def session(rows):
                return next(each.label for each in rows if each.label.startswith("Sesión: "))

            shown = session(menu.open())
            menu.dismiss()
            world.input.key("shift")

            def has_counted():
                now = session(menu.open())
                menu.dismiss()
                return now != shown

            wait_until(has_counted, "the session's time to go on", every=0.5)

    def test_a_row_of_an_earlier_drawing_takes_a_click_when_the_next_opening_is_prepared(self):
        with offered_menu("drawn-earlier") as (world, menu):
            first = menu.open()
            world.input.key("shift")
            wait_until(lambda: texts(menu.open()) != texts(first), "another time in the rows", every=0.5)
            menu.click(row(first, "Ocultar ventana"))
            wait_until(lambda: world.clock() is None, "the clock to hide")

    def test_two_hundred_openings_take_no_memory(self):
        with offered_menu("memory") as (world, menu):
            def open_and_dismiss(times):
                for _ in range(times):
                    self.assertGreater(len(menu.open()), 15)
                    menu.dismiss()
                return world.program.private_memory_kilobytes()

            before = open_and_dismiss(SETTLING_OPENINGS)
            after = open_and_dismiss(OPENINGS)
            self.assertLess(after - before, GROWTH_KILOBYTES)


if __name__ == "__main__":
    unittest.main()
