// Writes records as MARCXML (the MARC 21 XML schema of the Library of Congress,
// version 1.1), part by part.
//
// The text is well-formed XML 1.0 in UTF-8 whatever the record holds: every part
// goes through AppendXmlText (display/xml_text.h).  Lines end in CR LF.

#ifndef CANTOREL_DISPLAY_MARCXML_WRITER_H_
#define CANTOREL_DISPLAY_MARCXML_WRITER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace cantorel {

class MarcXmlWriter {
 public:
  // Everything is appended to `out`, which the caller may empty at any time.
  explicit MarcXmlWriter(std::string& out) : out_(out) {}

  // A collection holds any number of records; a record holds its leader (24
  // octets), then its fields.
  void BeginCollection();
  void EndCollection();
  void BeginRecord(std::string_view leader);
  void EndRecord();

  void AddControlField(std::string_view tag, std::string_view text);
  // Indicators are two octets; those that are missing are blank.
  void BeginDataField(std::string_view tag, std::string_view indicators);
  void AddSubfield(std::string_view code, std::string_view text);
  void EndDataField();

  // How many repairs there were since this was asked last.
  std::size_t TakeRepairs();

 private:
  void AddText(std::string_view text);

  std::string& out_;
  std::size_t repairs_ = 0;
};

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_MARCXML_WRITER_H_
