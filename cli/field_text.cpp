#include "cli/field_text.h"

#include "cli/answer.h"
#include "cli/colours.h"

namespace cantorel::cli {

void AppendReadableField(std::string_view tag, std::string_view indicators, std::string_view text,
                         std::string& out, bool colours) {
  AppendColoured(colours, kBold, tag, out);
  out += ' ';
  for (const char indicator : indicators) out += indicator == ' ' ? '_' : indicator;
  AppendReadableSubfields(text, out, colours);
}

void AppendReadableSubfields(std::string_view text, std::string& out, bool colours) {
  for (const Subfield& subfield : SplitSubfields(text)) {
    out += ' ';
    AppendColoured(colours, kCyan, "$" + std::string(subfield.code), out);
    if (!subfield.text.empty()) out.append(" ").append(subfield.text);
  }
}

}  // namespace cantorel::cli
