// The end of every heading that gave a field: score subdivisions change the
// field, then the soloists are settled and the $2 is added.

#ifndef CANTOREL_MEDIUM_HEADING_TAIL_H_
#define CANTOREL_MEDIUM_HEADING_TAIL_H_

#include "medium/heading_parse.h"

namespace cantorel {

// Finishes the buffer.  A vocal score adds its accompaniment ("Vocal scores
// with piano"), a solo part takes the place of the last medium ("Solo with
// piano"), a piano score replaces the whole field.
HeadingResult FinishHeading(HeadingParse& parse);

// Cuts the accompaniment off the text of a 382: from each $a up to the next $b,
// or to the end.
void StripAccompaniment(std::string& text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_TAIL_H_
