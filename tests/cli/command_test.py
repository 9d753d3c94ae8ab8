#!/usr/bin/env python3
"""Runs the built command as its users do.

usage: command_test.py COMMAND SOURCE_FOLDER [TEST...]
"""

import fcntl
import gzip
import json
import os
import pty
import shutil
import signal
import subprocess
import sys
import tempfile
import termios
import threading
import unittest
import xml.etree.ElementTree as ElementTree
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

COMMAND = str(Path(sys.argv.pop(1)).resolve())
SOURCE = Path(sys.argv.pop(1))
CONFIG = SOURCE / "config"
SAMPLE = SOURCE / "examples" / "music.mrc"


def call(*arguments):
    """The words of a call.  No test asks the network."""
    words = [COMMAND, *map(str, arguments)]
    if words[1:2] in (["convert"], ["heading"]):
        words.insert(2, "--offline")
    return words


def run(*arguments, stdin=b"", **options):
    options.setdefault("stdout", subprocess.PIPE)
    return subprocess.run(call(*arguments), input=stdin,
                          stderr=subprocess.PIPE, timeout=120, **options)


def open_terminal(test):
    """Both ends of a terminal; a bare container has none to give, and skips the test."""
    try:
        return pty.openpty()
    except OSError as error:
        test.skipTest(str(error))


def run_in_terminal(typed, *arguments):
    """What the command writes, and what the terminal it was started from shows."""
    master, slave = pty.openpty()
    os.write(master, typed)
    done = subprocess.run(call(*arguments), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, timeout=120, start_new_session=True,
                          preexec_fn=lambda: fcntl.ioctl(slave, termios.TIOCSCTTY, 0))
    os.close(slave)
    shown = b""
    try:
        while piece := os.read(master, 65536):
            shown += piece
    except OSError:  # all is read
        pass
    os.close(master)
    return done, shown.decode()


def image(*fields, record_type="c"):
    """An ISO 2709 record of (tag, octets with indicators) pairs."""
    directory, data = b"", b""
    for tag, octets in fields:
        octets += b"\x1e"
        directory += b"%s%04d%05d" % (tag.encode(), len(octets), len(data))
        data += octets
    base = 25 + len(directory)
    leader = b"%05dn%sm a22%05d i 4500" % (base + len(data) + 1, record_type.encode(), base)
    return leader + directory + b"\x1e" + data + b"\x1d"


FLUTE = image(("001", b"flute"), ("245", b"00\x1faSyrinx /\x1fcDebussy."),
              ("650", b" 0\x1faFlute music."))

FLUTE_WITH_382 = image(("001", b"flute"), ("245", b"00\x1faSyrinx /\x1fcDebussy."),
                       ("382", b"01\x1faflute\x1fn1\x1fs1\x1f2lcmpt"),
                       ("650", b" 0\x1faFlute music."))


CANONS = ["heading", "--mode", "655", "--json", "Canons, fugues, etc.", "--canons"]


# What headings give by `cantorel heading`, beside the rule that decides it.  A
# field is written with its subfields, one blank around each.
HEADINGS = [
    # The group rule without a parenthesis: the number stands as a subfield code
    # without text, which no record keeps.
    ("Quartets", "$a instrument $2 lcmpt"),
    # The group rule with 2 demands the parenthesis.
    ("Duets", None),
    # Fixed combinations of "Piano" and "String" with a group word.
    ("Piano trios", "$a violin $n 1 $a cello $n 1 $a piano $n 1 $s 3 $2 lcmpt"),
    ("String quartets", "$a violin $n 2 $a viola $n 1 $a cello $n 1 $s 4 $2 lcmpt"),
    # " music" at the end: one known instrument, "baritone" being the horn.
    ("Flute music", "$a flute $n 1 $s 1 $2 lcmpt"),
    ("Baritone music", "$a baritone horn $n 1 $s 1 $2 lcmpt"),
    # The same with " and ": two known instruments.
    ("Violin and piano music", "$a violin $n 1 $a piano $n 1 $s 2 $2 lcmpt"),
    # The hands form behind " music (" halves the hands.
    ("Piano music (4 hands)", "$a piano $n 2 $v 4 hands, piano $s 2 $2 lcmpt"),
    # The concerto rule adds "with orchestra" unless the parenthesis has a "with".
    ("Concertos (Violin)", "$b violin $n 1 $a orchestra $e 1 $r 1 $t 1 $2 lcmpt"),
    ("Concertos (Pianos (3) with string orchestra)",
     "$b piano $n 3 $a string orchestra $e 1 $r 3 $t 1 $2 lcmpt"),
    # The parenthesis is the medium; without it the words say nothing.
    ("Sonatas (Flute and piano)", "$a flute $n 1 $a piano $n 1 $s 2 $2 lcmpt"),
    ("Suites", None),
    # A medium without a count takes no totals.
    ("Trio sonatas (Oboes (2), continuo)", "$a oboe $n 2 $a continuo $2 lcmpt"),
    # The instrument-family rule with a parenthesis.
    ("Wind quintets (Bassoon, clarinet, flute, horn, oboe)",
     "$a bassoon $n 1 $a clarinet $n 1 $a flute $n 1 $a horn $n 1 $a oboe $n 1 $s 5 $2 lcmpt"),
    # The song rule; without an ensemble the soloist is no soloist.
    ("Songs (High voice) with piano", "$a high voice $n 1 $a piano $n 1 $s 2 $2 lcmpt"),
    # The chorus rule; the vocabulary has a chorus among the ensembles.
    ("Cantatas", "$a chorus $e 1 $t 1 $2 lcmpt"),
    ("Choruses, Sacred (Mixed voices) with organ",
     "$a mixed chorus $e 1 $a organ $n 1 $t 1 $2 lcmpt"),
    # " with " in a heading that no rule knows: all of it is a medium.  The
    # vocabulary has "jazz ensemble" as a variant of a wider term.
    ("Saxophone with jazz ensemble",
     "$b saxophone $n 1 $a instrumental ensemble $e 1 $r 1 $t 1 $2 lcmpt"),
    # No rule, no music, no "with", not in the list of whole headings.
    ("Operas $v Vocal scores with piano", None),
    # Excerpts are refused ahead of all rules.
    ("Symphonies $v Excerpts", None),
]


# The genres of headings, beside what decides them, with English as the only
# language that the table knows.
GENRES = [
    # A qualifier behind a comma: a language, an arrangement.
    ("Hymns, English", ["Hymns"]),
    ("Hymns, Klingon", []),
    ("Violin and piano music, Arranged", ["Arrangements (Music)", "Chamber music"]),
    # A family and a number word; a parenthesis changes nothing.
    ("String quartets (Sacred)", ["Chamber music"]),
    # "Duets" is no such word, but the table knows the heading.
    ("Piano duets", ["Chamber music"]),
    # A parenthesis, and what stands behind "with".
    ("Songs (High voice) with piano", ["Songs", "Chamber music"]),
    ("Songs (High voice) with orchestra", ["Songs"]),
    ("Trumpet music (Trumpets (2))", ["Chamber music"]),
    ("Piano music (Jazz)", ["Jazz"]),
    ("Canons, fugues, etc. (Organ)", ["Art music"]),
    # The last one only for the number of performers.
    ("Sonatas (Flute and piano)", ["Sonatas", "Chamber music"]),
]


class Authorities(BaseHTTPRequestHandler):
    """A service that knows Boston, and breaks when it is asked for Atlantis."""

    RECORD = (b"<record xmlns='http://www.loc.gov/MARC21/slim'><leader>00000nz  a2200000n  4500"
              b"</leader><datafield tag='151' ind1=' ' ind2=' '><subfield code='a'>Boston (Mass.)"
              b"</subfield></datafield></record>")

    def do_GET(self):
        if "tlantis" in self.path:
            self.close_connection = True
            return
        page = b'<a href="/authorities/names/n1">' if "oston" in self.path else b"<html>"
        page = self.RECORD if self.path == "/n1/marcxml" else page
        self.send_response(200)
        self.send_header("Content-Length", str(len(page)))
        self.end_headers()
        self.wfile.write(page)

    def log_message(self, *_):
        pass


class CommandTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def file(self, name, octets):
        path = self.folder / name
        path.write_bytes(octets)
        return path

    def check(self, done, status, *said):
        """The status, and for other than 0 one line that says all of `said`."""
        error = done.stderr.decode()
        self.assertEqual(done.returncode, status, error)
        self.assertEqual(error.count("\n"), 1 if said else 0, error)
        for words in said:
            self.assertIn(words, error)

    def answers(self, *arguments, status=0, said=(), **options):
        done = run("convert", "--format", "json", *arguments, **options)
        self.check(done, status, *said)
        return [json.loads(line) for line in done.stdout.splitlines()]

    # --- What is answered --------------------------------------------------------

    def test_json(self):
        answer, = self.answers(self.file("one.mrc", FLUTE))
        self.assertEqual(list(answer), ["source", "record", "control_number", "title", "result",
                                        "fields", "messages"])
        self.assertEqual([answer["record"], answer["control_number"], answer["title"]],
                         [1, "flute", "Syrinx"])
        self.assertEqual(answer["fields"], [
            {"id": 0, "action": "add", "tag": "382", "indicators": "01",
             "subfields": [["a", "flute"], ["n", "1"], ["s", "1"], ["2", "lcmpt"]]}])

    def test_headings(self):
        for heading, expected in HEADINGS:
            with self.subTest(heading):
                done = run("heading", "--mode", "382", "--json", heading)
                self.check(done, 0)
                answer = json.loads(done.stdout)
                self.assertEqual(answer["title"], heading)
                fields = [" ".join(f"${code} {text}" for code, text in field["subfields"])
                          for field in answer["fields"] if field["tag"] == "382"]
                self.assertEqual(fields, [expected] if expected else [])
                # A heading that gives nothing is named.
                self.assertEqual([m["type_name"] for m in answer["messages"]],
                                 [] if expected else ["382 non-productive"])

    def test_genres_of_headings(self):
        config = self.folder / "config"
        shutil.copytree(CONFIG, config)
        with (config / "Music6xxTo655.txt").open("a") as table:
            table.write("\n[LanguagesByName]\nenglish=eng\n")
        for heading, expected in GENRES:
            with self.subTest(heading):
                done = run("heading", "--config", config, "--mode", "all", "--json", heading)
                self.check(done, 0)
                fields = json.loads(done.stdout)["fields"]
                self.assertEqual([dict(f["subfields"])["a"] for f in fields if f["tag"] == "655"],
                                 expected)

    def test_a_heading_that_gave_nothing_reads_as_it_stands(self):
        # The component itself would say "$aWalt$zes", a "$" ahead of every z.
        done = run("heading", "--mode", "382", "--json", "Waltzes $z Brazil")
        message, = json.loads(done.stdout)["messages"]
        self.assertEqual(message["terms"], "$aWaltzes$zBrazil")

    def genres_of_canons(self, done):
        self.check(done, 0)
        return [f["subfields"][0][1] for f in json.loads(done.stdout)["fields"]]

    def test_canons_and_fugues(self):
        for choice, expected in (("message", []), ("assign", ["Canons", "Fugues"])):
            done = run(*CANONS, choice)
            self.assertEqual(self.genres_of_canons(done), expected)
            texts = [m["text"] for m in json.loads(done.stdout)["messages"]]
            self.assertEqual("Form/genre 'Canons' or 'Fugues' not assigned" in texts, not expected)
        self.check(run(*CANONS, "ask", start_new_session=True), 2, "--canons ask needs a terminal")

    def test_canons_and_fugues_in_a_terminal(self):
        for end in open_terminal(self):
            os.close(end)
        for typed, expected in ((b"\n", ["Canons", "Fugues"]), (b"3\nCanons\n2\n", ["Fugues"]),
                                (b"2, 1\n", ["Canons", "Fugues"]), (b"none\n", []), (b"0\n", []),
                                (b"\x04", [])):
            done, shown = run_in_terminal(typed, *CANONS, "ask")
            self.assertEqual(self.genres_of_canons(done), expected, typed)
            self.assertIn("  2  655 Fugues $2lcgft", shown)

    def test_text(self):
        done = run("convert", "--mode", "382", "-", stdin=FLUTE)
        self.check(done, 0)
        self.assertEqual(done.stdout.decode(),
                         "flute  Syrinx\n  add      382 01 $a flute $n 1 $s 1 $2 lcmpt\n\n")

    def test_existing_fields_are_replaced_or_left_alone(self):
        changed, same = self.answers(stdin=b"".join(
            image(("001", b"id"), ("382", b"01\x1fa%s\x1fn1\x1fs1\x1f2lcmpt" % term),
                  ("650", b" 0\x1faFlute music."))
            for term in (b"Flute", b"flute")))
        self.assertEqual([(f["action"], f["id"]) for f in changed["fields"]], [("replace", 1)])
        self.assertEqual((same["result"], same["fields"]), (0, []))

    def test_samples(self):
        answers = self.answers("--mode", "382", SAMPLE)
        self.assertEqual(len(answers), (SOURCE / "examples/music.txt").read_text().count("\n\n") + 1)
        self.assertTrue(all(a["title"] and a["control_number"] for a in answers))
        refused = [a for a in answers if a["result"] < 0]
        self.assertEqual([a["title"] for a in refused], ["Walking with Bach : a reader's companion "
                                                         "to the suites"])
        silent = [a["title"] for a in answers if a["result"] == 0 and not a["messages"]]
        self.assertEqual(silent, ["Moonlight sonata : for piano, op. 27, no. 2"])

    def test_lines(self):
        first, second = self.answers(
            "--lines", stdin=b"cm\n001  one\n24500$aSyrinx\n650 0$aFlute music.\n\n\njm\n650 0$aComposers")
        self.assertEqual((first["control_number"], first["title"]), ("one", "Syrinx"))
        self.assertEqual(first["fields"][0]["subfields"][0], ["a", "flute"])
        self.assertEqual((second["title"], second["fields"]), ("", []))

    def test_any_octets_make_valid_json(self):
        every = bytes(octet for octet in range(256) if octet not in (29, 30, 31))
        answer, = self.answers(stdin=image(
            ("001", every), ("245", b"00\x1fa" + every), ("382", b"01\x1fa" + every),
            ("650", b" 0\x1fa" + every), ("650", b" 0\x1faFlute music" + every),
            ("650", b" 0\x1faFlute music.")))
        self.assertIn("\ufffd", answer["control_number"])
        self.assertIn(["a", "flute"], answer["fields"][0]["subfields"])

    # --- Inputs that fail ----------------------------------------------------------

    def test_goes_on_behind_what_cannot_be_read(self):
        path = self.file("bad.mrc", FLUTE + FLUTE[:70] + FLUTE)
        answers = self.answers(path, status=1, said=[
            f"{path}: record 2 at offset {len(FLUTE)}: ",
            "Record length in leader does not match actual record length"])
        self.assertEqual([a["record"] for a in answers], [1, 3])

    def test_repairs_a_leader_that_lost_blanks(self):
        answer, = self.answers(stdin=FLUTE.replace(b"i 4500", b"i4500", 1))
        self.assertEqual(answer["control_number"], "flute")

    def test_first_line_too_short(self):
        answer, = self.answers("--lines", status=1, said=["-: record 1 at offset 0: "],
                               stdin=b"c\n650 0$aFlute music\n\ncm\n650 0$aFlute music\n")
        self.assertEqual(answer["record"], 2)

    def test_files_that_cannot_be_read_do_not_stop_the_others(self):
        good = self.file("good.mrc", FLUTE)
        for bad, why in ((self.folder / "none.mrc", "No such file"), (self.folder, "directory"),
                         (self.file("empty.mrc", b""), "empty")):
            answers = self.answers(bad, good, status=3, said=[str(bad), why])
            self.assertEqual(len(answers), 1)

    def test_empty_standard_input_is_no_fault(self):
        self.assertEqual(self.answers(stdin=b""), [])

    # --- Runs ------------------------------------------------------------------------

    def convert_online(self, path, *arguments):
        server = ThreadingHTTPServer(("127.0.0.1", 0), Authorities)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        url = f"http://127.0.0.1:{server.server_port}"
        done = subprocess.run([COMMAND, "convert", "--linked-data-url", url, "--permalink-url", url,
                               "--lookup-rate", "1000", *map(str, arguments), path],
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120,
                              env={**os.environ, "no_proxy": "*"})
        server.shutdown()
        server.server_close()
        return done

    def test_answers_do_not_depend_on_the_number_of_threads(self):
        if b"without libcurl" in run("version").stdout:
            self.skipTest("no client")

        def about(*places):
            return image(("001", b"place"), ("650", b" 0\x1faSongs" + b"".join(
                b"\x1fz" + place for place in places)))
        boston, region, lost, fatal = (
            about(b"Massachusetts", b"Boston"), about(b"Massachusetts", b"Boston Metropolitan Area"),
            about(b"Nowhere"), about(b"Atlantis"))
        mixed = [boston, region, about(b"Massachusetts", b"Boston metropolitan area"), lost, FLUTE,
                 FLUTE[:70]]
        sample = SAMPLE.read_bytes()
        sound = self.file("sound.mrc", b"".join(mixed) * 20 + sample)
        broken = self.file("broken.mrc", b"".join(mixed) * 20 + boston + fatal + boston + fatal
                           + sample + b"".join(mixed) * 20)
        for path in (sound, broken):
            alone = self.convert_online(path, "--jobs", 1, "--format", "json").stdout
            for jobs in (2, 5):
                done = self.convert_online(path, "--jobs", jobs, "--format", "json")
                self.assertEqual(done.returncode, 1, done.stderr)
                self.assertEqual(done.stdout, alone)
        # What comes behind the failure is answered without look-ups.
        found = [b"Boston (Mass.)" in line for line in alone.splitlines()]
        self.assertEqual(found[0::5][:21], [True] * 21)
        self.assertFalse(any(found[101:]))

    def test_interrupted_runs_keep_what_was_done(self):
        output = self.folder / "out.mrc"
        process = subprocess.Popen(call("convert", "--mode", "382", "--format", "json", "--output",
                                        output), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        process.stdin.write(FLUTE * 3)
        process.stdin.flush()
        for _ in range(3):  # though the input goes on
            self.assertIn(b"flute", process.stdout.readline())
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(60), 130)
        self.assertIn(b"interrupted", process.stderr.read())
        self.assertEqual(Path(f"{output}.partial").read_bytes(), FLUTE_WITH_382 * 3)
        self.assertEqual([path.name for path in self.folder.iterdir()], ["out.mrc.partial"])
        for pipe in (process.stdin, process.stdout, process.stderr):
            pipe.close()

    def test_progress_is_for_terminals(self):
        for options, shown in (([], True), (["--quiet"], False)):
            master, slave = open_terminal(self)
            done = subprocess.run(call("convert", *options, SAMPLE), stdout=subprocess.PIPE,
                                  stderr=slave, timeout=120)
            self.assertEqual(done.returncode, 0)
            os.write(slave, b".")
            self.assertEqual(b" records/s" in os.read(master, 65536), shown)
            os.close(slave)
            os.close(master)

    def test_reports(self):
        odd = image(("001", b"<odd>"), ("650", b" 0\x1faFlute & \xff<script>alert(1)</script>"))
        path = self.file("in.mrc", FLUTE * 7 + odd + FLUTE[:70]
                         + image(("001", b"book"), ("245", b"00\x1faBook."), record_type="a"))
        reports = {}
        for form in ("json", "tsv", "html"):
            report = self.folder / f"report.{form}"
            done = run("convert", "--mode", "382", "--report", report, path)
            self.assertEqual(done.returncode, 1, done.stderr)
            reports[form] = report.read_text()  # which must be UTF-8
        told = json.loads(reports["json"])
        self.assertEqual(told["totals"], {
            "records": 10, "records_changed": 7, "records_not_music": 1, "not_read": 1,
            "fields_added": 7, "fields_replaced": 0})
        self.assertEqual(told["fields"], [
            {"tag": "382", "term": "flute", "action": "add", "count": 7, "examples": ["flute"]}])
        self.assertEqual([(row["heading"], row["examples"])
                          for row in told["headings_without_fields"]],
                         [("$aFlute & \ufffd<script>alert(1)</script>", ["<odd>"])])
        self.assertEqual([(row["count"], row["examples"]) for row in told["not_read"]],
                         [(1, ["record 9"])])
        self.assertIn("\nfields\t382\tflute\tadd\t7\tflute ...\n", reports["tsv"])
        self.assertEqual({line.count("\t") for line in reports["tsv"].splitlines()}, {5})
        self.assertIn("Flute &amp; \ufffd&lt;script&gt;alert(1)", reports["html"])
        self.assertNotIn("alert(1)</script>", reports["html"])
        report = self.folder / "report.tsv"
        self.check(run("convert", "--report", report, path), 3, "--force")
        self.check(run("convert", "--report", report, "--force", report), 3, "one of the files")
        self.check(run("convert", "--report", "report.pdf", path), 2, ".html")

    # --- Records written -------------------------------------------------------------

    def convert_to(self, output, *arguments, said=(), status=0):
        """The octets written, and what was said beside the line of totals."""
        done = run("convert", "--mode", "382", "--output", output, *arguments)
        error = done.stderr.decode()
        self.assertEqual((done.returncode, done.stdout), (status, b""), error)
        for words in said:
            self.assertIn(words, error)
        return output.read_bytes()

    def test_records_are_written_with_their_new_fields(self):
        plain = image(("001", b"plain"), ("500", b"  \x1faNothing to add."))
        path = self.file("in.mrc", FLUTE + b"\r\n" + plain)
        written = self.convert_to(self.folder / "out.mrc", path,
                                  said=["2 records read, 1 changed (1 fields added, 0 replaced), "
                                        "2 written to "])
        self.assertEqual(written, FLUTE_WITH_382 + plain)
        self.assertEqual(self.convert_to(self.folder / "changed.mrc", "--only-changed", path),
                         FLUTE_WITH_382)
        done = run("convert", "--output", "-", "--rejects", self.folder / "r", "--mode", "382",
                   path)
        self.assertEqual(done.stdout, written)
        self.assertEqual(sorted(p.name for p in self.folder.iterdir()),
                         ["changed.mrc", "in.mrc", "out.mrc"])

    def test_records_are_written_as_marcxml(self):
        long = image(("001", b"long"), *[("500", b"  \x1fa" + b"x" * 9973)] * 10,
                     ("650", b" 0\x1faFlute music."))
        path = self.file("in.mrc", FLUTE + long)
        xml = self.convert_to(self.folder / "out.xml", "--only-changed", self.file("one", FLUTE))
        self.assertEqual(ElementTree.fromstring(xml)[0].find("*[@tag='382']")[0].text, "flute")
        # The form of the first input, and the way back.
        self.assertEqual(self.convert_to(self.folder / "a", self.folder / "out.xml"), xml)
        self.assertEqual(self.convert_to(self.folder / "b.mrc", self.folder / "out.xml"),
                         FLUTE_WITH_382)
        # What is put aside from MARCXML is its element.
        long_xml = self.folder / "long.xml"
        run("dump", "--to", "marcxml", "--output", long_xml, path)
        self.convert_to(self.folder / "c.xml", long_xml, status=1,
                        said=["record 2 at offset ", "would be longer than 99999 octets"])
        aside = (self.folder / "c.xml.rejects").read_bytes()
        self.assertTrue(aside.startswith(b"<marc:record>"), aside[:50])
        self.assertTrue(aside.endswith(b"</marc:record>"), aside[-50:])
        self.assertIn(aside, long_xml.read_bytes())

    def test_compressed_files(self):
        half = gzip.compress(FLUTE)
        path = self.file("in", half + half + bytes(512))
        written = self.convert_to(self.folder / "out.mrc.gz", path)
        self.assertEqual(gzip.decompress(written), FLUTE_WITH_382 * 2)
        for octets, why in ((half + half[:-9], "ends too soon"), (half + b"x", "other octets"),
                            (half[:20] + b"\0\0" + half[22:] + half, "")):
            self.convert_to(self.folder / "out.mrc", "--force", self.file("in", octets), status=3,
                            said=[f"cannot read {path}: ", why])

    def test_records_that_cannot_be_written_are_put_aside(self):
        bad = FLUTE[:70]
        long = image(("001", b"long"), *[("500", b"  \x1fa" + b"x" * 9973)] * 10,
                     ("650", b" 0\x1faFlute music."))
        self.assertEqual(len(long), 99972)
        path = self.file("in.mrc", FLUTE + bad + FLUTE + long)
        output = self.folder / "out.mrc"
        written = self.convert_to(output, path, status=1, said=[
            f"{path}: record 2 at offset {len(FLUTE)}: ", f"record 4 at offset {len(FLUTE * 2) + 70}"
            ", control number long: The record would be longer than 99999 octets",
            f"2 put aside in {output}.rejects"])
        self.assertEqual(written, FLUTE_WITH_382 * 2)
        self.assertEqual((self.folder / "out.mrc.rejects").read_bytes(), bad + long)
        # Those of an earlier run do not stay beside the output of a later one.
        self.convert_to(output, "--force", self.file("in.mrc", FLUTE))
        self.assertFalse((self.folder / "out.mrc.rejects").exists())

    def test_outputs_that_are_refused_or_fail_leave_what_was_there(self):
        path = self.file("in.mrc", FLUTE)
        there = self.file("there.mrc", b"kept")
        for output, options, status, why in (
                (there, [], 3, "is there already"), (path, ["--force"], 3, "one of the files to read"),
                (self.folder / "none" / "x", [], 3, "No such file"), ("/dev/full", [], 3, "No space"),
                ("-", [], 2, "--rejects"), (there, ["--diff"], 2, "--diff"),
                (there, ["--lines"], 2, "--lines"), (there, ["--in-place"], 2, "--in-place")):
            self.check(run("convert", "--output", output, *options, path), status, why)
        self.assertEqual((there.read_bytes(), path.read_bytes()), (b"kept", FLUTE))

    def test_differences(self):
        path = self.file("in.mrc", FLUTE + image(
            ("001", b"oboe"), ("382", b"01\x1faOboe\x1fn1\x1fs1\x1f2lcmpt"),
            ("650", b" 0\x1faOboe music.")))
        done = run("convert", "--diff", "--mode", "382", path)
        self.check(done, 0)
        self.assertEqual(done.stdout.decode(), f"""\
{path}: record 1  flute  Syrinx
+ 382 01 $a flute $n 1 $s 1 $2 lcmpt

{path}: record 2  oboe
- 382 01 $a Oboe $n 1 $s 1 $2 lcmpt
+ 382 01 $a oboe $n 1 $s 1 $2 lcmpt

""")

    # --- Wrong calls and failed writing ----------------------------------------------

    def test_wrong_calls(self):
        for call in ([], ["convert", "--mode", "383"], ["convert", "--frob"], ["heading"],
                     ["convert", "--format", "xml"], ["convert", "--canons", "both"], ["transmute"]):
            self.check(run(*call), 2, "cantorel: ")
        self.check(run("--help"), 0)

    def test_configuration_that_will_not_do(self):
        half = self.folder / "half"
        half.mkdir()
        shutil.copy(CONFIG / "MusicMedium.Lcmpt.txt", half)
        for folder, why in ((self.folder / "none", "is not there"), (SAMPLE, "is not there"),
                            (self.folder, "has no MusicMedium.Lcmpt.txt"),
                            (half, "has no usable Music6xxTo655.txt")):
            self.check(run("convert", "--config", folder, SAMPLE), 2, str(folder), why)

    def check_is_clean(self, *options):
        done = run("config", "check", *options)
        if b"without libzip" in done.stdout:
            self.skipTest("no reader of workbooks")
        self.assertEqual((done.returncode, done.stdout), (0, b""))

    def test_configuration_is_built_and_checked(self):
        shutil.copy(CONFIG / "MusicMedium.Lcmpt.txt", self.folder)
        workbook = self.folder / "Deriving bibliographic 655 etc.xlsx"
        build = ("config", "build", "--config", self.folder)
        self.check(run(*build), 3, "Music6xxTo655.txt was not built", "is not there")
        workbook.write_bytes(b"PK\x03\x04")
        self.check(run(*build), 3, workbook.name)
        self.check(run("convert", "--config", self.folder, SAMPLE), 2,
                   "has no usable Music6xxTo655.txt", workbook.name)
        shutil.copy(SOURCE / "tests" / "data" / "workbooks" / "derivation.xlsx", workbook)
        done = run(*build)
        if b"without libzip" in done.stderr:
            self.skipTest("no reader of workbooks")
        self.check(done, 0)
        self.assertIn(b"  List 3        4 keys      6 fields\n", done.stdout)
        self.assertIn(b"  List 6, row 5 has no key\n", done.stdout)
        done = run("config", "check", "--config", self.folder)
        self.check(done, 1)
        self.assertIn(b"Music6xxTo655.txt:5: jazz repeats a key", done.stdout)
        self.assertNotIn(b"gives another table", done.stdout)

    def test_a_configuration_folder_of_ones_own(self):
        own = self.folder / "new" / "folder"
        self.check(run("config", "init", own), 0)
        files = sorted(file for file in CONFIG.iterdir() if file.is_file())
        self.assertEqual([(f.name, f.read_bytes()) for f in files],
                         [(f.name, f.read_bytes()) for f in sorted(own.iterdir())])
        (own / "bibsup.cfg").write_text("changed")
        (own / "mine").write_text("mine")
        self.check(run("config", "init", own), 2, str(own), "is not empty", "--force")
        self.assertEqual((own / "bibsup.cfg").read_text(), "changed")
        self.check(run("config", "init", "--force", own), 0)
        self.assertEqual((own / "bibsup.cfg").read_bytes(), (CONFIG / "bibsup.cfg").read_bytes())
        self.assertEqual((own / "mine").read_text(), "mine")
        self.check(run("config", "init", own / "mine"), 2, "is no folder")
        self.check(run("config", "init", own / "mine" / "below"), 3, "cannot be made")
        self.check(run("config", "init", "--force", CONFIG), 2, "comes with the program")
        self.check_is_clean("--config", own)

    def test_configuration_folder_may_have_any_name(self):
        shutil.copytree(CONFIG, self.folder / "me")
        done = run("heading", "--config", "me", "Flute music", cwd=self.folder)
        self.check(done, 0)
        self.assertIn(b"$a flute", done.stdout)

    # --- Other forms -------------------------------------------------------------

    def test_records_go_through_marcxml_and_back(self):
        xml = self.folder / "sample.xml"
        done = run("dump", "--to", "marcxml", "--output", xml, SAMPLE)
        self.assertEqual([done.returncode, done.stdout], [0, b""])
        self.assertIn(b"%d records" % SAMPLE.read_bytes().count(b"\x1d"), done.stderr)
        self.assertEqual(os.listdir(self.folder), ["sample.xml"])
        self.assertEqual(run("dump", "--to", "iso2709", xml).stdout, SAMPLE.read_bytes())
        answers = [self.answers(file) for file in (SAMPLE, xml)]
        for answer in answers[0] + answers[1]:
            del answer["source"]
        self.assertEqual(answers[0], answers[1])

    def test_dump_says_what_marcxml_has_no_form_for(self):
        odd = image(("245", b"|1Lost \x1fa<\xff\x02>\x1f\x1f\xc3\xa9\x1f x"), ("0=0", b"  \x1fax"),
                    ("500", b"  \x1f"), ("001", b"odd"))
        done = run("dump", "--to", "marcxml", self.file("odd.mrc", odd[:8] + b"?" + odd[9:]))
        self.assertEqual(done.returncode, 1)
        self.assertIn(
            b'<marc:controlfield tag="001">odd</marc:controlfield>\r\n'
            b'<marc:datafield tag="245" ind1=" " ind2="1">'
            b'\t\t<marc:subfield code="a">Lost </marc:subfield>\r\n'
            b'\t\t<marc:subfield code="a">&lt;\xef\xbf\xbd&gt;</marc:subfield>\r\n'
            b'\t\t<marc:subfield code="?">\xc3\xa9</marc:subfield>\r\n'
            b'\t\t<marc:subfield code="?">x</marc:subfield>\r\n'
            b'</marc:datafield>\r\n</marc:record>', done.stdout)
        said = [line.split(": ", 3)[3] for line in done.stderr.decode().splitlines()]
        leader = odd[:24].decode()
        self.assertEqual(said, [
            f'leader: "{leader[:8]}?{leader[9:]}" became "{leader}"',
            '245: indicator "|" became blank',
            "245: text ahead of the subfields became $a",
            "245: a delimiter without code was left out",
            "245: text without code became $?",
            '245: code " " became $?',
            "245: 2 characters were no UTF-8 or not allowed in XML",
            "0=0: a field with this tag cannot be written and was left out",
            "500: a field without text was left out"])

    def test_translate(self):
        def of(text, scheme=b" "):
            one = image(("001", b"x"), ("245", b"00\x1fa" + text))
            return one[:9] + scheme + one[10:]

        plain, accent = of(b"Syrinx"), of(b"Caf\xe2e")
        symbol, bad = of(b"\xc7 \x99"), of(b"\xe2e", b"a")
        mixed = self.file("mixed.mrc", plain + accent + symbol + bad + b"cut")
        out = self.folder / "out.mrc"
        done = run("translate", "--to", "utf8", "--output", out, mixed)
        self.assertEqual(done.returncode, 1)
        said = done.stderr.decode()
        for part in ("control number x: 245 at 51: no such character, written as [MARC+99]",
                     "record 4 at offset 185, control number x: read as UTF-8, but the octets",
                     "marc8: 1 records, the first is number 2 of ", "voyager: 1 records",
                     "5 records read, 4 written, 1 put aside, 1 with characters that could not "
                     "be translated, 1 whose octets disagree"):
            self.assertIn(part, said)
        self.assertEqual(out.read_bytes(), of(b"Syrinx", b"a") + of(b"Cafe\xcc\x81", b"a") +
                         of("\u2077 [MARC+99]".encode(), b"a") + bad)
        self.assertEqual((self.folder / "out.mrc.rejects").read_bytes(), b"cut")
        self.check(run("translate", "--to", "utf8", "--output", out, mixed), 3, "--force")
        self.check(run("translate", "--output", mixed, "--force", mixed), 3, "files to read")

        done = run("translate", "--from", "marc8", stdin=accent + of(b"\xc7"))
        self.check(done, 0, "2 records read, 2 written")
        self.assertEqual(done.stdout, of(b"Cafe\xcc\x81", b"a") + of(b"\xc3\x9f", b"a"))
        xml = run("dump", "--to", "marcxml", stdin=accent).stdout
        back = run("translate", "--to", "marc8", stdin=xml)
        self.assertEqual(back.stdout[24:], accent[24:])

    def test_dump_as_text(self):
        ansel = image(("001", b"flute"), ("245", b"0 \x1faCaf\xe2e"), ("500", b"ab"))
        done = run("dump", stdin=FLUTE + ansel[:9] + b" " + ansel[10:] + b"cut")
        self.check(done, 1, "-: record 3 at offset ", "Too short")
        self.assertEqual(done.stdout.decode().split("\n\n")[1].splitlines()[1:],
                         ["001 flute", "245 0_ $a Cafe\u0301", "500 ab"])

    def test_a_failed_dump_leaves_the_file_that_was_there(self):
        kept = self.file("kept.mrc", b"kept")
        self.check(run("dump", "--output", kept, SAMPLE), 3, "kept.mrc", "--force")
        script = 'ulimit -f 4; trap "" XFSZ; "$0" dump --to iso2709 --force --output "$2" "$1"'
        many = self.file("many.mrc", FLUTE * 2000)
        done = subprocess.run(["bash", "-c", script, COMMAND, many, kept], stderr=subprocess.PIPE)
        self.check(done, 3, "cannot write", "kept.mrc")
        self.assertEqual(kept.read_bytes(), b"kept")
        self.assertEqual(sorted(os.listdir(self.folder)), ["kept.mrc", "many.mrc"])

    def test_output_that_takes_no_more(self):
        many = self.file("many.mrc", FLUTE * 2000)
        with open("/dev/full", "wb") as full:
            self.check(run("convert", many, stdout=full), 3, "cannot write to standard output")
        script = '"$0" convert --offline "$1" | head -c 1 >/dev/null; exit ${PIPESTATUS[0]}'
        done = subprocess.run(["bash", "-c", script, COMMAND, many], stderr=subprocess.PIPE)
        self.check(done, 3, "cannot write to standard output")
        done = subprocess.run(["bash", "-c", '"$0" convert --offline "$1" >&-', COMMAND, many],
                              stderr=subprocess.PIPE)
        self.check(done, 3, "cannot write to standard output")


if __name__ == "__main__":
    unittest.main()
