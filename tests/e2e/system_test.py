"""The machine in the statistics window: its figures against the machine's own, and what its buttons do."""

import os
import re
import subprocess
import time
import unittest
from contextlib import contextmanager
from pathlib import Path

from harness.statistics_window import DISK, SYSTEM, StatisticsWindow
from harness.waiting import stays, wait_until
from harness.world import World

MEGABYTE = 1024 * 1024
GIGABYTE = 1024 * MEGABYTE
UNITS = {"B": 1, "KB": 1024, "MB": MEGABYTE, "GB": GIGABYTE, "TB": 1024 * GIGABYTE}
ROWS = "Disco", "Memoria", "CPU", "Red", "Dispositivos conectados", "Test Speed"
YEAR = 365 * 86400


@contextmanager
def running(name, environment=None):
    with World(f"system-{name}", accessibility=True) as world:
        world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
        program = world.start_program(environment=environment)
        yield world, StatisticsWindow(world, program)


def memory():
    """/proc/meminfo in bytes."""
    with open("/proc/meminfo", encoding="ascii") as file:
        return {line.split(":")[0]: int(line.split()[1]) * 1024 for line in file}


def volumes():
    """(total, free) in bytes of what df knows."""
    lines = subprocess.run(["df", "-B1", "--output=size,avail"], capture_output=True, text=True, check=False).stdout
    return [tuple(map(int, line.split())) for line in lines.splitlines()[1:] if "-" not in line]


def size(text):
    """Bytes of "1.5 GB"."""
    number, unit = text.split()
    return float(number) * UNITS[unit]


def row_of(read, label):
    """The name of the overview's row with this label; None without one."""
    return next((name for name in read.names() if name.startswith(label + ": ")), None)


def press_row(world, window, label):
    """Clicks the overview's row with this label, whatever its figure is at the moment."""
    read = window.wait_for(lambda read: row_of(read, label), f"the row {label}")
    row = next(node for node in read.find("push button") if node.name.startswith(label + ": "))
    world.input.click(*row.frame().centre)


def figure(read, pattern):
    """What the pattern's group has matched of the first accessible name that it matches whole."""
    return next((found.group(1) for found in (re.fullmatch(pattern, name) for name in read.names()) if found), None)


class Figures(unittest.TestCase):
    """One window for all tests, with the tab and the sidebar."""

    @classmethod
    def setUpClass(cls):
        cls.world, cls.window = cls.enterClassContext(running("figures"))
        cls.window.open()
        cls.window.select(SYSTEM)

    def agreed(self, condition, what):
        """Waits until the window agrees with the machine: its figures are two seconds old at most."""
        return self.window.wait_for(condition, what)

    def test_the_memory_is_that_of_the_kernel(self):
        def agrees(read):
            now = memory()
            shown = figure(read, r"(.+ GB de .+ GB)")
            if not shown:
                return False
            used, total = (size(part) for part in shown.split(" de "))
            used_now = now["MemTotal"] - now["MemAvailable"]
            return abs(total - now["MemTotal"]) < 0.06 * GIGABYTE and abs(used - used_now) < 0.3 * GIGABYTE

        self.agreed(agrees, "the used and the whole memory")

    def test_the_free_memory_and_the_swap_are_those_of_the_kernel(self):
        def agrees(read):
            now = memory()
            free, swap = figure(read, "libre: (.+)"), figure(read, "swap: (.+)")
            return (free and swap and abs(size(free) - now["MemFree"]) < 0.5 * GIGABYTE and
                    abs(size(swap) - (now["SwapTotal"] - now["SwapFree"])) < 0.1 * GIGABYTE)

        self.agreed(agrees, "the free memory and the swap")

    def test_the_sidebar_and_the_tab_tell_the_same_share_of_the_memory(self):
        def agrees(read):
            now = memory()
            expected = 100 * (now["MemTotal"] - now["MemAvailable"]) / now["MemTotal"]
            row = row_of(read, "Memoria")
            return row and abs(float(re.search(r"(\d+)%", row).group(1)) - expected) <= 3

        self.agreed(agrees, "the share of the memory")

    def test_the_volumes_are_those_of_df(self):
        known = volumes()
        read = self.agreed(lambda read: row_of(read, "Disco"), "the row of the disk")
        shown = [found for found in (re.search(r" usado, (.+) libres de (.+)$", name) for name in read.names()) if found]
        self.assertEqual(bool(shown), not read.find(None, "Sin volúmenes internos"))
        for volume in shown:
            free, total = size(volume.group(1)), size(volume.group(2))
            self.assertTrue(
                any(abs(total - size_) < 0.06 * size_ and abs(free - available) < max(0.06 * size_, 0.2 * GIGABYTE)
                    for size_, available in known), f"{volume.group(0)} is none of {known}")

    def test_a_busy_processor_is_seen_and_named(self):
        # Of one core, so that it is among the busiest whatever else runs.
        busy = subprocess.Popen(["/usr/bin/python3", "-c", "while True: pass"])
        try:
            press_row(self.world, self.window, "CPU")
            self.agreed(lambda read: re.match(r"python3(\.\d+)?: \d\d+%", "\n".join(
                name for name in read.names("list item") if name.startswith("python3"))), "the busy process")
            least = 100 // (2 * os.cpu_count())
            self.agreed(lambda read: int(figure(read, r"(\d+)% uso") or 0) > least, f"a load of more than {least}%")
        finally:
            busy.kill()
            busy.wait()
            self.window.click("push button", "Volver al resumen")

    def test_a_process_is_asked_to_quit_through_its_window(self):
        program = Path(__file__).parent / "harness/busy_window.py"
        visible, hidden = (self.world.start("/usr/bin/python3", "-B", program, "busy-window", kind)
                           for kind in ("visible", "hidden"))
        press_row(self.world, self.window, "CPU")

        # Again if the rows have moved under the pointer: the other one keeps the row.
        def asked():
            self.window.click("push button", "Forzar cierre de busy-window")
            return not visible.is_running()

        wait_until(asked, "the window to close")
        self.assertEqual(visible.wait(), 0)
        # It has no window, and nothing is forced.
        stays(hidden.is_running, "the process without a window")
        self.window.click("push button", "Volver al resumen")
        hidden.end(5)

    def test_every_row_opens_its_panel_and_the_keyboard_leads_back(self):
        for label, heading in zip(ROWS, ("VOLÚMENES INTERNOS", "TOP CONSUMERS", "TOP CONSUMERS", "TEST DE VELOCIDAD",
                                         "UNIDADES EXTERNAS", "TEST DE VELOCIDAD")):
            press_row(self.world, self.window, label)
            self.window.wait_for_text("heading", heading)
            self.world.screenshot(f"panel-{ROWS.index(label)}")
            self.world.input.key("Escape")
            self.agreed(lambda read: row_of(read, label), f"the overview after {label}")
        self.assertIsNotNone(self.world.statistics())

    def test_claude_and_the_games_have_their_places_in_the_overview(self):
        self.agreed(lambda read: read.find(None, "Mini-Arcade") and any(
            name.startswith("CLAUDE · ") for name in read.names()), "both cards")
        self.world.screenshot("system")


class Folding(unittest.TestCase):
    def test_in_a_narrow_window_the_sidebar_folds_and_a_button_brings_it_back(self):
        with running("folding") as (world, window):
            window.open()
            window.wait_for(lambda read: row_of(read, "CPU"), "the sidebar")
            world.input.resize(world.statistics().id, 900, 620)
            window.wait_for(lambda read: not row_of(read, "CPU"), "the sidebar to fold")
            world.screenshot("folded")
            window.click("push button", "Mostrar el panel")
            window.wait_for(lambda read: row_of(read, "CPU"), "the sidebar above the tab")
            world.screenshot("opened")
            world.input.key("Escape")
            window.wait_for(lambda read: not row_of(read, "CPU"), "the sidebar to fold again")
            self.assertIsNotNone(world.statistics())
            world.input.resize(world.statistics().id, 1200, 700)
            window.wait_for(lambda read: row_of(read, "CPU"), "the sidebar beside the tab")


class Network(unittest.TestCase):
    def test_a_name_server_that_stays_silent_keeps_neither_the_test_nor_the_program_from_ending(self):
        silent = {"LD_PRELOAD": os.environ["TIDEWATCH_HANGING_LOOKUP"]}
        with running("silent-server", silent) as (world, window):
            window.open()
            press_row(world, window, "Red")
            window.click("push button", "Probar")
            window.click("push button", "Detener")
            window.click("push button", "Probar")
            window.wait_for_text("push button", "Detener")
            world.stop_program(world.programs[0])


class Files(unittest.TestCase):
    def put(self, path, megabytes, age):
        """A file without content that was last opened so long ago."""
        path.parent.mkdir(parents=True, exist_ok=True)
        with open(path, "wb") as file:
            file.truncate(megabytes * MEGABYTE)
        os.utime(path, (time.time() - age, time.time() - age))

    def test_a_forgotten_file_is_found_and_goes_to_the_trash_after_a_yes(self):
        with running("files") as (world, window):
            home = world.home.path
            (home / ".config").mkdir(parents=True, exist_ok=True)
            (home / ".config/user-dirs.dirs").write_text('XDG_DOWNLOAD_DIR="$HOME/Bajadas"\n', encoding="utf-8")
            self.put(home / "Bajadas/viejo.iso", 70, 2 * YEAR)
            self.put(home / "Bajadas/Fotos/nuevo.raw", 300, 86400)
            window.open()
            window.select(DISK)
            window.wait_for_text(None, "Escanea Bajadas")
            world.screenshot("before")
            window.click("push button", "Analizar mi disco")
            window.wait_for_text("list item", "viejo.iso: 70.0 MB, hace 2año")
            window.wait_for_text("list item", "nuevo.raw: 300 MB, hace 1d")
            window.wait_for_text("list item", "Fotos: 300 MB")
            window.wait_for_text(None, "ANALIZADO: 370 MB")
            window.wait_for_text(None, "RECUPERABLE: 70.0 MB")
            world.screenshot("found")

            window.click("push button", "Mover a la Papelera: viejo.iso")
            self.answer(world, "Cancelar")
            self.assertTrue((home / "Bajadas/viejo.iso").exists())
            window.click("push button", "Mover a la Papelera: viejo.iso")
            self.answer(world, "Mover a la Papelera")
            wait_until(lambda: not (home / "Bajadas/viejo.iso").exists(), "the file to go")
            window.wait_for(lambda read: not read.find("list item", "viejo.iso: 70.0 MB, hace 2año"), "its row to go")
            self.assertTrue((home / ".local/share/Trash/files/viejo.iso").exists())

    @staticmethod
    def answer(world, button):
        """Presses the button of the question once it is there, and waits for it to go."""
        title = "¿Mover a la Papelera?"
        window = wait_until(lambda: world.screen.window(title=title), "the question")
        world.input.focus(window.id)
        world.screenshot(f"question-{button}")
        world.input.key("Return" if button != "Cancelar" else "Escape")
        wait_until(lambda: not world.screen.window(title=title), "the question to go")


if __name__ == "__main__":
    unittest.main()
