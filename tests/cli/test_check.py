"""vendlingua-cli check."""

from __future__ import annotations

import json
import shutil
import unittest

from support import (
    DONE,
    MSX_NAME_MESSAGE,
    REFUSED,
    SAMPLES,
    CliTest,
    MesFile,
    Result,
    header,
    msx_at,
    msx_file,
    msx_header,
    s_record,
)

RULES = (
    "placeholder-lost",
    "placeholder-stray",
    "placeholder-overtyped",
    "blank",
    "same-as-origin",
    "number-missing",
    "glyph-missing",
    "glyph-differs",
    "inconsistent",
    "alignment",
    "language-name",
    "short-block",
)


def language_file(
    *messages: tuple[bytes, ...], names: tuple[bytes, ...] = (b"ITALIANO", b"ENGLISH"), **fields
) -> MesFile:
    """A file of 16 cells a message. Each message is given by its origin, which is the reference,
    too, and by its text in every further language; a name message of each language follows."""
    shown = (b"Italiano", *(name.title() for name in names[1:]))
    texts = {}
    for number, message in enumerate((*messages, shown)):
        for block, text in enumerate((message[0], *message)):
            texts[block, number] = text.ljust(16)
    return MesFile(
        width=16,
        last_msg=len(messages),
        header_count=len(messages),
        stride=len(messages) + 1,
        names=(b"Default", *names),
        texts=texts,
        **fields,
    )


class CheckCase(CliTest):
    def check(self, content: bytes, *options: str, name: str = "A.MES") -> Result:
        self.write(name, content)
        with self.unchanged(options):
            return self.cli.run("check", name, *options)

    def findings(self, content: bytes, *options: str, name: str = "A.MES") -> list[dict]:
        return json.loads(self.check(content, "--json", *options, name=name).out)["findings"]

    def rules(self, content: bytes, *options: str, name: str = "A.MES") -> list[tuple]:
        return [
            (found["language"], found["message"], found["rule"])
            for found in self.findings(content, *options, name=name)
        ]


class ContractTest(CheckCase):
    def test_json_is_what_scripts_rely_on(self) -> None:
        file = language_file((b"Prezzo       \xfe\xfe\xfe", b"Price for all"))
        file.texts[2, 0] = b"Price: 5\xdf a cup!"
        result = self.check(file.content(), "--json")
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(
            json.loads(result.out, object_pairs_hook=list),
            [
                (
                    "findings",
                    [
                        [
                            ("language", 2),
                            ("message", 0),
                            ("rule", "placeholder-overtyped"),
                            ("severity", "error"),
                            ("origin", "Prezzo       þþþ"),
                            ("text", "Price: 5° a cup!"),
                        ]
                    ],
                ),
                ("counts", [("error", 1), ("warning", 0), ("note", 0)]),
            ],
        )

    def test_every_rule_goes_by_its_name_and_severity(self) -> None:
        filler = tuple((b"Temperatura", b"Temperature", b"Temperatur") for _ in range(20))
        file = language_file(
            *filler,
            (b"Prezzo         \xfe", b"Price", b"Preis          \xfe"),
            (b"Prezzo         \xfe", b"Price         \xfe\xfe", b"Preis          \xfe"),
            (b"Sconto         \xfe", b"Discount today !", b"Rabatt         \xfe"),
            (b"Moneta", b"", b"M\xfcnze"),
            (b"Gratis", b"Free", b"Gratis"),
            (b"E12 Vuoto acqua", b"E21 No water", b"E12 Wasser leer"),
            (b"Solo acqua", b"Only\0water", b"Nur Wasser"),
            (b"Bevanda calda", b"Hot drink", b"hei\xdf"),
            (b"Introduci", b"Insert", b"Einwerfen"),
            (b"Introduci", b"Put in", b"Einwerfen"),
            (b"    Attendi", b"Wait", b"     Warten"),
            names=(b"ITALIANO", b"ENGLISH", b"ENGLISH"),
        )
        content = file.content()[: file.at(3, 31)]  # without the name message of language 3
        keys = ("language", "message", "rule", "severity")
        self.assertEqual(
            [tuple(found[key] for key in keys) for found in self.findings(content)],
            [
                (2, 20, "placeholder-lost", "error"),
                (2, 21, "placeholder-stray", "error"),
                (2, 22, "placeholder-overtyped", "error"),
                (2, 23, "blank", "error"),
                (2, 25, "number-missing", "warning"),
                (2, 26, "glyph-missing", "warning"),
                (2, 29, "inconsistent", "note"),
                (2, 30, "alignment", "warning"),
                (3, 24, "same-as-origin", "note"),
                (3, 27, "glyph-differs", "warning"),
                (3, 31, "short-block", "error"),
            ],
        )

    def test_a_listed_name_given_twice_is_an_error_at_the_name_message(self) -> None:
        names = (b"ITALIANO", b"ENGLISH", b"English")
        file = language_file((b"Moneta", b"Coin", b"Coin"), names=names)
        self.assertEqual(self.rules(file.content()), [(3, 1, "language-name")])

    def test_text_has_a_line_a_finding_in_columns_and_the_counts(self) -> None:
        file = language_file(
            (b"    Attendi", b"Wait", b"Vent"),
            (b"Moneta", b"Coin", b""),
            names=(b"ITALIANO", b"ENGLISH", b"FRAN\xc7AIS"),
        )
        result = self.check(file.content())
        self.assertEqual(
            result.out,
            '2 ENGLISH     0  warning  alignment  "    Attendi     "  "Wait            "\n'
            '3 FRANÇAIS    0  warning  alignment  "    Attendi     "  "Vent            "\n'
            '3 FRANÇAIS    1  error    blank      "Moneta          "  "                "\n'
            "3 languages: 1 error, 2 warnings, 0 notes\n",
        )
        self.assertEqual(result.status, REFUSED)
        self.assertEqual(
            result.err, "vendlingua-cli: A.MES: 1 error, 2 warnings, 0 notes\n"
        )

    def test_a_file_without_findings_is_done(self) -> None:
        self.write("A.MES", language_file((b"Moneta", b"Coin")).content())
        result = self.done("check", "A.MES", "--json")
        counts = {"error": 0, "warning": 0, "note": 0}
        self.assertEqual(result.json, {"findings": [], "counts": counts})
        self.assertEqual(
            self.done("check", "A.MES").out, "2 languages: 0 errors, 0 warnings, 0 notes\n"
        )

    def test_notes_do_not_fail(self) -> None:
        messages = (b"Introduci", b"Insert"), (b"Introduci", b"Put in")
        self.write("A.MES", language_file(*messages).content())
        result = self.done("check", "A.MES", "--json")
        self.assertEqual(result.json["counts"], {"error": 0, "warning": 0, "note": 1})

    def test_a_file_of_the_reference_alone_has_nothing_to_check(self) -> None:
        self.write("A.MES", language_file((b"Moneta",), names=()).content())
        printed = self.done("check", "A.MES").out
        self.assertEqual(printed, "0 languages: 0 errors, 0 warnings, 0 notes\n")


class ChoiceTest(CheckCase):
    FILE = language_file(
        (b"E12 Moneta", b"Coin", b"M\xfcnze"),
        (b"    Attendi", b"Wait", b"Warten"),
        names=(b"ITALIANO", b"ENGLISH", b"DEUTSCH"),
    )

    def test_only_some_languages(self) -> None:
        content = self.FILE.content()
        self.assertEqual({found[0] for found in self.rules(content)}, {2, 3})
        for options in (
            ("--language", "3"),
            ("--language=deutsch",),
            ("--language", "3,1"),
            ("--language=1", "--language=deutsch", "--language=3"),
        ):
            self.assertEqual({found[0] for found in self.rules(content, *options)}, {3}, options)

    def test_the_file_may_stand_behind_the_languages(self) -> None:
        self.write("A.MES", self.FILE.content())
        result = self.cli.run("check", "--language", "1", "A.MES")
        self.assertEqual((result.status, result.err), (DONE, ""))

    def test_another_origin(self) -> None:
        file = language_file((b"Moneta", b"Coin", b"Coin"), names=self.FILE.names[1:])
        rules = self.rules(file.content(), "--origin=english", "--only=same-as-origin")
        self.assertEqual(rules, [(3, 0, "same-as-origin")])

    def test_only_some_rules(self) -> None:
        content = self.FILE.content()
        for options, rules in (
            (("--only", "alignment"), {"alignment"}),
            (("--only=alignment,number-missing",), {"alignment", "number-missing"}),
            (("--only=alignment", "--only=blank"), {"alignment"}),
            (("--ignore", "alignment"), {"number-missing"}),
            (("--ignore=alignment,number-missing",), set()),
            (("--only=alignment,number-missing", "--ignore=alignment"), {"number-missing"}),
        ):
            self.assertEqual({found[2] for found in self.rules(content, *options)}, rules, options)

    def test_what_is_ignored_does_not_fail(self) -> None:
        self.write("A.MES", self.FILE.content())
        self.done("check", "A.MES", "--ignore=alignment,number-missing")

    def test_unknown_rules_are_wrong_usage_that_names_the_known_ones(self) -> None:
        self.write("A.MES", self.FILE.content())
        for option in ("--only", "--ignore"):
            err = self.wrong_usage("check", "A.MES", option, "blank,missing").err
            self.assertIn("missing", err)
            for rule in RULES:
                self.assertIn(rule, err)

    def test_ignoring_every_rule_is_wrong_usage(self) -> None:
        self.write("A.MES", self.FILE.content())
        self.wrong_usage("check", "A.MES", "--only=blank", "--ignore=blank")
        self.wrong_usage("check", "A.MES", f"--ignore={','.join(RULES)}")

    def test_a_language_that_is_not_in_the_file_is_refused(self) -> None:
        self.write("A.MES", self.FILE.content())
        for option in ("--language", "--origin"):
            for language in ("4", "-1", "101", "norsk"):
                self.refused("check", "A.MES", option, language)


class DisplayTest(CheckCase):
    def test_a_cyrillic_set_is_checked_and_shown_in_its_letters(self) -> None:
        # "E08 НЕТ ВОДЫ": Д is code 224, Ы code 174.
        file = language_file(
            (b"E08 Vuoto acqua", b"E08 HET BO\xe0\xae"),
            (b"Moneta", b"MOHETA 5\xc0"),
            (b"Sconto fedelt", b"CK\xa5\xe0KA"),
            names=(b"ITALIANO", b"RUSSO"),
            flags=b"04",
        )
        self.assertEqual(self.rules(file.content()), [])
        file.texts[2, 0] = b"HET BO\xe0\xae".ljust(16)
        (found,) = self.findings(file.content())
        self.assertEqual((found["rule"], found["text"]), ("number-missing", "НЕТ ВОДЫ        "))

    def test_letters_of_another_display_are_found(self) -> None:
        names = (b"ITALIANO", b"FRANCAIS", b"DEUTSCH")
        message = (b"Vasca", b"R\xe9servoir", b"Wanne")
        file = language_file(message, names=names, flags=b"04")
        self.assertEqual(self.rules(file.content()), [(2, 0, "glyph-differs")])
        self.assertEqual(self.rules(file.content(), "--display=normal"), [])
        self.assertEqual(self.rules(file.content(), "--display=hebrew"), [(2, 0, "glyph-differs")])


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
