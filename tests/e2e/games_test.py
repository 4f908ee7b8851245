"""The mini-arcade in the demonstration's window: an earned game is played with real keys, and its time is booked."""

import time
import unittest
from contextlib import contextmanager

from harness.accessibility import wait_for_window
from harness.timing import Elapsed, EventTime
from harness.waiting import repeat_until, wait_until
from harness.world import World

TITLE = "Mini-Arcade"
GAMES = "com.brightlooms.fathom.games"
SECONDS_OF_PLAY = 5

CHARGED = {"gate.initialized": "true", "gate.workSeconds": 3600, "gate.ready": "true", "gate.lockedUntil": 0}


class Arcade:
    """The window, operated by input events and read through the accessibility bus."""

    def __init__(self, world, program):
        self._world = world
        self._pid = program.pid

    def open(self):
        """It comes with the statistics, which a second start of the program shows."""
        self._world.start_program(wait_for_clock=False).wait()
        wait_until(self._world.statistics, "the statistics window")
        wait_until(self.window, "the mini-arcade")
        self._bring_to_front()

    def window(self):
        return self._world.screen.window(title=TITLE)

    def wait_for(self, name, role=None):
        """The object with this name, once it is on the screen."""
        return self._shown(self._read(lambda window: self._shown(window, name, role), repr(name)), name, role)[0]

    def shows(self, name):
        return bool(self._shown(self._read(), name))

    def click(self, name, result):
        """Clicks the button until `result` is on the screen: the statistics may come late and cover the first click."""
        def click():
            self._bring_to_front()
            self._world.input.click(*self.wait_for(name, "push button").frame().centre)

        repeat_until(click, lambda: self.shows(result), f"{result!r} after a click on {name!r}")

    def close(self):
        self._world.input.key("alt+F4")
        wait_until(lambda: self.window() is None, "the mini-arcade to close")

    def _bring_to_front(self):
        self._world.input.focus(self.window().id)

    def _read(self, condition=lambda window: True, what="the mini-arcade"):
        return wait_for_window(self._world.accessibility, self._pid, TITLE, condition, what)

    @staticmethod
    def _shown(window, name, role=None):
        return [node for node in window.find(role, name) if "showing" in node.states]


def booked(home, name):
    """The seconds of the games in a counter file."""
    return sum(row.get(GAMES, 0) for row in home.read(name).values())


@contextmanager
def running(name):
    """A program with an earned game, and its mini-arcade."""
    with World(name, accessibility=True) as world:
        world.home.write_settings(**CHARGED)
        program = world.start_program()
        yield world, program, Arcade(world, program)


class Games(unittest.TestCase):
    def test_an_earned_game_is_played_and_its_seconds_are_booked_to_the_games(self):
        with running("games") as (world, program, arcade):
            arcade.open()
            arcade.wait_for("¡PARTIDA LISTA!")
            world.screenshot("ready", arcade.window().frame)
            began = EventTime.of(lambda: arcade.click("JUGAR TETRIS", "Tetris, en juego"))
            self.assertEqual(world.home.setting("gate.ready"), "false", "the game is spent")

            until = time.monotonic() + SECONDS_OF_PLAY
            while time.monotonic() < until:
                world.input.key("Left", "Up", "Right", "Down")
            world.screenshot("playing", arcade.window().frame)
            world.input.key("p")
            arcade.wait_for("PAUSA")
            arcade.click("Continuar", "Tetris, en juego")
            while not arcade.shows("GAME OVER"):
                world.input.key("space")
            world.screenshot("over", arcade.window().frame)
            self.assertFalse(arcade.shows("EN PAUSA"), "the final board stays")
            ended = EventTime.of(lambda: arcade.click("Salir", "EN PAUSA"))
            world.screenshot("locked", arcade.window().frame)
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
