// Comparison forms of a text, by the character set of the record.

#include <cstdint>
#include <string>
#include <string_view>

#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "normalize/naco_norm.h"
#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {
constexpr std::int32_t kInvalidPropertyValue = 380;
}

void Utf8MarcRecordClass::NormalizationScheme(std::string_view scheme) {
  const std::string_view trimmed = Trim(scheme);
  normalization_scheme_ = trimmed.empty() ? '\0' : AsciiUpper(trimmed[0]);
  char_class_.NormalizationScheme(NormalizationScheme());
  if (normalization_scheme_ != 'P' && normalization_scheme_ != 'V') {
    throw MarcClassError(kInvalidPropertyValue, "Invalid value for NormalizationScheme property");
  }
}

std::string Utf8MarcRecordClass::NormString(std::string_view text, bool trim,
                                            std::string_view /*scheme*/) const {
  std::string norm;
  AppendNormString(text, trim, norm);
  return norm;
}

void Utf8MarcRecordClass::AppendNormString(std::string_view text, bool trim,
                                           std::string& out) const {
  AppendTextNorm(text, trim, character_set_out_, char_class_.NormalizationScheme() == "P", out);
}

std::string Utf8MarcRecordClass::NormStringNaco(std::string_view text, bool trim,
                                                std::string_view scheme, std::string_view format,
                                                std::string_view tag, std::string_view code) const {
  NormKeeps keeps = NacoKeeps(scheme, format, tag, code);
  keeps.delimiter = char_class_.NormalizationScheme() == "P";
  std::string norm;
  AppendNacoNorm(text, trim, character_set_out_, keeps, norm);
  return norm;
}

std::string Utf8MarcRecordClass::RemoveDiacritics(std::string_view text) const {
  std::string kept;
  kept.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8() ? Utf8CharAt(text, i) : text.substr(i, 1);
    const std::string category = CharCategory(character);
    if (category != "Lm" && category != "Mn") kept += character;
    i += character.size();
  }
  return kept;
}

}  // namespace cantorel
