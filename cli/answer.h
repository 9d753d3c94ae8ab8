// What the component answered about one record, ready to be written.

#ifndef CANTOREL_CLI_ANSWER_H_
#define CANTOREL_CLI_ANSWER_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel::cli {

struct Subfield {
  std::string_view code;  // one octet; empty when the field ends in a delimiter
  std::string_view text;
};

struct FieldAnswer {
  std::int32_t id = 0;  // the field of the record to replace; 0 for a field to add
  std::string tag;
  std::string indicators;
  std::string text;  // delimiter, code, text of each subfield

  bool IsReplacement() const { return id != 0; }
};

struct MessageAnswer {
  std::int32_t type = 0;
  std::string type_name;
  std::string text;
  std::string terms;
  std::string record_ids;
  std::int32_t instances = 0;
};

struct RecordAnswer {
  std::string source;        // file name, or "-" for standard input
  std::uint64_t record = 0;  // number in the source, from 1
  std::string control_number;
  std::string title;
  std::int32_t result = 0;  // of AddFields
  std::vector<FieldAnswer> fields;
  std::vector<MessageAnswer> messages;
};

// The fields in the lines of ReturnedFields; a line that is none is left out.
std::vector<FieldAnswer> ParseReturnedFields(std::string_view lines);

// The subfields of a field text, as views into it.
std::vector<Subfield> SplitSubfields(std::string_view text);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ANSWER_H_
