"""The application in front by what its window tells: each kind of window that a desktop has."""

import os
import time
import unittest

from Xlib import X, Xatom, Xutil, display

from harness.timing import EDGE, Elapsed, EventTime
from harness.waiting import wait_until
from harness.world import World, sleep_until

SECONDS = 4

# A file system of its own for the command that follows, with what a sandbox says of its application.
ENTER_SANDBOX = """
set -e
root=$1; application=$2; shift 2
mount -t tmpfs none "$root"
printf '[Application]\nname=%s\n' "$application" >"$root/.flatpak-info"
for each in /*; do
    if [ -L "$each" ]; then cp -P "$each" "$root$each"
    elif [ -d "$each" ]; then mkdir "$root$each"; mount --rbind "$each" "$root$each"
    fi
done
exec chroot "$root" "$@"
"""


def sandbox(world, application):
    """The launcher of an application that is packaged in a sandbox; it needs no rights of the system's."""
    root = world.folder / "sandbox"
    root.mkdir()
    namespaces = ("--mount",) if os.geteuid() == 0 else ("--mount", "--user", "--map-root-user")
    return ("unshare", *namespaces, "sh", "-c", ENTER_SANDBOX, "sandbox", str(root), application)


class FakeWindow:
    """A window of this process with the given properties, managed like any other."""

    def __init__(self, world, window_class=None, title="fake", window_type=None, application_id=None, manages_itself=False):
        self._display = display.Display(world.display)
        root = self._display.screen().root
        self._window = root.create_window(200, 300, 200, 120, 0, X.CopyFromParent, override_redirect=manages_itself)
        self._window.set_wm_name(title)
        if window_class:
            self._window.set_wm_class(window_class.lower(), window_class)
        if window_type:
            kind = self._display.intern_atom(f"_NET_WM_WINDOW_TYPE_{window_type}")
            self._window.change_property(self._display.intern_atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [kind])
        if window_type == "DOCK":
            # As real panels: no keyboard for them.
            self._window.set_wm_hints(flags=Xutil.InputHint, input=0)
        if application_id:
            utf8 = self._display.intern_atom("UTF8_STRING")
            self._window.change_property(
                self._display.intern_atom("_GTK_APPLICATION_ID"), utf8, 8, application_id.encode()
            )
        self._window.map()
        self._display.sync()
        if not manages_itself:
            wait_until(lambda: self.id in world.screen.managed(), "the window to be managed")

    @property
    def id(self):
        return self._window.id

    def close(self):
        self._window.destroy()
        self._display.sync()
        self._display.close()


def add_entry(world, identifier, **keys):
    folder = world.home.path / ".local/share/applications"
    folder.mkdir(parents=True, exist_ok=True)
    lines = ["[Desktop Entry]", "Type=Application", "Exec=true", *(f"{key}={value}" for key, value in keys.items())]
    (folder / f"{identifier}.desktop").write_text("\n".join(lines) + "\n", encoding="utf-8")


class Front(unittest.TestCase):
    def test_each_window_in_front_gets_its_seconds_under_the_name_of_its_application(self):
        with World("front") as world:
            add_entry(world, "org.example.Wrapped", Name="Wrapped", StartupWMClass="InnerClass")
            add_entry(world, "org.example.QtProgram", Name="Qt Program")
            windows = {
                "WorkTerm": world.open_terminal("WorkTerm"),
                "org.example.GtkProgram": FakeWindow(world, "Gtkprogram", application_id="org.example.GtkProgram"),
                "org.example.QtProgram": FakeWindow(world, "org.example.QtProgram"),
                "org.example.Wrapped": FakeWindow(world, "InnerClass"),
                "Unregistered": FakeWindow(world, "Unregistered"),
                "org.example.Sandboxed": world.open_terminal("InnerTerm", sandbox(world, "org.example.Sandboxed")),
                "Somedesktop": FakeWindow(world, "Somedesktop", window_type="DESKTOP"),
            }
            names = list(windows)
            world.input.focus(windows[names[0]].id)
            program = world.start_program()
            changes = [program.began]
            for name in names[1:]:
                sleep_until(changes[-1].latest + SECONDS)
                changes.append(EventTime.of(lambda: world.input.focus(windows[name].id)))
            sleep_until(changes[-1].latest + SECONDS)
            changes.append(world.stop_program(program))
            booked = {name: world.home.application_seconds(name) for name in names}
            for name, begin, end in zip(names, changes, changes[1:]):
                with self.subTest(name):
                    Elapsed.between(begin, end).assert_counted(booked[name])
                    self.assertGreaterEqual(booked[name], SECONDS - EDGE)
            self.assertEqual(world.home.all_application_seconds(), sum(booked.values()))
            for window in windows.values():
                if isinstance(window, FakeWindow):
                    window.close()

    def test_a_panel_and_a_lock_screen_leave_the_seconds_to_the_application_in_front(self):
        with World("front-others") as world:
            terminal = world.open_terminal("WorkTerm")
            program = world.start_program()
            panel = FakeWindow(world, "Somepanel", window_type="DOCK")
            world.input.click(*world.screen.window(window_class="Somepanel").frame.centre)
            lock = FakeWindow(world, "Locker", manages_itself=True)
            sleep_until(time.monotonic() + SECONDS)
            self.assertEqual(world.screen.active_window(), terminal.id)
            ended = world.stop_program(program)
            panel.close()
            lock.close()
            Elapsed.between(program.began, ended).assert_counted(world.home.application_seconds("WorkTerm"))
            self.assertEqual(world.home.all_application_seconds(), world.home.application_seconds("WorkTerm"))


if __name__ == "__main__":
    unittest.main()
