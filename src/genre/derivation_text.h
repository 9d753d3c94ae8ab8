// The escapes of the derivation table, which is an ASCII file: "[U+0301]" stands
// for the character U+0301.

#ifndef CANTOREL_GENRE_DERIVATION_TEXT_H_
#define CANTOREL_GENRE_DERIVATION_TEXT_H_

#include <string>
#include <string_view>

namespace cantorel {

// Each escape of four hexadecimal digits as its character.  What is not of that
// form stays, and so does an escape of a control character, which would break
// the line of the table.
std::string TranslateEscapes(std::string_view text);

// Each character beyond ASCII as an escape.  A character beyond U+FFFF has eight
// digits, those of its surrogates.
std::string TranslateIntoEscapes(std::string_view text);

// The escapes of a line of the table, as it is read.  Only digits from 0 to 9 are
// looked for: at an escape with a letter in it the decoding ends, and the rest
// stays as it is.  That is deliberate; tables are written with it in mind.
std::string DecodeTableEscapes(std::string_view text);

// No-break spaces as blanks, blanks at the ends taken off and runs of them
// reduced to one.
std::string CleanCellText(std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_DERIVATION_TEXT_H_
