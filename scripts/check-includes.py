#!/usr/bin/env python3
"""Fails when a source includes what stands above it.

A folder may include its own files and those of the folders named beside it. So the path of a file says what
it may use: Qt under src/desktop alone, CLI11 under src/cli and src/manual alone.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOR_ALL = ("core/texts", "core/platform")

# Every folder of src/ with the folders that it stands on; the longest matching path counts.
STANDS_ON = {
    "core/texts": (),
    "core/platform": ("core/texts",),
    "core/document": FOR_ALL,
    "core/layout": (*FOR_ALL, "core/document"),
    "core/formats": (*FOR_ALL, "core/document"),
    "core/operations": (*FOR_ALL, "core/document", "core/formats", "core/marks"),
    "core/flash": (*FOR_ALL, "core/document", "core/formats"),
    "core/proof": (*FOR_ALL, "core/document"),
    "core/marks": (*FOR_ALL, "core/document", "core/formats"),
    "core/checks": (*FOR_ALL, "core/document", "core/layout", "core/formats"),
    "core/exchange": (*FOR_ALL, "core/document", "core/layout", "core/formats"),
    "core/compare": (*FOR_ALL, "core/document", "core/formats"),
    "core/transfer": (*FOR_ALL, "core/document", "core/layout", "core/formats"),
    "core/desk": (
        *FOR_ALL,
        "core/document",
        "core/formats",
        "core/proof",
        "core/marks",
        "core/checks",
        "core/exchange",
        "core/transfer",
    ),
    "core/presentation": (
        *FOR_ALL,
        "core/document",
        "core/layout",
        "core/formats",
        "core/operations",
        "core/flash",
        "core/checks",
        "core/exchange",
        "core/compare",
        "core/transfer",
        "core/desk",
    ),
    "core": ("core",),
    "cli": ("core",),
    "manual": ("core", "cli"),
    "desktop": ("core",),
}

# Libraries by the first part of what is included, and the folders that may use them with all below.
LIBRARIES = {
    "Qt": re.compile(r"Q[A-Za-z]+$|Qt[A-Za-z]*/"),
    "CLI11": re.compile(r"CLI/"),
    "nlohmann-json": re.compile(r"nlohmann/"),
}
MAY_USE = {
    "desktop": {"Qt"},
    "cli": {"CLI11", "nlohmann-json"},
    "manual": {"CLI11"},
    "core/marks": {"nlohmann-json"},
}

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)


def folder_of(path: str) -> str | None:
    """The entry of STANDS_ON that a path below src/ belongs to."""
    fitting = [folder for folder in STANDS_ON if path.startswith(folder + "/")]
    return max(fitting, key=len, default=None)


def problems_of(source: str, text: str) -> list[str]:
    """What is wrong with the includes of `source`, a path below src/."""
    folder = folder_of(source)
    if folder is None:
        return [f"src/{source}: lies in no folder that is known here"]
    problems = []
    for own, foreign in INCLUDE.findall(text):
        target = folder_of(own) if own else None
        allowed = (folder, *STANDS_ON[folder])
        if target and not any(target == a or target.startswith(a + "/") for a in allowed):
            problems.append(f"src/{source}: includes {own}, which does not stand below {folder}")
        for library, pattern in LIBRARIES.items():
            if pattern.match(foreign) and library not in MAY_USE.get(folder, set()):
                problems.append(f"src/{source}: includes <{foreign}>: {library} is not for this folder")
    return problems


def main() -> int:
    sources = sorted(p for p in (ROOT / "src").rglob("*") if p.name.endswith((".h", ".cpp", ".h.in")))
    problems = []
    for path in sources:
        text = path.read_text(encoding="utf-8")
        problems += problems_of(path.relative_to(ROOT / "src").as_posix(), text)
    print("\n".join(problems) or f"{len(sources)} files include what they may")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
