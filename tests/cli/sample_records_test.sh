#!/usr/bin/env bash
# examples/music.mrc is what the tool makes of examples/music.txt.
set -euo pipefail
python=$1 source=$2

made=$(mktemp)
trap 'rm -f "$made"' EXIT
"$python" "$source/tools/make_examples.py" "$source/examples/music.txt" "$made"
cmp "$made" "$source/examples/music.mrc"
