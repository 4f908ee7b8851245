"""A session whose bus does not answer: the clock comes, counts and ends all the same."""

import os
import re
import signal
import socket
import time
import unittest
from pathlib import Path

from Xlib import X

from harness.services import TrayOnTheBus
from harness.silent_bus import SilentBus
from harness.statistics_window import DETAILS, StatisticsWindow
from harness.timing import Elapsed, EventTime
from harness.user_input import MIDDLE
from harness.waiting import wait_until
from harness.world import World, sleep_until

# Without a bus there is nothing to count without, but everything must be there within this time, in seconds, on a
# machine that is busy with other tests: the worst bus would hold a program without a limit for four minutes.
SOON = 30

MACHINE = Path("/etc/machine-id")


class Silent(unittest.TestCase):
    def start(self, world):
        program = world.start_program(wait_for_clock=False)
        wait_until(world.clock, "the clock on the screen", SOON)
        return program

    def assert_counts_and_ends(self, world, program, before=0):
        """Seconds that pass now are booked, and a signal ends the program in the ordinary way."""
        started = time.monotonic()
        sleep_until(started + 7)
        program.send(signal.SIGTERM)
        self.assertEqual(program.wait(SOON), 0)
        self.assertGreaterEqual(world.home.day_seconds(), before + 5)
        self.assertLessEqual(len(program.log().splitlines()), 1, program.log())

    def test_one_that_says_nothing(self):
        with World("silent-bus", session_bus=False) as world:
            bus = SilentBus(world.bus_path)
            program = self.start(world)
            self.assert_counts_and_ends(world, program)
            self.assertGreater(bus.heard, 0, "nobody asked the bus")
            bus.close()

    def test_one_that_answers_the_first_call_only(self):
        with World("silent-hello", session_bus=False) as world:
            bus = SilentBus(world.bus_path, says_hello=True)
            program = self.start(world)
            self.assert_counts_and_ends(world, program)
            self.assertGreater(bus.heard, 400, "nobody got as far as a second call")
            bus.close()

    def test_one_that_is_stopped_before_the_start(self):
        with World("silent-stopped", session_bus=False) as world:
            bus = world.start_session_bus()
            bus.send(signal.SIGSTOP)
            try:
                self.assert_counts_and_ends(world, self.start(world))
            finally:
                bus.send(signal.SIGCONT)

    def test_one_that_is_stopped_while_the_program_runs(self):
        # What the toolkit says if the bus has not yet told it that the tray has the item.
        unanswered = ["QDBusTrayIcon encountered a D-Bus error: .*no answer in time"]
        with World("silent-later", session_bus=False, tray=False, expected_warnings=unanswered) as world:
            bus = world.start_session_bus()
            tray = TrayOnTheBus(world.env["DBUS_SESSION_BUS_ADDRESS"])
            program = self.start(world)
            wait_until(lambda: tray.items, "the item in the tray", SOON)
            bus.send(signal.SIGSTOP)
            try:
                self.assert_counts_and_ends(world, program)
            finally:
                bus.send(signal.SIGCONT)
                tray.close()

    def test_one_that_goes_on_has_the_tray_as_before(self):
        with World("silent-paused", session_bus=False, tray=False) as world:
            bus = world.start_session_bus()
            tray = TrayOnTheBus(world.env["DBUS_SESSION_BUS_ADDRESS"])
            program = self.start(world)
            wait_until(lambda: tray.items, "the item in the tray", SOON)
            bus.send(signal.SIGSTOP)
            time.sleep(7)
            del tray.items[:]
            bus.send(signal.SIGCONT)
            wait_until(lambda: tray.items, "the item in the tray again", SOON)
            self.assert_counts_and_ends(world, program)
            tray.close()

    def test_one_that_dies_and_comes_back_gets_the_tray_and_the_program_goes_on(self):
        with World("silent-killed", session_bus=False, tray=False) as world:
            bus = world.start_session_bus()
            tray = TrayOnTheBus(world.env["DBUS_SESSION_BUS_ADDRESS"])
            program = self.start(world)
            wait_until(lambda: tray.items, "the item in the tray", SOON)
            bus.kill()
            tray.close()
            time.sleep(6)
            self.assertTrue(program.is_running())
            world.start_session_bus()
            tray = TrayOnTheBus(world.env["DBUS_SESSION_BUS_ADDRESS"])
            wait_until(lambda: tray.items, "the item in the new tray", SOON)
            self.assert_counts_and_ends(world, program)
            tray.close()

    def test_a_bus_of_screen_readers_that_is_stopped(self):
        for before in (True, False):
            with self.subTest(before_the_start=before), World(f"silent-reader-{before}", accessibility=True) as world:
                address = world.screen.text_property(0, "AT_SPI_BUS")
                bus = self.process_at(re.match(r"unix:path=([^,]+)", address).group(1))
                try:
                    if before:
                        os.kill(bus, signal.SIGSTOP)
                    program = self.start(world)
                    if not before:
                        wait_until(lambda: world.accessibility.knows(program.pid), "the program on the bus", SOON)
                    os.kill(bus, signal.SIGSTOP)
                    self.assert_counts_and_ends(world, program)
                finally:
                    os.kill(bus, signal.SIGCONT)

    def test_a_window_manager_that_is_stopped(self):
        with World("silent-manager") as world:
            program = self.start(world)
            world.window_manager.send(signal.SIGSTOP)
            try:
                # The second start has the first one open the statistics window.
                self.assertEqual(world.start_program(wait_for_clock=False).wait(SOON), 0)
                self.assert_counts_and_ends(world, program)
            finally:
                world.window_manager.send(signal.SIGCONT)

    def test_an_application_that_hangs_and_owns_the_clipboard(self):
        with World("silent-clipboard", accessibility=True) as world:
            world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
            program = world.start_program()
            window = StatisticsWindow(world, program)
            window.open()
            window.select(DETAILS)
            window.click("text", "buscar")
            world.screen.hold_selection("CLIPBOARD")
            world.screen.hold_selection("PRIMARY")
            # Each of them would wait for the owner for ten seconds.
            time.sleep(1.2)
            world.input.key("ctrl+v")
            time.sleep(1.2)
            window.click("text", "buscar", MIDDLE)
            time.sleep(1.2)
            ended = world.stop_program(program)
            Elapsed.between(program.began, ended).assert_counted(world.home.day_seconds())

    def test_a_clipboard_manager_that_hangs_at_the_end(self):
        """It is asked to keep what was copied here, for some seconds. By then a successor can start, on the whole record."""
        warning = "Unable to receive an event from the clipboard manager"
        with World("silent-keeper", accessibility=True, expected_warnings=[warning]) as world:
            program = world.start_program()
            window = StatisticsWindow(world, program)
            window.open()
            window.select(DETAILS)
            window.click("text", "buscar")
            world.input.type("editor")
            world.input.key("ctrl+a", "ctrl+c")
            wait_until(lambda: world.screen.selection_owner("CLIPBOARD") != X.NONE, "something copied", SOON)
            world.screen.hold_selection("CLIPBOARD_MANAGER")
            asked = EventTime.of(lambda: program.send(signal.SIGTERM))
            wait_until(lambda: world.clock() is None, "the clock to go", SOON)
            successor = world.start_program()
            ended = world.stop_program(successor)
            self.assertEqual(program.wait(SOON), 0)
            self.assertRegex(program.log(), warning)
            both = Elapsed.between(program.began, asked) + Elapsed.between(successor.began, ended)
            both.assert_counted(world.home.day_seconds())

    def test_a_session_manager_and_an_input_method_that_say_nothing(self):
        with World("silent-others") as world:
            manager = SilentBus(world.folder / "ice")
            method = SilentBus(world.folder / "ibus")
            folder = world.home.path / ".config/ibus/bus"
            folder.mkdir(parents=True)
            number = world.display.lstrip(":")
            (folder / f"{MACHINE.read_text(encoding='ascii').strip()}-unix-{number}").write_text(
                f"IBUS_ADDRESS=unix:path={world.folder}/ibus\nIBUS_DAEMON_PID={os.getpid()}\n", encoding="utf-8"
            )
            world.env["SESSION_MANAGER"] = f"local/here:{world.folder}/ice"
            world.env["QT_IM_MODULE"] = "ibus"
            self.assert_counts_and_ends(world, self.start(world))
            self.assertGreater(manager.heard, 0)
            self.assertGreater(method.heard, 0)
            manager.close()
            method.close()

    @staticmethod
    def process_at(path):
        """Who listens there."""
        with socket.socket(socket.AF_UNIX) as client:
            client.connect(path)
            credentials = client.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12)
        return int.from_bytes(credentials[:4], "little")


if __name__ == "__main__":
    unittest.main()
