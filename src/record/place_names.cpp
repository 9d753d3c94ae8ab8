#include "record/place_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/place_name_tables.h"
#include "record/safe_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kQuebec = "QUEBEC PROVINCE";
constexpr std::string_view kAcuteUtf8 = "\xCC\x81";
constexpr std::string_view kAcuteMarc8 = "\xE2";

constexpr std::array<std::string_view, 3> kJurisdictionWords = {"KINGDOM", "EXTINCT", "DUCHY"};
constexpr std::array<std::string_view, 6> kJurisdictions = {
    "LAKE", "TOWN", "TOWNSHIP", "REGION", "STATE", "DEMOCRATIC REPUBLIC"};

// A place and what stands behind it in parentheses.
struct QualifiedPlace {
  std::string_view place;
  std::string_view qualifier;
};

std::string_view TextOfSubfieldA(std::string_view field_text) {
  constexpr char kSubfieldA[] = {kDelimiter, 'a', '\0'};
  const std::size_t begin = field_text.find(kSubfieldA);
  if (begin == std::string_view::npos) return field_text;
  const std::string_view text = field_text.substr(begin + 2);
  return text.substr(0, text.find(kDelimiter));
}

QualifiedPlace SplitQualifier(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return {Trim(text), {}};
  const std::string_view inside = text.substr(open + 1);
  return {Trim(text.substr(0, open)), Trim(inside.substr(0, inside.rfind(')')))};
}

void AppendGeographic(std::string_view place, std::string& out) {
  out += kDelimiter;
  out += 'z';
  out += place;
}

}  // namespace

std::string_view FindPlaceAbbreviation(std::string_view norm) {
  const auto* row = std::lower_bound(
      std::begin(kPlaceAbbreviations), std::end(kPlaceAbbreviations), norm,
      [](const PlaceAbbreviation& r, std::string_view name) { return r.name < name; });
  const bool found = row != std::end(kPlaceAbbreviations) && row->name == norm;
  return found ? row->abbreviation : std::string_view();
}

std::string Utf8MarcRecordClass::AbbreviatePlaceName(std::string_view place) const {
  const std::string norm = NormString(place, true, "V");
  if (norm == kQuebec) {
    // Deliberate: the accent stands behind its letter in the 8-bit sets as well.
    std::string quebec = "Que";
    quebec += Utf8() ? kAcuteUtf8 : kAcuteMarc8;
    return quebec + "bec";
  }
  for (const PlaceAbbreviation& row : kRecordPlaceAbbreviations) {
    if (row.name == norm) return std::string(row.abbreviation);
  }
  const std::string_view abbreviation = FindPlaceAbbreviation(norm);
  return std::string(abbreviation.empty() ? place : abbreviation);
}

void Utf8MarcRecordClass::ExpandPlaceAbbreviation(std::string_view abbreviation, std::string& name,
                                                  std::string& qualifier) const {
  const std::string key = cantorel::RemoveSpaces(NormString(abbreviation, true, "V"));
  const auto* row =
      std::lower_bound(std::begin(kPlaceExpansions), std::end(kPlaceExpansions), key,
                       [](const PlaceExpansion& r, std::string_view k) { return r.key < k; });
  const bool found = row != std::end(kPlaceExpansions) && row->key == key;
  name = found ? row->name : std::string_view();
  qualifier = found ? row->country : std::string_view();
}

bool Utf8MarcRecordClass::IndirectSubdivisionFormIsJurisdiction(std::string_view word) {
  const auto contained = [word](std::string_view kind) {
    return word.find(kind) != std::string_view::npos;
  };
  return std::any_of(kJurisdictionWords.begin(), kJurisdictionWords.end(), contained) ||
         std::find(kJurisdictions.begin(), kJurisdictions.end(), word) != kJurisdictions.end();
}

std::string Utf8MarcRecordClass::IndirectSubdivisionForm(std::string_view text) const {
  const auto is_jurisdiction = [this](std::string_view qualifier) {
    return IndirectSubdivisionFormIsJurisdiction(NormString(qualifier, true, "V"));
  };
  const std::string_view whole = TextOfSubfieldA(text);
  auto [place, qualifier] = SplitQualifier(whole);
  std::string_view own_qualifier;
  const std::size_t colon = qualifier.find(" :");
  if (colon == std::string_view::npos) {
    if (is_jurisdiction(qualifier)) return std::string(text);
  } else {
    const std::string_view first = Trim(qualifier.substr(0, colon));
    const std::string_view second = Trim(qualifier.substr(colon + 2));
    if (is_jurisdiction(second)) {
      qualifier = first;
      own_qualifier = second;
    } else if (is_jurisdiction(first)) {
      qualifier = second;
      own_qualifier = first;
    }
  }

  std::string larger_place, country, subdivisions;
  ExpandPlaceAbbreviation(qualifier, larger_place, country);
  if (larger_place.empty()) {
    AppendGeographic(whole, subdivisions);
    return subdivisions;
  }
  AppendGeographic(larger_place, subdivisions);
  AppendGeographic(place, subdivisions);
  if (!own_qualifier.empty()) {
    subdivisions += " (";
    subdivisions += own_qualifier;
    subdivisions += ')';
  }
  return subdivisions;
}

}  // namespace cantorel
