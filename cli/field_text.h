// A field as people read it.

#ifndef CANTOREL_CLI_FIELD_TEXT_H_
#define CANTOREL_CLI_FIELD_TEXT_H_

#include <string>
#include <string_view>

namespace cantorel::cli {

// Appends "382 01 $a flute $n 1": blank indicators show as "_", octets are
// written as they are.  `text` is delimiter, code, text of each subfield.
void AppendReadableField(std::string_view tag, std::string_view indicators, std::string_view text,
                         std::string& out, bool colours = false);
// Appends " $a flute $n 1".
void AppendReadableSubfields(std::string_view text, std::string& out, bool colours = false);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_FIELD_TEXT_H_
