#!/usr/bin/env python3
"""A second, slow implementation of both games, written for being checked by eye.

Usage: slow_games.py check|write GOLDEN_DIRECTORY

Plays the scripts of the golden files and compares what it gets with what the files say, or writes them. The
program's own games are compared with the same files.
"""

import math
import random
import sys
from pathlib import Path

# --- falling blocks -------------------------------------------------------------------------------------------

ROWS, COLUMNS = 18, 10

PIECES = {
    "I": ["....", "####", "....", "...."],
    "J": ["#..", "###", "..."],
    "L": ["..#", "###", "..."],
    "O": ["##", "##"],
    "S": [".##", "##.", "..."],
    "T": [".#.", "###", "..."],
    "Z": ["##.", ".##", "..."],
}
LETTERS = "IJLOSTZ"


def turned_clockwise(picture):
    return ["".join(column) for column in zip(*reversed(picture))]


def picture_of(letter, rot):
    picture = PIECES[letter]
    for _ in range(rot):
        picture = turned_clockwise(picture)
    return picture


class SlowTetris:
    """The board is a set of (row, column, letter); time is in milliseconds."""

    def __init__(self, pieces):
        self.pieces = iter(pieces)
        self.settled = {}
        self.score = self.lines = self.ticks = self.now = 0
        self.level = 1
        self.over = False
        self.paused = False
        self.next = next(self.pieces)
        self.due = self.interval()
        self.spawn()

    def interval(self):
        return round(max(0.55 - 0.045 * (self.level - 1), 0.09) * 1000)

    def spawn(self):
        self.letter, self.rot, self.top, self.left = self.next, 0, 0, 3
        self.next = next(self.pieces)
        self.over = not self.fits(0, 3, 0)

    def cells(self, top, left, rot):
        picture = picture_of(self.letter, rot)
        return [
            (top + r, left + c) for r, row in enumerate(picture) for c, mark in enumerate(row) if mark == "#"
        ]

    def fits(self, top, left, rot):
        return all(
            r < ROWS and 0 <= c < COLUMNS and (r, c) not in self.settled for r, c in self.cells(top, left, rot)
        )

    def wait(self, milliseconds):
        end = self.now + milliseconds
        while not self.over and not self.paused and self.due <= end:
            self.now = self.due
            self.due += self.interval()
            self.ticks += 1
            if self.fits(self.top + 1, self.left, self.rot):
                self.top += 1
            else:
                self.settle()
        self.now = end

    def press(self, key):
        if self.over or self.paused:
            return
        if key in "<>":
            left = self.left + (1 if key == ">" else -1)
            if self.fits(self.top, left, self.rot):
                self.left = left
        elif key == "v":
            if self.fits(self.top + 1, self.left, self.rot):
                self.top += 1
                self.score += 1
        elif key == "^":
            rot = (self.rot + 1) % 4
            for shift in (0, -1, 1, -2, 2):
                if self.fits(self.top, self.left + shift, rot):
                    self.left += shift
                    self.rot = rot
                    break
        elif key == "_":
            while self.fits(self.top + 1, self.left, self.rot):
                self.top += 1
                self.score += 2
            self.settle()

    def settle(self):
        for cell in self.cells(self.top, self.left, self.rot):
            self.settled[cell] = self.letter
        full = [r for r in range(ROWS) if all((r, c) in self.settled for c in range(COLUMNS))]
        for gone in full:
            self.settled = {
                (r + 1 if r < gone else r, c): letter for (r, c), letter in self.settled.items() if r != gone
            }
        if full:
            self.lines += len(full)
            self.score += {1: 100, 2: 300, 3: 500, 4: 800}[len(full)] * self.level
            level = self.lines // 10 + 1
            if level != self.level:
                self.level = level
                self.due = self.now + self.interval()
        self.spawn()

    def drawing(self, with_piece=True):
        board = [["."] * COLUMNS for _ in range(ROWS)]
        for (r, c), letter in self.settled.items():
            board[r][c] = letter
        if with_piece:
            for r, c in self.cells(self.top, self.left, self.rot):
                board[r][c] = "#"
        return ["".join(row) for row in board]


def rotation_boards():
    """Every piece in every rotation, turned once more at both walls, on the floor, in a well and on a post."""
    down = "v" * 18
    places = {  # name: pieces and keys of the ground, keys of the piece, rows shown
        "at the left wall": ("", "", "<" * 8, range(0, 4)),
        "at the right wall": ("", "", ">" * 8, range(0, 4)),
        "on the floor": ("", "", down, range(13, 18)),
        "in a well": ("OOOOOOOO", "<<<_<_>>>_>>>>>_" * 2, "<" * 8 + ">" * 4 + down, range(9, 18)),
        "on a post": ("I", "^<_", down, range(9, 18)),
    }
    lines = []
    for letter in LETTERS:
        for rot in range(4):
            for place, (ground, ground_keys, keys, shown) in places.items():
                game = SlowTetris([*ground, letter, letter])
                for key in ground_keys + "^" * rot + keys:
                    game.press(key)
                before = game.drawing()
                game.press("^")
                after = game.drawing()
                lines.append(f"{letter}, rotation {rot}, {place}")
                lines += [f"{before[r]}  {after[r]}" for r in shown]
                lines.append("")
    return lines


def tetris_script(seed, packing):
    """Random pieces and keys; a packing player drops pieces where they make the fewest holes."""
    dice = random.Random(seed)
    pieces, keys = [], []

    def drawn():
        while True:
            pieces.append(dice.choice(LETTERS))
            yield pieces[-1]

    game = SlowTetris(drawn())
    while not game.over and len(keys) < 2000:
        for key in best_keys(game) if packing else [dice.choice("<>v^_^<>")]:
            delay = dice.choice([0, 15, 33, 80, 250]) if packing else dice.randrange(0, 700)
            keys.append((delay, key))
            game.wait(delay)
            game.press(key)
        if packing and game.lines >= 24:
            packing = False
    return pieces, keys


def best_keys(game):
    best = None
    for rot in range(4):
        for left in range(-2, COLUMNS):
            if not game.fits(game.top, left, rot):
                continue
            top = game.top
            while game.fits(top + 1, left, rot):
                top += 1
            cells = game.cells(top, left, rot)
            holes = sum((r + 1, c) not in game.settled and (r + 1, c) not in cells and r + 1 < ROWS for r, c in cells)
            cost = 20 * holes - sum(r for r, _ in cells)
            if best is None or cost < best[0]:
                best = (cost, rot, left)
    _, rot, left = best
    shift = left - game.left
    return ["^"] * rot + ["<" if shift < 0 else ">"] * abs(shift) + ["_"]


def played_tetris(pieces, keys):
    game = SlowTetris(iter(pieces))
    for delay, key in keys:
        game.wait(delay)
        game.press(key)
    return [
        f"state {'over' if game.over else 'playing'}",
        f"score {game.score}",
        f"lines {game.lines}",
        f"level {game.level}",
        f"ticks {game.ticks}",
        f"next {game.next}",
        *game.drawing(with_piece=False),
    ]


# --- bricks ---------------------------------------------------------------------------------------------------


class SlowBricks:
    """One step at a time, in the order of the rules."""

    def __init__(self, signs):
        self.signs = iter(signs)
        self.score, self.lives, self.level, self.paddle, self.steps = 0, 3, 1, 75.0, 0
        self.over = False
        self.bricks = {(c, r) for r in range(5) for c in range(6)}
        self.reset_ball()

    def reset_ball(self):
        self.launched = False
        self.x, self.y = self.paddle, 231.0
        speed = [2.8, 5.0, 7.8, 11.2][min(self.level, 4) - 1]
        self.dx = 0.4 if next(self.signs) == "+" else -0.4
        self.dy = -speed

    def press(self, key):
        if self.over:
            return
        if key == "_":
            self.launched = True
        else:
            self.paddle = min(max(self.paddle + (14 if key == ">" else -14), 20.0), 130.0)
            if not self.launched:
                self.x = self.paddle

    def step(self):
        if self.over:
            return
        self.steps += 1
        if not self.launched:
            return
        before = self.y
        self.x += self.dx
        self.y += self.dy
        if self.x < 4:
            self.x, self.dx = 4.0, abs(self.dx)
        if self.x > 146:
            self.x, self.dx = 146.0, -abs(self.dx)
        if self.y < 4:
            self.y, self.dy = 4.0, abs(self.dy)
        half = max(40 - 6 * (self.level - 1), 20) / 2
        if self.dy > 0 and self.y + 4 >= 232.5 and self.y < 239.5 and abs(self.x - self.paddle) <= half + 4:
            t = max(-1.0, min(1.0, (self.x - self.paddle) / half))
            speed = max(math.sqrt(self.dx * self.dx + self.dy * self.dy), 2.8)
            self.dx = speed * math.sin(t * 1.0471975511965976)
            self.dy = -abs(speed * math.cos(t * 1.0471975511965976))
            self.y = 228.5
        for r in range(5):
            hit = False
            for c in range(6):
                left, top = 3 + 24.5 * c, 10 + 14 * r
                right, bottom = left + 21.5, top + 11
                if (c, r) in self.bricks and left - 4 <= self.x < right + 4 and top - 4 <= self.y < bottom + 4:
                    self.bricks.remove((c, r))
                    self.score += 10
                    if before <= top or before >= bottom:
                        self.dy = -self.dy
                    else:
                        self.dx = -self.dx
                    hit = True
                    break
            if hit:
                break
        if self.y > 256:
            self.lives -= 1
            if self.lives < 1:
                self.over = True
            else:
                self.reset_ball()
        if not self.bricks:
            self.level += 1
            self.score += 50
            self.bricks = {(c, r) for r in range(5) for c in range(6)}
            self.reset_ball()

    def drawing(self):
        return ["".join("#" if (c, r) in self.bricks else "." for c in range(6)) for r in range(5)]


def bricks_script(seed, care, longest):
    """A player that follows the ball in `care` of ten steps, aiming beside the paddle's middle."""
    dice = random.Random(seed)
    signs, keys = [], []

    def drawn():
        while True:
            signs.append(dice.choice("+-"))
            yield signs[-1]

    game = SlowBricks(drawn())
    waited, aim = 0, 0
    while not game.over and game.steps < longest:
        key = None
        if not game.launched:
            key = "_" if waited > 20 else None
        elif dice.randrange(10) < care:
            if game.dy < 0:
                aim = dice.uniform(-12, 12)
            away = game.x + aim - game.paddle
            if abs(away) > 8:
                key = ">" if away > 0 else "<"
        if key:
            keys.append((waited, key))
            game.press(key)
            waited = 0
        game.step()
        waited += 1
    keys.append((waited, "<"))
    return signs, keys


def played_bricks(signs, keys):
    game = SlowBricks(iter(signs))
    for steps, key in keys:
        for _ in range(steps):
            game.step()
        game.press(key)
    return [
        f"state {'over' if game.over else 'playing'}",
        f"score {game.score}",
        f"lives {game.lives}",
        f"level {game.level}",
        f"steps {game.steps}",
        f"paddle {game.paddle:.1f}",
        f"ball {game.x:.6f} {game.y:.6f}",
        *game.drawing(),
    ]


# --- the golden files -----------------------------------------------------------------------------------------


def script_text(draws, keys):
    return [f"draws {''.join(draws)}", "keys " + " ".join(f"{wait}{key}" for wait, key in keys)]


def script_of(lines):
    draws = lines[0].removeprefix("draws ")
    keys = [(int(each[:-1]), each[-1]) for each in lines[1].removeprefix("keys ").split()]
    return draws, keys


PLAYERS = {
    "tetris_random_keys.txt": lambda: tetris_script(1, packing=False),
    "tetris_to_level_three.txt": lambda: tetris_script(2, packing=True),
    "tetris_other_random_keys.txt": lambda: tetris_script(3, packing=False),
    "bricks_lost_early.txt": lambda: bricks_script(4, care=4, longest=20_000),
    "bricks_to_the_third_level.txt": lambda: bricks_script(5, care=10, longest=20_000),
    "bricks_unfinished.txt": lambda: bricks_script(6, care=10, longest=3_000),
}


def result_of(name, draws, keys):
    return played_tetris(draws, keys) if name.startswith("tetris") else played_bricks(draws, keys)


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("check", "write"):
        print(__doc__, file=sys.stderr)
        return 2
    folder = Path(sys.argv[2])
    wrong = []
    texts = {"tetris_rotations.txt": rotation_boards()}
    for name, make_script in PLAYERS.items():
        if sys.argv[1] == "write":
            draws, keys = make_script()
        else:
            draws, keys = script_of((folder / name).read_text().splitlines())
        texts[name] = script_text(draws, keys) + result_of(name, draws, keys)
    for name, lines in texts.items():
        text = "\n".join(lines) + "\n"
        if sys.argv[1] == "write":
            (folder / name).write_text(text)
        elif (folder / name).read_text() != text:
            wrong.append(name)
    for name in wrong:
        print(f"{name} is not what the slow games make of it")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
