#include "cli/item_converter.h"

#include <array>

#include "cli/answer_writers.h"
#include "cli/ask.h"
#include "cli/difference_writer.h"
#include "record/record_image.h"
#include "service/service_objects.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kLengthDigits = 5;

}  // namespace

ItemConverter::ItemConverter(CantorelClass& cantorel, const ConvertOptions& options)
    : cantorel_(cantorel),
      options_(options),
      editor_(TheMarcRecord()),
      marcxml_records_(marcxml_) {}

void ItemConverter::Convert(const ConversionItem& item, ConversionResult& result) {
  result.Clear();
  result.answer.source = item.source;
  result.answer.record = item.number;
  result.fault = item.fault;
  if (!result.fault.empty()) return;
  const std::string_view record = Readable(item.octets, result.fault);
  if (!result.fault.empty()) return;
  AskAboutRecord(cantorel_, record, options_.conversion.mode, result.answer);
  result.changed = !result.answer.fields.empty();
  if (options_.lists_answers) AppendAnswer(options_.format, result.answer, result.text);
  if (options_.result != Result::kAnswers) Apply(record, item, result);
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

void ItemConverter::Apply(std::string_view record, const ConversionItem& item,
                          ConversionResult& result) {
  if (!result.changed) {
    Keep(record, item, result);
  } else if (!editor_.Apply(record, result.answer.fields, result.record, result.fault)) {
    return;
  }
  if (options_.result == Result::kDifferences && result.changed) {
    fields_.Open(record);
    AppendDifferences(result.answer, editor_.Changes(), fields_, options_.colours, result.text);
  }
  if (options_.result == Result::kRecords && options_.WritesMarcXml(item.begins_with_marcxml)) {
    WriteMarcXml(result.record.empty() ? record : result.record, result);
  }
}

// A record without changes is written as it came, but its leader must tell how
// long it is: who reads it by that number would miss the record behind it.
void ItemConverter::Keep(std::string_view record, const ConversionItem& item,
                         ConversionResult& result) {
  if (record.size() > kLongestRecord) {
    result.fault = "The record is longer than " + std::to_string(kLongestRecord) + " octets";
    return;
  }
  std::array<char, kLengthDigits> length;
  WriteDigits(record.size(), length.size(), length.data());
  const std::string_view told(length.data(), length.size());
  if (item.octets.starts_with(told) && item.octets.size() == record.size()) return;
  result.record = record;
  result.record.replace(0, told.size(), told);
}

void ItemConverter::WriteMarcXml(std::string_view record, ConversionResult& result) {
  marcxml_.clear();
  fields_.Open(record);
  marcxml_records_.Append(fields_);
  for (const Repair& repair : marcxml_records_.Repairs()) {
    result.repairs.push_back(repair.place + ": " + repair.what);
  }
  if (marcxml_records_.LostField()) result.fault = "A field has no form in MARCXML";
  result.record = marcxml_;
}

}  // namespace cantorel::cli
