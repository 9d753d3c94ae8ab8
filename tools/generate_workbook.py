#!/usr/bin/env python3
"""Writes config/Deriving bibliographic 655 etc.xlsx from the lists in config/sources/.

    tools/generate_workbook.py           writes the workbook
    tools/generate_workbook.py --check   tells whether it is the one of the lists

`cantorel config build` then makes config/Music6xxTo655.txt of it.

Sources, all of them tab-separated text with a row of column names:
    list2.tsv    headings with their first subdivision
    list3.tsv    headings
    list5.tsv    subdivisions with the one behind them
    list6.tsv    subdivisions
    list9.tsv    style words in parentheses
    list10.tsv   names of languages beside those of marc-languages.tsv
    list12.tsv   headings whose wording alone tells the medium of performance
    lcgft-terms.tsv, lcdgt-terms.tsv, lcmpt.tsv
                 the terms that the lists may use
    marc-languages.tsv
                 the MARC code list for languages

Several terms in a cell are divided by " | ".  What is wrong in the lists stops
the run with a list of it.
"""

import re
import sys

from config_sources import CONFIG, comparison_form, decompose, read_table
from workbook_writer import Sheet, pack, unpack, workbook_parts

WORKBOOK = CONFIG / "Deriving bibliographic 655 etc.xlsx"

# The table is read in pieces of this many octets; a line needs a few of them
# for tag, source and tabs.
LONGEST_VALUE = 200

# What headings leave out behind the name of a language or of a group of them:
# "English, Old (ca. 450-1100)", "Celtic (Other)", "Iroquoian (Other)", "Mayan languages".
BESIDE_LANGUAGE_NAME = re.compile(r" (\([^()]*\d[^()]*\)|\(Other\)|languages)$")

SOURCE_OF = {"655": "lcgft", "385": "lcdgt", "386": "lcdgt"}

ABOUT = (
    ("List 2", "Headings (600 to 651) with their first subdivision: column B; the subdivision "
               "has $v or $x before it. Column A is for reading only, but must not be empty."),
    ("List 3", "Headings of field 650 without their subdivisions: column A."),
    ("List 5", "Two subdivisions, one behind the other: column A; $v stands between them, also "
               "for $x."),
    ("List 6", "Subdivisions $v and $x: column B. Column A is a note for the reader. A "
               "subdivision may have several rows."),
    ("List 9", "Words for styles, as in Methods (Jazz) and Piano music (Ragtime): column A, in "
               "lower case without punctuation."),
    ("List 10", "Names of languages, as in Hymns, English: column A, in lower case without "
                "punctuation. Column B has their MARC codes, divided by blanks."),
    ("List 12", "Headings that tell the medium of performance by their wording alone: column A. "
                "Column B has field 382."),
    ("Cells", "Fields stand one behind the other, each with term and source: "
              "$aCanons (Music)$2lcgft$aFugues$2lcgft"),
    ("Rows", "The first row of a sheet is not read, because it has no key. A sheet ends where "
             "more than three empty rows follow each other. A key that comes again does not "
             "count, except in List 6."),
    ("Afterwards", "Save as .xlsx, then run: cantorel config build; cantorel config check"),
)


class Lists:
    """The sheets, and what is wrong in their sources."""

    def __init__(self):
        self.problems = []
        self.terms = {
            "lcgft": {row["term"] for row in read_table("lcgft-terms.tsv")},
            "lcdgt": {row["term"] for row in read_table("lcdgt-terms.tsv")},
            "lcmpt": {row["term"] for row in read_table("lcmpt.tsv")},
        }

    def complain(self, name, key, what):
        self.problems.append(f"{name}: {key}: {what}")

    def check_term(self, name, key, term, source):
        if term not in self.terms[source]:
            self.complain(name, key, f"{term!r} is not among the terms of {source}")
        # The reader of the table knows code points of decimal digits only.
        for c in term:
            if ord(c) > 0x7F and not f"{ord(c):04X}".isdecimal():
                self.complain(name, key, f"{c!r} (U+{ord(c):04X}) cannot be read back")

    def check_length(self, name, key, value):
        escaped = re.sub(r"[^\x00-\x7f]", "[U+0000]", value)
        if len(escaped) > LONGEST_VALUE:
            self.complain(name, key, f"more than {LONGEST_VALUE} octets: {value}")

    def fields(self, name, key, row, tag):
        """A cell of fields: "$aCanons (Music)$2lcgft$aFugues$2lcgft"."""
        source = SOURCE_OF[tag]
        terms = [term for term in row[tag].split(" | ") if term]
        for term in terms:
            self.check_term(name, key, term, source)
            self.check_length(name, key, f"{row.get('context', '')}//{tag}#7\t{term}\t{source}")
        return "".join(f"$a{term}$2{source}" for term in terms)

    def read(self, name, key_of):
        """The rows of a source with their keys, no two of which are the same."""
        seen = set()
        for row in read_table(name):
            key = key_of(row)
            if not key or key in seen:
                self.complain(name, key, "a row above has this key" if key else "no key")
            seen.add(key)
            yield key, row

    def field_rows(self, name, key_of, cells_of, tags):
        """The rows of a list that gives fields: key and fields, laid out by cells_of."""
        rows = []
        for key, row in self.read(name, key_of):
            fields = [self.fields(name, key, row, tag) for tag in tags]
            if not any(fields):
                self.complain(name, key, "gives no field")
            rows.append(cells_of(row) + fields)
        return rows

    # --- The sheets ---------------------------------------------------------------

    def list2(self):
        rows = self.field_rows(
            "list2.tsv",
            lambda row: f"{comparison_form(row['heading'])}v{comparison_form(row['subdivision'][2:])}",
            lambda row: [row["heading"], f"{row['heading']} {row['subdivision']}"],
            ["655"],
        )
        for row in rows:
            if not re.fullmatch(r".+ \$[vx] [^$]+", row[1]):
                self.complain("list2.tsv", row[1], "not a heading with one $v or $x")
        header = ["Heading", "Heading with first subdivision", "655 genre/form"]
        return Sheet("List 2", [34, 56, 60], header, rows)

    def list3(self):
        rows = self.field_rows("list3.tsv", lambda row: comparison_form(row["heading"]),
                               lambda row: [row["heading"]], ["655", "385", "386"])
        header = ["", "\u2190 heading    655 genre/form", "385 audience", "386 creator"]
        return Sheet("List 3", [44, 60, 30, 30], header, rows)

    def list5(self):
        rows = self.field_rows(
            "list5.tsv",
            lambda row: f"{comparison_form(row['first'])}v{comparison_form(row['second'])}",
            lambda row: [f"{row['first']} $v {row['second']}"],
            ["655", "385", "386"],
        )
        header = ["Subdivision and the one behind it", "655 genre/form", "385 audience",
                  "386 creator"]
        return Sheet("List 5", [56, 60, 30, 30], header, rows)

    def list6(self):
        rows = self.field_rows("list6.tsv", lambda row: comparison_form(row["subdivision"]),
                               lambda row: [row["context"], row["subdivision"]],
                               ["655", "385", "386"])
        header = ["Note", "", "\u2190 subdivision    655 genre/form", "385 audience", "386 creator"]
        return Sheet("List 6", [28, 44, 60, 30, 30], header, rows)

    def list9(self):
        rows = self.field_rows("list9.tsv", lambda row: comparison_form(row["style"]),
                               lambda row: [comparison_form(row["style"]).lower()], ["655"])
        for row in rows:
            if row[1].count("$a") > 1:
                self.complain("list9.tsv", row[0], "a style has one term")
        return Sheet("List 9", [34, 60], ["", "\u2190 style word    655 genre/form"], rows)

    def list10(self):
        rows = []
        for key, codes in sorted(self.languages().items()):
            self.check_length("list10.tsv", key, codes)
            rows.append([key, codes])
        return Sheet("List 10", [56, 30], ["", "\u2190 language    MARC codes"], rows)

    def languages(self):
        """Codes by name.  The name of one language may be a variant of others."""
        settled = {}
        for key, row in self.read("list10.tsv", lambda row: comparison_form(row["name"])):
            settled[key.lower()] = row["codes"]
        found = {}
        listed = read_table("marc-languages.tsv")
        # Of several codes the one that is reported as missing is the last.
        listed.sort(key=lambda row: row["status"] != "obsolete")
        for row in listed:
            for name in row["variants(|)"].split("|"):
                add_language(found, name, row["code"])
        for row in listed:
            add_language(found, row["name"], row["code"])
            add_language(found, BESIDE_LANGUAGE_NAME.sub("", row["name"]), row["code"])
        codes = {row["code"] for row in listed}
        for key, value in settled.items():
            for code in value.split():
                if code not in codes:
                    self.complain("list10.tsv", key, f"{code} is no code")
            if " ".join(found.get(key, [])) == value:
                self.complain("list10.tsv", key, "is so without this row")
        return {key: " ".join(value) for key, value in found.items()} | settled

    def list12(self):
        rows = []
        for key, row in self.read("list12.tsv", lambda row: comparison_form(row["heading"])):
            field = re.sub(r" *(\$.) *", r"\1", row["382"])
            self.check_length("list12.tsv", key, field)
            if not re.fullmatch(r"\$a[^$]+(\$[abdpnev][^$]+)*", field):
                self.complain("list12.tsv", key, "not a field 382 that begins with $a")
            for term in re.findall(r"\$[abdp]([^$]*)", field):
                self.check_term("list12.tsv", key, term, "lcmpt")
            rows.append([row["heading"], field])
        header = ["", "\u2190 heading    382 medium of performance"]
        return Sheet("List 12", [44, 60], header, rows)

    def about(self):
        return Sheet("About", [14, 110], ["Sheet", "What it holds"], [list(row) for row in ABOUT])


def add_language(found, name, code):
    """Adds a code to those of a name, behind the others."""
    key = comparison_form(name).lower()
    if not key:
        return
    codes = found.setdefault(key, [])
    if code in codes:
        codes.remove(code)
    codes.append(code)


def main():
    lists = Lists()
    sheets = [lists.list2(), lists.list3(), lists.list5(), lists.list6(), lists.list9(),
              lists.list10(), lists.list12(), lists.about()]
    if lists.problems:
        sys.exit("\n".join(lists.problems))
    parts = workbook_parts(sheets)
    if sys.argv[1:] == ["--check"]:
        if unpack(WORKBOOK) != parts:
            sys.exit(f"{WORKBOOK.name} is not the one of its lists: run tools/generate_workbook.py")
        return
    WORKBOOK.write_bytes(pack(parts))


if __name__ == "__main__":
    main()
