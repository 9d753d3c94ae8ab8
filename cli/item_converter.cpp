#include "cli/item_converter.h"

#include "cli/answer_writers.h"
#include "cli/ask.h"

namespace cantorel::cli {

void ItemConverter::Convert(const ConversionItem& item, ConversionResult& result) {
  result.Clear();
  result.answer.source = item.source;
  result.answer.record = item.number;
  result.fault = item.fault;
  if (!result.fault.empty()) return;
  const std::string_view record = Readable(item.octets, result.fault);
  if (!result.fault.empty()) return;
  AskAboutRecord(cantorel_, record, options_.conversion.mode, result.answer);
  AppendAnswer(options_.format, result.answer, result.answer_text);
}

// The record, repaired if need be; a fault when it cannot be read.
std::string_view ItemConverter::Readable(const std::string& octets, std::string& fault) {
  if (options_.lines) {
    if (octets.find('\n') < 2) fault = "First line has no record type and level";
    return octets;
  }
  if (record_.IsMarc(octets)) return octets;
  const std::string why = record_.IsMarcErrorText();
  // Loading repairs a leader that lost blanks on its way.
  record_.MarcRecordIn(octets);
  repaired_ = record_.MarcRecordIn();
  if (repaired_.empty()) fault = why;
  return repaired_;
}

}  // namespace cantorel::cli
