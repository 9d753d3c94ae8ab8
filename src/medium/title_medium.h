// The medium in the $m of a title heading, into the text of a 382.
//
//   "$aSuites,$mviolin, piano"  ->  "$aviolin$apiano"                ReadTitleMedium
//                               ->  "$aviolin$n1$apiano$n1$s2"       CountTitlePerformers
//                               ->  the same with preferred terms, and "$2lcmpt"
//                                                                    VerifyTitlePerformers

#ifndef CANTOREL_MEDIUM_TITLE_MEDIUM_H_
#define CANTOREL_MEDIUM_TITLE_MEDIUM_H_

#include <string>
#include <string_view>

#include "medium/medium_vocabulary.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

// The text of the first $t of a field, or without one of the first $a; empty
// without either.
std::string_view TitleOfHeading(std::string_view field_text);

// Makes the performers of a title heading, from the first $m of its field text.
// False, `text` being of no use, for a medium that names no definite performers
// ("strings", "instrumental ensemble") or names none, and for an arrangement
// ($o), whose $m is that of another work.
bool ReadTitleMedium(const Utf8MarcRecordClass& record, std::string_view field_text,
                     std::string& text);

// Gives every $a and $b its $n: the number behind a "(", which is taken off,
// else 1.  A field without an ensemble ends in their sum, as $s.
void CountTitlePerformers(const Utf8MarcRecordClass& record, std::string& text);

// Replaces every $a and $b by its preferred term, into `result`.  Soloists of an
// ensemble become $b.  When every term is known the field ends in "$2lcmpt".
void VerifyTitlePerformers(MediumVocabulary& vocabulary, Utf8MarcRecordClass& record,
                           std::string_view text, std::string& result);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_TITLE_MEDIUM_H_
