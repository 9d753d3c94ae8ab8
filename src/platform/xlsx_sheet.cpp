#include "platform/xlsx_sheet.h"

#include <charconv>
#include <cmath>

namespace cantorel {
namespace {

constexpr std::int32_t kMostRows = 1 << 20;
constexpr std::size_t kMostColumns = 1 << 14;

// The column of a reference: 1 for "A7", 28 for "AB7"; 0 when it names none.
std::size_t ColumnOf(std::string_view reference) {
  std::size_t column = 0;
  for (const char c : reference) {
    if (c < 'A' || c > 'Z') break;
    column = column * 26 + static_cast<std::size_t>(c - 'A') + 1;
    if (column > kMostColumns) return 0;
  }
  return column;
}

// Programs write the number of a cell in various ways, 0.1 also as
// 0.10000000000000001: the shortest form that means the same is what people see.
void AppendNumber(std::string_view written, std::string& out) {
  double number = 0;
  const char* const end = written.data() + written.size();
  const auto [stop, error] = std::from_chars(written.data(), end, number);
  if (error != std::errc() || stop != end || !(std::fabs(number) < 1e15)) {
    out += written;
    return;
  }
  char digits[400];
  const auto shortest =
      std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
  out.append(digits, shortest.ptr);
}

}  // namespace

void SheetRows::Start(std::string_view name, const XmlAttributes& attributes) {
  inline_.Start(name);
  if (name == "row") {
    StartRow(attributes.Get("r"));
  } else if (name == "c") {
    StartCell(attributes.Get("r"), attributes.Get("t"));
  } else if (name == "v") {
    in_value_ = true;
  }
}

void SheetRows::End(std::string_view name) {
  inline_.End(name);
  if (name == "v") {
    in_value_ = false;
  } else if (name == "c") {
    EndCell();
  } else if (name == "row") {
    if (!take_(row_)) Stop();
  } else if (name == "sheetData") {
    Stop();  // what follows is layout
  }
}

void SheetRows::Text(std::string_view text) {
  if (in_value_) value_.append(text);
  if (!inline_.Text(text) || value_.size() > kLongestCell) Stop(WorkbookError::kDamaged);
}

// A row without a number is the next one.
void SheetRows::StartRow(std::string_view number) {
  for (std::string& cell : row_.cells) cell.clear();
  column_ = 0;
  std::int32_t wanted = number.empty() ? row_.number + 1 : 0;
  std::from_chars(number.data(), number.data() + number.size(), wanted);
  if (wanted <= row_.number || wanted > kMostRows) return Stop(WorkbookError::kDamaged);
  row_.number = wanted;
}

SheetRows::Kind SheetRows::KindOf(std::string_view type) {
  if (type.empty() || type == "n") return Kind::kNumber;
  if (type == "s") return Kind::kShared;
  if (type == "b") return Kind::kBoolean;
  return type == "inlineStr" ? Kind::kInline : Kind::kText;
}

void SheetRows::StartCell(std::string_view reference, std::string_view type) {
  const std::size_t named = ColumnOf(reference);
  column_ = named != 0 ? named : column_ + 1;
  kind_ = KindOf(type);
  value_.clear();
  inline_.Clear();
}

void SheetRows::EndCell() {
  if (column_ > row_.cells.size()) return;
  std::string& cell = row_.cells[column_ - 1];
  cell.clear();
  if (!AppendValue(cell)) Stop(WorkbookError::kDamaged);
}

// False for a reference to a text that is not there.
bool SheetRows::AppendValue(std::string& cell) const {
  switch (kind_) {
    case Kind::kInline:
      AppendUnescaped(inline_.Raw(), cell);
      return true;
    case Kind::kText:
      AppendUnescaped(value_, cell);
      return true;
    case Kind::kNumber:
      AppendNumber(value_, cell);
      return true;
    case Kind::kBoolean:
      cell = value_ == "1" || value_ == "true" ? "TRUE" : "FALSE";
      return true;
    case Kind::kShared:
      break;
  }
  if (value_.empty()) return true;
  std::string_view text;
  if (!strings_.Find(value_, text)) return false;
  cell = text;
  return true;
}

}  // namespace cantorel
