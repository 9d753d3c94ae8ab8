// Geographic subdivisions into places of origin, 370.

#include <string>
#include <string_view>
#include <utility>

#include "genre/field_message.h"
#include "genre/place_search.h"
#include "genre/region_names.h"
#include "medium/music_650_to_382_class.h"
#include "record/place_names.h"

namespace cantorel {
namespace {

constexpr std::string_view kAnySubject = "6XX";

// An island within a country that has its name as well: the authority file knows
// it by itself only.
constexpr std::string_view kIslandOfTrinidad = "zTRINIDAD AND TOBAGOzTRINIDAD";
constexpr std::string_view kTrinidadLabel = "trinidad";

bool FindPlace(PlaceSearch& search, std::string_view first_z, std::string_view second_z,
               std::string_view key) {
  bool found = false;
  if (first_z.empty() || second_z.empty()) {
    found = search.FindAlone(first_z.empty() ? second_z : first_z);
  } else {
    found = search.FindWithin(first_z, second_z);
  }
  return found || (key == kIslandOfTrinidad && search.FindLabel(kTrinidadLabel));
}

}  // namespace

void Music650To382Class::Private_655_AddPlace(Utf8MarcRecordClass& record,
                                              Utf8MarcRecordClass& scratch_record,
                                              std::string_view first_z, std::string_view second_z,
                                              std::string& new_lines, std::string& /*spare*/,
                                              bool& found) {
  std::string name, source;
  Private_655_ReconstructPlace(first_z, second_z, name, source, scratch_record, found);
  if (!found) return AddFieldMessage(*this, "No 370 for $z", record);
  if (source == kNoPlaceSource) source.clear();
  Private_655_AddField(record, "370", "  ", "g", name, source, new_lines);
}

void Music650To382Class::Private_655_ReconstructPlace(std::string_view first_z,
                                                      std::string_view second_z, std::string& name,
                                                      std::string& source,
                                                      Utf8MarcRecordClass& scratch_record,
                                                      bool& found) {
  name.clear();
  source.clear();
  std::string key = "z";
  scratch_record.AppendNormString(first_z, true, key);
  key += 'z';
  scratch_record.AppendNormString(second_z, true, key);

  const AuthorizedPlace* place = genre_.places.Find(key);
  if (place == nullptr) {
    PlaceSearch search(*this, scratch_record);
    if (FindPlace(search, first_z, second_z, key)) {
      genre_.places.Add(key, std::move(search.result));
      place = genre_.places.Find(key);
    }
  }
  found = place != nullptr;
  if (found) {
    name = place->name;
    source = place->source;
  }
  Private_655_AddMessage(found ? "Place found" : "Reconstructed $z not found", kAnySubject, key);
}

void Music650To382Class::Private_655_TestRegionName(std::string_view text, std::string& remainder,
                                                    Utf8MarcRecordClass& /*scratch_record*/,
                                                    bool& found) {
  found = SplitRegionName(text, remainder);
}

std::string Music650To382Class::Private_655_AbbreviatePlaceName(
    std::string_view text, Utf8MarcRecordClass& scratch_record) {
  const std::string_view abbreviation =
      FindPlaceAbbreviation(scratch_record.NormString(text, true, "V"));
  return std::string(abbreviation.empty() ? text : abbreviation);
}

}  // namespace cantorel
