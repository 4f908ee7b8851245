"""The menu that the program offers on the session bus (com.canonical.dbusmenu), read as by a tray that draws it itself."""

import io
import re
import time
from dataclasses import dataclass

from gi.repository import Gio, GLib
from PIL import Image

TIMEOUT_MILLISECONDS = 60000
ITEM = ("/StatusNotifierItem", "org.kde.StatusNotifierItem")
MENU = "com.canonical.dbusmenu"
ALL_LEVELS = -1
WHOLE_MENU = 0


@dataclass(frozen=True)
class Row:
    id: int
    label: str
    """As a tray shows it: an underscore marks the next character, two are one."""
    separates: bool
    enabled: bool
    checked: bool
    key: tuple
    swatch: tuple | None
    """The colour of the middle of its icon."""
    rows: tuple

    @staticmethod
    def read(node):
        number, properties, children = node
        return Row(
            number,
            re.sub("_(_?)", r"\1", properties.get("label", "")),
            properties.get("type") == "separator",
            properties.get("enabled", True),
            properties.get("toggle-type") == "checkmark" and properties.get("toggle-state") == 1,
            tuple(tuple(combination) for combination in properties.get("shortcut", ())),
            _middle(properties["icon-data"]) if "icon-data" in properties else None,
            tuple(Row.read(child) for child in children),
        )


def _middle(data):
    picture = Image.open(io.BytesIO(bytes(data))).convert("RGB")
    return picture.getpixel((picture.width // 2, picture.height // 2))


class OfferedMenu:
    """Of the item that `service` has registered with a tray; to be closed."""

    def __init__(self, address, service):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self._bus.set_exit_on_close(False)
        self._service = service
        path, interface = ITEM
        answer = self._call(path, "org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (interface, "Menu")))
        self._path = answer[0]

    def open(self):
        """The rows at this moment; the tray shows them."""
        self._call(self._path, MENU, "AboutToShow", GLib.Variant("(i)", (WHOLE_MENU,)))
        self._tell(WHOLE_MENU, "opened")
        _, root = self._call(self._path, MENU, "GetLayout", GLib.Variant("(iias)", (WHOLE_MENU, ALL_LEVELS, [])))
        return Row.read(root).rows

    def click(self, row):
        self._tell(row.id, "clicked")
        self.dismiss()

    def dismiss(self):
        self._tell(WHOLE_MENU, "closed")

    def close(self):
        self._bus.close_sync(None)

    def _tell(self, number, event):
        arguments = GLib.Variant("(isvu)", (number, event, GLib.Variant("s", ""), int(time.time()) & 0xFFFFFFFF))
        self._call(self._path, MENU, "Event", arguments)

    def _call(self, path, interface, method, arguments):
        return self._bus.call_sync(
            self._service, path, interface, method, arguments, None, 0, TIMEOUT_MILLISECONDS, None
        ).unpack()
