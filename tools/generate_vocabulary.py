#!/usr/bin/env python3
"""Writes config/MusicMedium.Lcmpt.txt from the tables in config/sources/.

    tools/generate_vocabulary.py

Sources, all of them tab-separated text, in which accents are characters of
their own (Unicode form D):
    lcmpt.tsv                  the preferred terms of the thesaurus, with the
                               terms above them
    lcmpt-variants.tsv         its variant terms
    settled-variants.tsv       variants that need a decision
    not-ensembles.tsv          terms below "ensemble" that are none
    subject-heading-names.tsv  further names, as subject headings write them

Every preferred term, variant and name becomes a key by its comparison form.
What the sources leave open stops the run with a list of it.
"""

import collections
import sys

from config_sources import CONFIG, comparison_form, read_table

HEAD = """\
; Medium of performance vocabulary.
; Made by tools/generate_vocabulary.py from the tables in config/sources: change
; those, not this file.  Terms: Library of Congress Medium of Performance
; Thesaurus for Music (source code lcmpt), as of November 2022.
;
; A key is a name in upper case, without accents, blanks as "_".  The value is
; the preferred term, with decomposed accents; a tab and a note may follow.
"""

# Words whose meaning the reader of headings decides by itself.
RESERVED = {"BARITONE", "BARITONES"} | {
    f"{kind} {group}{plural}"
    for kind in ("PIANO", "STRING", "VOCAL", "WIND", "WOODWIND")
    for group in ("DUET", "TRIO", "QUARTET", "QUINTET", "SEXTET", "SEPTET", "OCTET", "NONET")
    for plural in ("", "S")
}



def ensembles_of(terms, excluded):
    """The terms at and below "ensemble", not going below the excluded ones."""
    below = collections.defaultdict(list)
    for row in terms:
        for broader in row["broader_terms(|)"].split("|"):
            below[broader].append(row["term"])
    found, waiting = set(), ["ensemble"]
    while waiting:
        term = waiting.pop()
        if term in found or term in excluded:
            continue
        found.add(term)
        waiting.extend(below[term])
    return found


def without_qualifier(text):
    """The text without a final parenthesis, or None."""
    return text[: text.rindex("(")].strip() if text.endswith(")") else None


def main():
    terms = read_table("lcmpt.tsv")
    variants = read_table("lcmpt-variants.tsv")
    settled = {comparison_form(r["variant"]): r["term"] for r in read_table("settled-variants.tsv")}
    names = read_table("subject-heading-names.tsv")
    excluded = {r["term"] for r in read_table("not-ensembles.tsv")}

    preferred = {r["term"] for r in terms}
    problems = [
        f"{term!r} is no term of the thesaurus"
        for term in sorted(
            {r["term"] for r in variants + names} | set(settled.values()) | excluded
        )
        if term not in preferred and term != "-"
    ]

    vocabulary = {}
    for term in sorted(preferred):
        if vocabulary.setdefault(comparison_form(term), term) != term:
            problems.append(f"two terms with the form of {term!r}")
    authorised = set(vocabulary)

    # What each further name may mean; a preferred term means itself.
    meanings = collections.defaultdict(set)
    for row in variants:
        meanings[comparison_form(row["variant"])].add(row["term"])
    # A term that differs from another name by a qualifier alone, as "angklung
    # (rattle)", is found without it when nothing else goes by that name.
    bare = collections.defaultdict(set)
    for text, term in [(t, t) for t in preferred] + [(r["variant"], r["term"]) for r in variants]:
        if without_qualifier(text):
            bare[comparison_form(without_qualifier(text))].add(term)
    qualified_terms = {comparison_form(without_qualifier(t)) for t in preferred if without_qualifier(t)}
    for form in qualified_terms - authorised - set(meanings):
        if len(bare[form]) == 1:
            meanings[form] |= bare[form]

    for form, term in settled.items():
        meanings[form] = {term}
    for form, found in sorted(meanings.items()):
        if form in authorised:
            continue
        if len(found) > 1:
            problems.append(f"settle {form!r}: {sorted(found)}")
        elif found != {"-"}:
            vocabulary[form] = found.pop()

    for row in names:
        form = comparison_form(row["name"])
        if vocabulary.setdefault(form, row["term"]) != row["term"]:
            problems.append(f"{row['name']!r} is known as {vocabulary[form]!r} already")

    problems += [f"{form!r} is reserved" for form in RESERVED & set(vocabulary)]
    if problems:
        sys.exit("\n".join(problems))

    ensembles = ensembles_of(terms, excluded)
    # The reader of headings makes "male chorus" of "Male voices" and takes a
    # listed name for a term of the thesaurus; a mere name must not pass for one.
    no_terms = {form for form in vocabulary if form.endswith("CHORUS")} - authorised
    with open(CONFIG / "MusicMedium.Lcmpt.txt", "w", encoding="utf-8", newline="\n") as out:
        out.write(HEAD)
        for section, wanted, hidden in (
            ("Instruments", preferred, set()),
            ("Ensembles", ensembles, no_terms),
        ):
            out.write(f"\n[{section}]\n")
            for form, term in sorted(vocabulary.items()):
                if term in wanted and form not in hidden:
                    out.write(f"{form.replace(' ', '_')}={term}\n")


if __name__ == "__main__":
    main()
