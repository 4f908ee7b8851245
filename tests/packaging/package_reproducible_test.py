#!/usr/bin/env python3
"""The same commit, built in another folder, by another user's settings and without a cache of compiled files, gives the
same package, byte for byte."""

import os
import tempfile
import unittest
from pathlib import Path

from commands import built_package, run

ROOT = Path(__file__).resolve().parents[2]


class Package(unittest.TestCase):
    def test_another_folder_and_other_settings_give_the_same_bytes(self):
        self.assertEqual(run("git", "-C", ROOT, "status", "--porcelain"), "", "what is compared are packages of one commit")
        with tempfile.TemporaryDirectory() as folder:
            clone = Path(folder) / "in/quite/another/place"
            run("git", "clone", "--quiet", "--no-hardlinks", ROOT, clone)
            settings = {"CCACHE_DISABLE": "1", "TZ": "Pacific/Auckland", "LANG": "C", "CXXFLAGS": "-O0"}
            run(clone / "package", env={**os.environ, **settings}, umask=0o077)
            here, there = built_package(ROOT), built_package(clone)
            self.assertEqual(here.name, there.name)
            self.assertTrue(here.read_bytes() == there.read_bytes(), f"{here} is another than that of {clone}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
