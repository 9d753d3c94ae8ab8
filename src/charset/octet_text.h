// Small questions about octet strings that every floor asks.

#ifndef CANTOREL_CHARSET_OCTET_TEXT_H_
#define CANTOREL_CHARSET_OCTET_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace cantorel {

constexpr bool IsAsciiDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool IsAsciiLower(char c) {
  return c >= 'a' && c <= 'z';
}
constexpr bool IsAsciiUpper(char c) {
  return c >= 'A' && c <= 'Z';
}
constexpr char AsciiUpper(char c) {
  return IsAsciiLower(c) ? static_cast<char>(c - 32) : c;
}
constexpr char AsciiLower(char c) {
  return IsAsciiUpper(c) ? static_cast<char>(c + 32) : c;
}

// Blanks (32, no other white space) taken off the ends.
constexpr std::string_view TrimLeft(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return text;
}
constexpr std::string_view TrimRight(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}
constexpr std::string_view Trim(std::string_view text) {
  return TrimRight(TrimLeft(text));
}

// The value of the digits that a text begins with, blanks ahead of them passed
// over; 0 without any.  Stops growing at a thousand million.
constexpr std::int32_t LeadingNumber(std::string_view text) {
  text = TrimLeft(text);
  std::int32_t value = 0;
  for (char c : text) {
    if (!IsAsciiDigit(c)) break;
    if (value >= 100'000'000) return 1'000'000'000;
    value = value * 10 + (c - '0');
  }
  return value;
}

// The tail of a text from a position (from 0); empty past the end.
constexpr std::string_view From(std::string_view text, std::size_t position) {
  return position < text.size() ? text.substr(position) : std::string_view();
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_OCTET_TEXT_H_
