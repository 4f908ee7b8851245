"""What the whole program costs, on an empty record and on one of ten years: memory, processor time, start."""

import os
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests/e2e"))

from harness.screen import Rectangle  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.world import World  # noqa: E402

SETTLE_SECONDS = 33  # beyond the first periodic write
MEASURED_SECONDS = 24  # and before the next: what a write costs has a limit of its own, in bench_flush
STARTS = 7
PROCESSOR_LIMIT = 60  # milliseconds a minute
START_LIMIT = 300  # milliseconds

# Where the digits of the clock are, and how bright they become.
ORIGIN = (300, 200)
DIGITS = Rectangle(ORIGIN[0] + 20, ORIGIN[1] + 40, 180, 50)
BRIGHT = 200


@dataclass(frozen=True)
class Record:
    name: str
    memory_limit: int  # megabytes
    ten_years: bool


RECORDS = (Record("empty record", 45, False), Record("ten-year record", 60, True))


class Report:
    def __init__(self):
        self.exceeded = False

    def line(self, what, value, limit, unit):
        verdict = "ok" if value <= limit else "ABOVE THE LIMIT"
        self.exceeded = self.exceeded or value > limit
        print(f"{what:<44} {value:8.1f} {unit}, limit {limit} {unit}: {verdict}", flush=True)


def prepare(world, record):
    world.home.write_settings(sizeScale=1.0, windowOriginX=ORIGIN[0], windowOriginY=ORIGIN[1])
    if record.ten_years:
        world.home.data.mkdir(mode=0o700)
        subprocess.run([os.environ["TIDEWATCH_MAKE_RECORD"], str(world.home.data)], check=True)


def shows_digits(world):
    return max(high for _, high in world.screen.grab(DIGITS).getextrema()) > BRIGHT


def milliseconds_to_clock(world):
    """From the start of the process until the digits are on the screen."""
    program = world.start_program(wait_for_clock=False)
    wait_until(lambda: shows_digits(world), "the digits", every=0.002)
    elapsed = time.monotonic() - program.started
    world.stop_program(program)
    wait_until(lambda: not shows_digits(world), "the clock to go")
    return elapsed * 1000


def measure_starts(report, worlds):
    for record, world in worlds:
        milliseconds_to_clock(world)  # the first one reads the program from the disk
        times = [milliseconds_to_clock(world) for _ in range(STARTS)]
        report.line(f"start to the clock, {record.name} (median)", statistics.median(times), START_LIMIT, "ms")


def measure_running(report, worlds):
    """Clock and tray as they come, ticking, between two periodic writes. All worlds at once: each waits nearly all
    of the time."""
    for _, world in worlds:
        world.home.write_settings()
    programs = [(record, world.start_program()) for record, world in worlds]
    time.sleep(SETTLE_SECONDS)
    before = [(time.monotonic(), program.processor_seconds()) for _, program in programs]
    time.sleep(MEASURED_SECONDS)
    for (record, program), (moment, spent) in zip(programs, before):
        minutes = (time.monotonic() - moment) / 60
        per_minute = (program.processor_seconds() - spent) * 1000 / minutes
        report.line(f"processor time a minute, {record.name}", per_minute, PROCESSOR_LIMIT, "ms")
        report.line(f"resident memory, {record.name}", program.memory_kilobytes() / 1024, record.memory_limit, "MB")
    for (_, world), (_, program) in zip(worlds, programs):
        world.stop_program(program)


def main():
    report = Report()
    with World("bench-empty") as empty, World("bench-ten-years") as large:
        worlds = list(zip(RECORDS, (empty, large)))
        for record, world in worlds:
            prepare(world, record)
        measure_starts(report, worlds)
        measure_running(report, worlds)
    return 1 if report.exceeded else 0


if __name__ == "__main__":
    sys.exit(main())
