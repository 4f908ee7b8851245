"""Takes pictures of the program on the record of the demonstration. Started by tools/take-pictures."""

import argparse
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tests/e2e"))

from PIL import Image, ImageOps  # noqa: E402
from Xlib import X, Xatom, display  # noqa: E402

from harness import menu as rows  # noqa: E402
from harness.local_time import zone_where_it_is  # noqa: E402
from harness.menu import Menu  # noqa: E402
from harness.screen import Rectangle  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.world import World  # noqa: E402

TABS = ("overview", "goals", "details", "timesheet", "projects", "system", "disk", "claude")
OF_THE_MACHINE = "system", "disk"
WIDE, LEAST = (1360, 1000), (820, 560)
SCREEN = (1480, 1100)
AFTERNOON = 16  # o'clock in the pictures, so that today has something to show
# What takes hours to happen, or would show the machine that takes the pictures: as the galleries of the tests paint it.
PAINTED = {
    "wellbeing/views/break_gallery": {"ochre": "break-ochre"},
    "wellbeing/views/games_gallery": {"ochre": "games-ochre"},
    "system/views/system_gallery": {"system-1139-ochre-used": "system-ochre", "disk-1139-ochre-used": "disk-ochre"},
}
# Only their middle: behind the alert is no real window.
CROPPED = {"break-ochre": (700, 640)}
GROUND = ("#3c5a6c", "#26394a")
CLOCK_ORIGIN = (40, 40)
CLOCK_MARGIN = 40
WIDGETS = (770, 614)  # what they cover, with a margin

# What stands in the documents: the first theme with all tabs of the made-up record, the others with the first tab.
DOCUMENTED = [(rows.THEMES[0], tab) for tab in TABS if tab not in OF_THE_MACHINE] + [(theme, TABS[0]) for theme in rows.THEMES[1:]]


def paint_desktop(name):
    """A ground of two shades on the desktop, where window managers and compositors look for it."""
    connection = display.Display(name)
    screen = connection.screen()
    width, height = screen.width_in_pixels, screen.height_in_pixels
    shades = Image.linear_gradient("L").resize((width, height))
    picture = ImageOps.colorize(shades, GROUND[0], GROUND[1])
    pixmap = screen.root.create_pixmap(width, height, screen.root_depth)
    pixmap.put_pil_image(pixmap.create_gc(), 0, 0, picture)
    for property_name in ("_XROOTPMAP_ID", "ESETROOT_PMAP_ID"):
        screen.root.change_property(connection.intern_atom(property_name), Xatom.PIXMAP, 32, [pixmap.id])
    screen.root.change_attributes(background_pixmap=pixmap)
    screen.root.clear_area()
    connection.set_close_down_mode(X.RetainPermanent)
    connection.sync()
    connection.close()


class Studio:
    """A desktop with a demonstration's home on it."""

    def __init__(self, makers):
        self._makers = Path(makers)
        self.world = World("studio", size=SCREEN)

    def __enter__(self):
        world = self.world.__enter__()
        world.env["TZ"] = zone_where_it_is(AFTERNOON)
        paint_desktop(world.display)
        world.start_compositor()
        icons = world.folder / "icons"
        self._make("draw_demo_icons", icons, QT_QPA_PLATFORM="offscreen")
        self._make("make_demo_record", world.home.path, icons)
        # They are in a picture of their own.
        self._widgets = world.home.data / "widgets.json"
        self._all_widgets = self._widgets.read_text()
        self._widgets.unlink()
        return self

    def __exit__(self, *what):
        return self.world.__exit__(*what)

    def _make(self, maker, *arguments, **variables):
        subprocess.run([self._makers / maker, *arguments], env={**self.world.env, **variables}, check=True)

    def start(self, **settings):
        settings.setdefault("sizeScale", 1.0)
        # No bubble is to lie in the picture: what today's goal could say has been said.
        today = max(self.world.home.read("today.json"))
        said = {f"notif-{name}-{today}": "true" for name in ("goal80", "goal100")}
        self.world.home.write_settings(**settings, **said, idleThresholdSeconds=1800)
        return self.world.start_program(wait_for_clock=False)

    def stop(self, program):
        self.world.stop_program(program)
        wait_until(lambda: not self.world.screen.window(window_class="tidewatch"), "the program to go")

    def statistics(self, theme, size):
        """The program with its statistics open at that size, and their window."""
        program = self.start(activeThemeID=theme, windowVisible="false")
        wait_until(Menu(self.world).tray_icon, "the tray icon")
        self.world.start_program(wait_for_clock=False).wait(5)
        window = wait_until(self.world.statistics, "the statistics window")
        self.world.input.focus(window.id)
        self.world.input.resize(window.id, *size)
        self.world.input.move(5, 5)
        wait_until(lambda: self._shown_at(size), f"a window of {size}")
        return program

    def _shown_at(self, size):
        frame = self.world.statistics().frame
        return (frame.width, frame.height) == size

    def picture_of_tab(self, tab):
        self.world.input.key(f"ctrl+{TABS.index(tab) + 1}")
        time.sleep(1.5)
        return self.world.screen.grab(self.world.statistics().frame)

    def picture_of_widgets(self, theme):
        self._widgets.write_text(self._all_widgets)
        program = self.start(activeThemeID=theme, windowVisible="false")
        time.sleep(6)
        picture = self.world.screen.grab(Rectangle(0, 0, *WIDGETS))
        self.stop(program)
        self._widgets.unlink()
        return picture

    def picture_of_clock(self):
        """The clock, its menu, and the themes in it."""
        program = self.start(activeThemeID=rows.THEMES[0], windowOriginX=CLOCK_ORIGIN[0], windowOriginY=CLOCK_ORIGIN[1])
        menu = Menu(self.world)
        time.sleep(3)
        menu.open_from_clock()
        menu.go_down(rows.THEME + 1)
        self.world.input.key("Right")
        wait_until(lambda: len(menu.popups()) == 2, "the themes")
        time.sleep(0.5)
        frames = [popup.frame for popup in menu.popups()]
        picture = self.world.screen.grab(
            Rectangle(
                0,
                0,
                max(frame.right for frame in frames) + CLOCK_MARGIN,
                max(frame.bottom for frame in frames) + CLOCK_MARGIN,
            )
        )
        menu.close()
        self.stop(program)
        return picture


def save(picture, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    picture.save(path, optimize=True)
    print(path)


def middle(picture, size):
    left, top = ((whole - part) // 2 for whole, part in zip(picture.size, size))
    return picture.crop((left, top, left + size[0], top + size[1]))


def paint_documented(galleries, folder):
    for gallery, pictures in PAINTED.items():
        with tempfile.TemporaryDirectory() as painted:
            subprocess.run(
                [galleries / gallery, painted, rows.THEMES[0]],
                env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
                stdout=subprocess.DEVNULL,
                check=True,
            )
            for name, documented in pictures.items():
                picture = Image.open(Path(painted) / f"{name}.png")
                save(middle(picture, CROPPED.get(documented, picture.size)), folder / f"{documented}.png")


def take_documented(studio, folder):
    save(studio.picture_of_clock(), folder / "clock.png")
    save(studio.picture_of_widgets(rows.THEMES[0]), folder / "widgets.png")
    for theme in rows.THEMES:
        program = studio.statistics(theme, WIDE)
        for documented, tab in DOCUMENTED:
            if documented == theme:
                save(studio.picture_of_tab(tab), folder / f"{tab}-{theme}.png")
        studio.stop(program)


def take_all(studio, folder):
    for theme in rows.THEMES:
        save(studio.picture_of_widgets(theme), folder / f"{theme}-widgets.png")
        for size in (WIDE, LEAST):
            program = studio.statistics(theme, size)
            for tab in TABS:
                save(studio.picture_of_tab(tab), folder / f"{theme}-{tab}-{size[0]}.png")
            studio.stop(program)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("makers", help="where the makers of the demonstration are")
    parser.add_argument("galleries", type=Path, help="where the galleries of the tests are")
    parser.add_argument("documents", type=Path, help="where the pictures of the documents go")
    parser.add_argument("--all", type=Path, metavar="DIR")
    arguments = parser.parse_args()
    os.environ.pop("DISPLAY", None)
    with Studio(arguments.makers) as studio:
        if arguments.all:
            take_all(studio, arguments.all)
        else:
            take_documented(studio, arguments.documents)
            paint_documented(arguments.galleries, arguments.documents)


if __name__ == "__main__":
    main()
