// What is concluded at the end of a record, when all its headings are read.

#ifndef CANTOREL_GENRE_CLOSING_PASSES_H_
#define CANTOREL_GENRE_CLOSING_PASSES_H_

#include <cstdint>

#include "genre/genre_context.h"
#include "platform/field_selection.h"

namespace cantorel {

// What becomes of "Canons, fugues, etc.", which stands for two genres.
enum CanonsMode : std::int32_t {
  kCanonsMessage = 0,  // a message says that none was assigned
  kCanonsAssign = 1,   // both are assigned
  kCanonsAsk = 2,      // the user chooses
};

// Popular music, notated music, canons and fugues, scores: in this order.
// `selector` is asked in mode kCanonsAsk; null counts as a cancelled choice.
void ConcludeRecord(GenreContext& context, std::int32_t canons_mode, FieldSelector* selector);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_CLOSING_PASSES_H_
