// Text of Windows programs: the octets of code page 1252, and the punctuation
// that word processors write, which no MARC record keeps.

#ifndef CANTOREL_CHARSET_WINDOWS_TEXT_H_
#define CANTOREL_CHARSET_WINDOWS_TEXT_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// Appends what a record has for a character of Windows text: plain quotation
// marks for curved and low ones, otherwise its substitute
// (charset/substitutes.h).  False, with nothing appended, if it has the character
// itself.
bool AppendWindowsSubstitute(std::uint32_t code_point, std::string& out);

// Appends text of code page 1252 as MARC-8.  Letters have their marks before
// them, characters of other sets stand between escapes, and a character that
// MARC-8 lacks becomes a numeric notation such as "&#x2022;".  Octets below 128
// stay as they are.
void AppendMarc8OfWindows(std::string_view text, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_WINDOWS_TEXT_H_
