// Phrases of score subdivisions, such as "Vocal scores with piano", found in
// the subfields behind a heading.

#ifndef CANTOREL_MEDIUM_SCORE_PHRASES_H_
#define CANTOREL_MEDIUM_SCORE_PHRASES_H_

#include <cstddef>
#include <string_view>

#include "charset/marc_control.h"
#include "medium/text_find.h"

namespace cantorel {

inline constexpr std::string_view kPianoScores = "piano scores";

// True when a phrase found at `position` (from 0, or npos) stands right behind
// a letter "v" or "x", in practice the code of its subfield.
constexpr bool OpensSubdivision(std::string_view rest, std::size_t position) {
  if (position == std::string_view::npos || position == 0) return false;
  return rest[position - 1] == 'v' || rest[position - 1] == 'x';
}

// True for a score for two pianos.
constexpr bool SaysTwoPianoScores(std::string_view rest) {
  return OpensSubdivision(rest, FindNoCase(rest, "2-piano scores")) ||
         OpensSubdivision(rest, FindNoCase(rest, "2 piano scores"));
}

// The text from `position` (at most the length) to the end of its subfield.
constexpr std::string_view TextUpToDelimiter(std::string_view rest, std::size_t position) {
  const std::string_view text = rest.substr(position);
  return text.substr(0, text.find(kDelimiter));
}

enum class ScoreKind { kNone, kVocal, kPiano, kSolo };

struct FoundPhrase {
  ScoreKind kind = ScoreKind::kNone;
  std::size_t start = 0;   // of the phrase, in the rest, from 0
  std::size_t behind = 0;  // what follows it
};

// The phrase that tells what a score is for.  The phrases are sought in a fixed
// order, and the first that occurs decides: unless it opens a subdivision, the
// answer is none, whatever stands further on.
FoundPhrase FindScorePhrase(std::string_view rest);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_SCORE_PHRASES_H_
