// Text on its way into XML.

#ifndef CANTOREL_DISPLAY_XML_TEXT_H_
#define CANTOREL_DISPLAY_XML_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace cantorel {

// Appends `text` with "<", ">", "&" and the quotation marks (' and ") escaped;
// no other octet changes.
void AppendXmlEscaped(std::string_view text, std::string& out);

// The same for a text that must be well-formed XML 1.0 whatever it holds: octets
// that are not UTF-8 become U+FFFD, one for each stretch that cannot begin or go
// on a character, and characters that XML forbids are left out.  The result is
// the number of such repairs.
std::size_t AppendXmlText(std::string_view text, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_XML_TEXT_H_
