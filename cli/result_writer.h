// Writes what became of the records, in the order in which they were read.

#ifndef CANTOREL_CLI_RESULT_WRITER_H_
#define CANTOREL_CLI_RESULT_WRITER_H_

#include "cli/conversion_item.h"
#include "cli/exit_status.h"

namespace cantorel::cli {

class ResultWriter {
 public:
  // Both answer false, having said why on standard error, when nothing more can
  // be written.
  bool Write(const ConversionItem& item, const ConversionResult& result);
  // To be called once, when all is written.
  bool Finish();

  // What the run has come to so far.
  ExitStatus Status() const { return status_; }

 private:
  void SayThatInputFailed(const ConversionItem& item);
  void SayUnreadable(const ConversionItem& item, const ConversionResult& result);

  ExitStatus status_ = kAllWell;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RESULT_WRITER_H_
