// What stands for characters that records do not hold as they are.
//
// Catalogues keep a letter and its marks apart, use plain punctuation, and once
// wrote some ideographs as private-use characters.

#ifndef CANTOREL_CHARSET_SUBSTITUTES_H_
#define CANTOREL_CHARSET_SUBSTITUTES_H_

#include <cstdint>
#include <string>

namespace cantorel {

// Appends what stands for a character, and answers whether anything does:
//   - a precomposed Latin letter of U+00C0 to U+02FF and U+1E00 to U+1EFF: its
//     base letter and its marks, if all of these are marks that records hold (the
//     line below is U+0332); U+0419 and U+0439 likewise
//   - U+00A0 a blank, U+00AD nothing at all, fractions their digits between
//     blanks; dashes "-" and "--", quotation marks U+2018 to U+201B "'", U+2026
//     "...", U+2122 "[TM]"
//   - a private-use character of older East Asian records (U+E900 to U+EA04): its
//     ideograph
bool AppendSubstitute(std::uint32_t code_point, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_SUBSTITUTES_H_
