#include "display/marcxml_writer.h"

#include <utility>

#include "display/xml_text.h"

namespace cantorel {
namespace {

constexpr std::string_view kCollectionStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?> \r\n"
    "<marc:collection xmlns:marc=\"http://www.loc.gov/MARC21/slim\"\r\n"
    "     xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"\r\n"
    "     xsi:schemaLocation=\"http://www.loc.gov/MARC21/slim "
    "http://www.loc.gov/standards/marcxml/schema/MARC21slim.xsd\">\r\n";

}  // namespace

void MarcXmlWriter::BeginCollection() {
  out_ += kCollectionStart;
}

void MarcXmlWriter::EndCollection() {
  out_ += "</marc:collection>\r\n";
}

void MarcXmlWriter::BeginRecord(std::string_view leader) {
  out_ += "\t<marc:record>\r\n<marc:leader>";
  AddText(leader);
  out_ += "</marc:leader>\r\n";
}

void MarcXmlWriter::EndRecord() {
  out_ += "</marc:record>\r\n";
}

void MarcXmlWriter::AddControlField(std::string_view tag, std::string_view text) {
  out_ += "<marc:controlfield tag=\"";
  AddText(tag);
  out_ += "\">";
  AddText(text);
  out_ += "</marc:controlfield>\r\n";
}

void MarcXmlWriter::BeginDataField(std::string_view tag, std::string_view indicators) {
  out_ += "<marc:datafield tag=\"";
  AddText(tag);
  out_ += "\" ind1=\"";
  AddText(indicators.empty() ? " " : indicators.substr(0, 1));
  out_ += "\" ind2=\"";
  AddText(indicators.size() < 2 ? " " : indicators.substr(1, 1));
  out_ += "\">";
}

void MarcXmlWriter::AddSubfield(std::string_view code, std::string_view text) {
  out_ += "\t\t<marc:subfield code=\"";
  AddText(code);
  out_ += "\">";
  AddText(text);
  out_ += "</marc:subfield>\r\n";
}

void MarcXmlWriter::EndDataField() {
  out_ += "</marc:datafield>\r\n";
}

std::size_t MarcXmlWriter::TakeRepairs() {
  return std::exchange(repairs_, 0);
}

void MarcXmlWriter::AddText(std::string_view text) {
  repairs_ += AppendXmlText(text, out_);
}

}  // namespace cantorel
