"""The mini-arcade beside the statistics: an earned game is played with real keys, and its time is booked."""

import time
import unittest
from contextlib import contextmanager

from harness.home import EARNED_GAME
from harness.statistics_window import StatisticsWindow
from harness.timing import Elapsed, EventTime
from harness.waiting import repeat_until, wait_until
from harness.world import WIDTH, World

HEIGHT = 1080  # shows all of the column beside the tabs
GAMES = "com.brightlooms.fathom.games"
SECONDS_OF_PLAY = 5


class Arcade:
    """Its card in the statistics window, operated by input events and read through the accessibility bus."""

    def __init__(self, world, program):
        self._world = world
        self._statistics = StatisticsWindow(world, program)

    def open(self):
        self._statistics.open()

    def close(self):
        self._world.input.key("ctrl+w")
        wait_until(lambda: self._world.statistics() is None, "the statistics to close")

    def frame(self):
        return self._statistics.wait_for_text("panel", "Mini-Arcade").frame()

    def wait_for(self, name):
        self._statistics.wait_for(lambda read: self._shown(read, name), f"{name!r} on the screen")

    def shows(self, name):
        return self._shown(self._statistics.wait_for(lambda read: True, "the window"), name)

    def click(self, name, result):
        """Clicks the button until `result` is on the screen."""
        repeat_until(
            lambda: self._statistics.click("push button", name), lambda: self.shows(result),
            f"{result!r} after a click on {name!r}",
        )

    @staticmethod
    def _shown(window, name):
        return any("showing" in node.states for node in window.find(name=name))


def booked(home, name):
    """The seconds of the games in a counter file."""
    return sum(row.get(GAMES, 0) for row in home.read(name).values())


@contextmanager
def running(name):
    """A program with an earned game, and its mini-arcade."""
    with World(name, accessibility=True, size=(WIDTH, HEIGHT)) as world:
        world.home.write_settings(**EARNED_GAME)
        program = world.start_program()
        yield world, program, Arcade(world, program)


class Games(unittest.TestCase):
    def test_an_earned_game_is_played_and_its_seconds_are_booked_to_the_games(self):
        with running("games") as (world, program, arcade):
            arcade.open()
            arcade.wait_for("¡PARTIDA LISTA!")
            world.screenshot("ready", arcade.frame())
            began = EventTime.of(lambda: arcade.click("JUGAR TETRIS", "Tetris, en juego"))
            self.assertEqual(world.home.setting("gate.ready"), "false", "the game is spent")

            until = time.monotonic() + SECONDS_OF_PLAY
            while time.monotonic() < until:
                world.input.key("Left", "Up", "Right", "Down")
            world.screenshot("playing", arcade.frame())
            world.input.key("p")
            arcade.wait_for("PAUSA")
            arcade.click("Continuar", "Tetris, en juego")
            while not arcade.shows("GAME OVER"):
                world.input.key("space")
            world.screenshot("over", arcade.frame())
            self.assertFalse(arcade.shows("EN PAUSA"), "the final board stays")
            ended = EventTime.of(lambda: arcade.click("Salir", "EN PAUSA"))
            world.screenshot("locked", arcade.frame())
            world.stop_program(program)

            seconds = booked(world.home, "apps.json")
            Elapsed.between(began, ended).assert_counted(seconds)
            self.assertGreaterEqual(seconds, SECONDS_OF_PLAY - 2)
            self.assertEqual(booked(world.home, "hours.json"), seconds)
            self.assertEqual(booked(world.home, "minutes.json"), seconds)
            self.assertGreater(int(world.home.setting("tetrisHighScore")), 0)

    def test_closing_the_window_during_a_game_ends_the_session_and_reopening_shows_the_lock(self):
        with running("games-closed") as (world, program, arcade):
            arcade.open()
            began = EventTime.of(lambda: arcade.click("JUGAR TETRIS", "Tetris, en juego"))
            ended = EventTime.of(arcade.close)
            arcade.open()
            arcade.wait_for("EN PAUSA")
            # Long enough for seconds to be booked that must not be.
            time.sleep(SECONDS_OF_PLAY)
            world.stop_program(program)

            Elapsed.between(began, ended).assert_counted(booked(world.home, "apps.json"))
            self.assertEqual(world.home.setting("gate.ready"), "false")


if __name__ == "__main__":
    unittest.main()
