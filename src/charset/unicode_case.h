// Case mapping of one character: Latin, Greek, Cyrillic, Armenian, Georgian.

#ifndef CANTOREL_CHARSET_UNICODE_CASE_H_
#define CANTOREL_CHARSET_UNICODE_CASE_H_

#include <string>
#include <string_view>

namespace cantorel {

// Appends the other case of one UTF-8 character (its octets); a character
// without one is appended as it is.
void AppendUpperCase(std::string_view character, std::string& out);
void AppendLowerCase(std::string_view character, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UNICODE_CASE_H_
