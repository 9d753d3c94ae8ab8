// Standard numbers: LCCN, ISBN, ISSN, ISMN and system numbers.  They are
// compared and checked by rules of their own, not as headings.

#ifndef CANTOREL_NORMALIZE_STANDARD_NUMBER_H_
#define CANTOREL_NORMALIZE_STANDARD_NUMBER_H_

#include <string>
#include <string_view>

namespace cantorel {

// True for the tags that NormalStandardNumber has a form for.
bool HasStandardNumber(std::string_view tag);

// The comparison form of a number of field 010, 020, 022 or 035.  `text` is in
// upper case.
//   010, 020  letters, digits and single blanks: "0306406152 PBK"
//   022       the same, hyphens as blanks: "0317 8471"
//   035       the number without the organization in parentheses ahead of it
std::string NormalStandardNumber(std::string_view tag, std::string_view text);

// Check digits: ISBN-13 by weights 1 and 3 (ISO 2108), ISBN-10 and ISSN
// (ISO 3297) by falling weights modulo 11, and ten-character ISMN beginning "M".
// Hyphens are not looked at; any other text is wrong.
bool IsxnCheckIsRight(std::string_view text);

// Without hyphens, text behind the number coming along.  Empty for a number
// that is not 978 and ten digits more.
std::string Isbn13To10(std::string_view text);

// The same the other way.  A number that begins "9780" already has its 978;
// any other is taken as an ISBN-10.  Empty for fewer digits than that needs.
std::string Isbn10To13(std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_STANDARD_NUMBER_H_
