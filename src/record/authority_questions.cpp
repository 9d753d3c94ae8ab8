// What a record answers about its standing: national authority record, RDA
// record, former headings, suppressed references.

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// What control numbers of the national authority file begin with.
constexpr std::string_view kNationalPrefixes[] = {"SH ", "N ", "NO ", "NB ", "NR ", "NS"};

constexpr std::string_view kNationalMedicine040 =
    "\x1F"
    "aDNLM";

constexpr std::size_t k008Rules = 10;  // descriptive cataloguing rules

// Positions in the control subfield $w.
constexpr std::size_t kEarlierForm = 2;
constexpr std::size_t kReferenceDisplay = 3;

// True when a character of $w is there and is not "n", not applicable.
bool Says(std::string_view w, std::size_t position) {
  return position < w.size() && w[position] != 'n';
}

}  // namespace

// The live field with a tag, from `row` on along the chain; kNoRow without one.
std::int16_t Utf8MarcRecordClass::NextLiveField(std::string_view tag, std::int16_t row) const {
  while (row != kNoRow && (table_.Field(row).deleted || table_.Field(row).Tag() != tag)) {
    row = table_.Field(row).next;
  }
  return row;
}

// True for a control number of a national institution, or in its file.
bool Utf8MarcRecordClass::IsNationalNumber(std::string_view norm) const {
  const auto begins = [&](std::string_view prefix) { return norm.starts_with(prefix); };
  if (std::any_of(std::begin(kNationalPrefixes), std::end(kNationalPrefixes), begins)) return true;
  const std::string_view codes = national_authority_institutions_;
  for (std::size_t i = 0; i < codes.size();) {
    const std::string_view code = codes.substr(i, codes.find(' ', i) - i);
    const std::string code_norm = NormString(code, true, "V");
    if (!code_norm.empty() && begins(code_norm)) return true;
    i += code.size() + 1;
  }
  return false;
}

bool Utf8MarcRecordClass::NationalAuthorityRecord(std::string& reason) {
  reason.clear();
  if (format_code_ != 'A') return false;
  const std::int16_t lccn = NextLiveField("010", first_field_);
  if (lccn != kNoRow) {
    reason = "010: ";
    AppendText(table_.Field(lccn), reason);
    return true;
  }
  for (std::int16_t row = NextLiveField("035", first_field_); row != kNoRow;
       row = NextLiveField("035", table_.Field(row).next)) {
    const FieldRecord& field = table_.Field(row);
    const std::int16_t a = table_.FindLive(field, 'a', field.first_subfield);
    if (a == kNoRow || !IsNationalNumber(NormOfRow(field, a))) continue;
    reason = std::string("035: ").append(table_.Subfield(field, a).text);
    return true;
  }
  for (std::int16_t row = NextLiveField("040", first_field_); row != kNoRow;
       row = NextLiveField("040", table_.Field(row).next)) {
    std::string text;
    AppendText(table_.Field(row), text);
    if (text.find(kNationalMedicine040) != std::string::npos) return true;
  }
  return false;
}

bool Utf8MarcRecordClass::RdaRecord() {
  if (format_code_ == 'A' && Get008Value(k008Rules, 1) != "z") return false;
  const std::int16_t row = NextLiveField("040", first_field_);
  if (row == kNoRow) return false;
  const FieldRecord& field = table_.Field(row);
  for (std::int16_t e = table_.FindLive(field, 'e', field.first_subfield); e != kNoRow;
       e = table_.FindLive(field, 'e', table_.Subfield(field, e).next)) {
    if (NormOfRow(field, e) == "RDA") return true;
  }
  return false;
}

bool Utf8MarcRecordClass::IsReference(std::string_view tag) const {
  return format_code_ == 'A' && !tag.empty() && (tag[0] == '4' || tag[0] == '5');
}

bool Utf8MarcRecordClass::ControlSubfieldSays(std::size_t position) const {
  if (!IsReference(FldTagView())) return false;
  const FieldRecord& field = CurrentField();
  const std::int16_t w = table_.FindLive(field, 'w', field.first_subfield);
  return w != kNoRow && Says(table_.Subfield(field, w).text, position);
}

bool Utf8MarcRecordClass::FldIsFormerHeading() const {
  return ControlSubfieldSays(kEarlierForm);
}

bool Utf8MarcRecordClass::FldIsSuppressedReference() const {
  return ControlSubfieldSays(kReferenceDisplay);
}

bool Utf8MarcRecordClass::FldFormerHeading(std::string_view tag, std::string_view text) const {
  if (!IsReference(tag)) return false;
  std::string w;
  return ExtractSubfield(text, "w", w, 1) != 0 && Says(w, kEarlierForm);
}

}  // namespace cantorel
