// The sheets of the derivation workbook, read row by row.

#ifndef CANTOREL_GENRE_DERIVATION_SHEETS_H_
#define CANTOREL_GENRE_DERIVATION_SHEETS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "genre/derivation_table_build.h"
#include "medium/string_map.h"
#include "platform/workbook.h"

namespace cantorel {

class Utf8MarcRecordClass;

// A key of the table to its fields, each as it stands behind "=".
using FieldsByKey = StringMap<std::vector<std::string>>;

class DerivationSheets {
 public:
  DerivationSheets(const Utf8MarcRecordClass& record, DerivationBuild& build)
      : record_(record), build_(build) {}

  WorkbookError Read(Workbook& workbook);

  // Sections whose lines have no number, in the order of the workbook.
  const std::string& PlainSections() const { return plain_sections_; }
  const FieldsByKey& List2() const { return list_2_; }
  const FieldsByKey& List3() const { return list_3_; }
  const FieldsByKey& List5() const { return list_5_; }
  const FieldsByKey& List6() const { return list_6_; }

 private:
  struct SheetForm {
    std::string_view sheet;
    std::string_view section;
    char key_column;
    LeftOut (DerivationSheets::*take)(const WorkbookRow& row);
  };
  static const SheetForm kSheetForms[];

  static const SheetForm* FormOf(std::string_view sheet);
  WorkbookError ReadSheet(Workbook& workbook, std::size_t sheet, const SheetForm& form);

  LeftOut TakeHeadingWithSubdivision(const WorkbookRow& row);
  LeftOut TakeHeading(const WorkbookRow& row);
  LeftOut TakeTwoSubdivisions(const WorkbookRow& row);
  LeftOut TakeSubdivision(const WorkbookRow& row);
  LeftOut TakeStyle(const WorkbookRow& row);
  LeftOut TakeLanguage(const WorkbookRow& row);
  LeftOut TakeMedium(const WorkbookRow& row);

  std::string KeyOf(std::string_view text) const;
  std::string PairKey(std::string_view text, std::size_t marker) const;
  LeftOut TakeFields(std::string_view key, const WorkbookRow& row, FieldsByKey& list);
  LeftOut AddFields(std::vector<std::string>& fields, std::string_view context,
                    std::string_view tag_and_indicators, std::string_view cell);
  LeftOut AddPlainLine(std::string_view key, std::string_view value);

  const Utf8MarcRecordClass& record_;
  DerivationBuild& build_;
  std::string plain_sections_;
  FieldsByKey list_2_;
  FieldsByKey list_3_;
  FieldsByKey list_5_;
  FieldsByKey list_6_;
  std::size_t held_ = 0;  // octets in the lists, so that they have an end

  // Of the sheet under way.
  std::string_view section_;
  std::unordered_set<std::string> plain_keys_;
};

}  // namespace cantorel

#endif  // CANTOREL_GENRE_DERIVATION_SHEETS_H_
