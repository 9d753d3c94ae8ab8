// Words that stand for a number or for a complete group of instruments.

#ifndef CANTOREL_MEDIUM_GROUP_WORDS_H_
#define CANTOREL_MEDIUM_GROUP_WORDS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// The number of players that a word in comparison form names ("TRIO", "TRIOS"
// give 3); `is_group` false and 0 for any other word, other spellings such as
// "SEXTETTE" included.
std::int32_t NumberFromGroupWord(std::string_view word, bool& is_group);

// Half of the number that a text begins with, an odd number raised by one
// first: hands to players.  "4" gives "2", "3" gives "2", no number gives "0".
std::string HalfRoundedUp(std::string_view text);

// Whether "baritone" in this heading (its whole field text) means the brass
// instrument and not the voice; if so `term` becomes "baritone horn".
bool BaritoneMeansHorn(std::string_view heading_text, std::string& term);

// False for the preferred terms "continuo", "percussion" and "electronics",
// which take no count.  Case counts.
bool IsCountedMedium(std::string_view term);

// Whether a term in comparison form is an ensemble by its name alone, without a
// vocabulary: an orchestra, a string orchestra, a band, or what ends in the word
// itself.
bool IsCommonEnsemble(std::string_view norm);

// The 382 subfields ($a and $n) of a standard combination named by an item in
// comparison form, singular or plural ("PIANO TRIO", "PIANO TRIOS"); empty for
// any other item.
std::string_view StandardCombination(std::string_view item);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_GROUP_WORDS_H_
