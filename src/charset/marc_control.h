// The control characters of a MARC record (ISO 2709 and MARC 21 practice).

#ifndef CANTOREL_CHARSET_MARC_CONTROL_H_
#define CANTOREL_CHARSET_MARC_CONTROL_H_

#include <string_view>

namespace cantorel {

inline constexpr char kDelimiter = '\x1F';    // opens a subfield
inline constexpr char kEndOfField = '\x1E';   // closes a field and the directory
inline constexpr char kEndOfRecord = '\x1D';  // closes a record
inline constexpr char kEscape = '\x1B';       // opens a MARC-8 designation
inline constexpr char kFill = '|';            // "no attempt to code"

// Begin and end of a part left out in filing: in MARC-8 as single octets, in
// UTF-8 as U+0098 and U+009C.
inline constexpr std::string_view kMarcNonSortBegin = "\x88";
inline constexpr std::string_view kMarcNonSortEnd = "\x89";
inline constexpr std::string_view kUtf8NonSortBegin = "\xC2\x98";
inline constexpr std::string_view kUtf8NonSortEnd = "\xC2\x9C";

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_MARC_CONTROL_H_
