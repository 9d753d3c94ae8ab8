// Walks all of U+0000 to U+FFFF against the published files.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "charset/published_unicode.h"
#include "charset/unicode_case.h"
#include "charset/unicode_category.h"
#include "charset/utf8_char_class.h"

namespace cantorel {
namespace {

class UnicodeTables : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (published_.empty()) published_ = ReadPublishedCharacters();
  }

  static const PublishedCharacter& Published(std::uint32_t c) { return published_.at(c); }

  // The category before gaps are filled.
  static std::string OwnCategory(std::uint32_t c) {
    if (c == 0xFFFC || c == 0xFFFD) return "";
    const PublishedCharacter& character = Published(c);
    if (!character.category.empty()) {
      return character.decomposition.starts_with("<") ? "ZZ" : character.category;
    }
    if (c == 0x0BE6) return "Nd";
    const bool symbol = c == 0x237C || (c >= 0x239B && c <= 0x23A5) || (c >= 0x23CF && c < 0x2E80);
    return symbol ? "So" : "";
  }

  // The nearest character of the block, in one direction, that has a category.
  static std::string Neighbour(std::uint32_t c, int step) {
    const int block = Published(c).block;
    for (std::uint32_t n = c + step; n <= 0xFFFF && Published(n).block == block; n += step) {
      if (const std::string category = OwnCategory(n); !category.empty()) return category;
    }
    return "";
  }

  static std::string ExpectedCategory(std::uint32_t c) {
    const std::string own = OwnCategory(c);
    if (!own.empty() || Published(c).block < 0 || !Published(c).category.empty()) return own;
    const std::string before = Neighbour(c, -1);
    return before == Neighbour(c, 1) && before != "ZZ" ? before : "";
  }

 private:
  static inline std::vector<PublishedCharacter> published_;
};

TEST_F(UnicodeTables, EveryCategoryFollowsThePublishedFile) {
  Utf8CharClass character;
  for (std::uint32_t c = 0; c <= 0xFFFF; ++c) {
    const std::string expected = ExpectedCategory(c);
    ASSERT_EQ(CategoryName(CategoryOfCodePoint(c)), expected) << std::hex << c;
    ASSERT_EQ(CategoryName(CategoryOf(Utf8Of(c))), expected) << std::hex << c;
    character.Utf8Char(Utf8Of(c));
    ASSERT_EQ(character.Utf8CharCategory(), expected) << std::hex << c;
  }
}

TEST_F(UnicodeTables, CategoriesThatCatalogueTextDependsOn) {
  const struct {
    std::string_view category;
    std::vector<std::uint32_t> code_points;
  } kCases[] = {
      {"Lu", {'A', 0x038B}},
      {"Zs", {' '}},
      {"ZZ", {0x00A0, 0x00AA, 0x00B2, 0x00BC, 0x0132, 0x2002, 0x20A8, 0x2160, 0xFF21}},
      {"Mn", {0x0301, 0x0350, 0x0362}},
      {"Lo", {0x05EB, 0x05EF, 0x098D}},
      {"So", {0x237C, 0x239B, 0x23A5, 0x23CF, 0x2672, 0x2E7F, 0x2E80}},
      {"No", {0x16EE, 0x16F0}},
      {"Cf", {0x180B, 0x180D}},
      {"Me", {0x06DD}},
      {"Po", {0x17D7, 0x17DC}},
      {"Nd", {0x0BE6}},
      {"Cs", {0xD800, 0xDFFF}},
      {"Co", {0xE000, 0xF8FF}},
      {"", {0x0220, 0x03F4, 0x1700, 0x2060, 0xFFFC, 0xFFFD, 0xFFFF, 0x10000, 0x1D11E, 0xFFFFFFFF}},
  };
  for (const auto& test : kCases) {
    for (std::uint32_t c : test.code_points) {
      EXPECT_EQ(CategoryName(CategoryOfCodePoint(c)), test.category) << std::hex << c;
    }
  }
}

TEST(CategoryOf, MalformedOctetsBelongToTheRangeTheirValueFallsInto) {
  const struct {
    std::string_view octets;
    std::string_view category;
  } kCases[] = {
      {"", ""},
      {"\x80", ""},              // a lone continuation octet
      {"\xC3", ""},              // first octets without the rest
      {"\xE2\x82", ""},          //
      {"\xF0\x9D\x84", ""},      //
      {"\xC0\x80", ""},          // U+0000 in two octets
      {"\xE0\x80\x80", ""},      // and in three
      {"\xC3\x41", ""},          // between U+00BF and U+00C0: "Po" and "Lu"
      {"\xC4\x20", ""},          // between U+00FF and U+0100: "Ll" and "Lu"
      {"\xE5\x41\x41", "Lo"},    // in the midst of the ideographs
      {"\xE4\xB8\xFF", "Lo"},    //
      {"\xEE\x20\x20", ""},      // between the surrogates and private use
      {"\xEE\x81\x20", "Co"},    // inside private use
      {"\xEF\xBF\xFF", ""},      // above U+FFFF
      {"\xF0\x9D\x84\x9E", ""},  // U+1D11E, well-formed
      {"\xFF\xFF\xFF\xFF", ""},
      {"\xC3\xA9tude", "Ll"},  // only the first character counts
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(CategoryName(CategoryOf(test.octets)), test.category)
        << testing::PrintToString(test.octets);
  }
}

std::string Upper(std::string_view character) {
  std::string out;
  AppendUpperCase(character, out);
  return out;
}

std::string Lower(std::string_view character) {
  std::string out;
  AppendLowerCase(character, out);
  return out;
}

bool HasMappedScript(const std::string& name) {
  for (const char* script :
       {"LATIN ", "FULLWIDTH LATIN ", "GREEK ", "COPTIC ", "CYRILLIC ", "ARMENIAN ", "GEORGIAN "}) {
    if (name.starts_with(script)) return true;
  }
  return false;
}

// What `mapping`, a field of the published file, makes of U+0000 to U+FFFF.
std::string ExpectedCase(std::uint32_t c, const PublishedCharacter& published,
                         const std::string& mapping) {
  const std::string own = Utf8Of(c);
  if (mapping.empty() || !HasMappedScript(published.name)) return own;
  const std::string partner = Utf8Of(static_cast<std::uint32_t>(std::stoul(mapping, nullptr, 16)));
  // Latin-1 and Extended-A keep the first octet unless the partner is ASCII.
  if (c >= 0x80 && c < 0x180 && partner.size() == 2) return {own[0], partner[1]};
  return partner;
}

TEST_F(UnicodeTables, EveryCaseFollowsThePublishedFile) {
  for (std::uint32_t c = 0; c <= 0xFFFF; ++c) {
    const PublishedCharacter& published = Published(c);
    ASSERT_EQ(Upper(Utf8Of(c)), ExpectedCase(c, published, published.upper)) << std::hex << c;
    ASSERT_EQ(Lower(Utf8Of(c)), ExpectedCase(c, published, published.lower)) << std::hex << c;
  }
}

TEST(Case, OddPartnersAreAsOctetsHaveThem) {
  EXPECT_EQ(Upper("\xC3\xA9"), "\xC3\x89");
  EXPECT_EQ(Upper("\xC3\xBF"), "\xC3\xB8");  // U+00FF to U+00F8, not U+0178
  EXPECT_EQ(Lower("\xC5\xB8"), "\xC5\xBF");  // U+0178 to U+017F, not U+00FF
  EXPECT_EQ(Lower("\xC4\xBF"), "\xC4\x80");  // U+013F to U+0100, not U+0140
  EXPECT_EQ(Lower("\xC4\xB0"), "i");
  EXPECT_EQ(Upper("\xC4\xB1"), "I");
  EXPECT_EQ(Upper("\xC5\xBF"), "S");
  EXPECT_EQ(Upper("\xC2\xB5"), "\xC2\xB5");  // the micro sign is no letter
}

TEST(Case, MalformedOctetsStayAsTheyAre) {
  for (std::string_view octets : {"", "\xC3", "\xC3\x41", "\xA9", "\xE2\x82", "\xC1\xA1",
                                  "\xF0\x90\x90\xA8", "\xFF\xFF\xFF\xFF", "ab"}) {
    EXPECT_EQ(Upper(octets), octets);
    EXPECT_EQ(Lower(octets), octets);
  }
}

TEST_F(UnicodeTables, EveryDecimalDigitHasItsValue) {
  Utf8CharClass character;
  for (std::uint32_t c = 0; c <= 0xFFFF; ++c) {
    const bool is_digit = ExpectedCategory(c) == "Nd";
    const std::string& published = Published(c).digit;
    std::int16_t value = 99;
    ASSERT_EQ(character.Utf8CharVal(Utf8Of(c), value), is_digit) << std::hex << c;
    ASSERT_EQ(value, is_digit && !published.empty() ? std::stoi(published) : 0) << std::hex << c;
  }
}

}  // namespace
}  // namespace cantorel
