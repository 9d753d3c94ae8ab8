// The NACO comparison form: what keeps names and dates apart that the plain
// comparison form makes one.
//
// "Smith, John" keeps the comma between the parts of a name, and "1900-" the
// hyphen of an open date.  The 8-bit sets have no such form: theirs is the plain
// one.

#ifndef CANTOREL_NORMALIZE_NACO_NORM_H_
#define CANTOREL_NORMALIZE_NACO_NORM_H_

#include <string>
#include <string_view>

#include "normalize/character_norm.h"

namespace cantorel {

// The plain form of a text in a character set of the record class: 'U', or one
// of the 8-bit sets as AppendOctetNorm takes them.
void AppendTextNorm(std::string_view text, bool trim, char set, bool keep_delimiter,
                    std::string& out);

// What the form of a subfield keeps.  `scheme` "P" keeps "@", the commas of a $a
// and the hyphen of a $d; the last two only in the fields of names, and only for
// the format letters "A" and "B".  Any other scheme keeps nothing.
NormKeeps NacoKeeps(std::string_view scheme, std::string_view format, std::string_view tag,
                    std::string_view code);

// Appends the form of a subfield text, trimmed.  With keeps.comma a comma at the
// end goes; with keeps.hyphen the hyphens of a closed date, one that neither
// begins nor ends with a hyphen, become blanks.  `trim` says only whether blanks
// at the ends go before that is judged.
void AppendNacoNorm(std::string_view text, bool trim, char set, const NormKeeps& keeps,
                    std::string& out);

// Appends the form of a name: when a comma stands before the last octet, the
// part before the first comma, a comma and a blank, and the part behind it,
// which alone goes by `keep_delimiter`.  False, with nothing appended, when there
// is no such comma.
bool AppendInvertedNameNorm(std::string_view name, char set, bool keep_delimiter, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_NACO_NORM_H_
