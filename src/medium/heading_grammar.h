// One subject heading into one 382 field.
//
// The first word of the heading chooses a branch; each branch reads the rest in
// its own way, and what fits no branch falls through to general patterns.
// Music headings have grown by custom, so the branches differ on purpose.

#ifndef CANTOREL_MEDIUM_HEADING_GRAMMAR_H_
#define CANTOREL_MEDIUM_HEADING_GRAMMAR_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "medium/medium_context.h"

namespace cantorel {

// Fixed inputs of the grammar that do not change from heading to heading.
struct HeadingSettings {
  std::string_view derivation_table;  // full path of "Music6xxTo655.txt"
  std::string_view subfield_2;        // delimiter, "2" and the source code; or empty
};

enum HeadingResult : std::int32_t {
  kHeadingGaveField = 1,
  kHeadingGaveNothing = 0,
  kHeadingIsNoCandidate = -1,
  kNoInstrumentVocabulary = -2,
  kNoEnsembleVocabulary = -3,
};

// Reads the field text of a heading.
//
// `buffer` receives the text of the 382: delimiter, code and text of each
// subfield, ahead of them possibly a prefix for the indicators ("1:" or "10:").
// It is empty unless the result is kHeadingGaveField, and may be empty even
// then: a vocal score for unknown instruments leaves no field behind.
// `trailing` receives a $3 of the heading, which the caller appends.
//
// A text of any other shape than $a (or a $3, then $a) at its head is no
// candidate; octets of any kind are read as they come.
HeadingResult ParseHeading(MediumContext& context, const HeadingSettings& settings,
                           std::string_view field_text, std::string& buffer, std::string& trailing);

// Corrects a finished field: an ensemble is never a soloist and is counted with
// $e; without any ensemble there are no soloists.
void SettleSoloists(MediumContext& context, std::string& text);

// Every $a becomes $b.
void MakeSoloists(std::string& text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_GRAMMAR_H_
