// The parts of a field's order key that come from its text.
//
// Texts are field texts: delimiter, code, text, repeated.

#ifndef CANTOREL_RECORD_FIELD_ORDER_KEY_H_
#define CANTOREL_RECORD_FIELD_ORDER_KEY_H_

#include <string>
#include <string_view>

namespace cantorel {

// Finds the first subfield of a code; `value` receives its text up to the next
// delimiter, trimmed.
bool FindSubfieldText(std::string_view text, char code, std::string_view& value);

// A field and its 880 share the occurrence number in their $6 ("880-01" here,
// "245-01/$1" there).  Adds the link part made of it: delimiter, "6" and three
// digits, "00" for number 0 (no partner), and for an 880 " G" behind, so that it
// follows its partner.  Nothing when the $6 holds no number.
void AppendLinkPart(std::string_view subfield6, bool is_880, std::string& key);

// For headings: the rank of the thesaurus that $2 names, or the name itself.
void AppendThesaurus(std::string_view text, std::string& key);

// For holdings patterns: the $8 with its number before "." brought to three
// digits, and the tag.
void AppendSequence(std::string_view text, std::string_view tag, std::string& key);

// For references: the relationship in $w ("n" without one).
char ReferenceRelationship(std::string_view text);
// The heading of a reference without $w and $5, each delimiter with its code
// made a blank.
std::string ReferenceHeading(std::string_view text);

// For fields of one institution: how its last $5 agrees with the own code.  '5'
// the same, '6' the same up to a hyphen, '9' another or none.
char RateLocal5(std::string_view text, std::string_view own_code);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_FIELD_ORDER_KEY_H_
