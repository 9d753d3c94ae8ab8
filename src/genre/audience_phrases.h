// Subdivisions that tell an audience, a creator or a style in words, by what they
// begin with, and the genre that each stands for.

#ifndef CANTOREL_GENRE_AUDIENCE_PHRASES_H_
#define CANTOREL_GENRE_AUDIENCE_PHRASES_H_

#include <string_view>

namespace cantorel {

// What follows the beginning.
enum class PhraseKind {
  kLanguage,             // "Catechisms, Italian"
  kYear,                 // "Census, 1990"
  kJuvenileDictionary,   // nothing; the language is the next subdivision
  kSpeakers,             // "Films for Italian speakers"
  kSpeakersAtAuthority,  // the same, the audience to be looked up
  kTextbookSpeakers,     // the same; of "foreign speakers" the language comes next
  kNationality,          // "Personal narratives, Polish"
  kStyle,                // "Studies and exercises (Jazz)"
  kMethodStyle,          // the same, with more conclusions
};

struct SubdivisionPhrase {
  std::string_view beginning;  // the case of letters does not count
  PhraseKind kind;
  std::string_view genre;
};

inline constexpr SubdivisionPhrase kSubdivisionPhrases[] = {
    {"Catechisms, ", PhraseKind::kLanguage, "Catechisms"},
    {"Census, ", PhraseKind::kYear, "Census data"},
    {"Concordances, ", PhraseKind::kLanguage, "Concordances"},
    {"Conversation and phrase books, ", PhraseKind::kLanguage, "Phrase books"},
    {"Dictionaries, Juvenile", PhraseKind::kJuvenileDictionary, "Dictionaries"},
    {"Films for ", PhraseKind::kSpeakers, "Motion pictures"},
    {"Harmonies, ", PhraseKind::kLanguage, "Harmonies (Reference works)"},
    {"Personal narratives, ", PhraseKind::kNationality, "Personal narratives"},
    // Deliberate: spelled so.
    {"Sound recordings for ", PhraseKind::kSpeakersAtAuthority, "Sound recodings"},
    {"Textbooks for ", PhraseKind::kTextbookSpeakers, "Textbooks"},
    {"Methods (", PhraseKind::kMethodStyle, "Methods (Music)"},
    {"Studies and exercises (", PhraseKind::kStyle, "Studies (Music)"},
    {"Video recordings for ", PhraseKind::kSpeakers, "Video recordings"},
};

}  // namespace cantorel

#endif  // CANTOREL_GENRE_AUDIENCE_PHRASES_H_
