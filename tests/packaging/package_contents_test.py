#!/usr/bin/env python3
"""The Debian package of this build: what lies where, how the program is linked, what it needs, what the checkers say.

Takes the build from TIDEWATCH_BUILD. Needs no network.
"""

import os
import re
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree
from pathlib import Path

from commands import SECONDS, run

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["TIDEWATCH_BUILD"])
ID = "com.brightlooms.tidewatch"
PROGRAM = "usr/bin/tidewatch"
ENTRY = f"usr/share/applications/{ID}.desktop"
METAINFO = f"usr/share/metainfo/{ID}.metainfo.xml"
MANUAL = "usr/share/man/man1/tidewatch.1.gz"
DOCUMENTS = "usr/share/doc/tidewatch"
ICONS = "usr/share/icons/hicolor"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
LICENCE_WORDS = {"Fraunces": "The Fraunces Project Authors", "IBMPlexMono": "IBM Corp"}


def packages_of(section):
    """The names in a section of the list of packages."""
    text = (ROOT / "cmake/packages.txt").read_text(encoding="utf-8")
    rows = text.split(f"[{section}]\n")[1].split("\n[")[0].splitlines()
    return [row.split()[0] for row in rows if row.strip() and not row.startswith("#")]


def setUpModule():
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    Package.package = Path(run(ROOT / "packaging/make-deb", BUILD, folder.name).strip())
    Package.tree = Path(folder.name) / "tree"
    run("dpkg-deb", "--extract", Package.package, Package.tree)


class Package(unittest.TestCase):
    def field(self, name):
        return run("dpkg-deb", "--field", self.package, name).strip()

    def dependencies(self):
        return [part.split()[0] for part in self.field("Depends").split(", ")]


class Contents(Package):
    def test_every_file_is_where_the_desktop_expects_it_and_there_is_no_other(self):
        expected = {
            PROGRAM, ENTRY, METAINFO, MANUAL,
            f"{DOCUMENTS}/copyright", f"{DOCUMENTS}/changelog.gz", f"{DOCUMENTS}/NEWS.gz",
            f"{ICONS}/scalable/apps/{ID}.svg", *(f"{ICONS}/{size}x{size}/apps/{ID}.png" for size in SIZES),
        }
        typefaces = {f"usr/share/tidewatch/Fonts/{file.name}" for file in (BUILD / "resources/Fonts").glob("*.ttf")}
        files = {file.relative_to(self.tree).as_posix() for file in self.tree.rglob("*") if not file.is_dir()}
        self.assertEqual(files, expected | typefaces)

    def test_everything_is_roots_and_readable_by_all(self):
        for row in run("dpkg-deb", "--contents", self.package).splitlines():
            mode, owner = row.split()[:2]
            program = row.endswith(f"/{PROGRAM}")
            self.assertIn(mode, ("drwxr-xr-x", "-rwxr-xr-x" if program else "-rw-r--r--"), row)
            self.assertEqual(owner, "root/root", row)

    def test_the_icons_have_their_sizes(self):
        for size in SIZES:
            header = (self.tree / f"{ICONS}/{size}x{size}/apps/{ID}.png").read_bytes()[:24]
            self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", header[16:]), (size, size))
        picture = xml.etree.ElementTree.parse(self.tree / f"{ICONS}/scalable/apps/{ID}.svg").getroot()
        self.assertEqual(picture.get("viewBox"), "0 0 160 160")

    def test_each_typeface_has_its_licence(self):
        copyright = (self.tree / DOCUMENTS / "copyright").read_text(encoding="utf-8")
        self.assertIn((ROOT / "LICENSE").read_text(encoding="utf-8"), copyright)
        families = {file.name.split("-")[0] for file in self.tree.glob("usr/share/tidewatch/Fonts/*.ttf")}
        for family in families:
            self.assertIn(f"{family}* in /usr/share/tidewatch/Fonts", copyright)
            self.assertIn(LICENCE_WORDS[family], copyright)
        self.assertEqual(copyright.count("SIL OPEN FONT LICENSE Version 1.1"), len(families))

    def test_what_starts_the_program_and_what_shows_it_go_by_the_same_names(self):
        entry = (self.tree / ENTRY).read_text(encoding="utf-8")
        for row in ("Exec=tidewatch", f"Icon={ID}", "StartupWMClass=tidewatch"):
            self.assertIn(f"\n{row}\n", entry)
        metainfo = xml.etree.ElementTree.parse(self.tree / METAINFO).getroot()
        self.assertEqual(metainfo.findtext("id"), ID)
        self.assertEqual(metainfo.findtext("launchable"), f"{ID}.desktop")
        self.assertEqual(metainfo.findtext("provides/binary"), "tidewatch")
        # In the sources of the window, the autostart entry and the message's sender.
        for source in ("app/desktop/application.cpp", "platform/freedesktop/autostart_login_item.cpp",
                       "platform/freedesktop/desktop_notifications.cpp"):
            self.assertIn(f'{ID}', (ROOT / "src" / source).read_text(encoding="utf-8"))

    def test_the_manual_names_where_the_data_lies_and_how_the_program_ends(self):
        manual = run("man", "-l", self.tree / MANUAL, env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "200"})
        for words in ("~/.tidewatch", "~/.config/brightlooms/tidewatch.conf", f"~/.config/autostart/{ID}.desktop",
                      "EXIT STATUS", "DISPLAY"):
            self.assertIn(words, manual)


class Checkers(Package):
    def test_lintian_finds_nothing(self):
        self.assertEqual(run("lintian", "--fail-on", "error,warning", self.package), "")

    def test_the_desktop_entry_is_valid(self):
        self.assertEqual(run("desktop-file-validate", self.tree / ENTRY), "")

    def test_the_metainfo_is_valid(self):
        run("appstreamcli", "validate", "--no-net", "--pedantic", self.tree / METAINFO)

    def test_the_manual_is_valid(self):
        page = subprocess.run(
            ["man", "--warnings", "--encoding=UTF-8", "--local-file", "--troff-device=utf8", "--ditroff", self.tree / MANUAL],
            env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"}, capture_output=True, timeout=SECONDS,
        )
        self.assertEqual((page.returncode, page.stderr), (0, b""))


class Program(Package):
    def elf(self, *options):
        return run("readelf", "--wide", *options, self.tree / PROGRAM)

    def test_it_is_stripped(self):
        self.assertNotIn(".symtab", self.elf("--section-headers"))

    def test_it_is_position_independent_and_its_tables_are_read_only_before_it_starts(self):
        self.assertIn("DYN (Position-Independent Executable file)", self.elf("--file-header"))
        self.assertIn("GNU_RELRO", self.elf("--program-headers"))
        self.assertRegex(self.elf("--program-headers"), r"GNU_STACK .* RW ")
        self.assertRegex(self.elf("--dynamic"), r"FLAGS_1.*\bNOW\b")

    def test_overwritten_stacks_and_buffers_end_it(self):
        symbols = self.elf("--dyn-syms")
        self.assertIn("__stack_chk_fail", symbols)
        self.assertRegex(symbols, r"__\w+_chk@")

    def test_it_searches_libraries_in_no_folder_of_its_own(self):
        self.assertNotRegex(self.elf("--dynamic"), r"RPATH|RUNPATH")

    def test_it_names_no_folder_of_the_machine_that_it_was_built_on(self):
        content = (self.tree / PROGRAM).read_bytes()
        for folder in (ROOT, BUILD):
            self.assertNotIn(str(folder).encode(), content)


class Dependencies(Package):
    def test_they_are_what_the_program_is_linked_with_and_what_it_loads(self):
        linked = set(re.findall(r"\(NEEDED\).*\[(.+)\]", run("readelf", "--wide", "--dynamic", self.tree / PROGRAM)))
        owners = set()
        for row in run("ldd", self.tree / PROGRAM).splitlines():
            name, _, path = row.strip().partition(" => ")
            if name in linked:
                owners.add(self.owner(path.split()[0]))
        loaded = packages_of("run")
        self.assertEqual(sorted(self.dependencies()), sorted(owners | set(loaded)))

    @staticmethod
    def owner(path):
        # Where /lib is /usr/lib, the package may list either.
        for spelling in (path, "/usr" + path, os.path.realpath(path)):
            found = subprocess.run(["dpkg", "--search", spelling], capture_output=True, text=True, timeout=SECONDS)
            if found.returncode == 0:
                return found.stdout.split(":")[0]
        raise AssertionError(f"{path} is in no package")

    def test_no_library_is_linked_for_nothing(self):
        said = subprocess.run(["ldd", "--unused", self.tree / PROGRAM], capture_output=True, text=True, timeout=SECONDS)
        # The C++ library links it for everybody.
        unused = {Path(row.strip()).name for row in said.stdout.splitlines()[1:]} - {"libm.so.6"}
        self.assertEqual(unused, set())

    def test_the_version_is_that_of_the_commit(self):
        self.assertRegex(self.field("Version"), r"^\d+\.\d+\.\d+(~git\d{8}\.\d{6}(\+changed)?)?$")


if __name__ == "__main__":
    unittest.main(verbosity=2)
