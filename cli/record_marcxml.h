// Records as MARCXML that the schema accepts.

#ifndef CANTOREL_CLI_RECORD_MARCXML_H_
#define CANTOREL_CLI_RECORD_MARCXML_H_

#include <string>
#include <string_view>
#include <vector>

#include "cli/utf8_fields.h"
#include "display/marcxml_writer.h"

namespace cantorel::cli {

// Something of a record that MARCXML has no form for, and what became of it.
struct Repair {
  std::string place;  // "leader", or the tag of a field
  std::string what;
};

// Begins a collection in `out`; the caller may empty it at any time.
class MarcXmlRecords {
 public:
  explicit MarcXmlRecords(std::string& out) : writer_(out) {}

  void Begin() { writer_.BeginCollection(); }
  void End() { writer_.EndCollection(); }

  // Appends a record, its control fields ahead of its data fields as the schema
  // has them.  What the schema does not allow is repaired: leader and indicators
  // by the nearest that it does, a code by "?", text without a subfield by a $a.
  // A field is left out when its tag cannot be written, or nothing is in it.
  void Append(Utf8Fields& record);

  // The repairs of the record appended last.
  const std::vector<Repair>& Repairs() const { return repairs_; }
  // A field with text was left out of it.
  bool LostField() const { return lost_field_; }

 private:
  void AppendLeader(const Utf8Fields& record);
  void AppendControlField(const Utf8Field& field);
  void AppendDataField(const Utf8Field& field);
  void AppendSubfields(std::string_view tag, std::string_view text);
  void AppendBareText(std::string_view tag, std::string_view text);
  void AppendSubfield(std::string_view tag, std::string_view subfield);
  void Note(std::string_view place, std::string what);
  void NoteCharacters(std::string_view place);
  void LeaveOut(const Utf8Field& field);

  MarcXmlWriter writer_;
  std::vector<Repair> repairs_;
  bool lost_field_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_MARCXML_H_
