// The faces of the XML text kernels.

#include <string>
#include <string_view>

#include "display/xml_references.h"
#include "display/xml_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

void NoBreakSpacesToBlanks(std::string& text) {
  constexpr std::string_view kNoBreakSpace = "\xC2\xA0";
  std::size_t from = text.find(kNoBreakSpace);
  if (from == std::string::npos) return;
  std::size_t to = from;
  while (from < text.size()) {
    const bool hit = text.compare(from, kNoBreakSpace.size(), kNoBreakSpace) == 0;
    text[to++] = hit ? ' ' : text[from];
    from += hit ? kNoBreakSpace.size() : 1;
  }
  text.resize(to);
}

}  // namespace

std::string Utf8MarcRecordClass::XmlConditionText(std::string_view text) {
  std::string out;
  AppendXmlEscaped(text, out);
  return out;
}

std::string Utf8MarcRecordClass::XmlUnconditionText(std::string_view text, bool /*flag*/) const {
  std::string out;
  out.reserve(text.size());
  AppendUnreferenced(text, character_set_out_ == 'U', out);
  NoBreakSpacesToBlanks(out);
  return out;
}

std::string Utf8MarcRecordClass::XmlTags(std::string_view element, std::string_view content) {
  std::string out = "<";
  out.append(element).append(">").append(content);
  return out.append("</").append(element.substr(0, element.find(' '))).append(">");
}

std::string Utf8MarcRecordClass::AddQuotes(std::string_view text) {
  return '"' + std::string(text) + '"';
}

}  // namespace cantorel
