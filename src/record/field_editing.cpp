// Adding, rebuilding and marking fields.  Where a new row goes is in
// field_placing.cpp.

#include <algorithm>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_scan.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/default_008.h"
#include "record/record_image.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

bool IsFieldTag(std::string_view tag) {
  return tag.size() == 3 && std::all_of(tag.begin(), tag.end(), IsAsciiDigit);
}

bool IsControlTag(std::string_view tag) {
  return tag.substr(0, 2) == "00";
}

// Tags 000 to 010.
bool IsNumberTag(const char* tag) {
  return tag[0] == '0' && (tag[1] == '0' || (tag[1] == '1' && tag[2] == '0'));
}

bool IsIndicator(char c) {
  return IsAsciiDigit(c) || c == ' ';
}

// True when a row holds just what was given for it, the very same octets.
bool IsAsGiven(const SubfieldRecord& subfield, char code, std::string_view text) {
  return subfield.code == code && subfield.text.data() == text.data() &&
         subfield.text.size() == text.size();
}

// Where the $6 of a field text begins, npos without one.
std::size_t FindSubfield6(std::string_view text) {
  return text.find(
      "\x1F"
      "6");
}

std::string_view WithoutOpeningCode(std::string_view text) {
  return !text.empty() && text[0] == kDelimiter ? From(text, 2) : text;
}

// Room for two indicators; what is missing is blank.
struct IndicatorPair {
  char octets[2];

  explicit IndicatorPair(std::string_view given)
      : octets{given.empty() ? ' ' : given[0], given.size() > 1 ? given[1] : ' '} {}

  void BlankInvalid() {
    for (char& c : octets) {
      if (!IsIndicator(c)) c = ' ';
    }
  }
  std::string_view View() const { return {octets, 2}; }
};

}  // namespace

// --- Adding ------------------------------------------------------------------

void Utf8MarcRecordClass::FldAdd(std::string_view tag, std::string_view indicators,
                                 std::string_view text, bool at_top) {
  AddField(tag, indicators, table_.Arena().Keep(text), at_top);
}

void Utf8MarcRecordClass::FldAddGeneric(std::string_view tag, std::string_view indicators,
                                        std::string_view text, std::string_view) {
  FldAdd(tag, indicators, text, false);
}

bool Utf8MarcRecordClass::AddField(std::string_view tag, std::string_view indicators,
                                   std::string_view text, bool at_top) {
  const bool is_control = IsControlTag(tag);
  if (!is_control) FindDelimiters(text);
  if (!is_control && Is880InDisguise(tag, text)) tag = "880";
  if (tag == "008" && HasLive008()) {
    Change008Value(0, text);
    return false;
  }
  if (!IsFieldTag(tag) || table_.Full()) return false;

  const OrderKey key = MakeFieldOrderKey(tag, indicators, text);
  IndicatorPair pair(indicators);
  if (force_invalid_indicator_values_) pair.BlankInvalid();
  text = is_control ? ControlFieldText(tag, text, true) : DataFieldText(text);

  const std::int16_t row = AppendFieldRow(tag, pair.View(), key);
  if (table_.Count() == 1) {
    first_field_ = last_field_ = row;
  } else {
    LinkLast(row);
    PlaceField(row, at_top);
  }
  if (!text.empty()) ParseFieldText(row, text);
  return true;
}

// A record never has two 008; one that was deleted is none.
bool Utf8MarcRecordClass::HasLive008() const {
  return field_008_ != kNoRow && !table_.Field(field_008_).deleted;
}

// Finds the delimiters of a field text once for all that ask about them.
void Utf8MarcRecordClass::FindDelimiters(std::string_view text) {
  FindOctets(text, kDelimiter, delimiters_);
  subfield6_ = std::string_view::npos;
  for (const std::uint32_t place : delimiters_) {
    if (place + 1 < text.size() && text[place + 1] == '6') {
      subfield6_ = place;
      break;
    }
  }
}

// True for an 880 that was given under the tag it stands for: its $6 names the
// tag itself.
bool Utf8MarcRecordClass::Is880InDisguise(std::string_view tag, std::string_view text) const {
  return subfield6_ != std::string_view::npos && tag != "880" &&
         text.substr(subfield6_ + 2, 3) == tag;
}

std::int16_t Utf8MarcRecordClass::AppendFieldRow(std::string_view tag, std::string_view indicators,
                                                 const OrderKey& key) {
  // The arguments may be views of a row, and rows move when the table grows.
  const char kept_tag[3] = {tag[0], tag[1], tag[2]};
  const IndicatorPair pair(indicators);
  const std::int16_t row = table_.AppendField();
  FieldRecord& field = table_.Field(row);
  field.order_key = key.key;
  field.link_key = key.link;
  field.changed = true;
  SetTagAndIndicators(field, {kept_tag, 3}, pair.View());
  SubfieldOrders(FamilyOf(format_code_)).Finish();
  current_field_ = row;
  current_subfield_ = kNoRow;
  field_found_ = true;
  subfield_found_ = false;
  if (field.Tag() == "008") field_008_ = row;
  return row;
}

void Utf8MarcRecordClass::SetTagAndIndicators(FieldRecord& field, std::string_view tag,
                                              std::string_view indicators) {
  std::copy_n(tag.begin(), 3, field.tag);
  field.is_control = IsControlTag(tag);
  const IndicatorPair pair(indicators);
  field.indicators[0] = pair.octets[0];
  field.indicators[1] = pair.octets[1];
}

// The text of a control field: no delimiter and code ahead, and an 008 of the
// length its format wants.
std::string_view Utf8MarcRecordClass::ControlFieldText(std::string_view tag, std::string_view text,
                                                       bool size_008) {
  text = WithoutOpeningCode(text);
  if (tag != "008" || !size_008) return text;
  const std::size_t wanted = format_code_ == 'H' ? k008LengthHoldings : k008Length;
  if (text.size() >= wanted) return text.substr(0, wanted);
  char* padded = table_.Arena().Reserve(wanted);
  std::fill(std::copy(text.begin(), text.end(), padded), padded + wanted, ' ');
  return {padded, wanted};
}

// The text of a data field: as $a when it does not begin with a delimiter.
std::string_view Utf8MarcRecordClass::DataFieldText(std::string_view text) {
  if (text.empty() || text[0] == kDelimiter) return text;
  char* whole = table_.Arena().Reserve(text.size() + 2);
  whole[0] = kDelimiter;
  whole[1] = 'a';
  std::copy(text.begin(), text.end(), whole + 2);
  text = {whole, text.size() + 2};
  FindDelimiters(text);
  return text;
}

// Takes a text apart into the subfields of a row; FindDelimiters has been
// through it.
void Utf8MarcRecordClass::ParseFieldText(std::int16_t row, std::string_view text) {
  FieldRecord& field = table_.Field(row);
  field.first_subfield = field.last_subfield = kNoRow;
  field.subfield_max = kNoRow;
  field.whole_text = {};
  current_field_ = row;
  current_subfield_ = kNoRow;
  if (field.is_control) {
    AddFirstSubfield(field, '\0', text);
    return;
  }
  parse_order_ = ignore_subfield_order_ ? nullptr : &SubfieldOrderRowFor(field);
  parse_saw_title_ = false;
  ParseSubfields(field, text);
}

void Utf8MarcRecordClass::ParseSubfields(FieldRecord& field, std::string_view text) {
  // A blank is part of the text in the number fields up to 010.
  const bool trim = !IsNumberTag(field.tag);
  bool as_given = !delimiters_.empty() && delimiters_[0] == 0;
  for (std::size_t i = 0; i < delimiters_.size(); ++i) {
    const std::size_t start = delimiters_[i] + 1;
    const std::size_t end = i + 1 < delimiters_.size() ? delimiters_[i + 1] : text.size();
    const char code = start < end ? text[start] : ' ';
    const std::string_view given =
        text.substr(std::min(start + 1, end), end - std::min(start + 1, end));
    const std::int16_t rows = field.subfield_max;
    AddParsedSubfield(field, code, trim ? Trim(given) : given);
    if (code == 't' && field.subfield_max > rows) parse_saw_title_ = true;
    as_given = as_given && field.subfield_max > rows && field.last_subfield == field.subfield_max &&
               IsAsGiven(table_.Subfield(field, field.last_subfield), code, given);
  }
  if (as_given) field.whole_text = text;
}

// --- Rebuilding --------------------------------------------------------------

void Utf8MarcRecordClass::FldChange(std::string_view tag, std::string_view indicators,
                                    std::string_view text) {
  FldReset(tag, indicators, text);
}

void Utf8MarcRecordClass::FldReset(std::string_view tag, std::string_view indicators,
                                   std::string_view text) {
  if (HasField()) RebuildField(tag, indicators, text);
}

void Utf8MarcRecordClass::RebuildField(std::string_view tag, std::string_view indicators,
                                       std::string_view text) {
  const std::int16_t subfield = current_subfield_;
  const std::int16_t row = current_field_;
  // The arguments may be views of the row that is about to be rewritten.
  const std::string new_tag(tag.empty() ? FldTagView() : tag);
  const std::string new_indicators(tag.empty() ? FldIndView() : indicators);
  if (!IsFieldTag(new_tag)) return;
  std::string new_text = tag.empty() ? FldText() : std::string();
  text = table_.Arena().Keep(new_text.append(text));
  const bool is_control = IsControlTag(new_tag);
  text = is_control ? ControlFieldText(new_tag, text, false) : DataFieldText(text);
  if (preserve_leading_numeric_subfields_ && !is_control) text = WithKeptNumericSubfields(text);

  CurrentField().changed = true;
  if (row == field_008_) field_008_ = kNoRow;
  FindDelimiters(text);
  const OrderKey key = MakeFieldOrderKey(new_tag, new_indicators, text);
  const bool has_subfield6 = FindSubfield6(text) != std::string_view::npos;
  if (MayStay(CurrentField(), key, has_subfield6) || table_.Full()) {
    FieldRecord& field = CurrentField();
    in_key_order_ = in_key_order_ && field.order_key == key.key;
    field.order_key = key.key;
    field.link_key = key.link;
    SetTagAndIndicators(field, new_tag, new_indicators);
    if (new_tag == "008") field_008_ = row;
    ParseFieldText(row, text);
  } else {
    FldDelete();
    AddField(new_tag, new_indicators, text, false);
    FldPointer(static_cast<std::int16_t>(table_.Count() - 1));
  }
  SfdPointer(subfield);
}

// The new text with the numeric subfields of the old field that it lacks put in
// front, the later ones first.
std::string_view Utf8MarcRecordClass::WithKeptNumericSubfields(std::string_view text) {
  std::string whole(text);
  const FieldRecord& field = CurrentField();
  for (std::int16_t row = field.is_control ? kNoRow : field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (Octet(subfield.code) > '9') break;
    row = subfield.next;
    const std::string delimiter_and_code{kDelimiter, subfield.code};
    if (subfield.deleted || !IsAsciiDigit(subfield.code) ||
        text.find(delimiter_and_code) != std::string_view::npos) {
      continue;
    }
    whole.insert(0, delimiter_and_code + std::string(subfield.text));
  }
  return table_.Arena().Keep(whole);
}

// Whether a rebuilt row may stay where it is: its key is the same, or still
// fits between its neighbours.
bool Utf8MarcRecordClass::MayStay(const FieldRecord& field, const OrderKey& key,
                                  bool has_subfield6) const {
  const bool same_link = field.link_key == key.link;
  if (has_subfield6 || (same_link && field.order_key == key.key)) return true;
  if (!same_link && !field.link_key.empty() && !key.link.empty()) return false;
  const bool fits_behind = field.prev == kNoRow || table_.Field(field.prev).order_key <= key.key;
  const bool fits_before = field.next == kNoRow || table_.Field(field.next).order_key >= key.key;
  return fits_behind && fits_before;
}

// --- Parts of the current field ------------------------------------------------

std::string Utf8MarcRecordClass::FldInd() const {
  return std::string(FldIndView());
}

void Utf8MarcRecordClass::FldTag(std::string_view tag) {
  FldReset(tag, FldInd(), FldText());
}

void Utf8MarcRecordClass::FldInd(std::string_view indicators) {
  if (!HasField()) return;
  FldReset(FldTag(), FldIsControl() ? std::string_view() : indicators, FldText());
}

void Utf8MarcRecordClass::SetIndicator(std::size_t position, std::string_view indicator) {
  if (!HasField()) return;
  std::string pair = FldInd();
  if (!pair.empty()) pair[position] = indicator.empty() ? ' ' : indicator[0];
  FldReset(FldTag(), pair, FldText());
}

void Utf8MarcRecordClass::FldInd1(std::string_view indicator) {
  SetIndicator(0, indicator);
}

void Utf8MarcRecordClass::FldInd2(std::string_view indicator) {
  SetIndicator(1, indicator);
}

void Utf8MarcRecordClass::FldText(std::string_view text) {
  if (!HasField()) return;
  if (!text.empty()) {
    FldReset(FldTag(), FldInd(), text);
    return;
  }
  FieldRecord& field = CurrentField();
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    SubfieldRecord& subfield = table_.Subfield(field, row);
    subfield.deleted = true;
    row = subfield.next;
  }
  MarkChanged(field);
}

// --- Marks -------------------------------------------------------------------

void Utf8MarcRecordClass::FldDelete() {
  if (HasField()) CurrentField().deleted = true;
}

void Utf8MarcRecordClass::FldChangedClearAll() {
  for (std::int16_t row = 0; row < table_.Count(); ++row) {
    FieldRecord& field = table_.Field(row);
    if (!field.deleted) field.changed = false;
  }
}

// --- Inserting ---------------------------------------------------------------

void Utf8MarcRecordClass::FldInsertAfter(std::string_view tag, std::string_view indicators,
                                         std::string_view text) {
  InsertBeside(tag, indicators, text, true);
}

void Utf8MarcRecordClass::FldInsertBefore(std::string_view tag, std::string_view indicators,
                                          std::string_view text) {
  InsertBeside(tag, indicators, text, false);
}

void Utf8MarcRecordClass::InsertBeside(std::string_view tag, std::string_view indicators,
                                       std::string_view text, bool after) {
  const bool linked_880 = tag == "880" && FindSubfield6(text) != std::string_view::npos;
  if (table_.Count() == 0 || !HasField() || linked_880) return FldAdd(tag, indicators, text);
  if (tag == "008" && HasLive008()) return Change008Value(0, text);
  if (!IsFieldTag(tag) || table_.Full()) return;
  const bool is_control = IsControlTag(tag);
  if (!is_control && !indicators.empty() &&
      (indicators.size() != 2 || !std::all_of(indicators.begin(), indicators.end(), IsIndicator))) {
    return;
  }
  const std::string_view kept = table_.Arena().Keep(text);
  const std::string_view content =
      is_control ? ControlFieldText(tag, kept, false) : DataFieldText(kept);
  FindDelimiters(content);
  const OrderKey key = MakeFieldOrderKey(tag, indicators, content);
  const std::int16_t here = current_field_;
  if (!FitsBeside(here, key.key, after)) return FldAdd(tag, indicators, text);
  const std::int16_t row = AppendFieldRow(tag, indicators, key);
  if (after) {
    LinkAfter(row, here);
  } else {
    LinkBefore(row, here);
  }
  if (!content.empty()) ParseFieldText(row, content);
}

// Whether a key keeps the order right behind (or before) a row.
bool Utf8MarcRecordClass::FitsBeside(std::int16_t row, std::string_view key, bool after) const {
  const FieldRecord& field = table_.Field(row);
  if (after) {
    return field.order_key <= key &&
           (field.next == kNoRow || table_.Field(field.next).order_key >= key);
  }
  return field.order_key >= key &&
         (field.prev == kNoRow || table_.Field(field.prev).order_key <= key);
}

// --- Links and designations ----------------------------------------------------

void Utf8MarcRecordClass::IdentifySubfield6Pieces(std::string_view subfield6, std::string& tag,
                                                  std::string& occurrence, std::string& rest) {
  tag = subfield6.substr(0, 3);
  std::string_view tail = From(subfield6, 3);
  while (!tail.empty() && !IsAsciiDigit(tail[0])) tail.remove_prefix(1);
  std::size_t digits = 0;
  while (digits < tail.size() && IsAsciiDigit(tail[digits])) ++digits;
  occurrence = tail.substr(0, digits);
  if (digits < 2) occurrence.insert(0, 2 - digits, '0');
  rest = Trim(tail.substr(digits));
  if (!rest.empty() && rest[0] != '/') rest.insert(0, 1, '/');
}

// Finds the subfield that a general material designation follows: in a 245 the
// one ahead of $b, or else of $c; otherwise the last.
std::int16_t Utf8MarcRecordClass::RowAheadOfSubfieldH() const {
  const FieldRecord& field = CurrentField();
  std::int16_t last = kNoRow;
  std::int16_t ahead_of_b = kNoRow;
  std::int16_t ahead_of_c = kNoRow;
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (!subfield.deleted) {
      if (subfield.code == 'b' && ahead_of_b == kNoRow) ahead_of_b = last;
      if (subfield.code == 'c' && ahead_of_c == kNoRow) ahead_of_c = last;
      last = row;
    }
    row = subfield.next;
  }
  if (field.Tag() != "245") return last;
  if (ahead_of_b != kNoRow) return ahead_of_b;
  return ahead_of_c != kNoRow ? ahead_of_c : last;
}

bool Utf8MarcRecordClass::HasLiveSubfield(std::string_view codes) const {
  const FieldRecord& field = CurrentField();
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (!subfield.deleted && codes.find(subfield.code) != std::string_view::npos) return true;
    row = subfield.next;
  }
  return false;
}

void Utf8MarcRecordClass::FldInsertSubfieldH(std::string_view text) {
  if (!HasField() || FldIsControl() || HasLiveSubfield("h")) return;
  const std::int16_t ahead = RowAheadOfSubfieldH();
  if (ahead == kNoRow) return;
  const std::string before(table_.Subfield(CurrentField(), ahead).text);
  static constexpr std::string_view kPunctuation = "., /:;=";
  const std::size_t end = before.find_last_not_of(kPunctuation) + 1;
  std::string closing = before.substr(end);
  if (closing.empty() && !HasLiveSubfield("bc")) closing = ".";

  std::string designation(text);
  if (!designation.starts_with('[')) designation.insert(0, 1, '[');
  if (designation.find(']') == std::string::npos) designation += ']';
  designation.insert(designation.rfind(']') + 1, closing);

  if (end < before.size()) ReplaceSubfieldText(ahead, std::string_view(before).substr(0, end));
  SfdPointer(ahead);
  SfdInsertAfter("h", designation);
}

}  // namespace cantorel
