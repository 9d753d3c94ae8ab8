// The first word of a heading chooses how the rest is read.

#ifndef CANTOREL_MEDIUM_HEADING_DISPATCH_H_
#define CANTOREL_MEDIUM_HEADING_DISPATCH_H_

#include <string_view>

#include "medium/heading_parse.h"

namespace cantorel {

// A row of the dispatch table.  What `literal` means is up to the reader;
// `field` is written with "$" for the delimiter.
struct HeadingBranch {
  std::string_view first_word;  // comparison form
  Outcome (*read)(HeadingParse& parse, const HeadingBranch& branch);
  std::string_view literal = {};
  std::string_view field = {};
  bool marks_interest = true;  // unless it leaves the heading to the general patterns
};

// Reads a heading by its first word.  kGeneral for a word that has no branch.
Outcome ReadByFirstWord(HeadingParse& parse);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_DISPATCH_H_
