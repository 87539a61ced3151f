"""vendlingua-cli check."""

from __future__ import annotations

import json
import unittest

from check_case import RULES, CheckCase, language_file
from support import DONE, REFUSED


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


if __name__ == "__main__":
    unittest.main()
