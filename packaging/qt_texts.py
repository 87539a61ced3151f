"""Qt's own texts in the languages of the program, which every portable archive brings along."""

from __future__ import annotations

import shutil
import subprocess
from pathlib import Path

LANGUAGES = ("da", "de", "en", "es", "fr", "it", "nl", "pt", "sv")


def qt_folder(name: str) -> Path:
    query = ["qtpaths6", "--query", name]
    return Path(subprocess.run(query, check=True, stdout=subprocess.PIPE, text=True).stdout.strip())


def add_qt_texts(tree: Path) -> list[Path]:
    """Puts them into `tree`. The files that were copied, where they came from."""
    texts = []
    for language in LANGUAGES:
        for kind in ("qtbase", "qt"):
            texts += sorted(qt_folder("QT_INSTALL_TRANSLATIONS").glob(f"{kind}_{language}[._]*"))
    # Some only lead to others, and those of English are empty.
    texts = [text for text in texts if text.stat().st_size > 1000]
    (tree / "translations").mkdir()
    for text in texts:
        shutil.copy(text.resolve(), tree / "translations" / text.name)
    return texts
