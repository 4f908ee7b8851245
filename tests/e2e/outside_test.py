"""What others put into the user's folders: it may be anything, it may come later, and it may go."""

import json
import os
import time
import unittest

from harness import worked_days as record
from harness.statistics_window import DETAILS, OVERVIEW, StatisticsWindow
from harness.waiting import wait_until
from harness.world import World

UNKNOWN_ROW = "mystery, Sin categorizar, Sin categorizar, 42s, 2%"


def rows(read):
    return read.names("list item")


class Hostile(unittest.TestCase):
    def lay_out(self, home):
        """Pipes that nobody writes to and folders without an end, wherever the program reads."""
        record.write(home)
        home.write("registered.json", "{ garbled")
        home.settings_file.unlink()
        os.mkfifo(home.settings_file)
        entries = home.path / ".local/share/applications"
        os.mkfifo(entries / "pipe.desktop")
        for one, other in (("one", "other"), ("other", "one")):
            (entries / one).mkdir()
            (entries / one / other).symlink_to(entries / other)
        (entries / "all").symlink_to(entries)
        pictures = home.path / ".local/share/icons/hicolor/48x48/apps"
        pictures.mkdir(parents=True)
        os.mkfifo(pictures / "piped.png")
        for application, icon in ((record.EDITOR, pictures / "piped.png"), (record.BROWSER, "piped")):
            with open(entries / f"{application}.desktop", "a", encoding="utf-8") as entry:
                entry.write(f"Icon={icon}\n")

    def test_pipes_and_folders_without_an_end_stop_neither_the_tick_nor_the_end(self):
        with World(
            "outside-hostile", accessibility=True, expected_warnings=[r"tidewatch\.conf is no ordinary file"]
        ) as world:
            self.lay_out(world.home)
            before = world.home.day_seconds()
            program = world.start_program()
            world.open_terminal("pipe")
            time.sleep(5)  # some ticks in front of it
            window = StatisticsWindow(world, program)
            window.open()
            window.tab(OVERVIEW)
            window.select(DETAILS)
            window.wait_for(lambda read: any("Visual Studio Code" in row for row in rows(read)), "the rows")
            window.wait_for(lambda read: any(row.startswith("pipe, ") for row in rows(read)), "the terminal's row")
            world.screenshot("details")
            world.stop_program(program)
            self.assertGreaterEqual(world.home.day_seconds(), before + 2)
            self.assertGreaterEqual(world.home.application_seconds("pipe"), 1)
            self.assertTrue(world.home.settings_file.is_fifo())


class Coming(unittest.TestCase):
    def test_an_application_that_is_installed_gets_its_category_and_keeps_it_when_it_goes(self):
        with World("outside-coming", accessibility=True) as world:
            world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
            record.write(world.home)
            program = world.start_program()
            window = StatisticsWindow(world, program)
            window.open()
            window.select(DETAILS)
            window.wait_for(lambda read: UNKNOWN_ROW in rows(read), "the unknown application")

            # As a package manager does it: whole at once.
            entry = world.home.path / ".local/share/applications/mystery.desktop"
            fresh = entry.with_suffix(".new")
            fresh.write_text("[Desktop Entry]\nName=Misterio\nExec=true\nCategories=Game;\n", encoding="utf-8")
            fresh.rename(entry)
            # Its name stays what it was told as, until the next start.
            window.wait_for(lambda read: "mystery, Distrayendo, Juegos, 42s, 2%" in rows(read), "the new category")
            world.screenshot("installed")
            kept = world.home.data / "registered.json"
            wait_until(kept.exists, "what was registered on the disk")
            self.assertEqual(json.loads(kept.read_text(encoding="utf-8")), {"mystery": ["Game"]})
            self.assertEqual(kept.stat().st_mode & 0o777, 0o600)
            world.stop_program(program)

            program = world.start_program()
            window = StatisticsWindow(world, program)
            window.open()
            window.select(DETAILS)
            window.wait_for(lambda read: "Misterio, Distrayendo, Juegos, 42s, 2%" in rows(read), "the new name")
            world.stop_program(program)

            entry.unlink()
            window = StatisticsWindow(world, world.start_program())
            window.open()
            window.select(DETAILS)
            window.wait_for(lambda read: "mystery, Distrayendo, Juegos, 42s, 2%" in rows(read), "the category kept")


if __name__ == "__main__":
    unittest.main()
