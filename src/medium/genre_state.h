// What the genre side of Music650To382Class keeps between calls.

#ifndef CANTOREL_MEDIUM_GENRE_STATE_H_
#define CANTOREL_MEDIUM_GENRE_STATE_H_

#include <string>
#include <vector>

#include "medium/string_map.h"

namespace cantorel {

struct GenreState {
  // Style words as headings carry them, in parentheses: "(jazz)".
  std::vector<std::string> style_qualifiers;
  // The comparison form of a style word, in lower case, to its genre term.
  StringMap<std::string> style_terms;

  // The table of derivations is built once; a table that was asked for and
  // could not be built is not tried again.  Survives Reset.
  bool table_build_tried = false;
  bool table_built = false;

  // Headings of the record under work, for the host: tag, indicators and text
  // of those looked at, and comparison forms of those left out as excerpts, one
  // a line.
  std::string candidate_fields;
  std::string excluded_for_excerpts;

  // What a reset of every cache forgets.
  void ClearDictionaries() {
    style_qualifiers.clear();
    style_terms.RemoveAll();
  }
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_GENRE_STATE_H_
