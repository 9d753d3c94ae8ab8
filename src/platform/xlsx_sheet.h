// The rows of one sheet of an .xlsx workbook.

#ifndef CANTOREL_PLATFORM_XLSX_SHEET_H_
#define CANTOREL_PLATFORM_XLSX_SHEET_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/workbook.h"
#include "platform/xlsx_strings.h"
#include "platform/xml_events.h"

namespace cantorel {

class SheetRows : public XmlHandler {
 public:
  SheetRows(const SharedStrings& strings, const std::function<bool(const WorkbookRow&)>& take)
      : strings_(strings), take_(take) {}

  void Start(std::string_view name, const XmlAttributes& attributes) override;
  void End(std::string_view name) override;
  void Text(std::string_view text) override;

 private:
  // How the value of a cell is written.
  enum class Kind { kNumber, kShared, kBoolean, kInline, kText };

  static Kind KindOf(std::string_view type);
  void StartRow(std::string_view number);
  void StartCell(std::string_view reference, std::string_view type);
  void EndCell();
  bool AppendValue(std::string& cell) const;

  const SharedStrings& strings_;
  const std::function<bool(const WorkbookRow&)>& take_;
  WorkbookRow row_;
  std::size_t column_ = 0;  // from 1, of the cell under way or the last one
  Kind kind_ = Kind::kNumber;
  bool in_value_ = false;
  std::string value_;
  RichText inline_;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_XLSX_SHEET_H_
