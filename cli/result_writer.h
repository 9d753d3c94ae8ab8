// Writes what became of the records, in the order in which they were read.

#ifndef CANTOREL_CLI_RESULT_WRITER_H_
#define CANTOREL_CLI_RESULT_WRITER_H_

#include <cstdint>

#include "cli/conversion_item.h"
#include "cli/convert_options.h"
#include "cli/exit_status.h"
#include "cli/record_output.h"

namespace cantorel::cli {

class ResultWriter {
 public:
  explicit ResultWriter(const ConvertOptions& options) : options_(options) {}

  // All of these answer false, having said why on standard error, when nothing
  // can be written, or no more.
  bool Open();
  bool Write(const ConversionItem& item, const ConversionResult& result);
  // To be called once, when all is written.
  bool Finish();

  // What the run has come to so far.
  ExitStatus Status() const { return status_; }

 private:
  struct Totals {
    std::uint64_t records = 0;
    std::uint64_t changed = 0;
    std::uint64_t fields_added = 0;
    std::uint64_t fields_replaced = 0;
    std::uint64_t written = 0;
    std::uint64_t rejected = 0;
  };

  bool WritesRecords() const { return options_.result == Result::kRecords; }
  void Count(const ConversionResult& result);
  bool BeginRecords(const ConversionItem& item);
  bool EndRecords();
  bool WriteRecord(const ConversionItem& item, const ConversionResult& result);
  void SayThatInputFailed(const ConversionItem& item);
  void SayRepairs(const ConversionItem& item, const ConversionResult& result);
  void SayFault(const ConversionItem& item, const ConversionResult& result);
  void SayTotals() const;

  const ConvertOptions& options_;
  RecordOutput output_;
  bool begun_ = false;           // a record came up
  bool writes_marcxml_ = false;  // as it tells
  Totals totals_;
  ExitStatus status_ = kAllWell;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RESULT_WRITER_H_
