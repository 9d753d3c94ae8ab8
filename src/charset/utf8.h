// One UTF-8 character inside an octet string.
//
// Everything in Cantorel holds text as octets in a std::string, one octet a
// char.  These kernels answer how long a character is and where it starts,
// without checking continuation octets: catalogues hold damaged text, and a
// length must have an answer for every octet.  Nothing here reads past the end
// of the text it is given.

#ifndef CANTOREL_CHARSET_UTF8_H_
#define CANTOREL_CHARSET_UTF8_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// The value of an octet, 0 to 255.
constexpr unsigned Octet(char c) {
  return static_cast<unsigned char>(c);
}

// The number of octets that a first octet announces, 1 to 4.  A continuation
// octet counts as a character of one octet.
constexpr std::size_t Utf8AnnouncedOctets(char first) {
  const unsigned c = Octet(first);
  if ((c & 0xC0) != 0xC0) return 1;
  if ((c & 0x20) == 0) return 2;
  return (c & 0x10) == 0 ? 3 : 4;
}

// The octets of the character at `position` (from 0): what its first octet
// announces, or what is left of the text.  Empty past the end.
constexpr std::string_view Utf8CharAt(std::string_view text, std::size_t position) {
  if (position >= text.size()) return {};
  return text.substr(position, Utf8AnnouncedOctets(text[position]));
}

// True for an octet that does not begin a character (10xxxxxx).
constexpr bool IsUtf8Continuation(char c) {
  return (Octet(c) & 0xC0) == 0x80;
}

// The octets read as one big-endian number; of more than four, the last four.
// This is the "octet value" by which categories and normal forms are told.
constexpr std::uint32_t Utf8OctetValue(std::string_view octets) {
  if (octets.size() > 4) octets.remove_prefix(octets.size() - 4);
  std::uint32_t value = 0;
  for (char c : octets) value = (value << 8) | Octet(c);
  return value;
}

// The number of characters in a text.
constexpr std::size_t Utf8Length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) ++count;
  return count;
}

// True when every octet is below 128.
inline bool IsAscii(std::string_view text) {
  unsigned char any = 0;  // as narrow as the octets, so that many go at once
  for (char c : text) any = static_cast<unsigned char>(any | static_cast<unsigned char>(c));
  return any < 0x80;
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UTF8_H_
