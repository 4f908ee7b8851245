"""Names that others gave: whatever stands in them, the window shows it as words and nothing leaves the machine."""

import json
import os
import re
import socket
import threading
import time
import unittest
from pathlib import Path

from harness import menu as rows
from harness.menu import Menu
from harness.statistics_window import DETAILS, OVERVIEW, PROJECTS, TABS, TIMESHEET, StatisticsWindow
from harness.waiting import wait_until
from harness.worked_days import day_key
from harness.world import World

TCP_TABLES = ("tcp", "tcp6", "udp", "udp6")


class Listener:
    """A server on this machine that answers nobody and counts who comes."""

    def __init__(self):
        self._server = socket.create_server(("127.0.0.1", 0))
        self.address = "127.0.0.1:%d" % self._server.getsockname()[1]
        self._visitors = []
        self._thread = threading.Thread(target=self._listen, daemon=True)
        self._thread.start()

    def _listen(self):
        while True:
            try:
                visitor, _ = self._server.accept()
            except OSError:
                return
            visitor.settimeout(10)
            self._visitors.append(visitor.recv(1000))
            visitor.close()

    def visitors(self):
        """What everybody said who has come so far; proves on the way that it hears."""
        with socket.create_connection(self._server.getsockname(), 10) as own:
            own.sendall(b"own")
            own.recv(1)
        wait_until(lambda: b"own" in self._visitors, "the listener")
        return [said for said in self._visitors if said != b"own"]

    def close(self):
        self._server.close()


def network_sockets(pid):
    """What a process has open that leads out of it by the network, as lines of the kernel's tables."""
    own = set()
    for descriptor in Path(f"/proc/{pid}/fd").iterdir():
        try:
            target = os.readlink(descriptor)
        except OSError:
            continue
        own.update(re.findall(r"socket:\[(\d+)\]", target))
    lines = []
    for table in TCP_TABLES:
        for line in Path(f"/proc/{pid}/net/{table}").read_text(encoding="ascii").splitlines()[1:]:
            if line.split()[9] in own:
                lines.append(f"{table}: {line}")
    return lines


class HostileNames(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.listener = Listener()
        cls.addClassCleanup(cls.listener.close)
        # Without a name of its own, an application is called by its identifier.
        host = f"http://{cls.listener.address}"
        cls.pipe = Path("/tmp") / f"tidewatch-pipe-{os.getpid()}"
        os.mkfifo(cls.pipe)
        cls.addClassCleanup(cls.pipe.unlink)
        cls.projects = {
            "00000000-0000-4000-8000-000000000001": f"<img src='{host}/project.png'>",
            "00000000-0000-4000-8000-000000000002": f"<b>b</b><img src='file://{cls.pipe}'>",
            "00000000-0000-4000-8000-000000000003": f"![x]({host}/markdown.png)",
            "00000000-0000-4000-8000-000000000004": "",
        }
        cls.entries = {
            "remote": (f"<img src='{host}/name.png'>", f"{host}/icon.png"),
            "resource": ("<link rel=stylesheet href='%s/s.css'>" % host, "qrc:/qt-project.org/imports/x.png"),
            "pipe": ("&lt;img src=x&gt;", f"file://{cls.pipe}"),
            "bare": ("</p><table background='%s/t.png'>" % host, str(cls.pipe)),
        }
        cls.unnamed = [f"<img src='{host}/class.png'>", f"{host}/as-a-name"]
        cls.world = cls.enterClassContext(World("hostile-names", accessibility=True))
        cls.world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
        cls.write_record()
        cls.program = cls.world.start_program()
        cls.window = StatisticsWindow(cls.world, cls.program)
        cls.window.open()

    @classmethod
    def write_record(cls):
        home, day = cls.world.home, day_key()
        applications = {name: 900 - place for place, name in enumerate([*cls.entries, *cls.unnamed])}
        whole = sum(applications.values())
        home.write("today.json", json.dumps({day: whole}))
        home.write("apps.json", json.dumps({day: applications}))
        home.write("hours.json", json.dumps({f"{day} 09": applications}))
        home.write("minutes.json", json.dumps({f"{day} 09:00": applications}))
        home.write("projects.json", json.dumps({
            "projects": [
                {"id": key, "name": name, "colorHex": "#7BD88F", "archived": False}
                for key, name in cls.projects.items()
            ],
            "activeProjectID": next(iter(cls.projects)),
        }))
        home.write("project_time.json", json.dumps({day: {key: {"remote": 300} for key in cls.projects}}))
        folder = home.path / ".local/share/applications"
        folder.mkdir(parents=True)
        for identifier, (name, icon) in cls.entries.items():
            entry = f"[Desktop Entry]\nType=Application\nName={name}\nIcon={icon}\nExec=true\nCategories=IDE;\n"
            (folder / f"{identifier}.desktop").write_text(entry, encoding="utf-8")

    def accessible_text(self, tab):
        return "\n".join(self.window.select(tab).texts())

    def test_every_tab_says_them_letter_by_letter_and_nobody_is_asked(self):
        for tab in TABS:
            self.window.select(tab)
            self.world.screenshot(tab)
        for tab in (DETAILS, TIMESHEET):
            for name in [name for name, _ in self.entries.values()] + self.unnamed:
                self.assertIn(name, self.accessible_text(tab), tab)
        for name in self.projects.values():
            self.assertIn(name or "Sin nombre", self.accessible_text(PROJECTS))
        self.window.select(OVERVIEW)
        self.assertEqual(self.listener.visitors(), [])
        self.assertEqual(network_sockets(self.program.pid), [])

    def test_the_menu_and_the_trays_words_ask_nobody_either(self):
        menu = Menu(self.world)
        icon = wait_until(menu.tray_icon, "the tray icon")
        self.world.input.move(*icon.frame.centre)
        time.sleep(2)
        self.world.screenshot("tray")
        menu.open_from_tray()
        menu.go_down(rows.PROJECT + 1)
        self.world.input.key("Right")
        wait_until(lambda: len(menu.popups()) > 1, "the submenu")
        self.world.screenshot("menu")
        menu.close()
        self.assertEqual(self.listener.visitors(), [])
        self.assertEqual(network_sockets(self.program.pid), [])

    def test_a_visitor_would_have_been_seen(self):
        listener = Listener()
        self.addCleanup(listener.close)
        host, port = listener.address.split(":")
        with socket.create_connection((host, int(port)), 10) as visitor:
            self.assertEqual(len(network_sockets(os.getpid())) > 0, True)
            visitor.sendall(b"GET / HTTP/1.0\r\n\r\n")
            visitor.recv(1)
        self.assertEqual(listener.visitors(), [b"GET / HTTP/1.0\r\n\r\n"])


if __name__ == "__main__":
    unittest.main()
