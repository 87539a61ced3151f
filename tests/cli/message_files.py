"""Puts together the small files that vendlingua-cli is tested with, and reads what it writes by other tools.

The bytes of every file are worked out here by hand; nothing is computed by the program under test.
"""

from __future__ import annotations

import subprocess
from collections.abc import Iterable
from dataclasses import dataclass, field
from pathlib import Path

MSX_MESSAGES = 455
MSX_NAME_MESSAGE = 169
MSX_START = 0xFF0000
LAST_LINE_OF_NINE = b"S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC\r\n"


def header(
    lang_count: int,
    width: int,
    flags: bytes,
    header_count: int,
    last_msg: int,
    mem_start: int,
    mem_length: int,
) -> bytes:
    """The 24 bytes that a .MES file begins with."""
    fields = f"{header_count:04X}{last_msg:04X}{mem_start:08X}{mem_length:04X}"
    return bytes([lang_count, width - 1]) + flags + fields.encode()


@dataclass
class MesFile:
    """A .MES file. Message m of block k reads "kmmm..": the digit of the block, then the digit of
    the message up to the width; slots behind `last_msg` read "....". `texts` replaces messages,
    and `mem_length`, if it is given, decides about `stride`.
    """

    lang_count: int = 2
    width: int = 4
    last_msg: int = 2
    flags: bytes = b"00"
    header_count: int = 1
    mem_start: int = 0x6000
    stride: int = 3
    mem_length: int | None = None
    names: Iterable[bytes] = (b"Default", b"ITALIANO", b"ENGLISH")
    texts: dict[tuple[int, int], bytes] = field(default_factory=dict)

    def __post_init__(self) -> None:
        if self.mem_length is not None and self.lang_count != 0:
            self.stride = self.mem_length // self.lang_count // self.width

    @property
    def block_length(self) -> int:
        return self.width * (self.stride + 1) + 20

    def block(self, block: int) -> int:
        """Where a block begins."""
        return 24 + block * self.block_length

    def at(self, block: int, message: int) -> int:
        """Where a message begins."""
        return self.block(block) + 20 + message * self.width

    def message(self, block: int, message: int) -> bytes:
        text = f"{block % 10}".encode() + f"{message % 10}".encode() * (self.width - 1)
        return self.texts.get((block, message), text)

    def messages(self, block: int) -> bytes:
        """All messages of one language."""
        return b"".join(self.message(block, m) for m in range(self.last_msg + 1))

    def header(self) -> bytes:
        length = self.mem_length
        if length is None:
            length = self.lang_count * self.stride * self.width
        return header(
            self.lang_count,
            self.width,
            self.flags,
            self.header_count,
            self.last_msg,
            self.mem_start,
            length,
        )

    def content(self) -> bytes:
        content = self.header()
        unused = b"." * self.width * (self.stride - self.last_msg)
        for block, name in enumerate(self.names):
            content += name.ljust(20) + self.messages(block) + unused
        return content


def s_record(kind: str, address: int, data: bytes) -> bytes:
    """One S-record, without its line end."""
    address_bytes = {"0": 2, "1": 2, "2": 3, "3": 4}[kind]
    body = bytes([address_bytes + len(data) + 1]) + address.to_bytes(address_bytes, "big") + data
    return f"S{kind}{body.hex().upper()}{~sum(body) & 0xFF:02X}".encode()


def s_records(kind: str, start: int, image: bytes) -> bytes:
    """A memory image as lines of 16 bytes, each ended by CR LF."""
    return b"".join(
        s_record(kind, start + i, image[i : i + 16]) + b"\r\n" for i in range(0, len(image), 16)
    )


def msx_message(language: int, message: int) -> bytes:
    if message == MSX_NAME_MESSAGE:
        return f"   LANGUAGE {language}   ".encode()
    return f"L{language} M{message}".ljust(16).encode()


def msx_header(model: str = "0417") -> bytes:
    return s_record("0", 0, f"MP{model}AA        ".encode()) + b"\r\n"


def msx_lines(language: int) -> bytes:
    """The 455 lines of one language."""
    image = b"".join(msx_message(language, m) for m in range(MSX_MESSAGES))
    return s_records("2", MSX_START + (language - 1) * len(image), image)


def msx_file(languages: int, model: str = "0417") -> bytes:
    """A .MSX file: header record and 455 lines a language. Message 169 of language k is
    "   LANGUAGE k   ", message m of the others is "Lk Mm"."""
    return msx_header(model) + b"".join(msx_lines(k + 1) for k in range(languages))


def msx_at(language: int, message: int) -> int:
    """Where the line of a message begins in msx_file()."""
    characters_of_line = 2 + 2 + 6 + 32 + 2 + 2
    line = (language - 1) * MSX_MESSAGES + message
    return len(msx_header()) + line * characters_of_line


def decode_with_srec_cat(path: Path, start: int) -> bytes:
    """The memory image of an S-record file, from address `start` on, as srec_cat reads it."""
    output = path.with_name(path.name + ".srec_cat")
    command = ["srec_cat", path, "-motorola", "-offset", f"-0x{start:X}", "-o", output, "-binary"]
    subprocess.run(command, check=True, capture_output=True)
    return output.read_bytes()


def decode_with_objcopy(path: Path) -> bytes:
    """The memory image of an S-record file, from its lowest address on, as objcopy reads it."""
    output = path.with_name(path.name + ".objcopy")
    command = ["objcopy", "-I", "srec", "-O", "binary", path, output]
    subprocess.run(command, check=True, capture_output=True)
    return output.read_bytes()
