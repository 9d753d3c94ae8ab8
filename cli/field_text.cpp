#include "cli/field_text.h"

#include "cli/answer.h"

namespace cantorel::cli {

void AppendReadableField(std::string_view tag, std::string_view indicators, std::string_view text,
                         std::string& out) {
  out.append(tag).append(" ");
  for (const char indicator : indicators) out += indicator == ' ' ? '_' : indicator;
  AppendReadableSubfields(text, out);
}

void AppendReadableSubfields(std::string_view text, std::string& out) {
  for (const Subfield& subfield : SplitSubfields(text)) {
    out.append(" $").append(subfield.code);
    if (!subfield.text.empty()) out.append(" ").append(subfield.text);
  }
}

}  // namespace cantorel::cli
