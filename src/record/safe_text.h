// String operations that cannot fail, as free functions.
//
// The record class offers them as members; these are the kernels.  Positions
// count octets from 1, and a position out of range has a defined answer.

#ifndef CANTOREL_RECORD_SAFE_TEXT_H_
#define CANTOREL_RECORD_SAFE_TEXT_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// `length` octets at `position` replaced by `insertion`; with length 0 or less
// nothing is removed.
std::string SafeStuff(std::string_view text, std::int32_t position, std::int32_t length,
                      std::string_view insertion);

// Position of the last occurrence; 0 for none, or when either is empty.
std::int32_t Rat(std::string_view text, std::string_view sought);

// Replaces every occurrence, from the end to the start, one position at a time:
// what a replacement brings in is seen only from positions before it.
std::string ReplaceCharacters(std::string_view text, std::string_view sought,
                              std::string_view replacement, bool squeeze = false);

// Cuts a doubled string to one copy until no doubled form is left.
std::string RemoveRepeatedCharacters(std::string_view text, std::string_view sought);

// Runs of blanks reduced to one, in place.
void SqueezeBlanks(std::string& text);

std::string RemoveSpaces(std::string_view text);
std::string AddSpacesAroundDelimiters(std::string_view text);
std::string RemoveSpacesAroundDelimiters(std::string_view text);

// The last `width` octets of `width` pads and the text.
std::string LeftPad(std::string_view text, std::int32_t width, std::string_view pad);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_SAFE_TEXT_H_
