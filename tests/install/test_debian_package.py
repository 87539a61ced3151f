"""The Debian package holds what is installed, and what Debian asks of a package."""

from __future__ import annotations

import gzip
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = Path(os.environ["BUILD"])
# Stands in the copyright file, to which a link of this name leads.
LICENCE = "usr/share/doc/vendlingua/LICENSE"
OF_DEBIAN = {"usr/share/doc/vendlingua/copyright", "usr/share/doc/vendlingua/changelog.gz"}


def files_below(folder: Path) -> set[str]:
    return {p.relative_to(folder).as_posix() for p in folder.rglob("*") if p.is_symlink() or p.is_file()}


class DebianPackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        config = BUILD / "CPackConfig.cmake"
        cpack = Path(os.environ["CMAKE"]).with_name("cpack")
        cls.run_tool(cpack, "-G", "DEB", "-B", cls.folder, "--config", config)
        cls.package = next(cls.folder.glob("*.deb"))
        cls.run_tool("dpkg-deb", "-R", cls.package, cls.folder / "unpacked")
        cls.unpacked = cls.folder / "unpacked"

    @staticmethod
    def run_tool(*command: str | Path) -> str:
        done = subprocess.run(command, capture_output=True, text=True)
        assert done.returncode == 0, done.stdout + done.stderr
        return done.stdout

    def field(self, name: str) -> str:
        return self.run_tool("dpkg-deb", "-f", self.package, name).strip()

    def test_it_holds_what_is_installed(self) -> None:
        installed = self.folder / "installed"
        self.run_tool(os.environ["CMAKE"], "--install", BUILD, "--prefix", installed / "usr")
        held = {f for f in files_below(self.unpacked) if not f.startswith("DEBIAN/")}
        self.assertEqual(held, files_below(installed) | OF_DEBIAN)

    def test_the_licence_is_that_of_the_sources(self) -> None:
        held = (self.unpacked / LICENCE).read_text(encoding="utf-8").replace("\n .\n", "\n \n")
        licence = (Path(os.environ["SOURCES"]) / "LICENSE").read_text(encoding="utf-8")
        terms = licence[licence.index("Permission") :].split()
        self.assertIn(" ".join(terms), " ".join(held.split()))

    def test_version_and_name(self) -> None:
        version = os.environ["VENDLINGUA_VERSION"]
        self.assertEqual(self.field("Version"), version)
        changelog = gzip.decompress((self.unpacked / "usr/share/doc/vendlingua/changelog.gz").read_bytes())
        self.assertTrue(changelog.startswith(f"vendlingua ({version}) ".encode()))
        self.assertRegex(self.field("Maintainer"), r"^Vendlingua developers <\S+@\S+>$")

    def test_it_needs_the_libraries_that_it_loads(self) -> None:
        needed = set(re.findall(r"[a-z0-9.+-]+(?= \(|,|$)", self.field("Depends")))
        self.assertLessEqual({"libc6", "libcsv3", "libqt6widgets6"}, needed)

    def test_programs_are_stripped(self) -> None:
        for program in ("vendlingua", "vendlingua-cli"):
            sections = self.run_tool("readelf", "-SW", self.unpacked / "usr/lib/vendlingua" / program)
            self.assertNotIn(".symtab", sections)

    def test_no_language_is_chosen_for_anybody(self) -> None:
        self.assertFalse((self.unpacked / "usr/lib/vendlingua/vendlingua.ini").exists())


if __name__ == "__main__":
    unittest.main()
