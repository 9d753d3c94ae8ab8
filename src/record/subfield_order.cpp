// Where subfields belong in a field.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>

#include "platform/file_layer.h"
#include "record/default_subfield_orders.h"
#include "record/order_file.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

std::span<const DefaultSubfieldOrder> DefaultOrders(FormatFamily family) {
  if (family == FormatFamily::kAuthority) return kAuthoritySubfieldOrders;
  if (family == FormatFamily::kBibliographic) return kBibliographicSubfieldOrders;
  return kOtherSubfieldOrders;
}

// Where debugging texts go when no folder was named.
std::string DocumentsFolder() {
  const char* const home = std::getenv("USERPROFILE");
  return std::string(home == nullptr ? "" : home) + "\\My Documents\\";
}

}  // namespace

// --- Tables ------------------------------------------------------------------

void Utf8MarcRecordClass::SetSfdOrder(std::string_view format_code, std::string_view tag,
                                      std::string_view pattern) {
  if (table_.Count() == 0) SubfieldOrders(FamilyOf(format_code)).Set(tag, pattern);
}

void Utf8MarcRecordClass::ClearSfdOrder(std::string_view format_code) {
  SubfieldOrders(FamilyOf(format_code)).Clear();
  field_orders_.MarkStale();
}

std::int16_t Utf8MarcRecordClass::SfdMax() const {
  return SubfieldOrders(FormatFamily::kBibliographic).Count();
}

// Before a record of the present format is loaded.
void Utf8MarcRecordClass::PrepareSubfieldOrder() {
  const FormatFamily family = FamilyOf(format_code_);
  SubfieldOrderTable& table = SubfieldOrders(family);
  if (!table.Empty()) return;
  for (const auto& [tag, pattern] : DefaultOrders(family)) table.Set(tag, pattern);
}

void Utf8MarcRecordClass::ReadSubfieldOrder(const std::string& file, FormatFamily family) {
  const std::string section = ReadSubfieldSection(file);
  if (debug_on_) WriteDebugText(file, section);
  SubfieldOrderTable& table = SubfieldOrders(family);
  table.Clear();
  SetSubfieldOrders(section, table);
}

// Tells in a new file what was read.
void Utf8MarcRecordClass::WriteDebugText(const std::string& file, std::string_view section) const {
  std::string text = "****************************\r\nRead section ";
  text.append(kSubfieldOrderSection).append(" from ").append(file).append("\r\nReceived:\r\n");
  for (const char c : section) {
    if (c == '\0') {
      text += "\r\n";
    } else {
      text += c;
    }
  }
  const std::string folder = debug_file_path_.empty() ? DocumentsFolder() : debug_file_path_;
  for (int serial = 1; serial <= 999; ++serial) {
    std::array<char, 8> number;
    std::snprintf(number.data(), number.size(), "%03d", serial);
    const std::string name =
        folder + "MarcRecordDebug.SetSfdOrderFromFile." + number.data() + ".txt";
    if (FileExists(name)) continue;
    WriteWholeFile(name, text);
    return;
  }
}

// --- Comparison --------------------------------------------------------------

const SubfieldOrder& Utf8MarcRecordClass::SubfieldOrderRowFor(const FieldRecord& field) const {
  return SubfieldOrders(FamilyOf(format_code_)).Find(field.Tag());
}

// Whether a $t stands before a row of the current field, deleted or not.  Asked
// only of codes that have a place in a name and in a title.
bool Utf8MarcRecordClass::StandsAfterTitle(std::int16_t row) const {
  const FieldRecord& field = CurrentField();
  if (!SubfieldOrderRowFor(field).IsRepeated(table_.Subfield(field, row).code)) return false;
  do {
    row = table_.Subfield(field, row).prev;
  } while (row != kNoRow && table_.Subfield(field, row).code != 't');
  return row != kNoRow;
}

// What the order wants of a subfield of the current field.  Its neighbours are
// those in the chain, deleted or not.
SubfieldMove Utf8MarcRecordClass::CompareSubfieldOrder(std::int16_t row, bool after_title) const {
  if (ignore_subfield_order_) return SubfieldMove::kNone;
  const FieldRecord& field = CurrentField();
  const SubfieldOrder& order = SubfieldOrderRowFor(field);
  const SubfieldRecord& own = table_.Subfield(field, row);
  const auto code_of = [&](std::int16_t other) {
    return other == kNoRow ? '\0' : table_.Subfield(field, other).code;
  };
  return order.Compare(own.code, code_of(own.prev), code_of(own.next), after_title);
}

}  // namespace cantorel
