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

TEST(Marc8Character, ReadsAnOctetByItsDesignation) {
  const struct {
    std::string_view set_in;
    std::string_view code;
    std::string_view octets;
    std::string_view utf8;  // "!": an error
  } kCases[] = {
      {"M", "s", "e", "e"},
      {"M", "1", "\xE2", "\xCC\x81"},
      {"M", "(!E", "\x62", "\xCC\x81"},
      {"M", ")!E", "\xE2", "\xCC\x81"},
      {"M", "(N", "\x41", "\xD0\xB0"},
      {"M", ")N", "\xC1", "\xD0\xB0"},
      {"M", "(Q", "\x44", "\xD1\x91"},
      {"M", ")Q", "\xC4", "\xD1\x91"},
      {"M", "(Q", " ", " "},
      {"M", "(4", "\x21", "\xDB\xBD"},
      {"M", ")2", "\xE0", "\xD7\x90"},
      {"M", ")3", "\x9F", "!"},  // never a delimiter out of a high octet
      {"M", ")S", "\xA0", "!"},
      {"M", "g", "c", "\xCE\xB3"},
      {"M", "$1", "!3Q", "\xE5\x88\x83"},
      {"M", "9", " ", " "},
      {"M", "$1", "!3", "!"},
      {"M", "$1", "!!!", "!"},
      {"M", "s", "ab", "!"},
      {"M", "s", "", "!"},
      {"M", "(Z", "A", "!"},
      {"M", "", "A", "!"},
      {"M", "s", "\xFF", "!"},
      {"M", "s", "\xBE", "!"},
      {"O", "s", "\xBE", "\xE2\x84\x93"},
      {"O", "s", "\xC1", "\xE2\x84\x93"},
      {"V", "s", "\xA0", "\xE2\x84\x93"},
      {"V", "s", "\xAF", "\xCE\xB1"},
      {"V", "s", "\xC5", "\xE2\x81\xB5"},
      {"V", "s", "\xC8", "\xE2\x81\xB8"},
      {"M", "s", "\xC8", "\xE2\x82\xAC"},
      {"V", ")N", "\xC1", "\xD0\xB0"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(Inward(test.set_in, test.code, test.octets), test.utf8)
        << test.set_in << test.code << testing::PrintToString(test.octets);
  }
}

TEST(Marc8Character, WritesACharacterForItsVariant) {
  const struct {
    std::string_view set_out;
    std::string_view utf8;
    std::string_view answer;  // "!": an error
  } kCases[] = {
      {"M", "A", "1A"},
      {"M", "\x1F", "1\x1F"},
      {"M", "\xE2\x84\x93", "1\xC1"},
      {"O", "\xE2\x84\x93", "1\xBE"},
      {"V", "\xE2\x84\x93", "1\xA0"},
      {"M", "\xE2\x81\xB0", "40"},
      {"V", "\xE2\x81\xB0", "1\xC0"},
      {"V", "\xC2\xA9", "1\x93"},
      {"O", "\xC2\xA9", "1\xC3"},
      {"V", "\xC3\x9F", "!"},  // C7 is superscript seven there
      {"M", "\xC3\x9F", "1\xC7"},
      {"M", "\xE5\x88\x83", "9!3Q"},
      {"M", "\xC3\xA9", "!"},
      {"M", "\xE2\x80\x8F", "!"},
      {"M", "\xE2\x80\x8D", "1\x8D"},
      {"M", "\x80", "!"},
      {"M", "", "!"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(Outward(test.set_out, test.utf8), test.answer)
        << test.set_out << testing::PrintToString(test.utf8);
  }
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
  const struct {
    std::string_view marc8;
    std::string_view utf8;
  } kCases[] = {
      {"\xE2", "\xCC\x81"},     {"Ms\xE9", "\xCC\x8C"},   {"V1\xA0", "\xE2\x84\x93"},
      {"M(N\x41", "\xD0\xB0"},  {"M(!E\x62", "\xCC\x81"}, {"M$1!3Q", "\xE5\x88\x83"},
      {"\xFF", "\xE5\x88\x83"}, {"M(", "\xE5\x88\x83"},   {"M(N", "\xE5\x88\x83"},
  };
  for (const auto& test : kCases) {
    c.Marc8Char(test.marc8);
    EXPECT_EQ(c.Utf8Char(), test.utf8) << testing::PrintToString(test.marc8);
    EXPECT_EQ(c.UcsHex(), "0041");
  }
}

}  // namespace
}  // namespace cantorel
