"""Every active second is in every file that it belongs to, and the files agree with each other."""

import json
import unittest

from harness.home import today
from harness.menu import PROJECT, Menu
from harness.waiting import wait_until
from harness.world import World, sleep_until

TOLERANCE = 2
PROJECT_ID = "8E7C1C1E-8E0C-4D7C-9B0B-0A3E5A1F2B3C"


def by_application(rows):
    """Seconds per application over all keys of a file of two levels."""
    sums = {}
    for row in rows.values():
        for application, seconds in row.items():
            sums[application] = sums.get(application, 0) + seconds
    return sums


class Record(unittest.TestCase):
    def test_a_minute_with_a_project_and_two_applications_in_turn(self):
        with World("record") as world:
            first = world.open_terminal("FirstTerm")
            second = world.open_terminal("SecondTerm")
            world.home.write("projects.json", json.dumps({
                "projects": [{"id": PROJECT_ID, "name": "Película", "colorHex": "#7BD88F", "archived": False}],
            }))
            world.home.write("categories.json", json.dumps({
                "appOverrides": {"FirstTerm": "Desarrollo", "SecondTerm": "Juegos"},
                "tierOverrides": [],
            }))
            program = world.start_program()
            world.hands.focus(first.id)
            sleep_until(program.started + 10)
            self.activate_the_project(world)
            world.hands.focus(first.id)
            sleep_until(program.started + 30)
            world.hands.focus(second.id)
            sleep_until(program.started + 45)
            world.hands.focus(first.id)
            sleep_until(program.started + 60)
            world.screenshot("after-a-minute")
            world.stop_program(program)
            self.assert_files_agree(world)

    def activate_the_project(self, world):
        """Chooses "Activar" with the keyboard."""
        menu = Menu(world)
        menu.open_from_tray()
        world.hands.key(*["Down"] * (PROJECT + 1))
        world.hands.key("Right")
        world.hands.key("Down")
        world.hands.key("Right")
        world.hands.key("Return")
        wait_until(lambda: world.home.read("projects.json").get("activeProjectID") == PROJECT_ID, "the active project")

    def assert_files_agree(self, world):
        home = world.home
        apps = by_application(home.read("apps.json"))
        self.assertAlmostEqual(home.day_seconds(), 60, delta=TOLERANCE)
        self.assertLessEqual(sum(apps.values()), home.day_seconds())
        self.assertAlmostEqual(apps["SecondTerm"], 15, delta=TOLERANCE)
        self.assertEqual(by_application(home.read("hours.json")), apps)
        self.assertEqual(by_application(home.read("minutes.json")), apps)
        for key in home.read("hours.json"):
            self.assertTrue(key.startswith(today()))
        project = by_application({day: rows[PROJECT_ID] for day, rows in home.read("project_time.json").items()})
        self.assertEqual(project["SecondTerm"], apps["SecondTerm"])
        self.assertLess(project["FirstTerm"], apps["FirstTerm"])
        self.assertAlmostEqual(sum(project.values()), 50, delta=5)


if __name__ == "__main__":
    unittest.main()
