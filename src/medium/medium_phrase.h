// The part of a heading that lists performers: "flute, violin and continuo",
// "violin with orchestra", "piano, 4 hands".
//
// A phrase is a list of items, parted by commas and "and".  Behind " with "
// stands the accompaniment, and its presence makes the items ahead soloists.

#ifndef CANTOREL_MEDIUM_MEDIUM_PHRASE_H_
#define CANTOREL_MEDIUM_MEDIUM_PHRASE_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "medium/medium_context.h"

namespace cantorel {

// What ParseMediumItem made of an item; ParseMediumPhrase or-s them together.
enum MediumCode : std::int32_t {
  kUnrecognized = 1,
  kSingleMedium = 2,         // term and count
  kStandardCombination = 4,  // a ready run of subfields, in the place of the term
  kHandsForm = 8,            // a count and a note for the medium before: "4 hands"
  kMediumWithNote = 16,      // term, count and note: "piano (4 hands)"
};

// Reads a phrase and appends its subfields to `buffer`, which may hold some
// already.  Returns the codes of its items; with kUnrecognized set the phrase
// failed, and what stands in `buffer` is of no use.  A phrase without items
// gives 0.  `all_terms_known` is cleared when a term was made by rule instead
// of read from the vocabulary.
std::int32_t ParseMediumPhrase(MediumContext& context, std::string_view phrase, std::string& buffer,
                               bool& all_terms_known);

// Reads one item, trimmed, into term, count and note; each may come out empty.
// An item that is not recognised is counted in the report.
std::int32_t ParseMediumItem(MediumContext& context, std::string_view item, std::string& term,
                             std::string& count, std::string& note, bool& all_terms_known);

// The same for a caller that has the comparison form of the item.
std::int32_t ParseMediumItem(MediumContext& context, std::string_view item, std::string_view norm,
                             std::string& term, std::string& count, std::string& note,
                             bool& all_terms_known);

// Reads a compound name in comparison form that ends in an ensemble word:
// "FLUTE CHOIR", "RECORDER ENSEMBLES".  1 when it resolved, with term and the
// count "1", else 0.  `is_known` is cleared for a term made by rule and
// otherwise left alone.
std::int32_t ResolveEnsembleItem(MediumContext& context, std::string_view norm, std::string& term,
                                 std::string& count, bool& is_known);

// The text of a note ($v): lower case, blanks and parentheses tidied, a comma
// ahead of a number of hands: "Piano (4 hands)" gives "piano, 4 hands".
std::string TidyNote(MediumContext& context, std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MEDIUM_PHRASE_H_
