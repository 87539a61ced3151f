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

import contents

PROGRAMS = ("vendlingua", "vendlingua-cli")
# What Qt loads while it runs, as far as these programs ask for it. None of it draws with OpenGL.
PLUGINS = (
    "platforms/libqxcb.so",
    "platforms/libqoffscreen.so",
    "platforminputcontexts/libcomposeplatforminputcontextplugin.so",
    "platforminputcontexts/libibusplatforminputcontextplugin.so",
    "iconengines/libqsvgicon.so",
)
# Every system with a C++ program has these, and they have to fit its kernel and to each other.
OF_EVERY_SYSTEM = re.compile(r"lib(c|m|dl|pthread|rt|resolv|gcc_s|stdc\+\+)\.so\.")
LANGUAGES = ("da", "de", "en", "es", "fr", "it", "nl", "pt", "sv")


def run(*command: str | Path) -> str:
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def qt_folder(name: str) -> Path:
    return Path(run("qtpaths6", "--query", name).strip())


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
    texts = []
    for language in LANGUAGES:
        for kind in ("qtbase", "qt"):
            texts += sorted(qt_folder("QT_INSTALL_TRANSLATIONS").glob(f"{kind}_{language}[._]*"))
    # Some only lead to others, and those of English are empty.
    texts = [text for text in texts if text.stat().st_size > 1000]
    for text in texts:
        copy(text, tree / "translations" / text.name)
    (tree / "qt.conf").write_text("[Paths]\nPrefix = .\nPlugins = plugins\nTranslations = translations\n")
    return [*loaded, *libraries, *texts]


def make_tree(build: Path, tree: Path) -> None:
    with tempfile.TemporaryDirectory() as folder:
        installed = Path(folder)
        run("cmake", "--install", build, "--strip", "--prefix", installed)
        shutil.copytree(installed / "lib/vendlingua", tree)
        # Without the link to the guide, which lies beside the programs.
        documents, guide = installed / "share/doc/vendlingua", shutil.ignore_patterns("guide")
        shutil.copytree(documents, tree / "documents", ignore=guide)
    origins = add_qt(tree)
    # Of the programs alone: an RPATH, other than a RUNPATH, holds for what the libraries load, too, so
    # these stay as the distribution built them.
    for name in PROGRAMS:
        run("patchelf", "--force-rpath", "--set-rpath", "$ORIGIN/lib", tree / name)
    contents.describe(build, tree, origins)


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
        make_tree(build, tree)
        pack(tree, out / f"{name}.tar.xz")


if __name__ == "__main__":
    main()
