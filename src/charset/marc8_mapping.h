// The code tables of MARC-8: which character each code of each set is, and which
// code a character has (MARC 21 Specifications for Record Structure, Character
// Sets, and Exchange Media; code tables of December 2007).
//
// These are the look-ups of loops: no allocation, a few table reads each.

#ifndef CANTOREL_CHARSET_MARC8_MAPPING_H_
#define CANTOREL_CHARSET_MARC8_MAPPING_H_

#include <cstdint>
#include <string_view>

#include "charset/utf8_code_point.h"

namespace cantorel {

// The sets, by their short codes.
enum class Marc8Set : char {
  kLatin = '1',  // Basic Latin and, from 128 on, Extended Latin (ANSEL)
  kGreekSymbols = '2',
  kSubscripts = '3',
  kSuperscripts = '4',
  kHebrew = '5',
  kCyrillic = '6',
  kArabic = '7',
  kGreek = '8',
  kEacc = '9',              // East Asian, three octets a character
  kExtendedCyrillic = ':',  // from 128 on
  kExtendedArabic = ';',    // from 128 on
};

// A character's code in one of the sets.
struct Marc8Form {
  Marc8Set set = Marc8Set::kLatin;
  std::uint8_t size = 0;  // 3 in EACC, otherwise 1
  char octets[3] = {};

  std::string_view Octets() const { return {octets, size}; }
};

// The character of an octet in a set of one octet a character; kNoCodePoint for
// none, and for any octet in kEacc.  The Latin set has 0 to 255, the extended
// ones have 128 to 255, all others 0 to 127.  An octet below 128 that the table
// of its set lacks is itself: so are blank, controls and most punctuation in
// every set.  The halves of the double marks are U+FE20 to U+FE23.
std::uint32_t UcsOfMarc8(Marc8Set set, unsigned char octet);

// The character of an EACC code, its first octet highest (0x213351 gives
// U+5203); kNoCodePoint for none.
std::uint32_t UcsOfEacc(std::uint32_t code);

// The code of a character in the first set that has it, in the order of
// Marc8Set but with the extended sets before kEacc; false for none.  ASCII is
// Latin.  Where EACC has several codes for one character it is the lowest whose
// name does not call it a variant.
bool Marc8FormOf(std::uint32_t code_point, Marc8Form& form);

// The code of a character in this very set, by its published table: so the Greek
// alpha of a Greek word, or a comma in Cyrillic text.  Blank and controls are in
// every set of one octet.  False if the set has none.
bool Marc8FormIn(std::uint32_t code_point, Marc8Set set, Marc8Form& form);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_MAPPING_H_
