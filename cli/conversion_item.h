// A record on its way through cantorel convert: read, converted, written.
//
// Items and results share nothing with each other or with those who make them,
// so that several records may be on their way at once; only the names of the
// inputs are views of the list that the command was called with.

#ifndef CANTOREL_CLI_CONVERSION_ITEM_H_
#define CANTOREL_CLI_CONVERSION_ITEM_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/answer.h"

namespace cantorel::cli {

// What was read: a record, or the failure with which an input ended.
struct ConversionItem {
  std::string_view source;           // name of the input, "-" for standard input
  std::uint64_t number = 0;          // of the record in its input, from 1
  std::uint64_t offset = 0;          // of its first octet, from 0
  std::string octets;                // the record as it came; of MARCXML its ISO 2709 image
  std::string element;               // of MARCXML: the record as it came
  bool begins_with_marcxml = false;  // the first of all inputs is MARCXML
  std::string fault;                 // why it is no record, where reading showed it; else empty
  std::string read_error;            // why the input could not be read on; else empty

  std::string_view AsItCame() const { return element.empty() ? octets : element; }
};

// What became of it.
struct ConversionResult {
  RecordAnswer answer;
  std::string text;  // the answer, or what it changes, as it is to be shown
  bool changed = false;
  std::string record;                // the record as it is to be written; empty: as it came
  std::vector<std::string> repairs;  // what its form of output has no room for, and became of it
  std::string fault;                 // why it could not be read, or cannot be written; else empty

  void Clear() {
    answer.control_number.clear();
    answer.title.clear();
    answer.fields.clear();
    answer.messages.clear();
    text.clear();
    changed = false;
    record.clear();
    repairs.clear();
    fault.clear();
  }
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERSION_ITEM_H_
