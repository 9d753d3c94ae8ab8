// The 008 of a new record, a template a format.

#ifndef CANTOREL_RECORD_DEFAULT_008_H_
#define CANTOREL_RECORD_DEFAULT_008_H_

#include <cstddef>
#include <string_view>

namespace cantorel {

// Octets of an 008, and of one of a holdings record.
inline constexpr std::size_t k008Length = 40;
inline constexpr std::size_t k008LengthHoldings = 32;

struct Default008Template {
  char format;
  std::string_view text;  // positions 00-05 are replaced by the date
};

inline constexpr Default008Template kDefault008[] = {
    {'A', "000000n| aaannaabn          |n ana     d"},
    {'B', "000000n                      000 0     d"},
    {'D', "000000n                   |   000 0    d"},
    {'F', "000000n           |||            |     d"},
    {'H', "0000000u    8   1001uu   0000000"},
    {'M', "000000n           |||                  d"},
    {'P', "000000n                  |     0       d"},
    {'Q', "000000aaaaaaaa"},
    {'S', "000000n            |         0         d"},
    {'U', "0000000u    0   1001aa   0000000"},
    {'W', "000000uuuuuuunk"},
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_DEFAULT_008_H_
