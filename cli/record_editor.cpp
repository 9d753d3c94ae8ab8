#include "cli/record_editor.h"

#include <algorithm>
#include <tuple>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/record_image.h"
#include "record/utf8_marc_record_class.h"
#include "service/text_parts.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kCharacterSetPosition = 9;
constexpr std::size_t kLastStart = 99999;
constexpr std::string_view kIdentifierCode = "9";
constexpr std::string_view kScriptsTag = "066";
constexpr char kMarc8 = 'M';  // the letter of the character set

// The number that names a field: that of its last $9, or without one its row.
std::int32_t IdentifierOf(const FieldEntry& entry) {
  std::int32_t id = entry.row;
  // The component takes no subfields out of the field in row 0.
  if (entry.row == 0) return id;
  for (const Subfield& subfield : SplitSubfields(entry.text)) {
    if (subfield.code == kIdentifierCode) id = SignedLeadingNumber(subfield.text);
  }
  return id;
}

bool IsNamedBy(const FieldEntry& entry, const FieldAnswer& field) {
  return entry.row >= 0 && entry.Tag() == field.tag && IdentifierOf(entry) == field.id;
}

void AppendIdentifiers(std::string_view text, std::string& body) {
  for (const Subfield& subfield : SplitSubfields(text)) {
    if (subfield.code == kIdentifierCode) {
      (body += kDelimiter).append(subfield.code).append(subfield.text);
    }
  }
}

bool HoldsTerminator(std::string_view text) {
  return text.find(kEndOfField) != text.npos || text.find(kEndOfRecord) != text.npos;
}

// Only a field that is loaded has a place in the order.
bool IsOrdered(const FieldEntry& entry) {
  return entry.row >= 0 && std::all_of(entry.whole.begin(), entry.whole.begin() + 3, IsAsciiDigit);
}

std::size_t EndOf(const FieldEntry& entry) {
  return entry.start + entry.length;
}

void AppendDigits(std::size_t number, std::size_t width, std::string& out) {
  out.resize(out.size() + width);
  WriteDigits(number, width, out.data() + out.size() - width);
}

void AppendNewEntry(std::string_view tag, std::size_t length, std::size_t start, std::string& out) {
  out += tag;
  AppendDigits(length, 4, out);
  AppendDigits(start, 5, out);
}

}  // namespace

bool CompleteLeader(std::size_t base, std::string& image, std::string& fault) {
  if (image.size() > kLongestRecord) {
    fault = "The record would be longer than " + std::to_string(kLongestRecord) + " octets";
    return false;
  }
  WriteDigits(image.size(), 5, image.data());
  WriteDigits(base, 5, image.data() + 12);
  return true;
}

bool RecordEditor::Apply(std::string_view image, const std::vector<FieldAnswer>& fields,
                         std::string& edited, std::string& fault) {
  layout_.Read(image, record_.RemoveDuplicative035Fields());
  utf8_ = image[kCharacterSetPosition] == 'a';
  sets_.Clear();
  edit_count_ = 0;
  for (const FieldAnswer& field : fields) {
    if (!Prepare(field, fault)) return false;
  }
  if (!AnnounceScripts(fault)) return false;
  PlaceNewFields();
  PlaceBodies();

  edited.assign(image.substr(0, kLeaderLength));
  AppendDirectory(edited);
  edited += kEndOfField;
  const std::size_t base = edited.size();
  AppendData(edited);
  edited += kEndOfRecord;
  return CompleteLeader(base, edited, fault);
}

std::vector<RecordEditor::Change> RecordEditor::Changes() const {
  std::vector<Change> changes;
  const auto add = [&](const Edit& edit, std::string_view before) {
    const std::string_view body = edit.body;
    changes.push_back({edit.tag, before, body.substr(0, body.size() - 1)});
  };
  auto next_new = new_fields_.begin();
  for (std::size_t i = 0; i <= replacements_.size(); ++i) {
    for (; next_new != new_fields_.end() && (*next_new)->entry == i; ++next_new) {
      add(**next_new, {});
    }
    if (i < replacements_.size() && replacements_[i] != nullptr) {
      add(*replacements_[i], layout_.Entries()[i].text);
    }
  }
  return changes;
}

// --- From answers to edits ---------------------------------------------------

bool RecordEditor::Prepare(const FieldAnswer& field, std::string& fault) {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  std::size_t replaced = entries.size();
  if (field.IsReplacement()) {
    replaced = FindReplaced(field);
    if (replaced == entries.size()) {
      fault = "Field " + field.tag + " to replace (" + std::to_string(field.id) + ") is not there";
      return false;
    }
  }
  Edit& edit = EditFor(field, replaced);
  if (!MakeBody(field, edit.body, fault)) return false;
  if (!edit.is_new) AppendIdentifiers(entries[replaced].text, edit.body);
  edit.body += kEndOfField;
  if (edit.body.size() <= kLongestField) return true;
  fault =
      "Field " + field.tag + " would be longer than " + std::to_string(kLongestField) + " octets";
  return false;
}

// A fresh edit, or the one that replaces the same field already.
RecordEditor::Edit& RecordEditor::EditFor(const FieldAnswer& field, std::size_t replaced) {
  const bool is_new = !field.IsReplacement();
  for (std::size_t i = 0; i < edit_count_ && !is_new; ++i) {
    if (!edits_[i].is_new && edits_[i].entry == replaced) return edits_[i];
  }
  if (edit_count_ == edits_.size()) edits_.emplace_back();
  Edit& edit = edits_[edit_count_++];
  edit.tag = field.tag;
  edit.is_new = is_new;
  edit.entry = replaced;
  if (is_new) edit.order_key = record_.FldOrderKey(field.tag, field.indicators, field.text);
  return edit;
}

bool RecordEditor::MakeBody(const FieldAnswer& field, std::string& body, std::string& fault) {
  if (HoldsTerminator(field.text)) {
    fault = "Field " + field.tag + " would hold the end of a field or record";
    return false;
  }
  body = field.indicators;
  AppendText(field.text, body);
  return true;
}

void RecordEditor::AppendText(std::string_view text, std::string& body) {
  if (utf8_ || IsSameInUtf8(text)) {
    body += text;
    return;
  }
  // MARC-8 has no letters with marks, only letters and marks.
  bool decomposed = false;
  const std::string letters = record_.DecomposeUnicodeCharactersInString(text, decomposed);
  constexpr bool kIs880 = false;
  Marc8Writer writer(kMarc8, kIs880, marks_, body);
  writer.Write(letters);
  sets_.Add(writer.Used());
}

// --- Scripts of MARC-8 -----------------------------------------------------------

// A record with scripts of other letters than Latin names them in its 066.
bool RecordEditor::AnnounceScripts(std::string& fault) {
  const std::string scripts = sets_.FieldText();
  if (scripts.empty()) return true;
  const std::vector<FieldEntry>& entries = layout_.Entries();
  const auto found = std::find_if(entries.begin(), entries.end(), [](const FieldEntry& entry) {
    return entry.row >= 0 && entry.Tag() == kScriptsTag;
  });
  FieldAnswer field;
  field.tag = kScriptsTag;
  field.indicators.assign(2, ' ');
  field.text = scripts;
  if (found == entries.end()) return Prepare(field, fault);
  const std::string_view announced = From(found->text, 2);
  field.id = IdentifierOf(*found);
  field.text = WithScripts(announced);
  return field.text == announced || Prepare(field, fault);
}

std::string RecordEditor::WithScripts(std::string_view announced) const {
  std::string text(announced);
  const std::string scripts = sets_.FieldText();
  for (const Subfield& script : SplitSubfields(scripts)) {
    const std::vector<Subfield> there = SplitSubfields(announced);
    const bool known = std::any_of(there.begin(), there.end(), [&](const Subfield& subfield) {
      return subfield.code != "a" && subfield.text == script.text;
    });
    if (!known) (text += kDelimiter).append(script.code).append(script.text);
  }
  return text;
}

// --- Which field is replaced ---------------------------------------------------

std::size_t RecordEditor::FindReplaced(const FieldAnswer& field) const {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  const auto named = [&](const FieldEntry& entry) { return IsNamedBy(entry, field); };
  const auto first = std::find_if(entries.begin(), entries.end(), named);
  if (first == entries.end()) return entries.size();
  // A $9 may be the row of another field: then the words decide.
  if (std::find_if(first + 1, entries.end(), named) != entries.end()) return FindAmongNamed(field);
  return static_cast<std::size_t>(first - entries.begin());
}

std::size_t RecordEditor::FindAmongNamed(const FieldAnswer& field) const {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  const std::string wanted = ComparableText(field.text);
  for (std::size_t i = entries.size(); i-- > 0;) {
    if (IsNamedBy(entries[i], field) && ComparableText(entries[i].text) == wanted) return i;
  }
  return entries.size();
}

// The text as the component compares it.
std::string RecordEditor::ComparableText(std::string_view text) const {
  std::string comparable;
  for (const Subfield& subfield : SplitSubfields(text)) {
    if (subfield.code == "0" || subfield.code == "1" || subfield.code == kIdentifierCode) continue;
    comparable += subfield.code == "x" ? "v" : subfield.code;
    record_.AppendNormString(subfield.text, true, comparable);
  }
  return comparable;
}

// --- Where new fields go -------------------------------------------------------

// A greater key never has the lesser place.
void RecordEditor::PlaceNewFields() {
  new_fields_.clear();
  for (std::size_t i = 0; i < edit_count_; ++i) {
    if (edits_[i].is_new) new_fields_.push_back(&edits_[i]);
  }
  if (new_fields_.empty()) return;
  std::stable_sort(new_fields_.begin(), new_fields_.end(),
                   [](const Edit* a, const Edit* b) { return a->order_key < b->order_key; });
  ReadOrderKeys();
  for (Edit* const field : new_fields_) {
    field->entry = BehindLinkedFields(field->order_key, BestPlace(field->order_key));
  }
}

// Many systems keep all 880 fields at the end of a record, so they tell nothing
// of its order.
void RecordEditor::ReadOrderKeys() {
  order_keys_.clear();
  for (const FieldEntry& entry : layout_.Entries()) {
    const bool tells = IsOrdered(entry) && entry.Tag() != "880";
    order_keys_.push_back(tells ? OrderKeyOf(entry) : std::string_view());
  }
}

std::string_view RecordEditor::OrderKeyOf(const FieldEntry& entry) {
  const std::string_view text = entry.text;
  if (entry.Tag().substr(0, 2) == "00") return record_.FldOrderKey(entry.Tag(), {}, text);
  return record_.FldOrderKey(entry.Tag(), text.substr(0, 2), From(text, 2));
}

// How many fields are to stand before one of the key.  Records are seldom in
// order throughout: a local 596 behind the 949 must not draw a 655 to the end.
std::size_t RecordEditor::BestPlace(std::string_view key) const {
  std::size_t best = 0;
  std::int64_t wrong = 0;  // fields on the wrong side, as against the first place
  std::int64_t fewest = 0;
  for (std::size_t i = 0; i < order_keys_.size(); ++i) {
    if (order_keys_[i].empty()) continue;
    wrong += order_keys_[i] > key ? 1 : -1;
    if (wrong >= fewest) continue;
    fewest = wrong;
    best = i + 1;
  }
  return best;
}

// An 880 that follows its partner is not parted from it.
std::size_t RecordEditor::BehindLinkedFields(std::string_view key, std::size_t place) {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  while (place < entries.size() && IsOrdered(entries[place]) && entries[place].Tag() == "880" &&
         OrderKeyOf(entries[place]) <= key) {
    ++place;
  }
  return place;
}

// --- Where octets go -----------------------------------------------------------

void RecordEditor::PlaceBodies() {
  by_offset_.clear();
  PlaceNewBodies();
  PlaceReplacements();
  std::stable_sort(by_offset_.begin(), by_offset_.end(), [](const Edit* a, const Edit* b) {
    return std::tuple(a->offset, a->removed > 0) < std::tuple(b->offset, b->removed > 0);
  });
  ShiftBodies();
}

void RecordEditor::PlaceNewBodies() {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  for (Edit* const edit : new_fields_) {
    edit->removed = 0;
    edit->offset = layout_.Data().size();
    if (layout_.InSequence()) {
      edit->offset = edit->entry == 0 ? 0 : EndOf(entries[edit->entry - 1]);
    }
    by_offset_.push_back(edit);
  }
}

void RecordEditor::PlaceReplacements() {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  replacements_.assign(entries.size(), nullptr);
  for (std::size_t i = 0; i < edit_count_; ++i) {
    Edit& edit = edits_[i];
    if (edit.is_new) continue;
    // The data of a damaged record are left alone, and the new text goes behind
    // them.
    const FieldEntry& entry = entries[edit.entry];
    const bool in_place = layout_.Movable() && !layout_.SharesOctets(edit.entry);
    edit.offset = in_place ? entry.start : layout_.Data().size();
    edit.removed = in_place ? entry.length : 0;
    replacements_[edit.entry] = &edit;
    by_offset_.push_back(&edit);
  }
}

void RecordEditor::ShiftBodies() {
  std::int64_t growth = 0;
  for (Edit* const edit : by_offset_) {
    edit->start = static_cast<std::size_t>(static_cast<std::int64_t>(edit->offset) + growth);
    growth += static_cast<std::int64_t>(edit->body.size());
    growth -= static_cast<std::int64_t>(edit->removed);
    edit->growth = growth;
  }
}

// Where what begins at `start` in the data as they came begins in the new ones.
std::size_t RecordEditor::Moved(std::size_t start) const {
  const auto behind =
      std::partition_point(by_offset_.begin(), by_offset_.end(), [start](const Edit* edit) {
        return edit->offset < start || (edit->offset == start && edit->removed == 0);
      });
  if (behind == by_offset_.begin()) return start;
  const std::int64_t growth = (*(behind - 1))->growth;
  return std::min(static_cast<std::size_t>(static_cast<std::int64_t>(start) + growth), kLastStart);
}

// --- The new image -------------------------------------------------------------

void RecordEditor::AppendDirectory(std::string& edited) const {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  auto next_new = new_fields_.begin();
  for (std::size_t i = 0; i <= entries.size(); ++i) {
    for (; next_new != new_fields_.end() && (*next_new)->entry == i; ++next_new) {
      AppendNewEntry((*next_new)->tag, (*next_new)->body.size(), (*next_new)->start, edited);
    }
    if (i == entries.size()) break;
    if (const Edit* const edit = replacements_[i]) {
      AppendNewEntry(edit->tag, edit->body.size(), edit->start, edited);
    } else {
      AppendEntry(entries[i], edited);
    }
  }
  // A directory that ends within an entry stays so.
  edited += From(layout_.Directory(), entries.size() * kDirectoryEntryLength);
}

void RecordEditor::AppendEntry(const FieldEntry& entry, std::string& edited) const {
  edited += entry.whole;
  char* const digits = edited.data() + edited.size() - kDirectoryEntryLength + 3;
  // Fields behind the data must not become part of one that overran them.
  if (entry.overruns) WriteDigits(entry.length, 4, digits);
  const std::size_t start = Moved(entry.start);
  if (start != entry.start) WriteDigits(start, 5, digits + 4);
}

void RecordEditor::AppendData(std::string& edited) const {
  const std::string_view data = layout_.Data();
  std::size_t copied = 0;
  for (const Edit* const edit : by_offset_) {
    edited += data.substr(copied, edit->offset - copied);
    edited += edit->body;
    copied = edit->offset + edit->removed;
  }
  edited += From(data, copied);
}

}  // namespace cantorel::cli
