// Of two fields for the same medium the one with counts says more.

#ifndef CANTOREL_MEDIUM_LESSER_RESULTS_H_
#define CANTOREL_MEDIUM_LESSER_RESULTS_H_

#include <cstdint>
#include <string>

#include "medium/string_map.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

// Comparison form to pointer of an existing field, kDealtWith once it is
// settled.
using Existing382Map = StringMap<std::int16_t>;
inline constexpr std::int16_t kDealtWith = -1;
// Comparison form to marked form of a produced field, empty once discarded.
using New382Map = StringMap<std::string>;

// Empties the item of each new field without counts when another new field, or
// an existing one, has the same medium with counts.  An existing field without
// counts is handed to the new one that has them: it is entered under the key of
// the new field, which will replace it.  Moves the record's cursor.
void RemoveLesserResults(Utf8MarcRecordClass& record, Existing382Map& existing_fields,
                         New382Map& new_fields);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_LESSER_RESULTS_H_
