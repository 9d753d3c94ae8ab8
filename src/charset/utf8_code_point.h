// From the octets of one UTF-8 character to its code point and back.

#ifndef CANTOREL_CHARSET_UTF8_CODE_POINT_H_
#define CANTOREL_CHARSET_UTF8_CODE_POINT_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "charset/utf8.h"

namespace cantorel {

inline constexpr std::uint32_t kNoCodePoint = 0xFFFFFFFF;

// The code point of one character; kNoCodePoint unless the octets are exactly
// one character in its shortest form (RFC 3629).  The three-octet forms of the
// surrogates U+D800 to U+DFFF have their code points here, because old
// catalogue data holds them.
constexpr std::uint32_t Utf8CodePoint(std::string_view character) {
  if (character.empty() || character.size() != Utf8AnnouncedOctets(character[0])) {
    return kNoCodePoint;
  }
  const unsigned first = Octet(character[0]);
  if (character.size() == 1) return first < 0x80 ? first : kNoCodePoint;
  constexpr std::uint32_t kFirstOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  std::uint32_t code_point = first & (0xFF >> (character.size() + 1));
  for (char c : character.substr(1)) {
    if (!IsUtf8Continuation(c)) return kNoCodePoint;
    code_point = code_point << 6 | (Octet(c) & 0x3F);
  }
  const bool shortest = code_point >= kFirstOfLength[character.size()];
  return shortest && first < 0xF8 && code_point <= 0x10FFFF ? code_point : kNoCodePoint;
}

// The octet value (see Utf8OctetValue) of a code point up to U+FFFF.
constexpr std::uint32_t OctetValueOfCodePoint(std::uint32_t code_point) {
  if (code_point < 0x80) return code_point;
  const std::uint32_t last = 0x80 | (code_point & 0x3F);
  if (code_point < 0x800) return (0xC0 | code_point >> 6) << 8 | last;
  return (0xE0 | code_point >> 12) << 16 | (0x80 | (code_point >> 6 & 0x3F)) << 8 | last;
}

// Appends the octets of a code point up to U+10FFFF.
inline void AppendUtf8(std::uint32_t code_point, std::string& out) {
  if (code_point > 0xFFFF) {
    out += static_cast<char>(0xF0 | code_point >> 18);
    for (const int shift : {12, 6, 0})
      out += static_cast<char>(0x80 | (code_point >> shift & 0x3F));
    return;
  }
  const std::uint32_t value = OctetValueOfCodePoint(code_point);
  if (value > 0xFFFF) out += static_cast<char>(value >> 16);
  if (value > 0xFF) out += static_cast<char>(value >> 8 & 0xFF);
  out += static_cast<char>(value & 0xFF);
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UTF8_CODE_POINT_H_
