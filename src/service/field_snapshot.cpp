#include "service/field_snapshot.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "charset/marc_control.h"
#include "service/text_parts.h"

namespace cantorel {
namespace {

constexpr std::array<std::string_view, 8> kDerivedTags = {"046", "047", "370", "382",
                                                          "385", "386", "388", "655"};
constexpr std::array<std::string_view, 6> kHeadingTags = {"600", "610", "611", "630", "650", "651"};

bool IsOneOf(std::string_view tag, const auto& tags) {
  return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

bool IsOfInterest(std::string_view tag, std::string_view indicators) {
  if (IsOneOf(tag, kDerivedTags)) return true;
  return indicators.size() == 2 && indicators[1] == '0' && IsOneOf(tag, kHeadingTags);
}

void AppendWhole(char code, std::string_view text, std::string& out) {
  out += kDelimiter;
  out += code;
  out += text;
}

void AddSubfield(Utf8MarcRecordClass& record, FieldSnapshot& snapshot) {
  const std::string_view code_text = record.SfdCodeView();
  const char code = code_text.empty() ? ' ' : code_text.front();
  switch (code) {
    case '9':
      snapshot.field_id = SignedLeadingNumber(record.SfdTextView());
      snapshot.has_subfield9 = true;
      return;
    case '0':
    case '1':
      AppendWhole(code, record.SfdTextView(), snapshot.identifier_subfields);
      return;
    default:
      AppendWhole(code, record.SfdTextView(), snapshot.text);
      snapshot.compare_key += code == 'x' ? 'v' : code;
      snapshot.compare_key += record.SfdNormView();
  }
}

void FillSnapshot(Utf8MarcRecordClass& record, bool after_conversion, FieldSnapshot& snapshot) {
  snapshot.tag = record.FldTagView();
  snapshot.indicators = record.FldIndView();
  snapshot.compare_key = snapshot.tag;
  for (bool more = record.SfdMoveFirst(true); more; more = record.SfdMoveNext(true)) {
    AddSubfield(record, snapshot);
  }
  if (snapshot.has_subfield9) return;
  snapshot.field_id = after_conversion ? 0 : record.FldPointer();
}

}  // namespace

FieldSnapshot& SnapshotList::Append() {
  if (count_ == entries_.size()) entries_.emplace_back();
  FieldSnapshot& snapshot = entries_[count_++];
  snapshot.field_id = 0;
  snapshot.has_subfield9 = false;
  snapshot.tag.clear();
  snapshot.indicators.clear();
  snapshot.text.clear();
  snapshot.compare_key.clear();
  snapshot.identifier_subfields.clear();
  return snapshot;
}

void SnapshotFields(Utf8MarcRecordClass& record, bool after_conversion, SnapshotList& list,
                    std::string& control_number) {
  list.Clear();
  record.FldMoveTop();
  while (record.FldMoveNext(true)) {
    const std::string_view tag = record.FldTagView();
    if (tag == "001") {
      control_number.clear();
      record.AppendFldText(control_number);
    } else if (IsOfInterest(tag, record.FldIndView())) {
      FillSnapshot(record, after_conversion, list.Append());
    }
  }
}

}  // namespace cantorel
