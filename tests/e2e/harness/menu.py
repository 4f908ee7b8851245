"""The program's tray icon and its menu, operated like a user does."""

import time

from harness.screen import difference
from harness.user_input import LEFT, RIGHT
from harness.waiting import becomes_true, wait_until
from harness.world import CLOCK_CLASS

# The rows that can be chosen, from the top.
(
    THEME, SIZE, IDLE, DAY_START, PROJECT, TOGGLE_VISIBLE, RESET, STATISTICS, REVEAL, EXPORT_DAY, LOGIN_ITEM, QUIT,
) = range(12)

THEMES = ("ochre", "editorial", "minimal", "hacker", "liquid")
SIZES = (0.1, 0.25, 0.5, 0.75, 1.0, 5.0)
IDLE_SECONDS = (60, 180, 300, 600, 900, 1800)
DAY_STARTS = (0, 4, 5, 6, 7, 8)

# Long enough for a busy machine to light up a row.
FIRST_KEY_SECONDS = 20


class Menu:
    def __init__(self, world):
        self._world = world

    def tray_icon(self):
        """The icon's window inside the tray, or None."""
        tray = self._world.screen.window(window_class="trayer")
        if tray is None:
            return None
        for window in self._world.screen.windows():
            if window.window_class == CLOCK_CLASS and tray.frame.contains(*window.frame.centre):
                return window
        return None

    def popups(self):
        """The open menus' windows, the outermost first."""
        icon = self.tray_icon()
        return [
            window
            for window in self._world.screen.windows()
            if window.window_class == CLOCK_CLASS
            and window.unmanaged
            and (icon is None or window.id != icon.id)
            and window.frame.height > 30
        ]

    def open_from_tray(self, button=RIGHT):
        icon = wait_until(self.tray_icon, "the tray icon")
        self._world.input.click(*icon.frame.centre, button)
        return self._opened()

    def open_from_clock(self):
        clock = wait_until(self._world.clock, "the clock")
        self._world.input.click(*clock.frame.centre, RIGHT)
        return self._opened()

    def _opened(self):
        popup = wait_until(self.popups, "the menu")[0]
        wait_until(lambda: any(low != high for low, high in self._picture(popup).getextrema()), "the menu's rows")
        time.sleep(0.3)
        return popup

    def _picture(self, popup):
        return self._world.screen.grab(popup.frame)

    def go_down(self, rows):
        """Highlights that many rows after one another. A key that comes before the menu has the keyboard is lost, so
        the first one is repeated until a row lights up."""
        popup = self.popups()[0]
        plain = self._picture(popup)

        def is_lit():
            return difference(plain, self._picture(popup)) is not None

        self._world.input.key("Down")
        while not becomes_true(is_lit, FIRST_KEY_SECONDS):
            self._world.input.key("Down")
        if rows > 1:
            self._world.input.key(*["Down"] * (rows - 1))

    def close(self):
        for _ in range(3):
            if not self.popups():
                return
            self._world.input.key("Escape")
            time.sleep(0.2)
        wait_until(lambda: not self.popups(), "the menu to close")

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

    def row_frame(self, popup, row):
        """The screen rectangle of a row of the open menu, from its highlight by keyboard."""
        plain = self._world.screen.grab(popup.frame)
        self.go_down(row + 1)
        time.sleep(0.2)
        lit = difference(plain, self._world.screen.grab(popup.frame))
        if lit is None:
            raise AssertionError(f"row {row} does not light up")
        return popup.frame.x + lit.x + lit.width // 2, popup.frame.y + lit.y + lit.height // 2

    def click_row(self, popup, row):
        """Chooses a row of the open menu with the mouse."""
        place = self.row_frame(popup, row)
        self._world.input.click(*place, LEFT)
