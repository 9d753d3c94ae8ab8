// The 8-bit variants of MARC-8, and how text of one becomes text of another.
//
// Variant "O" has script l at another octet; variant "V" has the symbols
// elsewhere, and superscripts, subscripts and Greek symbols in single octets
// instead of behind escapes.  All other octets are the same.

#ifndef CANTOREL_CHARSET_OCTET_VARIANT_H_
#define CANTOREL_CHARSET_OCTET_VARIANT_H_

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace cantorel {

// What becomes of one octet: if it is in use, the replacement.
struct OctetReplacement {
  bool in_use = false;
  std::string_view replacement;
};

using OctetTable = std::array<OctetReplacement, 256>;

// The table of a pair, by number: 0 "M2O", 1 "M2V", 2 "O2M", 3 "O2V", 4 "V2M",
// 5 "V2O".  Null for any other number.
const OctetTable* OctetTableOf(std::int32_t pair);

// The number of a pair of letters; -1 for none.
std::int32_t OctetPairOf(char from, char to);

// Applies a table to a text; octets not in use pass.
std::string ReplaceOctets(std::string_view text, const OctetTable& table);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_OCTET_VARIANT_H_
