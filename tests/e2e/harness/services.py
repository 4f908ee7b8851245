"""Fake services on a session bus."""

import threading

from gi.repository import Gio, GLib

_WATCHER = """<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
</interface></node>"""

_FILE_MANAGER = """<node><interface name="org.freedesktop.FileManager1">
<method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>"""


class Service:
    """Owns a name on the bus at `address` and replies on its own thread, until closed."""

    name = path = description = None

    def __init__(self, address):
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop.new(self._context, False)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(address, ready), daemon=True)
        self._thread.start()
        if not ready.wait(20):
            raise AssertionError(f"{self.name} did not come up")

    def _run(self, address, ready):
        self._context.push_thread_default()
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self._bus.set_exit_on_close(False)
        interface = Gio.DBusNodeInfo.new_for_xml(self.description).interfaces[0]
        self._bus.register_object(self.path, interface, self._call, self._get, None)
        request = GLib.Variant("(su)", (self.name, 0))
        bus = "org.freedesktop.DBus"
        self._bus.call_sync(bus, "/org/freedesktop/DBus", bus, "RequestName", request, None, 0, 20000, None)
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()

    def close(self):
        self._loop.quit()
        self._thread.join(10)

    def _call(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        self.called(method, arguments.unpack())
        invocation.return_value(None)

    def _get(self, _bus, _sender, _path, _interface, name):
        return self.property(name)

    def called(self, method, arguments):
        raise NotImplementedError

    def property(self, name):
        return None


class TrayOnTheBus(Service):
    """A StatusNotifierItem tray; displays nothing."""

    name, path, description = "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", _WATCHER

    def __init__(self, address):
        self.items = []
        super().__init__(address)

    def called(self, method, arguments):
        self.items.append(arguments[0])

    def property(self, name):
        return {
            "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
            "ProtocolVersion": GLib.Variant("i", 0),
            "RegisteredStatusNotifierItems": GLib.Variant("as", self.items),
        }[name]


class FileManager(Service):
    """Records the files that it is asked to show."""

    name, path, description = "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1", _FILE_MANAGER

    def __init__(self, address):
        self.shown = []
        super().__init__(address)

    def called(self, method, arguments):
        self.shown += arguments[0]


def register_folder_opener(world, categories):
    """Registers an application as the handler for folders."""
    applications = world.home.path / ".local/share/applications"
    applications.mkdir(parents=True, exist_ok=True)
    entry = f"[Desktop Entry]\nType=Application\nName=Opener\nExec=true\nCategories={categories}\n"
    (applications / "com.example.Opener.desktop").write_text(entry, encoding="utf-8")
    choice = world.home.path / ".config/mimeapps.list"
    choice.parent.mkdir(parents=True, exist_ok=True)
    choice.write_text("[Default Applications]\ninode/directory=com.example.Opener.desktop;\n", encoding="utf-8")
