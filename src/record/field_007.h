// Field 007 in the subfielded form that some systems export.

#ifndef CANTOREL_RECORD_FIELD_007_H_
#define CANTOREL_RECORD_FIELD_007_H_

#include <string>
#include <string_view>

namespace cantorel {

// The fixed string of a 007 whose positions stand in subfields: $a the category
// of material, each other code at the position that MARC 21 gives it in that
// category, fill characters elsewhere.  In an unknown category every delimiter
// becomes a fill character and nothing else changes.
std::string RebuildSubfielded007(std::string_view text);

// The length of a 007 by category of material; 0 for an unknown category.
int Length007(char category);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FIELD_007_H_
