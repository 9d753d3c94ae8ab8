// One character between MARC-8 and Unicode, as text designates it: by the code
// behind an escape, and by the letter of the 8-bit variant.

#ifndef CANTOREL_CHARSET_MARC8_CHARACTER_H_
#define CANTOREL_CHARSET_MARC8_CHARACTER_H_

#include <cstdint>
#include <string_view>

#include "charset/marc8_mapping.h"

namespace cantorel {

// What a code behind an escape puts in force: a set and, where it is one of the
// other half of the octets, how its octets are brought into its table.
struct Marc8Designation {
  enum class Shift : std::uint8_t { kNone, kTake128Off, kAdd128 };

  Marc8Set set = Marc8Set::kLatin;
  Shift shift = Shift::kNone;
};

// Reads a code: a short code ("1" to ";"), one letter of the Latin family ("s",
// "g", "b", "p"), or what an escape sequence writes, such as "(N", ")N", "$1",
// ")!E".  False, with `designation` as it was, for any other.
bool ReadMarc8Designation(std::string_view code, Marc8Designation& designation);

// What a set's escape writes behind the escape character, such as "(N"; empty for
// no set.
std::string_view Marc8LongCode(Marc8Set set);

// The character of `octets`: three in EACC, otherwise one.  `letter` is "M", "O"
// or "V" of the 8-bit variants; any other is "M".  An octet below 128 that its
// set lacks is itself; a blank is one in EACC, too.  kNoCodePoint for octets that
// are no character or not one character.
std::uint32_t UcsOfMarc8Octets(char letter, Marc8Designation designation, std::string_view octets);

// The form of a character in the variant `letter`, as Marc8FormOf gives it but
// for the octets that the variant uses otherwise: "V" has symbols, superscripts,
// subscripts and Greek symbols in single octets of the Latin set.
bool Marc8FormOf(char letter, std::uint32_t code_point, Marc8Form& form);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_CHARACTER_H_
