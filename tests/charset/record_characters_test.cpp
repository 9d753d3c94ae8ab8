// Questions that a record answers about characters, in UTF-8 and 8-bit sets.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "charset/octet_category.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

TEST(OctetCategory, EveryOctetOfTheTable) {
  const struct {
    int first;
    int last;
    std::string_view category;
  } kRanges[] = {
      {0, 31, "Cc"},    {32, 32, "Zs"},   {33, 33, "Po"},   {34, 34, "Pi"},   {35, 38, "Po"},
      {39, 39, "Pi"},   {40, 40, "Ps"},   {41, 41, "Pe"},   {42, 44, "Po"},   {45, 45, "Pd"},
      {46, 47, "Po"},   {48, 59, "Nd"},   {60, 60, "Ps"},   {61, 61, "Po"},   {62, 62, "Pe"},
      {63, 64, "Po"},   {65, 90, "Lu"},   {91, 91, "Ps"},   {92, 92, "Po"},   {93, 93, "Pe"},
      {94, 96, "Po"},   {97, 122, "Ll"},  {123, 123, "Ps"}, {124, 124, "Po"}, {125, 125, "Pe"},
      {126, 144, "Po"}, {145, 145, "Ll"}, {146, 159, "Po"}, {160, 160, "Ll"}, {161, 166, "Lu"},
      {167, 174, "Po"}, {175, 175, "Ll"}, {176, 176, "Po"}, {177, 182, "Ll"}, {183, 191, "Po"},
      {192, 198, "So"}, {199, 201, "Nd"}, {202, 207, "Po"}, {208, 227, "Nd"}, {228, 255, "Mn"},
  };
  for (const auto& range : kRanges) {
    for (int octet = range.first; octet <= range.last; ++octet) {
      EXPECT_EQ(CategoryName(OctetCategory(static_cast<char>(octet), 'M')), range.category)
          << octet;
    }
  }
  EXPECT_EQ(OctetCategory('\xC0', 'V'), Category::kNd);
  EXPECT_EQ(OctetCategory('\xC6', 'V'), Category::kNd);
  EXPECT_EQ(OctetCategory('\xBF', 'V'), Category::kPo);
}

TEST(RecordCharacters, LettersGoByTheCharacterSet) {
  Utf8MarcRecordClass record;
  const struct {
    std::string_view character;
    bool in_utf8;
    bool in_marc8;
  } kCases[] = {
      {"a", true, true},          {"Z", true, true},         {"1", false, false},
      {"", false, false},         {"\xC3\xA9", true, false}, {"\xD7\x90", true, false},
      {"\xA1", false, true},      {"\xBD", false, true},     {"\x8A", false, true},
      {"\xFF", false, true},      {"\xA7", false, false},    {"\xC2\xAA", false, false},
      {"\xCC\x81", false, false},
  };
  for (const auto& test : kCases) {
    record.CharacterSetOut("U");
    EXPECT_EQ(record.CharIsAlpha(test.character), test.in_utf8)
        << testing::PrintToString(test.character);
    record.CharacterSetOut("M");
    EXPECT_EQ(record.CharIsAlpha(test.character), test.in_marc8)
        << testing::PrintToString(test.character);
  }
}

TEST(RecordCharacters, CategoryGoesByTheCharacterSet) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.CharCategory("\xC3\xA9"), "Ll");
  EXPECT_EQ(record.CharCategory(":"), "Po");
  record.CharacterSetOut("M");
  EXPECT_EQ(record.CharCategory("\xC3\xA9"), "So");
  EXPECT_EQ(record.CharCategory(":"), "Nd");
  EXPECT_EQ(record.CharCategory(""), "");
  record.CharacterSetOut("V");
  EXPECT_EQ(record.CharCategory("\xC3"), "Nd");
}

TEST(RecordCharacters, RightToLeftIsHebrewAndArabic) {
  const std::pair<std::string_view, bool> kCases[] = {
      {"", false},
      {"Sonate f\xC3\xBCr Klavier", false},
      {"abc \xD7\xA9", true},  // Hebrew
      {"\xD8\xA7", true},      // Arabic
      {"\xD6\x8F", false},     // before U+0590
      {"\xD6\x90", true},      //
      {"\xDB\xBF", true},      //
      {"\xDC\x80", false},     // Syriac
      {"\xE2\x80\xAB"
       "abc\xE2\x80\xAC",
       false},                  // direction controls alone
      {"abc\xD7", false},       // cut off
      {"\xE2\x84\xD7", false},  // inside another character
  };
  for (const auto& [text, expected] : kCases) {
    EXPECT_EQ(Utf8MarcRecordClass::ContainsRightToLeftCharacters(text), expected)
        << testing::PrintToString(text);
  }
}

TEST(RecordCharacters, VernacularScriptsAreListedOnceInTheirOwnOrder) {
  const std::pair<std::string_view, std::string_view> kCases[] = {
      {"", ""},
      {"Dvo\xC5\x99\xC3\xA1k, op. 1\xC2\xB2 \xE2\x81\xB5 \xE2\x99\xAF \xEF\xB8\xA0\xE2\x80\x8D",
       ""},
      {"\xD0\x96 \xCE\xB1 \xD0\x96", "GC"},
      {"\xD7\xA9\xD8\xA7", "HA"},
      {"\xE1\xBC\x80", "G"},
      {"\xED\x95\x9C\xE4\xB8\xAD\xE3\x81\x82\xE3\x82\xA2", "KIJ"},
      {"\xED\x9E\xAE\xED\x9E\xAF", "K"},  // the last of the range, and beyond
      {"\xE3\x90\x80", "I"},
      {"\xD4\xB0", ""},  // Armenian
      {"\xE4\xB8", ""},  // cut off
  };
  for (const auto& [text, scripts] : kCases) {
    EXPECT_EQ(Utf8MarcRecordClass::VernacularDataCharacterize(text), scripts)
        << testing::PrintToString(text);
  }
}

}  // namespace
}  // namespace cantorel
