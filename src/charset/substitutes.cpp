#include "charset/substitutes.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "charset/tables/substitute_table.h"
#include "charset/two_stage_table.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

struct FixedSubstitute {
  std::uint32_t code_point;
  std::string_view text;
};

// In the order of their code points.
constexpr FixedSubstitute kFixed[] = {
    {0x00A0, " "},
    {0x00AD, ""},
    {0x00BC, " 1/4 "},
    {0x00BD, " 1/2 "},
    {0x00BE, " 3/4 "},
    {0x0149,
     "\xCA\xBC"
     "n"},                         // the one letter behind an alif
    {0x0419, "\xD0\x98\xCC\x86"},  // Cyrillic short i
    {0x0439, "\xD0\xB8\xCC\x86"},
    {0x2010, "-"},
    {0x2011, "-"},
    {0x2012, "-"},
    {0x2013, "-"},
    {0x2014, "--"},
    {0x2015, "--"},
    {0x2018, "'"},
    {0x2019, "'"},
    {0x201A, "'"},
    {0x201B, "'"},
    {0x2026, "..."},
    {0x2122, "[TM]"},
};

const FixedSubstitute* FindFixed(std::uint32_t code_point) {
  const auto* const found = std::lower_bound(
      std::begin(kFixed), std::end(kFixed), code_point,
      [](const FixedSubstitute& fixed, std::uint32_t sought) { return fixed.code_point < sought; });
  return found != std::end(kFixed) && found->code_point == code_point ? found : nullptr;
}

bool AppendLetter(std::uint32_t code_point, std::string& out) {
  const std::uint16_t row = TwoStageLookUp(kLetterRowPages, kLetterRowValues, code_point);
  for (const std::uint16_t character : kLetterRows[row]) {
    if (character != 0) AppendUtf8(character, out);
  }
  return row != 0;
}

bool AppendIdeograph(std::uint32_t code_point, std::string& out) {
  const std::uint32_t place = code_point - kFirstPrivate;
  if (place >= std::size(kPrivateIdeographs) || kPrivateIdeographs[place] == 0) return false;
  AppendUtf8(kPrivateIdeographs[place], out);
  return true;
}

}  // namespace

bool AppendSubstitute(std::uint32_t code_point, std::string& out) {
  if (code_point < 0x80 || code_point > kLastTableCodePoint) return false;
  if (AppendLetter(code_point, out) || AppendIdeograph(code_point, out)) return true;
  const FixedSubstitute* const fixed = FindFixed(code_point);
  if (fixed == nullptr) return false;
  out += fixed->text;
  return true;
}

bool Utf8CharClass::SubstituteUtf8Char(std::string_view text, std::string& replacement) {
  std::string substitute;
  const bool found = AppendSubstitute(Utf8CodePoint(Utf8CharAt(text, 0)), substitute);
  replacement = found ? substitute : std::string(text);
  return found;
}

}  // namespace cantorel
