// The general category of a character as Unicode 3.0 has it.
//
// Two departures serve the comparison forms: every character with a
// compatibility decomposition is "ZZ", and an unassigned position between two
// characters of one category in one block has that category too.

#ifndef CANTOREL_CHARSET_UNICODE_CATEGORY_H_
#define CANTOREL_CHARSET_UNICODE_CATEGORY_H_

#include <cstdint>
#include <string_view>

namespace cantorel {

// clang-format off
enum class Category : std::uint8_t {
  kNone,
  kCc, kCf, kCs, kCo,
  kLl, kLu, kLt, kLm, kLo,
  kMn, kMc, kMe,
  kNd, kNl, kNo,
  kPc, kPd, kPs, kPe, kPi, kPf, kPo,
  kZs, kZl, kZp,
  kSm, kSc, kSk, kSo,
  kZZ,
};
// clang-format on

// The two letters of a category; empty for kNone.
std::string_view CategoryName(Category category);

// The category of a code point.  Beyond U+FFFF there is none.
Category CategoryOfCodePoint(std::uint32_t code_point);

// The category of one character given as octets, well-formed or not.  A
// malformed character has the category that its octet value falls into, or
// none.  Empty gives none.
Category CategoryOf(std::string_view character);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UNICODE_CATEGORY_H_
