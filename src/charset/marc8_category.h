// Which MARC-8 character set has a character (MARC 21 Specifications for Record
// Structure, Character Sets, and Exchange Media).

#ifndef CANTOREL_CHARSET_MARC8_CATEGORY_H_
#define CANTOREL_CHARSET_MARC8_CATEGORY_H_

#include <cstdint>

namespace cantorel {

// '1' Basic Latin and ANSEL, '3' East Asian (EACC), '5' Hebrew, '6' Cyrillic,
// '7' Arabic, '8' Greek; '?' for none of these and beyond U+FFFF.  Below U+0300
// only '1' and '?' are answered.
char Marc8CategoryOfCodePoint(std::uint32_t code_point);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC8_CATEGORY_H_
