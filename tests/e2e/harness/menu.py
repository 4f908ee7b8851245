"""The program's tray icon and its menu, operated like a user does."""

import sys
import time
from dataclasses import dataclass

from harness.screen import Rectangle, difference
from harness.user_input import LEFT, RIGHT
from harness.waiting import repeat_until, wait_until
from harness.world import CLOCK_CLASS

# The rows that can be chosen, from the top.
(
    THEME, SIZE, IDLE, DAY_START, PROJECT, WIDGETS, TOGGLE_VISIBLE, RESET, STATISTICS, REVEAL, EXPORT_DAY, LOGIN_ITEM, QUIT,
) = range(13)

THEMES = ("ochre", "editorial", "minimal", "hacker", "liquid")
SIZES = (0.1, 0.25, 0.5, 0.75, 1.0, 5.0)
IDLE_SECONDS = (60, 180, 300, 600, 900, 1800)
DAY_STARTS = (0, 4, 5, 6, 7, 8)

# The least height of an icon in pixels: less is its shadow, or the panel itself.
LEAST_ICON = 10
SETTLING_SECONDS = 0.3
DRAWN_BEFORE_READY_SECONDS = 1.5


@dataclass(frozen=True)
class DrawnIcon:
    """An icon without a window of its own."""

    frame: Rectangle
    id: int = 0


class Menu:
    def __init__(self, world):
        self._world = world

    def tray_icon(self):
        """The icon's window inside the tray, or what the tray draws of it, or None."""
        kind = self._world.desktop.tray
        tray = self._world.screen.window(window_class=kind.window_class)
        if tray is None:
            return None
        if not kind.embeds:
            return self._drawn_icon(self._world.panel_frame)
        for window in self._world.screen.windows():
            if window.window_class == CLOCK_CLASS and tray.frame.contains(*window.frame.centre):
                return window
        return None

    def _drawn_icon(self, panel):
        """What was not on the panel before the program started."""
        found = difference(self._world.panel_without_icon, self._world.screen.grab(panel))
        if found is None or found.height < LEAST_ICON:
            return None
        return DrawnIcon(Rectangle(panel.x + found.x, panel.y + found.y, found.width, found.height))

    def wait_for_icon(self):
        """The icon, ready for a click."""
        icon = wait_until(self.tray_icon, "the tray icon")
        if not self._world.desktop.tray.embeds:
            # A tray draws an icon before it has asked for all that it needs for a click.
            time.sleep(DRAWN_BEFORE_READY_SECONDS)
        return icon

    def popups(self):
        """The open menus' windows, the outermost first."""
        icon = self._world.desktop.tray and self.tray_icon()
        return [
            window
            for window in self._world.screen.windows()
            if window.unmanaged
            and self._can_be_ours(window)
            and (icon is None or window.id != icon.id)
            and window.frame.height > 30
        ]

    def _can_be_ours(self, window):
        if window.window_class == CLOCK_CLASS:
            return not self._world.screen.is_tooltip(window.id)
        tray = self._world.desktop.tray
        return tray is not None and not tray.embeds and self._world.screen.is_menu(window.id)

    def open_from_tray(self, button=RIGHT):
        icon = self.wait_for_icon()
        return self._opened_by(lambda: self._world.input.click(*icon.frame.centre, button))

    def open_from_clock(self):
        clock = wait_until(self._world.clock, "the clock")
        return self._opened_by(lambda: self._world.input.click(*clock.frame.centre, RIGHT))

    def _opened_by(self, click):
        before = self._world.screen.grab()
        popup = repeat_until(click, self.popups, "the menu")[0]
        # A compositor shows a window some time after it is there.
        frame = popup.frame
        behind = before.crop((frame.x, frame.y, frame.right, frame.bottom))

        def is_drawn():
            drawn = difference(behind, self._picture(popup))
            return drawn is not None and drawn.height > frame.height * 3 // 4

        wait_until(is_drawn, "the menu's rows")
        self._settled_picture(popup)
        return popup

    def _settled_picture(self, popup):
        """The menu as soon as its picture stands still."""
        last = [self._picture(popup)]

        def stands_still():
            before = last[0]
            last[0] = self._picture(popup)
            return difference(before, last[0]) is None

        time.sleep(SETTLING_SECONDS)
        wait_until(stands_still, "the menu to be drawn", every=SETTLING_SECONDS)
        return last[0]

    def _picture(self, popup):
        return self._world.screen.grab(popup.frame)

    def go_down(self, rows):
        """Highlights that many rows after one another. A key that comes before the menu has the keyboard is lost, and a
        tray that draws the menu may be far behind the keys."""
        popup = self.popups()[0]
        tray = self._world.desktop.tray
        watched = 1 if tray is None or tray.embeds else rows
        for _ in range(watched):
            before = self._picture(popup)
            repeat_until(
                lambda: self._world.input.key("Down"),
                lambda: difference(before, self._picture(popup)) is not None,
                "the highlight to move",
            )
        if rows > watched:
            self._world.input.key(*["Down"] * (rows - watched))

    def close(self):
        for _ in range(3):
            if not self.popups():
                return
            self._world.input.key("Escape")
            time.sleep(0.2)
        wait_until(lambda: not self.popups(), "the menu to close")
        time.sleep(SETTLING_SECONDS)

    def choose(self, row, inner_row=None):
        """Chooses a row of the open menu, or a row of its submenu, with the keyboard."""
        user = self._world.input
        self.go_down(row + 1)
        if inner_row is None:
            user.key("Return")
        else:
            before = len(self.popups())
            user.key("Right")
            wait_until(lambda: len(self.popups()) > before, "the submenu")
            if inner_row:
                user.key(*["Down"] * inner_row)
            user.key("Return")
        wait_until(lambda: not self.popups(), "the menu to close")

    def row_centre(self, popup, row):
        """The middle of a row of the open menu on the screen, from its highlight by keyboard."""
        plain = self._settled_picture(popup)
        self.go_down(row + 1)
        lit = difference(_left_part(plain), _left_part(self._settled_picture(popup)))
        if lit is None:
            raise AssertionError(f"row {row} does not light up")
        return popup.frame.x + popup.frame.width // 2, popup.frame.y + lit.y + lit.height // 2

    def click_row(self, popup, row):
        """Chooses a row of the open menu with the mouse."""
        place = self.row_centre(popup, row)
        self._world.input.click(*place, LEFT)

    def click_row_until(self, open_menu, row, condition, what):
        """The same in the menu that `open_menu()` opens, by a user who tries again where a busy tray lost the click."""

        def click():
            if self.popups():
                self._world.screenshot("lost-click")
                print(f"{what}: the menu is still open, trying again", file=sys.stderr)
            self.close()
            self.click_row(open_menu(), row)

        repeat_until(click, condition, what)


def _left_part(picture):
    """Where a highlight shows, but never a submenu that is about to disappear."""
    return picture.crop((0, 0, picture.width // 3, picture.height))
