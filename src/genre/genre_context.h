// What the steps of the genre conversion share while they read one record.

#ifndef CANTOREL_GENRE_GENRE_CONTEXT_H_
#define CANTOREL_GENRE_GENRE_CONTEXT_H_

#include <string>
#include <string_view>

#include "medium/genre_state.h"
#include "medium/music_650_to_382_class.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

struct GenreContext {
  Music650To382Class& music;
  GenreState& state;
  Utf8MarcRecordClass& record;
  std::string& new_lines;

  // Adds a 655 with a term of the national genre/form thesaurus (source code
  // lcgft).
  void AddGenre(std::string_view term) {
    music.Private_655_AddField(record, "655", " 7", "a", term, "lcgft", new_lines);
  }
};

}  // namespace cantorel

#endif  // CANTOREL_GENRE_GENRE_CONTEXT_H_
