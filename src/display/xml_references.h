// Character references in text: the five escapes of XML, the names of HTML, and
// numbers.

#ifndef CANTOREL_DISPLAY_XML_REFERENCES_H_
#define CANTOREL_DISPLAY_XML_REFERENCES_H_

#include <string>
#include <string_view>

namespace cantorel {

// Appends `text` with its references undone, one level deep.  What is no
// reference stays as it is.  A reference to one of the octets that hold a record
// together (0, 29, 30, 31) is dropped, so that a text from outside cannot build
// fields.  With `utf8` false, a character beyond ASCII becomes the token
// "&#x...;" that stands in the 8-bit sets for what they lack.
void AppendUnreferenced(std::string_view text, bool utf8, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_DISPLAY_XML_REFERENCES_H_
