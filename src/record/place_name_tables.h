// Abbreviations of states, provinces and countries as headings qualify places by
// them: "Boston (Mass.)".

#ifndef CANTOREL_RECORD_PLACE_NAME_TABLES_H_
#define CANTOREL_RECORD_PLACE_NAME_TABLES_H_

#include <algorithm>
#include <iterator>
#include <string_view>

namespace cantorel {

struct PlaceAbbreviation {
  std::string_view name;  // comparison form
  std::string_view abbreviation;
};

// In the order of the names.
inline constexpr PlaceAbbreviation kPlaceAbbreviations[] = {
    {"ALABAMA", "Ala."},
    {"ALBERTA", "Alta."},
    {"ARIZONA", "Ariz."},
    {"ARKANSAS", "Ark."},
    {"BRITISH COLUMBIA", "B.C."},
    {"CALIFORNIA", "Calif."},
    {"COLORADO", "Colo."},
    {"CONGO BRAZZAVILLE", "Congo"},
    {"CONGO KINSHASA", "Congo"},
    {"CONNECTICUT", "Conn."},
    {"DELAWARE", "Del."},
    {"FLORIDA", "Fla."},
    {"GEORGIA", "Ga."},
    {"ILLINOIS", "Ill."},
    {"INDIANA", "Ind."},
    {"KANSAS", "Kan."},
    {"KENTUCKY", "Ky."},
    {"LOUISIANA", "La."},
    {"MAINE", "Me."},
    {"MANITOBA", "Man."},
    {"MARYLAND", "Md."},
    {"MASSACHUSETTS", "Mass."},
    {"MICHIGAN", "Mich."},
    {"MINNESOTA", "Minn."},
    {"MISSISSIPPI", "Miss."},
    {"MISSOURI", "Mo."},
    {"MONTANA", "Mont."},
    {"NEBRASKA", "Neb."},
    {"NEVADA", "Nev."},
    {"NEW BRUNSWICK", "N.B."},
    {"NEW HAMPSHIRE", "N.H."},
    {"NEW JERSEY", "N.J."},
    {"NEW MEXICO", "N.M."},
    {"NEW YORK", "N.Y."},
    {"NEW YORK STATE", "N.Y."},
    {"NEW ZEALAND", "N.Z."},
    {"NEWFOUNDLAND", "Nfld."},
    {"NORTH CAROLINA", "N.C."},
    {"NORTH DAKOTA", "N.D."},
    {"NORTHWEST TERRITORIES", "N.W.T."},
    {"NOVA SCOTIA", "N.S."},
    {"OKLAHOMA", "Okla."},
    {"ONTARIO", "Ont."},
    {"OREGON", "Or."},
    {"PENNSYLVANIA", "Pa."},
    {"PRINCE EDWARD ISLAND", "P.E.I."},
    {"PUERTO RICO", "P.R."},
    {"QUEBEC PROVINCE", "Quebec"},
    {"RHODE ISLAND", "R.I."},
    {"RUSSIA FEDERATION", "Russia"},
    {"RUSSIAN S F S R", "Russia"},
    {"SASKATCHEWAN", "Sask."},
    {"SOUTH CAROLINA", "S.C."},
    {"SOUTH DAKOTA", "S.D."},
    {"TENNESSEE", "Tenn."},
    {"TEXAS", "Tex."},
    {"VERMONT", "Vt."},
    {"VIRGIN ISLANDS", "V.I."},
    {"VIRGIN ISLANDS OF THE UNITED STATES", "V.I."},
    {"VIRGINIA", "Va."},
    {"WASHINGTON", "Wash."},
    {"WASHINGTON STATE", "Wash."},
    {"WEST VIRGINIA", "W. Va."},
    {"WISCONSIN", "Wis."},
    {"WYOMING", "Wyo."},
    {"YUKON TERRITORY", "Yukon"},
};

// Where the record's own operation differs from the table above.
inline constexpr PlaceAbbreviation kRecordPlaceAbbreviations[] = {
    {"KOREA NORTH", "Korea"},
    {"KOREA SOUTH", "Korea"},
    {"UNITED STATES", "U.S."},
    {"VIRGIN ISLANDS", "Virgin Islands"},
    {"VIRGIN ISLANDS OF THE UNITED STATES", "Virgin Islands"},
};

struct PlaceExpansion {
  std::string_view key;  // comparison form of the abbreviation, without blanks
  std::string_view name;
  std::string_view country;  // of a state or province, otherwise empty
};

inline constexpr std::string_view kAustralia = "Australia";
inline constexpr std::string_view kCanada = "Canada";
inline constexpr std::string_view kUnitedStates = "United States";

// In the order of the keys.  "Congo" and "Korea" stand for two countries each and
// are not among them.
inline constexpr PlaceExpansion kPlaceExpansions[] = {
    {"ACT", "Australian Capital Territory", kAustralia},
    {"ALA", "Alabama", kUnitedStates},
    {"ALTA", "Alberta", kCanada},
    {"ARIZ", "Arizona", kUnitedStates},
    {"ARK", "Arkansas", kUnitedStates},
    {"BC", "British Columbia", kCanada},
    {"CALIF", "California", kUnitedStates},
    {"COLO", "Colorado", kUnitedStates},
    {"CONN", "Connecticut", kUnitedStates},
    {"DEL", "Delaware", kUnitedStates},
    {"FLA", "Florida", kUnitedStates},
    {"GA", "Georgia", kUnitedStates},
    {"ILL", "Illinois", kUnitedStates},
    {"IND", "Indiana", kUnitedStates},
    {"KAN", "Kansas", kUnitedStates},
    {"KY", "Kentucky", kUnitedStates},
    {"LA", "Louisiana", kUnitedStates},
    {"MAN", "Manitoba", kCanada},
    {"MASS", "Massachusetts", kUnitedStates},
    {"MD", "Maryland", kUnitedStates},
    {"ME", "Maine", kUnitedStates},
    {"MICH", "Michigan", kUnitedStates},
    {"MINN", "Minnesota", kUnitedStates},
    {"MISS", "Mississippi", kUnitedStates},
    {"MO", "Missouri", kUnitedStates},
    {"MONT", "Montana", kUnitedStates},
    {"NB", "New Brunswick", kCanada},
    {"NC", "North Carolina", kUnitedStates},
    {"ND", "North Dakota", kUnitedStates},
    {"NEB", "Nebraska", kUnitedStates},
    {"NEV", "Nevada", kUnitedStates},
    {"NEWYORKSTATE", "New York (State)", kUnitedStates},
    {"NFLD", "Newfoundland", kCanada},
    {"NH", "New Hampshire", kUnitedStates},
    {"NJ", "New Jersey", kUnitedStates},
    {"NM", "New Mexico", kUnitedStates},
    {"NS", "Nova Scotia", kCanada},
    {"NSW", "New South Wales", kAustralia},
    {"NT", "Northern Territory", kAustralia},
    {"NWT", "Northwest Territories", kCanada},
    {"NY", "New York (State)", kUnitedStates},
    {"NZ", "New Zealand", {}},
    {"OKLA", "Oklahoma", kUnitedStates},
    {"ONT", "Ontario", kCanada},
    {"OR", "Oregon", kUnitedStates},
    {"PA", "Pennsylvania", kUnitedStates},
    {"PEI", "Prince Edward Island", kCanada},
    {"PR", "Puerto Rico", {}},
    {"QLD", "Queensland", kAustralia},
    // Deliberate: the accent is written as an escape of two characters.
    {"QUEBEC", "Qu\\'ebec (Province)", kCanada},
    {"RI", "Rhode Island", kUnitedStates},
    {"RUSSIA", "Russia (Federation)", {}},
    {"SASK", "Saskatchewan", kCanada},
    {"SAUST", "South Australia", kAustralia},
    {"SC", "South Carolina", kUnitedStates},
    {"SD", "South Dakota", kUnitedStates},
    {"TAS", "Tasmania", kAustralia},
    {"TENN", "Tennessee", kUnitedStates},
    {"TEX", "Texas", kUnitedStates},
    {"TH", "Hawaii", kUnitedStates},  // the Territory of Hawaii
    // Deliberate: in capitals.
    {"US", "UNITED STATES", {}},
    {"VA", "Virginia", kUnitedStates},
    {"VI", "Virgin Islands of the United States", {}},
    {"VIC", "Victoria", kAustralia},
    {"VT", "Vermont", kUnitedStates},
    {"WA", "Western Australia", kAustralia},
    {"WASH", "Washington (State)", kUnitedStates},
    {"WIS", "Wisconsin", kUnitedStates},
    {"WVA", "West Virginia", kUnitedStates},
    {"WYO", "Wyoming", kUnitedStates},
    {"YUKON", "Yukon Territory", kCanada},
};

static_assert(std::is_sorted(std::begin(kPlaceAbbreviations), std::end(kPlaceAbbreviations),
                             [](const PlaceAbbreviation& a, const PlaceAbbreviation& b) {
                               return a.name < b.name;
                             }));
static_assert(std::is_sorted(std::begin(kPlaceExpansions), std::end(kPlaceExpansions),
                             [](const PlaceExpansion& a, const PlaceExpansion& b) {
                               return a.key < b.key;
                             }));

}  // namespace cantorel

#endif  // CANTOREL_RECORD_PLACE_NAME_TABLES_H_
