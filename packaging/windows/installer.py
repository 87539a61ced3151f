"""Makes the installer of a program's folder with NSIS; installer.nsi says what it does."""

from __future__ import annotations

import subprocess
import tempfile
import xml.etree.ElementTree
from pathlib import Path, PureWindowsPath

from signing import is_asked_for

HERE = Path(__file__).resolve().parent
DATA = HERE.parents[1] / "data"
FILE_TYPES = DATA / "linux/vendlingua-mime.xml"
MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"
# Where no language is named, it is English.
LANGUAGES = {
    **{"": "ENGLISH", "da": "DANISH", "de": "GERMAN", "es": "SPANISH", "fr": "FRENCH"},
    **{"it": "ITALIAN", "nl": "DUTCH", "pt": "PORTUGUESE", "sv": "SWEDISH"},
}
LIST = "installed.txt"


def windows(path: Path) -> str:
    return str(PureWindowsPath(path))


def unpacking(tree: Path, files: list[Path]) -> str:
    """The lines that unpack all files, in one order wherever they are made."""
    lines = []
    folder = None
    for file in files:
        if file.parent != folder:
            folder = file.parent
            lines.append(f'SetOutPath "${{NEW}}\\{windows(folder)}"' if folder.name else 'SetOutPath "${NEW}"')
        lines.append(f'File "{tree / file}"')
    return "\n".join(lines) + "\n"


def type_names() -> str:
    """What the system calls message files, in every language."""
    lines = []
    for kind in xml.etree.ElementTree.parse(FILE_TYPES).getroot():
        name = kind.attrib["type"].rpartition("-")[2].capitalize() + "Type"
        for comment in kind.iter(MIME + "comment"):
            language = LANGUAGES[comment.get("{http://www.w3.org/XML/1998/namespace}lang", "")]
            lines.append(f'LangString {name} ${{LANG_{language}}} "{comment.text}"')
    return "\n".join(lines) + "\n"


def draw_picture(picture: Path) -> None:
    """Draws what stands on the installer's last page, in the one format that NSIS takes."""
    drawing = ["rsvg-convert", DATA / "windows/installer.svg"], ["pngtopam"], ["ppmtobmp", "-quiet", "-windows", "-bpp=24"]
    drawn = b""
    for step in drawing:
        drawn = subprocess.run(step, input=drawn, check=True, stdout=subprocess.PIPE).stdout
    picture.write_bytes(drawn)


def make_installer(tree: Path, icon: Path, version: str, installer: Path) -> None:
    files = sorted(path.relative_to(tree) for path in tree.rglob("*") if path.is_file())
    listed = [*files, Path(LIST)]
    kib = sum((tree / file).stat().st_size for file in files) // 1024
    with tempfile.TemporaryDirectory() as folder:
        lists = Path(folder)
        (tree / LIST).write_text("".join(windows(file) + "\r\n" for file in listed), newline="")
        (lists / "unpack.nsh").write_text(unpacking(tree, listed), encoding="utf-8")
        (lists / "types.nsh").write_text(type_names(), encoding="utf-8")
        draw_picture(lists / "picture.bmp")
        partial = installer.with_name(installer.name + ".part")
        command = ["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8", "-NOCD"]
        defined = {"VERSION": version, "SIZE": kib, "ICON": icon.resolve(), "LISTS": lists, "OUT": partial.resolve()}
        if is_asked_for():
            defined["SIGN"] = f"python3 {HERE / 'signing.py'}"
        command += [f"-D{name}={value}" for name, value in defined.items()]
        subprocess.run([*command, "installer.nsi"], cwd=HERE, check=True)
        partial.replace(installer)
    (tree / LIST).unlink()
