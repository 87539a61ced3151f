"""The check of the includes finds what it is there for."""

from __future__ import annotations

import runpy
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts/check-includes.py"
problems_of = runpy.run_path(str(SCRIPT))["problems_of"]


class IncludesTest(unittest.TestCase):
    def assert_allowed(self, source: str, *includes: str) -> None:
        for include in includes:
            self.assertEqual(problems_of(source, f"#include {include}\n"), [])

    def assert_refused(self, source: str, *includes: str) -> None:
        for include in includes:
            problems = problems_of(source, f"\n#include {include}\n")
            self.assertEqual(len(problems), 1, include)
            self.assertIn(source, problems[0])
            self.assertIn(include.strip('"<>'), problems[0])

    def test_a_folder_stands_on_those_below_it(self) -> None:
        self.assert_allowed("core/formats/a.cpp", '"core/document/b.h"', '"core/platform/c.h"')
        self.assert_allowed("core/engine.h", '"core/presentation/a.h"')
        self.assert_allowed("cli/a.cpp", '"core/engine.h"', '"core/flash/b.h"', '"cli/c.h"')
        self.assert_allowed("manual/a.cpp", '"core/version.h"', '"cli/b.h"', "<CLI/CLI.hpp>")
        self.assert_allowed("desktop/fonts/a.cpp", '"core/engine.h"', '"desktop/dialogs/b.h"')

    def test_what_stands_above_is_refused(self) -> None:
        self.assert_refused("core/document/a.h", '"core/formats/b.h"')
        self.assert_refused("core/formats/a.cpp", '"core/operations/b.h"', '"core/engine.h"')
        self.assert_refused("core/flash/a.cpp", '"core/presentation/b.h"')
        self.assert_refused("core/platform/a.h", '"core/document/b.h"')

    def test_the_programs_never_meet(self) -> None:
        self.assert_refused("cli/a.cpp", '"desktop/a.h"')
        self.assert_refused("desktop/a.cpp", '"cli/a.h"')
        self.assert_refused("core/engine.h", '"cli/a.h"', '"desktop/a.h"')
        self.assert_refused("cli/a.cpp", '"manual/a.h"')

    def test_libraries_stay_in_their_programs(self) -> None:
        self.assert_allowed("desktop/a.cpp", "<QLabel>", "<QtGlobal>", "<QtCore/qglobal.h>")
        self.assert_allowed("cli/a.cpp", "<CLI/CLI.hpp>", "<nlohmann/json.hpp>")
        self.assert_refused("core/flash/a.cpp", "<QLabel>", "<CLI/CLI.hpp>", "<nlohmann/json.hpp>")
        self.assert_refused("cli/a.cpp", "<QString>")
        self.assert_refused("desktop/a.cpp", "<CLI/CLI.hpp>")

    def test_the_libraries_of_all_are_free(self) -> None:
        self.assert_allowed("core/formats/a.cpp", "<string>", "<fmt/format.h>", "<utf8.h>")

    def test_every_source_has_a_known_place(self) -> None:
        self.assertNotEqual(problems_of("elsewhere/a.cpp", ""), [])

    def test_every_include_of_a_file_is_looked_at(self) -> None:
        text = '#include <QLabel>\n#include <string>\n  #  include "cli/a.h"\n'
        self.assertEqual(len(problems_of("core/engine.h", text)), 2)


if __name__ == "__main__":
    unittest.main()
