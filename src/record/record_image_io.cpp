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
  is_authority_ = modified_ = new_record_ = false;
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
  LoadInCharacterSet(DecideCharacterSet());
  CheckLoadOrder();
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
  const bool ascii = IsAscii(data_);
  if (set == 'U' && !ascii && data_.find(kHalfRing) != std::string_view::npos) {
    data_copy_ = data_;
    ReplaceHalfRings(data_copy_);
    data_ = data_copy_;
  }
  LoadFields();
  if (set == 'U' && !ascii && !disable_utf8_decomposition_) DecomposeAllFields();
  SetCharacterSetOutLetter(wanted, lc_pattern_);
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

void Utf8MarcRecordClass::CheckLoadOrder() {
  for (std::int16_t row = 0; row < table_.Count() && !modified_; ++row) {
    const FieldRecord& field = table_.Field(row);
    if (field.next != kNoRow && field.next != row + 1) modified_ = true;
    for (std::int16_t s = 0; s <= field.subfield_max; ++s) {
      const std::int16_t next = table_.Subfield(field, s).next;
      if (next != kNoRow && next != s + 1) modified_ = true;
    }
  }
}

std::string Utf8MarcRecordClass::MarcRecordOut() {
  std::string image;
  MarcRecordOut(image);
  return image;
}

void Utf8MarcRecordClass::MarcRecordOut(std::string& image) {
  image.clear();
  if (table_.Count() < 1 || first_field_ == kNoRow) return;
  BeforeRecordOut();
  if (leader_.compare(22, 2, "00") != 0) leader_.replace(22, std::string::npos, "00");

  out_data_.clear();
  image = leader_;
  for (std::int16_t row = first_field_; row != kNoRow; row = table_.Field(row).next) {
    const FieldRecord& field = table_.Field(row);
    if (field.deleted) continue;
    const std::size_t start = out_data_.size();
    out_data_ += field.Indicators();
    const std::size_t text_start = out_data_.size();
    AppendText(field, out_data_);
    if (out_data_.size() == text_start) {
      out_data_.resize(start);
      continue;
    }
    if (out_data_.back() != kEndOfField) out_data_ += kEndOfField;
    image += field.Tag();
    AppendDigits(out_data_.size() - start, 4, image);
    AppendDigits(start, 5, image);
  }
  if (Utf8()) ReplaceHalfRings(out_data_);
  image += kEndOfField;
  OverwriteDigits(image.size(), 5, 12, image);
  image += out_data_;
  image += kEndOfRecord;
  OverwriteDigits(image.size(), 5, 0, image);
}

// A thesis note in any form is left as the cataloguer wrote it.
bool Utf8MarcRecordClass::ParseThesisNote(std::string_view, std::string_view, std::string&,
                                          std::string&, std::string&, std::string&) const {
  return false;
}

// Thesis notes are recast on every writing; the property RdaReCast502Fields is
// stored and asked by nobody, which is deliberate.
void Utf8MarcRecordClass::BeforeRecordOut() {
  const std::int16_t field = current_field_;
  const std::int16_t subfield = current_subfield_;
  bool any = false;
  for (std::int16_t row = first_field_; row != kNoRow;) {
    const FieldRecord& candidate = table_.Field(row);
    const std::int16_t next = candidate.next;
    if (!candidate.deleted && candidate.Tag() == "502") {
      any = true;
      FldPointer(row);
      RecastThesisNote();
    }
    row = next;
  }
  if (!any) return;
  FldPointer(field);
  current_subfield_ = subfield;
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
  if (leader[6] != leader_[6]) SettleNorms();
  leader_ = leader.substr(0, kLeaderLength);
}

}  // namespace cantorel
