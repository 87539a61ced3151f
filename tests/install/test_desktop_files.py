"""Desktops find the program and open message files with it."""

from __future__ import annotations

import os
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCES = Path(os.environ["SOURCES"])
METAINFO = Path(os.environ["BUILD"]) / "linux/org.example.vendlingua.metainfo.xml"
SAMPLES = SOURCES / "data/samples"
ENTRY = SOURCES / "data/linux/vendlingua.desktop"
TYPES = SOURCES / "data/linux/vendlingua-mime.xml"
MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"


def entry_value(key: str) -> str:
    found = re.search(rf"(?m)^{key}=(.*)$", ENTRY.read_text(encoding="utf-8"))
    assert found is not None
    return found[1]


class SoundFilesTest(unittest.TestCase):
    def assert_accepted(self, *command: str | Path) -> None:
        done = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_the_entry_of_the_menu(self) -> None:
        self.assert_accepted("desktop-file-validate", "--warn-kde", ENTRY)

    def test_the_description_for_software_centres(self) -> None:
        self.assert_accepted("appstreamcli", "validate", "--no-net", METAINFO)

    def test_its_pictures_are_there(self) -> None:
        root = ElementTree.parse(METAINFO).getroot()
        homepage = root.findtext("url") or "nowhere"
        pictures = [image.text or "" for image in root.iter("image")]
        self.assertEqual(len(pictures), 2)
        for picture in pictures:
            self.assertTrue((SOURCES / picture.removeprefix(homepage + "/")).is_file(), picture)

    def test_all_name_the_same_types(self) -> None:
        declared = {t.get("type") for t in ElementTree.parse(TYPES).iter(MIME + "mime-type")}
        provided = {t.text for t in ElementTree.parse(METAINFO).iter("mediatype")}
        self.assertEqual(declared, set(entry_value("MimeType").strip(";").split(";")))
        self.assertEqual(declared, provided)

    def test_a_double_click_hands_the_file_over(self) -> None:
        self.assertEqual(entry_value("Exec"), "vendlingua %f")

    def test_every_interface_language_has_its_words(self) -> None:
        for language in ("da", "de", "es", "fr", "it", "nl", "pt", "sv"):
            for key in ("GenericName", "Comment"):
                self.assertNotEqual(entry_value(rf"{key}\[{language}\]"), "")


class FileTypesTest(unittest.TestCase):
    """What a system with these types takes files for."""

    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        packages = cls.folder / "mime/packages"
        packages.mkdir(parents=True)
        (packages / "vendlingua.xml").write_bytes(TYPES.read_bytes())
        subprocess.run(["update-mime-database", cls.folder / "mime"], check=True, capture_output=True)

    def type_of(self, name: str, content: bytes) -> str:
        file = self.folder / name
        file.write_bytes(content)
        done = subprocess.run(
            ["gio", "info", "--attributes=standard::content-type", file],
            env=os.environ | {"XDG_DATA_HOME": str(self.folder), "XDG_DATA_DIRS": "/usr/share"},
            check=True,
            capture_output=True,
            text=True,
        )
        found = re.search(r"standard::content-type: (\S+)", done.stdout)
        assert found is not None
        return found[1]

    def test_message_files(self) -> None:
        mes = (SAMPLES / "FW0417AB.MES").read_bytes()
        msx = (SAMPLES / "MP0417AA.MSX").read_bytes()
        self.assertEqual(self.type_of("FW0417AB.MES", mes), "application/x-vendlingua-mes")
        self.assertEqual(self.type_of("fw0417ab.mes", mes), "application/x-vendlingua-mes")
        self.assertEqual(self.type_of("MP0417AA.MSX", msx), "application/x-vendlingua-msx")

    def test_message_files_without_their_extension(self) -> None:
        mes = (SAMPLES / "FW0267AA.MES").read_bytes()
        self.assertEqual(self.type_of("backup", mes), "application/x-vendlingua-mes")


if __name__ == "__main__":
    unittest.main()
