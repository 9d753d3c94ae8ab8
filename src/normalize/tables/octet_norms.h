// The comparison form of every octet of the 8-bit character sets.
//
// What no row names has no form.  Escape (1B) and delimiter (1F) have no row:
// the walk over a text deals with them.

#ifndef CANTOREL_NORMALIZE_TABLES_OCTET_NORMS_H_
#define CANTOREL_NORMALIZE_TABLES_OCTET_NORMS_H_

#include <string_view>

namespace cantorel {

// The form of a stretch of octets, first and last included.  Where the form is
// a digit or a letter it counts up with the octets: 61 to 7A give "A" to "Z".
struct OctetNormRow {
  unsigned char first;
  unsigned char last;
  std::string_view norm;
};

// clang-format off

// What the sets have in common: ASCII and the special letters.
inline constexpr OctetNormRow kCommonOctetNorms[] = {
    {0x20, 0x22, " "},
    {0x23, 0x23, "#"},
    {0x24, 0x25, " "},
    {0x26, 0x26, "&"},
    {0x28, 0x2A, " "},
    {0x2B, 0x2B, "+"},
    {0x2C, 0x2F, " "},
    {0x30, 0x39, "0"},
    {0x3A, 0x40, " "},
    {0x41, 0x5A, "A"},
    {0x5C, 0x5C, " "},
    {0x61, 0x7A, "A"},
    {0x7B, 0x7B, " "},
    {0x7D, 0x7D, " "},
    {0xA1, 0xA1, "L"},     // L with stroke
    {0xA2, 0xA2, "O"},     // O with stroke
    {0xA3, 0xA3, "D"},     // D with stroke
    {0xA4, 0xA4, "TH"},    // thorn
    {0xA5, 0xA5, "AE"},
    {0xA6, 0xA6, "OE"},
    {0xA9, 0xA9, "\xA9"},  // the music flat keeps its octet
    {0xAA, 0xAA, " "},     // patent mark
    {0xAC, 0xAC, "O"},     // O with hook
    {0xAD, 0xAD, "U"},     // U with hook
    {0xB1, 0xB1, "L"},     // the small letters of the same
    {0xB2, 0xB2, "O"},
    {0xB3, 0xB3, "D"},
    {0xB4, 0xB4, "TH"},
    {0xB5, 0xB5, "AE"},
    {0xB6, 0xB6, "OE"},
    {0xB8, 0xB8, "I"},     // dotless i
    {0xB9, 0xB9, " "},     // pound sign
    {0xBA, 0xBA, "D"},     // eth
    {0xBC, 0xBC, "O"},
    {0xBD, 0xBD, "U"},
};

// Set "V" only.
inline constexpr OctetNormRow kOctetNormsOfV[] = {
    {0x00, 0x1A, " "},
    {0x1C, 0x1E, " "},
    {0x87, 0x87, " "},
    {0xA0, 0xA0, "L"},  // script l
    {0xAB, 0xAB, " "},  // plus-minus
    {0xAF, 0xAF, "A"},  // alpha
    {0xBE, 0xBE, "B"},  // beta
    {0xBF, 0xBF, "G"},  // gamma
    {0xC0, 0xC9, "0"},  // superscript digits
    {0xCA, 0xCD, " "},  // superscript signs
    {0xD0, 0xD9, "0"},  // subscript digits
    {0xDA, 0xDD, " "},  // subscript signs
};

// Sets "M" and "O" only.
inline constexpr OctetNormRow kOctetNormsOfM[] = {
    {0xBE, 0xBE, "L"},  // script l, at three places
    {0xC0, 0xC0, "L"},
    {0xC1, 0xC1, "L"},
};

// clang-format on

// The symbols of the Greek set behind escape "g": "a", "b" and "c".
inline constexpr char kGreekSymbolNorms[] = {'A', 'B', 'G'};

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_TABLES_OCTET_NORMS_H_
