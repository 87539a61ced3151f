"""vendlingua-cli compile: a .MSX file becomes flash files as it is."""

from __future__ import annotations

import unittest

from message_files import LAST_LINE_OF_NINE, msx_file, msx_header, msx_lines
from support import CliTest, on_stderr


class CompileMsxTest(CliTest):
    BOX = "P.MHX\rThe file has a line that is not an S-record; reading stopped there."

    def test_ten_lines_give_nine_and_4086_empty_ones(self) -> None:
        lines = (msx_header() + msx_lines(1)).splitlines(keepends=True)[:10]
        self.write("A.MSX", b"".join(lines))
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(self.read("P.MHX"), b"".join(lines[1:]) + 4086 * b"\r\n")
        self.assertEqual(result.err, on_stderr(f"Error: {self.BOX}"))
        box = {"icon": "exclamation", "title": "Error", "text": self.BOX}
        boxes = {"notices": [box], "warnings": []}
        written = ["P.MHX", "P.mtx"]
        self.assertEqual(result.json, {"written": written, **boxes, "completed": True})

    def test_nine_languages_lose_header_and_last_line(self) -> None:
        self.write("A.MSX", msx_file(9) + LAST_LINE_OF_NINE)
        printed = self.done("compile", "A.MSX", "--output=P.MHX").out
        self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])
        sections = ["P.MHX", "P.mtx", "P.SA0", "P.SA1", "P.SA2", "P.SA3", "P.SA4"]
        self.assertEqual(printed.split(), sections)

    def test_a_last_line_without_its_end_gets_one(self) -> None:
        self.write("A.MSX", msx_file(9).rstrip())
        self.done("compile", "A.MSX", "--output=P.MHX")
        self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])

    def test_4099_lines_are_the_most(self) -> None:
        # Header and nine languages are 4096 lines.
        for more, accepted in ((3, True), (4, False)):
            self.write("A.MSX", msx_file(9) + more * LAST_LINE_OF_NINE)
            if accepted:
                self.done("compile", "A.MSX", "--output=P.MHX")
                self.assertEqual(self.read("P.MHX"), msx_file(9)[len(msx_header()) :])
            else:
                self.assertIn("A.MSX: ", self.refused("compile", "A.MSX", "--output=P.MHX").err)

    def test_a_damaged_record_is_compiled_with_a_warning(self) -> None:
        lines = msx_file(9).split(b"\r\n")
        lines[1] = lines[1][:10] + b"G1" + lines[1][12:]
        lines[2] = lines[2][:-1]
        lines[3] = lines[3][:-2] + b"00"
        lines[4] = b"S5"
        lines[4095] = lines[4095][:20]
        content = b"\r\n".join(lines)
        self.write("A.MSX", content)
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(self.read("P.MHX"), content[len(msx_header()) :])
        # 14 + FF + 20 and the codes of "L1 M2" and 11 blanks, 27C, are 3AF; AF is complemented.
        warnings = [
            r"A\.MSX: line 2: column 11: .*G1.*",
            r"A\.MSX: line 3: the count is 20, .* 19 bytes and a half",
            r"A\.MSX: line 4: the checksum is 00 instead of 50",
            r"A\.MSX: line 5: the count is 0, .* 0 bytes",
            r"A\.MSX: line 4096: the count is 20, .* 8 bytes",
        ]
        self.assertEqual(len(result.json["warnings"]), len(warnings))
        for warning, expected in zip(result.json["warnings"], warnings):
            self.assertRegex(warning, f"^{expected}$")
        printed = [f"vendlingua-cli: warning: {text}" for text in result.json["warnings"]]
        self.assertEqual(result.err.splitlines(), printed)

    def test_a_damaged_record_behind_the_4095_lines_is_not_compiled(self) -> None:
        self.write("A.MSX", msx_file(9) + b"S2\r\n")
        self.done("compile", "A.MSX", "--output=P.MHX")

    def test_the_fixed_last_line_of_a_copy_is_no_damaged_record(self) -> None:
        self.write("A.MSX", msx_file(1) + LAST_LINE_OF_NINE)
        result = self.done_with_message("compile", "A.MSX", "--output=P.MHX", "--json")
        self.assertEqual(result.json["warnings"], [])

    def test_section_files_do_not_take_the_place_of_the_flash_file(self) -> None:
        self.write("A.MSX", msx_file(9))
        err = self.refused("compile", "A.MSX", "--output=P.mtx").err
        self.assertIn("P.mtx: is the flash file", err)

    def test_options_of_mes_files_are_refused(self) -> None:
        self.write("A.MSX", msx_file(9))
        for option in ("--languages=1", "--copy=B.MSX"):
            err = self.wrong_usage("compile", "A.MSX", "--output=P.MHX", option).err
            self.assertIn(option.split("=")[0], err)

    def test_no_identified_copy_is_made(self) -> None:
        self.write("A.MSX", msx_file(9))
        self.done("compile", "A.MSX", "--output=FW0417AB.MHX")
        self.assertNotIn("FW0417AB.MSX", self.names())

    def test_the_message_file_is_not_overwritten(self) -> None:
        self.write("A.MSX", msx_file(1))
        err = self.refused("compile", "A.MSX", "--output=A.MSX").err
        self.assertIn("A.MSX: is the message file", err)


if __name__ == "__main__":
    unittest.main()
