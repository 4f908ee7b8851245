"""The wall clock seen by a program: the machine's, shifted by the test."""

import datetime
import glob
import time


class ProgramClock:
    """Passed to a program at its start; can be set again while the program runs. Only shifts the wall clock."""

    def __init__(self, folder):
        self._file = folder / "program-clock"
        libraries = glob.glob("/usr/lib/*/faketime/libfaketimeMT.so.1")
        if not libraries:
            raise AssertionError("faketime is not installed")
        self.environment = {
            "TZ": "UTC",
            "LD_PRELOAD": libraries[0],
            "FAKETIME_TIMESTAMP_FILE": str(self._file),
            "FAKETIME_NO_CACHE": "1",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1",
            "NO_FAKE_STAT": "1",
        }
        self._offset = 0.0

    def set(self, moment):
        """`moment` in UTC, "2026-01-15 23:59:50"."""
        self._offset = timestamp(moment) - time.time()
        part = self._file.with_suffix(".part")
        part.write_text(f"{self._offset:+.3f}\n", encoding="ascii")
        part.replace(self._file)

    def seconds_after(self, moment):
        """The time since `moment` by this clock; negative if in the future."""
        return time.time() + self._offset - timestamp(moment)

    def sleep_until(self, moment):
        time.sleep(max(0.0, -self.seconds_after(moment)))


def timestamp(moment):
    return datetime.datetime.fromisoformat(moment).replace(tzinfo=datetime.timezone.utc).timestamp()
