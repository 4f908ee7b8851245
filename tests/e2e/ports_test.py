"""The program opens no port and reaches no other machine, whatever its surroundings ask of the toolkit."""

import os
import unittest
from pathlib import Path

from harness.waiting import stays
from harness.world import World

# Each would, left alone, load code of the caller's choice: one of the toolkit's platforms is a server.
ORDERS = {
    "platform": {"QT_QPA_PLATFORM": "vnc"},
    "platform-with-options": {"QT_QPA_PLATFORM": "vnc:port=5907:size=800x600"},
    "alternatives": {"QT_QPA_PLATFORM": "nothing;vnc;xcb"},
    "generic-plugins": {"QT_QPA_GENERIC_PLUGINS": "tuiotouch:udp=3333,tuiotouch:tcp=3334"},
    "other-plugins": {"QT_PLUGIN_PATH": "/nonexistent", "QT_QPA_PLATFORM_PLUGIN_PATH": "/nonexistent"},
    "scene-graph": {"QT_QUICK_BACKEND": "nonexistent", "QMLSCENE_DEVICE": "nonexistent", "QML2_IMPORT_PATH": "/tmp"},
    "theme": {"QT_QPA_PLATFORMTHEME": "nonexistent", "QT_STYLE_OVERRIDE": "nonexistent"},
}
ARGUMENTS = ("-platform", "vnc", "-plugin", "tuiotouch", "-qmljsdebugger=port:3768,block")


def internet_sockets(pid):
    """All sockets of the process that have an address on a network."""
    inodes = set()
    for descriptor in Path(f"/proc/{pid}/fd").iterdir():
        try:
            target = os.readlink(descriptor)
        except FileNotFoundError:
            continue  # closed meanwhile
        if target.startswith("socket:["):
            inodes.add(target[len("socket:["):-1])
    found = []
    for kind in ("tcp", "tcp6", "udp", "udp6"):
        for line in Path(f"/proc/{pid}/net/{kind}").read_text(encoding="ascii").splitlines()[1:]:
            if line.split()[9] in inodes:
                found.append((kind, line.split()[1]))
    return found


class Ports(unittest.TestCase):
    def assert_opens_none(self, world, arguments=()):
        program = world.start_program(arguments=arguments)
        stays(lambda: program.is_running() and not internet_sockets(program.pid), "a program without ports", 3)
        self.assertEqual(internet_sockets(program.pid), [])
        world.stop_program(program)

    def test_no_variable_makes_it(self):
        for name, order in ORDERS.items():
            with self.subTest(name), World(f"ports-{name}") as world:
                world.env.update(order)
                self.assert_opens_none(world)

    def test_no_argument_makes_it(self):
        with World("ports-arguments") as world:
            self.assert_opens_none(world, ARGUMENTS)


if __name__ == "__main__":
    unittest.main()
