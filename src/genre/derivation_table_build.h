// Making the derivation table from its workbook.
//
// Cataloguers keep what headings stand for in a workbook; the conversions look it
// up in a text file, "Music6xxTo655.txt", beside it.  Of the workbook these
// sheets count, with a key and its fields a row:
//
//   sheet    section           key                                cells
//   List 2   List2             B: heading $v or $x subdivision    C: 655
//   List 3   List3             A: heading                         B: 655  C: 385  D: 386
//   List 5   List5             A: subdivision $v subdivision      B: 655  C: 385  D: 386
//   List 6   List6             B: subdivision (A: context)        C: 655  D: 385  E: 386
//   List 9   MusicalStyle      A: style word                      B: $a term $2 source
//   List 10  LanguagesByName   A: name of a language              B: codes
//   List 12  List12            A: heading                         B: field 382
//
// A cell holds fields one behind the other: "$aCanons$2lcgft$aFugues$2lcgft".  The
// first row may hold names of the columns, as long as it makes no key: with an
// empty key cell, or none of "$v" and "$x" in it where the key has two parts.

#ifndef CANTOREL_GENRE_DERIVATION_TABLE_BUILD_H_
#define CANTOREL_GENRE_DERIVATION_TABLE_BUILD_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/workbook.h"

namespace cantorel {

class Utf8MarcRecordClass;

inline constexpr std::string_view kDerivationWorkbookName = "Deriving bibliographic 655 etc.xlsx";

// Why a row gave nothing to the table.
enum class LeftOut {
  kNot,  // it gave something
  kNoKey,
  kNoHeading,
  kNoSubdivision,
  kRepeatedKey,
  kNoCells,
  kNoTerm,
  kBehindBlankRows,
};

struct LeftOutRow {
  std::string_view sheet;
  std::int32_t row = 0;  // from 1
  LeftOut why = LeftOut::kNot;
};
// "List 3, row 7 has no key".
std::string Describe(const LeftOutRow& row);

// What a sheet gave.
struct SheetCount {
  std::string_view sheet;
  std::string_view section;
  std::size_t keys = 0;
  std::size_t fields = 0;
};

// How a build went.
struct DerivationBuild {
  bool folder_takes_files = false;
  WorkbookError workbook_error = WorkbookError::kNone;
  bool written = false;            // the table is there
  std::vector<SheetCount> sheets;  // in the order of the workbook
  std::vector<std::string_view> missing_sheets;
  std::vector<LeftOutRow> left_out;
};
// What kept a table from being written; empty when it was.
std::string WhyNotWritten(const DerivationBuild& build);

// The text of the table that a workbook gives.  `record` lends its comparison
// forms and stays as it is.  With an error `text` is empty.
WorkbookError MakeDerivationTable(Workbook& workbook, const Utf8MarcRecordClass& record,
                                  std::string& text, DerivationBuild& build);

// Makes the table of a folder (its path ends in a separator) from the workbook
// there.  The table that stood there is replaced at one blow, or stays when
// anything fails.
void BuildDerivationTable(std::string_view folder, const Utf8MarcRecordClass& record,
                          DerivationBuild& build);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_DERIVATION_TABLE_BUILD_H_
