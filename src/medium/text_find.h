// Finding words in a heading without regard to the case of ASCII letters.

#ifndef CANTOREL_MEDIUM_TEXT_FIND_H_
#define CANTOREL_MEDIUM_TEXT_FIND_H_

#include <cstddef>
#include <string_view>

#include "charset/octet_text.h"

namespace cantorel {

constexpr bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (AsciiLower(text[i]) != AsciiLower(prefix[i])) return false;
  }
  return true;
}

// Position (from 0) of the first occurrence at or behind `from`, or npos.
constexpr std::size_t FindNoCase(std::string_view text, std::string_view sought,
                                 std::size_t from = 0) {
  for (std::size_t i = from; i + sought.size() <= text.size(); ++i) {
    if (StartsWithNoCase(text.substr(i), sought)) return i;
  }
  return std::string_view::npos;
}

constexpr bool ContainsNoCase(std::string_view text, std::string_view sought) {
  return FindNoCase(text, sought) != std::string_view::npos;
}

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_TEXT_FIND_H_
