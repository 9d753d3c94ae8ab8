// Writes what became of the records, in the order in which they were read.

#ifndef CANTOREL_CLI_RESULT_WRITER_H_
#define CANTOREL_CLI_RESULT_WRITER_H_

#include <cstdint>

#include "cli/conversion_item.h"
#include "cli/convert_options.h"
#include "cli/exit_status.h"
#include "cli/output_file.h"
#include "cli/record_output.h"
#include "cli/report.h"

namespace cantorel::cli {

class ResultWriter {
 public:
  explicit ResultWriter(const ConvertOptions& options) : options_(options) {}

  // All of these answer false, having said why on standard error, when nothing
  // can be written, or no more.
  bool Open();
  bool Write(const ConversionItem& item, const ConversionResult& result);
  // To be called once, when all is written, or when the run was `interrupted`.
  bool Finish(bool interrupted);

  // What the run has come to so far.
  ExitStatus Status() const { return status_; }

 private:
  bool WritesRecords() const { return options_.result == Result::kRecords; }
  void Count(const ConversionItem& item, const ConversionResult& result);
  bool BeginRecords(const ConversionItem& item);
  bool EndRecords();
  bool WriteReport(bool interrupted);
  bool WriteRecord(const ConversionItem& item, const ConversionResult& result);
  void SayThatInputFailed(const ConversionItem& item);
  void SayRepairs(const ConversionItem& item, const ConversionResult& result);
  void SayFault(const ConversionItem& item, const ConversionResult& result);
  void SayTotals() const;

  const ConvertOptions& options_;
  RecordOutput output_;
  bool begun_ = false;           // a record came up
  bool writes_marcxml_ = false;  // as it tells
  OutputFile report_file_;
  Report report_;
  ExitStatus status_ = kAllWell;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RESULT_WRITER_H_
