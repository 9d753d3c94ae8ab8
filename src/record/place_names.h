// Abbreviations of places, looked up.

#ifndef CANTOREL_RECORD_PLACE_NAMES_H_
#define CANTOREL_RECORD_PLACE_NAMES_H_

#include <string_view>

namespace cantorel {

// The abbreviation by which headings qualify the places of a state, province or
// country, given in comparison form; empty for a name that is not abbreviated.
std::string_view FindPlaceAbbreviation(std::string_view norm);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_PLACE_NAMES_H_
