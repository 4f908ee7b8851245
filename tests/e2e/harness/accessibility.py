"""The accessibility bus: what a screen reader sees of the program, and the actions it offers."""

from dataclasses import dataclass, field

from gi.repository import Gio, GLib

from harness.screen import Rectangle
from harness.waiting import DEFAULT_TIMEOUT, wait_until

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_ROOT = "/org/a11y/atspi/accessible/root"
_SCREEN_COORDINATES = 0
_CALL_MILLISECONDS = 60_000

# Bits of the state, by their numbers on the bus.
_STATES = {
    4: "checked",
    8: "enabled",
    11: "focusable",
    12: "focused",
    23: "selected",
    25: "showing",
    41: "checkable",
}


class Gone(Exception):
    """The queried object no longer exists."""


@dataclass
class Node:
    """A snapshot of one accessible object."""

    bus: "Accessibility" = field(repr=False)
    owner: str = field(repr=False)
    path: str = field(repr=False)
    role: str
    name: str
    description: str
    states: frozenset
    children: list = field(repr=False, default_factory=list)

    def all(self):
        """It and all descendants in reading order, including those out of view."""
        yield self
        for child in self.children:
            yield from child.all()

    def find(self, role=None, name=None):
        """All descendants with this role and exact name."""
        return [
            node
            for node in self.all()
            if (role is None or node.role == role) and (name is None or node.name == name)
        ]

    def names(self, role=None):
        return [node.name for node in self.find(role) if node.name]

    def texts(self):
        """All texts of it and its descendants."""
        return [text for node in self.all() for text in (node.name, node.description) if text]

    def frame(self):
        x, y, width, height = self.bus.call(
            self, "org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (_SCREEN_COORDINATES,))
        )[0]
        return Rectangle(x, y, width, height)

    def actions(self):
        return [action[0] for action in self.bus.call(self, "org.a11y.atspi.Action", "GetActions")[0]]

    def act(self, name):
        """Performs the action with this name."""
        number = GLib.Variant("(i)", (self.actions().index(name),))
        self.bus.call(self, "org.a11y.atspi.Action", "DoAction", number)

    def value(self):
        """(current, min, max) of an object with a value."""
        return tuple(
            self.bus.property(self, "org.a11y.atspi.Value", name)
            for name in ("CurrentValue", "MinimumValue", "MaximumValue")
        )

    def tree(self, depth=0):
        """Human-readable, for failures."""
        about = f" ({self.description})" if self.description else ""
        states = " ".join(sorted(self.states - {"enabled", "showing"}))
        lines = [f"{'  ' * depth}{self.role}: {self.name!r}{about} {states}".rstrip()]
        return "\n".join(lines + [child.tree(depth + 1) for child in self.children])


class Accessibility:
    """A screen reader's connection to the accessibility bus of one desktop."""

    def __init__(self, session_address):
        session = self._connect(session_address)
        reply = session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
            Gio.DBusCallFlags.NONE, _CALL_MILLISECONDS, None,
        )
        session.close_sync(None)
        self._bus = self._connect(reply.unpack()[0])

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        connection.set_exit_on_close(False)
        return connection

    def close(self):
        self._bus.close_sync(None)

    def knows(self, pid):
        """Whether a process is registered on the bus."""
        try:
            applications = self._call("org.a11y.atspi.Registry", _ROOT, _ACCESSIBLE, "GetChildren")[0]
            return pid in [self._process(owner) for owner, _ in applications]
        except Gone:
            return False

    def window(self, pid, title):
        """The process's window with this title and its descendants, or None."""
        try:
            for owner, path in self._call("org.a11y.atspi.Registry", _ROOT, _ACCESSIBLE, "GetChildren")[0]:
                if self._process(owner) != pid:
                    continue
                for top in self._call(owner, path, _ACCESSIBLE, "GetChildren")[0]:
                    if self._property(*top, _ACCESSIBLE, "Name") == title:
                        return self._read(*top)
        except Gone:
            pass  # the next look will find it in one state
        return None

    def call(self, node, interface, method, arguments=None):
        return self._call(node.owner, node.path, interface, method, arguments)

    def property(self, node, interface, name):
        return self._property(node.owner, node.path, interface, name)

    def _read(self, owner, path):
        states = self._states(owner, path)
        node = Node(
            self, owner, path,
            self._call(owner, path, _ACCESSIBLE, "GetRoleName")[0],
            self._property(owner, path, _ACCESSIBLE, "Name"),
            self._property(owner, path, _ACCESSIBLE, "Description"),
            states,
        )
        for child_owner, child_path in self._call(owner, path, _ACCESSIBLE, "GetChildren")[0]:
            node.children.append(self._read(child_owner, child_path))
        return node

    def _states(self, owner, path):
        low, high = self._call(owner, path, _ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return frozenset(name for bit, name in _STATES.items() if bits >> bit & 1)

    def _process(self, owner):
        arguments = GLib.Variant("(s)", (owner,))
        bus = "org.freedesktop.DBus"
        return self._call(bus, "/org/freedesktop/DBus", bus, "GetConnectionUnixProcessID", arguments)[0]

    def _property(self, owner, path, interface, name):
        arguments = GLib.Variant("(ss)", (interface, name))
        return self._call(owner, path, "org.freedesktop.DBus.Properties", "Get", arguments)[0]

    def _call(self, owner, path, interface, method, arguments=None):
        try:
            reply = self._bus.call_sync(
                owner, path, interface, method, arguments, None,
                Gio.DBusCallFlags.NONE, _CALL_MILLISECONDS, None,
            )
        except GLib.Error as error:
            raise Gone(f"{interface}.{method} of {path}: {error.message}") from None
        return reply.unpack()


def wait_for_window(bus, pid, title, condition=lambda window: True, what="the window on the bus", seconds=DEFAULT_TIMEOUT):
    """Waits for the window to satisfy `condition(window)`; the failure shows what was found instead."""
    last = []

    def look():
        window = bus.window(pid, title)
        last[:] = [window] if window else []
        return window if window and condition(window) else None

    try:
        return wait_until(look, what, seconds, every=0.1)
    except AssertionError as failure:
        raise AssertionError(f"{failure}; the bus says:\n{last[0].tree() if last else 'nothing'}") from None
