// Leader, 006, 007 and 008 by position (from 0), and the format of a record.

#include <algorithm>
#include <cstddef>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "platform/clock.h"
#include "record/default_008.h"
#include "record/record_image.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// Kinds of record that a change of leader/06 must stay in.
constexpr std::string_view kBibliographicTypes = "acdefgijkmoprt";
constexpr std::string_view kHoldingsTypes = "uvxy";
constexpr std::string_view kFixedTypes = "zqw";

constexpr std::size_t k006Length = 18;

// Lengths of an 007 that is begun from blanks.  For "d", "g" and "r" they are
// not those that a subfielded 007 is rebuilt to, which is deliberate.
struct Blank007 {
  char category;
  std::size_t length;
};
constexpr Blank007 kBlank007[] = {
    {'a', 8}, {'c', 14}, {'d', 6},  {'f', 10}, {'g', 9}, {'h', 13}, {'k', 6}, {'m', 23},
    {'o', 2}, {'q', 2},  {'r', 15}, {'s', 14}, {'t', 2}, {'v', 9},  {'z', 2},
};
constexpr std::size_t kUnknown007Length = 14;
constexpr std::size_t kFilled007Length = 6;

constexpr std::size_t k008LengthQ = 15;
constexpr std::size_t k008LengthW = 14;

bool Contains(std::string_view list, char c) {
  return list.find(c) != std::string_view::npos;
}

// Format by leader/06; "a" also asks whether the record is a serial.
char FormatOf(char type, bool serial) {
  switch (type) {
    case 'a':
      return serial ? 'S' : 'B';
    case 't':
      return 'B';
    case 'c':
    case 'd':
    case 'i':
    case 'j':
      return 'M';
    case 'e':
    case 'f':
      return 'P';
    case 'g':
    case 'k':
    case 'o':
    case 'r':
      return 'F';
    case 'm':
      return 'D';
    case 'b':
    case 'p':
      return 'U';
    case 'v':
    case 'x':
    case 'y':
    case 'u':
      return 'H';
    case 'z':
      return 'A';
    case 'q':
      return 'Q';
    case 'w':
      return 'W';
    default:
      return '?';
  }
}

bool TypeMayBecome(char present, char wanted) {
  if (present == ' ') return true;
  if (Contains(kBibliographicTypes, present)) return Contains(kBibliographicTypes, wanted);
  if (Contains(kHoldingsTypes, present)) return Contains(kHoldingsTypes, wanted);
  return !Contains(kFixedTypes, present);
}

// An 007 of a category of material: blanks, for "m" and "r" with fill characters
// at the end.
std::string BlankField007(char category) {
  const auto* known = std::find_if(std::begin(kBlank007), std::end(kBlank007),
                                   [&](const auto& b) { return b.category == category; });
  std::string text(known == std::end(kBlank007) ? kUnknown007Length : known->length, ' ');
  if (category == 'm' || category == 'r') {
    std::fill(text.end() - kFilled007Length, text.end(), kFill);
  }
  return text;
}

std::size_t Length008(char format) {
  switch (format) {
    case 'H':
      return k008LengthHoldings;
    case 'Q':
      return k008LengthQ;
    case 'W':
      return k008LengthW;
    default:
      return k008Length;
  }
}

// Today's date and blanks.
std::string BlankField008(char format) {
  std::string text = CurrentDateTime().substr(2, 6);
  text.resize(Length008(format), ' ');
  return text;
}

// The text an empty 006, 007 or 008 begins with before positions are written.
std::string BlankFixedField(std::string_view tag, char format, std::string_view value) {
  if (tag == "006") return std::string(k006Length, ' ');
  return tag == "008" ? BlankField008(format) : BlankField007(value.empty() ? ' ' : value[0]);
}

}  // namespace

// --- Leader ------------------------------------------------------------------

std::string Utf8MarcRecordClass::GetLeaderValue(std::int16_t position, std::int16_t length) const {
  if (leader_.empty() || position < 0 || length < 1 || position >= 24 || position + length >= 25) {
    return {};
  }
  if (static_cast<std::size_t>(position) >= leader_.size()) return {};
  return leader_.substr(static_cast<std::size_t>(position), static_cast<std::size_t>(length));
}

void Utf8MarcRecordClass::ChangeLeaderValue(std::int16_t position, std::string_view value) {
  if (value.empty() || position < 0 || leader_.size() != kLeaderLength) return;
  if (static_cast<std::size_t>(position) + 1 + value.size() >= 26) return;
  const auto place = static_cast<std::size_t>(position);
  if (position == 6 && !TypeMayBecome(leader_[6], value[0])) return;
  if (position == 9 && value[0] != leader_[9]) {
    const bool utf8 = value[0] == 'a';
    leader_.replace(place, value.size(), value);
    if (!utf8) leader_[place] = ' ';
    CharacterSetOut(utf8 ? "U" : "V");
    return;
  }
  if (position == 6 && value[0] != leader_[6]) SettleNorms();
  leader_.replace(place, value.size(), value);
  if (position == 6 || position == 7) SetFormatCode({});
}

// --- 008 ---------------------------------------------------------------------

std::string Utf8MarcRecordClass::Get008Value(std::int16_t position, std::int16_t length) const {
  if (field_008_ == kNoRow || position < 0 || length < 1 || position + length >= 41) return {};
  const FieldRecord& field = table_.Field(field_008_);
  if (field.subfield_max == kNoRow) return {};
  const std::string_view text = table_.Subfield(field, 0).text;
  return std::string(
      From(text, static_cast<std::size_t>(position)).substr(0, static_cast<std::size_t>(length)));
}

void Utf8MarcRecordClass::Change008Value(std::int16_t position, std::string_view value) {
  if (field_008_ == kNoRow || value.empty() || position < 0 || position + 1 >= 41) return;
  if (static_cast<std::size_t>(position) + 1 + value.size() >= 42) return;
  FieldRecord& field = table_.Field(field_008_);
  if (field.subfield_max == kNoRow) return;
  // The comparison forms stay those of the text as it was added.
  SettleNorms(field);
  SubfieldRecord& subfield = table_.Subfield(field, 0);
  subfield.text = table_.Arena().Keep(cantorel::SafeStuff(
      subfield.text, position + 1, static_cast<std::int32_t>(value.size()), value));
  field.changed = true;
}

// --- 006, 007, 008 as the current field ---------------------------------------

bool Utf8MarcRecordClass::OnFixedField() const {
  const std::string_view tag = FldTagView();
  return tag == "006" || tag == "007" || tag == "008";
}

std::string Utf8MarcRecordClass::GetFixedField(std::int16_t position, std::int16_t length) const {
  if (!OnFixedField() || position < 0 || length < 1) return {};
  const std::string text = FldText();
  return std::string(
      From(text, static_cast<std::size_t>(position)).substr(0, static_cast<std::size_t>(length)));
}

void Utf8MarcRecordClass::ChangeFixedField(std::int16_t position, std::int16_t length,
                                           std::string_view value) {
  if (!OnFixedField() || position < 0 || length < 1) return;
  std::string text = FldText();
  if (text.empty()) text = BlankFixedField(FldTagView(), format_code_, value);
  if (static_cast<std::size_t>(position) + static_cast<std::size_t>(length) > text.size()) return;
  text = cantorel::SafeStuff(text, position + 1, length, value);
  FieldRecord& field = CurrentField();
  const std::string_view kept = table_.Arena().Keep(text);
  if (field.subfield_max == kNoRow) {
    AddFirstSubfield(field, '\0', kept);
  } else {
    SettleNorms(field);
    table_.Subfield(field, 0).text = kept;
  }
  field.changed = true;
}

// --- Format ------------------------------------------------------------------

std::string Utf8MarcRecordClass::SetFormatCode(std::string_view leader) {
  const std::string_view judged = leader.empty() ? std::string_view(leader_) : leader;
  char type = ' ';
  if (judged.size() >= kLeaderLength) {
    type = judged[6];
  } else if (!judged.empty()) {
    type = judged[0];
  }
  const char format = FormatOf(type, type == 'a' && SerialBibliographicRecord(judged));
  if (format != format_code_) SettleNorms();
  format_code_ = format;
  return MarcRecordFormat();
}

bool Utf8MarcRecordClass::SerialBibliographicRecord(std::string_view leader) const {
  const std::string_view judged = leader.empty() ? std::string_view(leader_) : leader;
  std::string_view pair;
  if (judged.size() == 2) {
    pair = judged;
  } else if (judged.size() >= 8) {
    pair = judged.substr(6, 2);
  }
  return pair.size() == 2 && pair[0] == 'a' && Contains("bis", pair[1]);
}

std::string Utf8MarcRecordClass::Default008(std::string_view format_code, std::string_view date) {
  const char format = format_code.empty() ? '\0' : format_code[0];
  const auto* found = std::find_if(std::begin(kDefault008), std::end(kDefault008),
                                   [&](const auto& t) { return t.format == format; });
  if (found == std::end(kDefault008)) return {};
  // A date of another length gives way to today's in eight digits, so that the
  // result is two characters too long until FldAdd cuts it; that is deliberate.
  std::string text = date.size() == 6 ? std::string(date) : CurrentDateTime().substr(0, 8);
  return text.append(found->text.substr(6));
}

}  // namespace cantorel
