// Taking a text apart at a delimiter, numbers in texts, and hexadecimal form.

#ifndef CANTOREL_SERVICE_TEXT_PARTS_H_
#define CANTOREL_SERVICE_TEXT_PARTS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// Cuts `text` at its first `delimiter`: `head` receives what stands before it,
// `text` keeps what stands behind it.  Without one `head` receives all and
// `text` becomes empty.  Nothing is copied.
void ChopAtFirst(std::string_view& text, std::string_view& head, std::string_view delimiter);

// The same from the end: `tail` receives what stands behind the last
// `delimiter`, `text` keeps what stands before it.  Without one `tail` receives
// all and `text` becomes empty.  With an empty text or delimiter `tail` is empty
// and `text` stays.
void ChopAtLast(std::string_view& text, std::string_view& tail, std::string_view delimiter);

// The whole number that a text begins with, with its sign, blanks passed over;
// 0 for a text that begins otherwise.  A number that has no room becomes the
// nearest one that has.
std::int32_t SignedLeadingNumber(std::string_view text);

// Two digits an octet, "0" to "9" and "A" to "F", the high half first.
std::string HexEncode(std::string_view text);
// The same appended to `out`.
void AppendHexEncoded(std::string_view text, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_TEXT_PARTS_H_
