#!/usr/bin/env python3
"""Runs what README and docs/ tell the reader to type, and compares what they show.

usage: docs_test.py COMMAND SOURCE_FOLDER BUILD_FOLDER [TEST...]

A document is run from top to bottom in a folder of its own, with the samples in
examples/, and with records.mrc, which is the sample records many times over.  In
a block marked "console" a line that begins "$ " is a command, and what follows is
all that it shows, "..." standing for any lines and a number in a line of totals
for any number; without anything it may show what it likes.  A comment ahead of a block may say

  <!-- file: NAME -->       that the block is a file of that name
  <!-- needs: PROGRAM -->   that it is left out where a program is missing
  <!-- not run: REASON -->  that it is left out

Nothing asks the network: cantorel is called with --offline.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

COMMAND = Path(sys.argv.pop(1)).resolve()
SOURCE = Path(sys.argv.pop(1)).resolve()
BUILD = Path(sys.argv.pop(1)).resolve()

BLOCK = re.compile(r"(?:^<!-- ([a-z ]+): (.*?) -->\n+)?^```(\S*)\n(.*?)^```$", re.M | re.S)

OFFLINE = """#!/bin/sh
case $1 in
  convert | heading) word=$1; shift; set -- "$word" --offline "$@" ;;
esac
exec '%s' "$@"
"""


def commands(text):
    """The commands of a console block, each with the lines shown behind it."""
    found = []
    for line in text.splitlines():
        if line.startswith("$ "):
            found.append((line[2:], []))
        elif found and found[-1][0].endswith("\\") and not found[-1][1]:
            found[-1] = (found[-1][0] + "\n" + line, [])
        else:
            found[-1][1].append(line)
    return found


def line_pattern(line):
    if line == "...":
        return "(.*\n)*?"
    pattern = re.escape(line)
    # How many fields the samples give is a matter of the tables.
    return (re.sub(r"\d+", r"\\d+", pattern) if line.startswith("cantorel: ") else pattern) + "\n"


def shows(lines, expected):
    pattern = "".join(line_pattern(line) for line in expected)
    return re.fullmatch(pattern + "\n*", "".join(line + "\n" for line in lines)) is not None


def cached(name):
    """A value that the build was configured with."""
    found = re.search(f"^{name}:[A-Z]+=(.*)$", (BUILD / "CMakeCache.txt").read_text(), re.M)
    return found[1] if found else ""


class DocumentTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        shutil.copytree(SOURCE / "examples", self.folder / "examples")
        sample = (SOURCE / "examples" / "music.mrc").read_bytes()
        (self.folder / "records.mrc").write_bytes(sample * 10)
        programs = self.folder / ".programs"
        programs.mkdir()
        (programs / "cantorel").write_text(OFFLINE % COMMAND)
        (programs / "cantorel").chmod(0o755)
        self.environment = dict(
            os.environ, HOME=str(self.folder), PATH=f"{programs}:{os.environ['PATH']}",
            LC_ALL="C.UTF-8", CXX=cached("CMAKE_CXX_COMPILER"),
            CMAKE_GENERATOR=cached("CMAKE_GENERATOR"))
        if cached("CANTOREL_SANITIZE") == "ON":
            self.environment["CXXFLAGS"] = "-fsanitize=address,undefined"

    def run_command(self, command, expected):
        # The samples would all go in one piece of the size that many records want.
        command = command.replace("--block 10M", "--block 50k")
        done = subprocess.run(["bash", "-c", command], cwd=self.folder, env=self.environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=600)
        shown = done.stdout.decode(errors="replace")
        self.assertEqual(done.returncode, 0, f"$ {command}\n{shown}")
        if expected and not shows(shown.splitlines(), expected):
            self.assertEqual(shown.splitlines(), expected, f"$ {command}")

    def run_document(self, name):
        text = (SOURCE / name).read_text()
        for match in BLOCK.finditer(text):
            directive, argument, language, block = match.groups()
            if directive == "file":
                (self.folder / argument).write_text(block)
                continue
            if directive == "not run":
                continue
            if language != "console":
                self.assertNotRegex(block, r"(?m)^\$ ", "a command in a block that is not run")
                continue
            if directive == "needs" and shutil.which(argument) is None:
                self.skipTest(f"{argument} is not installed; what comes before it has passed")
            for command, expected in commands(block):
                with self.subTest(command=command):
                    self.run_command(command, expected)

    def test_readme(self):
        self.run_document("README.md")

    def test_guide(self):
        self.run_document("docs/guide.md")

    def test_scale(self):
        self.run_document("docs/scale.md")

    def test_embedding(self):
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.folder / "cantorel"],
                       check=True, stdout=subprocess.DEVNULL)
        self.run_document("docs/embedding.md")


if __name__ == "__main__":
    unittest.main()
