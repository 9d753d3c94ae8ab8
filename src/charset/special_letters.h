// The letters of the 8-bit character sets beyond ASCII, capital and small at
// matching places: S, Z and OE, Y as Windows text has them, then L, O, D with
// stroke, thorn, AE, OE, O and U with hook as ANSEL has them.

#ifndef CANTOREL_CHARSET_SPECIAL_LETTERS_H_
#define CANTOREL_CHARSET_SPECIAL_LETTERS_H_

#include <string_view>

namespace cantorel {

inline constexpr std::string_view kSpecialUpper =
    "\x8A\x8C\x8E\x9F\xA1\xA2\xA3\xA4\xA5\xA6\xAC\xAD";
inline constexpr std::string_view kSpecialLower =
    "\x9A\x9C\x9E\xFF\xB1\xB2\xB3\xB4\xB5\xB6\xBC\xBD";
static_assert(kSpecialUpper.size() == kSpecialLower.size());

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_SPECIAL_LETTERS_H_
