#!/usr/bin/env python3
"""Writes the table of comparison forms, src/normalize/tables/norm_pages.h.

    generate_norm_tables.py UnicodeData-3.0.0.txt Blocks-3.0.0.txt > norm_pages.h

The comparison form of a character follows from its general category, as the
category table of the character sets has it, and for letters and marks from the
lists below.  Where the lists look inconsistent they are meant to be: existing
keys were made with these forms.
"""

import sys

import unicode30

# Forms are told as text; None stands for the character itself.
ITSELF = None
NOTHING = ""
BLANK = " "

BY_CATEGORY = {
    "": NOTHING,
    "Cc": NOTHING,
    "Cf": NOTHING,
    "Cs": NOTHING,
    "Co": NOTHING,
    "Lm": NOTHING,
    "Mn": NOTHING,
    "Ll": NOTHING,  # but for the letters below
    "Lu": NOTHING,  # but for the letters below
    "ZZ": NOTHING,  # compatibility characters, but for those below
    "Lo": ITSELF,
    "Lt": ITSELF,
    "Me": ITSELF,
    "Mc": ITSELF,
    "Nl": ITSELF,
    "Nd": ITSELF,
    "No": ITSELF,
    "Pc": ITSELF,
    "Pd": ITSELF,
    "Pe": ITSELF,
    "Pf": ITSELF,
    "Pi": ITSELF,
    "Po": ITSELF,
    "Ps": ITSELF,
    "Sk": ITSELF,
    "So": ITSELF,
    "Zl": ITSELF,
    "Zp": ITSELF,
    "Sc": BLANK,
    "Sm": BLANK,
    "Zs": BLANK,
}

# Marks and digits: category, form, characters.  A row counts for characters of
# that category only.
MARKS = [
    ("Pc", BLANK, "_"),
    ("Pd", BLANK, "-"),
    ("Ps", BLANK, "({\u3008"),
    ("Ps", NOTHING, "["),
    ("Pe", BLANK, ")}\u3009"),
    ("Pe", NOTHING, "]"),
    ("Po", BLANK, "!\"%*,./:;?\\@\u00a1\u00bf"),
    ("Po", NOTHING, "'\u00b7"),
    ("Sk", BLANK, "^`"),
    ("Sk", NOTHING, "\u02b9\u02ba"),
    ("Sm", ITSELF, "+\u266f"),
    ("Sm", NOTHING, "|\u2228"),
    ("So", BLANK, "\u00a9\u00ae\u2117"),
    ("So", "0", "\u00b0"),
    ("ZZ", BLANK, "\u207a\u207b\u207d\u207e\u208a\u208b\u208d\u208e"),
    ("ZZ", "0", "\u2070\u2080"),
    ("ZZ", "1", "\u00b9\u2081"),
    ("ZZ", "2", "\u00b2\u2082"),
    ("ZZ", "3", "\u00b3\u2083"),
    ("ZZ", "4", "\u2074\u2084"),
    ("ZZ", "5", "\u2075\u2085"),
    ("ZZ", "6", "\u2076\u2086"),
    ("ZZ", "7", "\u2077\u2087"),
    ("ZZ", "8", "\u2078\u2088"),
    ("ZZ", "9", "\u2079\u2089"),
    ("ZZ", "L", "\u2113"),
]

# Small letters whose form is not that of the rules.  The Latin ones are letters
# that no decomposition takes apart; the others are kept as existing keys have
# them, U+0219 and U+0451 with letters not their own.
SMALL_LETTERS = {
    0x00DF: "SS", 0x00E6: "AE", 0x00F0: "D", 0x00F8: "O", 0x00FE: "TH",
    0x0111: "D", 0x0131: "I", 0x0138: "K", 0x0142: "L", 0x0153: "OE",
    0x01A1: "O", 0x01B0: "U",
    0x03D7: ITSELF, 0x03F3: ITSELF, 0x03DB: "\u03a3", 0x03EF: "\u03de",
    0x0219: "\u0418", 0x0451: "\u042e", 0x0461: NOTHING, 0x048D: NOTHING,
    0x0493: "\u0482", 0x04C2: "\u04c1",
}

# Latin capitals, by form.  A capital of Latin-1 or of Latin Extended Additional
# that is not here has no form: its text should have been decomposed.
LATIN_CAPITALS = {
    "A": "0100 0102 0104 01CD 01DE 01E0 01FA 0200 0202 0226",
    "AE": "00C6 01E2 01FC",
    "B": "0181 0182",
    "C": "0106 0108 010A 010C 0187",
    "D": "010E 0110 0189 018A 018B",
    "E": "0112 0114 0116 0118 011A 018E 0190 0204 0206 0228",
    "F": "0191",
    "G": "011C 011E 0120 0122 0193 01E4 01E6 01F4",
    "H": "0124 0126 021E",
    "I": "0128 012A 012C 012E 0130 0197 01CF 0208 020A",
    "J": "0134",
    "K": "0136 0198 01E8",
    "L": "0139 013B 013D 0141",
    "M": "019C",
    "N": "0143 0145 0147 019D 01F8",
    "NG": "014A",
    "O": "00D8 014C 014E 0150 0186 019F 01A0 01D1 01EA 01EC 01FE 020C 020E",
    "OE": "0152",
    "OI": "01A2",
    "P": "01A4",
    "R": "0154 0156 0158 0210 0212",
    "S": "015A 015C 015E 0160 0218",
    "T": "0162 0164 0166 01AC 01AE 021A",
    "TH": "00DE",
    "U": "0168 016A 016C 016E 0170 0172 01AF 01D3 01D5 01D7 01D9 01DB 0214 0216",
    "V": "01B2",
    "W": "0174",
    "Y": "0176 0178 01B3",
    "YR": "01A6",
    "Z": "0179 017B 017D 01B5 0224",
}

# Other capitals whose form is not the letter without its diacritics.  U+0401
# has a letter not its own.
OTHER_CAPITALS = {
    0x03AA: ITSELF, 0x03AB: ITSELF, 0x0403: ITSELF, 0x0419: ITSELF,
    0x03D3: "\u03a5", 0x03D4: "\u03a5", 0x0401: "\u042e", 0x047C: "\u0460",
    0x04C7: "\u04c5",
}

# The alphabets whose letters lose their diacritics: Greek, Cyrillic, Armenian.
DECOMPOSED_ALPHABETS = [(0x0370, 0x03FF), (0x0400, 0x04FF), (0x0530, 0x058F)]

PAGE_SIZE = 64
CODE_COUNT = 0x10000
FIRST_CODE = 0x20  # smaller numbers in the table are not code points


def mark_forms():
    return {(category, ord(mark)): form for category, form, marks in MARKS for mark in marks}


def capital_letters():
    letters = {int(code, 16): form for form, codes in LATIN_CAPITALS.items()
               for code in codes.split()}
    return letters | OTHER_CAPITALS


class Norms:
    """The comparison form of every character."""

    def __init__(self, unicode):
        self.unicode = unicode
        self.marks = mark_forms()
        self.capitals = capital_letters()

    def form(self, code):
        category = self.unicode.category(code)
        if category == "Ll":
            return self.letter(code, SMALL_LETTERS)
        if category == "Lu":
            return self.letter(code, self.capitals)
        return self.marks.get((category, code), BY_CATEGORY[category])

    def letter(self, code, exceptions):
        if code < 0x80:
            return chr(code).upper()
        if code in exceptions:
            return exceptions[code]
        in_alphabet = any(first <= code <= last for first, last in DECOMPOSED_ALPHABETS)
        if not in_alphabet or not self.unicode.name(code):
            return NOTHING
        base = self.unicode.canonical_base(code)
        return chr(self.unicode.canonical_base(self.unicode.upper(base) or base))


def number_forms(norms):
    """The form of every character as a number, and the texts of several letters."""
    forms = [norms.form(code) for code in range(CODE_COUNT)]
    texts = sorted({form for form in forms if form and len(form) > 1})
    numbers = {text: 2 + i for i, text in enumerate(texts)}
    assert 2 + len(texts) <= FIRST_CODE

    def number(code, form):
        if form == NOTHING:
            return 0
        if form is ITSELF:
            return 1
        # The kernels make room by the octets of the text.
        assert len(form.encode()) <= len(chr(code).encode()), hex(code)
        return numbers[form] if len(form) > 1 else ord(form)

    return [number(code, form) for code, form in enumerate(forms)], texts


def split_pages(values):
    """The distinct pages, and for every page of code points the one that it is."""
    pages = {}
    page_of = []
    for start in range(0, CODE_COUNT, PAGE_SIZE):
        page = tuple(values[start:start + PAGE_SIZE])
        page_of.append(pages.setdefault(page, len(pages)))
    assert len(pages) <= 256
    return list(pages), page_of


def rows(values, form, per_row):
    for start in range(0, len(values), per_row):
        yield "    " + ", ".join(form % value for value in values[start:start + per_row]) + ","


def write(out, values, texts, notice):
    pages, page_of = split_pages(values)
    print("// The comparison form of every character from U+0000 to U+FFFF.", file=out)
    print("//", file=out)
    print("// Generated by tools/generate_norm_tables.py; not to be edited.", file=out)
    print("//", file=out)
    for line in notice.splitlines():
        print(f"// {line}".rstrip(), file=out)
    print(f"""
#ifndef CANTOREL_NORMALIZE_TABLES_NORM_PAGES_H_
#define CANTOREL_NORMALIZE_TABLES_NORM_PAGES_H_

#include <cstdint>
#include <string_view>

namespace cantorel {{

// A number in a page is the code point of the form, or one of these, or between
// them and kFirstNormCode an index into kNormTexts.
inline constexpr std::uint16_t kNormNothing = 0;
inline constexpr std::uint16_t kNormItself = 1;
inline constexpr std::uint16_t kFirstNormCode = {FIRST_CODE};

// Forms of several letters.
inline constexpr std::string_view kNormTexts[] = {{
    "", "", {", ".join(f'"{text}"' for text in texts)}}};

// clang-format off

// The page of each {PAGE_SIZE} code points.
inline constexpr std::uint8_t kNormPageOf[{len(page_of)}] = {{""", file=out)
    print("\n".join(rows(page_of, "%d", 24)), file=out)
    print(f"""}};

inline constexpr std::uint16_t kNormPages[{len(pages)}][{PAGE_SIZE}] = {{""", file=out)
    for i, page in enumerate(pages):
        print(f"  {{  // {i}: U+{page_of.index(i) * PAGE_SIZE:04X}", file=out)
        print("\n".join(rows(page, "0x%X", 12)), file=out)
        print("  },", file=out)
    print("""};

// clang-format on

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_TABLES_NORM_PAGES_H_""", file=out)


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: generate_norm_tables.py UnicodeData.txt Blocks.txt > norm_pages.h")
    values, texts = number_forms(Norms(unicode30.UnicodeDatabase(*sys.argv[1:])))
    write(sys.stdout, values, texts, unicode30.NOTICE)


if __name__ == "__main__":
    main()
