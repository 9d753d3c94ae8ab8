// Taking headings apart: words and literals found without regard to the case
// of ASCII letters.  Views in, views out.

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

constexpr bool EndsWithNoCase(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() &&
         StartsWithNoCase(text.substr(text.size() - suffix.size()), suffix);
}

constexpr bool EqualsNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && StartsWithNoCase(a, b);
}

// Position (from 0) of the first occurrence at or behind `from`, or npos.
constexpr std::size_t FindNoCase(std::string_view text, std::string_view sought,
                                 std::size_t from = 0) {
  const char first = sought.empty() ? '\0' : AsciiLower(sought.front());
  for (std::size_t i = from; i + sought.size() <= text.size(); ++i) {
    if (!sought.empty() && AsciiLower(text[i]) != first) continue;
    if (StartsWithNoCase(text.substr(i), sought)) return i;
  }
  return std::string_view::npos;
}

constexpr bool ContainsNoCase(std::string_view text, std::string_view sought) {
  return FindNoCase(text, sought) != std::string_view::npos;
}

// Takes the first blank-separated word off a text, which is left trimmed; empty
// when no word is left.
constexpr std::string_view TakeWord(std::string_view& text) {
  text = Trim(text);
  const std::string_view word = text.substr(0, text.find(' '));
  text = Trim(text.substr(word.size()));
  return word;
}

// The last blank-separated word of a text; empty without one.
constexpr std::string_view LastWord(std::string_view text) {
  text = Trim(text);
  return text.substr(text.rfind(' ') + 1);
}

// Position of the "(" of the last complete parenthesis, which may hold others
// and have text behind it; npos without one.
constexpr std::size_t FindLastGroup(std::string_view text) {
  std::ptrdiff_t depth = 0;
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] == ')') ++depth;
    if (text[i] == '(' && depth-- == 1) return i;
  }
  return std::string_view::npos;
}

// True when a word can be a count: it begins with a digit from 1 to 9.
constexpr bool BeginsWithCount(std::string_view word) {
  return !word.empty() && word.front() >= '1' && word.front() <= '9';
}

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_TEXT_FIND_H_
