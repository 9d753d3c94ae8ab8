#include "cli/result_writer.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>

#include "cli/output.h"
#include "display/marcxml_writer.h"

namespace cantorel::cli {

bool ResultWriter::Open() {
  const std::string& report = options_.report;
  if (!report.empty() &&
      (!MayWrite(report, options_.files, options_.force) || !report_file_.Open(report))) {
    return false;
  }
  if (!WritesRecords()) return true;
  return output_.Open({options_.output, options_.rejects, options_.files, options_.force});
}

bool ResultWriter::Write(const ConversionItem& item, const ConversionResult& result) {
  if (!item.read_error.empty()) {
    SayThatInputFailed(item);
    if (!options_.report.empty()) report_.AddUnread(item, item.read_error);
    return true;
  }
  Count(item, result);
  SayRepairs(item, result);
  if (!result.fault.empty()) SayFault(item, result);
  if (WritesRecords() && !(BeginRecords(item) && WriteRecord(item, result))) return false;
  return result.text.empty() || WriteOutput(result.text);
}

void ResultWriter::Count(const ConversionItem& item, const ConversionResult& result) {
  RunTotals& totals = report_.totals;
  ++totals.records;
  if (result.fault.empty() && result.changed) {
    ++totals.changed;
    for (const FieldAnswer& field : result.answer.fields) {
      ++(field.IsReplacement() ? totals.fields_replaced : totals.fields_added);
    }
  }
  if (options_.report.empty()) return;
  if (!result.fault.empty()) return report_.AddUnread(item, result.fault);
  report_.Add(result.answer);
}

// The first record tells the form in which all are written.
bool ResultWriter::BeginRecords(const ConversionItem& item) {
  if (begun_) return true;
  begun_ = true;
  writes_marcxml_ = options_.WritesMarcXml(item.begins_with_marcxml);
  if (!writes_marcxml_) return true;
  std::string start;
  MarcXmlWriter(start).BeginCollection();
  return output_.Write(start);
}

bool ResultWriter::EndRecords() {
  if (!begun_ && options_.form == RecordForm::kMarcXml && !BeginRecords({})) return false;
  if (!writes_marcxml_) return true;
  std::string end;
  MarcXmlWriter(end).EndCollection();
  return output_.Write(end);
}

bool ResultWriter::WriteRecord(const ConversionItem& item, const ConversionResult& result) {
  if (!result.fault.empty()) {
    ++report_.totals.rejected;
    return output_.Reject(item.AsItCame());
  }
  if (options_.only_changed && !result.changed) return true;
  ++report_.totals.written;
  return output_.Write(result.record.empty() ? item.octets : result.record);
}

bool ResultWriter::Finish(bool interrupted) {
  if (interrupted) {
    std::fprintf(stderr, "cantorel: interrupted behind record %" PRIu64 "\n",
                 report_.totals.records);
    status_ = kInterrupted;
  }
  if (WritesRecords()) {
    if (!EndRecords() || !(interrupted ? output_.FinishPartial() : output_.Finish())) return false;
    if (!options_.quiet) SayTotals();
  }
  return FinishOutput() && WriteReport(interrupted);
}

bool ResultWriter::WriteReport(bool interrupted) {
  if (options_.report.empty()) return true;
  report_.totals.interrupted = interrupted;
  std::string text;
  AppendReport(options_.report, report_, text);
  return report_file_.Write(text) && report_file_.Finish();
}

void ResultWriter::SayThatInputFailed(const ConversionItem& item) {
  std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
               item.read_error.c_str());
  status_ = kInputOutputFailed;
}

void ResultWriter::SayRepairs(const ConversionItem& item, const ConversionResult& result) {
  for (const std::string& repair : result.repairs) {
    std::fprintf(stderr, "cantorel: %s: record %" PRIu64 ": %s\n", std::string(item.source).c_str(),
                 item.number, repair.c_str());
  }
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
  const RunTotals& totals = report_.totals;
  std::fprintf(stderr,
               "cantorel: %" PRIu64 " records read, %" PRIu64 " changed (%" PRIu64
               " fields added, %" PRIu64 " replaced), %" PRIu64 " written to %s",
               totals.records, totals.changed, totals.fields_added, totals.fields_replaced,
               totals.written, output_.Name().c_str());
  if (totals.rejected > 0) {
    std::fprintf(stderr, ", %" PRIu64 " put aside in %s", totals.rejected,
                 output_.RejectsName().c_str());
  }
  std::fputc('\n', stderr);
}

}  // namespace cantorel::cli
