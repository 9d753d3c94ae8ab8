// Marks that stand over two letters, in UTF-8 text.
//
// MARC-8 has each as two halves, one on either letter, and in UTF-8 these stay
// halves (U+FE20 to U+FE23) unless the one double mark between the letters
// (U+0360, U+0361) is wanted.

#ifndef CANTOREL_CHARSET_DOUBLE_MARKS_H_
#define CANTOREL_CHARSET_DOUBLE_MARKS_H_

#include <string>
#include <string_view>

namespace cantorel {

// Replaces a left half and the right half of its kind on the very next letter by
// the double mark in the place of the left one.  Halves without their other half
// stay.
std::string JoinHalfMarks(std::string_view text);

// Replaces U+CDA1 and U+CDA0 between two Latin letters by the halves on either.
// These are Hangul syllables: the octets of the double marks, CD A1 and CD A0,
// taken as code points.  Deliberate; kept as data knows it, but Korean text, where
// no Latin letter stands on both sides, is left alone.
std::string SplitMistakenDoubleMarks(std::string_view text);

// Whether a text may hold one of these Hangul syllables.
bool MayHoldMistakenDoubleMarks(std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_DOUBLE_MARKS_H_
