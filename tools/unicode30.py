"""The Unicode Character Database, version 3.0.0, as Cantorel reads it.

    ucd = unicode30.UnicodeDatabase("UnicodeData-3.0.0.txt", "Blocks-3.0.0.txt")
    ucd.category(0x41)          # "Lu": the category by Cantorel's rules
    ucd.general_category(0xAA)  # "Ll": the category as published, "" if unassigned
    ucd.decomposition(0xE9)     # ("", [0x65, 0x301]); the tag is "" when canonical
    ucd.canonical_base(0x390)   # 0x3B9: decomposed canonically to the end, first character
    ucd.upper(0x61), ucd.lower(0x41)   # simple case mappings, None if there is none
    ucd.name(0x41), ucd.digit(0x31), ucd.block(0x41)

All code points are U+0000 to U+FFFF; version 3.0.0 assigns nothing beyond.
"""

LAST_CODE_POINT = 0xFFFF

# Goes into the head of every generated file.
NOTICE = """\
Extracted from the Unicode Character Database, version 3.0.0:
Copyright (C) 1995-1999 Unicode, Inc. All Rights reserved.

Disclaimer: The Unicode Character Database is provided as is by Unicode, Inc.
No claims are made as to fitness for any particular purpose. No warranties of
any kind are expressed or implied. The recipient agrees to determine
applicability of information provided. If this file has been purchased on
magnetic or optical media from Unicode, Inc., the sole remedy for any claim
will be exchange of defective media within 90 days of receipt.

Limitations on Rights to Redistribute This Data: Recipient is granted the
right to make copies in any form for internal distribution and to freely use
the information supplied in the creation of products supporting the Unicode
(TM) Standard. The files in the Unicode Character Database can be
redistributed to third parties or other organizations (whether for profit or
not) as long as this notice and the disclaimer notice are retained.
Information can be extracted from these files and used in documentation or
programs, as long as there is an accompanying notice indicating the source.
"""

# Categories given to code points that 3.0.0 does not assign: (first, last,
# category).  Code points in these ranges that are assigned keep their own.
ADDED_RANGES = [
    (0x0BE6, 0x0BE6, "Nd"),  # Tamil digit zero
    (0x237C, 0x237C, "So"),
    (0x239B, 0x23A5, "So"),
    (0x23CF, 0x2E7F, "So"),  # technical, pictorial and Braille symbols
]

# Assigned, and nevertheless without a category: the object replacement
# character and the replacement character.
WITHOUT_CATEGORY = {0xFFFC, 0xFFFD}


class UnicodeDatabase:
    """Answers per code point; see the head of this module."""

    def __init__(self, data_path, blocks_path):
        self._rows = _read_data(data_path)
        self._blocks = _read_blocks(blocks_path)
        self._categories = self._make_categories()

    def category(self, code_point):
        """The category by Cantorel's rules; "" for none.

        "ZZ" for every character with a compatibility decomposition.  Gaps
        between two characters of one category in one block have that category.
        """
        return self._categories[code_point]

    def general_category(self, code_point):
        return self._field(code_point, 2)

    def name(self, code_point):
        return self._field(code_point, 1)

    def decomposition(self, code_point):
        """(tag, code points); the tag, without brackets, is "" for a canonical one."""
        parts = self._field(code_point, 5).split()
        tag = parts.pop(0).strip("<>") if parts and parts[0].startswith("<") else ""
        return tag, [int(part, 16) for part in parts]

    def canonical_base(self, code_point):
        """The first character of the full canonical decomposition."""
        tag, parts = self.decomposition(code_point)
        return self.canonical_base(parts[0]) if parts and not tag else code_point

    def upper(self, code_point):
        return self._mapping(code_point, 12)

    def lower(self, code_point):
        return self._mapping(code_point, 13)

    def digit(self, code_point):
        """The decimal digit value; None for all but decimal digits."""
        value = self._field(code_point, 6)
        return int(value) if value else None

    def block(self, code_point):
        """The name of the block; None outside all blocks."""
        for first, last, name in self._blocks:
            if first <= code_point <= last:
                return name
        return None

    def _field(self, code_point, index):
        row = self._rows.get(code_point)
        return row[index] if row else ""

    def _mapping(self, code_point, index):
        value = self._field(code_point, index)
        return int(value, 16) if value else None

    def _make_categories(self):
        categories = [self._own_category(cp) for cp in range(LAST_CODE_POINT + 1)]
        for first, last, category in ADDED_RANGES:
            for code_point in range(first, last + 1):
                if code_point not in self._rows:
                    categories[code_point] = category
        for first, last, _ in self._blocks:
            _fill_gaps(categories, first, last)
        return categories

    def _own_category(self, code_point):
        if code_point in WITHOUT_CATEGORY:
            return ""
        tag, _ = self.decomposition(code_point)
        return "ZZ" if tag else self.general_category(code_point)


def _fill_gaps(categories, first, last):
    """Within first..last, gives a gap the category that both its sides have."""
    before = None
    for code_point in range(first, last + 1):
        category = categories[code_point]
        if not category:
            continue
        if before is not None and category == categories[before] != "ZZ":
            categories[before + 1 : code_point] = [category] * (code_point - before - 1)
        before = code_point


def _read_data(path):
    rows = {}
    first = None
    with open(path, encoding="ascii") as lines:
        for line in lines:
            row = line.rstrip("\r\n").split(";")
            code_point = int(row[0], 16)
            if code_point > LAST_CODE_POINT:
                continue
            if row[1].endswith(", First>"):
                first = code_point
            elif row[1].endswith(", Last>"):
                for member in range(first, code_point + 1):
                    rows[member] = row
            else:
                rows[code_point] = row
    return rows


def _read_blocks(path):
    blocks = []
    with open(path, encoding="ascii") as lines:
        for line in lines:
            if line.strip() and not line.startswith("#"):
                first, last, name = (part.strip() for part in line.split(";"))
                blocks.append((int(first, 16), int(last, 16), name))
    return blocks
