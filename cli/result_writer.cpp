#include "cli/result_writer.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>

#include "cli/output.h"

namespace cantorel::cli {

bool ResultWriter::Write(const ConversionItem& item, const ConversionResult& result) {
  if (!item.read_error.empty()) {
    SayThatInputFailed(item);
    return true;
  }
  if (!result.fault.empty()) {
    SayUnreadable(item, result);
    return true;
  }
  return WriteOutput(result.answer_text);
}

bool ResultWriter::Finish() {
  return FinishOutput();
}

void ResultWriter::SayThatInputFailed(const ConversionItem& item) {
  std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
               item.read_error.c_str());
  status_ = kInputOutputFailed;
}

void ResultWriter::SayUnreadable(const ConversionItem& item, const ConversionResult& result) {
  std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 ": %s\n",
               std::string(item.source).c_str(), item.number, item.offset, result.fault.c_str());
  status_ = std::max(status_, kUnreadableRecords);
}

}  // namespace cantorel::cli
