// Taking the precomposed letters of UTF-8 text apart.

#ifndef CANTOREL_CHARSET_DECOMPOSITION_H_
#define CANTOREL_CHARSET_DECOMPOSITION_H_

#include <string>
#include <string_view>

namespace cantorel {

// Replaces what has a substitute (charset/substitutes.h), the double quotation
// marks that stand before ASCII or at the end, and the double marks U+0360 and
// U+0361, which become two halves about the next character.  True, with the new
// text in `out`, if anything was replaced; false, with `out` as it was, if not.
// Octets that are no character stay.
bool DecomposeText(std::string_view text, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_DECOMPOSITION_H_
