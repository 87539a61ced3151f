"""What a power cut may leave of the files of a folder, told from the calls that were made on it.

Bytes are on the disk for certain when their file was flushed, names when their folder was. Of all later
calls any part may have got there: a byte here and there, a length without its bytes, the first few of
several names.
"""

from __future__ import annotations

import random
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path

Files = dict[str, bytes]


def patched(content: bytes, position: int, data: bytes) -> bytes:
    grown = content.ljust(position + len(data), b"\0")
    return grown[:position] + data + grown[position + len(data) :]


@dataclass
class File:
    content: bytes
    flushed: bytes
    # Since the last flush: position and bytes of a write, or a length and nothing.
    pending: list[tuple[int, bytes | None]] = field(default_factory=list)

    def change(self, position: int, data: bytes | None) -> None:
        self.pending.append((position, data))
        self.content = self.applied(self.content, position, data)

    @staticmethod
    def applied(content: bytes, position: int, data: bytes | None) -> bytes:
        if data is None:
            return content[:position].ljust(position, b"\0")
        return patched(content, position, data)

    def flush(self) -> None:
        self.flushed = self.content
        self.pending.clear()

    def survivor(self, source: random.Random) -> bytes:
        """What may be on the disk of it."""
        content = self.flushed
        for position, data in self.pending:
            if data is None:
                content = self.applied(content, position, data) if source.random() < 0.5 else content
                continue
            if source.random() < 0.5:
                content = content.ljust(position + len(data), b"\0")
            for start in range(0, len(data), 8):
                piece = data[start : start + 8]
                if source.random() < 0.5:
                    content = patched(content, position + start, piece)
        return content


class Disk:
    """A folder as the system shows it, and as the disk has it for certain."""

    def __init__(self, folder: Path, files: Files) -> None:
        self._folder = str(folder)
        self._names = {name: File(content, content) for name, content in files.items()}
        self._flushed_names = dict(self._names)
        self._pending_names: list[dict[str, File]] = []

    def do(self, line: str) -> None:
        """Takes one line of the log of calls."""
        name, result, rest = line.split(" ", 2)
        if result != "done":
            return
        path, *values = rest.split("\t")
        file = path.removeprefix(self._folder + "/")
        if name == "create" and file not in self._names:
            self._names[file] = File(b"", b"")
            self._note_names()
        elif name in ("write", "pwrite"):
            self._names[file].change(int(values[0]), bytes.fromhex(values[1]))
        elif name == "ftruncate":
            self._names[file].change(int(values[0]), None)
        elif name == "fsync" and path == self._folder:
            self._flushed_names = dict(self._names)
            self._pending_names.clear()
        elif name == "fsync":
            self._names[file].flush()
        elif name == "rename":
            self._names[values[0].removeprefix(self._folder + "/")] = self._names.pop(file)
            self._note_names()
        elif name == "unlink":
            self._names.pop(file, None)
            self._note_names()

    def _note_names(self) -> None:
        self._pending_names.append(dict(self._names))

    def survivors(self, source: random.Random, count: int) -> Iterator[Files]:
        """Folders that a power cut may leave now: with nothing but what was flushed, and `count` others."""
        yield {name: file.flushed for name, file in self._flushed_names.items()}
        states = [self._flushed_names, *self._pending_names]
        for _ in range(count):
            names = source.choice(states)
            yield {name: file.survivor(source) for name, file in names.items()}
