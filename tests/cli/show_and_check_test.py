#!/usr/bin/env python3
"""What `cantorel check` finds in damaged records, and `cantorel show` shows.

usage: show_and_check_test.py COMMAND SOURCE_FOLDER [TEST...]
"""

import os
import pty
import unittest

from command_test import SAMPLE, image, run

SOUND = image(("001", b"sound"), ("245", b"10\x1faSyrinx"), ("650", b" 0\x1faFlute music"))


def replaced(record, old, new):
    assert record.count(old) == 1 and len(old) == len(new)
    return record.replace(old, new)


# A record, and what its findings begin with.
DAMAGED = [
    (SOUND, []),
    (image(("001", b"x"), ("245", b"10\x1fa"), ("650", b" 0\x1faA\x1fx\x1fvB"),
           ("650", b" 0\x1faA"), ("650", b" 0\x1fxC")),
     ["245 has empty subfield $a (field 1, octet 89)",
      "650 has empty subfield $x (field 2, octet 97)",
      "650 began with unexpected subfield $x (field 4, octet 109)"]),
    (image(("001", b"x"), ("500", b"  \x1f A"), ("501", b"  A"), ("502", b"")),
     ["500 has 'blank' subfield (field 1, octet 75)",
      "501 does not begin with two indicators and a subfield (field 2, octet 81)",
      "502 has nothing in it (octet 85)"]),
    (replaced(SOUND, b"650001600017", b"650009900017"),
     ["650 ends behind the record (field 2, octet 78)",
      "650 has an end-of-field character inside (field 2, octet 93)"]),
    (replaced(SOUND, b"245001100006", b"245001000006"),
     ["245 does not end with an end-of-field character (field 1, octet 67)"]),
    (replaced(SOUND, b"Flute", b"Fl\xfate"),
     ["650 has octets that are no UTF-8 (field 2, octet 84)"]),
    (replaced(replaced(SOUND, b"m a22", b"m  22"), b"Flute", "Fl\u00fct".encode()),
     ["Leader position 09 tells MARC-8, and the record is in UTF-8 (octet 9)"]),
]


class CheckTest(unittest.TestCase):
    def test_findings(self):
        for record, expected in DAMAGED:
            with self.subTest(record=record):
                done = run("check", stdin=record)
                lines = done.stdout.decode().splitlines()
                found = [line.split(": ", 3)[3] for line in lines]
                for line, text in zip(found, expected, strict=True):
                    self.assertEqual(line[:len(text)], text)
                self.assertEqual(done.returncode, 1 if expected else 0)

    def test_names_the_record_and_sums_up(self):
        done = run("check", "-", SAMPLE, stdin=SOUND + b"rubbish\x1d" + SOUND[:-9] + b"\x1d")
        offset = len(SOUND)
        self.assertEqual(done.stdout.decode().splitlines(), [
            f"-: record 2 at offset {offset}: Too short to be a MARC record",
            f"-: record 3 at offset {offset + 8}: "
            "Record length in leader does not match actual record length"])
        self.assertRegex(done.stderr.decode(),
                         r"^cantorel: \d+ records, 2 of them with findings; 2 findings\n$")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(run("check", "no such file").returncode, 3)


class ShowTest(unittest.TestCase):
    def test_one_record(self):
        done = run("show", "--record", 2, SAMPLE)
        lines = done.stdout.decode().splitlines()
        self.assertEqual(lines[0], f"{SAMPLE}: record 2")
        self.assertIn("650 _0 $a Symphonies $v Scores.", lines)
        self.assertEqual(len([line for line in lines if line.startswith("001")]), 1)
        self.assertEqual(run("show", "--record", 999, SAMPLE).returncode, 1)
        self.assertEqual(run("show", "--record", 0, SAMPLE).returncode, 2)

    def test_colours_on_a_terminal_unless_refused(self):
        for refused in (False, True):
            environment = dict(os.environ, NO_COLOR="1" if refused else "")
            try:
                master, slave = pty.openpty()
            except OSError as error:  # a bare container has no terminals to give
                self.skipTest(str(error))
            run("show", "--record", 1, SAMPLE, stdout=slave, env=environment)
            os.close(slave)
            self.assertEqual(b"\x1b[" in os.read(master, 65536), not refused)
            os.close(master)


if __name__ == "__main__":
    unittest.main()
