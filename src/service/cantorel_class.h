// CantorelClass: the one class that a host sees.
//
//   cantorel::CantorelClass cantorel;
//   cantorel.ConfigurationPath("/usr/share/cantorel/config/");
//   if (cantorel.AddFields(record_image, 1) == cantorel::kFieldsReturned)
//     std::cout << cantorel.ReturnedFields() << '\n';
//   const std::int32_t count = cantorel.ReturnedMessageCount();
//   for (std::int32_t i = 1; i <= count; ++i) {
//     cantorel.ReturnedMessageIndex(i);
//     std::cout << cantorel.ReturnedMessageText() << '\n';
//   }
//
// Behind the objects of this class stands one set of service objects per
// thread (service_objects.h): settings, results and messages are those of the
// thread, whichever object is asked.
//
// Text is octets, UTF-8 in records; indexes count from 1.  No member throws:
// when memory runs out a text is empty and a number 0.

#ifndef CANTOREL_SERVICE_CANTOREL_CLASS_H_
#define CANTOREL_SERVICE_CANTOREL_CLASS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/field_selection.h"
#include "platform/http_get.h"

namespace cantorel {

// Results of AddFields.
enum AddFieldsResult : std::int32_t {
  kFieldsReturned = 1,          // ReturnedFields has at least one line
  kNothingToReturn = 0,         // nothing to add or change
  kNoIncomingData = -1,         // the incoming data are empty
  kFirstLineTooShort = -2,      // no MARC image, and no type and level either
  kNotMusic = -3,               // leader/06 is none of c, d, j
  kNoConfigurationFolder = -5,  // ConfigurationPath was never set
  kNoDerivationTable = -6,      // no usable "Music6xxTo655.txt"; said once an object
};

class CantorelClass {
 public:
  // Puts the settings of the thread at their defaults: source code "lcmpt",
  // $e for the number of ensembles, the present moment as date stamp.  The
  // configuration folder stays.
  CantorelClass() noexcept;

  // Does nothing; hosts may call it.
  void Reset() noexcept {}

  // Derives fields from one record, which is not changed.
  //
  // `incoming_data` is an ISO 2709 image, or lines separated by line feeds:
  // first the type and level of the record (leader/06 and 07), optionally
  // followed by 008/15-17, 008/20, 008/21 and 008/18-19; then a field a line,
  // tag (3 characters), indicators (2), text in delimiter form and, behind a
  // tab, optionally the field's identifier.
  //
  // `performance_mode` 1 gives 382, 2 gives 655 and companions (046, 370, 385,
  // 386), 3 both.  Any other value converts nothing; but the record's own 382
  // can bring a 655 "Chamber music" in every mode.
  //
  // Negative results leave ReturnedFields as the call before left it.
  std::int32_t AddFields(std::string_view incoming_data, std::int32_t performance_mode) noexcept;

  // An entry of older hosts: does nothing and answers 0.
  std::int32_t Z_AddFields_20170805(std::string_view incoming_data, bool options_show,
                                    std::int32_t performance_mode) noexcept;

  // The configuration folder.  It reads back with a backslash at its end; "me",
  // in any case, is the folder of the running program.  Setting it empties the
  // vocabularies read so far.
  std::string ConfigurationPath() const noexcept;
  void ConfigurationPath(std::string_view path) noexcept;

  // --- Settings --------------------------------------------------------------

  // Tags, such as "382 655", whose fields end in a point.
  std::string AddTerminalPunctuationTo() const noexcept;
  void AddTerminalPunctuationTo(std::string_view tags) noexcept;
  // What becomes of a heading "Canons, fugues, etc." that nothing tells more of:
  // 0 leaves a message, 1 adds both genres, 2 lets the user choose.  Any other
  // value is 0.
  std::int32_t MusicClassOperatingMode() const noexcept;
  void MusicClassOperatingMode(std::int32_t mode) noexcept;
  // Mode 2 asks the selector, which must stay until it is taken away; null, as at
  // first, counts as a cancelled choice.
  void SelectFieldsWith(FieldSelector* selector) noexcept;
  // How places and nationalities are looked up at the linked-data service of the
  // national library.  At first a thread has a client of its own
  // (platform/http_get.h), which asks over the network; null asks nothing.  A
  // client that is handed in must stay until it is taken away.  When a request
  // for a place has failed, no place is asked for any more, whichever client
  // there is, until ReleaseServiceObjects.
  void LookUpWith(HttpGet* client) noexcept;
  // Addresses of the two services, http or https, without a slash at the end; an
  // empty one stands for that which the library was built with.
  std::string LinkedDataUrl() const noexcept;
  void LinkedDataUrl(std::string_view url) noexcept;
  std::string PermalinkUrl() const noexcept;
  void PermalinkUrl(std::string_view url) noexcept;
  // "yyyymmdd.hhnnss".  Eight characters get ".000000"; fifteen are ignored,
  // which is deliberate; anything else stores the present moment.
  std::string MusicClassDateTimeStamp() const noexcept;
  void MusicClassDateTimeStamp(std::string_view stamp) noexcept;
  // Ends in a backslash unless it is empty.
  std::string MusicClassReportFilePath() const noexcept;
  void MusicClassReportFilePath(std::string_view path) noexcept;

  // --- Results ---------------------------------------------------------------

  // Lines of the last AddFields that answered 0 or 1, separated by line feeds:
  // identifier, tab, tag, indicators, and the field text in hexadecimal, two
  // digits an octet.  Identifier 0 is a field to add, any other the field to
  // replace: its $9 if it has one, else its place in the record, from 0.
  std::string ReturnedFields() const noexcept;
  // Text of the 001 of the last record; empty without one, and after a call
  // that was refused before the record was read.
  std::string Returned001Field() const noexcept;
  // Headings that the genre side looked at: tag, indicators, text, one a line.
  std::string ReturnedCandidateFields() const noexcept;
  // Always empty: headings that gave nothing are read as messages.
  std::string ReturnedNonProductiveFields() const noexcept;
  std::string ReturnedFieldsExcludedForExcerpts() const noexcept;

  // --- Messages (see medium/conversion_report.h) -------------------------------

  // Number of messages of the last record; selects none.
  std::int32_t ReturnedMessageCount() const noexcept;
  // Selects a message, from 1; any other value selects none.
  std::int32_t ReturnedMessageIndex() const noexcept;
  void ReturnedMessageIndex(std::int32_t index) noexcept;
  // 1 to 5, 0 for none; and the same in words.
  std::int32_t ReturnedMessageType() const noexcept;
  std::string ReturnedMessageTypeName() const noexcept;
  std::string ReturnedMessageText() const noexcept;
  std::string ReturnedMessageTerms() const noexcept;
  std::string ReturnedMessageRecordIds() const noexcept;
  std::int32_t ReturnedMessageInstances() const noexcept;

  // --- Instruments and places not recognised -----------------------------------

  // The total is asked first; before that no index is taken (-1).
  std::int32_t ReturnedUnrecognizedInstrumentTotal() const noexcept;
  std::int32_t ReturnedUnrecognizedInstrumentIndex() const noexcept;
  void ReturnedUnrecognizedInstrumentIndex(std::int32_t index) noexcept;
  std::string ReturnedUnrecognizedInstrumentName() const noexcept;
  std::int32_t ReturnedUnrecognizedInstrumentCount() const noexcept;
  std::string ReturnedUnrecognizedInstrumentRecordIDs() const noexcept;
  std::string ReturnedUnrecognizedInstrumentTerms() const noexcept;

  std::int32_t ReturnedUnrecognizedPlaceTotal() const noexcept;
  std::int32_t ReturnedUnrecognizedPlaceIndex() const noexcept;
  void ReturnedUnrecognizedPlaceIndex(std::int32_t index) noexcept;
  std::string ReturnedUnrecognizedPlaceTerm() const noexcept;
  std::int32_t ReturnedUnrecognizedPlaceCount() const noexcept;
  std::string ReturnedUnrecognizedPlaceRecordIDs() const noexcept;

 private:
  bool first_call_done_ = false;
  // Whether one of the two empty reports was asked for since AddFields.
  mutable bool reports_read_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_CANTOREL_CLASS_H_
