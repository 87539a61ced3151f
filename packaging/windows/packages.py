#!/usr/bin/env python3
"""Makes the packages for Windows: the program's folder as an archive, to be unpacked anywhere, and an installer.

    packaging/windows/packages.py BUILD OUT

BUILD is a build folder, OUT takes vendlingua-VERSION-windows-x86_64.zip and vendlingua-VERSION-windows-x86_64-setup.exe.
Needs SOURCE_DATE_EPOCH. Where VENDLINGUA_CERTIFICATE names a certificate with its key (PKCS #12), whose password is in
VENDLINGUA_CERTIFICATE_PASSWORD, the programs and the installer are signed.
"""

from __future__ import annotations

import os
import re
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

from contents import COMPILED_IN, Packing, describe, package_of
from installer import make_installer
from qt_texts import add_qt_texts
from signing import sign

# Part of the programs besides what they are on Linux.
ALSO_COMPILED_IN = (
    *("libcsv-dev", "libpugixml-dev", "qt6-base-dev"),
    *("mingw-w64-x86-64-dev", "g++-mingw-w64-x86-64-posix"),
)
OF_LINUX_ALONE = {"libstdc++-12-dev"}

NOTICE = """Qt in this program
==================

The windows are drawn by Qt {version}, (C) The Qt Company Ltd. and other contributors, which is used under the GNU
Lesser General Public License, version 3 (licences/LGPL-3 and GPL-3). It was built of Debian's unchanged sources and
is part of vendlingua.exe.

Sources: {sources}
Whoever got this archive can also have them from the Vendlingua developers for three years, for the cost of sending
them, together with the object files of the program: vendlingua@example.org.

Another Qt: the program's own sources are under the MIT licence. packaging/windows/build in them makes Qt and the
program; change Qt's sources or packaging/windows/qt, and it links the program with that Qt.

Every other library, with its version, source and licence, is listed in contents.spdx.json; licences/ has their texts.
"""


def version_of(build: Path) -> str:
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    found = re.search(r"(?m)^CMAKE_PROJECT_VERSION:STATIC=(.+)$", cache)
    assert found, "no version in the build folder"
    return found[1]


def make_tree(build: Path, tree: Path, version: str) -> None:
    subprocess.run(
        ["cmake", "--install", build, "--strip", "--prefix", tree],
        check=True,
        stdout=subprocess.DEVNULL,
    )
    texts = {package_of(file) for file in add_qt_texts(tree)}
    compiled_in = ({*COMPILED_IN} - OF_LINUX_ALONE).union(ALSO_COMPILED_IN)
    describe(tree, Packing(version, texts, compiled_in, NOTICE, "packaging/windows/build"))
    for program in sorted(tree.glob("*.exe")):
        sign(program)


def pack(tree: Path, archive: Path) -> None:
    """One order, time and mode for all, so that the same files give the same bytes."""
    epoch = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    partial = archive.with_name(archive.name + ".part")
    with zipfile.ZipFile(partial, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for file in sorted(path for path in tree.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(file.relative_to(tree.parent).as_posix(), epoch)
            entry.external_attr = 0o644 << 16
            entry.compress_type = zipfile.ZIP_DEFLATED
            packed.writestr(entry, file.read_bytes(), compresslevel=9)
    partial.replace(archive)


def main() -> None:
    build, out = Path(sys.argv[1]), Path(sys.argv[2])
    version = version_of(build)
    name = f"vendlingua-{version}-windows-x86_64"
    with tempfile.TemporaryDirectory() as folder:
        tree = Path(folder) / name
        make_tree(build, tree, version)
        pack(tree, out / f"{name}.zip")
        make_installer(tree, build / "icons/vendlingua.ico", version, out / f"{name}-setup.exe")


if __name__ == "__main__":
    main()
