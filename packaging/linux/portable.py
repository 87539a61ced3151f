#!/usr/bin/env python3
"""Makes the portable archive: the program's folder with Qt and all libraries that a bare system lacks.

    packaging/linux/portable.py BUILD OUT

BUILD is a build folder, OUT takes vendlingua-VERSION-linux-MACHINE.tar.xz. Needs SOURCE_DATE_EPOCH.
"""

from __future__ import annotations

import os
import platform
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from contents import COMPILED_IN, Packing, describe, package_of
from qt_texts import add_qt_texts, qt_folder

PROGRAMS = ("vendlingua", "vendlingua-cli")
# What Qt loads while it runs, as far as these programs ask for it. None of it draws with OpenGL.
PLUGINS = (
    "platforms/libqxcb.so",
    "platforms/libqoffscreen.so",
    "platforminputcontexts/libcomposeplatforminputcontextplugin.so",
    "platforminputcontexts/libibusplatforminputcontextplugin.so",
)
# Every system with a C++ program has these, and they have to fit its kernel and to each other.
OF_EVERY_SYSTEM = re.compile(r"lib(c|m|dl|pthread|rt|resolv|gcc_s|stdc\+\+)\.so\.")


NOTICE = """Qt in this archive
==================

The windows are drawn by Qt {version}, (C) The Qt Company Ltd. and other contributors, which is used under the GNU
Lesser General Public License, version 3 (licences/LGPL-3 and GPL-3). Its libraries and plugins, in lib/ and plugins/,
are those of Debian, unchanged; so are all others there.

Sources: {sources}
Whoever got this archive can also have them from the Vendlingua developers for three years, for the cost of sending
them: vendlingua@example.org.

Another Qt: the programs load the libraries from lib/ while they start. Put your own build of the same or a later
Qt 6 there, under the same names, or remove lib/, plugins/ and qt.conf to run with the Qt of your system.

Every other library, with its version, source and licence, is listed in contents.spdx.json; licences/ has their texts.
"""


def run(*command: str | Path) -> str:
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def libraries_of(binaries: list[Path]) -> set[Path]:
    """What the dynamic linker loads for them, less what every system has."""
    found = set()
    for name, path in re.findall(r"(?m)^\t(\S+) => (/\S+)", run("ldd", *binaries)):
        if not OF_EVERY_SYSTEM.match(name):
            found.add(Path(path))
    return found


def copy(source: Path, target: Path) -> None:
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source.resolve(), target)


def add_qt(tree: Path) -> list[Path]:
    """Puts Qt beside the programs. The files that were copied, where they came from."""
    plugins = qt_folder("QT_INSTALL_PLUGINS")
    loaded = [plugins / plugin for plugin in PLUGINS]
    libraries = sorted(libraries_of([*(tree / name for name in PROGRAMS), *loaded]))
    for plugin in loaded:
        copy(plugin, tree / "plugins" / plugin.relative_to(plugins))
    for library in libraries:
        copy(library, tree / "lib" / library.name)
    texts = add_qt_texts(tree)
    (tree / "qt.conf").write_text("[Paths]\nPrefix = .\nPlugins = plugins\nTranslations = translations\n")
    return [*loaded, *libraries, *texts]


def make_tree(build: Path, tree: Path, version: str) -> None:
    with tempfile.TemporaryDirectory() as folder:
        installed = Path(folder)
        run("cmake", "--install", build, "--strip", "--prefix", installed)
        shutil.copytree(installed / "lib/vendlingua", tree)
        # The guide lies beside the programs.
        documents, guide = installed / "share/doc/vendlingua", shutil.ignore_patterns("guide")
        shutil.copytree(documents, tree / "documents", ignore=guide)
        (tree / "documents/docs/guide").symlink_to("../../guide")
    origins = add_qt(tree)
    # Of the programs alone: an RPATH, other than a RUNPATH, holds for what the libraries load, too, so
    # these stay as the distribution built them.
    for name in PROGRAMS:
        run("patchelf", "--force-rpath", "--set-rpath", "$ORIGIN/lib", tree / name)
    packages = {package_of(file) for file in origins}
    describe(tree, Packing(version, packages, set(COMPILED_IN), NOTICE, "packaging/linux/build"))


def pack(tree: Path, archive: Path) -> None:
    """One order, owner, time and mode for all, so that the same files give the same bytes."""
    epoch = os.environ["SOURCE_DATE_EPOCH"]
    tar = ["tar", "--sort=name", f"--mtime=@{epoch}", "--owner=0", "--group=0", "--numeric-owner"]
    tar += ["--mode=u+rw,go=rX", "--format=gnu", "-C", tree.parent, "-c", tree.name]
    partial = archive.with_name(archive.name + ".part")
    with partial.open("wb") as out, subprocess.Popen(tar, stdout=subprocess.PIPE) as packed:
        subprocess.run(["xz", "-9", "-T1"], stdin=packed.stdout, stdout=out, check=True)
    if packed.returncode != 0:
        raise SystemExit("tar failed")
    partial.replace(archive)


def main() -> None:
    build, out = Path(sys.argv[1]), Path(sys.argv[2])
    version = run(build / "bin/vendlingua-cli", "--version").split()[1]
    name = f"vendlingua-{version}-linux-{platform.machine()}"
    with tempfile.TemporaryDirectory() as folder:
        tree = Path(folder) / name
        make_tree(build, tree, version)
        pack(tree, out / f"{name}.tar.xz")


if __name__ == "__main__":
    main()
