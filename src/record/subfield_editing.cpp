// Adding, changing and marking subfields of the current field.

#include <algorithm>
#include <string>
#include <utility>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/field_order_key.h"
#include "record/oclc_number.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

// Steps that the subfields of one record may walk while it is loaded, far beyond
// what any record needs.  A damaged directory can name one long field thousands
// of times; what is misplaced after that many steps is reported and not moved.
constexpr std::int64_t kMostSubfieldSteps = 16'000'000;

constexpr char kUnusableCode = '9';  // stands for a code that is no code

bool IsUsableCode(char code) {
  return Octet(code) > ' ';
}

// The one character of a code argument.
char CodeOf(std::string_view code) {
  return code.size() == 1 && IsUsableCode(code[0]) ? code[0] : kUnusableCode;
}

// A blank counts as part of the text in 010, and in the $0 of an authority.
bool KeepsBlanks(std::string_view tag, char format, char code) {
  return tag == "010" || (format == 'A' && code == '0');
}

}  // namespace

std::string Utf8MarcRecordClass::SfdDelim(std::string_view code) {
  return std::string(1, kDelimiter).append(code.substr(0, 1));
}

std::string Utf8MarcRecordClass::SfdMake(std::string& code, const std::string& text) {
  code = Trim(code);
  if (code.size() > 1) {
    if (code[0] == kDelimiter) code.erase(0, 1);
    code.resize(1);
  }
  if (code.empty() || text.empty()) return {};
  return SfdDelim(code) + text;
}

// --- Adding ------------------------------------------------------------------

void Utf8MarcRecordClass::SfdAdd(std::string_view code, std::string_view text) {
  if (!HasField()) return;
  const char one = code.size() == 1 ? code[0] : ' ';
  AddSubfield(CurrentField(), one, table_.Arena().Keep(text));
  if (one == '5') RefileLocalField(text);
}

// A note of an authority record that becomes one of the own institution stands
// ahead of the others: it is taken out and added again.
void Utf8MarcRecordClass::RefileLocalField(std::string_view subfield5) {
  if (format_code_ != 'A' || table_.Full() || !IsLocalNote(FldTagView())) return;
  if (RateLocal5(SfdDelim("5").append(subfield5), nuc_) == '9') return;
  const std::string tag = FldTag();
  const std::string indicators = FldInd();
  const std::string text = FldText();
  FldDelete();
  FldAdd(tag, indicators, text);
}

// `text` must stay valid while the record is held.
void Utf8MarcRecordClass::AddSubfield(FieldRecord& field, char code, std::string_view text) {
  if (field.is_control) return AddControlText(field, text);
  if (code == '6') return SetLeading6(text);
  SettleSubfield(field, code, text);
  if (!SfdMoveLast(true)) return AddFirstSubfield(field, code, text);
  InsertSubfield(field, code, text, true);
}

// The same while a field text is parsed: what is there was just added, so the
// new subfield goes behind it, a $6 like any other.  An empty one is dropped.
void Utf8MarcRecordClass::AddParsedSubfield(FieldRecord& field, char code, std::string_view text) {
  SettleSubfield(field, code, text);
  const std::int16_t last = field.last_subfield;
  if (last == kNoRow) return AddFirstSubfield(field, code, text);
  if (text.empty()) return;
  const std::int16_t row = AppendSubfieldRow(field, code, text, NormOrigin::kInserted);
  if (row == kNoRow) return;
  SubfieldRecord& before = table_.Subfield(field, last);
  before.next = row;
  table_.Subfield(field, row).prev = last;
  field.last_subfield = current_subfield_ = row;
  if (parse_order_ == nullptr || parse_order_->StaysLast(code, before.code, parse_saw_title_)) {
    return;
  }
  if (subfield_steps_ > kMostSubfieldSteps) return ReportSubfieldOutOfOrder();
  WalkIntoPlace(parse_saw_title_);
}

// What a subfield is added as: an OCLC number in the form wanted, and a code
// that is none as "9".
void Utf8MarcRecordClass::SettleSubfield(const FieldRecord& field, char& code,
                                         std::string_view& text) {
  if (code == 'a' && remove_duplicate_oclc_numbers_ && field.Tag() == "035") {
    text = ResolveDuplicateOclcNumber(text);
  }
  if (IsUsableCode(code)) return;
  code = kUnusableCode;
  modified_ = true;
}

// The one subfield of a control field is row 0.  What is added later goes to a
// spare row that nothing delivers: a control field is replaced through FldText.
void Utf8MarcRecordClass::AddControlText(FieldRecord& field, std::string_view text) {
  if (field.subfield_max != kNoRow) {
    field.changed = true;
    return;
  }
  AddFirstSubfield(field, '\0', text);
}

// A field whose subfields are all deleted begins afresh, as one without any.
void Utf8MarcRecordClass::AddFirstSubfield(FieldRecord& field, char code, std::string_view text) {
  MarkChanged(field);
  field.subfield_max = kNoRow;
  const std::int16_t row = AppendSubfieldRow(field, code, text, NormOrigin::kFirst);
  if (row == kNoRow) return;
  field.first_subfield = field.last_subfield = row;
  current_subfield_ = row;
  subfield_found_ = true;
}

std::int16_t Utf8MarcRecordClass::AppendSubfieldRow(FieldRecord& field, char code,
                                                    std::string_view text, NormOrigin origin) {
  const std::int16_t row = table_.AppendSubfield(field);
  if (row == kNoRow) return kNoRow;
  SubfieldRecord& subfield = table_.Subfield(field, row);
  subfield.code = code;
  subfield.text = text;
  subfield.norm_origin = origin;
  subfield.norm_set = character_set_out_;
  return row;
}

void Utf8MarcRecordClass::SfdInsertBefore(std::string_view code, std::string_view text) {
  InsertBesideSubfield(code, text, false);
}

void Utf8MarcRecordClass::SfdInsertAfter(std::string_view code, std::string_view text) {
  InsertBesideSubfield(code, text, true);
}

void Utf8MarcRecordClass::InsertBesideSubfield(std::string_view code, std::string_view text,
                                               bool after) {
  if (!HasField() || code.empty() || FldIsControl()) return;
  if (HasSubfield()) {
    return InsertSubfield(CurrentField(), CodeOf(code), table_.Arena().Keep(text), after);
  }
  // Without a current subfield there is a place only in a field that has none.
  if (CurrentField().subfield_max == kNoRow) SfdAdd(code, text);
}

// Puts a subfield beside the current one, and from there to where the order
// wants it.
void Utf8MarcRecordClass::InsertSubfield(FieldRecord& field, char code, std::string_view text,
                                         bool after) {
  if (PutSubfieldBeside(field, code, text, after)) {
    WalkIntoPlace(StandsAfterTitle(current_subfield_));
  }
}

// Puts a subfield beside the current one; an empty text is not inserted.
bool Utf8MarcRecordClass::PutSubfieldBeside(FieldRecord& field, char code, std::string_view text,
                                            bool after) {
  if (!KeepsBlanks(field.Tag(), format_code_, code)) text = Trim(text);
  if (text.empty()) return false;
  const std::int16_t beside = current_subfield_;
  const std::int16_t row = AppendSubfieldRow(field, code, text, NormOrigin::kInserted);
  if (row == kNoRow) return false;
  MarkChanged(field);
  if (after) {
    LinkSubfields(field, row, table_.Subfield(field, beside).next);
    LinkSubfields(field, beside, row);
  } else {
    LinkSubfields(field, table_.Subfield(field, beside).prev, row);
    LinkSubfields(field, row, beside);
  }
  current_subfield_ = row;
  subfield_found_ = true;
  return true;
}

// Makes two rows neighbours; kNoRow stands for an end of the field.
void Utf8MarcRecordClass::LinkSubfields(FieldRecord& field, std::int16_t left, std::int16_t right) {
  (left == kNoRow ? field.first_subfield : table_.Subfield(field, left).next) = right;
  (right == kNoRow ? field.last_subfield : table_.Subfield(field, right).prev) = left;
}

// A $6 always goes first, whatever the subfield order says.  It may change what
// the field is linked to.
void Utf8MarcRecordClass::SetLeading6(std::string_view text) {
  FieldRecord& field = CurrentField();
  std::string linked = SfdDelim("6").append(text);
  AppendText(field, linked);
  FindDelimiters(linked);
  field.link_key = MakeFieldOrderKey(field.Tag(), field.Indicators(), linked).link;
  const bool found = GoToSubfieldForward(field.first_subfield, true);
  if (!found) return AddFirstSubfield(field, '6', text);
  PutSubfieldBeside(field, '6', text, false);
}

// The number in the form that the settings ask for.  When another 035 holds the
// same number the current field is marked deleted.
std::string_view Utf8MarcRecordClass::ResolveDuplicateOclcNumber(std::string_view text) {
  if (!IsOclcNumber(text)) return text;
  const OclcNumberForm form{!remove_oclc_alphabetic_prefix_, oclc_numbers_have_leading_zeroes_};
  const std::string cleaned = CleanOclcNumber(text, form);
  for (std::int16_t row = first_field_; row != kNoRow; row = table_.Field(row).next) {
    const FieldRecord& other = table_.Field(row);
    if (row == current_field_ || other.deleted || other.Tag() != "035") continue;
    for (std::int16_t s = other.first_subfield; s != kNoRow; s = table_.Subfield(other, s).next) {
      const SubfieldRecord& subfield = table_.Subfield(other, s);
      if (subfield.code == 'a' && !subfield.deleted && IsOclcNumber(subfield.text) &&
          CleanOclcNumber(subfield.text, form) == cleaned) {
        CurrentField().deleted = true;
      }
    }
  }
  return table_.Arena().Keep(cleaned);
}

// --- Changing ----------------------------------------------------------------

void Utf8MarcRecordClass::SfdChange(std::string_view code, std::string_view text) {
  if (!HasSubfield() || FldIsControl()) return;
  const char one = CodeOf(code);
  const bool is_010 = FldTagView() == "010";
  const bool keep_blanks = is_010 && (format_code_ != 'A' || one == '0');
  SubfieldRecord& subfield = CurrentSubfield();
  subfield.code = one;
  subfield.text = table_.Arena().Keep(keep_blanks ? text : Trim(text));
  MarkChanged(CurrentField());
  RebuildField(FldTag(), FldInd(), FldText());
}

void Utf8MarcRecordClass::SfdCode(std::string_view code) {
  SfdChange(code, SfdText());
}

void Utf8MarcRecordClass::SfdText(std::string_view text) {
  if (!text.empty() && text[0] == kDelimiter) {
    SfdChange(text.substr(1, 1), From(text, 2));
  } else {
    SfdChange(SfdCode(), text);
  }
}

// --- Deleting ----------------------------------------------------------------

void Utf8MarcRecordClass::SfdDelete(bool care) {
  if (!HasSubfield()) return;
  FieldRecord& field = CurrentField();
  SubfieldRecord& subfield = CurrentSubfield();
  const bool is_gmd = care && subfield.code == 'h' && (field.Tag() == "245" || field.tag[0] == '8');
  const std::string ending = is_gmd ? GmdEnding() : std::string();
  subfield.deleted = true;
  MarkChanged(field);
  if (is_gmd && field.Tag() == "245") GiveEndingTo245(ending);
}

// Does not bring a subfield back: it marks it deleted, as SfdDelete without care
// does, which is deliberate.
void Utf8MarcRecordClass::SfdUndelete() {
  SfdDelete(false);
}

// What stands behind the designation in the current $h: behind its last "]", or
// without one behind its last letter.
std::string Utf8MarcRecordClass::GmdEnding() {
  const std::string_view text = CurrentSubfield().text;
  std::size_t end = text.rfind(']');
  if (end == std::string_view::npos) {
    const std::string_view norm = SfdNormView();
    if (norm.empty()) return {};
    end = text.rfind(AsciiLower(norm.back()));
  }
  return end == std::string_view::npos ? std::string() : std::string(text.substr(end + 1));
}

void Utf8MarcRecordClass::GiveEndingTo245(const std::string& ending) {
  if (ending.empty()) {
    const std::string last = SafeRight(FldText(), 1);
    const bool word_ends = CharIsAlpha(last) || (last.size() == 1 && IsAsciiDigit(last[0]));
    if (!word_ends) return;
    const FieldRecord& field = CurrentField();
    for (std::int16_t row = field.last_subfield; row != kNoRow;
         row = table_.Subfield(field, row).prev) {
      const SubfieldRecord& subfield = table_.Subfield(field, row);
      if (!subfield.deleted) return ReplaceSubfieldText(row, std::string(subfield.text) + '.');
    }
    return;
  }
  const FieldRecord& field = CurrentField();
  std::int16_t row = CurrentSubfield().prev;
  while (row != kNoRow && table_.Subfield(field, row).deleted)
    row = table_.Subfield(field, row).prev;
  if (row == kNoRow) return;
  const std::string_view text = table_.Subfield(field, row).text;
  if (!text.ends_with(ending)) ReplaceSubfieldText(row, std::string(text) + ending);
}

// A new text in the same row; the rows of the field keep their numbers.
void Utf8MarcRecordClass::ReplaceSubfieldText(std::int16_t row, std::string_view text) {
  MarkChanged(CurrentField());
  SubfieldRecord& subfield = table_.Subfield(CurrentField(), row);
  subfield.text = table_.Arena().Keep(text);
  subfield.norms = SubfieldRecord::kNoNorms;
  subfield.norm_set = character_set_out_;
}

// --- Order -------------------------------------------------------------------

// Exchanges two neighbours in the chain.
void Utf8MarcRecordClass::ExchangeSubfields(std::int16_t left, std::int16_t right) {
  FieldRecord& field = CurrentField();
  field.whole_text = {};
  chain_moved_ = true;
  const std::int16_t before = table_.Subfield(field, left).prev;
  const std::int16_t behind = table_.Subfield(field, right).next;
  LinkSubfields(field, before, right);
  LinkSubfields(field, right, left);
  LinkSubfields(field, left, behind);
}

// Moves the current subfield one place; false when it has no neighbour there.
bool Utf8MarcRecordClass::StepSubfield(SubfieldMove direction) {
  const std::int16_t row = current_subfield_;
  const SubfieldRecord& subfield = CurrentSubfield();
  if (direction == SubfieldMove::kLeft) {
    if (subfield.prev == kNoRow) return false;
    ExchangeSubfields(subfield.prev, row);
    return true;
  }
  if (subfield.next == kNoRow) return false;
  ExchangeSubfields(row, subfield.next);
  return true;
}

// Moves the current subfield one place, and on while the order wants it.
void Utf8MarcRecordClass::ShiftSubfield(SubfieldMove direction, bool after_title) {
  const bool left = direction == SubfieldMove::kLeft;
  do {
    ++subfield_steps_;
    const std::int16_t beside = left ? CurrentSubfield().prev : CurrentSubfield().next;
    if (!StepSubfield(direction)) return;
    if (table_.Subfield(CurrentField(), beside).code == 't') {
      after_title = !left || StandsAfterTitle(current_subfield_);
    }
  } while (CompareSubfieldOrder(current_subfield_, after_title) == direction);
}

void Utf8MarcRecordClass::SfdShiftLeft() {
  if (HasSubfield()) ShiftSubfield(SubfieldMove::kLeft, StandsAfterTitle(current_subfield_));
}

void Utf8MarcRecordClass::SfdShiftRight() {
  if (HasSubfield()) ShiftSubfield(SubfieldMove::kRight, StandsAfterTitle(current_subfield_));
}

// Walks a new subfield to where the subfield order wants it, or reports it.
void Utf8MarcRecordClass::WalkIntoPlace(bool after_title) {
  const SubfieldMove direction = CompareSubfieldOrder(current_subfield_, after_title);
  if (direction == SubfieldMove::kNone) return;
  if (!test_subfield_order_ || make_no_change_) return ReportSubfieldOutOfOrder();
  ShiftSubfield(direction, after_title);
  // A $w moves, or stays where it is, without being recorded.
  if (CurrentSubfield().code == 'w') return;
  subfield_order_changed_ = true;
  NoteFieldOutOfOrder();
}

void Utf8MarcRecordClass::ReportSubfieldOutOfOrder() {
  if (CurrentSubfield().code == 'w') return;
  subfields_out_of_order_ = true;
  NoteFieldOutOfOrder();
}

void Utf8MarcRecordClass::NoteFieldOutOfOrder() {
  std::string& tags = fields_with_subfields_out_of_order_;
  const std::string_view tag = FldTagView();
  if (tags.find(tag) != std::string::npos) return;
  if (!tags.empty()) tags += ' ';
  tags += tag;
}

}  // namespace cantorel
