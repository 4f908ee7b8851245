"""The settings that a desktop shares with its applications (XSETTINGS)."""

import struct

from Xlib import X, display

DPI_UNIT = 1024
PLAIN_DPI = 96
INTEGER, LITTLE_ENDIAN = 0, 0


class SharedSettings:
    """The settings manager of a display, until closed. To be there before an application that follows it."""

    def __init__(self, name):
        self._display = display.Display(name)
        self._window = self._display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self._serial = 0
        self.set_scale(1)
        self._window.set_selection_owner(self._display.intern_atom("_XSETTINGS_S0"), X.CurrentTime)
        self._display.sync()

    def set_scale(self, factor):
        """What a desktop does when the user chooses another scale factor for all screens."""
        name = b"Xft/DPI"
        self._serial += 1
        record = struct.pack("<BxH", INTEGER, len(name)) + name.ljust((len(name) + 3) // 4 * 4, b"\0")
        record += struct.pack("<Ii", self._serial, round(factor * PLAIN_DPI * DPI_UNIT))
        data = struct.pack("<BxxxII", LITTLE_ENDIAN, self._serial, 1) + record
        atom = self._display.intern_atom("_XSETTINGS_SETTINGS")
        self._window.change_property(atom, atom, 8, data)
        self._display.sync()

    def close(self):
        self._display.close()
