#include "genre/derivation_text.h"

#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "charset/utf8_char_class.h"
#include "record/safe_text.h"

namespace cantorel {
namespace {

constexpr std::string_view kOpen = "[U+";
constexpr std::size_t kEscapeLength = 8;  // "[U+0301]"
constexpr std::string_view kNoBreakSpace = "\xC2\xA0";

bool IsHexDigit(char c) {
  const char upper = AsciiUpper(c);
  return IsAsciiDigit(c) || (upper >= 'A' && upper <= 'F');
}

// Whether four digits name a character from the blank on.
bool NameCharacter(std::string_view digits) {
  return std::all_of(digits.begin(), digits.end(), IsHexDigit) &&
         (digits.substr(0, 2) != "00" || digits[2] > '1');
}

}  // namespace

std::string TranslateEscapes(std::string_view text) {
  std::string out;
  while (true) {
    const std::size_t open = text.find(kOpen);
    out.append(text.substr(0, open));
    if (open == std::string_view::npos) return out;
    text.remove_prefix(open);
    const std::string_view escape = text.substr(0, kEscapeLength);
    const bool closed = escape.size() == kEscapeLength && escape.back() == ']';
    const std::string_view digits = From(escape, kOpen.size()).substr(0, 4);
    if (closed && NameCharacter(digits)) {
      out += Utf8CharClass::UcsHex2Utf8(digits);
      text.remove_prefix(kEscapeLength);
    } else {
      out += kOpen;
      text.remove_prefix(kOpen.size());
    }
  }
}

std::string TranslateIntoEscapes(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  std::string out;
  Utf8CharClass character;
  while (!text.empty()) {
    const std::string_view octets = Utf8CharAt(text, 0);
    text.remove_prefix(octets.size());
    if (Octet(octets.front()) < 0x80) {
      out += octets;
      continue;
    }
    character.Utf8Char(octets);
    out.append(kOpen).append(character.UcsHex()).push_back(']');
  }
  return out;
}

std::string DecodeTableEscapes(std::string_view text) {
  std::string out;
  while (true) {
    const std::size_t open = text.find(kOpen);
    const std::size_t close = open == std::string_view::npos ? open : text.find(']', open);
    if (close == std::string_view::npos) break;
    const std::string_view digits = text.substr(open + kOpen.size(), close - open - kOpen.size());
    if (!std::all_of(digits.begin(), digits.end(), IsAsciiDigit)) break;
    out.append(text.substr(0, open)).append(Utf8CharClass::UcsHex2Utf8(digits));
    text.remove_prefix(close + 1);
  }
  return out.append(text);
}

std::string CleanCellText(std::string_view text) {
  std::string clean = ReplaceCharacters(text, kNoBreakSpace, " ");
  SqueezeBlanks(clean);
  return std::string(Trim(clean));
}

}  // namespace cantorel
