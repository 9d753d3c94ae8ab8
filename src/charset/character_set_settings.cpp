// In which character set a record arrives, is held and is given out.

#include <string>

#include "charset/marc_control.h"
#include "charset/octet_survey.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::int32_t kInvalidPropertyValue = 380;

}  // namespace

std::string Utf8MarcRecordClass::CharacterSetIn() const {
  return std::string(1, character_set_in_ == '\0' ? 'U' : character_set_in_);
}

void Utf8MarcRecordClass::CharacterSetIn(std::string_view letter) {
  static constexpr std::string_view kAccepted = "VOMUL";
  if (letter.empty() || kAccepted.find(letter[0]) == std::string_view::npos) {
    throw MarcClassError(kInvalidPropertyValue, "Invalid value for CharacterSetIn property");
  }
  character_set_in_ = letter[0];
}

void Utf8MarcRecordClass::CharacterSetOut(std::string_view letter) {
  const std::string_view trimmed = Trim(letter);
  const char wanted = trimmed.empty() ? ' ' : AsciiUpper(trimmed[0]);
  static constexpr std::string_view kAccepted = "VOYMUL";
  if (kAccepted.find(wanted) == std::string_view::npos) {
    throw MarcClassError(kInvalidPropertyValue,
                         "Invalid value for CharacterSetOut property: " + std::string(letter));
  }
  SetCharacterSetOutLetter(wanted == 'Y' ? 'M' : wanted, letter == "ULC");
}

// Only a record that is held has text to translate, and that is in the output
// set so far: this counts as the input set for the moment.
void Utf8MarcRecordClass::SetCharacterSetOutLetter(char letter, bool lc_pattern) {
  const char before = character_set_out_;
  character_set_out_ = letter;
  lc_pattern_ = letter == 'U' && lc_pattern;
  if (table_.Count() == 0 || before == letter) return;
  const char set_in = character_set_in_;
  character_set_in_ = before;
  TranslateRecord();
  character_set_in_ = set_in;
}

std::string Utf8MarcRecordClass::CharacterizeCharacterSet(std::string_view image) const {
  char scheme = image.size() > 9 ? image[9] : ' ';
  if (image.empty()) {
    image = image_;
    scheme = character_encoding_scheme_.empty() ? ' ' : character_encoding_scheme_[0];
  }
  if (scheme == 'a') return "U";
  return OctetSurvey(From(image, 24)).Describe();
}

}  // namespace cantorel
