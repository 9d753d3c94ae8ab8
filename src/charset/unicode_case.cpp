#include "charset/unicode_case.h"

#include <cstdint>

#include "charset/tables/case_table.h"
#include "charset/two_stage_table.h"
#include "charset/utf8_code_point.h"

namespace cantorel {

namespace {

// Appends `other`, or the character itself when there is no other case (0).
void AppendOtherCase(std::string_view character, std::uint32_t other, std::string& out) {
  if (other == 0) {
    out += character;
  } else {
    AppendUtf8(other, out);
  }
}

}  // namespace

void AppendUpperCase(std::string_view character, std::string& out) {
  const std::uint32_t code_point = Utf8CodePoint(character);
  if (code_point > kLastTableCodePoint) {
    out += character;
    return;
  }
  AppendOtherCase(character, TwoStageLookUp(kUpperCasePages, kUpperCaseValues, code_point), out);
}

void AppendLowerCase(std::string_view character, std::string& out) {
  const std::uint32_t code_point = Utf8CodePoint(character);
  if (code_point > kLastTableCodePoint) {
    out += character;
    return;
  }
  AppendOtherCase(character, TwoStageLookUp(kLowerCasePages, kLowerCaseValues, code_point), out);
}

}  // namespace cantorel
