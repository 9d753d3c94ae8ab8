// Loading and writing a record image.

#include <algorithm>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "platform/clock.h"
#include "record/field_007.h"
#include "record/record_image.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kDefaultLeader = "00000n    2200000n  4500";

// U+02BE and U+02BC: the half ring that some systems write for alif, and the
// apostrophe that MARC 21 wants.
constexpr std::string_view kHalfRing = "\xCA\xBE";
constexpr std::string_view kAlif = "\xCA\xBC";

void ReplaceHalfRings(std::string& text, std::size_t from = 0) {
  for (std::size_t i = text.find(kHalfRing, from); i != std::string::npos;
       i = text.find(kHalfRing, i + kAlif.size())) {
    text.replace(i, kHalfRing.size(), kAlif);
  }
}

}  // namespace

bool Utf8MarcRecordClass::IsMarc(std::string_view image) {
  is_marc_error_text_ = MarcFrameFault(image);
  return is_marc_error_text_.empty();
}

void Utf8MarcRecordClass::Empty() {
  image_.clear();
  leader_.clear();
  data_ = {};
  directory_ = {};
  table_.Clear();
  first_field_ = last_field_ = field_008_ = kNoRow;
  current_field_ = current_subfield_ = kNoRow;
  field_found_ = subfield_found_ = false;
  is_authority_ = modified_ = new_record_ = chain_moved_ = false;
  in_key_order_ = true;
  subfield_steps_ = 0;
  fields_out_of_order_ = subfields_out_of_order_ = false;
  field_order_changed_ = subfield_order_changed_ = false;
  fields_with_subfields_out_of_order_.clear();
  character_encoding_scheme_ = " ";
  fld008_length_ = 0;
  ClearAtEndFlags();
}

void Utf8MarcRecordClass::MarcRecordIn(std::string_view image) {
  Empty();
  if (image.empty()) return;
  image_ = image;
  const LeaderLoss loss = FindLeaderLoss(image);
  if (loss.blanks > 0) image_.insert(loss.position, loss.blanks, ' ');
  leader_.assign(image_, 0, kLeaderLength);
  if (!IsMarc(image_)) {
    image_.clear();
    return;
  }
  current_field_ = current_subfield_ = 0;
  last_tag_list_.clear();
  is_authority_ = leader_[6] == 'z';
  character_encoding_scheme_.assign(1, leader_[9]);
  SetFormatCode({});
  field_orders_.Prepare(FamilyOf(format_code_));
  PrepareSubfieldOrder();
  LoadInCharacterSet(DecideCharacterSet());
  // A record whose fields or subfields were not in the expected order says at
  // once that it is changed.
  modified_ = modified_ || chain_moved_;
  FldMoveFirst(true);
  FldChangedClearAll();
}

char Utf8MarcRecordClass::DecideCharacterSet() const {
  if (leader_[9] == 'a') return 'U';
  const char wanted = CharacterSetIn()[0];
  if (wanted != 'U') return wanted;
  const char found = CharacterizeCharacterSet(image_)[0];
  if (found == 'X') return 'V';
  return found == 'Y' ? 'M' : found;
}

// Takes the fields in with the output set equal to the input set, so that
// nothing is translated on the way, then asks for the output set again.
void Utf8MarcRecordClass::LoadInCharacterSet(char set) {
  const char wanted = character_set_out_;
  character_set_out_ = set;
  const std::size_t base = static_cast<std::size_t>(BaseAddress(image_));
  const std::string_view whole = image_;
  if (base > kLeaderLength) directory_ = whole.substr(kLeaderLength, base - 1 - kLeaderLength);
  data_ = whole.substr(base, whole.size() - 1 - base);
  const bool accented = set == 'U' && !IsAscii(data_);
  if (accented && data_.find(kHalfRing) != std::string_view::npos) {
    data_copy_ = data_;
    ReplaceHalfRings(data_copy_);
    data_ = data_copy_;
  }
  LoadFields();
  if (accented && !disable_utf8_decomposition_) DecomposeAllFields();
  SetCharacterSetOutLetter(wanted, lc_pattern_);
  if (accented && wanted == set) AdjustDoubleMarks();
}

void Utf8MarcRecordClass::LoadFields() {
  std::string_view text_of_001;
  for (std::size_t i = 0; i + kDirectoryEntryLength <= directory_.size();
       i += kDirectoryEntryLength) {
    const DirectoryEntry entry = ReadDirectoryEntry(directory_, i, data_);
    if (entry.text.empty()) continue;
    if (LoadField(entry.tag, entry.text, text_of_001)) CurrentField().directory_entry = entry.whole;
  }
}

bool Utf8MarcRecordClass::LoadField(std::string_view tag, std::string_view text,
                                    std::string_view& text_of_001) {
  if (tag.substr(0, 2) != "00") {
    const bool repeats_001 = remove_duplicative_035_fields_ && tag == "035" && text.size() > 4 &&
                             text.substr(4) == text_of_001;
    return !repeats_001 && AddField(tag, text.substr(0, 2), From(text, 2), false);
  }
  if (text.find(kDelimiter) == std::string_view::npos) {
    if (tag == "001") text_of_001 = text;
    if (tag == "008") fld008_length_ = static_cast<std::int16_t>(text.size());
  } else if (tag == "007") {
    text = table_.Arena().Keep(RebuildSubfielded007(text));
  }
  return AddField(tag, {}, text, false);
}

std::string Utf8MarcRecordClass::MarcRecordOut() {
  std::string image;
  MarcRecordOut(image);
  return image;
}

void Utf8MarcRecordClass::MarcRecordOut(std::string& image) {
  if (table_.Count() < 1 || first_field_ == kNoRow) return image.clear();
  BeforeRecordOut();
  // Fields that were added to no record at all go out under the leader of a new
  // one.
  if (leader_.size() != kLeaderLength) leader_ = kDefaultLeader;
  if (leader_.compare(22, 2, "00") != 0) leader_.replace(22, std::string::npos, "00");

  std::size_t fields = 0;
  std::size_t data_length = 0;
  for (std::int16_t row = first_field_; row != kNoRow; row = table_.Field(row).next) {
    const std::size_t body = BodyLength(table_.Field(row));
    fields += body > 0 ? 1 : 0;
    data_length += body;
  }
  const std::size_t base = kLeaderLength + kDirectoryEntryLength * fields + 1;
  image.resize(base + data_length + 1);
  char* const start = image.data();
  std::copy_n(leader_.data(), kLeaderLength, start);
  WriteDigits(image.size(), 5, start);
  WriteDigits(base, 5, start + 12);
  start[base - 1] = kEndOfField;
  WriteFields(start + kLeaderLength, start + base);
  image.back() = kEndOfRecord;
  if (Utf8()) ReplaceHalfRings(image, base);
}

// Octets of the indicators, text and end of field of a row as they are written;
// 0 for a row that is not: deleted, or without text.
std::size_t Utf8MarcRecordClass::BodyLength(const FieldRecord& field) const {
  if (field.deleted) return 0;
  std::string_view last = field.whole_text;
  std::size_t length = last.size();
  if (last.empty()) {
    for (std::int16_t row = field.first_subfield; row != kNoRow;) {
      const SubfieldRecord& subfield = table_.Subfield(field, row);
      row = subfield.next;
      if (subfield.deleted && !field.is_control) continue;
      length += subfield.text.size() + (field.is_control ? 0 : 2);
      last = subfield.text.empty() ? std::string_view(&subfield.code, 1) : subfield.text;
    }
  }
  if (length == 0) return 0;
  // An end of field that is there already is not written twice.
  return length + field.Indicators().size() + (last.back() == kEndOfField ? 0 : 1);
}

void Utf8MarcRecordClass::WriteFields(char* directory, char* const data) {
  char* place = data;
  for (std::int16_t row = first_field_; row != kNoRow; row = table_.Field(row).next) {
    const FieldRecord& field = table_.Field(row);
    const std::size_t length = BodyLength(field);
    if (length == 0) continue;
    directory = std::copy_n(field.tag, 3, directory);
    WriteDigits(length, 4, directory);
    WriteDigits(static_cast<std::size_t>(place - data), 5, directory + 4);
    directory += 9;
    place = std::copy_n(field.indicators, field.Indicators().size(), place);
    place = WriteText(field, place);
    if (place[-1] != kEndOfField) *place++ = kEndOfField;
  }
}

char* Utf8MarcRecordClass::WriteText(const FieldRecord& field, char* place) const {
  if (!field.whole_text.empty()) {
    return std::copy(field.whole_text.begin(), field.whole_text.end(), place);
  }
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    row = subfield.next;
    if (!field.is_control) {
      if (subfield.deleted) continue;
      *place++ = kDelimiter;
      *place++ = subfield.code;
    }
    place = std::copy(subfield.text.begin(), subfield.text.end(), place);
  }
  return place;
}

// Thesis notes are recast on every writing; the property RdaReCast502Fields is
// stored and asked by nobody, which is deliberate.
void Utf8MarcRecordClass::BeforeRecordOut() {
  const std::int16_t field = current_field_;
  const std::int16_t subfield = current_subfield_;
  bool any = false;
  const std::int16_t rows = table_.Count();
  for (std::int16_t row = 0; row < rows; ++row) {
    const FieldRecord& candidate = table_.Field(row);
    if (candidate.tag[0] != '5' || candidate.Tag() != "502" || candidate.deleted) continue;
    any = true;
    FldPointer(row);
    RecastThesisNote();
  }
  if (!any) return;
  FldPointer(field);
  if (HasField() && subfield <= CurrentField().subfield_max) current_subfield_ = subfield;
}

void Utf8MarcRecordClass::RecastThesisNote() {
  std::string degree, miscellaneous, institution, year;
  if (!ParseThesisNote(FldText(), Get008Value(7, 4), degree, miscellaneous, institution, year)) {
    return;
  }
  std::string text;
  for (const auto& [code, part] : {std::pair{'b', &degree}, std::pair{'g', &miscellaneous},
                                   std::pair{'c', &institution}, std::pair{'d', &year}}) {
    if (part->empty()) continue;
    text += kDelimiter;
    text += code;
    text += *part;
  }
  FldText(text);
}

void Utf8MarcRecordClass::NewRecord(std::string_view record_type,
                                    std::string_view bibliographic_level) {
  Empty();
  new_record_ = true;
  static constexpr std::string_view kTypesWithoutLevel = "wuvxyz";
  const bool no_level =
      record_type.size() == 1 && kTypesWithoutLevel.find(record_type[0]) != std::string_view::npos;
  leader_ = kDefaultLeader;
  ChangeLeaderValue(6, record_type);
  ChangeLeaderValue(7, no_level ? " " : bibliographic_level);
  ChangeLeaderValue(9, Utf8() ? "a" : " ");
  SetFormatCode({});
  // The subfield order is left as it is, which is deliberate.
  field_orders_.Prepare(FamilyOf(format_code_));
  const std::string now = CurrentDateTime();
  const std::string date = now.substr(2, 6);
  FldAdd("005", {}, now + ".0");
  FldAdd("008", {}, Default008(MarcRecordFormat(), date));
  if (format_code_ == 'H') Change008Value(26, date);
}

void Utf8MarcRecordClass::Leader(std::string_view leader) {
  if (leader.size() < kLeaderLength) return;
  for (const std::int16_t position : {5, 6, 7, 8, 9, 17, 18, 19}) {
    ChangeLeaderValue(position, leader.substr(static_cast<std::size_t>(position), 1));
  }
  if (leader.substr(6, 1) != GetLeaderValue(6, 1)) SettleNorms();
  leader_ = leader.substr(0, kLeaderLength);
}

}  // namespace cantorel
