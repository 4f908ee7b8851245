#!/usr/bin/env python3
"""The package that ./package builds, in a bare Debian 12: installed, started, upgraded while it runs, removed, purged.

The program runs in that system, with nothing in it but what the package asks for; the desktop that it runs on is the
end-to-end tests' and stands outside. Takes the folder for the system from TIDEWATCH_BARE, and where pictures and
logs go from TIDEWATCH_E2E_ARTEFACTS.
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BARE = Path(os.environ["TIDEWATCH_BARE"])
# Sockets have short names only.
SHARED = tempfile.mkdtemp(prefix="twp-")
tempfile.tempdir = SHARED
WRAPPER = Path(SHARED) / "tidewatch"
os.environ["TIDEWATCH_PROGRAM"] = str(WRAPPER)
ARTEFACTS = os.environ["TIDEWATCH_E2E_ARTEFACTS"]
sys.path.insert(0, str(ROOT / "tests/e2e"))

from bare_system import BareSystem  # noqa: E402
from commands import SECONDS, built_package, run  # noqa: E402
from harness import menu as rows  # noqa: E402
from harness.menu import Menu  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.world import World  # noqa: E402

PROGRAM = "/usr/bin/tidewatch"
MENU_ENTRY = "/usr/share/applications/com.brightlooms.tidewatch.desktop"


def setUpModule():
    global system, package
    unittest.addModuleCleanup(shutil.rmtree, SHARED, ignore_errors=True)
    package = built_package(ROOT)
    system = BareSystem(BARE)
    for folder in (SHARED, ARTEFACTS):
        Path(folder).mkdir(parents=True, exist_ok=True)
        system.share(folder)
    WRAPPER.write_text(f'#!/bin/sh\nexec chroot "{system.root}" {PROGRAM} "$@"\n', encoding="utf-8")
    WRAPPER.chmod(0o755)
    system.run("apt-get", "update", "--quiet")
    system.install(package)


def running_programs():
    """The processes that run the installed program, also one that was replaced meanwhile."""
    found = []
    for process in Path("/proc").glob("[0-9]*"):
        try:
            program = os.readlink(process / "exe")
        except OSError:
            continue  # another's, or gone
        if program.removesuffix(" (deleted)") == f"{system.root}{PROGRAM}":
            found.append(int(process.name))
    return found


def newer_package():
    """The same with a higher version."""
    folder = Path(tempfile.mkdtemp())
    run("dpkg-deb", "--raw-extract", package, folder / "tree")
    control = folder / "tree/DEBIAN/control"
    control.write_text(re.sub(r"(?m)^(Version: .*)$", r"\1+newer", control.read_text(encoding="utf-8")), encoding="utf-8")
    run("dpkg-deb", "--root-owner-group", "--build", folder / "tree", folder / "newer.deb")
    return folder / "newer.deb"


class Installed(unittest.TestCase):
    def setUp(self):
        if not (system.root / PROGRAM[1:]).exists():
            system.install(package)
        self.addCleanup(self.end_programs)

    @staticmethod
    def end_programs():
        for process in running_programs():
            os.kill(process, signal.SIGTERM)
        wait_until(lambda: not running_programs(), "the program to end")

    def open_entry(self, world, entry):
        """Starts what a desktop entry says, as a desktop does."""
        # The desktop's part; in the bare system it comes after everything that the program needs.
        if not (system.root / "usr/bin/gio").exists():
            system.install("libglib2.0-bin")
        # A pipe would be open for as long as the program runs.
        with open(world.folder / "gio.log", "ab") as log:
            command = ["chroot", str(system.root), "gio", "launch", str(entry)]
            return subprocess.run(command, env=world.env, stdout=log, stderr=log, timeout=SECONDS).returncode


class A_Bare(Installed):
    """First, while there is nothing in the system that the program did not ask for."""

    def test_without_anything_but_what_it_depends_on_it_counts_and_shows_its_statistics(self):
        self.assertFalse((system.root / "usr/bin/gio").exists(), "the system is no longer bare")
        with World("bare") as world:
            program = world.start_program()
            wait_until(Menu(world).tray_icon, "the tray icon")
            world.start_program(wait_for_clock=False).wait()
            wait_until(world.statistics, "the statistics")
            wait_until(lambda: world.home.day_seconds() > 0, "the record")
            world.screenshot("statistics")
            world.stop_program(program)


class Starting(Installed):
    def test_the_menu_of_the_desktop_starts_it(self):
        with World("from-the-menu") as world:
            self.assertEqual(self.open_entry(world, MENU_ENTRY), 0)
            wait_until(world.clock, "the clock")
            self.end_programs()

    def test_without_an_x_server_it_says_so_and_ends_with_1(self):
        done = subprocess.run(
            [WRAPPER], env={"PATH": "/usr/sbin:/usr/bin", "HOME": SHARED}, capture_output=True, text=True, timeout=SECONDS
        )
        self.assertEqual(done.returncode, 1)
        self.assertIn("no X server answers", done.stderr)

    def test_start_at_login_starts_the_installed_program_until_it_is_removed(self):
        with World("login") as world:
            program = world.start_program()
            menu = Menu(world)
            menu.open_from_tray()
            menu.choose(rows.LOGIN_ITEM)
            wait_until(world.home.login_entry.exists, "the entry")
            self.assertIn(f'Exec="{PROGRAM}"\n', world.home.login_entry.read_text(encoding="utf-8"))
            world.stop_program(program)

            self.assertEqual(self.open_entry(world, world.home.login_entry), 0)
            wait_until(world.clock, "the clock")
            self.end_programs()

            system.run("apt-get", "remove", "--yes", "--quiet", "tidewatch")
            self.assertNotEqual(self.open_entry(world, world.home.login_entry), 0)
            self.assertEqual(running_programs(), [])


class Changing(Installed):
    def test_an_upgrade_leaves_the_running_one_alone_and_the_next_start_is_the_new_one(self):
        with World("upgrade") as world:
            old = world.start_program()
            installed = (system.root / PROGRAM[1:]).stat().st_ino
            system.install(newer_package())
            new = (system.root / PROGRAM[1:]).stat().st_ino
            self.assertNotEqual(new, installed)

            self.assertEqual(os.stat(f"/proc/{old.pid}/exe").st_ino, installed)
            self.assertEqual(world.start_program(wait_for_clock=False).wait(), 0)
            wait_until(world.statistics, "the statistics of the running one")
            before = world.home.day_seconds()
            wait_until(lambda: world.home.day_seconds() > before, "the running one to count")
            world.stop_program(old)

            kept = world.home.day_seconds()
            next_start = world.start_program()
            self.assertEqual(os.stat(f"/proc/{next_start.pid}/exe").st_ino, new)
            world.stop_program(next_start)
            self.assertGreaterEqual(world.home.day_seconds(), kept)

    def test_removing_and_purging_take_everything_but_the_record(self):
        with World("removal") as world:
            program = world.start_program()
            wait_until(lambda: world.home.day_seconds() > 0, "the record")
            system.run("apt-get", "remove", "--yes", "--quiet", "tidewatch")
            self.assertTrue(program.is_running(), "removing ends nobody's program")
            world.stop_program(program)
            record = {file.name: file.read_bytes() for file in world.home.data.glob("*.json")}
            self.assertIn("today.json", record)

            system.run("dpkg", "--purge", "tidewatch")
            self.assertEqual(system.files_named("*tidewatch*"), [])
            self.assertEqual({file.name: file.read_bytes() for file in world.home.data.glob("*.json")}, record)


if __name__ == "__main__":
    unittest.main(verbosity=2)
