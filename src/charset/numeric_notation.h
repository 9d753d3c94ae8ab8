// Characters that a character set lacks, as numeric notation in its text:
// "&#x2603;" (MARC 21 Specifications, lossless conversion technique), and the
// decimal "&#9731;" on the way in.

#ifndef CANTOREL_CHARSET_NUMERIC_NOTATION_H_
#define CANTOREL_CHARSET_NUMERIC_NOTATION_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

struct NumericNotation {
  std::uint32_t code_point = 0;
  std::size_t length = 0;  // from "&" to ";"
};

// Reads the hexadecimal notation that `text` begins with: "&#x", one to eight
// hexadecimal digits in either case, ";".  Eight digits may be a surrogate pair.
// False for anything else, for a number that is no character, and for the
// delimiter and the ends of field and record, which would take the record apart.
bool ReadHexNotation(std::string_view text, NumericNotation& notation);

// Replaces every notation of a UTF-8 text by its character: those above, with
// "x" or "X", and one to five decimal digits.  What is no notation stays.
void ReplaceNotations(std::string& text);

// Appends "&#x", at least four hexadecimal digits in lower case, ";".
void AppendNotation(std::uint32_t code_point, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_NUMERIC_NOTATION_H_
