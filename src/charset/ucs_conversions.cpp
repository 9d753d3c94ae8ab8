// Conversions of Utf8CharClass between UTF-8, UCS and hexadecimal digits.

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

std::string FromOctets(std::initializer_list<unsigned> octets) {
  std::string text;
  for (unsigned octet : octets) text += static_cast<char>(octet);
  return text;
}

// Four UCS octets to four UTF-8 octets.  The second and third octets are not
// those of RFC 3629: the third repeats the second's plane bits, and the low two
// bits of the second UCS octet go nowhere.  Deliberate; kept as data knows it.
std::string SurrogatePairToUtf8(std::string_view ucs) {
  const unsigned c1 = Octet(ucs[0]);
  const unsigned c2 = Octet(ucs[1]);
  const unsigned c3 = Octet(ucs[2]);
  const unsigned c4 = Octet(ucs[3]);
  const unsigned plane = ((c1 & 0x03) << 2 | c2 >> 6) + 1;
  const unsigned second = 0x80 | (plane & 0x03) << 4;
  return FromOctets({0xF0 | plane >> 2, second,
                     second | (c2 & 0x3C) >> 2 | (c3 & 0x03) << 4 | (c4 & 0xC0) >> 6,
                     0x80 | (c4 & 0x3F)});
}

// Four UTF-8 octets to a surrogate pair.
std::string SurrogatePairFromUtf8(std::string_view utf8) {
  const unsigned c1 = Octet(utf8[0]);
  const unsigned c2 = Octet(utf8[1]);
  const unsigned c3 = Octet(utf8[2]);
  const unsigned c4 = Octet(utf8[3]);
  const unsigned plane = (((c1 & 0x07) << 2 | (c2 >> 4 & 0x03)) - 1) & 0x0F;
  return FromOctets({0xD8 | plane >> 2, (plane & 0x03) << 6 | (c2 & 0x0F) << 2 | (c3 >> 4 & 0x03),
                     0xDC | (c3 >> 2 & 0x03), (c3 & 0x03) << 6 | (c4 & 0x3F)});
}

std::string UcsOfCodePoint(unsigned code_point) {
  return FromOctets({code_point >> 8 & 0xFF, code_point & 0xFF});
}

std::string Utf8OfCodePoint(std::uint32_t code_point) {
  std::string octets;
  AppendUtf8(code_point, octets);
  return octets;
}

// "0" to "9" and "A" to "E" have their value, anything else counts 15.
unsigned HexDigitValue(char digit) {
  if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
  if (digit >= 'A' && digit <= 'E') return static_cast<unsigned>(digit - 'A') + 10;
  return 15;
}

// The octet of the first two digits of `digits`, or of its only one.
unsigned HexPairValue(std::string_view digits) {
  if (digits.size() == 1) return HexDigitValue(digits[0]);
  return HexDigitValue(digits[0]) << 4 | HexDigitValue(digits[1]);
}

}  // namespace

std::int64_t Utf8CharClass::Utf8Asc(std::string_view octets) {
  return Utf8OctetValue(octets);
}

std::string Utf8CharClass::Ucs2Utf8(std::string_view octets) {
  if (octets.size() == 2) return Utf8OfCodePoint(Octet(octets[0]) << 8 | Octet(octets[1]));
  if (octets.size() == 4) return SurrogatePairToUtf8(octets);
  return std::string(octets.substr(0, 2));
}

std::string Utf8CharClass::Utf82Ucs(std::string_view octets) {
  const auto low_bits = [octets](std::size_t i, unsigned mask) { return Octet(octets[i]) & mask; };
  switch (octets.size()) {
    case 0:
      return {};
    case 1:
      return FromOctets({0, Octet(octets[0])});
    case 2:
      return UcsOfCodePoint(low_bits(0, 0x1F) << 6 | low_bits(1, 0x3F));
    case 3:
      return UcsOfCodePoint(low_bits(0, 0x0F) << 12 | low_bits(1, 0x3F) << 6 | low_bits(2, 0x3F));
    case 4:
      return SurrogatePairFromUtf8(octets);
    default:
      return std::string(octets.substr(0, 1));
  }
}

std::string Utf8CharClass::UcsHex2Utf8(std::string_view digits) {
  // No more than eight digits are ever looked at.
  char upper[8] = {};
  std::transform(digits.begin(), digits.begin() + std::min<std::size_t>(digits.size(), 8), upper,
                 AsciiUpper);
  const auto pair = [&upper](std::size_t first, std::size_t count) {
    return HexPairValue(std::string_view(upper + first, count));
  };
  switch (digits.size()) {
    case 0:
      return {};
    case 1:
      return Ucs2Utf8(FromOctets({0, pair(0, 1)}));
    case 2:
      return Ucs2Utf8(FromOctets({0, pair(0, 2)}));
    case 3:
      // The second digit is ignored, deliberately.
      return Ucs2Utf8(FromOctets({pair(0, 1), pair(2, 1)}));
    case 8:
      return Ucs2Utf8(FromOctets({pair(0, 2), pair(2, 2), pair(4, 2), pair(6, 2)}));
    default:
      return Ucs2Utf8(FromOctets({pair(0, 2), pair(2, 2)}));
  }
}

std::string Utf8CharClass::UcsNumericToUtf8(std::int32_t code_point) {
  return Utf8OfCodePoint(static_cast<std::uint32_t>(code_point) & 0xFFFF);
}

std::int32_t Utf8CharClass::Utf8CharFindFirstOctet(std::string_view text, std::int32_t position) {
  if (text.empty()) return 0;
  if (position == 0 || position == 1) return 1;
  if (position > 0 && static_cast<std::size_t>(position) > text.size()) {
    position = static_cast<std::int32_t>(text.size());
  }
  while (position >= 2 && IsUtf8Continuation(text[static_cast<std::size_t>(position) - 1])) {
    --position;
  }
  return position;
}

std::string Utf8CharClass::Char2Hex(std::string_view octet) {
  if (octet.empty()) return {};
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[Octet(octet[0]) >> 4], kDigits[Octet(octet[0]) & 0x0F]};
}

std::string Utf8CharClass::Hex2Char(std::string_view digits) {
  if (digits.empty()) return {};
  if (digits.size() > 2) digits.remove_prefix(digits.size() - 2);
  return FromOctets({HexPairValue(digits)});
}

}  // namespace cantorel
