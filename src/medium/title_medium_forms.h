// Media that a title names as a whole, and the performers that they stand for.

#ifndef CANTOREL_MEDIUM_TITLE_MEDIUM_FORMS_H_
#define CANTOREL_MEDIUM_TITLE_MEDIUM_FORMS_H_

#include <string_view>

namespace cantorel {

struct TitleMediumForm {
  std::string_view medium;       // comparison form
  std::string_view title;        // what the title must be, singular; empty: anything
  std::string_view written_out;  // subfields that open the field; \037 is the delimiter
  std::string_view performers;   // the others, commas between
};

inline constexpr std::string_view kTwoViolins = "\037aviolin\037n2";
inline constexpr std::string_view kWindQuintet = "flute, oboe, clarinet, horn, bassoon";
inline constexpr std::string_view kWoodwindQuartet = "flute, oboe, clarinet, bassoon";

inline constexpr TitleMediumForm kTitleMediumForms[] = {
    {"PIANO QUARTET", "", "", "violin, viola, cello, piano"},
    {"PIANO QUINTET", "", kTwoViolins, "viola, cello, piano"},
    {"PIANO TRIO", "", "", "violin, cello, piano"},
    {"PIANO STRINGS", "QUARTET", "", "violin, viola, cello, piano"},
    {"PIANO STRINGS", "QUINTET", kTwoViolins, "viola, cello, piano"},
    {"PIANO STRINGS", "TRIO", "", "violin, cello, piano"},
    {"STRING QUARTET", "", kTwoViolins, "viola, cello"},
    {"STRING TRIO", "", "", "violin, viola, cello"},
    {"STRINGS", "QUARTET", kTwoViolins, "viola, cello"},
    {"STRINGS", "TRIO", "", "violin, viola, cello"},
    {"WIND QUINTET", "", "", kWindQuintet},
    {"WINDS", "QUINTET", "", kWindQuintet},
    {"WOODWIND QUARTET", "", "", kWoodwindQuartet},
    {"WOODWINDS", "QUARTET", "", kWoodwindQuartet},
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_TITLE_MEDIUM_FORMS_H_
