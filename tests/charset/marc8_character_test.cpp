#include "charset/marc8_character.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "charset/utf8_char_class.h"

namespace cantorel {
namespace {

// What TranslateMarc2Utf8OneCharacter gives; "!" for an error.
std::string Inward(std::string_view set_in, std::string_view code, std::string_view octets) {
  std::string utf8 = "?";
  bool changed = false;
  bool error = false;
  Utf8CharClass::TranslateMarc2Utf8OneCharacter(set_in, code, octets, utf8, changed, error);
  EXPECT_EQ(changed, !error && utf8 != octets);
  return error ? "!" + utf8 : utf8;
}

// The short code and the octets that TranslateUtf82MarcOneCharacter gives.
std::string Outward(std::string_view set_out, std::string_view octets) {
  std::string code = "?";
  bool error = false;
  const std::string marc8 =
      Utf8CharClass::TranslateUtf82MarcOneCharacter(set_out, octets, code, error);
  return error ? "!" + code + marc8 : code + marc8;
}

// A high octet never becomes a delimiter or another control.
TEST(Marc8Character, ReadsOctetsByTheirDesignation) {
  const struct {
    std::string_view set_in, code;
    std::string octets;  // each by itself
    std::string utf8;    // "!": an error
  } kCases[] = {
      {"M", "s", "e\x1F\xE2\xC8\xEB\xEC\xFA\xFB\xFF", "e\x1F\u0301\u20AC\uFE20\uFE21\uFE22\uFE23!"},
      {"M", "3", "(A", "\u208DA"},
      {"M", "5", "-\\", "\u05BE\\"},
      {"M", "(3", ",\x1F", "\u060C\x1F"},
      {"M", "(S", "A\xC1", "\u0391!"},
      {"O", "1", "\xBE\xC8", "\u2113\u20AC"},
      {"V", "(B", "\xA0\xAF\xC8\x91", "\u2113\u03B1\u2078!"},
      {"M", "(!E", "\x62", "\u0301"},
      {"M", ")!E", "\xE2", "\u0301"},
      {"M", "(N", "\x41", "\u0430"},
      {"V", ")N", "\xC1\xA0", "\u0430!"},
      {"M", "(Q", "\x44 ", "\u0451 "},
      {"M", ")Q", "\xC4", "\u0451"},
      {"M", ")2", "\xE0", "\u05D0"},
      {"M", ")3", "\x9F\xFF", "!!"},
      {"M", "g", "cx", "\u03B3x"},
      {"M", "9", " A", " !"},
      {"M", "(Z", "A", "!"},
  };
  for (const auto& test : kCases) {
    std::string utf8;
    for (const char octet : test.octets) utf8 += Inward(test.set_in, test.code, {&octet, 1});
    EXPECT_EQ(utf8, test.utf8) << test.set_in << test.code;
  }
  EXPECT_EQ(Inward("M", "$1", "!3Q"), "\u5203");
  for (const char* const octets : {"!3", "!!!", "!3Q!"}) EXPECT_EQ(Inward("M", "$1", octets), "!");
  for (const char* const octets : {"", "ab"}) EXPECT_EQ(Inward("M", "s", octets), "!");
}

// The octet of the sharp s is superscript seven in "V".
TEST(Marc8Character, WritesCharactersForTheirVariant) {
  std::string written;
  for (const char* const letter : {"M", "O", "V"}) {
    for (const char* const character : {"A", "\x1F", "\u2113", "\u2070", "\u00A9", "\u00DF"}) {
      written += Outward(letter, character) + " ";
    }
  }
  EXPECT_EQ(written,
            "1A 1\x1F 1\xC1 40 1\xC3 1\xC7 "
            "1A 1\x1F 1\xBE 40 1\xC3 1\xC7 "
            "1A 1\x1F 1\xA0 1\xC0 1\x93 ! ");
  EXPECT_EQ(Outward("M", "\u5203"), "9!3Q");
  EXPECT_EQ(Outward("M", "\u200D"), "1\x8D");
  for (const char* const none : {"", "\x80", "\u00E9", "\u200F"})
    EXPECT_EQ(Outward("M", none), "!");
}

TEST(Marc8Character, EveryOctetOfAVariantComesBack) {
  for (const char* const letter : {"M", "O", "V"}) {
    for (int octet = 0x80; octet < 0x100; ++octet) {
      const std::string octets(1, static_cast<char>(octet));
      const std::string utf8 = Inward(letter, "s", octets);
      const bool second_octet_of_script_l = *letter == 'O' && octet == 0xC1;
      if (utf8 == "!" || second_octet_of_script_l) continue;
      EXPECT_EQ(Outward(letter, utf8), "1" + octets) << letter << ' ' << octet;
    }
  }
}

TEST(Marc8Character, PlainTextHasItsOwnRuns) {
  const struct {
    std::string_view set_in;
    std::string marc8;
    std::string utf8;
  } kCases[] = {
      {"M",
       "\xE2"
       "et\xE2"
       "e",
       "e\u0301te\u0301"},
      {"M", "\xE8\xE5u\xF0", "u\u0304\u0308\u0327"},
      {"M", "H\033b2\033sO \033gabcg\033s g\033p2", "H\u2082O \u03B1\u03B2\u03B3\u03B3 g\u00B2"},
      {"M", "a\033(NABC\033sb\033", "a\033(NABCb\033"},
      {"M", "\xFF\x80&#x266d;&#xZZ;\xE2", "\xFF\x80\u266D&#xZZ;\u0301"},
      {"V", "m\xC2\xAF", "m\u00B2\u03B1"},
      {"", "\xB2", "\u00F8"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(Utf8CharClass::Marc82Utf8(test.marc8, test.set_in), test.utf8)
        << testing::PrintToString(test.marc8);
  }
}

TEST(Marc8Character, ShortCodesHaveLongOnes) {
  std::string all;
  for (const char* const code : {"1", "2", "3", "4", "5", "6", "7", "8", "9", ":", ";"}) {
    all += Utf8CharClass::TranslateUtf82MarcShortCodeToLong(code) + " ";
  }
  EXPECT_EQ(all, "(B g b p (2 (N (3 (S $1 )Q )4 ");
  for (const char* const other : {"", "0", "<", "66", "(N"}) {
    EXPECT_EQ(Utf8CharClass::TranslateUtf82MarcShortCodeToLong(other), other);
  }
}

TEST(Marc8Character, BecomesTheCurrentOneOnTheUtf8SideAlone) {
  Utf8CharClass c;
  c.Utf8Char("A");
  std::string taken;
  for (const char* const marc8 : {"\xE2", "Ms\xE9", "V1\xA0", "M(N\x41", "M(!E\x62", "M$1!3Q"}) {
    c.Marc8Char(marc8);
    taken += c.Utf8Char();
  }
  EXPECT_EQ(taken, "\u0301\u030C\u2113\u0430\u0301\u5203");
  for (const char* const none : {"\xFF", "M(", "M(N"}) c.Marc8Char(none);
  EXPECT_EQ(c.Utf8Char(), "\u5203");
  EXPECT_EQ(c.UcsHex(), "0041");
}

}  // namespace
}  // namespace cantorel
