#include "charset/decomposition.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "charset/substitutes.h"
#include "charset/utf8.h"
#include "charset/utf8_char_class.h"
#include "charset/utf8_code_point.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// A code point's octets and, behind it, those of what stands for it.
std::string Octets(std::u32string_view characters) {
  std::string octets;
  for (const char32_t c : characters) AppendUtf8(c, octets);
  return octets;
}

TEST(Substitutes, StandForACharacterOrDoNot) {
  const struct {
    std::u32string_view character;
    std::u32string_view substitute;  // the same: there is none
  } kCases[] = {
      {U"\u00E9", U"e\u0301"},
      {U"\u1EA5", U"a\u0302\u0301"},
      {U"\u1E69", U"s\u0323\u0307"},
      {U"\u01FD", U"\u00E6\u0301"},
      {U"\u1E9B", U"\u017F\u0307"},
      {U"\u1E0F", U"d\u0332"},  // the line below is the underscore
      {U"\u0149", U"\u02BCn"},
      {U"\u0439", U"\u0438\u0306"},
      {U"\u0451", U"\u0451"},
      {U"\u01A1", U"\u01A1"},  // horn, comma below, double grave
      {U"\u1EDB", U"\u1EDB"},
      {U"\u0219", U"\u0219"},
      {U"\u0200", U"\u0200"},
      {U"\u00C6", U"\u00C6"},
      {U"\u00A0", U" "},
      {U"\u00AD", U""},
      {U"\u00BD", U" 1/2 "},
      {U"\u2015", U"--"},
      {U"\u201B", U"'"},
      {U"\u201C", U"\u201C"},
      {U"\u2026", U"..."},
      {U"\u2122", U"[TM]"},
      {U"\u212B", U"\u212B"},
      {U"\uE930", U"\u4E99"},
      {U"\uEA03", U"\U00022C4D"},
      {U"\uE8B1", U"\uE8B1"},  // once a Hangul letter
      {U"A", U"A"},
  };
  for (const auto& test : kCases) {
    const std::string octets = Octets(test.character);
    std::string replacement;
    EXPECT_EQ(Utf8CharClass::SubstituteUtf8Char(octets, replacement),
              test.character != test.substitute)
        << testing::PrintToString(octets);
    EXPECT_EQ(replacement, Octets(test.substitute)) << testing::PrintToString(octets);
  }
}

TEST(Substitutes, PrivateIdeographsAreAllThere) {
  int count = 0;
  std::string out;
  for (std::uint32_t code_point = 0xE000; code_point < 0xF900; ++code_point) {
    if (AppendSubstitute(code_point, out)) ++count;
  }
  EXPECT_EQ(count, 234);
}

TEST(Decomposition, TakesTextApart) {
  const struct {
    std::string_view text;
    std::string_view decomposed;
  } kCases[] = {
      {"", ""},
      {"plain  text", "plain  text"},
      {"e\xCC\x81  a", "e\xCC\x81  a"},
      {"Dvo\xC5\x99\xC3\xA1k",
       "Dvor\xCC\x8C"
       "a\xCC\x81k"},
      {"1  2\xC2\xBD in", "1 2 1/2 in"},  // a changed text has its blanks closed up
      // The quotation mark before ASCII, before a letter that is replaced by it,
      // at the end; not before another script.
      {"\xE2\x80\x9C"
       "a\xE2\x80\x9D",
       "\"a\""},
      {"\xE2\x80\x9C\xC3\x89", "\"E\xCC\x81"},
      {"\xE2\x80\x9C\xD0\x92\xE2\x80\x9D", "\xE2\x80\x9C\xD0\x92\""},
      {"\xE2\x80\x9C\xD0\x92", "\xE2\x80\x9C\xD0\x92"},
      // Double marks become halves about the next character.
      {"t\xCD\xA1sa",
       "t\xEF\xB8\xA0s\xEF\xB8\xA1"
       "a"},
      {"n\xCD\xA0\xC3\xA9",
       "n\xEF\xB8\xA2"
       "e\xEF\xB8\xA3\xCC\x81"},
      {"t\xCD\xA1s", "t\xEF\xB8\xA0s"},
      {"t\xCD\xA1", "t\xEF\xB8\xA0"},
      {"t\xCD\xA1\x1F"
       "bx",
       "t\xEF\xB8\xA0\x1F"
       "bx"},
      // Octets that are no character stay.
      {"\x80\x81\xC3\xA9\xE2\x80",
       "\x80\x81"
       "e\xCC\x81\xE2\x80"},
      {"\xC3\xC3\xA9\xA9x", "\xC3\xC3\xA9\xA9x"},
  };
  Utf8MarcRecordClass record;
  for (const auto& test : kCases) {
    bool changed = false;
    EXPECT_EQ(record.DecomposeUnicodeCharactersInString(test.text, changed), test.decomposed)
        << testing::PrintToString(test.text);
    EXPECT_EQ(changed, test.text != test.decomposed) << testing::PrintToString(test.text);
  }
}

TEST(WindowsText, BecomesMarcEight) {
  const struct {
    std::string_view windows;
    std::string_view marc8;
  } kCases[] = {
      {"\x1F"
       "aplain",
       "\x1F"
       "aplain"},
      {"\xE9t\xE9",
       "\xE2"
       "et\xE2"
       "e"},
      {"\x93"
       "a\x94\x85\x96\x99",
       "\"a\"...-[TM]"},
      {"\x80\xDF\x9C\xA0.", "\xC8\xC7\xB6 ."},
      {"m\xB2", "m\x1Bp2\x1Bs"},
      {"\xAB", "\x1B(S0\x1B(B"},
      {"\x95\x81", "&#x2022;&#x0081;"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(Utf8MarcRecordClass::MsoftAscii2Marc(test.windows, "L2M"), test.marc8)
        << testing::PrintToString(test.windows);
  }
}

}  // namespace
}  // namespace cantorel
