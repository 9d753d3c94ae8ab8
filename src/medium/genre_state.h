// What the genre side of Music650To382Class keeps between calls.

#ifndef CANTOREL_MEDIUM_GENRE_STATE_H_
#define CANTOREL_MEDIUM_GENRE_STATE_H_

#include <cstdint>
#include <string>
#include <vector>

#include "medium/string_map.h"

namespace cantorel {

// The name of a place in an authority file.
struct AuthorizedPlace {
  std::string name;
  std::string source;  // "naf", "lcsh" or "none"
};

struct GenreState {
  // Style words as headings carry them, in parentheses: "(jazz)".
  std::vector<std::string> style_qualifiers;
  // The comparison form of a style word, in lower case, to its genre term.
  StringMap<std::string> style_terms;

  // The table of derivations is built once; a table that was asked for and
  // could not be built is not tried again.  Survives Reset.
  bool table_build_tried = false;
  bool table_built = false;

  // A look-up of a term failed: no term is looked up any more.  Survives Reset.
  bool look_up_offline = false;
  // Names of nationalities, in lower case, to their authorized form, or to
  // kNoNationality (genre/linked_data.h).
  StringMap<std::string> nationalities;
  // Places found, by the comparison forms of the two subdivisions that told them,
  // each behind a "z".
  StringMap<AuthorizedPlace> places;

  // --- Of the record under work ------------------------------------------------

  // For the host, one a line: tag, indicators and text of the headings looked
  // at, and comparison forms of those left out as excerpts.
  std::string candidate_fields;
  std::string excluded_for_excerpts;

  // Existing fields that a derived one may equal: key (tag, code and comparison
  // form of each subfield that counts) to 1000 times the number of the line below
  // (from 1) plus the field's pointer; 0 for a field that is new, negative for
  // one that was rewritten.
  StringMap<std::int32_t> existing_field_keys;
  // Keys of existing 385 and 386 fields as if they had no source.
  StringMap<bool> existing_keys_without_source;
  std::vector<std::string> existing_field_lines;

  bool canons_fugues_heading_seen = false;
  bool canons_or_fugues_assigned = false;
  bool big_band_method_seen = false;
  bool scores_wanted = false;
  bool notated_music_wanted = false;

  // A phrase of the heading's subdivisions was understood.
  bool subdivision_consumed = false;
  // Comparison form of the subdivision met last.
  std::string previous_subdivision;

  // --- Of the heading under work -----------------------------------------------

  std::string current_field_text;
  // Delimiter, "3" and text of its first $3, or empty.
  std::string subfield_3_part;
  bool productive = false;  // it gave a field, subdivisions aside

  // What the walk over a record begins without.
  void BeginRecordPass() {
    candidate_fields.clear();
    excluded_for_excerpts.clear();
    big_band_method_seen = false;
    scores_wanted = false;
    notated_music_wanted = false;
    subdivision_consumed = false;
    previous_subdivision.clear();
    subfield_3_part.clear();
  }

  // What a reset for the next record forgets.
  void ClearRecord() {
    existing_field_keys.RemoveAll();
    existing_keys_without_source.RemoveAll();
    existing_field_lines.clear();
    canons_fugues_heading_seen = false;
    canons_or_fugues_assigned = false;
  }

  // What a reset of every cache forgets.
  void ClearDictionaries() {
    style_qualifiers.clear();
    style_terms.RemoveAll();
    nationalities.RemoveAll();
    places.RemoveAll();
  }
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_GENRE_STATE_H_
