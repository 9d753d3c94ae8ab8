// The field cursor: moves, searches, tests, and what is read of the current
// field.

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

void Utf8MarcRecordClass::ClearAtEndFlags() {
  field_at_top_ = field_at_bottom_ = false;
  subfield_at_top_ = subfield_at_bottom_ = false;
}

void Utf8MarcRecordClass::FldPointer(std::int16_t row) {
  field_found_ = row >= 0 && row < table_.Count();
  if (!field_found_) {
    current_field_ = kNoRow;
    return;
  }
  current_field_ = row;
  current_subfield_ = CurrentField().first_subfield;
}

// --- Moves -------------------------------------------------------------------

void Utf8MarcRecordClass::GoForward(std::int16_t row, bool skip_deleted) {
  while (skip_deleted && row != kNoRow && table_.Field(row).deleted) row = table_.Field(row).next;
  FldPointer(row);
}

void Utf8MarcRecordClass::GoBackward(std::int16_t row, bool skip_deleted) {
  while (skip_deleted && row != kNoRow && table_.Field(row).deleted) row = table_.Field(row).prev;
  FldPointer(row);
}

bool Utf8MarcRecordClass::FldMoveFirst(bool skip_deleted) {
  GoForward(first_field_, skip_deleted);
  ClearAtEndFlags();
  return field_found_;
}

bool Utf8MarcRecordClass::FldMoveLast(bool skip_deleted) {
  GoBackward(last_field_, skip_deleted);
  ClearAtEndFlags();
  return field_found_;
}

bool Utf8MarcRecordClass::FldMoveNext(bool skip_deleted) {
  const std::int16_t here = HasField() ? CurrentField().next : kNoRow;
  GoForward(field_at_top_ ? first_field_ : here, skip_deleted);
  ClearAtEndFlags();
  return field_found_;
}

bool Utf8MarcRecordClass::FldMovePrev(bool skip_deleted) {
  const std::int16_t here = HasField() ? CurrentField().prev : kNoRow;
  GoBackward(field_at_bottom_ ? last_field_ : here, skip_deleted);
  ClearAtEndFlags();
  return field_found_;
}

bool Utf8MarcRecordClass::FldMoveTop() {
  field_at_top_ = FldMoveFirst(true);
  return field_at_top_;
}

bool Utf8MarcRecordClass::FldMoveBottom() {
  field_at_bottom_ = FldMoveLast(true);
  return field_at_bottom_;
}

// --- Searches ----------------------------------------------------------------

bool Utf8MarcRecordClass::TagCompare(std::string_view tag_list, std::string_view tag,
                                     std::string_view) {
  const auto agrees = [&](std::string_view pattern) {
    if (pattern.size() > tag.size()) return false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
      if (pattern[i] != tag[i] && pattern[i] != 'X' && tag[i] != 'X') return false;
    }
    return true;
  };
  for (std::size_t i = 0; i < tag_list.size();) {
    const std::string_view pattern = tag_list.substr(i, tag_list.find(' ', i) - i);
    if (!pattern.empty() && agrees(pattern)) return true;
    i += pattern.size() + 1;
  }
  return false;
}

void Utf8MarcRecordClass::RememberTagList(std::string_view tag_list) {
  if (tag_list.empty()) return;
  last_tag_list_.clear();
  for (char c : tag_list) {
    if (c == ' ' && !last_tag_list_.empty() && last_tag_list_.back() == ' ') continue;
    last_tag_list_ += AsciiUpper(c);
  }
}

bool Utf8MarcRecordClass::FieldPasses() {
  if (!TagCompare(last_tag_list_, FldTagView())) return false;
  return last_field_text_.empty() || FldNorm().starts_with(last_field_text_);
}

bool Utf8MarcRecordClass::FindForward() {
  while (field_found_ && !FieldPasses()) FldMoveNext(true);
  return field_found_;
}

bool Utf8MarcRecordClass::FindBackward() {
  while (field_found_ && !FieldPasses()) FldMovePrev(true);
  return field_found_;
}

// A first search takes its text as given, an empty one included.  False when
// there is no tag list to search by.
bool Utf8MarcRecordClass::BeginFieldSearch(std::string_view tag_list, std::string_view text) {
  ClearAtEndFlags();
  last_field_text_ = NormString(text, true, "V");
  RememberTagList(tag_list);
  if (last_tag_list_.empty()) FldPointer(kNoRow);
  return !last_tag_list_.empty();
}

// A next search keeps what an empty argument leaves out.
bool Utf8MarcRecordClass::ContinueFieldSearch(std::string_view tag_list, std::string_view text) {
  ClearAtEndFlags();
  if (!field_found_) return false;
  if (!text.empty()) last_field_text_ = NormString(text, true, "V");
  RememberTagList(tag_list);
  if (last_tag_list_.empty()) FldPointer(kNoRow);
  return !last_tag_list_.empty();
}

bool Utf8MarcRecordClass::FldFindFirst(std::string_view tag_list, std::string_view text) {
  if (!BeginFieldSearch(tag_list, text)) return false;
  FldMoveFirst(true);
  return FindForward();
}

bool Utf8MarcRecordClass::FldFindNext(std::string_view tag_list, std::string_view text) {
  if (!ContinueFieldSearch(tag_list, text)) return false;
  FldMoveNext(true);
  return FindForward();
}

bool Utf8MarcRecordClass::FldFindLast(std::string_view tag_list, std::string_view text) {
  if (!BeginFieldSearch(tag_list, text)) return false;
  FldMoveLast(true);
  return FindBackward();
}

bool Utf8MarcRecordClass::FldFindPrev(std::string_view tag_list, std::string_view text) {
  if (!ContinueFieldSearch(tag_list, text)) return false;
  FldMovePrev(true);
  return FindBackward();
}

// Runs a search and puts back the cursor, the tag list and the found flag; the
// text searched for is not put back.
template <typename Search>
bool Utf8MarcRecordClass::TestField(Search search) {
  const std::int16_t field = current_field_;
  const std::int16_t subfield = current_subfield_;
  const bool found = field_found_;
  const std::string tag_list = last_tag_list_;
  const bool result = search();
  if (field != kNoRow) FldPointer(field);
  current_field_ = field;
  current_subfield_ = subfield;
  field_found_ = found;
  last_tag_list_ = tag_list;
  return result;
}

bool Utf8MarcRecordClass::FldTestFirst(std::string_view tag_list) {
  return TestField([&] { return FldFindFirst(tag_list, {}); });
}

bool Utf8MarcRecordClass::FldTestNext(std::string_view tag_list) {
  return TestField([&] { return FldFindNext(tag_list, {}); });
}

bool Utf8MarcRecordClass::FldTestPrev(std::string_view tag_list) {
  return TestField([&] { return FldFindPrev(tag_list, {}); });
}

bool Utf8MarcRecordClass::FldTestLast(std::string_view tag_list) {
  return TestField([&] { return FldFindLast(tag_list, {}); });
}

// --- The current field -------------------------------------------------------

std::string Utf8MarcRecordClass::TagOfRow(std::int16_t row) const {
  return row == kNoRow ? std::string() : std::string(table_.Field(row).Tag());
}

std::string Utf8MarcRecordClass::FldNextTag() const {
  return HasField() ? TagOfRow(CurrentField().next) : std::string();
}

std::string Utf8MarcRecordClass::FldPrevTag() const {
  return HasField() ? TagOfRow(CurrentField().prev) : std::string();
}

std::string_view Utf8MarcRecordClass::FldTagView() const {
  return HasField() ? CurrentField().Tag() : std::string_view();
}

std::string_view Utf8MarcRecordClass::FldIndView() const {
  return HasField() ? CurrentField().Indicators() : std::string_view();
}

std::string Utf8MarcRecordClass::FldInd1() const {
  return std::string(FldIndView().substr(0, 1));
}

std::string Utf8MarcRecordClass::FldInd2() const {
  return std::string(From(FldIndView(), 1));
}

void Utf8MarcRecordClass::AppendText(const FieldRecord& field, std::string& out) const {
  if (!field.whole_text.empty()) {
    out += field.whole_text;
    return;
  }
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (field.is_control) {
      out += subfield.text;
      return;
    }
    row = subfield.next;
    if (subfield.deleted) continue;
    out += kDelimiter;
    out += subfield.code;
    out += subfield.text;
  }
}

void Utf8MarcRecordClass::AppendFldText(std::string& out) const {
  if (HasField()) AppendText(CurrentField(), out);
}

std::string Utf8MarcRecordClass::FldText() const {
  std::string text;
  AppendFldText(text);
  return text;
}

std::string Utf8MarcRecordClass::FldTagTrue() const {
  if (!HasField()) return {};
  const FieldRecord& field = CurrentField();
  if (field.Tag() != "880") return FldTag();
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (!subfield.deleted && subfield.code == '6') return std::string(subfield.text.substr(0, 3));
    row = subfield.next;
  }
  return FldTag();
}

std::string Utf8MarcRecordClass::FldDirectory() const {
  return HasField() ? std::string(CurrentField().directory_entry) : std::string();
}

bool Utf8MarcRecordClass::FldDeleted() const {
  return HasField() && CurrentField().deleted;
}

bool Utf8MarcRecordClass::FldIsControl() const {
  return HasField() && CurrentField().is_control;
}

bool Utf8MarcRecordClass::FldChanged() const {
  return HasField() && CurrentField().changed;
}

void Utf8MarcRecordClass::FldChanged(bool value) {
  if (HasField()) CurrentField().changed = value;
}

bool Utf8MarcRecordClass::FldBoolean1() const {
  return HasField() && CurrentField().boolean1;
}

void Utf8MarcRecordClass::FldBoolean1(bool value) {
  if (HasField()) CurrentField().boolean1 = value;
}

bool Utf8MarcRecordClass::FldBoolean2() const {
  return HasField() && CurrentField().boolean2;
}

void Utf8MarcRecordClass::FldBoolean2(bool value) {
  if (HasField()) CurrentField().boolean2 = value;
}

void Utf8MarcRecordClass::FldLoadInfo(std::string& tag, std::string& indicators,
                                      std::string& text) const {
  tag = FldTag();
  indicators = FldInd();
  text = FldText();
}

void Utf8MarcRecordClass::FldGetInfo(std::string& tag, std::string& indicators,
                                     std::string& text) const {
  FldLoadInfo(tag, indicators, text);
}

}  // namespace cantorel
