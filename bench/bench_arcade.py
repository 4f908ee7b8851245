"""The cost of the mini-arcade as a widget: the brick game at play, paused and over; whether its frames are even; what stays
in memory after it."""

import json
import sys
import time
from contextlib import contextmanager
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests/e2e"))

from bench_program import JUDGED, Report, private_megabytes, processor_milliseconds, start_bare_clock  # noqa: E402
from PIL import Image, ImageChops  # noqa: E402
from Xlib import X, display  # noqa: E402
from Xlib.ext import damage, xtest  # noqa: E402

from bench_statistics import after_a_write  # noqa: E402
from harness.home import EARNED_GAME  # noqa: E402
from harness.screen import Rectangle, distance  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.widgets import Widgets, all_placed  # noqa: E402
from harness.world import World  # noqa: E402

NAME = "arcade"
OTHER = "project"  # a widget without a game

MEASURED_SECONDS = 10 if JUDGED else 4
REST_SECONDS = 30 if JUDGED else 4  # from one write of the record to the next
SETTLE_SECONDS = 3

# Times what the barest clock of the same toolkit takes for one of its redrawings, some 0.5 ms: 1 ms of processor time a
# frame, which at 60 frames a second is 6 % of a core.
FRAME_LIMIT = 2
FRAMES_A_SECOND = 60
# In redrawings of that clock a second: a game that stands still costs nothing by itself.
REST_LIMIT = 0.5
LATE_MILLISECONDS = 8
PARTS_OF_A_FRAME_MILLISECONDS = 2
LATE_LIMIT = 1
LEFT_BEHIND_LIMIT = 2  # megabytes of private memory

# In the widget.
NEXT_GAME, PLAY = (190, 24), (107, 236)
BUTTON_GROUND = (50, 224)
PAUSE, LAUNCH = (25, 332), (159, 332)
BOARD = Rectangle(32, 38, 150, 252)
BELOW_THE_BRICKS = Rectangle(BOARD.x + 2, BOARD.y + 86, BOARD.width - 4, 140)
GREEN = (122, 217, 143)  # the button, the first row of bricks, the ball
SIMILAR = 40
FIRST_BRICK = (BOARD.x + 13, BOARD.y + 15)
BACK_AND_FORTH_SECONDS = 0.03


def moved(area, by):
    return Rectangle(area.x + by.x, area.y + by.y, area.width, area.height)


class Arcade:
    """The widget, played with the mouse."""

    def __init__(self, world):
        self._world = world
        self._widgets = Widgets(world)
        self._display = display.Display(world.display)

    def open(self):
        self._widgets.toggle(NAME)
        self.window = self._widgets.window(NAME)

    def close(self):
        self._widgets.toggle(NAME)

    def start_bricks(self):
        wait_until(lambda: self._is_green(BUTTON_GROUND), "the button")
        self._click(NEXT_GAME)
        self._click(PLAY)
        wait_until(lambda: self._world.home.setting("gate.ready") == "false", "the game")
        wait_until(lambda: self._is_green(FIRST_BRICK), "the wall")

    def launch(self):
        self._click(LAUNCH)

    def toggle_pause(self):
        self._click(PAUSE)

    def play(self, seconds):
        """Drags the paddle along below the ball, and launches the next one if one is lost; returns how many were."""
        frame = self.window.frame
        board = moved(BOARD, frame)
        self._grip_paddle(board.centre[0])
        until = time.monotonic() + seconds
        seen, lost = time.monotonic(), 0
        while time.monotonic() < until:
            ball = self._ball()
            if ball is not None:
                seen = time.monotonic()
                self._move(ball, board.bottom - 20)
            elif time.monotonic() - seen > 1.5:
                self._release_paddle()
                self.launch()
                self._grip_paddle(board.centre[0])
                seen, lost = time.monotonic(), lost + 1
            time.sleep(BACK_AND_FORTH_SECONDS)
        self._release_paddle()
        return lost

    def lose(self):
        """Leaves the paddle at the side until no ball is left."""
        board = moved(BOARD, self.window.frame)
        for x in (board.right - 5, board.x + 5) * 20:
            self._world.input.click(x, board.bottom - 20)
            self.launch()
            time.sleep(2.5)
            if self._is_over():
                return
        raise AssertionError("the game does not end")

    @contextmanager
    def damages(self):
        """The times, in milliseconds of the server's clock, at which something was drawn in the window meanwhile."""
        drawn = []
        connection = display.Display(self._world.display)
        connection.damage_query_version()
        window = connection.create_resource_object("window", self.window.id)
        window.damage_create(damage.DamageReportRawRectangles)
        connection.sync()
        try:
            yield drawn
        finally:
            connection.sync()
            while connection.pending_events():
                event = connection.next_event()
                if event.type == connection.extension_event.DamageNotify:
                    drawn.append(event.timestamp)
            connection.close()

    def _click(self, place):
        frame = self.window.frame
        self._world.input.click(frame.x + place[0], frame.y + place[1])

    def _grip_paddle(self, x):
        self._move(x, moved(BOARD, self.window.frame).bottom - 20)
        xtest.fake_input(self._display, X.ButtonPress, 1)
        self._display.sync()

    def _release_paddle(self):
        xtest.fake_input(self._display, X.ButtonRelease, 1)
        self._display.sync()

    def _move(self, x, y):
        xtest.fake_input(self._display, X.MotionNotify, x=int(x), y=int(y))
        self._display.sync()

    def _ball(self):
        """Where it is across the screen; None if it is not below the bricks."""
        area = moved(BELOW_THE_BRICKS, self.window.frame)
        picture = self._world.screen.grab(area)
        channels = ImageChops.difference(picture, Image.new("RGB", picture.size, GREEN)).split()
        differences = ImageChops.lighter(ImageChops.lighter(channels[0], channels[1]), channels[2])
        box = differences.point(lambda value: 255 if value < SIMILAR else 0).getbbox()
        return None if box is None else area.x + (box[0] + box[2]) / 2

    def _is_green(self, place):
        frame = self.window.frame
        return distance(self._world.screen.pixel(frame.x + place[0], frame.y + place[1]), GREEN) < SIMILAR

    def _is_over(self):
        """The score is stored at the end."""
        return self._world.home.setting("breakoutHighScore") is not None


def late_frames(drawn):
    """How many were drawn more than 8 ms after they were due, the longest time without one, and their number."""
    # The parts of a frame come in a row.
    frames = [after for before, after in zip(drawn, drawn[1:]) if after - before > PARTS_OF_A_FRAME_MILLISECONDS]
    gaps = [after - before for before, after in zip(frames, frames[1:])]
    limit = 1000 / FRAMES_A_SECOND + LATE_MILLISECONDS
    return sum(gap > limit for gap in gaps), max(gaps), len(frames)


def prepare(world):
    """An earned game, and all widgets hidden in their places."""
    world.home.write_settings(**EARNED_GAME)
    world.home.write("widgets.json", json.dumps({name: {**state, "visible": False} for name, state in all_placed().items()}))


def measure_play(report, world):
    program = world.start_program()
    bare = start_bare_clock(world)
    time.sleep(SETTLE_SECONDS)
    after_a_write(world)
    alone, bare_cost = processor_milliseconds([program, bare], REST_SECONDS)
    redrawing = bare_cost / REST_SECONDS
    arcade = Arcade(world)
    arcade.open()
    arcade.start_bricks()
    arcade.launch()
    time.sleep(0.5)

    with arcade.damages() as drawn:
        before = program.processor_seconds()
        lost = arcade.play(MEASURED_SECONDS)
        spent = (program.processor_seconds() - before) * 1000
    late, longest, frames = late_frames(drawn)
    report.remark("frames a second", frames / MEASURED_SECONDS, "")
    report.remark("the longest time between two frames", longest, "ms")
    # Nothing moves while the next ball waits.
    report.line(f"frames late by more than {LATE_MILLISECONDS} ms", late - lost, LATE_LIMIT, "")
    report.remark("at play", spent / MEASURED_SECONDS / 10, "% of a core")
    frame = spent / MEASURED_SECONDS / FRAMES_A_SECOND
    report.line("processor time of a frame", frame, FRAME_LIMIT * redrawing, "ms")

    limit = REST_LIMIT * redrawing
    arcade.toggle_pause()
    measure_rest(report, world, program, "paused", alone, limit)
    arcade.toggle_pause()
    arcade.lose()
    measure_rest(report, world, program, "over", alone, limit)
    arcade.close()
    world.stop_program(program)


def measure_rest(report, world, program, what, alone, limit):
    time.sleep(SETTLE_SECONDS)
    after_a_write(world)
    (spent,) = processor_milliseconds([program], REST_SECONDS)
    report.line(f"a second more than the clock, {what}", (spent - alone) / REST_SECONDS, limit, "ms")


def left_behind(world, show):
    """How much more memory a program has once `show(world)` has shown a widget and hidden it again, in megabytes."""
    program = world.start_program()
    time.sleep(SETTLE_SECONDS)
    before = private_megabytes(program)
    show(world)
    time.sleep(SETTLE_SECONDS)
    more = private_megabytes(program) - before
    world.stop_program(program)
    return more


def show_other_widget(world):
    widgets = Widgets(world)
    widgets.toggle(OTHER)
    time.sleep(SETTLE_SECONDS)
    widgets.toggle(OTHER)


def play_a_game(world):
    arcade = Arcade(world)
    arcade.open()
    arcade.start_bricks()
    arcade.launch()
    arcade.play(MEASURED_SECONDS)
    arcade.close()


def measure_memory(report):
    with World("bench-arcade-memory") as world, World("bench-arcade-no-games") as plain:
        for each in (world, plain):
            prepare(each)
        without = left_behind(plain, show_other_widget)
        with_game = left_behind(world, play_a_game)
    report.remark("more memory after a widget without a game", without, "MB")
    report.remark("more memory after a game", with_game, "MB")
    report.line("left behind by the game", with_game - without, LEFT_BEHIND_LIMIT, "MB")


def main():
    report = Report()
    with World("bench-arcade") as world:
        prepare(world)
        measure_play(report, world)
    measure_memory(report)
    return 1 if report.exceeded else 0


if __name__ == "__main__":
    sys.exit(main())
