// Case mapping of one character: Latin, Greek, Cyrillic, Armenian, Georgian, by
// the simple mappings of Unicode 3.0 (which gives Georgian none).
//
// In Latin-1 and Latin Extended-A only the last octet is mapped and the first
// one stays, also where the partner has another first octet: U+00FF goes up to
// U+00F8.  Partners in ASCII (U+0130, U+0131, U+017F) are the real ones.

#ifndef CANTOREL_CHARSET_UNICODE_CASE_H_
#define CANTOREL_CHARSET_UNICODE_CASE_H_

#include <string>
#include <string_view>

namespace cantorel {

// Appends the other case of one UTF-8 character (its octets); a character
// without one is appended as it is, and so are malformed octets.
void AppendUpperCase(std::string_view character, std::string& out);
void AppendLowerCase(std::string_view character, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UNICODE_CASE_H_
