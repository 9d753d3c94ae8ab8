// What a conversion could not do: headings that gave no field, general
// messages, instruments and places not recognised.
//
// A host reads the five kinds as one numbered list.  Each kind is a band of it,
// and the bands follow each other in this order:
//
//   1  headings that gave no 382            AddNonProductive382
//   2  general messages                     AddMessage
//   3  headings that gave no 655            AddNonProductive655
//   4  instruments not recognised           CountUnrecognizedInstrument
//   5  places not recognised                CountUnrecognizedPlace
//
// MessageCount lays the bands out anew and selects no message, so it is asked
// once, after the record and before the loop over the messages.

#ifndef CANTOREL_MEDIUM_CONVERSION_REPORT_H_
#define CANTOREL_MEDIUM_CONVERSION_REPORT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "medium/counted_terms.h"
#include "medium/report_list.h"
#include "medium/string_map.h"

namespace cantorel {

// One general message.
struct GeneralMessage {
  std::string record_id;  // 001 of the record, possibly empty
  std::string text;       // what happened
  std::string detail1;    // usually the tag
  std::string detail2;    // usually the field text
};

// The bands, by the number that a host sees.
enum MessageBand : std::int32_t {
  kNoMessage = 0,
  kNonProductive382 = 1,
  kGeneralMessage = 2,
  kNonProductive655 = 3,
  kUnrecognizedInstrument = 4,
  kUnrecognizedPlace = 5,
};

class ConversionReport {
 public:
  // --- Filling ---------------------------------------------------------------

  // Nothing is checked and nothing taken for a repeat: the same heading or
  // message may stand twice.
  void AddNonProductive382(std::string_view tag, std::string_view text);
  void AddNonProductive655(std::string_view tag, std::string_view text);
  void AddMessage(std::string_view record_id, std::string_view text, std::string_view detail1,
                  std::string_view detail2);

  // An item of a medium phrase that was not understood (comparison form).
  // `record_id` may be empty.  Listed by WriteUnrecognizedItems only.
  void CountUnrecognizedItem(std::string_view item, std::string_view record_id);

  // An instrument that the vocabulary is known not to hold (comparison form),
  // with the 001 of the record and the text of the heading.  Identifiers and
  // headings are kept of the first ten times; the count goes on.
  void CountUnrecognizedInstrument(std::string_view term, std::string_view record_id,
                                   std::string_view heading);
  // A place that no authority knows.  No conversion enters one at present, so
  // that the fifth band stays empty.
  void CountUnrecognizedPlace(std::string_view place, std::string_view record_id);

  // Empties the five lists; called for each record.
  void ClearCounts();
  // Also forgets the items not understood.
  void ClearAll();

  // --- Reading the five bands as one list --------------------------------------

  // Lays out the bands and gives the number of messages.  Selects none.
  std::int32_t MessageCount();
  // From 1 to MessageCount; any other value selects none and reads back 0.
  // The index of the band's own list goes along.
  std::int32_t MessageIndex() const { return message_index_; }
  void MessageIndex(std::int32_t index);
  // The band of the message, kNoMessage when none is selected.
  std::int32_t MessageType() const;
  // In words; "Unknown" when none is selected.
  std::string MessageTypeName() const;
  // Band 2: the message; band 4: the instrument; otherwise empty.
  std::string MessageText() const;
  // Bands 1 and 3: the heading from its first delimiter, "$" put before every
  // "z"; band 2: tag, blank, field text; band 4: the headings, "$" as delimiter;
  // band 5: the place, "$" put before every "z".
  std::string MessageTerms() const;
  // Bands 2, 4 and 5; blank-separated.
  std::string MessageRecordIds() const;
  // How often the instrument or place was met; 0 in other bands.
  std::int32_t MessageTotal() const;

  // --- Reading one list (indexes from 1, 0 selecting none) ----------------------

  std::int32_t GeneralMessageCount() const { return messages_.Count(); }
  std::int32_t GeneralMessageIndex() const { return messages_.Index(); }
  void GeneralMessageIndex(std::int32_t index) { messages_.Index(index); }
  // Record identifier, text and the two details, with tabs between.
  std::string GeneralMessageItem() const;

  std::int32_t NonProductive655Count() const { return non_productive_655_.Count(); }
  std::int32_t NonProductive655Index() const { return non_productive_655_.Index(); }
  void NonProductive655Index(std::int32_t index) { non_productive_655_.Index(index); }
  // Tag and field text.
  std::string NonProductive655Item() const;

  // Asking for the total makes the list readable: before that, and for any
  // value outside the list, the index becomes -1, which is none.
  std::int32_t UnrecognizedInstrumentTotal();
  std::int32_t UnrecognizedInstrumentIndex() const { return instrument_index_; }
  void UnrecognizedInstrumentIndex(std::int32_t index);
  // Asks for the total to be read anew first; each conversion begins with it.
  void CloseInstrumentList() { instruments_readable_ = false; }
  std::string UnrecognizedInstrumentName() const;
  std::int32_t UnrecognizedInstrumentCount() const;
  std::string UnrecognizedInstrumentRecordIds() const;
  // Headings, with "//" between.
  std::string UnrecognizedInstrumentTerms() const;

  std::int32_t UnrecognizedPlaceTotal() const { return places_.Count(); }
  std::int32_t UnrecognizedPlaceIndex() const { return place_index_; }
  void UnrecognizedPlaceIndex(std::int32_t index);
  std::string UnrecognizedPlaceTerm() const;
  std::int32_t UnrecognizedPlaceCount() const;
  std::string UnrecognizedPlaceRecordIds() const;

  // Writes the items not understood to an open text file, one a line: item,
  // tab, count, tab, record identifiers.  Forgets the identifiers written.
  // `done` is false when the file did not take it all.
  void WriteUnrecognizedItems(std::FILE* file, bool& done);

 private:
  // An item of a medium phrase that was not understood.
  struct UnrecognizedItem {
    std::int32_t count = 0;
    std::string record_ids;  // blank-separated
  };

  const CountedTerm* SelectedInstrument() const;
  const CountedTerm* SelectedPlace() const;

  ReportList<std::string> non_productive_382_;  // tag and field text
  ReportList<GeneralMessage> messages_;
  ReportList<std::string> non_productive_655_;
  CountedTerms instruments_;
  CountedTerms places_;

  // Running totals of the bands, as MessageCount last laid them out.
  std::array<std::int32_t, 5> band_ends_{};
  std::int32_t message_index_ = 0;
  bool instruments_readable_ = false;
  std::int32_t instrument_index_ = -1;
  std::int32_t place_index_ = 0;

  StringMap<UnrecognizedItem> unrecognized_items_;  // through the whole run
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_CONVERSION_REPORT_H_
