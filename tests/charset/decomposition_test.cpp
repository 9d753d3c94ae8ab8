#include "charset/decomposition.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "charset/substitutes.h"
#include "charset/utf8.h"
#include "charset/utf8_char_class.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// What stands for each of the characters, in brackets; those without stay.
std::string Replaced(std::string_view characters) {
  std::string all;
  for (std::size_t i = 0; i < characters.size();) {
    const std::string_view character = Utf8CharAt(characters, i);
    i += character.size();
    std::string replacement;
    const bool found = Utf8CharClass::SubstituteUtf8Char(character, replacement);
    all += found ? "[" + replacement + "]" : replacement;
  }
  return all;
}

TEST(Substitutes, StandForACharacterOrDoNot) {
  EXPECT_EQ(
      Replaced("\u00E9\u1EA5\u1E69\u01FD\u1E9B\u0149\u0439"),
      "[e\u0301][a\u0302\u0301][s\u0323\u0307][\u00E6\u0301][\u017F\u0307][\u02BCn][\u0438\u0306]");
  EXPECT_EQ(Replaced("\u1E0F"), "[d\u0332]") << "the line below is the underscore";
  for (const char* const kept : {"\u01A1", "\u1EDB", "\u0219", "\u0200"}) {
    EXPECT_EQ(Replaced(kept), kept) << "horn, comma below, double grave";
  }
  EXPECT_EQ(Replaced("A\u0451\u00C6\u212B\u201C\uE8B1"), "A\u0451\u00C6\u212B\u201C\uE8B1");
  EXPECT_EQ(Replaced("\u00A0\u00AD\u00BD\u2010\u2015\u201B\u2026\u2122"),
            "[ ][][ 1/2 ][-][--]['][...][[TM]]");
  EXPECT_EQ(Replaced("\uE930\uEA03"), "[\u4E99][\U00022C4D]");
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
    std::string text, decomposed;
  } kCases[] = {
      {"", ""},
      {"e\u0301  a", "e\u0301  a"},
      {"Dvo\u0159\u00E1k", "Dvor\u030Ca\u0301k"},
      {"1  2\u00BD in", "1 2 1/2 in"},  // a changed text has its blanks closed up
      // The quotation mark before ASCII, before a letter that is replaced by it,
      // at the end; not before another script.
      {"\u201Ca\u201D", "\"a\""},
      {"\u201C\u00C9", "\"E\u0301"},
      {"\u201C\u0412\u201D", "\u201C\u0412\""},
      // Double marks become halves about the next character.
      {"t\u0361sa", "t\uFE20s\uFE21a"},
      {"n\u0360\u00E9", "n\uFE22e\uFE23\u0301"},
      {"t\u0361s", "t\uFE20s"},
      {"t\u0361\037bx", "t\uFE20\037bx"},
      // Octets that are no character stay.
      {"\x80\x81\u00E9\xE2\x80",
       "\x80\x81"
       "e\u0301\xE2\x80"},
      {"\xC3\u00E9\xA9x", "\xC3\u00E9\xA9x"},
  };
  Utf8MarcRecordClass record;
  for (const auto& test : kCases) {
    bool changed = false;
    EXPECT_EQ(record.DecomposeUnicodeCharactersInString(test.text, changed), test.decomposed);
    EXPECT_EQ(changed, test.text != test.decomposed) << test.text;
  }
}

TEST(WindowsText, BecomesMarcEight) {
  const auto marc8 = [](std::string_view windows) {
    return Utf8MarcRecordClass::MsoftAscii2Marc(windows, "L2M");
  };
  EXPECT_EQ(marc8("\037aplain \x93\xE9t\xE9\x94\x85\x96\x99"),
            "\037aplain \"\xE2"
            "et\xE2"
            "e\"...-[TM]");
  EXPECT_EQ(marc8("\x80\xDF\x9C\xA0.m\xB2\xAB"), "\xC8\xC7\xB6 .m\033p2\033s\033(S0\033(B");
  EXPECT_EQ(marc8("\x95\x81"), "&#x2022;&#x0081;");
}

}  // namespace
}  // namespace cantorel
