// The category of an octet of 8-bit text.
//
// A rough sorting by octet value, odd in places and kept so deliberately: ":",
// ";" and the marks 224 to 227 count as digits, both quotation marks as opening
// ones, and what is not listed as punctuation.

#ifndef CANTOREL_CHARSET_OCTET_CATEGORY_H_
#define CANTOREL_CHARSET_OCTET_CATEGORY_H_

#include "charset/unicode_category.h"

namespace cantorel {

// `set` is the letter of the character set.  The octets 192 to 198 are symbols,
// but superscript digits in set 'V'.
Category OctetCategory(char octet, char set);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_OCTET_CATEGORY_H_
