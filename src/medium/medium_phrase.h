// The part of a heading that lists performers: "flute, violin and continuo",
// "violin with orchestra", "piano, 4 hands".

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
  kSingleMedium = 2,
  kStandardCombination = 4,
  kHandsForm = 8,
  kMediumWithNote = 16,
};

// Reads a phrase and appends its subfields to `buffer`, which may hold some
// already.  The result has kUnrecognized set when the phrase failed.
// `all_terms_known` is cleared when a term was made by rule instead of read
// from the vocabulary.
std::int32_t ParseMediumPhrase(MediumContext& context, std::string_view phrase,
                               std::string& buffer, bool& all_terms_known);

// Reads one comma-separated item into term, count and note.
std::int32_t ParseMediumItem(MediumContext& context, std::string_view item, std::string& term,
                             std::string& count, std::string& note, bool& all_terms_known);

// Reads a compound name that ends in an ensemble word.  1 when it resolved,
// else 0.  `is_known` is cleared for a term made by rule.
std::int32_t ResolveEnsembleItem(MediumContext& context, std::string_view item, std::string& term,
                                 std::string& count, bool& is_known);

// The note of a $v: lower case, blanks and parentheses tidied.
std::string TidyNote(MediumContext& context, std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MEDIUM_PHRASE_H_
