"""The tab "Claude" follows the logs on disk."""

import json
import os
import shutil
import unittest
from contextlib import contextmanager

from harness.program_clock import ProgramClock, timestamp
from harness.statistics_window import CLAUDE, StatisticsWindow
from harness.waiting import wait_until
from harness.world import World

NO_LOGS = "Aún no hay registros de Claude Code"
NOW = "2026-03-31 15:00:00"
NEXT_MONTH = "2026-04-01 09:00:00"


def line(moment, output):
    """A log line; `moment` in UTC, "2026-03-31 14:00:00"."""
    usage = {"input_tokens": 10, "output_tokens": output}
    message = {"model": "claude-opus-4-7", "usage": usage}
    return json.dumps({"timestamp": moment.replace(" ", "T") + ".000Z", "message": message}) + "\n"


@contextmanager
def running(name):
    """A world on the last day of a month, with its program's statistics and the logs' folder."""
    with World(f"claude-{name}", accessibility=True) as world:
        clock = ProgramClock(world.folder)
        clock.set(NOW)
        world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
        program = world.start_program(environment=clock.environment)
        yield world, clock, StatisticsWindow(world, program), world.home.path / ".claude/projects"


def write(path, text, mode="w", at=NOW):
    """Writes to a log as if at that moment: the program's clock is not that of the disk."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with open(path, mode, encoding="utf-8") as log:
        log.write(text)
    os.utime(path, (timestamp(at), timestamp(at)))


def show_again(world, window):
    """Closes the window and opens it on the same tab."""
    world.input.key("ctrl+w")
    wait_until(lambda: world.statistics() is None, "the statistics window to close")
    window.open()
    window.tab(CLAUDE)


class Claude(unittest.TestCase):
    def test_the_tab_follows_the_logs_at_its_next_showing(self):
        with running("logs") as (world, _, window, logs):
            window.open()
            window.select(CLAUDE)
            window.wait_for_text(None, NO_LOGS)
            world.screenshot("no-logs")

            write(logs / "project/a.jsonl", line("2026-03-31 14:00:00", 60000))
            show_again(world, window)
            window.wait_for_text(None, "1 conversaciones")
            window.wait_for_text(None, "Output: 60K")
            window.wait_for_text(None, "Opus: 60K tok out")

            write(logs / "project/a.jsonl", line("2026-03-31 14:30:00", 30000) + '{"half', "a")
            write(logs / "project/b.jsonl", line("2026-03-30 14:30:00", 10000))
            show_again(world, window)
            window.wait_for_text(None, "3 conversaciones")
            window.wait_for_text(None, "Output: 100K")
            window.wait_for_text(None, "SESIONES INTENSAS: 1")
            world.screenshot("logs")

            shutil.rmtree(logs)
            show_again(world, window)
            window.wait_for_text(None, NO_LOGS)

    def test_the_month_that_ends_goes_into_the_history_and_stays_when_its_logs_go(self):
        with running("month") as (world, clock, window, logs):
            log = logs / "project/a.jsonl"
            write(log, line("2026-03-31 14:00:00", 60000))
            window.open()
            window.select(CLAUDE)
            window.wait_for_text(None, "1 conversaciones")
            history = wait_until(lambda: world.home.read("claude_history.json"), "the history")
            self.assertEqual([(row["month"], row["heavyWindows"]) for row in history], [("2026-03", 1)])

            clock.set(NEXT_MONTH)
            write(log, line("2026-04-01 08:00:00", 2000), "a", NEXT_MONTH)
            show_again(world, window)
            window.wait_for_text(None, "Output: 2K")
            wait_until(lambda: len(world.home.read("claude_history.json")) == 2, "the second month")

            log.unlink()
            show_again(world, window)
            window.wait_for_text(None, "0 conversaciones")
            rows = {row["month"]: row for row in world.home.read("claude_history.json")}
            self.assertEqual(rows["2026-03"]["conversations"], 1)
            self.assertEqual(rows["2026-03"]["outputTokensK"], 60)
            self.assertEqual(rows["2026-03"]["possibleWindows"], 155)
            world.screenshot("next-month")


if __name__ == "__main__":
    unittest.main()
