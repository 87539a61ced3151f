"""vendlingua-cli compile: the section files of .MHX boards."""

from __future__ import annotations

import unittest

from compile_case import CompileCase, flags
from message_files import MesFile
from on_windows import NO_LINKS, ONLY_UNICODE, not_on_windows


class SectionFilesOfCompileTest(CompileCase):
    def test_the_mhx_family_gets_section_files(self) -> None:
        file = MesFile(
            lang_count=1, flags=b"03", mem_start=0xFF8000, mem_length=0x2000, stride=2048
        )
        self.compile(file, "FW0417AB.MHX")
        self.assertEqual(
            self.names(),
            ["A.MES", "FW0417AB.MHX", "FW0417AB.MSX", "FW0417AB.SA1", "FW0417AB.mtx"],
        )
        self.assertEqual(self.read("FW0417AB.mtx"), b"")
        self.assertEqual(self.read("FW0417AB.SA1"), file.messages(1).ljust(0x2000, b"\0"))

    def test_an_s1_file_is_not_cut_into_sections(self) -> None:
        self.compile(MesFile(flags=b"03", mem_start=0x6000), "FW0417AB.MHX")
        self.assertEqual(self.names(), ["A.MES", "FW0417AB.MHX", "FW0417AB.MSX", "FW0417AB.mtx"])

    def test_the_hex_family_gets_none(self) -> None:
        self.compile(MesFile(flags=b"01", mem_start=0xFF8000), "FW0417AB.HEX")
        self.assertEqual(self.names(), ["A.MES", "FW0417AB.HEX", "FW0417AB.HSX"])

    @not_on_windows(ONLY_UNICODE)
    def test_a_path_that_is_no_utf8_is_fine(self) -> None:
        self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
        output = b"--output=FW0417AB\xe8.MHX"
        result = self.cli.run("compile", "A.MES", "--languages=1,2", output)
        self.assertEqual((result.status, result.err), (0, ""))


@not_on_windows(NO_LINKS)
class SafeSectionFilesTest(CompileCase):
    """Section files take the place of no file of the same run."""

    def refused_sections(self, output: str) -> str:
        file = MesFile(flags=b"03", mem_start=0xFF8000)
        return self.refused_compile(file, "--languages=1,2", f"--output={output}")

    def test_of_the_message_file(self) -> None:
        for suffix in ("mtx", "SA0", "SA1", "SA2", "SA3", "SA4"):
            link = self.folder / f"FW0417AB.{suffix}"
            link.symlink_to("A.MES")
            err = self.refused_sections("FW0417AB.MHX")
            self.assertIn(f"FW0417AB.{suffix}: is the message file", err)
            link.unlink()

    def test_of_the_flash_file(self) -> None:
        # ".mhx" is part of the name, so that a copy can be named.
        for name in ("F.mhx.mtx", "F.mhx.SA4"):
            self.assertIn(f"{name}: is the flash file", self.refused_sections(name))
        (self.folder / "FW0417AB.SA1").symlink_to("FW0417AB.MHX")
        err = self.refused_sections("FW0417AB.MHX")
        self.assertIn("FW0417AB.SA1: is the flash file", err)

    def test_of_the_copy(self) -> None:
        (self.folder / "FW0417AB.mtx").symlink_to("FW0417AB.MSX")
        err = self.refused_sections("FW0417AB.MHX")
        self.assertIn("FW0417AB.mtx: is the identified copy", err)

    def test_a_copy_that_is_not_made_is_nobodys_place(self) -> None:
        (self.folder / "FWX417AB.mtx").symlink_to("FWX417AB.MSX")
        self.write("A.MES", MesFile(flags=b"03", mem_start=0xFF8000).content())
        arguments = ("compile", "A.MES", "--languages=1,2", "--output=FWX417AB.MHX")
        self.done_with_message(*arguments)
        self.assertEqual(self.read("FWX417AB.MSX"), b"")

    def test_the_hex_family_has_none(self) -> None:
        (self.folder / "FW0417AB.SA1").symlink_to("A.MES")
        self.compile(MesFile(flags=b"01"), "FW0417AB.HEX")


if __name__ == "__main__":
    unittest.main()
