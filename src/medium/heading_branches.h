// The branches of the heading grammar, one function for each way of reading.
//
// They differ in detail on purpose: headings have grown by custom, and every
// literal and every test of the start of a heading as against any position is a
// decision of its own.

#ifndef CANTOREL_MEDIUM_HEADING_BRANCHES_H_
#define CANTOREL_MEDIUM_HEADING_BRANCHES_H_

#include <string_view>

#include "medium/heading_dispatch.h"
#include "medium/heading_parse.h"

namespace cantorel {

// --- Plain forms (heading_branches.cpp) --------------------------------------

// The word alone gives the field.
Outcome ReadFixed(HeadingParse& parse, const HeadingBranch& branch);
// The heading must begin with the literal.
Outcome ReadOpening(HeadingParse& parse, const HeadingBranch& branch);
// The heading must be the literal and nothing else; any other is general.
Outcome ReadWholeOrGeneral(HeadingParse& parse, const HeadingBranch& branch);
// The literal ends in " (" and opens the heading; the medium stands behind it.
Outcome ReadParenthetical(HeadingParse& parse, const HeadingBranch& branch);
// The same; the literal without a parenthesis, standing alone, gives the field.
Outcome ReadParentheticalOrBare(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadBallads(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadChamber(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadSymphonicPoems(HeadingParse& parse, const HeadingBranch& branch);

// --- Instruments (heading_instrumental_branches.cpp) -------------------------

// The literal is a one-digit count: "Trios", "Trios (Piano, flute, cello)".
Outcome ReadGroup(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadConcertos(HeadingParse& parse, const HeadingBranch& branch);
// The literal names a family: "Brass quintets", "Wind trios (...)".
Outcome ReadFamily(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadPiano(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadPlucked(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadString(HeadingParse& parse, const HeadingBranch& branch);

// --- Scores (heading_score_branches.cpp) -------------------------------------

// The medium stands in a piano score subdivision, if anywhere.
Outcome ReadPianoScores(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadIncidentalMusic(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadOrchestralMusic(HeadingParse& parse, const HeadingBranch& branch);

// --- Voices (heading_chorus_branch.cpp, heading_vocal_branches.cpp) -----------

Outcome ReadChorus(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadMonologues(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadSacred(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadSoloCantatas(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadSongs(HeadingParse& parse, const HeadingBranch& branch);
Outcome ReadVocal(HeadingParse& parse, const HeadingBranch& branch);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_BRANCHES_H_
