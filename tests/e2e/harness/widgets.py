"""The widgets on the desktop: what they are called, where a test puts them, how they are switched on and off."""

from harness import menu as rows
from harness.menu import Menu
from harness.screen import Rectangle
from harness.waiting import wait_until

# Name in the file, title and size, in the order of the menu.
WIDGETS = (
    ("productivity", "Productividad", (214, 150)),
    ("system", "Sistema", (214, 176)),
    ("streak", "Racha & Análisis", (226, 138)),
    ("goals", "Metas & Estrellas", (214, 152)),
    ("speed", "Test de Velocidad", (196, 196)),
    ("project", "Proyecto Activo", (206, 92)),
    ("topApps", "Top Apps", (214, 176)),
    ("arcade", "Mini-Arcade", (214, 374)),
)
NAMES = tuple(name for name, _, _ in WIDGETS)
TITLES = {name: title for name, title, _ in WIDGETS}
SIZES = {name: size for name, _, size in WIDGETS}

# Side by side, beside the terminal.
PLACES = {
    "productivity": (450, 20), "system": (690, 20), "streak": (930, 20),
    "goals": (450, 220), "speed": (690, 220), "project": (930, 220),
    "topApps": (930, 380), "arcade": (450, 400),
}


def all_placed():
    """The content of the widgets' file with all of them visible in these places."""
    return {name: {"visible": True, "x": x, "y": y, "scale": 1} for name, (x, y) in PLACES.items()}


class Widgets:
    def __init__(self, world):
        self._world = world

    def window(self, name):
        """The widget's window, or None while it is hidden."""
        found = self._world.screen.window(title=TITLES[name])
        return found if found and found.id in self._world.screen.managed() else None

    def panel(self, name):
        """Where the widget is, without the margin of its shadow; None while it is hidden."""
        found = self.window(name)
        if found is None:
            return None
        frame, (width, height) = found.frame, SIZES[name]
        return Rectangle(frame.x + (frame.width - width) // 2, frame.y + (frame.height - height) // 2, width, height)

    def place(self, name):
        there = self.panel(name)
        return there and (there.x, there.y)

    def wait_for_places(self, places):
        for name, expected in places.items():
            wait_until(lambda: self.place(name) == expected, f"{name} at {expected}")

    def toggle(self, name):
        """By the menu, as the clock opens it: that of a tray may be drawn by the tray, far behind the keys."""
        shown = self.window(name) is not None
        menu, user = Menu(self._world), self._world.input
        menu.open_from_clock()
        menu.go_down(1)
        user.key(*["Down"] * rows.WIDGETS, "Right")
        wait_until(lambda: len(menu.popups()) > 1, "the submenu")
        user.key(*["Down"] * NAMES.index(name), "Return")
        wait_until(lambda: (self.window(name) is not None) != shown, f"{name} to be toggled")
        wait_until(lambda: not menu.popups(), "the menu to close")
