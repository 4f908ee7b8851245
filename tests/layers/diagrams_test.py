#!/usr/bin/env python3
"""Tests of diagrams.py: whatever the table or the sources do not bear out is found."""

import tempfile
import unittest
from pathlib import Path
from unittest import mock

import diagrams
from diagrams import Step

PAGE = "\n".join(
    f"<!-- diagram: {name} -->\n<!-- end of the diagram -->\n" for name in ("rooms", "one second")
)


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.use(diagrams, "SECOND", ())

    def use(self, module, name, value):
        patch = mock.patch.object(module, name, value)
        patch.start()
        self.addCleanup(patch.stop)

    def write(self, path, text=""):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def lines(self):
        return diagrams.draw_rooms(self.root)[0]

    def objections(self, step):
        return list(diagrams.objections_to(self.root, step))


class Rooms(Tree):
    def test_a_room_without_files_is_not_drawn(self):
        self.write("base/signal.h")
        self.write("core/views/View.qml")
        drawn = "\n".join(self.lines())
        self.assertIn('base["base"]', drawn)
        self.assertNotIn("core", drawn)

    def test_what_is_reached_by_way_of_another_room_has_no_arrow_of_its_own(self):
        for room in ("base", "platform/api", "core"):
            self.write(f"{room}/a.h")
        arrows = [line.strip() for line in self.lines() if "-->" in line]
        self.assertEqual(arrows, ["core --> platform_api", "platform_api --> base"])

    def test_what_no_other_room_leads_to_keeps_its_arrow(self):
        for room in ("base", "core"):
            self.write(f"{room}/a.h")
        self.assertIn("    core --> base", self.lines())

    def test_a_room_in_no_group_is_found(self):
        self.write("base/a.h")
        self.use(diagrams, "GROUPS", {"the domain": ("core",)})
        self.assertEqual(diagrams.draw_rooms(self.root)[1], ["base is in no group of the diagram"])


class Steps(Tree):
    def test_a_call_that_the_sources_have_is_drawn(self):
        self.write("core/a.cpp", "notifications.check();")
        self.write("core/b.h", "class Store { void set(int); };")
        self.write("shell/a.cpp", "store.set(1);")
        self.assertEqual(self.objections(Step("shell", "core", "Store::set")), [])

    def test_a_call_that_the_table_forbids_is_found(self):
        self.write("shell/a.h", "class Bar { void show(); };")
        self.write("core/a.cpp", "bar.show();")
        self.assertEqual(self.objections(Step("core", "shell", "Bar::show")), ["core does not know shell"])

    def test_an_operation_that_is_gone_is_found(self):
        self.write("core/a.h", "class Store { void put(int); };")
        self.write("shell/a.cpp", "store.set(1);")
        self.assertEqual(self.objections(Step("shell", "core", "Store::set")), ["core has no Store::set"])

    def test_a_call_that_nobody_makes_any_more_is_found(self):
        self.write("core/a.h", "class Store { void set(int); };")
        self.write("shell/a.cpp", "store.put(1);")
        self.assertEqual(self.objections(Step("shell", "core", "Store::set")), ["shell does not call Store::set"])

    def test_an_interface_that_one_side_does_not_use_is_found(self):
        step = Step("core", "wellbeing", "Gate::tick", "Listener", "core")
        self.write("core/a.h", "class Listener {};")
        self.write("wellbeing/a.h", "class Gate { void tick(); };")
        self.assertEqual(self.objections(step), ["wellbeing does not use Listener"])
        self.write("wellbeing/a.h", "class Gate : Listener { void tick(); };")
        self.assertEqual(self.objections(step), [])

    def test_an_interface_that_one_side_must_not_know_is_found(self):
        step = Step("core", "platform/qt", "Clock::now", "Listener", "core")
        self.write("core/a.h", "class Listener {};")
        self.write("platform/qt/a.h", "class Clock : Listener { void now(); };")
        self.assertEqual(self.objections(step), ["platform/qt does not know core, where Listener is"])


class Page(Tree):
    def test_the_diagrams_are_put_in_their_places_once_and_for_all(self):
        self.write("base/a.h")
        page, objections = diagrams.drawn(self.root, f"before\n{PAGE}after\n")
        self.assertEqual(objections, [])
        self.assertIn('base["base"]', page)
        self.assertTrue(page.startswith("before\n") and page.endswith("after\n"))
        self.assertEqual(diagrams.drawn(self.root, page), (page, []))

    def test_a_changed_diagram_is_another_one(self):
        self.write("base/a.h")
        page, _ = diagrams.drawn(self.root, PAGE)
        changed = page.replace('base["base"]', 'base["bass"]')
        self.assertNotEqual(changed, page)
        self.assertEqual(diagrams.drawn(self.root, changed)[0], page)

    def test_a_page_without_a_place_is_found(self):
        self.assertEqual(
            diagrams.drawn(self.root, PAGE.replace("one second", "two seconds"))[1],
            ["the page has 0 places for the diagram: one second"],
        )


if __name__ == "__main__":
    unittest.main(verbosity=2)
