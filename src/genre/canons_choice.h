// The user's choice between the two genres of "Canons, fugues, etc.".

#ifndef CANTOREL_GENRE_CANONS_CHOICE_H_
#define CANTOREL_GENRE_CANONS_CHOICE_H_

#include "genre/genre_context.h"
#include "platform/field_selection.h"

namespace cantorel {

// Asks which of 655 "Canons" and "Fugues" to add, both selected at first, and
// adds them to the record itself, not to the new lines.
void ChooseCanons(GenreContext& context, FieldSelector* selector);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_CANONS_CHOICE_H_
