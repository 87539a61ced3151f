"""XLIFF files of vendlingua-cli in the hands of other programs: the schema, and PO files."""

from __future__ import annotations

import shutil
import subprocess
import unittest
from pathlib import Path

from support import SAMPLES, CliTest

SCHEMAS = Path("/usr/share/php/Symfony/Component/Translation/Resources/schemas")
STRICT = "xliff-core-1.2-strict.xsd"


class SampleTest(CliTest):
    def setUp(self) -> None:
        super().setUp()
        for sample in ("FW0417AB.MES", "MP0417AA.MSX"):
            shutil.copy(SAMPLES / sample, self.folder)

    def tool(self, *command: str) -> None:
        done = subprocess.run(command, cwd=self.folder, capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stderr[-1000:])


@unittest.skipUnless(
    (SCHEMAS / STRICT).is_file() and shutil.which("xmllint"),
    "needs xmllint and the schema, which the package php-symfony-translation has",
)
class SchemaTest(SampleTest):
    def test_every_language_is_valid_xliff(self) -> None:
        # The schema refers to another one by its address on the web.
        schema = (SCHEMAS / STRICT).read_bytes()
        local = schema.replace(b"http://www.w3.org/2001/xml.xsd", bytes(SCHEMAS / "xml.xsd"))
        self.assertNotEqual(schema, local)
        self.write(STRICT, local)
        for file in ("FW0417AB.MES", "MP0417AA.MSX"):
            self.done("export", file, "--all=out", "--format=xliff")
            for table in sorted((self.folder / "out").iterdir()):
                self.tool("xmllint", "--noout", "--nonet", "--schema", STRICT, f"out/{table.name}")


@unittest.skipUnless(
    shutil.which("xliff2po") and shutil.which("po2xliff"), "needs the translate-toolkit"
)
class PoFileTest(SampleTest):
    def through_po(self, *options: str) -> None:
        self.tool("xliff2po", "--progress=none", "t.xliff", "t.po")
        self.tool("po2xliff", "--progress=none", *options, "t.po", "back.xliff")

    def test_a_language_comes_back_unchanged(self) -> None:
        for file in ("FW0417AB.MES", "MP0417AA.MSX"):
            for language in range(1, 10):
                self.done("export", file, f"--language={language}", "--output=t.xliff")
                self.through_po()
                printed = self.done("apply", file, "back.xliff", f"--language={language}").out
                self.assertEqual(printed, "0 messages applied\n", (file, language))
            self.assertEqual(self.read(file), (SAMPLES / file).read_bytes())

    def test_a_language_comes_back_unchanged_beside_its_template(self) -> None:
        self.done("export", "FW0417AB.MES", "--language=3", "--output=t.xliff")
        self.through_po("--template=t.xliff")
        with self.unchanged():
            self.done("apply", "FW0417AB.MES", "back.xliff", "--language=3")

    def test_what_is_translated_in_the_po_file_is_taken(self) -> None:
        self.done("export", "FW0417AB.MES", "--language=2", "--output=t.xliff")
        self.tool("xliff2po", "--progress=none", "t.xliff", "t.po")
        po = self.read("t.po").decode()
        self.assertEqual(po.count('msgstr "Credit   "'), 1)
        self.write("t.po", po.replace('msgstr "Credit   "', 'msgstr "Balance  "').encode())
        self.tool("po2xliff", "--progress=none", "t.po", "back.xliff")
        self.done("apply", "FW0417AB.MES", "back.xliff", "--language=2")
        texts = self.done("texts", "FW0417AB.MES", "--language=2", "--json").json["messages"]
        self.assertEqual(texts[3]["text"], "Balance þ þþþþþþ")


if __name__ == "__main__":
    unittest.main()
