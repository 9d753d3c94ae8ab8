// Genre terms from the wording of a heading, without the derivation table.
//
//   "Hymns, English"                    a qualifier behind a comma
//   "Sonatas (Flute and piano)"         a medium or a style in parentheses
//   "String quartets", "Songs with piano", "Flute and piano music"
//
// Each way has a file of its own: heading_lists_comma.cpp,
// heading_lists_parentheses.cpp and heading_lists.cpp, and the first two a table.

#ifndef CANTOREL_GENRE_HEADING_LISTS_H_
#define CANTOREL_GENRE_HEADING_LISTS_H_

#include <string>
#include <string_view>

#include "genre/genre_context.h"

namespace cantorel {

class HeadingLists {
 public:
  // `derivation_table` is the full path of "Music6xxTo655.txt".  Both arguments
  // must outlive the object.
  HeadingLists(GenreContext& context, std::string_view derivation_table)
      : context_(context), derivation_table_(derivation_table) {}

  // Reads a heading (text of the $a, which is the record's current subfield).
  // True when the heading is done with; fields may have been added in either
  // case.  `strip_arranged` leaves a final "arranged" of the $a out of account.
  bool TestHeading(std::string_view text, bool strip_arranged);

  // A heading with a comma, by what stands before and behind the last one.
  // `key` and `value` receive what was looked up in the derivation table.
  bool TestComma(std::string_view before, std::string_view before_norm, std::string_view after,
                 std::string& key, std::string& value);

  // A heading with a parenthesis, by what stands before it and by the text from
  // the "(" to the end of the heading.
  bool TestParentheses(std::string_view base, std::string_view parenthetical);

 private:
  bool TestWording(std::string_view text, std::string_view parenthetical, bool strip_arranged);
  bool TestLastWords(std::string_view full);
  bool TestEnsemble(std::string_view full);
  bool TestDuo(std::string_view full);

  bool TestQualifier(std::string_view qualifier, std::string_view before, std::string& key,
                     std::string& value);
  bool AddLanguageHeading(std::string_view heading);
  void AddPeople(std::string_view tag, std::string_view people);

  void AddStyle(std::string_view parenthetical);
  const std::string* FindStyle(const std::string& style);
  bool IsPairOfInstruments(std::string_view base, std::string_view parenthetical);

  // Chamber music, unless a list of performers names a large ensemble; the two
  // words separate performers as commas do.
  void AddUnlessLargeEnsemble(std::string_view performers, std::string_view and_word,
                              std::string_view with_word);
  // Both answer true.
  bool AddChamberMusic();
  bool AddAndStop(std::string_view term);

  // Whether a name in comparison form is a known instrument.  An unknown one
  // leaves a message; no name at all is none and leaves nothing.
  bool IsInstrument(std::string_view name);
  // Whether a name ends " MUSIC" and what stands before it is an instrument.
  bool IsMusicOfInstrument(std::string_view name);
  std::string Norm(std::string_view text) const {
    return context_.record.NormString(text, true, "V");
  }

  GenreContext& context_;
  std::string_view derivation_table_;
  int depth_ = 0;          // headings being read within each other
  std::string preferred_;  // scratch
};

// Whether a word in comparison form makes a heading one of chamber music: TRIO
// to NONET and their plurals.  DUET is not among them, which is deliberate.
bool IsEnsembleWord(std::string_view word);

// A comparison form as a key of the derivation table: blanks as "_".
std::string TableKey(std::string_view norm);
// ASCII letters in lower case.
std::string LowerCase(std::string_view norm);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_HEADING_LISTS_H_
