// Spreadsheet workbooks: the text of their cells, sheet by sheet.
//
//   WorkbookError error;
//   const auto workbook = OpenWorkbook("table.xlsx", error);
//   for (std::size_t sheet = 0; sheet < workbook->SheetNames().size(); ++sheet) {
//     error = workbook->ReadSheet(sheet, [](const WorkbookRow& row) {
//       Use(row.Cell('A'), row.Cell('B'));
//       return true;
//     });
//   }
//
// Whatever octets a file holds, reading it ends with rows or with an error, in
// memory that does not grow with what the file claims to hold.

#ifndef CANTOREL_PLATFORM_WORKBOOK_H_
#define CANTOREL_PLATFORM_WORKBOOK_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel {

enum class WorkbookError {
  kNone,
  kMissing,    // there is no such file
  kDamaged,    // no workbook, or one with a fault in it
  kProtected,  // protected by a password, or of an older form than .xlsx
  kTooLarge,   // more than a table can be, once unpacked
  kNoReader,   // this program was built without a reader of workbooks
};

// What is the matter, to stand behind the name of a file: "is damaged ...".
std::string_view Describe(WorkbookError error);

struct WorkbookRow {
  // Cells further to the right are not read.
  static constexpr std::size_t kColumns = 8;

  std::int32_t number = 0;                  // from 1, as spreadsheets count
  std::array<std::string, kColumns> cells;  // UTF-8; empty where there is none

  // The cell of column 'A' to 'H'; empty for any other.
  std::string_view Cell(char column) const {
    return column >= 'A' && column < static_cast<char>('A' + kColumns)
               ? cells[static_cast<std::size_t>(column - 'A')]
               : std::string_view();
  }
};

class Workbook {
 public:
  virtual ~Workbook() = default;

  // In the order of the workbook; UTF-8.
  virtual const std::vector<std::string>& SheetNames() const = 0;

  // Hands the rows of a sheet (its place in SheetNames) to `take` in rising
  // order, until it answers false.  Rows without any cell may be missing.  A
  // fault in the file shows only when it is reached: some rows have been handed
  // out by then.
  //
  // A cell is its text: of a formula the value it had when the file was saved, of
  // a number its shortest decimal form, "TRUE" or "FALSE", or "#N/A" and the
  // like.  Of marked-up text the marks are left out, and so are reading aids
  // (phonetic runs).
  virtual WorkbookError ReadSheet(std::size_t sheet,
                                  const std::function<bool(const WorkbookRow&)>& take) = 0;
};

// Opens a workbook (Office Open XML, ".xlsx").  '\' counts as separator.  Null
// with an error when it cannot be read.
std::unique_ptr<Workbook> OpenWorkbook(std::string_view path, WorkbookError& error);

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_WORKBOOK_H_
