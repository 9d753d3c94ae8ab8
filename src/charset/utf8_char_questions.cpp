// What Utf8CharClass answers about its current character.

#include <algorithm>
#include <iterator>

#include "charset/marc8_category.h"
#include "charset/unicode_case.h"
#include "charset/utf8.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

// The digit zero of each script of Unicode 3.0 that has decimal digits, in
// order.  Ethiopic (U+1368) has no zero; its digits begin at U+1369.
constexpr std::uint32_t kZeroes[] = {
    0x0030, 0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6, 0x0C66,
    0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1368, 0x17E0, 0x1810,
};

}  // namespace

Category Utf8CharClass::CurrentCategory() const {
  if (!category_valid_) {
    category_ = CategoryOf(utf8_char_);
    category_valid_ = true;
  }
  return category_;
}

std::string Utf8CharClass::Utf8CharCategory() const {
  return std::string(CategoryName(CurrentCategory()));
}

std::string Utf8CharClass::Utf8CharCategoryMarc8() const {
  if (octet_value_ < 0x80) return "1";
  if (ucs_char_.size() != 2) return "?";
  return std::string(1, Marc8CategoryOfCodePoint(Octet(ucs_char_[0]) << 8 | Octet(ucs_char_[1])));
}

bool Utf8CharClass::Utf8CharNonRoman() const {
  if (octet_value_ < OctetValueOfCodePoint(0x0370)) return false;
  const auto between = [this](std::uint32_t first, std::uint32_t last) {
    return octet_value_ >= OctetValueOfCodePoint(first) &&
           octet_value_ <= OctetValueOfCodePoint(last);
  };
  return !between(0x2070, 0x209F) && !between(0xFE20, 0xFE23);
}

bool Utf8CharClass::Utf8CharVal(std::string_view character, std::int16_t& value) {
  value = 0;
  if (Utf8CharAt(character, 0) != utf8_char_ || character.empty()) Utf8Char(character);
  if (CurrentCategory() != Category::kNd) return false;
  const std::uint32_t code_point = Utf8CodePoint(utf8_char_);
  const auto after = std::upper_bound(std::begin(kZeroes), std::end(kZeroes), code_point);
  if (after == std::begin(kZeroes) || code_point - after[-1] > 9) return false;
  value = static_cast<std::int16_t>(code_point - after[-1]);
  return true;
}

std::string Utf8CharClass::Utf8CharLCase() const {
  std::string lower;
  AppendLowerCase(utf8_char_, lower);
  return lower;
}

std::string Utf8CharClass::Utf8CharUCase() const {
  std::string upper;
  AppendUpperCase(utf8_char_, upper);
  return upper;
}

}  // namespace cantorel
