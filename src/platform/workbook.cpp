#include "platform/workbook.h"

namespace cantorel {

std::string_view Describe(WorkbookError error) {
  switch (error) {
    case WorkbookError::kNone:
      break;
    case WorkbookError::kMissing:
      return "is not there";
    case WorkbookError::kDamaged:
      return "is damaged, or is no .xlsx workbook";
    case WorkbookError::kProtected:
      return "is protected by a password, or is of an older form than .xlsx";
    case WorkbookError::kTooLarge:
      return "is too large for a table";
    case WorkbookError::kNoReader:
      return "cannot be read: this program was built without libzip and expat";
  }
  return "is well";
}

}  // namespace cantorel
