// The subfields that take part in the comparison form of a field.

#ifndef CANTOREL_NORMALIZE_TABLES_NORMALIZED_SUBFIELDS_H_
#define CANTOREL_NORMALIZE_TABLES_NORMALIZED_SUBFIELDS_H_

#include <string_view>

namespace cantorel {

struct NormalizedSubfields {
  std::string_view tags;  // blank-separated
  std::string_view codes;
};

// Headings and references of authority records, behind the subdivisions.
inline constexpr NormalizedSubfields kAuthoritySubfields[] = {
    {"100 400 500 700", "abcdfgklmnoprsqt"},
    {"110 410 510 710", "abcdfgklmnoprst"},
    {"111 411 511 711", "abcdefgklnpsqt"},
    {"130 430 530 730", "adfgklmnoprst"},
    {"150 450 550 750", "abcd"},
    {"151 451 551 751", "a"},
    {"155 455 555 755", "ab"},
    {"180 181 182 185 480 481 482 485 580 581 582 585 780 781 782 785", ""},
};

// Bibliographic records; in a 6XX field behind the subdivisions.
inline constexpr NormalizedSubfields kBibliographicSubfields[] = {
    {"100 400 500 600 700 800", "abcdfgklmnoprsqt"},
    {"110 410 510 610 710 810", "abcdfgklmnoprst"},
    {"111 411 511 611 711 811", "abcdefgklnpsqt"},
    {"130 440 490 530 630 730 830", "adfgklmnoprst"},
    {"210 211 245 246 740", "abnp"},
    {"650", "abcd"},
    {"651", "a"},
    {"655", "ab"},
};

inline constexpr std::string_view kSubdivisions = "vxyz";
inline constexpr std::string_view kEverySubfield = "abcdefghijklmnopqrstuvwxyz";

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_TABLES_NORMALIZED_SUBFIELDS_H_
