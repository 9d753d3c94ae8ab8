"""Reads records in ISO 2709 and runs the command on them, for the tools here."""

import json
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
END_OF_RECORD, END_OF_FIELD, DELIMITER = b"\x1d", b"\x1e", b"\x1f"


@dataclass
class Field:
    tag: str
    octets: bytes  # indicators too, no terminator

    @property
    def indicators(self):
        return self.octets[:2].decode("latin-1")

    @property
    def subfields(self):
        """Pairs of code and text, as far as the text can be read without tables."""
        parts = self.octets.split(DELIMITER)[1:]
        return [(part[:1].decode("latin-1"), part[1:].decode("utf-8", "replace")) for part in parts]

    def first(self, code):
        return next((text for c, text in self.subfields if c == code), "")


@dataclass
class Record:
    leader: bytes
    fields: list

    def image(self):
        directory, data = b"", b""
        for field in self.fields:
            octets = field.octets + END_OF_FIELD
            directory += b"%s%04d%05d" % (field.tag.encode("latin-1"), len(octets), len(data))
            data += octets
        base = 24 + len(directory) + 1
        length = base + len(data) + 1
        leader = b"%05d%s%05d%s" % (length, self.leader[5:12], base, self.leader[17:24])
        return leader + directory + END_OF_FIELD + data + END_OF_RECORD


def read_record(octets):
    base = int(octets[12:17])
    directory = octets[24 : base - 1]
    fields = []
    for at in range(0, len(directory) - 11, 12):
        length, start = int(directory[at + 3 : at + 7]), int(directory[at + 7 : at + 12])
        data = octets[base + start : base + start + length]
        fields.append(Field(directory[at : at + 3].decode("latin-1"), data.rstrip(END_OF_FIELD)))
    return Record(octets[:24], fields)


def read_records(path):
    """The records of a file; one whose directory cannot be read is named and passed over."""
    for number, octets in enumerate(Path(path).read_bytes().split(END_OF_RECORD)[:-1], 1):
        try:
            yield read_record(octets.lstrip())
        except ValueError:
            print(f"{path}: record {number} cannot be read", file=sys.stderr)


def convert(records, command, config, mode="all"):
    """The command's answers, one for each record, whatever the network may say."""
    call = [command, "convert", "--offline", "--format", "json", "--mode", mode]
    call += ["--config", config] if config else []
    done = subprocess.run(call, input=b"".join(r.image() for r in records), stdout=subprocess.PIPE)
    answers = [json.loads(line) for line in done.stdout.splitlines()]
    if done.returncode or len(answers) != len(records):
        sys.exit(f"{command}: status {done.returncode}, "
                 f"{len(answers)} answers for {len(records)} records")
    return answers


def add_common_arguments(parser):
    parser.add_argument("--command", default=str(ROOT / "build/release/cantorel"),
                        help="the command to run (default: %(default)s)")
    parser.add_argument("--config", metavar="DIR", help="the configuration folder")
    parser.add_argument("files", nargs="+", metavar="FILE", help="records in ISO 2709")
