// The comparison forms of a subfield, made when first asked for.
//
// They are the forms that the subfield would have had when it was added: each
// row remembers the character set then in force, and what else they depend on
// is settled (SettleNorms) before it changes.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "charset/marc_control.h"
#include "normalize/naco_norm.h"
#include "normalize/nonfiling.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// A text without any of these has one form for both schemes.
constexpr bool MakesNacoFormDiffer(char c) {
  return c == ',' || c == '-' || c == '@' || c == kDelimiter;
}

}  // namespace

void Utf8MarcRecordClass::MakeNorms(const FieldRecord& field, SubfieldRecord& subfield) {
  const char set_in_force = std::exchange(character_set_out_, subfield.norm_set);
  table_.KeepNorms(subfield, NormsOf(field, subfield));
  character_set_out_ = set_in_force;
}

SubfieldNorms Utf8MarcRecordClass::NormsOf(const FieldRecord& field,
                                           const SubfieldRecord& subfield) {
  const bool first_a = subfield.code == 'a' && subfield.norm_origin == NormOrigin::kFirst;
  std::string_view text = subfield.text;
  std::string filed;
  if (first_a) {
    const std::string_view format = leader_.size() > 6 && leader_[6] == 'z' ? "A" : "B";
    if (MayHaveNonfilingPart(format, field.Tag(), field.Indicators(), text, Utf8())) {
      std::string indicators(field.Indicators());
      filed = RemoveNonfilingCharacters(format, field.Tag(), indicators, text, true);
      text = filed;
    }
  }

  std::string norm;
  AppendTextNorm(text, true, character_set_out_, false, norm);
  SubfieldNorms norms;
  norms.v = norms.p = table_.Arena().Keep(norm);
  if (std::none_of(text.begin(), text.end(), MakesNacoFormDiffer)) return norms;

  norm.clear();
  const std::string_view code(&subfield.code, 1);
  if (code != "a" || !AppendInvertedNameNorm(text, character_set_out_, true, norm)) {
    NormKeeps keeps;
    if (!first_a) keeps = NacoKeeps("P", {&format_code_, 1}, field.Tag(), code);
    keeps.delimiter = true;
    AppendNacoNorm(text, true, character_set_out_, keeps, norm);
  }
  norms.p = table_.Arena().Keep(norm);
  return norms;
}

void Utf8MarcRecordClass::SettleNorms(const FieldRecord& field) {
  for (std::int16_t row = 0; row <= field.subfield_max; ++row) {
    SubfieldRecord& subfield = table_.Subfield(field, row);
    if (subfield.norms == SubfieldRecord::kNoNorms) MakeNorms(field, subfield);
  }
}

void Utf8MarcRecordClass::SettleNorms() {
  for (std::int16_t row = 0; row < table_.Count(); ++row) SettleNorms(table_.Field(row));
}

std::string_view Utf8MarcRecordClass::NormOfRow(const FieldRecord& field, std::int16_t row) {
  SubfieldRecord& subfield = table_.Subfield(field, row);
  if (subfield.norms == SubfieldRecord::kNoNorms) MakeNorms(field, subfield);
  return table_.Norms(subfield).v;
}

std::string_view Utf8MarcRecordClass::SfdNormView() {
  return HasSubfield() ? NormOfRow(CurrentField(), current_subfield_) : std::string_view();
}

std::string_view Utf8MarcRecordClass::SfdNormNacoView() {
  if (!HasSubfield()) return {};
  SubfieldRecord& subfield = table_.Subfield(CurrentField(), current_subfield_);
  if (subfield.norms == SubfieldRecord::kNoNorms) MakeNorms(CurrentField(), subfield);
  return table_.Norms(subfield).p;
}

}  // namespace cantorel
