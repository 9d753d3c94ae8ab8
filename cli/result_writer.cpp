#include "cli/result_writer.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>

#include "cli/output.h"

namespace cantorel::cli {

bool ResultWriter::Open() {
  if (!WritesRecords()) return true;
  return output_.Open({options_.output, options_.rejects, options_.files, options_.force});
}

bool ResultWriter::Write(const ConversionItem& item, const ConversionResult& result) {
  if (!item.read_error.empty()) {
    SayThatInputFailed(item);
    return true;
  }
  Count(result);
  if (!result.fault.empty()) SayFault(item, result);
  if (WritesRecords() && !WriteRecord(item, result)) return false;
  return result.text.empty() || WriteOutput(result.text);
}

void ResultWriter::Count(const ConversionResult& result) {
  ++totals_.records;
  if (!result.fault.empty() || !result.changed) return;
  ++totals_.changed;
  for (const FieldAnswer& field : result.answer.fields) {
    ++(field.IsReplacement() ? totals_.fields_replaced : totals_.fields_added);
  }
}

bool ResultWriter::WriteRecord(const ConversionItem& item, const ConversionResult& result) {
  if (!result.fault.empty()) {
    ++totals_.rejected;
    return output_.Reject(item.octets);
  }
  if (options_.only_changed && !result.changed) return true;
  ++totals_.written;
  return output_.Write(result.record.empty() ? item.octets : result.record);
}

bool ResultWriter::Finish() {
  if (WritesRecords()) {
    if (!output_.Finish()) return false;
    SayTotals();
  }
  return FinishOutput();
}

void ResultWriter::SayThatInputFailed(const ConversionItem& item) {
  std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
               item.read_error.c_str());
  status_ = kInputOutputFailed;
}

void ResultWriter::SayFault(const ConversionItem& item, const ConversionResult& result) {
  const std::string& control_number = result.answer.control_number;
  std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 "%s%s: %s\n",
               std::string(item.source).c_str(), item.number, item.offset,
               control_number.empty() ? "" : ", control number ", control_number.c_str(),
               result.fault.c_str());
  status_ = std::max(status_, kUnreadableRecords);
}

void ResultWriter::SayTotals() const {
  std::fprintf(stderr,
               "cantorel: %" PRIu64 " records read, %" PRIu64 " changed (%" PRIu64
               " fields added, %" PRIu64 " replaced), %" PRIu64 " written to %s",
               totals_.records, totals_.changed, totals_.fields_added, totals_.fields_replaced,
               totals_.written, output_.Name().c_str());
  if (totals_.rejected > 0) {
    std::fprintf(stderr, ", %" PRIu64 " put aside in %s", totals_.rejected,
                 output_.RejectsName().c_str());
  }
  std::fputc('\n', stderr);
}

}  // namespace cantorel::cli
