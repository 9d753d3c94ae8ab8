#include "genre/derivation_sheets.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "genre/derivation_text.h"
#include "platform/event_pump.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::string_view k655 = "655#7";
constexpr std::string_view k385 = "385##";
constexpr std::string_view k386 = "386##";

// A sheet ends where more blank rows than these follow each other.
constexpr std::int32_t kMostBlankRows = 3;
// A table beyond this many octets was not made by people: one long text can be
// the cell of every row.
constexpr std::size_t kMostHeld = 64 << 20;
// What a field takes beside its octets.
constexpr std::size_t kFieldOverhead = sizeof(std::string);

// A line of the table must stay one line, whatever a cell holds.
std::string WithoutControls(std::string text) {
  for (char& c : text) {
    if (Octet(c) < 0x20) c = ' ';
  }
  return text;
}

std::string CellText(const WorkbookRow& row, char column) {
  return CleanCellText(WithoutControls(std::string(row.Cell(column))));
}

// What a cell holds behind "$a".
std::string_view BehindTwoCharacters(std::string_view text) {
  for (int i = 0; i < 2; ++i) text.remove_prefix(Utf8CharAt(text, 0).size());
  return text;
}

std::string WithUnderscores(std::string text) {
  std::replace(text.begin(), text.end(), ' ', '_');
  return text;
}

// Takes the text ahead of a mark off `text`, and the mark.
std::string_view TakeUpTo(std::string_view mark, std::string_view& text) {
  const std::string_view head = text.substr(0, text.find(mark));
  text = From(text, head.size() + mark.size());
  return head;
}

// The first row may name the columns: in a way that makes no key of it.
bool IsHeader(const WorkbookRow& row, LeftOut why) {
  return row.number == 1 && (why == LeftOut::kNoKey || why == LeftOut::kNoSubdivision);
}

bool IsBlank(const WorkbookRow& row) {
  return std::all_of(row.cells.begin(), row.cells.end(),
                     [](const std::string& cell) { return CleanCellText(cell).empty(); });
}

}  // namespace

const DerivationSheets::SheetForm DerivationSheets::kSheetForms[] = {
    {"List 2", "List2", 'B', &DerivationSheets::TakeHeadingWithSubdivision},
    {"List 3", "List3", 'A', &DerivationSheets::TakeHeading},
    {"List 5", "List5", 'A', &DerivationSheets::TakeTwoSubdivisions},
    {"List 6", "List6", 'B', &DerivationSheets::TakeSubdivision},
    {"List 9", "MusicalStyle", 'A', &DerivationSheets::TakeStyle},
    {"List 10", "LanguagesByName", 'A', &DerivationSheets::TakeLanguage},
    {"List 12", "List12", 'A', &DerivationSheets::TakeMedium},
};

const DerivationSheets::SheetForm* DerivationSheets::FormOf(std::string_view sheet) {
  for (const SheetForm& form : kSheetForms) {
    if (form.sheet == sheet) return &form;
  }
  return nullptr;
}

WorkbookError DerivationSheets::Read(Workbook& workbook) {
  const std::vector<std::string>& names = workbook.SheetNames();
  for (std::size_t sheet = 0; sheet < names.size(); ++sheet) {
    const SheetForm* const form = FormOf(names[sheet]);
    if (form == nullptr) continue;
    const WorkbookError error = ReadSheet(workbook, sheet, *form);
    if (error != WorkbookError::kNone) return error;
    if (held_ > kMostHeld) return WorkbookError::kTooLarge;
  }
  for (const SheetForm& form : kSheetForms) {
    if (std::find(names.begin(), names.end(), form.sheet) != names.end()) continue;
    build_.missing_sheets.push_back(form.sheet);
  }
  return WorkbookError::kNone;
}

WorkbookError DerivationSheets::ReadSheet(Workbook& workbook, std::size_t sheet,
                                          const SheetForm& form) {
  build_.sheets.push_back({form.sheet, form.section});
  section_ = form.section;
  plain_keys_.clear();
  std::int32_t last_row = 0;  // of those with a key
  const auto leave_out = [&](const WorkbookRow& row, LeftOut why) {
    if (IsHeader(row, why)) return;
    build_.left_out.push_back({form.sheet, row.number, why});
  };
  return workbook.ReadSheet(sheet, [&](const WorkbookRow& row) {
    YieldToHost();
    if (CellText(row, form.key_column).empty()) {
      if (!IsBlank(row)) leave_out(row, LeftOut::kNoKey);
      return true;
    }
    if (row.number - last_row - 1 > kMostBlankRows) {
      leave_out(row, LeftOut::kBehindBlankRows);
      return false;
    }
    last_row = row.number;
    const LeftOut why = (this->*form.take)(row);
    if (why != LeftOut::kNot) leave_out(row, why);
    return held_ <= kMostHeld;
  });
}

// --- The sheets -----------------------------------------------------------------

LeftOut DerivationSheets::TakeHeadingWithSubdivision(const WorkbookRow& row) {
  if (CellText(row, 'A').empty()) return LeftOut::kNoHeading;
  const std::string pair = CellText(row, 'B');
  std::size_t marker = pair.find("$v");
  if (marker == std::string::npos) marker = pair.find("$x");
  if (marker == std::string::npos) return LeftOut::kNoSubdivision;
  const std::string key = PairKey(pair, marker);
  if (list_2_.Exists(key)) return LeftOut::kRepeatedKey;
  list_2_.Add(key, {});
  ++build_.sheets.back().keys;
  return AddFields(*list_2_.Find(key), "", k655, CellText(row, 'C'));
}

LeftOut DerivationSheets::TakeHeading(const WorkbookRow& row) {
  return TakeFields(KeyOf(CellText(row, 'A')), row, list_3_);
}

LeftOut DerivationSheets::TakeTwoSubdivisions(const WorkbookRow& row) {
  const std::string pair = CellText(row, 'A');
  const std::size_t marker = pair.find("$v");
  if (marker == std::string::npos) return LeftOut::kNoSubdivision;
  return TakeFields(PairKey(pair, marker), row, list_5_);
}

// Of all lists the only one in which a key may come again.
LeftOut DerivationSheets::TakeSubdivision(const WorkbookRow& row) {
  const std::string cells[] = {CellText(row, 'C'), CellText(row, 'D'), CellText(row, 'E')};
  if (cells[0].empty() && cells[1].empty() && cells[2].empty()) return LeftOut::kNoCells;
  const std::string key = KeyOf(CellText(row, 'B'));
  if (list_6_.Add(key, {})) ++build_.sheets.back().keys;
  std::vector<std::string>& fields = *list_6_.Find(key);
  const std::size_t before = fields.size();
  const std::string context = TranslateIntoEscapes(CellText(row, 'A')) + "//";
  AddFields(fields, context, k655, cells[0]);
  AddFields(fields, context, k385, cells[1]);
  AddFields(fields, context, k386, cells[2]);
  return fields.size() == before ? LeftOut::kNoTerm : LeftOut::kNot;
}

LeftOut DerivationSheets::TakeStyle(const WorkbookRow& row) {
  return AddPlainLine(CellText(row, 'A'), BehindTwoCharacters(CellText(row, 'B')));
}

LeftOut DerivationSheets::TakeLanguage(const WorkbookRow& row) {
  return AddPlainLine(CellText(row, 'A'), CellText(row, 'B'));
}

LeftOut DerivationSheets::TakeMedium(const WorkbookRow& row) {
  std::string field(BehindTwoCharacters(CellText(row, 'B')));
  std::replace(field.begin(), field.end(), '$', kDelimiter);
  return AddPlainLine(KeyOf(CellText(row, 'A')), field);
}

// --- Keys and fields ------------------------------------------------------------

// Headings are compared taken apart, as records hold them: a precomposed letter
// would be lost from the key.
std::string DerivationSheets::KeyOf(std::string_view text) const {
  bool changed = false;
  const std::string apart = record_.DecomposeUnicodeCharactersInString(text, changed);
  return WithUnderscores(record_.NormString(apart, true, "V"));
}

// The letter between is "v", whichever subdivision it is.
std::string DerivationSheets::PairKey(std::string_view text, std::size_t marker) const {
  return KeyOf(text.substr(0, marker)) + "v" + KeyOf(text.substr(marker + 2));
}

// The fields of a row of List 3 or List 5.
LeftOut DerivationSheets::TakeFields(std::string_view key, const WorkbookRow& row,
                                     FieldsByKey& list) {
  if (!list.Add(key, {})) return LeftOut::kRepeatedKey;
  ++build_.sheets.back().keys;
  std::vector<std::string>& fields = *list.Find(key);
  bool changed = false;
  const std::string genres = record_.XmlUnconditionText(CellText(row, 'B'), true);
  AddFields(fields, "", k655, WithoutControls(genres));
  AddFields(fields, "", k385,
            record_.DecomposeUnicodeCharactersInString(CellText(row, 'C'), changed));
  AddFields(fields, "", k386,
            record_.DecomposeUnicodeCharactersInString(CellText(row, 'D'), changed));
  return fields.empty() ? LeftOut::kNoTerm : LeftOut::kNot;
}

// Adds the fields of a cell, as the table writes them.
LeftOut DerivationSheets::AddFields(std::vector<std::string>& fields, std::string_view context,
                                    std::string_view tag_and_indicators, std::string_view cell) {
  const std::size_t before = fields.size();
  std::string_view rest = BehindTwoCharacters(cell);
  while (!rest.empty()) {
    std::string_view source = TakeUpTo("$a", rest);
    const std::string_view term = Trim(TakeUpTo("$2", source));
    if (term.empty()) continue;
    std::string field(context);
    field.append(tag_and_indicators).push_back('\t');
    field.append(TranslateIntoEscapes(TranslateEscapes(term))).push_back('\t');
    field.append(TranslateIntoEscapes(Trim(source)));
    held_ += field.size() + kFieldOverhead;
    fields.push_back(std::move(field));
    ++build_.sheets.back().fields;
  }
  return fields.size() == before ? LeftOut::kNoTerm : LeftOut::kNot;
}

// Adds a line to the section of the sheet, which its first one opens.  A key that
// comes again is written again, and never found.
LeftOut DerivationSheets::AddPlainLine(std::string_view key, std::string_view value) {
  const std::size_t before = plain_sections_.size();
  const bool is_new = plain_keys_.insert(std::string(key)).second;
  SheetCount& count = build_.sheets.back();
  if (count.fields == 0) {
    plain_sections_.append("\n[").append(section_).append("]\n");
  }
  plain_sections_.append(WithUnderscores(std::string(key))).push_back('=');
  plain_sections_.append(TranslateIntoEscapes(value)).push_back('\n');
  held_ += 2 * (plain_sections_.size() - before);  // the keys are held as well
  ++count.fields;
  if (!is_new) return LeftOut::kRepeatedKey;
  ++count.keys;
  return LeftOut::kNot;
}

}  // namespace cantorel
