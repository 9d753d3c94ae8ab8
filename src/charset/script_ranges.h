// The scripts of vernacular text, by ranges of characters.

#ifndef CANTOREL_CHARSET_SCRIPT_RANGES_H_
#define CANTOREL_CHARSET_SCRIPT_RANGES_H_

#include <cstdint>

namespace cantorel {

// The letters by which scripts are named.
inline constexpr char kGreek = 'G';
inline constexpr char kCyrillic = 'C';
inline constexpr char kHebrew = 'H';
inline constexpr char kArabic = 'A';
inline constexpr char kHangul = 'K';      // Korean
inline constexpr char kIdeographs = 'I';  // Chinese characters, of any language
inline constexpr char kKana = 'J';        // Japanese syllables and reading marks

struct ScriptRange {
  std::uint32_t first;  // octet value of the first character
  std::uint32_t last;   // octet value of the last one
  char letter;
};

// In the order in which they are looked through; the order of the letters in an
// answer follows it.
inline constexpr ScriptRange kScriptRanges[] = {
    {0xCDB0, 0xCFBF, kGreek},          {0xD080, 0xD4AF, kCyrillic},   {0xD690, 0xD7BF, kHebrew},
    {0xD880, 0xDBBF, kArabic},         {0xE18480, 0xE187BF, kHangul},  // Jamo
    {0xE1BC80, 0xE1BFBF, kGreek},                                      // Greek Extended
    {0xE2BA80, 0xE2BF95, kIdeographs},                                 // radicals
    {0xE2BFB0, 0xE2BFBB, kIdeographs},                                 // description characters
    {0xE38180, 0xE3829F, kKana},                                       // Hiragana
    {0xE382A0, 0xE383BF, kKana},                                       // Katakana
    {0xE384B0, 0xE3868F, kHangul},                                     // compatibility Jamo
    {0xE38690, 0xE3869F, kKana},                                       // Kanbun
    {0xE387B0, 0xE387BF, kKana},        // Katakana phonetic extensions
    {0xE39080, 0xE4B7BF, kIdeographs},  // extension A
    {0xE4B880, 0xE9BFBF, kIdeographs}, {0xEAB080, 0xED9EAE, kHangul},  // syllables
};

// The script letter of a character by its octet value; '\0' for none.
constexpr char ScriptOf(std::uint32_t octet_value) {
  for (const ScriptRange& range : kScriptRanges) {
    if (octet_value >= range.first && octet_value <= range.last) return range.letter;
  }
  return '\0';
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_SCRIPT_RANGES_H_
