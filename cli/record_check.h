// What is wrong with a record: its frame, its directory, its characters, and the
// tests of the record class.

#ifndef CANTOREL_CLI_RECORD_CHECK_H_
#define CANTOREL_CLI_RECORD_CHECK_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/record_layout.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {

struct RecordFinding {
  std::string text;
  std::size_t octet = 0;    // of what is at fault, in the image, from 0
  std::int32_t field = -1;  // its number in the record as loaded, from 0; -1 for none
};

class RecordCheck {
 public:
  // The findings of an ISO 2709 image, in the order of their octets; good until
  // the next call.  An image without a sound frame has that one finding.
  const std::vector<RecordFinding>& Check(std::string_view image);

  // The 001 of the record checked last; empty without one.
  std::string_view ControlNumber() const;

 private:
  void CheckLeader(std::string_view image);
  void CheckStructure(const FieldEntry& entry);
  void CheckCharacters(const FieldEntry& entry);
  void CheckForEmptySubfields(const FieldEntry& entry);
  void RunRecordTests(std::string_view image);
  template <typename Test>
  void LocateFindings(const Test& test, std::string_view leader);
  void Add(const FieldEntry& entry, std::string_view fault, std::size_t place = 0);
  std::size_t OctetOf(const FieldEntry& entry) const { return base_ + entry.start; }

  std::size_t base_ = 0;  // of the data
  RecordLayout layout_;
  Utf8MarcRecordClass record_;
  Utf8MarcRecordClass field_record_;  // holds one field of the record at a time
  std::string field_image_;
  std::vector<RecordFinding> findings_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_CHECK_H_
