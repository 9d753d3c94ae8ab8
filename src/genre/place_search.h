// The authorized name of a place that a heading has in one subdivision or two.
//
// Headings name a place by the larger one and the place itself: $z Massachusetts
// $z Boston.  Its authority record has them in one, "Boston (Mass.)"; so forms are
// made that the record may have, and asked for one by one until one is known.

#ifndef CANTOREL_GENRE_PLACE_SEARCH_H_
#define CANTOREL_GENRE_PLACE_SEARCH_H_

#include <string>
#include <string_view>

#include "medium/music_650_to_382_class.h"

namespace cantorel {

// The source of a name that is in no authority file.
inline constexpr std::string_view kNoPlaceSource = "none";

class PlaceSearch {
 public:
  PlaceSearch(Music650To382Class& music, Utf8MarcRecordClass& scratch_record)
      : music_(music), scratch_record_(scratch_record) {}

  // A place by itself.
  bool FindAlone(std::string_view place);
  // A place within a larger one.
  bool FindWithin(std::string_view larger_place, std::string_view place);
  // A label as the service takes it: comparison form in lower case.
  bool FindLabel(std::string_view label);

  // What was found.
  AuthorizedPlace result;

 private:
  bool Find(std::string_view text) { return FindLabel(LabelOf(text)); }
  bool FindForms(std::string_view larger, bool larger_was_qualified, std::string_view place);
  bool StandsAlone(std::string_view larger, std::string_view place) const;
  bool IsQualifiedBy(std::string_view larger, std::string_view place) const;
  std::string PlaceOfRegion(std::string_view name);

  std::string Norm(std::string_view text) const {
    return scratch_record_.NormString(text, true, "V");
  }
  std::string LabelOf(std::string_view text) const;

  Music650To382Class& music_;
  Utf8MarcRecordClass& scratch_record_;
};

}  // namespace cantorel

#endif  // CANTOREL_GENRE_PLACE_SEARCH_H_
