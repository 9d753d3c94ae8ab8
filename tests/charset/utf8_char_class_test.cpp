#include "charset/utf8_char_class.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "charset/published_unicode.h"

namespace cantorel {
namespace {

using namespace std::string_literals;

// What an object says of its character, after any setter.
struct Forms {
  std::string utf8;
  std::string ucs;
  std::int64_t octet_value;
  std::int16_t octet_count;

  friend bool operator==(const Forms&, const Forms&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Forms& f) {
    return out << testing::PrintToString(f.utf8) << ' ' << testing::PrintToString(f.ucs) << ' '
               << f.octet_value << ' ' << f.octet_count;
  }
};

Forms FormsOf(const Utf8CharClass& c) {
  return {c.Utf8Char(), c.UcsChar(), c.Utf8CharAsc(), c.Utf8CharOctets("")};
}

TEST(Utf8CharClass, BeginsWithoutACharacter) {
  EXPECT_EQ(FormsOf(Utf8CharClass()), (Forms{"", "", 0, 0}));
  EXPECT_EQ(Utf8CharClass().Utf8CharCategory(), "");
  EXPECT_EQ(Utf8CharClass().NormalizationScheme(), "V");
}

TEST(Utf8CharClass, TakesTheFirstCharacterOfAText) {
  const struct {
    std::string text;
    Forms forms;
  } kCases[] = {
      {"Abc", {"A", "\0A"s, 65, 1}},
      {"\xC3\xA9!", {"\xC3\xA9", "\0\xE9"s, 50089, 2}},
      {"\xE2\x84\x93", {"\xE2\x84\x93", "\x21\x13", 0xE28493, 3}},
      {"\x80\x80", {"\x80", "\0\x80"s, 0x80, 1}},
      {"\xE2\x84", {"\xE2\x84", "\0\x84"s, 0xE284, 3}},  // cut off
      {"\xE2"
       "abc",
       {"\xE2"
        "ab",
        "\x28\x62", 0xE26162, 3}},  // bits used unchecked
      {"\xF0\x9D\x84\x9E", {"\xF0\x9D\x84\x9E", "\xD8\x34\xDD\x1E", 0xF09D849E, 4}},
      {"\0x"s, {"\0"s, "\0\0"s, 0, 1}},
  };
  Utf8CharClass c;
  for (const auto& test : kCases) {
    c.Utf8Char(test.text);
    EXPECT_EQ(FormsOf(c), test.forms) << testing::PrintToString(test.text);
  }
}

TEST(Utf8CharClass, AnEmptyTextLeavesNoCharacterButTheLastCount) {
  Utf8CharClass c;
  c.Utf8Char("\xC3\xA9");
  c.Utf8Char("");
  EXPECT_EQ(FormsOf(c), (Forms{"", "", 0, 2}));
}

TEST(Utf8CharClass, UcsCharGoesByItsLength) {
  const struct {
    std::string octets;
    std::string ucs;
    std::string utf8;
  } kCases[] = {
      {"\x21\x13", "\x21\x13", "\xE2\x84\x93"},
      {"x", "\x21\x13", "\xE2\x84\x93"},    // one octet: as it was
      {"xyz", "\x21\x13", "\xE2\x84\x93"},  // three: as it was
      {"\0\xE9zzz"s, "\0\xE9"s, "\xC3\xA9"},
      {"", "", ""},
  };
  Utf8CharClass c;
  for (const auto& test : kCases) {
    c.UcsChar(test.octets);
    EXPECT_EQ(c.UcsChar(), test.ucs) << testing::PrintToString(test.octets);
    EXPECT_EQ(c.Utf8Char(), test.utf8) << testing::PrintToString(test.octets);
  }
}

TEST(Utf8CharClass, TheCategoryIsThatOfTheCharacterLastSet) {
  Utf8CharClass c;
  c.Utf8Char("a");
  EXPECT_EQ(c.Utf8CharCategory(), "Ll");
  c.UcsHex("0301");
  EXPECT_EQ(c.Utf8CharCategory(), "Mn");
  EXPECT_EQ(c.Utf8CharHex(), "CC81");
  EXPECT_EQ(c.UcsHex(), "0301");
}

TEST(Utf8CharClass, SettingTheOctetValueRoundsItsQuotients) {
  const struct {
    std::int64_t value;
    std::string octets;  // of the character that results
  } kCases[] = {
      {65, "A"},
      {0, "\0"s},
      {127, "\x7F"},
      {128, "\x80"},               // 128 / 256 is a tie and goes to 0
      {129, "\x01"},               // above the tie: the octet 1 comes first
      {384, "\x02"},               // 1.5 goes to 2
      {640, "\x02"},               // 2.5 goes to 2
      {32768, "\x80"},             // 0.5 of 65536 goes to 0, then 128
      {50089, "\x01"},             // C3 A9 does not come back
      {0xE28493, "\xE3\x85\x93"},  // both quotients go up
      {-1, ""},
  };
  Utf8CharClass c;
  for (const auto& test : kCases) {
    c.Utf8CharAsc(test.value);
    EXPECT_EQ(c.Utf8Char(), test.octets) << test.value;
  }
}

TEST(Utf8CharClass, SchemeIsPOrV) {
  const std::string kCases[][2] = {{" p ", "P"}, {"PQ", "P"}, {"v", "V"}, {"Q", "V"}, {"", "V"}};
  Utf8CharClass c;
  for (const auto& [given, kept] : kCases) {
    c.NormalizationScheme("P");
    c.NormalizationScheme(given);
    EXPECT_EQ(c.NormalizationScheme(), kept) << given;
  }
}

TEST(Utf8CharClass, UcsAndUtf8AreEachOthersInverse) {
  for (std::uint32_t c = 0; c <= 0xFFFF; ++c) {
    const std::string ucs = {static_cast<char>(c / 256), static_cast<char>(c % 256)};
    ASSERT_EQ(Utf8CharClass::Ucs2Utf8(ucs), Utf8Of(c)) << std::hex << c;
    ASSERT_EQ(Utf8CharClass::Utf82Ucs(Utf8Of(c)), ucs) << std::hex << c;
  }
}

TEST(Utf8CharClass, SurrogatePairsTranslateByTheirOwnRule) {
  // U+1D11E: the third octet is not that of RFC 3629 (9D 84 9E).
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8("\xD8\x34\xDD\x1E"), "\xF0\x90\x9D\x9E");
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8("\xDB\xFF\xDF\xFF"), "\xF4\x80\xBF\xBF");
  EXPECT_EQ(Utf8CharClass::Utf82Ucs("\xF4\x8F\xBF\xBF"), "\xDB\xFF\xDF\xFF");
}

TEST(Utf8CharClass, OtherLengthsComeBackUntranslated) {
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8(""), "");
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8("\xE9"), "\xE9");
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8("abc"), "ab");
  EXPECT_EQ(Utf8CharClass::Ucs2Utf8("abcde"), "ab");
  EXPECT_EQ(Utf8CharClass::Utf82Ucs(""), "");
  EXPECT_EQ(Utf8CharClass::Utf82Ucs("\xE9"), "\0\xE9"s);
  EXPECT_EQ(Utf8CharClass::Utf82Ucs("abcde"), "a");
}

TEST(Utf8CharClass, HexadecimalNotation) {
  const std::string kCases[][2] = {
      {"", ""},
      {"9", "\t"},
      {"E9", "\xC3\xA9"},
      {"00E9", "\xC3\xA9"},
      {"00e9", "\xC3\xA9"},
      {"0E9", "\t"},
      {"ABC", "\xE0\xA8\x8C"},
      {"2113F", "\xE2\x84\x93"},
      {"00G0", "\xC3\xB0"},
      {"D834DD1E", "\xF0\x90\x9D\x9E"},
      {"0041004100", "A"},
  };
  for (const auto& [digits, octets] : kCases) {
    EXPECT_EQ(Utf8CharClass::UcsHex2Utf8(digits), octets) << digits;
  }
  EXPECT_EQ(Utf8CharClass::UcsNumericToUtf8(0xE9), "\xC3\xA9");
  EXPECT_EQ(Utf8CharClass::UcsNumericToUtf8(0x1D11E), Utf8Of(0xD11E));
  EXPECT_EQ(Utf8CharClass::UcsNumericToUtf8(-1), "\xEF\xBF\xBF");
  const std::string kOctets[][2] = {
      {"", ""},      {"1f", "\x1F"},   {"1G", "\x1F"},      {"ff", "\xFF"},
      {"7", "\x07"}, {"12FE", "\xFE"}, {"\xE9\xE9", "\xFF"}};
  for (const auto& [digits, octet] : kOctets) {
    EXPECT_EQ(Utf8CharClass::Hex2Char(digits), octet) << digits;
  }
  EXPECT_EQ(Utf8CharClass::Char2Hex("\xFE"
                                    "A"),
            "FE");
  EXPECT_EQ(Utf8CharClass::Char2Hex(""), "");
}

TEST(Utf8CharClass, OctetValueIsThatOfTheLastFourOctets) {
  EXPECT_EQ(Utf8CharClass::Utf8Asc(""), 0);
  EXPECT_EQ(Utf8CharClass::Utf8Asc("\xFF\xFF\xFF\xFF"), 0xFFFFFFFF);
  EXPECT_EQ(Utf8CharClass::Utf8Asc("zz\x01\x02\x03\x04"), 0x01020304);
}

TEST(Utf8CharClass, FindsTheFirstOctetOfACharacter) {
  const std::string_view text = "a\xE2\x84\x93z";
  const std::int32_t kCases[][2] = {{-3, -3}, {0, 1}, {1, 1}, {2, 2}, {3, 2},
                                    {4, 2},   {5, 5}, {6, 5}, {99, 5}};
  for (const auto& [position, first] : kCases) {
    EXPECT_EQ(Utf8CharClass::Utf8CharFindFirstOctet(text, position), first) << position;
  }
  EXPECT_EQ(Utf8CharClass::Utf8CharFindFirstOctet("\x80\x80\x80", 3), 1);
  EXPECT_EQ(Utf8CharClass::Utf8CharFindFirstOctet("", 3), 0);
}

TEST(Utf8CharClass, NonRomanBeginsWithGreekAndSparesDigitsAndHalfMarks) {
  const std::pair<std::uint32_t, bool> kCases[] = {
      {'a', false},    {0x036F, false}, {0x0370, true},  {0x0416, true}, {0x206F, true},
      {0x2070, false}, {0x2075, false}, {0x209F, false}, {0x20A0, true}, {0xFE1F, true},
      {0xFE20, false}, {0xFE21, false}, {0xFE23, false}, {0xFE24, true}};
  Utf8CharClass c;
  EXPECT_FALSE(c.Utf8CharNonRoman());
  for (const auto& [code_point, non_roman] : kCases) {
    c.Utf8Char(Utf8Of(code_point));
    EXPECT_EQ(c.Utf8CharNonRoman(), non_roman) << std::hex << code_point;
  }
}

TEST(Utf8CharClass, MarcEightSets) {
  const std::pair<std::string, std::vector<std::uint32_t>> kCases[] = {
      {"1",
       {0x00, 'A', 0x7F, 0xA1, 0xA3, 0xA9, 0x01B0, 0x02B9, 0x02BC, 0x02BE, 0x0301, 0x0303, 0x2113,
        0x2117, 0x266D, 0x266F, 0xFE20, 0xFE23}},
      {"3", {0x3001, 0x3042, 0x4E00, 0xAC00}},
      {"5", {0x05D0}},
      {"6", {0x0416, 0x0490}},
      {"7", {0x0627, 0x0679}},
      {"8", {0x03B1}},
      {"?", {0x80, 0xA0, 0xAB, 0xB2, 0xE9, 0x0100, 0x0250, 0x02BF, 0x2075, 0x0905, 0xE000, 0xFFFF}},
  };
  Utf8CharClass c;
  for (const auto& [set, code_points] : kCases) {
    for (std::uint32_t code_point : code_points) {
      c.Utf8Char(Utf8Of(code_point));
      EXPECT_EQ(c.Utf8CharCategoryMarc8(), set) << std::hex << code_point;
    }
  }
  c.Utf8Char("\xF0\x9D\x84\x9E");
  EXPECT_EQ(c.Utf8CharCategoryMarc8(), "?");
}

TEST(Utf8CharClass, NamedCharactersFollowTheCharacterSet) {
  const Utf8CharClass c;
  EXPECT_EQ(c.Marc8Umlaut() + c.Utf8Umlaut(), "\xE8\xCC\x88");
  EXPECT_EQ(c.Marc8Sharp("V") + c.Marc8Sharp("M"), "\x94\xC4");
  EXPECT_EQ(c.Marc8LScript("V") + c.Marc8LScript("O") + c.Marc8LScript("M"), "\xAF\xBE\xC1");
  EXPECT_EQ(c.Utf8LScript(), "\xE2\x84\x93");
  EXPECT_EQ(c.Marc8Beta("M"), "\x1Bgb\x1Bs");
  EXPECT_EQ(c.Marc8Subscript0("") + c.Marc8Subscript0("V"),
            "\x1B"
            "b0\x1B"
            "s\xD0");
  EXPECT_EQ(c.Marc8SuperscriptParensRight("O"), "\x1Bp)\x1Bs");
  EXPECT_EQ(c.Marc8SpacingUnderscore() + c.Utf8SpacingUnderscore(), "__");
  EXPECT_EQ(c.Marc8RightToLeftMarker() + c.Utf8RightToLeftMarker(), "\xE2\x80\x8F");
  // Hangul syllables, not the marks whose octets are CD A1 and CD A0.
  EXPECT_EQ(c.Utf8DoubleWidthLigature() + c.Utf8DoubleWidthTilde(),
            Utf8Of(0xCDA1) + Utf8Of(0xCDA0));
  EXPECT_EQ(c.Utf8NonSortBegin() + c.Utf8NonSortEnd(), "\xC2\x98\xC2\x9C");
  EXPECT_EQ(c.MarcNonSortBegin() + c.MarcNonSortEnd(), "\x88\x89");
}

}  // namespace
}  // namespace cantorel
