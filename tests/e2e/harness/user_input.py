"""Keyboard and mouse input, synthesised in the X server as if from real devices."""

import subprocess
import time

from harness.waiting import DEFAULT_TIMEOUT

LEFT, MIDDLE, RIGHT = 1, 2, 3


class UserInput:
    def __init__(self, env):
        self._env = env

    def _xdotool(self, *arguments):
        subprocess.run(
            ["xdotool", *(str(argument) for argument in arguments)],
            env=self._env,
            check=True,
            timeout=DEFAULT_TIMEOUT,
            stdin=subprocess.DEVNULL,
        )

    def key(self, *names):
        """Presses and releases keys by their X names ("Down", "ctrl+q")."""
        self._xdotool("key", "--clearmodifiers", *names)

    def type(self, text):
        self._xdotool("type", "--delay", 20, text)

    def move(self, x, y):
        self._xdotool("mousemove", x, y)

    def press(self, button=LEFT):
        self._xdotool("mousedown", button)

    def release(self, button=LEFT):
        self._xdotool("mouseup", button)

    def click(self, x, y, button=LEFT):
        """Like a user: move there, pause, press, release."""
        self.move(x, y)
        time.sleep(0.1)
        self.press(button)
        time.sleep(0.05)
        self.release(button)

    def drag(self, start, end, steps=10):
        self.move(*start)
        time.sleep(0.1)
        self.press()
        for step in range(1, steps + 1):
            x = start[0] + (end[0] - start[0]) * step // steps
            y = start[1] + (end[1] - start[1]) * step // steps
            self.move(x, y)
            time.sleep(0.03)
        time.sleep(0.1)
        self.release()

    def resize(self, window_id, width, height):
        self._xdotool("windowsize", window_id, width, height)

    def focus(self, window_id):
        self._xdotool("windowactivate", "--sync", window_id)

    def take_focus(self, window_id):
        """Without a window manager."""
        self._xdotool("windowfocus", "--sync", window_id)
