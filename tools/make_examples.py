#!/usr/bin/env python3
"""Makes examples/music.mrc from examples/music.txt.

The text has field lines as `cantorel convert --lines` reads them: for each
record a line with its type and level, then one line a field (tag, indicators,
text with "$" as delimiter), records set apart by a blank line.  The result is
ISO 2709 in UTF-8, decomposed as MARC 21 asks for.

usage: make_examples.py [TEXT [RECORDS]]
"""

import sys
import unicodedata
from pathlib import Path

EXAMPLES = Path(__file__).resolve().parent.parent / "examples"
END_OF_RECORD, END_OF_FIELD, DELIMITER = b"\x1d", b"\x1e", "\x1f"


def field(line):
    """Tag and octets of one field line."""
    tag, indicators, text = line[:3], line[3:5], line[5:]
    if tag < "010":
        if tag == "008" and len(text) != 40:
            raise ValueError(f"008 of {len(text)} characters: {line}")
        return tag, text.encode()
    if not text.startswith("$"):
        raise ValueError(f"no subfield at the start: {line}")
    text = unicodedata.normalize("NFD", text).replace("$", DELIMITER)
    return tag, (indicators + text).encode()


def record(lines):
    """The ISO 2709 image of one record."""
    record_type, level = lines[0]
    directory, data = "", b""
    for tag, octets in map(field, lines[1:]):
        octets += END_OF_FIELD
        directory += f"{tag}{len(octets):04}{len(data):05}"
        data += octets
    base = 24 + len(directory) + 1
    length = base + len(data) + 1
    leader = f"{length:05}n{record_type}{level} a22{base:05} i 4500"
    return (leader + directory).encode() + END_OF_FIELD + data + END_OF_RECORD


def main(text=EXAMPLES / "music.txt", records=EXAMPLES / "music.mrc"):
    blocks = Path(text).read_text(encoding="utf-8").strip().split("\n\n")
    Path(records).write_bytes(b"".join(record(block.splitlines()) for block in blocks))


if __name__ == "__main__":
    main(*sys.argv[1:])
