"""The screen: windows, their geometry and pixels."""

from dataclasses import dataclass

from PIL import Image, ImageChops
from Xlib import X, Xatom, display, error

from harness.waiting import becomes_true


@dataclass(frozen=True)
class Rectangle:
    """In pixels of the screen."""

    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2

    def contains(self, x, y):
        return self.x <= x < self.right and self.y <= y < self.bottom


@dataclass(frozen=True)
class Window:
    """A snapshot of a mapped window."""

    id: int
    title: str
    instance: str
    window_class: str
    unmanaged: bool
    frame: Rectangle


class Screen:
    """A read-only connection to the X server."""

    def __init__(self, name):
        self._display = display.Display(name)
        self._root = self._display.screen().root

    def close(self):
        try:
            self._display.close()
        except error.ConnectionClosedError:
            pass  # the server went first

    def windows(self):
        """All mapped windows with a class, from bottom to top, including nested ones."""
        found = []
        self._collect(self._root, found)
        return found

    def window(self, title=None, window_class=None):
        """The topmost mapped window with that title and class, or None."""
        for window in reversed(self.windows()):
            if title is not None and window.title != title:
                continue
            if window_class is not None and window.window_class != window_class:
                continue
            return window
        return None

    def disconnect_owner(self, window_id):
        """Ends the connection of the application that owns a window; its windows are destroyed, as after a crash."""
        self._display.create_resource_object("window", window_id).kill_client()
        self._display.sync()

    def _collect(self, parent, found):
        for child in parent.query_tree().children:
            try:
                if child.get_attributes().map_state != X.IsViewable:
                    continue
                described = self._describe(child)
                if described:
                    found.append(described)
                self._collect(child, found)
            except (error.BadWindow, error.BadDrawable):
                continue  # gone since the tree was read

    def _describe(self, window):
        names = window.get_wm_class()
        if not names:
            return None
        geometry = window.get_geometry()
        place = self._root.translate_coords(window, 0, 0)
        return Window(
            window.id,
            self._title(window),
            names[0],
            names[1],
            bool(window.get_attributes().override_redirect),
            Rectangle(place.x, place.y, geometry.width, geometry.height),
        )

    def _title(self, window):
        name = window.get_full_property(self._display.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
        if name is None:
            name = window.get_full_property(Xatom.WM_NAME, X.AnyPropertyType)
        if name is None:
            return ""
        return name.value.decode("utf-8", "replace") if isinstance(name.value, bytes) else str(name.value)

    def property(self, window_id, name):
        """The numbers of a window's property, or []. Window 0 is the root."""
        window = self._display.create_resource_object("window", window_id) if window_id else self._root
        value = window.get_full_property(self._display.intern_atom(name), X.AnyPropertyType)
        return [] if value is None else list(value.value)

    def text_property(self, window_id, name):
        """A window's property as a string, or "". Window 0 is the root."""
        return bytes(self.property(window_id, name)).decode("utf-8")

    def states(self, window_id):
        """The names in _NET_WM_STATE."""
        return {self._display.get_atom_name(atom) for atom in self.property(window_id, "_NET_WM_STATE")}

    def is_menu(self, window_id):
        """Whether a window says that it is one."""
        return bool(self._types(window_id) & {"_NET_WM_WINDOW_TYPE_POPUP_MENU", "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"})

    def is_tooltip(self, window_id):
        """Whether a window says that it is one."""
        return "_NET_WM_WINDOW_TYPE_TOOLTIP" in self._types(window_id)

    def _types(self, window_id):
        return {self._display.get_atom_name(atom) for atom in self.property(window_id, "_NET_WM_WINDOW_TYPE")}

    def active_window(self):
        """The id of the focused window, or 0."""
        return next(iter(self.property(0, "_NET_ACTIVE_WINDOW")), 0)

    def input_focus(self):
        """The id of the window that takes the keys; 0 or 1 for none of them or the one below the pointer."""
        focus = self._display.get_input_focus().focus
        return focus if isinstance(focus, int) else focus.id

    def managed(self):
        """The windows managed by the window manager, oldest first."""
        return self.property(0, "_NET_CLIENT_LIST")

    def stacking(self):
        """The ids of the managed windows, from bottom to top."""
        return self.property(0, "_NET_CLIENT_LIST_STACKING")

    def has_window_manager(self):
        return bool(self.property(0, "_NET_SUPPORTING_WM_CHECK"))

    def shows_new_windows(self):
        """Only for tests: whether a window that is mapped now is shown within a second; it is gone afterwards."""
        window = self._root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        window.map()
        try:
            return becomes_true(lambda: window.get_attributes().map_state == X.IsViewable, 1)
        finally:
            window.destroy()
            self._display.sync()

    def selection_owner(self, name):
        owner = self._display.get_selection_owner(self._display.intern_atom(name))
        return owner if owner == X.NONE else owner.id

    def hold_selection(self, name):
        """Only for tests: offers something for pasting and, like a hung application, never hands it over."""
        window = self._root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        window.set_selection_owner(self._display.intern_atom(name), X.CurrentTime)
        self._display.sync()

    def select_desktop(self, number):
        """Only for tests: asks the window manager, as a pager does."""
        self._ask_window_manager(self._root, "_NET_CURRENT_DESKTOP", [number, X.CurrentTime, 0, 0, 0])

    def add_states(self, window_id, *names):
        """Only for tests: asks the window manager, as the buttons of a frame do ("_NET_WM_STATE_FULLSCREEN"); two at
        most."""
        add, from_a_pager = 1, 2
        atoms = [self._display.intern_atom(name) for name in names]
        window = self._display.create_resource_object("window", window_id)
        self._ask_window_manager(window, "_NET_WM_STATE", [add, *(atoms + [0])[:2], from_a_pager, 0])

    def set_title(self, window_id, title):
        """Only for tests: gives a window a title, as its application does."""
        window = self._display.create_resource_object("window", window_id)
        utf8 = self._display.intern_atom("UTF8_STRING")
        window.change_property(self._display.intern_atom("_NET_WM_NAME"), utf8, 8, title.encode())
        self._display.flush()

    def open_desk(self, width, height):
        """Only for tests: a window like that in which a file manager draws the icons of the desktop; returns its id."""
        desk = self._root.create_window(
            0, 0, width, height, 0, X.CopyFromParent, background_pixel=0x2F4858, event_mask=X.ButtonPressMask
        )
        kind = self._display.intern_atom("_NET_WM_WINDOW_TYPE_DESKTOP")
        desk.change_property(self._display.intern_atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [kind])
        desk.set_wm_class("desk", "Desk")
        desk.map()
        self._display.flush()
        return desk.id

    def place(self, window_id, x, y, width, height):
        """Only for tests: requests a place and size for a window, as its application does."""
        window = self._display.create_resource_object("window", window_id)
        window.configure(x=x, y=y, width=width, height=height)
        self._display.flush()

    def _ask_window_manager(self, window, message_type, numbers):
        from Xlib.protocol import event

        message = event.ClientMessage(
            window=window, client_type=self._display.intern_atom(message_type), data=(32, numbers)
        )
        self._root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self._display.flush()

    def grab(self, area=None):
        """A picture of the screen, or of `area`, as an RGB image."""
        geometry = self._root.get_geometry()
        whole = Rectangle(0, 0, geometry.width, geometry.height)
        area = area or whole
        left, top = max(area.x, 0), max(area.y, 0)
        width, height = min(area.right, whole.right) - left, min(area.bottom, whole.bottom) - top
        raw = self._root.get_image(left, top, width, height, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombuffer("RGB", (width, height), raw.data, "raw", "BGRX", 0, 1)

    def pixel(self, x, y):
        return self.grab(Rectangle(x, y, 1, 1)).getpixel((0, 0))


def difference(before, after):
    """The bounding rectangle of all differences between two pictures, or None."""
    box = ImageChops.difference(before, after).getbbox()
    if box is None:
        return None
    return Rectangle(box[0], box[1], box[2] - box[0], box[3] - box[1])


def distance(one, other):
    """The distance of two colours: the maximum difference of a channel."""
    return max(abs(a - b) for a, b in zip(one, other))
