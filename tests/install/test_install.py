"""What is installed works where it lies, and greets people in the language of their system."""

from __future__ import annotations

import contextlib
import ctypes
import os
import re
import select
import shutil
import subprocess
import tempfile
import unittest
from collections.abc import Iterator
from pathlib import Path

BUILD = Path(os.environ["BUILD"])
LANGUAGES = {
    f"{name}.lng"
    for name in ("dansk", "deutsch", "english", "espanol", "francais", "italiano")
    + ("nederlands", "portugues", "svenska")
}
FONTS = {"LCD.ttf", "LCD_CY.ttf", "LCD_HBR.ttf", "LCD_KTV.ttf"}
SAMPLES = {"FW0417AB.MES"}
FOLDERS = {"fonts", "guide", "samples"}
GUIDE = Path(os.environ["SOURCES"]) / "docs/guide"
PROGRAMS = {"vendlingua", "vendlingua-cli"}
SETTINGS = "vendlingua.ini"
LOCALE_VARIABLES = ("LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG")


def install(prefix: Path, **environment: str) -> None:
    subprocess.run(
        [os.environ["CMAKE"], "--install", BUILD, "--prefix", prefix],
        env=os.environ | environment,
        check=True,
        capture_output=True,
    )


@contextlib.contextmanager
def started(program: Path, home: Path, **environment: str) -> Iterator[subprocess.Popen[bytes]]:
    """The window, offscreen, with none of the locale of this test."""
    here = {k: v for k, v in os.environ.items() if k not in LOCALE_VARIABLES}
    here |= {"QT_QPA_PLATFORM": "offscreen", "HOME": str(home)}
    process = subprocess.Popen([program], env=here | environment)
    try:
        yield process
    finally:
        process.kill()
        process.wait()


def names(folder: Path) -> set[str]:
    return {path.name for path in folder.iterdir()}


def files_below(folder: Path) -> set[str]:
    return {p.relative_to(folder).as_posix() for p in folder.rglob("*") if p.is_file()}


class Openings:
    """Tells when a file is opened."""

    IN_OPEN = 0x20

    def __init__(self, file: Path) -> None:
        libc = ctypes.CDLL(None, use_errno=True)
        self._events = libc.inotify_init()
        if libc.inotify_add_watch(self._events, os.fsencode(file), self.IN_OPEN) < 0:
            raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()), file)

    def wait(self, seconds: float) -> bool:
        return bool(select.select([self._events], [], [], seconds)[0])

    def close(self) -> None:
        os.close(self._events)


class InstallTest(unittest.TestCase):
    """A test with a prefix of its own, which is removed at the end."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.prefix = self.folder / "a prefix"
        self.programs = self.prefix / "lib/vendlingua"


class TreeTest(InstallTest):
    def test_the_program_folder_holds_programs_and_their_data(self) -> None:
        install(self.prefix)
        self.assertEqual(names(self.programs), PROGRAMS | LANGUAGES | FOLDERS)
        self.assertEqual(names(self.programs / "fonts"), FONTS)
        self.assertEqual(names(self.programs / "samples"), SAMPLES)
        self.assertEqual(files_below(self.programs / "guide"), files_below(GUIDE))

    def test_the_build_tree_has_the_same_programs(self) -> None:
        self.assertEqual(names(BUILD / "bin") - {SETTINGS}, PROGRAMS | LANGUAGES | FOLDERS)
        self.assertEqual(names(BUILD / "bin/fonts"), FONTS)
        self.assertEqual(names(BUILD / "bin/samples"), SAMPLES)
        self.assertEqual(files_below(BUILD / "bin/guide"), files_below(GUIDE))

    def test_links_in_bin_lead_to_the_programs(self) -> None:
        install(self.prefix)
        self.assertEqual(names(self.prefix / "bin"), PROGRAMS)
        for name in PROGRAMS:
            link = self.prefix / "bin" / name
            self.assertEqual(os.readlink(link), f"../lib/vendlingua/{name}")
            self.assertTrue(os.access(link, os.X_OK))

    def test_the_guide_lies_among_the_documents_too(self) -> None:
        install(self.prefix)
        link = self.prefix / "share/doc/vendlingua/docs/guide"
        self.assertEqual(os.readlink(link), "../../../../lib/vendlingua/guide")
        self.assertTrue((link / "en/index.html").is_file())

    def test_the_links_of_the_documents_lead_somewhere(self) -> None:
        install(self.prefix)
        documents = self.prefix / "share/doc/vendlingua"
        self.assertIn("MIT", (documents / "LICENSE").read_text(encoding="utf-8"))
        for document in (documents / "README.md", *documents.rglob("*.md")):
            text = document.read_text(encoding="utf-8")
            for target in re.findall(r'(?:\]\(|src=")([^)"#:]+)[)"#]', text):
                self.assertTrue((document.parent / target).exists(), f"{document}: {target}")

    def test_the_desktop_finds_program_and_icon(self) -> None:
        install(self.prefix)
        entry = (self.prefix / "share/applications/vendlingua.desktop").read_text(encoding="utf-8")
        self.assertIn("\nExec=vendlingua %f\n", entry)
        self.assertIn("\nIcon=vendlingua\n", entry)
        icon = self.prefix / "share/icons/hicolor/scalable/apps/vendlingua.svg"
        self.assertIn(b"<svg", icon.read_bytes())

    def test_nothing_else_is_shared(self) -> None:
        install(self.prefix)
        share = self.prefix / "share"
        documents = share / "doc"
        shared = {p.relative_to(share).as_posix() for p in share.rglob("*") if p.is_file()}
        self.assertEqual(
            {name for name in shared if not (share / name).is_relative_to(documents)},
            {
                "applications/vendlingua.desktop",
                "bash-completion/completions/vendlingua-cli",
                "fish/vendor_completions.d/vendlingua-cli.fish",
                "icons/hicolor/scalable/apps/vendlingua.svg",
                "man/man1/vendlingua-cli.1.gz",
                "man/man1/vendlingua.1.gz",
                "metainfo/org.example.vendlingua.metainfo.xml",
                "mime/packages/vendlingua.xml",
                "zsh/vendor-completions/_vendlingua-cli",
            },
        )

    def test_a_staged_tree_lies_below_its_folder(self) -> None:
        stage = self.folder / "a stage"
        install(self.prefix, DESTDIR=str(stage))
        self.assertFalse(self.prefix.exists())
        staged = stage / self.prefix.relative_to("/")
        self.assertTrue((staged / "lib/vendlingua/english.lng").exists())
        subprocess.run([staged / "bin/vendlingua-cli", "--version"], check=True)


class RunningTest(InstallTest):
    """Programs that are started through their links read what lies in the program's folder."""

    def setUp(self) -> None:
        super().setUp()
        install(self.prefix)

    def test_the_command_line_program(self) -> None:
        english = Openings(self.programs / "english.lng")
        self.addCleanup(english.close)
        source = Path(os.environ["SAMPLES"]) / "FW0417AB.MES"
        file = shutil.copy(source, self.folder)
        subprocess.run([self.prefix / "bin/vendlingua-cli", "info", file], check=True, capture_output=True)
        self.assertTrue(english.wait(seconds=0))

    def test_the_desktop_program(self) -> None:
        english = Openings(self.programs / "english.lng")
        self.addCleanup(english.close)
        with started(self.prefix / "bin/vendlingua", self.folder) as program:
            self.assertTrue(english.wait(seconds=60))
            self.assertIsNone(program.poll())


class FirstStartTest(InstallTest):
    """Which language file the window reads besides the reference, by the surroundings of its start."""

    def setUp(self) -> None:
        super().setUp()
        install(self.prefix)

    def assert_speaks(self, language: str, **environment: str) -> None:
        opened = Openings(self.programs / f"{language}.lng")
        self.addCleanup(opened.close)
        with started(self.prefix / "bin/vendlingua", self.folder, **environment):
            self.assertTrue(opened.wait(seconds=60))

    def test_the_language_of_the_system(self) -> None:
        self.assert_speaks("nederlands", LANG="nl_BE.UTF-8")

    def test_a_category_goes_before_the_general_locale(self) -> None:
        self.assert_speaks("svenska", LC_ALL="", LC_MESSAGES="sv_SE", LANG="da_DK")

    def test_other_systems_get_english(self) -> None:
        self.assert_speaks("english", LC_ALL="frr_DE.UTF-8")

    def test_a_choice_that_was_made_stays(self) -> None:
        (self.programs / SETTINGS).write_bytes(b"Lingua=dansk\r\n")
        self.assert_speaks("dansk", LANG="de_DE")
        install(self.prefix)
        self.assertEqual((self.programs / SETTINGS).read_bytes(), b"Lingua=dansk\r\n")


if __name__ == "__main__":
    unittest.main()
