"""vendlingua-cli export and apply: a language as XLIFF, and back."""

from __future__ import annotations

import unittest
import xml.etree.ElementTree as ET

from message_files import MesFile, msx_file
from support import CliTest, Result

NAMESPACE = {"x": "urn:oasis:names:tc:xliff:document:1.2"}
WIDE = MesFile(
    width=16,
    texts={
        (0, 1): b"Credito \xfe \xfe\xfe\xfe\xfe\xfe\xfe",
        (1, 1): b"Credit  \xfe \xfe\xfe\xfe\xfe\xfe\xfe",
    },
)


def xliff(units: str) -> bytes:
    return (
        '<?xml version="1.0" encoding="UTF-8"?>\n'
        '<xliff version="1.2" xmlns="urn:oasis:names:tc:xliff:document:1.2">'
        '<file original="A" source-language="it" datatype="plaintext"><body>'
        f"{units}</body></file></xliff>"
    ).encode()


def unit(message: int | str, target: str, source: str = "a") -> str:
    return (
        f'<trans-unit id="{message}" resname="{message}"><source>{source}</source>'
        f"<target>{target}</target></trans-unit>"
    )


class XliffExportTest(CliTest):
    def export(self, file: MesFile, *options: str) -> ET.Element:
        self.write("A.MES", file.content())
        self.done("export", "A.MES", "--language=1", "--output=t.xliff", *options)
        return ET.fromstring(self.read("t.xliff"))

    def test_there_is_a_unit_a_message(self) -> None:
        units = self.export(WIDE).findall(".//x:trans-unit", NAMESPACE)
        self.assertEqual([u.get("id") for u in units], ["0", "1", "2"])
        self.assertEqual([u.get("resname") for u in units], ["0", "1", "2"])
        for unit_ in units:
            self.assertEqual((unit_.get("maxwidth"), unit_.get("size-unit")), ("16", "char"))
            self.assertEqual(
                unit_.get("{http://www.w3.org/XML/1998/namespace}space"), "preserve"
            )

    def test_placeholders_are_elements(self) -> None:
        root = self.export(WIDE)
        for name, text in (("source", "Credito "), ("target", "Credit  ")):
            element = root.find(f".//x:trans-unit[@id='1']/x:{name}", NAMESPACE)
            self.assertEqual(element.text, text)
            self.assertEqual(
                [(x.tag.split("}")[1], x.get("id"), x.get("equiv-text"), x.tail) for x in element],
                [("x", "1", "þ", " "), ("x", "2", "þþþþþþ", None)],
            )

    def test_a_note_says_what_the_board_fills(self) -> None:
        root = self.export(WIDE)
        notes = {
            u.get("id"): u.findtext("x:note", None, NAMESPACE)
            for u in root.findall(".//x:trans-unit", NAMESPACE)
        }
        self.assertEqual(notes, {"0": None, "1": "The board fills cells 9 and 11 to 16.", "2": None})

    def test_what_is_blank_or_the_same_needs_translation(self) -> None:
        texts = {(1, 0): b"0000", (1, 1): b"    "}
        root = self.export(MesFile(texts=texts, names=(b"Default", b"ENGLISH", b"DEUTSCH")))
        states = [t.get("state") for t in root.findall(".//x:target", NAMESPACE)]
        self.assertEqual(states, ["needs-translation", "needs-translation", "translated"])

    def test_languages_are_told_by_their_names(self) -> None:
        names = (b"Default", b"DEUTSCH", b"KLINGON")
        file = self.export(MesFile(names=names)).find("x:file", NAMESPACE)
        self.assertEqual((file.get("source-language"), file.get("target-language")), ("it", "de"))
        self.assertEqual(file.get("original"), "A.MES")
        self.done("export", "A.MES", "--language=2", "--origin=1", "--output=t.xliff")
        file = ET.fromstring(self.read("t.xliff")).find("x:file", NAMESPACE)
        self.assertEqual(
            (file.get("source-language"), file.get("target-language")), ("de", "x-lang2")
        )

    def test_the_target_language_can_be_given(self) -> None:
        file = self.export(MesFile(), "--target-language=pt-BR").find("x:file", NAMESPACE)
        self.assertEqual(file.get("target-language"), "pt-BR")
        command = ("export", "A.MES", "--language=1", "--output=u.xliff")
        self.wrong_usage(*command, "--target-language=pt_BR")
        self.wrong_usage(*command, "--target-language=")
        self.wrong_usage(*command, "--target-language=pt", "--format=csv")

    def test_the_format_goes_by_the_extension_unless_it_is_given(self) -> None:
        self.write("A.MES", MesFile().content())
        for output, options, is_xliff in (
            ("t.xliff", (), True),
            ("t.xlf", (), True),
            ("t.csv", (), False),
            ("t", (), False),
            ("u", ("--format=xliff",), True),
            ("u.xliff", ("--format=csv",), False),
        ):
            self.done("export", "A.MES", "--language=1", f"--output={output}", *options)
            self.assertEqual(self.read(output).startswith(b"<?xml"), is_xliff, output)
        self.wrong_usage("export", "A.MES", "--language=1", "--output=v", "--format=po")


class XliffApplyTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        self.write("A.MES", WIDE.content())

    def apply(self, units: str, *options: str) -> Result:
        self.write("t.xliff", xliff(units))
        return self.done("apply", "A.MES", "t.xliff", "--language=1", *options)

    def refused_units(self, units: str) -> str:
        self.write("t.xliff", xliff(units))
        return self.refused("apply", "A.MES", "t.xliff", "--language=1").err

    def stored(self, message: int) -> bytes:
        return self.read("A.MES")[WIDE.at(1, message) : WIDE.at(1, message + 1)]

    def test_an_exported_file_changes_nothing(self) -> None:
        texts = {
            (0, 0): b"a\xfe\xfe ",
            (1, 0): b"\xfe\xfe\xfe\xfe",
            (1, 1): b'"\n<\r',
            (1, 2): b" & \xfe",
        }
        self.write("A.MES", MesFile(texts=texts).content())
        self.done("export", "A.MES", "--language=1", "--output=t.xliff")
        with self.unchanged():
            self.done("apply", "A.MES", "t.xliff", "--language=1")

    def test_an_exported_file_of_all_codes_changes_nothing(self) -> None:
        texts = {(1, m): bytes(range(16 * m, 16 * m + 16)) for m in range(16)}
        self.write("A.MES", MesFile(width=16, last_msg=15, stride=16, texts=texts).content())
        for display in ("normal", "cyrillic", "katakana", "hebrew"):
            self.done("export", "A.MES", "--language=1", "--output=t.xliff", f"--display={display}")
            with self.unchanged():
                self.done("apply", "A.MES", "t.xliff", "--language=1", f"--display={display}")

    def test_an_exported_msx_file_changes_nothing(self) -> None:
        self.write("A.MSX", msx_file(2))
        self.done("export", "A.MSX", "--language=1", "--output=t.xliff")
        with self.unchanged():
            self.done("apply", "A.MSX", "t.xliff", "--language=1")

    def test_what_stands_before_a_placeholder_is_padded_to_its_column(self) -> None:
        text = '<x id="1" equiv-text="þ"/> <x id="2" equiv-text="þþþþþþ"/>'
        printed = self.apply(unit(1, "Kredit" + text, "Credito " + text)).out
        self.assertEqual(printed, "1 messages applied\n")
        self.assertEqual(self.stored(1), b"Kredit  \xfe \xfe\xfe\xfe\xfe\xfe\xfe")

    def test_every_unit_that_cannot_be_taken_is_named(self) -> None:
        text = '<x id="1" equiv-text="þ"/> <x id="2" equiv-text="þþþþþþ"/>'
        err = self.refused_units(
            unit(0, "fits")
            + unit(1, "Guthabenx" + text, text)
            + unit(2, "more than sixteen")
            + unit(3, "x")
        )
        self.assertIn(
            't.xliff: unit 2: message 1: "Guthabenx" has 9 cells, at most 8 fit from cell 1 on', err
        )
        self.assertIn('unit 3: message 2: "more than sixteen" has 17 cells, at most 16 fit', err)
        self.assertIn('unit 4: there is no message "3"', err)
        self.assertNotIn("unit 1:", err)
        self.assertTrue(err.endswith("t.xliff: nothing was changed\n"))

    def test_a_text_that_covers_the_boards_cells_is_refused(self) -> None:
        err = self.refused_units(unit(1, "Credit: 12345678"))
        self.assertIn("message 1: the text covers cells 9 and 11 to 16, which the board", err)

    def test_placeholders_in_another_order_are_refused(self) -> None:
        err = self.refused_units(unit(1, '<x id="2"/><x id="1"/>', '<x id="1"/><x id="2"/>'))
        self.assertIn("t.xliff: unit 1: message 1: the placeholders of the target are not", err)

    def test_what_is_not_translated_stays(self) -> None:
        for units in (
            '<trans-unit id="0"><source>a</source></trans-unit>',
            unit(0, ""),
            unit(0, "").replace("<target>", '<target state="needs-translation">'),
        ):
            with self.unchanged("A.MES"):
                self.write("t.xliff", xliff(units))
                self.done("apply", "A.MES", "t.xliff", "--language=1")
                (self.folder / "t.xliff").unlink()
        self.apply(unit(0, "").replace("<target>", '<target state="translated">'))
        self.assertEqual(self.stored(0), b" " * 16)

    def test_centred_messages_are_centred_on_demand(self) -> None:
        self.write("A.MES", MesFile(width=16, texts={(0, 0): b"     Pronto     "}).content())
        self.apply(unit(0, "Ready") + unit(2, "left"), "--centre")
        self.assertEqual(self.stored(0), b"     Ready      ")
        self.assertEqual(self.stored(2), b"left            ")
        self.apply(unit(0, "Here"))
        self.assertEqual(self.stored(0), b"Here            ")

    def test_hostile_files_are_refused(self) -> None:
        entities = "".join(f'<!ENTITY a{i + 1} "{10 * f"&a{i};"}">' for i in range(20))
        for content, reason in (
            (b"<!DOCTYPE x [" + entities.encode() + b"]><xliff/>", "document type"),
            (xliff(unit(0, "&a9;")), '"&a9;" stands for no character'),
            (xliff(unit(0, "a&#0;b")), '"&#0;" stands for no character'),
            (xliff(unit(0, "a\nb")), "a line break"),
            (xliff(unit(0, "<b>x</b>")), "<b>"),
            (xliff(unit(0, "x") + unit(0, "x")), "message 0 stands in a row before"),
            (xliff("")[:-3], "is no XML"),
            (xliff("<a/>" * 1_100_000), "tags and attributes"),
            (xliff(unit(0, "T\u00e8")).replace("\u00e8".encode(), b"\xe8"), 'encoding "UTF-8"'),
            (xliff(unit(0, "x")).replace(b'"1.2"', b'"2.0"'), "only version 1.2"),
            (b"<html/>", '"html"'),
            (b"<" * 5_000_000, "t.xliff: "),
            (b"<xliff version='1.2'>" + b"<g>" * 60_000, "is no XML"),
        ):
            with self.subTest(reason):
                self.write("t.xliff", content)
                err = self.refused("apply", "A.MES", "t.xliff", "--language=1").err
                self.assertIn(reason, err)
                self.assertLess(len(err), 1000)

    def test_a_file_cut_at_each_byte_is_refused(self) -> None:
        whole = xliff(unit(0, "Tè"))
        for size in range(1, len(whole)):
            self.write("t.xliff", whole[:size])
            self.refused("apply", "A.MES", "t.xliff", "--language=1")


if __name__ == "__main__":
    unittest.main()
