// The comparison form of characters: upper case, no diacritics, most
// punctuation turned into blanks.
//
// Headings, vocabulary keys and field keys are all compared by this form.  The
// form of a character is a table look-up by code point; ASCII takes a straight
// path.  Text is expected decomposed (base letter, then combining mark): a
// precomposed small letter has no form and vanishes.

#ifndef CANTOREL_NORMALIZE_CHARACTER_NORM_H_
#define CANTOREL_NORMALIZE_CHARACTER_NORM_H_

#include <string>
#include <string_view>

namespace cantorel {

// What a comparison form keeps as it stands.  The plain form keeps none of
// these: a delimiter vanishes, the others become blanks.
struct NormKeeps {
  bool delimiter = false;
  bool at_sign = false;
  bool comma = false;
  bool hyphen = false;
};

// Appends the comparison form of one UTF-8 character (its octets as they stand
// in a text) to `out`.  `keep_at_sign` keeps "@" as the NACO comparison wants
// it, otherwise "@" is a blank.  `keep_delimiter` keeps the subfield delimiter,
// which otherwise vanishes with the other control characters.
//
// A malformed character goes by the category of its octet value: it vanishes,
// becomes a blank, or stays as it is.
void AppendCharacterNorm(std::string_view character, bool keep_at_sign, bool keep_delimiter,
                         std::string& out);

// The comparison form of a UTF-8 text, appended to `out`: every character by
// AppendCharacterNorm, runs of blanks reduced to one, and with `trim` no blank
// at either end.  Blanks that `out` ended in before the call are left alone.
// `keep_delimiter` as above.
void AppendUtf8Norm(std::string_view text, bool trim, bool keep_delimiter, std::string& out);
// The same with a choice of what is kept.
void AppendUtf8Norm(std::string_view text, bool trim, const NormKeeps& keeps, std::string& out);

// The same for text in one of the 8-bit sets: `set` is 'V', 'M' or 'O'.  Any
// other letter gives nothing.  A delimiter becomes a blank and its subfield code
// vanishes; of MARC-8 escape sequences only the three Greek symbols count, and
// in set 'V' the text ends at the first escape.
void AppendOctetNorm(std::string_view text, bool trim, char set, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_NORMALIZE_CHARACTER_NORM_H_
