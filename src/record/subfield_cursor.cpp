// The subfield cursor: moves, searches, tests, and what is read of the current
// subfield.  It works on the current field only.
//
// SfdMoveFirst, SfdMoveNext and SfdMovePrev find nothing in the field of table
// row 0, which is deliberate: a loaded or new record has a control field there.

#include <algorithm>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kAllCodes = "0123456789abcdefghijklmnopqrstuvwxyz";

bool Contains(std::string_view list, char c) {
  return list.find(c) != std::string_view::npos;
}

}  // namespace

void Utf8MarcRecordClass::SfdPointer(std::int16_t row) {
  subfield_found_ = HasField() && row >= 0 && row <= CurrentField().subfield_max;
  current_subfield_ = subfield_found_ ? row : kNoRow;
}

// --- Moves -------------------------------------------------------------------

bool Utf8MarcRecordClass::GoToSubfield(std::int16_t row) {
  current_subfield_ = row;
  subfield_found_ = row != kNoRow;
  return subfield_found_;
}

bool Utf8MarcRecordClass::GoToSubfieldForward(std::int16_t row, bool skip_deleted) {
  const FieldRecord& field = CurrentField();
  while (skip_deleted && row != kNoRow && table_.Subfield(field, row).deleted) {
    row = table_.Subfield(field, row).next;
  }
  return GoToSubfield(row);
}

bool Utf8MarcRecordClass::GoToSubfieldBackward(std::int16_t row, bool skip_deleted) {
  const FieldRecord& field = CurrentField();
  while (skip_deleted && row != kNoRow && table_.Subfield(field, row).deleted) {
    row = table_.Subfield(field, row).prev;
  }
  return GoToSubfield(row);
}

bool Utf8MarcRecordClass::SfdMoveFirst(bool skip_deleted) {
  subfield_at_top_ = subfield_at_bottom_ = false;
  if (current_field_ < 1) return GoToSubfield(kNoRow);
  return GoToSubfieldForward(CurrentField().first_subfield, skip_deleted);
}

bool Utf8MarcRecordClass::SfdMoveNext(bool skip_deleted) {
  const bool at_top = subfield_at_top_;
  subfield_at_top_ = subfield_at_bottom_ = false;
  if (current_field_ < 1 || current_subfield_ < 0) return GoToSubfield(kNoRow);
  if (at_top) return GoToSubfield(CurrentField().first_subfield);
  return GoToSubfieldForward(CurrentSubfield().next, skip_deleted);
}

bool Utf8MarcRecordClass::SfdMovePrev(bool skip_deleted) {
  const bool at_bottom = subfield_at_bottom_;
  subfield_at_top_ = subfield_at_bottom_ = false;
  if (current_field_ < 1 || current_subfield_ < 0) return GoToSubfield(kNoRow);
  if (at_bottom) return GoToSubfield(CurrentField().last_subfield);
  return GoToSubfieldBackward(CurrentSubfield().prev, skip_deleted);
}

bool Utf8MarcRecordClass::SfdMoveLast(bool skip_deleted) {
  subfield_at_top_ = subfield_at_bottom_ = false;
  if (!HasField()) return GoToSubfield(kNoRow);
  return GoToSubfieldBackward(CurrentField().last_subfield, skip_deleted);
}

bool Utf8MarcRecordClass::SfdMoveTop() {
  subfield_at_top_ = SfdMoveFirst(true);
  subfield_at_bottom_ = false;
  return subfield_at_top_;
}

bool Utf8MarcRecordClass::SfdMoveBottom() {
  subfield_at_bottom_ = SfdMoveLast(true);
  return subfield_at_bottom_;
}

// --- Searches ----------------------------------------------------------------

bool Utf8MarcRecordClass::SubfieldPasses() {
  const SubfieldRecord& subfield = CurrentSubfield();
  if (!Contains(last_code_list_, subfield.code)) return false;
  return last_subfield_text_.empty() || SfdNormView().starts_with(last_subfield_text_);
}

bool Utf8MarcRecordClass::FindSubfieldForward() {
  while (subfield_found_ && !SubfieldPasses()) SfdMoveNext(true);
  return subfield_found_;
}

bool Utf8MarcRecordClass::FindSubfieldBackward() {
  while (subfield_found_ && !SubfieldPasses()) SfdMovePrev(true);
  return subfield_found_;
}

// False when the search is not to run: a search by the codes remembered needs a
// field and codes.  A search by codes of its own always runs, and without a field
// finds nothing.
bool Utf8MarcRecordClass::BeginSubfieldSearch(std::string_view codes) {
  subfield_at_top_ = subfield_at_bottom_ = false;
  if (codes.empty()) return HasField() && !last_code_list_.empty();
  last_code_list_ = codes;
  return true;
}

bool Utf8MarcRecordClass::SfdFindFirst(std::string_view codes, std::string_view text) {
  last_subfield_text_ = NormString(text, true, "V");
  if (!BeginSubfieldSearch(codes)) return false;
  SfdMoveFirst(true);
  return FindSubfieldForward();
}

bool Utf8MarcRecordClass::SfdFindNext(std::string_view codes, std::string_view text) {
  if (!text.empty()) last_subfield_text_ = NormString(text, true, "V");
  if (!BeginSubfieldSearch(codes)) return false;
  SfdMoveNext(true);
  return FindSubfieldForward();
}

bool Utf8MarcRecordClass::SfdFindLast(std::string_view codes, std::string_view text) {
  last_subfield_text_ = NormString(text, true, "V");
  if (!BeginSubfieldSearch(codes)) return false;
  SfdMoveLast(true);
  return FindSubfieldBackward();
}

bool Utf8MarcRecordClass::Sfdfindprev(std::string_view codes, std::string_view text) {
  if (!text.empty()) last_subfield_text_ = NormString(text, true, "V");
  if (!BeginSubfieldSearch(codes)) return false;
  SfdMovePrev(true);
  return FindSubfieldBackward();
}

// Runs a search and puts back the cursor, the code list and the found flag.
template <typename Search>
bool Utf8MarcRecordClass::TestSubfield(Search search) {
  const std::int16_t subfield = current_subfield_;
  const bool found = subfield_found_;
  const std::string codes = last_code_list_;
  const bool result = search();
  current_subfield_ = subfield;
  subfield_found_ = found;
  last_code_list_ = codes;
  return result;
}

bool Utf8MarcRecordClass::SfdTestFirst(std::string_view codes) {
  return TestSubfield([&] { return SfdFindFirst(codes, {}); });
}

bool Utf8MarcRecordClass::SfdTestNext(std::string_view codes) {
  return TestSubfield([&] { return SfdFindNext(codes, {}); });
}

bool Utf8MarcRecordClass::SfdTestPrev(std::string_view codes) {
  return TestSubfield([&] { return Sfdfindprev(codes, {}); });
}

// --- The current subfield ----------------------------------------------------

// Standing at the top is standing before the first subfield: it has no code and
// no text until SfdMoveNext delivers it.
std::string_view Utf8MarcRecordClass::SfdCodeView() const {
  if (!HasSubfield() || subfield_at_top_ || CurrentField().is_control) return {};
  return {&CurrentSubfield().code, 1};
}

std::string_view Utf8MarcRecordClass::SfdTextView() const {
  return HasSubfield() && !subfield_at_top_ ? CurrentSubfield().text : std::string_view();
}

bool Utf8MarcRecordClass::SfdDeleted() const {
  return !HasSubfield() || CurrentSubfield().deleted;
}

bool Utf8MarcRecordClass::SfdBoolean1() const {
  return HasSubfield() && CurrentSubfield().boolean1;
}

void Utf8MarcRecordClass::SfdBoolean1(bool value) {
  if (HasSubfield()) CurrentSubfield().boolean1 = value;
}

bool Utf8MarcRecordClass::Sfdboolean2() const {
  return HasSubfield() && CurrentSubfield().boolean2;
}

void Utf8MarcRecordClass::Sfdboolean2(bool value) {
  if (HasSubfield()) CurrentSubfield().boolean2 = value;
}

// --- Field texts -------------------------------------------------------------

std::int32_t Utf8MarcRecordClass::ExtractSubfield(std::string_view field_text,
                                                  std::string_view code, std::string& text,
                                                  std::int32_t start) {
  const std::string sought = code.size() == 1 ? SfdDelim(code) : std::string(code);
  const std::size_t from = static_cast<std::size_t>(std::max(start, 1) - 1);
  const std::size_t hit = sought.empty() ? std::string_view::npos : field_text.find(sought, from);
  if (hit == std::string_view::npos) {
    text.clear();
    return 0;
  }
  const std::size_t begin = hit + sought.size();
  // `text` may be the string that is searched.
  text = std::string(Trim(field_text.substr(begin, field_text.find(kDelimiter, begin) - begin)));
  return static_cast<std::int32_t>(begin + 1);
}

std::string Utf8MarcRecordClass::FldTextWithOnlyCertainSubfields(std::string_view wanted,
                                                                 std::string_view refused) const {
  if (!HasField()) return {};
  const FieldRecord& field = CurrentField();
  if (field.is_control) return FldText();
  if (wanted.empty()) wanted = kAllCodes;
  std::string out;
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    row = subfield.next;
    if (subfield.deleted || !Contains(wanted, subfield.code) || Contains(refused, subfield.code)) {
      continue;
    }
    out += kDelimiter;
    out += subfield.code;
    out += subfield.text;
  }
  return out;
}

}  // namespace cantorel
