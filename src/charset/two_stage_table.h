// Look-up in a two-stage table, as tools/two_stage_table.py writes them.
//
// The high octet of a code point picks a page, the low octet a value on it.
// Pages with equal values are stored once, so that a table for all of U+0000 to
// U+FFFF stays small.

#ifndef CANTOREL_CHARSET_TWO_STAGE_TABLE_H_
#define CANTOREL_CHARSET_TWO_STAGE_TABLE_H_

#include <cstddef>
#include <cstdint>

namespace cantorel {

inline constexpr std::uint32_t kLastTableCodePoint = 0xFFFF;

// The value of a code point up to U+FFFF.
template <typename Value, std::size_t kCount>
constexpr Value TwoStageLookUp(const std::uint8_t (&pages)[256], const Value (&values)[kCount],
                               std::uint32_t code_point) {
  return values[std::size_t{pages[code_point >> 8]} << 8 | (code_point & 0xFF)];
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_TWO_STAGE_TABLE_H_
