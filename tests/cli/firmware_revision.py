"""A later revision of the sample firmware: 20 messages inserted, 10 removed, 15 reworded, and 5
that stand elsewhere on the glass.

Numbers are those of the sample. "#" is a cell that the board fills.
"""

from __future__ import annotations

import re

# Before which message they stand. The two before message 5 give message 16 the number of message
# 18, which reads like it and is translated otherwise; the one before message 20 reads like both.
INSERTED = (
    (5, "   Benvenuti    "),
    (5, "Scegli la tazza "),
    (20, "   Introduci    "),
    (20, "una moneta      "),
    (34, "   Allarme 2    "),
    (44, "E40 Caldaia 3   "),
    (44, "E41 Pompa 2     "),
    (63, "E10 Palette     "),
    (95, "###Orzo         "),
    (100, "###Ginseng      "),
    (120, "Sconto serale   "),
    (158, "Lavaggio not.  #"),
    (169, "  Lingua menu   "),
    (200, " Resto minimo   "),
    (242, "    Inizio 2   #"),
    (271, "Bicchiere no    "),
    (311, " Cialda grande  "),
    (370, "Audit monete    "),
    (420, "Errore motore  #"),
    (455, "  Fine elenco   "),
)
REMOVED = (22, 41, 42, 101, 133, 178, 215, 299, 430, 454)
REWORDED = {
    0: "    MP0417AB    ",
    7: "Esaurito        ",
    17: "il suo importo  ",
    43: "E12 Tcaffe<55 ßC",
    46: "E14 Fondi pieni ",
    69: "V00 Guasto Vega ",
    83: "  Passo massimo ",
    112: "Azzera i motori?",
    147: "Promoz. nessuna ",
    188: "  Delta temp. 2#",
    211: "Tasto 14 svuota ",
    262: "   1=NO  2=SI   ",
    300: "Durata    ##.# s",
    343: "Premi un tasto  ",
    419: "Chiudi porta ###",
}
MOVED = {
    6: "Piatto: nr.  ###",
    21: " Fisso in r. 2  ",
    53: "   E23 Macine   ",
    399: "  Ev. freddo #  ",
    409: "  Messaggio 1   ",
}

MESSAGES = 455
CELLS = 16
_QUOTED = re.compile(rb"""DC\.B\s+('(?:[^']|'')*'|"[^"]*")""")


def codes_of(text: str) -> bytes:
    return text.encode("cp1252").replace(b"#", b"\xfe")


def _quoted(text: str) -> bytes:
    quote = b'"' if "'" in text else b"'"
    return quote + codes_of(text) + quote


def revised(source: bytes) -> bytes:
    """The source of the later revision."""
    lines: list[bytes] = []
    message = 0

    def insert() -> None:
        for before, text in INSERTED:
            if before == message:
                lines.append(b"        DC.B    " + _quoted(text) + b"\r\n")

    for line in source.splitlines(keepends=True):
        quoted = _QUOTED.search(line)
        if quoted is None:
            if line.strip() == b"END":
                insert()
            lines.append(line)
            continue
        insert()
        text = REWORDED.get(message) or MOVED.get(message)
        if text is not None:
            line = line[: quoted.start(1)] + _quoted(text) + line[quoted.end(1) :]
        if message not in REMOVED:
            lines.append(line)
        message += 1
    return b"".join(lines)


def origins() -> list[int | str]:
    """For each message of the revision its number in the sample, or its text when it is new."""
    messages: list[int | str] = []
    for number in range(MESSAGES + 1):
        messages.extend(text for before, text in INSERTED if before == number)
        if number < MESSAGES and number not in REMOVED:
            messages.append(number)
    return messages


class Texts:
    """The messages of a .MES file with 16 cells a message."""

    def __init__(self, content: bytes, stride: int) -> None:
        self._content = content
        self._block = (stride + 1) * CELLS + 20

    def at(self, language: int, message: int) -> bytes:
        start = 24 + language * self._block + 20 + message * CELLS
        return self._content[start : start + CELLS]
