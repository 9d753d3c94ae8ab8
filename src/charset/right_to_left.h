// Right-to-left fields as the national library writes them in UTF-8.

#ifndef CANTOREL_CHARSET_RIGHT_TO_LEFT_H_
#define CANTOREL_CHARSET_RIGHT_TO_LEFT_H_

#include <string>
#include <string_view>

namespace cantorel {

// True for a text with a Hebrew (U+05D0 to U+05F4) or Arabic (U+0600 to U+06FF)
// character.
bool HasRightToLeftText(std::string_view text);

// Marks the direction of a right-to-left field text for a display that follows
// the Unicode bidirectional algorithm (UAX 9).  Every subfield but $6 ends in a
// right-to-left mark (U+200F), so that its closing punctuation stays with it.  A
// stretch of left-to-right text stands in an embedding (U+202A, U+202C): from its
// first to its last letter or digit, with the bracket that closes one inside, but
// without a final ".".  A subfield that has embeddings keeps them as they are.
std::string MarkDirections(std::string_view field);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_RIGHT_TO_LEFT_H_
