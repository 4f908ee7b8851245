"""The monitors of a desktop: parts of the X server's one output, which come and go as real ones do."""

import subprocess

from harness.waiting import DEFAULT_TIMEOUT

OUTPUT = "screen"  # the only one of the virtual X server
MILLIMETRES = 300  # of either side; nothing depends on it


class Monitors:
    def __init__(self, world):
        self._env = world.env
        self._holder = None

    def attach(self, name, frame):
        """Adds a monitor that shows this part of the desktop; the first holds the output."""
        output = OUTPUT if self._holder is None else "none"
        self._holder = self._holder or name
        geometry = f"{frame.width}/{MILLIMETRES}x{frame.height}/{MILLIMETRES}+{frame.x}+{frame.y}"
        self._xrandr("--setmonitor", name, geometry, output)

    def detach(self, name):
        self._xrandr("--delmonitor", name)

    def change_resolution(self, width, height):
        """Of the output; at most that which the desktop began with."""
        mode = f"{width}x{height}"
        self._xrandr("--newmode", mode, "0", *([str(width), "0", "0", str(width)]), *([str(height), "0", "0", str(height)]))
        self._xrandr("--addmode", OUTPUT, mode)
        self._xrandr("--output", OUTPUT, "--mode", mode)

    def restore_resolution(self, width, height):
        self._xrandr("--output", OUTPUT, "--mode", f"{width}x{height}")

    def _xrandr(self, *arguments):
        subprocess.run(["xrandr", *arguments], env=self._env, check=True, capture_output=True, timeout=DEFAULT_TIMEOUT)
