// The escapes by which an ASCII configuration file writes other characters.

#ifndef CANTOREL_MEDIUM_CODE_POINT_ESCAPES_H_
#define CANTOREL_MEDIUM_CODE_POINT_ESCAPES_H_

#include <string>
#include <string_view>

namespace cantorel {

// A text with every "[U+" hexadecimal digits "]" replaced by the UTF-8 of that
// code point, such as "[U+0301]".  What is not of that form, or names no
// Unicode scalar value, stays as it is.
std::string DecodeCodePointEscapes(std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_CODE_POINT_ESCAPES_H_
