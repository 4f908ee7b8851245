"""The cost of the whole program, with an empty and a ten-year record: memory, processor time, start-up."""

import os
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests/e2e"))

from harness.screen import Rectangle  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.world import World  # noqa: E402

JUDGED = os.environ.get("TIDEWATCH_BENCH") == "judge"

SETTLE_SECONDS = 33 if JUDGED else 1  # beyond the first periodic write
MEASURED_SECONDS = 24 if JUDGED else 4  # and before the next: what a write costs has a limit of its own, in bench_flush
STARTS = 7 if JUDGED else 1

# Times what the barest clock of the same toolkit takes, in the same run.
START_LIMIT = 3.5
PROCESSOR_LIMIT = 2

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
    """Measurements with their limits; limits are only enforced with TIDEWATCH_BENCH=judge."""

    def __init__(self):
        self.exceeded = False

    def line(self, what, value, limit, unit):
        verdict = "ok" if value <= limit else "ABOVE THE LIMIT"
        if JUDGED:
            self.exceeded = self.exceeded or value > limit
        else:
            verdict = "not judged"
        print(f"{what:<44} {value:8.1f} {unit}, limit {limit:.1f} {unit}: {verdict}", flush=True)


def prepare(world, record):
    world.home.write_settings(sizeScale=1.0, windowOriginX=ORIGIN[0], windowOriginY=ORIGIN[1])
    if record.ten_years:
        world.home.data.mkdir(mode=0o700)
        subprocess.run([os.environ["TIDEWATCH_MAKE_RECORD"], str(world.home.data)], check=True)


def shows_digits(world):
    return max(high for _, high in world.screen.grab(DIGITS).getextrema()) > BRIGHT


def start_bare_clock(world):
    return world.start(os.environ["TIDEWATCH_BARE_CLOCK"], *ORIGIN)


def milliseconds_to_digits(world, start, stop):
    """The time from process start until its digits are on the screen."""
    process = start()
    wait_until(lambda: shows_digits(world), "the digits", every=0.002)
    elapsed = time.monotonic() - process.started
    stop(process)
    wait_until(lambda: not shows_digits(world), "the clock to go")
    return elapsed * 1000


def best_starts(world, rounds):
    """The program's best start and the barest clock's, in turns, so that a machine that is busy is so for both."""
    ours, bare = [], []
    for _ in range(1 + rounds):
        ours.append(milliseconds_to_digits(world, lambda: world.start_program(wait_for_clock=False), world.stop_program))
        bare.append(milliseconds_to_digits(world, lambda: start_bare_clock(world), lambda process: process.end()))
    # The first ones read the programs from the disk.
    return min(ours[1:]), min(bare[1:])


def measure_starts(report, worlds):
    for record, world in worlds:
        ours, bare = best_starts(world, STARTS)
        report.line(f"start to the clock, {record.name} (best)", ours, START_LIMIT * bare, "ms")


def processor_milliseconds(processes, seconds):
    """What each spends over the same time."""
    before = [process.processor_seconds() for process in processes]
    time.sleep(seconds)
    return [(process.processor_seconds() - spent) * 1000 for process, spent in zip(processes, before)]


def measure_running(report, worlds):
    """Clock and tray as they come, ticking, between two periodic writes. All at once: each waits nearly all of the
    time."""
    for _, world in worlds:
        world.home.write_settings()
    programs = [world.start_program() for _, world in worlds]
    bare = start_bare_clock(worlds[0][1])
    time.sleep(SETTLE_SECONDS)
    *spent, bare_spent = processor_milliseconds([*programs, bare], MEASURED_SECONDS)
    for (record, world), program, milliseconds in zip(worlds, programs, spent):
        a_minute = 60 / MEASURED_SECONDS
        limit = PROCESSOR_LIMIT * bare_spent * a_minute
        report.line(f"processor time a minute, {record.name}", milliseconds * a_minute, limit, "ms")
        report.line(f"resident memory, {record.name}", program.memory_kilobytes() / 1024, record.memory_limit, "MB")
        world.stop_program(program)
        if world.home.day_seconds() <= 0:
            raise AssertionError("the program did not count")
    bare.end()


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
