// What a conversion could not do: headings that gave no field, general
// messages, terms and places not recognised.  Kept through a run of records and
// read by index, five bands counted as one list.

#ifndef CANTOREL_MEDIUM_CONVERSION_REPORT_H_
#define CANTOREL_MEDIUM_CONVERSION_REPORT_H_

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "medium/string_map.h"

namespace cantorel {

class ConversionReport {
 public:
  // --- Filling ---------------------------------------------------------------

  // A heading (tag, then field text) that gave no 382.
  void AddNonProductive382(std::string_view tag, std::string_view text);
  // A heading that gave no 655 or companion.
  void AddNonProductive655(std::string_view tag, std::string_view text);
  // A general message; `record_id` is the 001 of the record under work.  The
  // same message may stand twice.
  void AddMessage(std::string_view record_id, std::string_view text, std::string_view detail1,
                  std::string_view detail2);
  // An item of a medium phrase that was not understood (comparison form).
  void CountUnrecognizedItem(std::string_view item, std::string_view record_id);

  // Empties the five lists; called for each record.
  void ClearCounts();
  // Also forgets the two dictionaries of items not understood.
  void ClearAll();

  // --- Reading (indexes from 1, 0 selecting none) -----------------------------

  std::int32_t MessageCount();
  std::int32_t MessageIndex() const { return message_index_; }
  void MessageIndex(std::int32_t index);
  std::int32_t MessageType() const;
  std::string MessageTypeName() const;
  std::string MessageText() const;
  std::string MessageTerms() const;
  std::string MessageRecordIds() const;
  std::int32_t MessageTotal() const;

  std::int32_t UnrecognizedInstrumentTotal();
  std::int32_t UnrecognizedInstrumentIndex() const { return instrument_index_; }
  void UnrecognizedInstrumentIndex(std::int32_t index);
  std::string UnrecognizedInstrumentName() const;
  std::int32_t UnrecognizedInstrumentCount() const;
  std::string UnrecognizedInstrumentRecordIds() const;
  std::string UnrecognizedInstrumentTerms() const;

 private:
  std::vector<std::string> non_productive_382_;
  std::vector<std::string> messages_;
  std::vector<std::string> non_productive_655_;
  StringMap<std::int32_t> unrecognized_counts_;
  StringMap<std::string> unrecognized_records_;
  std::int32_t message_index_ = 0;
  std::int32_t instrument_index_ = -1;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_CONVERSION_REPORT_H_
