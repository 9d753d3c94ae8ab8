// Genre terms that follow from coded data: the format of music (008/20), the
// parts (008/21) and the form of composition (008/18-19, 047 $a).  The codes are
// those of the MARC 21 format for bibliographic data, 008 of music.

#ifndef CANTOREL_GENRE_FIXED_FIELD_GENRES_H_
#define CANTOREL_GENRE_FIXED_FIELD_GENRES_H_

#include <string_view>

#include "genre/genre_context.h"

namespace cantorel {

// The terms of 008/20 and 008/21, and what 008/20 leaves to the end of the
// record.  Only for records of notated music.
void DeriveFromMusicFormat(GenreContext& context);

// The term of a form of composition in comparison form ("FG"); empty for a code
// that stands for no term.
std::string_view GenreOfComposition(std::string_view code);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_FIXED_FIELD_GENRES_H_
