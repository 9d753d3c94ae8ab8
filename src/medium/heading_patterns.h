// The patterns for headings that no first word decides: "Flute music",
// "Violin and piano music", "Piano music (4 hands)", "Saxophone with orchestra"
// and the headings that the derivation table lists one by one.

#ifndef CANTOREL_MEDIUM_HEADING_PATTERNS_H_
#define CANTOREL_MEDIUM_HEADING_PATTERNS_H_

#include "medium/heading_parse.h"

namespace cantorel {

Outcome ReadByPattern(HeadingParse& parse);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_PATTERNS_H_
