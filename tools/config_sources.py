"""The tables in config/sources/, and the comparison form of what they name.

The tables are tab-separated text with a row of column names; a line that begins
with "#" is a comment.
"""

import csv
import pathlib
import sys
import unicodedata

CONFIG = pathlib.Path(__file__).resolve().parent.parent / "config"
SOURCES = CONFIG / "sources"

# The comparison forms of the characters that these tables hold, beside letters
# and digits.
KEPT = "#&+♭’"
BLANKS = " !\"%(),-./:;?@_"
DROPPED = "'[]´ʹʺʻʼʾ"
LETTERS = {"æ": "AE", "đ": "D", "ø": "O", "ł": "L", "œ": "OE", "ß": "SS", "Æ": "AE", "Ø": "O"}


def decompose(text):
    return unicodedata.normalize("NFD", text)


def comparison_form(text):
    out = []
    for c in decompose(text):
        if c.isascii() and c.isalnum():
            out.append(c.upper())
        elif c in LETTERS:
            out.append(LETTERS[c])
        elif c in KEPT:
            out.append(c)
        elif c in BLANKS:
            out.append(" ")
        elif c not in DROPPED and unicodedata.category(c) != "Mn":
            sys.exit(f"no comparison form known for {c!r} (U+{ord(c):04X}) in {text!r}")
    return " ".join("".join(out).split())


def read_table(name):
    """The rows of a table by column name, accents as characters of their own."""
    lines = decompose((SOURCES / name).read_text(encoding="utf-8")).splitlines()
    lines = [line for line in lines if line and not line.startswith("#")]
    rows = list(csv.DictReader(lines, delimiter="\t", quoting=csv.QUOTE_NONE, strict=True))
    for row in rows:
        if None in row or None in row.values():
            sys.exit(f"{name}: wrong number of columns: {list(row.values())}")
    return rows
