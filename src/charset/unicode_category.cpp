#include "charset/unicode_category.h"

#include <cstddef>

#include "charset/tables/category_table.h"
#include "charset/two_stage_table.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

constexpr std::string_view kNames[] = {
    "",   "Cc", "Cf", "Cs", "Co", "Ll", "Lu", "Lt", "Lm", "Lo", "Mn", "Mc", "Me", "Nd", "Nl", "No",
    "Pc", "Pd", "Ps", "Pe", "Pi", "Pf", "Po", "Zs", "Zl", "Zp", "Sm", "Sc", "Sk", "So", "ZZ",
};

Category LookUp(std::uint32_t code_point) {
  return static_cast<Category>(TwoStageLookUp(kCategoryPages, kCategoryValues, code_point));
}

// The last code point whose octet value is not above `octet_value`, which lies
// between those of U+0080 and U+FFFF.
std::uint32_t CodePointNotAbove(std::uint32_t octet_value) {
  std::uint32_t low = 0x80;
  std::uint32_t high = kLastTableCodePoint;
  while (low < high) {
    const std::uint32_t middle = (low + high + 1) / 2;
    if (OctetValueOfCodePoint(middle) <= octet_value) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  return low;
}

// Categories are ranges of octet values.  A malformed character belongs to the
// range that its value falls into: the category of the proper characters on
// either side of it, if they have the same.
Category CategoryOfMalformed(std::uint32_t octet_value) {
  if (octet_value < OctetValueOfCodePoint(0x80) ||
      octet_value > OctetValueOfCodePoint(kLastTableCodePoint)) {
    return Category::kNone;
  }
  const std::uint32_t below = CodePointNotAbove(octet_value);
  if (below == kLastTableCodePoint) return Category::kNone;
  const Category category = LookUp(below);
  return category == LookUp(below + 1) ? category : Category::kNone;
}

}  // namespace

std::string_view CategoryName(Category category) {
  return kNames[static_cast<std::size_t>(category)];
}

Category CategoryOfCodePoint(std::uint32_t code_point) {
  return code_point <= kLastTableCodePoint ? LookUp(code_point) : Category::kNone;
}

Category CategoryOf(std::string_view character) {
  if (character.empty()) return Category::kNone;
  if (Octet(character[0]) < 0x80) return LookUp(Octet(character[0]));
  character = Utf8CharAt(character, 0);
  const std::uint32_t code_point = Utf8CodePoint(character);
  if (code_point == kNoCodePoint) return CategoryOfMalformed(Utf8OctetValue(character));
  return CategoryOfCodePoint(code_point);
}

}  // namespace cantorel
