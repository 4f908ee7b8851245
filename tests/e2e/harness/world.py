"""A private desktop: X server, session bus, window manager, tray, notification daemon, home directory, the program."""

import os
import re
import shutil
import signal
import socket
import subprocess
import tempfile
import time
from pathlib import Path

from harness.desktops import OPENBOX
from harness.home import Home
from harness.local_time import ZONE
from harness.processes import Process
from harness.screen import Screen, difference
from harness.timing import EventTime
from harness.user_input import UserInput
from harness.waiting import DEFAULT_TIMEOUT, TimeOut, wait_until

WIDTH, HEIGHT = 1280, 800
BACKGROUND = (0x2F, 0x48, 0x58)
LOOKS_AT_PANEL = 4  # half a second apart, without a difference
CLOCK_TITLE = "Tidewatch"
CLOCK_CLASS = "tidewatch"
ACCESSIBILITY_BUS = "/usr/libexec/at-spi-bus-launcher"
STATISTICS_TITLE = "FATHOM · Estadísticas"

PROGRAM = os.environ.get("TIDEWATCH_PROGRAM", "")
ARTEFACTS = Path(os.environ.get("TIDEWATCH_E2E_ARTEFACTS", tempfile.gettempdir() + "/tidewatch-e2e"))


class World:
    """Everything in it ends with it. `name` names the folder of what it leaves behind: logs, screenshots, home.

    The program's standard error must stay empty but for lines that match an `expected_warnings` pattern; the end of
    the world checks that.
    """

    def __init__(
        self,
        name,
        tray=True,
        session_bus=True,
        accessibility=False,
        expected_warnings=(),
        size=(WIDTH, HEIGHT),
        desktop=OPENBOX,
    ):
        self.folder = ARTEFACTS / name
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        self.home = Home(self.folder / "home")
        self.expected_warnings = list(expected_warnings)
        self.programs = []
        self.desktop = desktop
        self.window_manager = None
        self.tray = None
        self.panel_frame = self.panel_without_icon = None
        self._size = size
        self._wants_tray = tray
        self._wants_session_bus = session_bus
        self._wants_accessibility = accessibility
        self._processes = []
        self._screen = None
        self.accessibility = None
        # Sockets have short names only.
        self._runtime = tempfile.mkdtemp(prefix="tw-")

    def __enter__(self):
        try:
            self._start_server()
            if self._wants_session_bus:
                self.start_session_bus()
            self._start_window_manager()
            if self._wants_accessibility:
                self._start_accessibility()
            if self._wants_session_bus:
                self.start("dunst")
            if self._wants_tray and self.desktop.tray:
                self.start_tray()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, value, trace):
        try:
            if kind is not None:
                self._keep_last_picture()
        finally:
            if self.accessibility:
                self.accessibility.close()
            for process in reversed(self._processes[1:]):
                process.end(5)
            if self._screen:
                self._screen.close()
            if self._processes:
                self.server.end(5)
            shutil.rmtree(self._runtime, ignore_errors=True)
        if kind is None:
            self.check_log()

    # The desktop

    def _start_server(self):
        read_end, write_end = os.pipe()
        self.server = Process(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{self._size[0]}x{self._size[1]}x24", "-nolisten", "tcp", "-noreset"],
            os.environ.copy(),
            self.folder / "Xvfb.log",
            pass_fds=(write_end,),
        )
        self._processes.append(self.server)
        os.close(write_end)
        with os.fdopen(read_end, encoding="ascii") as numbers:
            number = numbers.readline().strip()
        if not number:
            raise AssertionError("the X server did not start: " + self.server.log())
        self.display = ":" + number
        self.env = self._environment()
        self._screen = Screen(self.display)
        self.input = UserInput(self.env)
        self.input.move(self._size[0] // 2, self._size[1] // 2)
        # With the first synthetic key the server announces a keyboard, whereupon a window manager releases its
        # key grabs for a moment; so this is done before there is a window manager.
        self.input.key("shift")
        root_colour = Process(
            ["xsetroot", "-solid", "#%02x%02x%02x" % BACKGROUND], self.env, self.folder / "xsetroot.log"
        )
        root_colour.wait()

    def _environment(self):
        """The environment of a plain session, without the caller's desktop, locale or home."""
        runtime = Path(self._runtime)
        environment = {
            "PATH": f"{self._make_opener()}:{os.environ.get('PATH', '/usr/bin:/bin')}",
            "HOME": str(self.home.path),
            "USER": os.environ.get("USER", "root"),
            "LANG": "C.UTF-8",
            "LC_ALL": "C.UTF-8",
            "TZ": ZONE,
            "DISPLAY": self.display,
            "XDG_RUNTIME_DIR": str(runtime),
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus",
            **self.desktop.environment,
        }
        for name in os.environ:
            if name.endswith("SAN_OPTIONS"):
                environment[name] = os.environ[name]
        return environment

    def _make_opener(self):
        """Creates an xdg-open that only records its arguments; returns its folder."""
        folder = self.folder / "bin"
        folder.mkdir(exist_ok=True)
        opener = folder / "xdg-open"
        opener.write_text(f'#!/bin/sh\necho "$1" >>"{self.folder}/opened"\n', encoding="utf-8")
        opener.chmod(0o755)
        return folder

    def opened(self):
        """The arguments of the desktop's opener, in order."""
        notes = self.folder / "opened"
        return notes.read_text(encoding="utf-8").split() if notes.exists() else []

    @property
    def bus_path(self):
        """The socket of the session bus, if there is one."""
        return Path(self._runtime) / "bus"

    def start_session_bus(self):
        bus = self.start("dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={self.bus_path}")

        def answers():
            with socket.socket(socket.AF_UNIX) as client:
                return client.connect_ex(str(self.bus_path)) == 0

        wait_until(answers, "the session bus")
        return bus

    def _start_accessibility(self):
        """Starts the accessibility bus and connects to it as a screen reader."""
        from harness.accessibility import Accessibility

        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.start(ACCESSIBILITY_BUS, "--launch-immediately")
        self.accessibility = Accessibility(self.env["DBUS_SESSION_BUS_ADDRESS"])

    def _start_window_manager(self):
        for path, content in self.desktop.files.items():
            file = self.home.path / ".config" / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(content, encoding="utf-8")
        if self.desktop.window_manager:
            self.window_manager = self.start(*self.desktop.window_manager)
            wait_until(self.screen.has_window_manager, "the window manager")
            # It announces itself before it is ready: what is mapped in between may never be shown.
            wait_until(self.screen.shows_new_windows, "the window manager to show windows")

    def start_tray(self):
        kind = self.desktop.tray
        tray = self.tray = self.start(*kind.command)
        wait_until(lambda: self.screen.selection_owner("_NET_SYSTEM_TRAY_S0"), "the tray")
        if not kind.embeds:
            wait_until(self._has_item_host, "the tray on the bus")
            wait_until(lambda: self.screen.window(window_class=kind.part), "the last part of the tray")
            if self.panel_without_icon is None:
                self.panel_frame, self.panel_without_icon = self._settled_panel(kind.window_class)
        return tray

    def _has_item_host(self):
        answer = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "org.kde.StatusNotifierWatcher",
             "--object-path", "/StatusNotifierWatcher", "--method", "org.freedesktop.DBus.Properties.Get",
             "org.kde.StatusNotifierWatcher", "IsStatusNotifierHostRegistered"],
            env=self.env, capture_output=True, text=True, timeout=DEFAULT_TIMEOUT,
        )
        return "true" in answer.stdout

    def _settled_panel(self, window_class):
        """Frame and picture of a panel that is no longer being drawn or moved."""
        looks = []

        def stands_still():
            panel = self.screen.window(window_class=window_class)
            if panel is None or panel.frame.bottom > self._size[1]:
                return False
            looks.append((panel.frame, self.screen.grab(panel.frame)))
            last = looks[-LOOKS_AT_PANEL:]
            return len(last) == LOOKS_AT_PANEL and all(
                frame == last[0][0] and difference(picture, last[0][1]) is None for frame, picture in last
            )

        wait_until(stands_still, "the panel to be drawn", every=0.5)
        return looks[-1]

    def switch_compositor(self, on):
        """The desktop's own."""
        subprocess.run(
            self.desktop.compositor[on], env=self.env, check=True, capture_output=True, timeout=DEFAULT_TIMEOUT
        )
        wait_until(lambda: bool(self.screen.selection_owner("_NET_WM_CM_S0")) == on, "the compositor")

    def start_compositor(self):
        compositor = self.start("picom", "--backend", "xrender", "--no-fading-openclose", "--config", "/dev/null")
        wait_until(lambda: self.screen.selection_owner("_NET_WM_CM_S0"), "the compositor")
        return compositor

    @property
    def screen(self):
        return self._screen

    def start(self, *arguments):
        """Starts a program on this desktop, which ends with it."""
        name = os.path.basename(str(arguments[0]))
        process = Process(arguments, self.env, self.folder / f"{name}.log")
        self._processes.append(process)
        return process

    def open_terminal(self, window_class="WorkTerm", launcher=()):
        """Opens a terminal that ignores input, through the launcher's command; returns its window once it is focused."""
        self.start(
            *launcher, "xterm", "-class", window_class, "-name", window_class.lower(), "-geometry", "60x10+40+60",
            "-e", "sh", "-c", "cat > /dev/null",
        )
        window = wait_until(lambda: self._managed_window(window_class), "the terminal")
        self.focus(window)
        return window

    def select_workspace(self, number):
        """Shows the workspace with this number, from 0 on."""
        command = self.desktop.workspaces[number]
        if command:
            subprocess.run(command, env=self.env, check=True, capture_output=True, timeout=DEFAULT_TIMEOUT)
        else:
            self.screen.select_desktop(number)

    def _managed_window(self, window_class):
        window = self.screen.window(window_class=window_class)
        managed = window and (not self.desktop.window_manager or window.id in self.screen.managed())
        return window if managed else None

    def focus(self, window):
        if self.desktop.window_manager:
            self.input.focus(window.id)
        else:
            self.input.take_focus(window.id)

    def focused_window(self):
        """The id of the window that takes the keys, as the desktop announces it."""
        return self.screen.active_window() if self.desktop.window_manager else self.screen.input_focus()

    # The program

    def start_program(self, wait_for_clock=True, environment=None, arguments=()):
        """Starts another instance of the program, by default until its clock is on the screen."""
        number = len(self.programs) + 1
        process = Process([PROGRAM, *arguments], {**self.env, **(environment or {})}, self.folder / f"program-{number}.log")
        self._processes.append(process)
        self.programs.append(process)
        if wait_for_clock:
            try:
                wait_until(self.clock, "the clock on the screen")
            except TimeOut:
                wanted = {"program": process, "window-manager": self.window_manager}
                self._keep_states_of({name: each for name, each in wanted.items() if each})
                raise
            process.began = EventTime(process.started, time.monotonic())
        return process

    def stop_program(self, process, number=signal.SIGTERM):
        """Ends a program by a signal and returns the time of its end; anything but a status of 0 fails."""
        process.send(number)
        return self.wait_for_end(process)

    @staticmethod
    def wait_for_end(process):
        """The time of the end of a program that has just been asked to quit; anything but a status of 0 fails."""
        asked = time.monotonic()
        status = process.wait()
        if status != 0:
            raise AssertionError(f"the program ended with {status}")
        return EventTime(asked, time.monotonic())

    def clock(self):
        """The clock's window, or None while it is hidden."""
        managed = self.screen.managed() if self.desktop.window_manager else None
        for window in self.screen.windows():
            if window.window_class == CLOCK_CLASS and window.title == CLOCK_TITLE:
                if managed is None or window.id in managed:
                    return window
        return None

    def statistics(self):
        """The statistics window, or None while it is not shown."""
        return self.screen.window(title=STATISTICS_TITLE)

    def check_log(self):
        """Fails on any line that a program logged and the test did not expect."""
        unexpected = [
            line
            for process in self.programs
            for line in process.log().splitlines()
            if line.strip() and not any(re.search(pattern, line) for pattern in self.expected_warnings)
        ]
        if unexpected:
            raise AssertionError("the program wrote:\n" + "\n".join(unexpected))

    # What is left behind

    def screenshot(self, name, area=None):
        picture = self.screen.grab(area)
        picture.save(self.folder / f"{name}.png")
        return picture

    def _keep_states_of(self, processes):
        """Keeps what the windows are and what these processes wait for, for whoever looks into a failure."""
        tree = subprocess.run(["xwininfo", "-root", "-tree"], env=self.env, capture_output=True, text=True, timeout=60)
        (self.folder / "windows.txt").write_text(tree.stdout + tree.stderr, encoding="utf-8")
        for name, process in processes.items():
            if not process.is_running():
                continue
            state = Path(f"/proc/{process.pid}")
            parts = [f"{part}: {(state / part).read_text(errors='replace')}\n" for part in ("wchan", "syscall", "status")]
            (self.folder / f"{name}-state.txt").write_text("".join(parts), encoding="utf-8")

    def _keep_last_picture(self):
        if self._screen and self.server.is_running():
            try:
                self.screenshot("failure")
            except Exception as failure:  # the first failure is the one to report
                print(f"no last screenshot: {failure}")


def sleep_until(deadline):
    """`deadline` by the monotonic clock."""
    time.sleep(max(0.0, deadline - time.monotonic()))
