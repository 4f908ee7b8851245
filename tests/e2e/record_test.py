"""Every active second is in every file that it belongs to, and the files agree with each other."""

import json
import unittest

from harness.home import today
from harness.menu import PROJECT, Menu
from harness.timing import Elapsed, EventTime
from harness.waiting import wait_until
from harness.world import World, sleep_until

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
            world.input.focus(first.id)
            program = world.start_program()
            sleep_until(program.began.latest + 10)
            chosen = EventTime.of(lambda: self.activate_the_project(world))
            world.input.focus(first.id)
            sleep_until(program.began.latest + 30)
            away = EventTime.of(lambda: world.input.focus(second.id))
            sleep_until(away.latest + 15)
            back = EventTime.of(lambda: world.input.focus(first.id))
            sleep_until(back.latest + 15)
            world.screenshot("after-a-minute")
            ended = world.stop_program(program)
            self.assert_files_agree(world)
            apps = by_application(world.home.read("apps.json"))
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())
            Elapsed.between(away, back).assert_counted(apps["SecondTerm"])
            tagged = by_application({day: rows[PROJECT_ID] for day, rows in world.home.read("project_time.json").items()})
            Elapsed.between(chosen, ended).assert_counted(sum(tagged.values()))

    def activate_the_project(self, world):
        """Chooses "Activar" with the keyboard."""
        menu = Menu(world)
        menu.open_from_tray()
        menu.go_down(PROJECT + 1)
        world.input.key("Right")
        world.input.key("Down")
        world.input.key("Right")
        world.input.key("Return")
        wait_until(lambda: world.home.read("projects.json").get("activeProjectID") == PROJECT_ID, "the active project")

    def assert_files_agree(self, world):
        home = world.home
        apps = by_application(home.read("apps.json"))
        self.assertLessEqual(sum(apps.values()), home.day_seconds())
        self.assertEqual(by_application(home.read("hours.json")), apps)
        self.assertEqual(by_application(home.read("minutes.json")), apps)
        for key in home.read("hours.json"):
            self.assertTrue(key.startswith(today()))
        project = by_application({day: rows[PROJECT_ID] for day, rows in home.read("project_time.json").items()})
        self.assertEqual(project["SecondTerm"], apps["SecondTerm"])
        self.assertLess(project["FirstTerm"], apps["FirstTerm"])


if __name__ == "__main__":
    unittest.main()
