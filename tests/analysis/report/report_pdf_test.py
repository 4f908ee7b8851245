"""The report's file, read back by tools that had no part in writing it."""

import json
import os
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

WRITER = os.environ["TIDEWATCH_WRITE_REPORTS"]
FONTS = os.environ["TIDEWATCH_FONTS"]
CASES = ("empty_month", "full_month", "long_names", "exceeded_goals")
XHTML = "{http://www.w3.org/1999/xhtml}"
TOLERANCE = 1.5  # points


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, timeout=60).stdout


def texts_of(page):
    """What is to be read; a text that begins where the one before it ends is one word with it."""
    texts = []
    for text in page["texts"]:
        last = texts[-1] if texts else None
        on_one_line = last and last["baseline"] == text["baseline"] and not text["right"]
        if on_one_line and abs(last["x"] + last["width"] - text["x"]) < 1:
            last["text"] += text["text"]
            last["width"] += text["width"]
        else:
            texts.append(text)
    return texts


class Word:
    def __init__(self, element):
        self.text = element.text
        self.left, self.top, self.right, self.bottom = (
            float(element.get(side)) for side in ("xMin", "yMin", "xMax", "yMax"))


class ReportPdfTest(unittest.TestCase):
    """`fonts`: a folder of typefaces to register, or nothing for those of the machine alone."""

    fonts = None

    @classmethod
    def setUpClass(cls):
        cls.directory = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.directory.cleanup)
        command = [WRITER, cls.directory.name] + ([cls.fonts] if cls.fonts else [])
        subprocess.run(command, check=True, timeout=60)

    def path(self, case, suffix):
        return str(Path(self.directory.name) / (case + suffix))

    def expected(self, case):
        return json.loads(Path(self.path(case, ".json")).read_text(encoding="utf-8"))

    def test_is_one_page_of_us_letter_with_its_title(self):
        for case in CASES:
            with self.subTest(case=case):
                info = dict(line.split(":", 1) for line in output_of("pdfinfo", self.path(case, ".pdf")).splitlines())
                self.assertEqual(info["Pages"].strip(), "1")
                self.assertTrue(info["Page size"].strip().startswith("612 x 792 pts"), info["Page size"])
                self.assertEqual(info["Title"].strip(), self.expected(case)["title"])

    def test_embeds_every_font_and_knows_its_letters(self):
        for case in CASES:
            with self.subTest(case=case):
                rows = output_of("pdffonts", self.path(case, ".pdf")).splitlines()[2:]
                self.assertGreaterEqual(len(rows), 3)
                for row in rows:
                    embedded, _subset, unicode_known = row.split()[-5:-2]
                    self.assertEqual((embedded, unicode_known), ("yes", "yes"), row)

    def test_draws_without_pictures(self):
        for case in CASES:
            with self.subTest(case=case):
                self.assertEqual(output_of("pdfimages", "-list", self.path(case, ".pdf")).splitlines()[2:], [])

    def test_shows_every_text_in_its_place_and_no_other(self):
        for case in CASES:
            with self.subTest(case=case):
                words = self.words_of(case)
                for text in texts_of(self.expected(case)):
                    own = [word for word in words if self.is_in_column(word, text)]
                    self.assert_shows(own, text)
                    words = [word for word in words if word not in own]
                self.assertEqual([word.text for word in words], [])

    def words_of(self, case):
        page = ElementTree.fromstring(output_of("pdftotext", "-bbox", self.path(case, ".pdf"), "-"))
        return [Word(element) for element in page.iter(XHTML + "word")]

    def is_in_column(self, word, text):
        on_its_line = word.top < text["baseline"] - 2 and word.bottom >= text["baseline"] - 0.5
        below_no_other = word.bottom < text["baseline"] + 12
        return (on_its_line and below_no_other and word.left >= text["x"] - TOLERANCE
                and word.right <= text["x"] + text["width"] + TOLERANCE)

    def assert_shows(self, words, text):
        self.assertTrue(words, f"{text} is not on the page")
        words.sort(key=lambda word: word.left)
        shown, wanted = " ".join(word.text for word in words), " ".join(text["text"].split())
        if shown.endswith("…"):
            self.assertTrue(wanted.startswith(shown[:-1]) and len(shown) > 8, f"{shown} for {wanted}")
            self.assertGreater(words[-1].right, text["x"] + text["width"] - 15, "cut too early")
        else:
            self.assertEqual(shown, wanted)
        if text["right"]:
            self.assertAlmostEqual(words[-1].right, text["x"] + text["width"], delta=TOLERANCE)
        else:
            self.assertAlmostEqual(words[0].left, text["x"], delta=TOLERANCE)

    def test_cuts_names_that_are_too_long(self):
        cut = [word.text for word in self.words_of("long_names") if word.text.endswith("…")]
        self.assertEqual(len(cut), 3, cut)

    def test_finds_names_that_other_typefaces_would_run_together(self):
        self.assertIn("Firefox", output_of("pdftotext", self.path("full_month", ".pdf"), "-"))


class ReportPdfWithBrandFontsTest(ReportPdfTest):
    """With the brand's typefaces, if they could be had when the program was built."""

    fonts = FONTS

    def cuts(self, case):
        """The cuts in the file, without the mark of a font of which only some letters are in it."""
        rows = output_of("pdffonts", self.path(case, ".pdf")).splitlines()[2:]
        return {row.split()[0].split("+")[-1] for row in rows}

    def test_every_text_is_drawn_in_the_cut_that_is_told(self):
        if not list(Path(FONTS).glob("*.ttf")):
            self.skipTest("the brand's typefaces could not be had")
        always = {
            "Fraunces-Regular",  # the name, the title
            "Fraunces-Medium",  # labels and headings
            "IBMPlexMono-Light",  # large figures
            "IBMPlexMono-Regular",  # small ones, the foot
            "IBMPlexMono-Medium",  # the period, the check marks
            "Inter-Regular",  # names
            "Inter-Light",  # the star
        }
        for case in CASES:
            with self.subTest(case=case):
                self.assertEqual(self.cuts(case), always)


if __name__ == "__main__":
    unittest.main()
