#include "genre/place_search.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "charset/octet_text.h"
#include "genre/heading_lists.h"
#include "record/safe_text.h"

namespace cantorel {
namespace {

// Files of authorized names, in the order in which they are asked.
constexpr std::array<std::string_view, 2> kVocabularies = {"naf", "lcsh"};

// A place so qualified is not named by a larger one.
constexpr std::array<std::string_view, 3> kFormerJurisdictions = {"EXTINCT", "KINGDOM", "DUCHY"};
// Nor is a place in one of these.
constexpr std::array<std::string_view, 4> kUnnamedLargerPlaces = {"ANTARCTICA", "AUSTRALIA",
                                                                  "YUGOSLAVIA", "MALAYSIA"};

template <std::size_t kSize>
bool Holds(const std::array<std::string_view, kSize>& texts, std::string_view text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool IsQualified(std::string_view name) {
  return name.find('(') != std::string_view::npos;
}

// From the "(" on; empty without one.
std::string_view QualifierOf(std::string_view name) {
  return From(name, name.find('('));
}

std::string_view WithoutPoint(std::string_view text) {
  if (text.ends_with('.')) text.remove_suffix(1);
  return text;
}

std::string Join(std::string_view place, std::string_view larger) {
  std::string joined(place);
  joined += ' ';
  joined += larger;
  return joined;
}

// "Boston (Mass.)"; with a qualifier of its own, "Boston (Mass. : Suffolk County)".
std::string Qualify(std::string_view place, std::string_view larger) {
  const std::size_t open = place.find('(');
  std::string qualified(place.substr(0, open));
  qualified += open == std::string_view::npos ? " (" : "(";
  qualified += larger;
  if (open == std::string_view::npos) return qualified + ')';
  qualified += " : ";
  qualified += place.substr(open + 1);
  return qualified;
}

}  // namespace

std::string PlaceSearch::LabelOf(std::string_view text) const {
  return LowerCase(Norm(text));
}

bool PlaceSearch::FindLabel(std::string_view label) {
  if (label.empty()) return false;  // it would be part of any name
  for (const std::string_view vocabulary : kVocabularies) {
    bool found = false;
    music_.Private_655_LookUpTerm(vocabulary, label, result.name, scratch_record_, found);
    if (!found) continue;
    result.source = vocabulary;
    return true;
  }
  return false;
}

// --- A place by itself -------------------------------------------------------------

bool PlaceSearch::FindAlone(std::string_view place) {
  place = WithoutPoint(place);
  // The comparison form is without the apostrophe, by which alone it is known.
  if (FindLabel(ReplaceCharacters(LabelOf(place), "cote divoire", "cote d'ivoire"))) return true;
  const std::string place_of_region = PlaceOfRegion(place);
  return !place_of_region.empty() && Find(place_of_region);
}

std::string PlaceSearch::PlaceOfRegion(std::string_view name) {
  std::string place;
  bool found = false;
  music_.Private_655_TestRegionName(name, place, scratch_record_, found);
  return place;
}

// --- A place within a larger one -----------------------------------------------------

bool PlaceSearch::StandsAlone(std::string_view larger, std::string_view place) const {
  const std::string_view qualifier = QualifierOf(place);
  return Holds(kFormerJurisdictions, Norm(qualifier.substr(0, qualifier.find(' ')))) ||
         Holds(kUnnamedLargerPlaces, Norm(larger));
}

bool PlaceSearch::IsQualifiedBy(std::string_view larger, std::string_view place) const {
  return IsQualified(place) && Norm(QualifierOf(place)).find(Norm(larger)) != std::string::npos;
}

// Part of a place is looked for by its own name, then by that of the place.  It
// goes into the field by its own name either way, which is deliberate, and then
// without a source.
bool PlaceSearch::FindWithin(std::string_view larger_place, std::string_view place) {
  std::string larger(larger_place);
  std::string sought(WithoutPoint(place));
  std::string region;
  const std::string place_of_region = PlaceOfRegion(sought);
  for (bool by_own_name = true;; by_own_name = false) {
    if (StandsAlone(larger, sought)) return FindAlone(sought);
    const bool larger_was_qualified = IsQualified(larger);
    larger = music_.Private_655_AbbreviatePlaceName(larger, scratch_record_);
    if (IsQualifiedBy(larger, sought)) return FindAlone(sought);
    if (by_own_name && !place_of_region.empty()) region = Qualify(sought, larger);
    if (FindForms(larger, larger_was_qualified, sought)) break;
    if (!by_own_name || place_of_region.empty()) return false;
    sought = place_of_region;
  }
  if (!region.empty()) result = {region, std::string(kNoPlaceSource)};
  return true;
}

// The qualifier of the larger place, as in "Georgia (Republic)", is left out at
// last; one that went with the abbreviation makes the first form come again.
bool PlaceSearch::FindForms(std::string_view larger, bool larger_was_qualified,
                            std::string_view place) {
  if (Find(Qualify(place, larger))) return true;
  if (IsQualified(place) && Find(Join(place, larger))) return true;
  if (!larger_was_qualified) return false;
  const std::string_view bare = larger.substr(0, larger.find('('));
  if (Find(Join(place, bare))) return true;
  return IsQualified(place) && Find(Qualify(place, bare));
}

}  // namespace cantorel
