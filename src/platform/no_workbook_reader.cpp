// Stands in for the reader of workbooks where its libraries are missing.

#include "platform/file_layer.h"
#include "platform/workbook.h"

namespace cantorel {

std::unique_ptr<Workbook> OpenWorkbook(std::string_view path, WorkbookError& error) {
  error = FileExists(path) ? WorkbookError::kNoReader : WorkbookError::kMissing;
  return nullptr;
}

}  // namespace cantorel
