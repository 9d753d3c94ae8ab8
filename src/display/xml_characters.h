// The characters that XML 1.0 allows in a text.

#ifndef CANTOREL_DISPLAY_XML_CHARACTERS_H_
#define CANTOREL_DISPLAY_XML_CHARACTERS_H_

#include <cstdint>

namespace cantorel {

constexpr bool IsXmlCharacter(std::uint32_t code_point) {
  if (code_point < 0x20) return code_point == '\t' || code_point == '\n' || code_point == '\r';
  return code_point < 0xD800 || (code_point > 0xDFFF && code_point < 0xFFFE) ||
         (code_point > 0xFFFF && code_point <= 0x10FFFF);
}

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_XML_CHARACTERS_H_
