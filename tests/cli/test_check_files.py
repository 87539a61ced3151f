"""vendlingua-cli check: files of all kinds."""

from __future__ import annotations

import json
import shutil
import unittest

from check_case import CheckCase, language_file
from message_files import MSX_NAME_MESSAGE, MesFile, header, msx_at, msx_file, msx_header, s_record
from support import REFUSED, SAMPLES


class MsxTest(CheckCase):
    """The origin of a .MSX file is the built-in table: message 3 is "Credito þ þþþþþþ", message 43
    "E12 Tcaffe<60 °C", message 169 "    Italiano    "."""

    def changed(self, texts: dict[tuple[int, int], bytes]) -> bytes:
        """The sample copy with other texts."""
        content = bytearray((SAMPLES / "MP0417AA.MSX").read_bytes())
        for (language, message), text in texts.items():
            address = 0xFF0000 + ((language - 1) * 455 + message) * 16
            start = msx_at(language, message)
            line = s_record("2", address, text)
            content[start : start + len(line)] = line
        return bytes(content)

    def test_placeholders_go_by_the_built_in_table(self) -> None:
        for text, rules in (
            (b"Credit          ", []),
            (b"Credit  \xfe \xfe\xfe\xfe\xfe\xfe\xfe", []),
            (b"Credit: 5 \xfe\xfe\xfe\xfe\xfe\xfe", ["placeholder-overtyped"]),
            (b"Credit \xfe        ", ["placeholder-stray"]),
        ):
            content = self.changed({(2, 3): text})
            found = self.rules(content, "--ignore=same-as-origin,inconsistent", name="A.MSX")
            self.assertEqual([rule for _, _, rule in found], rules, text)

    def test_the_text_is_shown_as_the_file_holds_it(self) -> None:
        content = self.changed({(2, 43): b"E13 Tcoff.<60 \xdfC"})
        (found,) = self.findings(content, "--only=number-missing", name="A.MSX")
        self.assertEqual(
            (found["origin"], found["text"]), ("E12 Tcaffe<60 °C", "E13 Tcoff.<60 °C")
        )

    def test_languages_may_stand_in_any_order(self) -> None:
        content = self.changed({(1, MSX_NAME_MESSAGE): b"     Magyar     "})
        rules = {found["rule"] for found in self.findings(content, "--language=1", name="A.MSX")}
        self.assertEqual(rules, {"same-as-origin"})

    def test_a_name_given_twice_is_found(self) -> None:
        content = self.changed({(5, MSX_NAME_MESSAGE): b"    Deutsch     "})
        rules = self.rules(content, "--only=language-name", name="A.MSX")
        self.assertEqual(rules, [(5, MSX_NAME_MESSAGE, "language-name")])

    def test_a_language_that_ends_early_is_found(self) -> None:
        content = msx_file(2)[: msx_at(2, 400)]
        rules = self.rules(content, "--only=short-block,blank", name="A.MSX")
        self.assertEqual(rules, [(2, 400, "short-block")])

    def test_language_0_is_the_built_in_table(self) -> None:
        self.write("A.MSX", msx_header())
        self.done("check", "A.MSX", "--language=0")


class DamagedFileTest(CheckCase):
    def test_a_block_that_ends_early_is_found_once(self) -> None:
        file = language_file((b"Moneta", b"Coin"), (b"Acqua", b"Water"))
        for end, message in (
            (file.block(2) + 20, 0),
            (file.at(2, 0) + 9, 0),
            (file.at(2, 1), 1),
            (file.at(2, 1) + 15, 1),
            (file.at(2, 2), 2),
        ):
            rules = self.rules(file.content()[:end])
            self.assertEqual(rules, [(2, message, "short-block")], end)

    def test_a_block_without_its_last_slots_is_none_that_ends_early(self) -> None:
        file = language_file((b"Moneta", b"Coin"))
        self.assertEqual(self.rules(file.content()[: file.at(2, 2)]), [])

    def test_a_block_of_zeros_is_blank(self) -> None:
        file = language_file((b"Moneta", b"\0" * 16), (b"Acqua", b"\0" * 16))
        self.assertEqual(self.rules(file.content()), [(2, 0, "blank"), (2, 1, "blank")])

    def test_a_file_cut_at_any_byte_is_checked_or_refused(self) -> None:
        file = language_file((b"Moneta", b"Coin"))
        content = file.content()
        for end in range(len(content)):
            result = self.check(content[:end])
            refused = result.status == REFUSED and result.out == "" and result.err != ""
            self.assertTrue(refused or result.out.endswith("notes\n"), end)

    def test_files_that_are_no_message_files_are_refused(self) -> None:
        for name, content in (
            ("A.MES", b""),
            ("A.MES", b"\x02"),
            ("A.MES", b"text"),
            ("A.MSX", b""),
            ("A.MSX", b"S0"),
            ("A.MSX", msx_header("0267")),
            ("A.TXT", b"\x02"),
        ):
            self.write(name, content)
            self.refused("check", name)
        self.refused("check", "missing.MES")
        self.refused("check", ".")

    def test_a_damaged_line_is_refused_by_its_number(self) -> None:
        content = bytearray(msx_file(2))
        content[msx_at(2, 7) + 12] = ord("x")
        self.write("A.MSX", bytes(content))
        self.assertIn("A.MSX: line 464 ", self.refused("check", "A.MSX", "--language=1").err)

    def test_languages_that_overlap_are_refused(self) -> None:
        # Blocks of 1 x (65535 + 1) + 20 and of 1 x (65511 + 1) + 20 bytes wrap to 20 and to -4.
        blocks = b"Default".ljust(20) * 100
        self.write("A.MES", header(1, 1, b"00", 1, 0xFFFF, 0, 0xFFFF) + blocks)
        err = self.refused("check", "A.MES").err
        self.assertRegex(err, r"A\.MES: its 65536 messages .* block of 20 bytes.*verify")
        self.write("A.MES", header(1, 1, b"00", 1, 0xFFE7, 0, 0xFFE7) + blocks)
        self.refused("check", "A.MES")

    def test_a_file_of_findings_is_given_up(self) -> None:
        # 40 languages of 1000 messages, each without its number.
        names = [b"Default"] + [b"N%d" % k for k in range(40)]
        texts = {(k, m): b"5" if k < 2 else b"x" for k in range(41) for m in range(1000)}
        fields = {"lang_count": 1, "width": 1, "last_msg": 999, "stride": 1000}
        content = MesFile(header_count=2000, names=names, texts=texts, **fields).content()
        result = self.check(content, "--json", "--only=number-missing")
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(json.loads(result.out)["counts"]["warning"], 10000)
        self.assertRegex(result.err, "given up after 10000 findings")

    def test_wide_sets_are_checked_in_the_cells_that_are_shown(self) -> None:
        texts = {(block, 0): b"Moneta".ljust(41) for block in range(3)}
        texts[2, 0] = b"Moneta".ljust(40) + b"x"
        file = MesFile(width=41, last_msg=0, header_count=9, texts=texts)
        (found,) = self.findings(file.content(), "--only=same-as-origin")
        self.assertEqual(found["text"], "Moneta".ljust(40))


class SamplesTest(CheckCase):
    def test_the_sample_languages_are_right(self) -> None:
        for name in ("FW0417AB.MES", "FW0267AA.MES", "MP0417AA.MSX"):
            shutil.copy(SAMPLES / name, self.folder)
            result = self.done("check", name, "--json")
            counts = result.json["counts"]
            self.assertEqual((counts["error"], counts["warning"]), (0, 0))

    def test_a_copy_of_the_origin_is_no_translation(self) -> None:
        shutil.copy(SAMPLES / "FW0417AB.MES", self.folder)
        self.done("new-language", "FW0417AB.MES", "--from=1", "--name=MAGYAR")
        result = self.cli.run("check", "FW0417AB.MES", "--language=magyar", "--json")
        self.assertEqual(result.status, REFUSED)
        self.assertGreater(result.json["counts"]["warning"], 350)
        self.assertEqual(result.json["counts"]["error"], 1)  # its name message is "Italiano"


if __name__ == "__main__":
    unittest.main()
