#!/usr/bin/env python3
"""Runs the tools that measure the configuration on a few records.

usage: measuring_test.py COMMAND SOURCE_FOLDER
"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

COMMAND = str(Path(sys.argv.pop(1)).resolve())
TOOLS = Path(sys.argv.pop(1)) / "tools"
sys.path.insert(0, str(TOOLS))
from records import Field, Record  # noqa: E402


def record(*fields):
    leader = b"     ncm a22      i 4500"
    title = Field("245", b"00\x1faA title of some length, to be a record.")
    return Record(leader, [title] + [Field(tag, octets) for tag, octets in fields]).image()


def run(tool, octets):
    """What the tool says of the records."""
    with tempfile.NamedTemporaryFile() as file:
        file.write(octets)
        file.flush()
        call = [sys.executable, TOOLS / tool, "--command", COMMAND, file.name]
        return subprocess.run(call, stdout=subprocess.PIPE, check=True).stdout.decode()


class MeasuringTest(unittest.TestCase):
    def test_coverage_counts_a_heading_once_and_without_help(self):
        flute, stones = ("650", b" 0\x1faFlute music\x1fvScores."), ("650", b" 0\x1faStones.")
        other = ("650", b" 7\x1faPiano music.\x1f2fast")
        said = run("heading_coverage", record(flute, stones, other) + record(stones))
        self.assertEqual(said.split("\n")[0], "1 of 2 distinct headings give a field (50.0 of 100)")
        self.assertIn("2  Stones", said)

    def test_agreement_compares_with_what_was_taken_out(self):
        made = ("382", b"01\x1faflute\x1fn2\x1fapiano\x1fn1\x1f2lcmpt")
        kind = ("655", b" 7\x1faSonatas.\x1f2lcgft")
        said = run("agreement", record(("650", b" 0\x1faSonatas (Flute and violin)"), made, kind))
        self.assertIn("medium terms  precision 0.50 (1 of 2), recall 0.50 (1 of 2), records 1", said)
        self.assertIn("with counts   precision 0.00 (0 of 2), recall 0.00 (0 of 2), records 1", said)
        self.assertIn("genre terms, derived only     chamber music\n", said)


if __name__ == "__main__":
    unittest.main()
