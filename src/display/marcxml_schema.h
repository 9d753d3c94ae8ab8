// What the MARC 21 XML schema (MARC21slim.xsd, version 1.1) allows in leaders,
// tags, indicators and codes.  ISO 2709 allows more.

#ifndef CANTOREL_DISPLAY_MARCXML_SCHEMA_H_
#define CANTOREL_DISPLAY_MARCXML_SCHEMA_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "charset/octet_text.h"

namespace cantorel {

constexpr bool IsAsciiAlphanumeric(char c) {
  return IsAsciiDigit(c) || IsAsciiLower(c) || IsAsciiUpper(c);
}

// "001" to "009", "00A" to "00Z", "00a" to "00z".
constexpr bool FitsControlTag(std::string_view tag) {
  return tag.size() == 3 && tag.substr(0, 2) == "00" && tag[2] != '0' &&
         IsAsciiAlphanumeric(tag[2]);
}

// Three digits and letters, the letters all small or all capital, not two zeros
// in front.
constexpr bool FitsDataTag(std::string_view tag) {
  if (tag.size() != 3 || tag.substr(0, 2) == "00") return false;
  bool small = false;
  bool capital = false;
  for (const char c : tag) {
    if (!IsAsciiAlphanumeric(c)) return false;
    small = small || IsAsciiLower(c);
    capital = capital || IsAsciiUpper(c);
  }
  return !(small && capital);
}

constexpr bool FitsIndicator(char c) {
  return c == ' ' || IsAsciiDigit(c) || IsAsciiLower(c);
}

constexpr bool FitsCode(char c) {
  return c > ' ' && c < '\x7F' && c != '@' && c != '|';
}

// One octet of a leader at its position (from 0), but for the entry map.
constexpr bool FitsLeader(char c, std::size_t position) {
  if (position < 5 || (position > 11 && position < 17)) return c == ' ' || IsAsciiDigit(c);
  if (position == 6) return IsAsciiAlphanumeric(c);
  if (position == 10 || position == 11) return c == ' ' || c == '2';
  return c == ' ' || IsAsciiAlphanumeric(c);
}

// Puts into a leader of 24 octets what the schema wants where it has something
// else: a blank; "a" for the type of record, which cannot be blank; "4500" for
// the entry map.  False when nothing had to be put.
inline bool FitLeader(std::string& leader) {
  constexpr std::size_t kEntryMap = 20;
  bool changed = false;
  for (std::size_t i = 0; i < kEntryMap; ++i) {
    if (FitsLeader(leader[i], i)) continue;
    leader[i] = i == 6 ? 'a' : ' ';
    changed = true;
  }
  const std::string_view map = std::string_view(leader).substr(kEntryMap);
  if (map == "4500" || map == "    ") return changed;
  leader.replace(kEntryMap, std::string::npos, "4500");
  return true;
}

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_MARCXML_SCHEMA_H_
