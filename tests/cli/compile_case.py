"""Files that are compiled."""

from __future__ import annotations

from collections.abc import Sequence

from message_files import MesFile
from support import CliTest, Result

NO_NAME_LIST = 1  # header flag: the firmware lists the languages itself
MHX_FAMILY = 2  # header flag: flash files are .MHX files
INFO_BOX = (
    "Info:                      The file .MSX/.HSX will not created \n"
    "\n"
    " Name File : {0}.MHX .HSX not correct (Es:FW0000AA)\n"
)


def flags(*bits: int) -> bytes:
    return b"%02X" % sum(bits)


def slots(texts: Sequence[bytes], slot_length: int, memory: int) -> bytes:
    """Each language at the start of its slot, zeros between and behind."""
    image = b"".join(text.ljust(slot_length, b"\0") for text in texts)
    return image.ljust(memory, b"\0")


class CompileCase(CliTest):
    def compile(
        self, file: MesFile, output: str, *options: str, languages: str | None = None
    ) -> Result:
        """Compiles languages 1, 2, ... of a file, as many as it has slots."""
        self.write("A.MES", file.content())
        chosen = languages or ",".join(str(k + 1) for k in range(file.lang_count))
        return self.done(
            "compile", "A.MES", f"--languages={chosen}", f"--output={output}", *options
        )

    def refused_compile(self, file: MesFile, *options: str) -> str:
        self.write("A.MES", file.content())
        return self.refused("compile", "A.MES", *options).err


def nine_languages(
    first_message: bytes,
    start: int = 0xFF0000,
    last_msg: int = 0,
    texts: dict[tuple[int, int], bytes] | None = None,
) -> MesFile:
    return MesFile(
        lang_count=9,
        width=16,
        last_msg=last_msg,
        stride=last_msg + 1,
        flags=flags(NO_NAME_LIST, MHX_FAMILY),
        mem_start=start,
        names=[b"Default"] + [b"N%d" % k for k in range(9)],
        texts=texts or {(1, 0): first_message},
    )
