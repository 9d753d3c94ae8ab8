// A record as MARCXML.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "display/marcxml_writer.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::int16_t kMarcXml = 0;

// `text` begins with a delimiter, or is empty.
void WriteSubfields(std::string_view text, MarcXmlWriter& writer) {
  while (text.size() > 1) {
    const std::size_t end = std::min(text.find(kDelimiter, 1), text.size());
    writer.AddSubfield(text.substr(1, 1), text.substr(2, end - 2));
    text.remove_prefix(end);
  }
}

void WriteField(std::string_view tag, std::string_view indicators, bool is_control,
                std::string_view text, MarcXmlWriter& writer) {
  if (is_control) return writer.AddControlField(tag, text);
  writer.BeginDataField(tag, indicators);
  WriteSubfields(text, writer);
  writer.EndDataField();
}

}  // namespace

std::string Utf8MarcRecordClass::XMLRecordOut(std::int16_t mode) {
  if (mode != kMarcXml) return {};
  const std::int16_t field = current_field_;
  const std::int16_t subfield = current_subfield_;
  const std::string set = CharacterSetOut();
  if (set != "U") CharacterSetOut("U");

  std::string xml;
  MarcXmlWriter writer(xml);
  writer.BeginCollection();
  writer.BeginRecord(leader_);
  std::string text;
  for (bool found = FldMoveFirst(true); found; found = FldMoveNext(true)) {
    text.clear();
    AppendFldText(text);
    WriteField(FldTagView(), FldIndView(), FldIsControl(), text, writer);
  }
  writer.EndRecord();
  writer.EndCollection();

  if (set != "U") CharacterSetOut(set);
  FldPointer(field);
  SfdPointer(subfield);
  return xml;
}

}  // namespace cantorel
