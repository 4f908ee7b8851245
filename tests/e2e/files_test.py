"""The files of the record, whatever happens to them while the program runs or ran."""

import json
import os
import re
import shutil
import signal
import stat
import time
import unittest

from harness import menu as rows
from harness.home import Home, today
from harness.menu import Menu
from harness.waiting import stays, wait_until
from harness.world import World, sleep_until

TAKEN = "Tidewatch: another instance has taken "
SOME_TICKS = 4.0  # in seconds, so that at least one of them is counted on a busy machine too
KEPT = r"Tidewatch: .* could not be read; it is kept as .*\.damaged-\d{4}-\d{2}-\d{2}$"


def mode(path):
    return stat.S_IMODE(os.lstat(path).st_mode)


def set_aside(home, name, mark):
    return [path for path in home.data.glob(f"{name}.{mark}-*")]


def write_the_day(world):
    """Makes a running program write the day, as a user does without knowing."""
    Menu(world).open_from_clock()
    Menu(world).choose(rows.STATISTICS)
    wait_until(world.statistics, "the statistics window")


class WhileRunning(unittest.TestCase):
    def test_a_lock_that_was_deleted_keeps_others_out_again_from_the_next_write_on(self):
        with World("files-lock", tray=False) as world:
            first = world.start_program()
            (world.home.data / "lock").unlink()
            (world.home.data / "reopen.socket").unlink()
            write_the_day(world)
            wait_until((world.home.data / "reopen.socket").exists, "the socket")
            self.assertEqual(world.start_program(wait_for_clock=False).wait(20), 0)
            world.stop_program(first)

    def test_a_directory_that_was_removed_is_made_again_with_the_whole_record(self):
        with World("files-directory", tray=False) as world:
            world.home.write("today.json", '{"2020-02-03": 77, "%s": 5000}' % today())
            first = world.start_program()
            shutil.rmtree(world.home.data)
            write_the_day(world)
            wait_until(lambda: world.home.day_seconds() >= 5077, "the record on the disk")
            self.assertEqual(mode(world.home.data), 0o700)
            self.assertEqual(world.home.read("today.json")["2020-02-03"], 77)
            wait_until((world.home.data / "reopen.socket").exists, "the socket")
            self.assertEqual(world.start_program(wait_for_clock=False).wait(20), 0)
            world.stop_program(first)

    def test_a_directory_that_was_removed_comes_back_with_projects_overrides_and_goals(self):
        project = "8E7C1C1E-8E0C-4D7C-9B0B-0A3E5A1F2B3C"
        small = {
            "projects.json": {"activeProjectID": project, "projects": [
                {"archived": False, "colorHex": "#7BD88F", "id": project, "name": "Corto de verano"},
            ]},
            "categories.json": {"appOverrides": {"xterm": "Documentos y escritura"}, "tierOverrides": []},
            "goals.json": {"dailyHours": 5.5, "dailyProductivity": 0.7, "weeklyHours": 30, "monthlyHours": 120,
                           "notificationsEnabled": False},
            "registered.json": {"org.example.Draw": ["Graphics"]},
        }
        with World("files-small", tray=False) as world:
            for name, content in small.items():
                world.home.write(name, json.dumps(content))
            first = world.start_program()
            shutil.rmtree(world.home.data)
            world.stop_program(first)
            self.assertEqual({name: world.home.read(name) for name in small}, small)
            self.assertEqual({mode(path) for path in world.home.data.iterdir()}, {0o600})

            second = world.start_program()
            shutil.rmtree(world.home.data)
            wait_until(lambda: all((world.home.data / name).exists() for name in small), "the files")
            self.assertEqual({name: world.home.read(name) for name in small}, small)
            world.stop_program(second)

    def test_whoever_took_the_directory_keeps_it_until_it_ends_and_nothing_is_lost(self):
        expected = [TAKEN, "the other instance is gone", "is of another instance; it is kept as"]
        with World("files-taken", tray=False, expected_warnings=expected) as world:
            world.home.write("today.json", '{"2020-02-03": 77, "%s": 5000}' % today())
            first = world.start_program()
            (world.home.data / "lock").unlink()
            second = world.start_program(wait_for_clock=False)
            wait_until(lambda: len(clocks(world)) == 2, "the second clock")
            stays(second.is_running, "the second instance", SOME_TICKS)

            # The first writes nothing at its end as long as the second is there, and all of it afterwards.
            first.send(signal.SIGHUP)
            first.wait(10)
            self.assertIn(TAKEN, first.log())
            self.assertEqual(len(re.findall(TAKEN, first.log())), 1)
            self.assertEqual(world.home.day_seconds(), 5077)
            world.stop_program(second)
            self.assertGreater(world.home.day_seconds(), 5077)
            self.assertEqual(set_aside(world.home, "today.json", "other"), [])


def clocks(world):
    managed = world.screen.managed()
    return [
        window
        for window in world.screen.windows()
        if window.title == "Tidewatch" and window.id in managed
    ]


class AtTheStart(unittest.TestCase):
    def test_modes_are_narrowed_whatever_the_umask(self):
        before = os.umask(0)
        try:
            with World("files-modes", tray=False) as world:
                world.home.write("today.json", "{}")
                world.home.write_settings(sizeScale=0.5)
                os.chmod(world.home.data, 0o755)
                os.chmod(world.home.data / "today.json", 0o664)
                os.chmod(world.home.settings_file, 0o666)
                program = world.start_program()
                self.assertEqual(mode(world.home.data), 0o700)
                self.assertEqual(mode(world.home.settings_file), 0o600)
                self.assertEqual({mode(path) for path in world.home.data.iterdir()}, {0o600})
                world.stop_program(program)
                self.assertEqual({mode(path) for path in world.home.data.iterdir()}, {0o600})
                self.assertEqual(mode(world.home.settings_file), 0o600)
        finally:
            os.umask(before)

    def test_new_files_are_private_whatever_the_umask(self):
        before = os.umask(0)
        try:
            with World("files-new-modes", tray=False) as world:
                world.home.settings_file.unlink()
                world.stop_program(world.start_program())
                self.assertEqual(mode(world.home.data), 0o700)
                self.assertEqual({mode(path) for path in world.home.data.iterdir()}, {0o600})
                self.assertEqual(mode(world.home.settings_file), 0o600)
        finally:
            os.umask(before)

    def test_leftovers_of_killed_starts_are_swept(self):
        with World("files-leftovers", tray=False) as world:
            world.home.write("today.json", "{}")
            world.home.write("apps.json.tmp", "half of a rec")
            (world.home.data / ".aB3xY9").mkdir()
            world.start_program()
            self.assertFalse((world.home.data / "apps.json.tmp").exists())
            self.assertFalse((world.home.data / ".aB3xY9").exists())

    def test_a_damaged_file_is_kept_and_a_line_says_so(self):
        with World("files-damaged", tray=False, expected_warnings=[KEPT]) as world:
            damaged = {"today.json": b'{"2020-02-03": 77', "apps.json": b"\xff\xfe\x00", "goals.json": b"[]"}
            for name, content in damaged.items():
                world.home.write(name, "")
                (world.home.data / name).write_bytes(content)
            program = world.start_program()
            self.assertEqual((world.home.data / "today.json").read_bytes(), damaged["today.json"])
            world.stop_program(program)
            for name in ("today.json", "apps.json"):
                kept = set_aside(world.home, name, "damaged")
                self.assertEqual([path.read_bytes() for path in kept], [damaged[name]])
                world.home.read(name)
            self.assertEqual((world.home.data / "goals.json").read_bytes(), damaged["goals.json"])
            self.assertEqual(len(re.findall("it is kept as", program.log())), 2)

    def test_numbers_that_no_clock_has_counted_end_neither_the_start_nor_the_statistics(self):
        huge = 2**63 - 1
        day = today()
        with World("files-huge", tray=False, expected_warnings=[KEPT]) as world:
            world.home.write("today.json", json.dumps({"2020-02-03": huge, day: huge}))
            world.home.write("apps.json", json.dumps({day: {"a": huge, "b": huge}, "2020-02-03": {"a": 1}}))
            world.home.write("hours.json", json.dumps({f"{day} 09": {"a": huge, "b": huge}}))
            world.home.write("minutes.json", json.dumps({f"{day} 09:10": {"a": -huge, "b": -huge}}))
            world.home.write("goals.json", json.dumps({
                "dailyHours": 1e300, "dailyProductivity": -1e300, "weeklyHours": huge, "monthlyHours": 1,
                "notificationsEnabled": True,
            }))
            world.home.write_settings(**{
                "gate.initialized": "true", "gate.workSeconds": huge, "gate.ready": "false",
                "gate.lockedUntil": "1e300", "idleThresholdSeconds": huge, "notif-goal100-x": huge,
            })
            program = world.start_program()
            write_the_day(world)
            for key in ("ctrl+2", "ctrl+3", "ctrl+4", "ctrl+5", "ctrl+1"):
                world.input.key(key)
                time.sleep(0.3)
            stays(program.is_running, "the program", 2)
            world.stop_program(program)
            self.assertLess(world.home.day_seconds(), 3600)

    def test_a_start_waits_for_an_instance_that_is_just_ending(self):
        with World("files-ending", tray=False) as world:
            first = world.start_program()
            sleep_until(first.started + 2.5)
            # An end that takes long: the first hears of it and cannot get on.
            first.send(signal.SIGSTOP)
            first.send(signal.SIGTERM)
            second = world.start_program(wait_for_clock=False)
            stays(second.is_running, "the start to wait", 2)
            first.send(signal.SIGCONT)
            self.assertEqual(first.wait(20), 0)
            written = world.home.day_seconds()
            wait_until(world.clock, "the second clock")
            world.stop_program(second)
            self.assertGreaterEqual(written, 1)
            self.assertGreaterEqual(world.home.day_seconds(), written)


class InAnOddHome(unittest.TestCase):
    def lives_in(self, world, path):
        world.home = Home(path)
        world.env["HOME"] = str(path)
        world.home.write("today.json", '{"%s": 5000}' % today())
        first = world.start_program()
        second = world.start_program(wait_for_clock=False)
        self.assertEqual(second.wait(20), 0)
        wait_until(world.statistics, "the statistics window")
        world.stop_program(first)
        self.assertGreaterEqual(world.home.day_seconds(), 5000)

    def test_a_path_longer_than_a_sockets_name_may_be(self):
        with World("files-long", tray=False) as world:
            path = world.folder / "/".join(["a-folder-with-a-rather-long-name"] * 6)
            self.assertGreater(len(str(path)), 108)
            self.lives_in(world, path)

    def test_a_path_that_is_not_utf8(self):
        with World("files-bytes", tray=False) as world:
            self.lives_in(world, world.folder / os.fsdecode(b"caf\xe9"))

    def test_a_lock_that_leads_nowhere(self):
        with World("files-link", tray=False, expected_warnings=["no lock could be made"]) as world:
            world.home.write("today.json", '{"%s": 5000}' % today())
            (world.home.data / "lock").symlink_to("/nonexistent/lock")
            program = world.start_program()
            self.assertEqual(program.log().count("\n"), 1)
            world.stop_program(program)
            self.assertGreaterEqual(world.home.day_seconds(), 5000)


if __name__ == "__main__":
    unittest.main()
