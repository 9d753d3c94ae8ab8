// Whether a language that a heading names is one of the record.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "genre/field_message.h"
#include "medium/music_650_to_382_class.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

constexpr std::size_t kCodeLength = 3;

bool HoldsCode(std::string_view codes, std::string_view sought) {
  for (std::string_view code = TakeWord(codes); !code.empty(); code = TakeWord(codes)) {
    if (code == sought) return true;
  }
  return false;
}

// Whether a run of codes without blanks between has one of `codes`.
bool RunHoldsCode(std::string_view run, std::string_view codes) {
  for (; run.size() >= kCodeLength; run.remove_prefix(kCodeLength)) {
    if (HoldsCode(codes, run.substr(0, kCodeLength))) return true;
  }
  return false;
}

// Moves the cursors.
bool Field041HoldsCode(Utf8MarcRecordClass& record, std::string_view codes) {
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    if (record.FldTagView() != "041") continue;
    for (bool more = record.SfdMoveFirst(true); more; more = record.SfdMoveNext(true)) {
      if (record.SfdCodeView() == "a" && RunHoldsCode(record.SfdTextView(), codes)) return true;
    }
  }
  return false;
}

bool RecordHoldsCode(Utf8MarcRecordClass& record, std::string_view codes) {
  // Deliberate: 008/15-17 is the place of publication, and 008/35-37, which would
  // be the language, is not looked at.
  if (HoldsCode(codes, record.Get008Value(15, 3))) return true;
  const std::int16_t field = record.FldPointer();
  const std::int16_t subfield = record.SfdPointer();
  const bool found = Field041HoldsCode(record, codes);
  record.FldPointer(field);
  record.SfdPointer(subfield);
  return found;
}

}  // namespace

void Music650To382Class::Private_655_TestLanguageCode(std::string_view codes,
                                                      std::string_view language_name,
                                                      Utf8MarcRecordClass& record) {
  if (RecordHoldsCode(record, codes)) return;
  std::string message = "Code ";
  message += LastWord(codes);
  message += " from ";
  message += language_name;
  message += " not found in record";
  AddFieldMessage(*this, message, record);
}

}  // namespace cantorel
