"""Says what a portable archive holds besides our own: packages, versions, licences, where the sources are.

Writes "licences" (one folder a package with what the distribution says of its copyright) and an SPDX list.
"""

from __future__ import annotations

import hashlib
import json
import os
import re
import shutil
import subprocess
from dataclasses import dataclass
from datetime import datetime, timezone
from pathlib import Path
from typing import Any

# Compiled into the programs out of headers or static libraries.
COMPILED_IN = (
    *("libfmt-dev", "libutfcpp-dev", "libboost-dev", "libcli11-dev", "nlohmann-json3-dev"),
    *("libstb-dev", "libstdc++-12-dev"),
)
TEXTS = Path("/usr/share/common-licenses")
QT_LICENCE = "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only"
SNAPSHOT = "https://snapshot.debian.org/package"


@dataclass(frozen=True)
class Packing:
    """What went into an archive besides our own files."""

    version: str  # of the program
    beside: set[str]  # the packages that lie beside the programs, as files
    compiled_in: set[str]  # the packages that are part of the programs
    notice: str  # what Qt's licence asks for, with places for {version} and {sources}
    made_by: str


def run(*command: str | Path) -> str:
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def package_of(file: Path) -> str:
    """The Debian package that a file came with; it may know the file by a linked folder."""
    for path in (file.resolve(), file, Path(str(file.resolve()).removeprefix("/usr"))):
        found = subprocess.run(["dpkg", "-S", path], capture_output=True, text=True)
        if found.returncode == 0:
            return found.stdout.split(":")[0]
    raise SystemExit(f"{file}: no package has it")


def spdx_id(name: str) -> str:
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def described(package: str, licences: Path, texts: list[dict[str, str]]) -> dict[str, Any]:
    """The SPDX entry of a package, whose licence text goes into `licences` and `texts`."""
    fields = "${Version}\n${source:Package}\n${source:Version}"
    version, source, source_version = run("dpkg-query", "-W", "-f", fields, package).split("\n")[-3:]
    copyright_file = Path("/usr/share/doc") / package / "copyright"
    shutil.copy(copyright_file, licences / f"{package}.txt")
    licence = QT_LICENCE
    if not package.startswith(("libqt6", "qt6")):
        licence = "LicenseRef-" + spdx_id(package).removeprefix("SPDXRef-")
        text = copyright_file.read_text(encoding="utf-8", errors="replace")
        texts.append({"licenseId": licence, "name": f"copyright of {package}", "extractedText": text})
    return {
        "SPDXID": spdx_id(package),
        "name": package,
        "versionInfo": version,
        "supplier": "Organization: Debian",
        "downloadLocation": f"{SNAPSHOT}/{source}/{source_version}/",
        "filesAnalyzed": False,
        "licenseConcluded": "NOASSERTION",
        "licenseDeclared": licence,
        "copyrightText": "NOASSERTION",
    }


def ours(version: str) -> dict[str, Any]:
    return {
        "SPDXID": spdx_id("vendlingua"),
        "name": "vendlingua",
        "versionInfo": version,
        "supplier": "Organization: The Vendlingua developers",
        "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False,
        "licenseConcluded": "MIT",
        "licenseDeclared": "MIT",
        "copyrightText": "Copyright (c) 2026 The Vendlingua developers",
    }


def describe(tree: Path, packing: Packing) -> None:
    """Adds licences, notice and list to `tree`."""
    licences = tree / "licences"
    licences.mkdir()
    for text in ("GPL-2", "GPL-3", "LGPL-2.1", "LGPL-3", "Apache-2.0"):
        shutil.copy(TEXTS / text, licences)
    texts: list[dict[str, str]] = []
    packages = [described(name, licences, texts) for name in sorted(packing.beside | packing.compiled_in)]
    epoch = datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]), timezone.utc)
    related = [
        {
            "spdxElementId": spdx_id("vendlingua"),
            "relationshipType": "STATIC_LINK" if package["name"] in packing.compiled_in else "DYNAMIC_LINK",
            "relatedSpdxElement": package["SPDXID"],
        }
        for package in packages
    ]
    document = {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": tree.name,
        "creationInfo": {"created": epoch.strftime("%Y-%m-%dT%H:%M:%SZ"), "creators": [f"Tool: {packing.made_by}"]},
        "packages": [ours(packing.version), *packages],
        "hasExtractedLicensingInfos": texts,
        "relationships": [
            {
                "spdxElementId": "SPDXRef-DOCUMENT",
                "relationshipType": "DESCRIBES",
                "relatedSpdxElement": spdx_id("vendlingua"),
            },
            *related,
        ],
    }
    digest = hashlib.sha256(json.dumps(document, sort_keys=True).encode()).hexdigest()
    document["documentNamespace"] = f"https://vendlingua.example.org/spdx/{tree.name}-{digest[:16]}"
    listed = json.dumps(document, indent=1, ensure_ascii=False) + "\n"
    (tree / "contents.spdx.json").write_text(listed, encoding="utf-8")
    qt = [package for package in packages if package["licenseDeclared"] == QT_LICENCE]
    sources = "\n         ".join(sorted({package["downloadLocation"] for package in qt}))
    notice = packing.notice.format(version=qt[0]["versionInfo"], sources=sources)
    (tree / "NOTICE.txt").write_text(notice, encoding="utf-8")
