"""When something happened and how long it lasted, as closely as one who looks on can tell.

A machine that is busy takes its time between what a test asks for and what the program does. So a moment is a span in
which something happened, and what the program counts is held against the shortest and the longest time that it can
have been at it.
"""

import time
from dataclasses import dataclass

EDGE = 2  # seconds: what a clock of whole seconds may count more or less at the ends of a time


@dataclass(frozen=True)
class Moment:
    earliest: float
    latest: float

    @staticmethod
    def of(action):
        """That of something that `action()` brings about."""
        earliest = time.monotonic()
        action()
        return Moment(earliest, time.monotonic())

    def __add__(self, seconds):
        return Moment(self.earliest + seconds, self.latest + seconds)


@dataclass(frozen=True)
class Lapse:
    min: float
    max: float

    @staticmethod
    def between(begin, end):
        return Lapse(end.earliest - begin.latest, end.latest - begin.earliest)

    def __add__(self, other):
        return Lapse(self.min + other.min, self.max + other.max)

    def assert_counted(self, seconds, before=0):
        """Fails unless a program that counted all the while may have come from `before` to `seconds`."""
        if not self.min - EDGE <= seconds - before <= self.max + EDGE:
            raise AssertionError(f"{seconds - before} s were counted in {self.min:.1f} to {self.max:.1f} s")
