#include "medium/score_phrases.h"

#include <array>

namespace cantorel {
namespace {

struct ScorePhrase {
  std::string_view literal;
  ScoreKind kind;
};

// In the order in which they are sought.
constexpr std::array<ScorePhrase, 6> kScorePhrases = {{
    {"vocal scores with", ScoreKind::kVocal},
    {"vocal score with", ScoreKind::kVocal},
    {kPianoScores, ScoreKind::kPiano},
    {"chorus scores with", ScoreKind::kVocal},
    {"solo with ", ScoreKind::kSolo},
    {"solos with ", ScoreKind::kSolo},
}};

}  // namespace

FoundPhrase FindScorePhrase(std::string_view rest) {
  for (const ScorePhrase& phrase : kScorePhrases) {
    const std::size_t position = FindNoCase(rest, phrase.literal);
    if (position == std::string_view::npos) continue;
    if (!OpensSubdivision(rest, position)) return {};
    return {phrase.kind, position, position + phrase.literal.size()};
  }
  return {};
}

}  // namespace cantorel
