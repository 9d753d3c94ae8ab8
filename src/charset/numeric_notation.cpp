#include "charset/numeric_notation.h"

#include <algorithm>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::size_t kMostHexDigits = 8;
constexpr std::size_t kMostDecimalDigits = 5;
constexpr unsigned kNoDigit = 16;

unsigned HexDigit(char c) {
  if (IsAsciiDigit(c)) return static_cast<unsigned>(c - '0');
  const char lower = AsciiLower(c);
  return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a') + 10 : kNoDigit;
}

// The number that `text` begins with, closed by ";"; `length` is that of its
// digits, 0 if there is none of one to `most` digits.
std::uint32_t ReadNumber(std::string_view text, unsigned base, std::size_t most,
                         std::size_t& length) {
  std::uint32_t number = 0;
  length = 0;
  while (length < text.size() && length < most && HexDigit(text[length]) < base) {
    number = number * base + HexDigit(text[length++]);
  }
  if (length >= text.size() || text[length] != ';') length = 0;
  return number;
}

bool IsSurrogatePair(std::uint32_t number) {
  return (number >> 16 & 0xFC00) == 0xD800 && (number & 0xFC00) == 0xDC00;
}

bool MayStandInText(std::uint32_t code_point) {
  const bool structural = code_point >= static_cast<std::uint32_t>(kEndOfRecord) &&
                          code_point <= static_cast<std::uint32_t>(kDelimiter);
  return code_point <= 0x10FFFF && !structural;
}

bool ReadDecimalNotation(std::string_view text, NumericNotation& notation) {
  std::size_t digits = 0;
  notation.code_point = ReadNumber(text.substr(2), 10, kMostDecimalDigits, digits);
  notation.length = digits + 3;
  return digits > 0 && MayStandInText(notation.code_point);
}

bool ReadNotation(std::string_view text, NumericNotation& notation) {
  return ReadHexNotation(text, notation) || ReadDecimalNotation(text, notation);
}

}  // namespace

bool ReadHexNotation(std::string_view text, NumericNotation& notation) {
  if (text.size() < 3 || text[0] != '&' || text[1] != '#' || AsciiLower(text[2]) != 'x') {
    return false;
  }
  std::size_t digits = 0;
  std::uint32_t number = ReadNumber(text.substr(3), 16, kMostHexDigits, digits);
  if (IsSurrogatePair(number)) {
    number = 0x10000 + ((number >> 16 & 0x3FF) << 10 | (number & 0x3FF));
  }
  notation = {number, digits + 4};
  return digits > 0 && MayStandInText(number);
}

void ReplaceNotations(std::string& text) {
  std::size_t from = text.find("&#");
  if (from == std::string::npos) return;
  const std::string given = std::move(text);
  text.assign(given, 0, from);
  while (from < given.size()) {
    const std::string_view rest = std::string_view(given).substr(from);
    NumericNotation notation;
    if (rest.starts_with("&#") && ReadNotation(rest, notation)) {
      AppendUtf8(notation.code_point, text);
      from += notation.length;
    } else {
      const std::size_t next = std::min(given.find("&#", from + 1), given.size());
      text.append(given, from, next - from);
      from = next;
    }
  }
}

void AppendNotation(std::uint32_t code_point, std::string& out) {
  static constexpr char kDigits[] = "0123456789abcdef";
  int shift = 12;
  while (shift < 28 && code_point >> (shift + 4) != 0) shift += 4;
  out += "&#x";
  for (; shift >= 0; shift -= 4) out += kDigits[code_point >> shift & 0xF];
  out += ';';
}

}  // namespace cantorel
