"""A floating window of the layer below, as the clock's window can be: its layer, its clicks, drags and corners."""

import os
import unittest
from contextlib import contextmanager

from harness.screen import distance
from harness.user_input import LEFT
from harness.waiting import stays, wait_until
from harness.world import World

NOTE = os.environ["TIDEWATCH_DESK_NOTE"]
WIDTH, HEIGHT = 240, 160
SHADOW = 18


@contextmanager
def note_on(name, stored=None, compositor=False):
    with World(f"floating-below-{name}") as world:
        world.stored = world.folder / "note.place"
        if stored:
            world.stored.write_text(stored)
        if compositor:
            world.compositor = world.start_compositor()
        world.note = world.start(NOTE, world.stored)
        wait_until(lambda: window(world), "the note")
        yield world


def window(world):
    return world.screen.window(title="Nota")


def place(world):
    frame = window(world).frame
    return frame.x, frame.y


def reported(world):
    return world.note.log().split()


class Layer(unittest.TestCase):
    def test_it_lies_below_others_on_every_workspace_without_focus_or_taskbar_entry(self):
        with note_on("layer") as world:
            terminal = world.open_terminal()
            note = window(world)
            self.assertTrue(terminal.frame.contains(*note.frame.centre), "the terminal lies elsewhere")
            # Also after it was clicked, where the terminal does not cover it.
            world.input.drag((note.frame.centre), (note.frame.centre))
            stacking = world.screen.stacking()
            self.assertLess(stacking.index(note.id), stacking.index(terminal.id))
            self.assertLessEqual(
                {"_NET_WM_STATE_BELOW", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"},
                world.screen.states(note.id),
            )
            self.assertEqual(world.screen.property(note.id, "_NET_WM_DESKTOP"), [0xFFFFFFFF])
            self.assertEqual(world.screen.active_window(), terminal.id)
            world.screen.select_desktop(1)
            wait_until(lambda: world.screen.window(window_class="WorkTerm") is None, "the other workspace")
            self.assertIsNotNone(window(world))

    def test_a_click_on_it_neither_raises_it_nor_takes_the_keyboard(self):
        with note_on("raise", stored="600 20") as world:
            terminal = world.open_terminal()
            note = window(world)
            self.assertFalse(terminal.frame.contains(note.frame.right - 5, note.frame.y + 5))
            world.input.click(note.frame.right - 30, note.frame.y + 10, LEFT)
            wait_until(lambda: "click" in reported(world), "the click")
            self.assertEqual(world.screen.active_window(), terminal.id)
            stacking = world.screen.stacking()
            self.assertLess(stacking.index(note.id), stacking.index(terminal.id))


class Gestures(unittest.TestCase):
    def test_a_drag_by_its_surface_moves_it_and_every_release_stores_the_place(self):
        with note_on("drag") as world:
            self.assertEqual(place(world), (60, 90))
            self.assertFalse(world.stored.exists())
            world.input.drag((200, 200), (450, 350))
            wait_until(lambda: place(world) == (310, 240), "the note at its new place")
            wait_until(lambda: reported(world) == ["place"], "the release")
            self.assertEqual(world.stored.read_text(), "310 240")
            world.input.drag((400, 350), (402, 352), steps=2)
            wait_until(lambda: reported(world) == ["place", "place", "click"], "the click")
            self.assertEqual(place(world), (310, 240))

    def test_it_comes_back_where_it_was_left(self):
        with note_on("stored", stored="700 500") as world:
            self.assertEqual(place(world), (700, 500))

    def test_a_control_in_it_is_worked_and_drags_nothing(self):
        with note_on("control") as world:
            world.input.drag((80, 110), (180, 160))
            wait_until(lambda: reported(world) == ["control"], "the control")
            stays(lambda: place(world) == (60, 90) and reported(world) == ["control"], "a note that stays")


class Ground(unittest.TestCase):
    def assert_corners(self, world, allowance):
        behind = world.screen.pixel(2, 2)

        def clean():
            corners = [world.screen.pixel(x, y) for x in (60, 299) for y in (90, 249)]
            return all(distance(corner, behind) <= allowance and corner != (0, 0, 0) for corner in corners)

        wait_until(clean, "clean corners")

    def test_without_a_compositor_it_is_opaque_and_cut_to_its_shape_and_follows_one_that_comes(self):
        with note_on("ground") as world:
            wait_until(lambda: world.screen.pixel(180, 170) == (200, 30, 30), "the opaque ground")
            self.assert_corners(world, allowance=3)
            compositor = world.start_compositor()
            wait_until(lambda: window(world).frame.width == WIDTH + 2 * SHADOW, "room for the shadow")
            wait_until(lambda: world.screen.pixel(180, 170) not in ((200, 30, 30), (0, 0, 0)), "the translucent ground")
            self.assertEqual(place(world), (60 - SHADOW, 90 - SHADOW))
            compositor.end()
            wait_until(lambda: window(world).frame.width == WIDTH, "the plain shape again")
            wait_until(lambda: world.screen.pixel(180, 170) == (200, 30, 30), "the opaque ground again")
            self.assert_corners(world, allowance=3)

    def test_the_margin_of_the_shadow_is_not_its_surface(self):
        with note_on("margin", stored="500 300", compositor=True) as world:
            wait_until(lambda: place(world) == (500 - SHADOW, 300 - SHADOW), "the note")
            world.input.drag((490, 380), (590, 380))
            stays(lambda: place(world) == (500 - SHADOW, 300 - SHADOW) and not reported(world), "a note that stays")
            world.input.drag((620, 380), (720, 380))
            wait_until(lambda: world.stored.read_text() == "600 300", "the place of the panel, not of the margin")


if __name__ == "__main__":
    unittest.main()
