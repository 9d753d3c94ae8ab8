// Words that stand for a number or for a complete group of instruments.

#ifndef CANTOREL_MEDIUM_GROUP_WORDS_H_
#define CANTOREL_MEDIUM_GROUP_WORDS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// The number of players that a word in comparison form names ("TRIO", "TRIOS"
// give 3); `is_group` false and 0 for any other word.
std::int32_t NumberFromGroupWord(std::string_view word, bool& is_group);

// Half of the number in a text, an odd number raised first: hands to players.
std::string HalfRoundedUp(std::string_view text);

// Whether "baritone" in this heading means the brass instrument; if so `term`
// becomes "baritone horn".
bool BaritoneMeansHorn(std::string_view heading_text, std::string& term);

// False for "continuo", "percussion" and "electronics", which take no count.
bool IsCountedMedium(std::string_view term);

// The subfields of a standard combination named by an item in comparison form
// ("PIANO TRIO", "PIANO TRIOS"); empty for any other.
std::string_view StandardCombination(std::string_view item);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_GROUP_WORDS_H_
