"""When something happened and how long it lasted, as precisely as it can be observed from outside.

On a busy machine there is a delay between what a test requests and what the program does. So the time of an event is an
interval, and what the program counts is compared with the shortest and the longest time that it can have been counting.
"""

import time
from dataclasses import dataclass

EDGE = 2  # seconds: the error of whole-second counting at both ends of an interval


@dataclass(frozen=True)
class EventTime:
    """The times of the monotonic clock between which something happened."""

    earliest: float
    latest: float

    @staticmethod
    def of(action):
        """The time of an event caused by `action()`."""
        earliest = time.monotonic()
        action()
        return EventTime(earliest, time.monotonic())

    def __add__(self, seconds):
        return EventTime(self.earliest + seconds, self.latest + seconds)


@dataclass(frozen=True)
class Elapsed:
    """The shortest and the longest time between two events, or the sum of such times, in seconds."""

    min: float
    max: float
    intervals: int = 1

    @staticmethod
    def between(begin, end):
        return Elapsed(end.earliest - begin.latest, end.latest - begin.earliest)

    def __add__(self, other):
        return Elapsed(self.min + other.min, self.max + other.max, self.intervals + other.intervals)

    def assert_counted(self, seconds, before=0):
        """Fails unless a program counting all the time can have gone from `before` to `seconds`."""
        error = EDGE * self.intervals
        if not self.min - error <= seconds - before <= self.max + error:
            raise AssertionError(f"{seconds - before} s were counted in {self.min:.1f} to {self.max:.1f} s")
