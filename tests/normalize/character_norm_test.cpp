// The comparison forms of characters, against the Unicode Character Database and
// the tables of exceptions.

#include "normalize/character_norm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "charset/published_unicode.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"

namespace cantorel {
namespace {

const std::vector<PublishedCharacter>& Published() {
  static const std::vector<PublishedCharacter> characters = ReadPublishedCharacters();
  return characters;
}

std::uint32_t Hex(const std::string& digits) {
  return static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16));
}

std::string Norm(std::string_view character, bool keep_at_sign = false,
                 bool keep_delimiter = false) {
  std::string norm;
  AppendCharacterNorm(character, keep_at_sign, keep_delimiter, norm);
  return norm;
}

std::string NormOf(std::uint32_t code) {
  return Norm(Utf8Of(code));
}

std::string TextNorm(std::string_view text, bool trim = true) {
  std::string norm;
  AppendUtf8Norm(text, trim, false, norm);
  return norm;
}

std::string Named(std::uint32_t code) {
  std::ostringstream name;
  name << "U+" << std::hex << std::uppercase << code;
  return name.str();
}

bool IsCompatibility(const PublishedCharacter& character) {
  return character.decomposition.starts_with('<');
}

std::uint32_t CanonicalBase(std::uint32_t code) {
  const PublishedCharacter& character = Published()[code];
  const bool decomposes = !character.decomposition.empty() && !IsCompatibility(character);
  return decomposes ? CanonicalBase(Hex(character.decomposition)) : code;
}

// The Latin capitals that have a form.
const std::map<std::string, std::string> kLatinCapitals = {
    {"A", "0100 0102 0104 01CD 01DE 01E0 01FA 0200 0202 0226"},
    {"AE", "00C6 01E2 01FC"},
    {"B", "0181 0182"},
    {"C", "0106 0108 010A 010C 0187"},
    {"D", "010E 0110 0189 018A 018B"},
    {"E", "0112 0114 0116 0118 011A 018E 0190 0204 0206 0228"},
    {"F", "0191"},
    {"G", "011C 011E 0120 0122 0193 01E4 01E6 01F4"},
    {"H", "0124 0126 021E"},
    {"I", "0128 012A 012C 012E 0130 0197 01CF 0208 020A"},
    {"J", "0134"},
    {"K", "0136 0198 01E8"},
    {"L", "0139 013B 013D 0141"},
    {"M", "019C"},
    {"N", "0143 0145 0147 019D 01F8"},
    {"NG", "014A"},
    {"O", "00D8 014C 014E 0150 0186 019F 01A0 01D1 01EA 01EC 01FE 020C 020E"},
    {"OE", "0152"},
    {"OI", "01A2"},
    {"P", "01A4"},
    {"R", "0154 0156 0158 0210 0212"},
    {"S", "015A 015C 015E 0160 0218"},
    {"T", "0162 0164 0166 01AC 01AE 021A"},
    {"TH", "00DE"},
    {"U", "0168 016A 016C 016E 0170 0172 01AF 01D3 01D5 01D7 01D9 01DB 0214 0216"},
    {"V", "01B2"},
    {"W", "0174"},
    {"Y", "0176 0178 01B3"},
    {"YR", "01A6"},
    {"Z", "0179 017B 017D 01B5 0224"},
};

// Every other letter whose form the rules do not give.
const std::map<std::uint32_t, std::string> kOtherLetters = {
    // Small letters.
    {0x00DF, "SS"},
    {0x00E6, "AE"},
    {0x00F0, "D"},
    {0x00F8, "O"},
    {0x00FE, "TH"},
    {0x0111, "D"},
    {0x0131, "I"},
    {0x0138, "K"},
    {0x0142, "L"},
    {0x0153, "OE"},
    {0x01A1, "O"},
    {0x01B0, "U"},
    {0x03D7, "\u03D7"},
    {0x03F3, "\u03F3"},
    {0x03DB, "\u03A3"},
    {0x03EF, "\u03DE"},
    {0x0219, "\u0418"},
    {0x0451, "\u042E"},
    {0x0461, ""},
    {0x048D, ""},
    {0x0493, "\u0482"},
    {0x04C2, "\u04C1"},
    // Capitals.
    {0x03AA, "\u03AA"},
    {0x03AB, "\u03AB"},
    {0x0403, "\u0403"},
    {0x0419, "\u0419"},
    {0x03D3, "\u03A5"},
    {0x03D4, "\u03A5"},
    {0x0401, "\u042E"},
    {0x047C, "\u0460"},
    {0x04C7, "\u04C5"},
};

std::map<std::uint32_t, std::string> ListedLetters() {
  std::map<std::uint32_t, std::string> letters = kOtherLetters;
  for (const auto& [norm, codes] : kLatinCapitals) {
    std::istringstream stream(codes);
    for (std::string code; stream >> code;) letters[Hex(code)] = norm;
  }
  return letters;
}

// The form of a letter "Lu" or "Ll" beyond ASCII.
std::string ExpectedLetter(std::uint32_t code) {
  static const std::map<std::uint32_t, std::string> listed = ListedLetters();
  if (const auto letter = listed.find(code); letter != listed.end()) return letter->second;
  const bool greek_or_cyrillic = code >= 0x370 && code <= 0x4FF;
  const bool armenian = code >= 0x530 && code <= 0x58F;
  if (!greek_or_cyrillic && !armenian) return {};
  const std::uint32_t base = CanonicalBase(code);
  const std::string& upper = Published()[base].upper;
  return Utf8Of(CanonicalBase(upper.empty() ? base : Hex(upper)));
}

// The form of a character beyond ASCII where its category or a list of
// letters decides; none where single characters are told apart.
std::optional<std::string> ExpectedByCategory(std::uint32_t code,
                                              const PublishedCharacter& character) {
  static constexpr std::string_view kVanish = "Cc Cf Cs Co Lm Mn";
  static constexpr std::string_view kStay = "Lo Lt Me Mc Nl Nd No Pf Pi Zl Zp";
  static constexpr std::string_view kBlank = "Zs Sc";
  if (character.category.empty() || code == 0xFFFC || code == 0xFFFD) return "";
  if (IsCompatibility(character)) return std::nullopt;
  if (character.category == "Ll" || character.category == "Lu") {
    return character.name.empty() ? "" : ExpectedLetter(code);
  }
  if (kVanish.find(character.category) != std::string_view::npos) return "";
  if (kStay.find(character.category) != std::string_view::npos) return Utf8Of(code);
  if (kBlank.find(character.category) != std::string_view::npos) return " ";
  return std::nullopt;
}

TEST(CharacterNorm, FollowsCategoryAndLetterListsThroughTheWholePlane) {
  ASSERT_EQ(Published()['A'].category, "Lu");
  for (std::uint32_t code = 0x80; code < 0x10000; ++code) {
    PublishedCharacter character = Published()[code];
    if (character.category.empty()) character.category = CategoryName(CategoryOfCodePoint(code));
    const std::optional<std::string> expected = ExpectedByCategory(code, character);
    if (expected) {
      EXPECT_EQ(NormOf(code), *expected) << Named(code);
    }
  }
}

// Punctuation, signs and compatibility characters that a rule of their own names.
const std::map<std::uint32_t, std::string> kMarks = {
    {0x00A1, " "},      {0x00BF, " "}, {0x00B7, ""},  {0x02B9, ""},  {0x02BA, ""},  {0x2228, ""},
    {0x266F, "\u266F"}, {0x00A9, " "}, {0x00AE, " "}, {0x2117, " "}, {0x00B0, "0"}, {0x2113, "L"},
    {0x3008, " "},      {0x3009, " "}, {0x00B9, "1"}, {0x00B2, "2"}, {0x00B3, "3"}, {0x2070, "0"},
    {0x2074, "4"},      {0x2079, "9"}, {0x2080, "0"}, {0x2081, "1"}, {0x2089, "9"}, {0x207A, " "},
    {0x207B, " "},      {0x207D, " "}, {0x207E, " "}, {0x208A, " "}, {0x208B, " "}, {0x208D, " "},
    {0x208E, " "},
};

TEST(CharacterNorm, TellsMarksOfOneCategoryApart) {
  static constexpr std::string_view kStay = "Pc Pd Ps Pe Po Sk So";
  for (std::uint32_t code = 0x80; code < 0xFFFC; ++code) {
    const PublishedCharacter& character = Published()[code];
    std::string expected;
    if (const auto mark = kMarks.find(code); mark != kMarks.end()) {
      expected = mark->second;
    } else if (IsCompatibility(character)) {
      const bool digit = (code >= 0x2074 && code <= 0x2079) || (code >= 0x2080 && code <= 0x2089);
      expected = digit ? std::string(1, static_cast<char>('0' + code % 16)) : "";
    } else if (!character.category.empty() &&
               kStay.find(character.category) != std::string_view::npos) {
      expected = Utf8Of(code);
    } else if (character.category == "Sm") {
      expected = " ";
    } else {
      continue;
    }
    EXPECT_EQ(NormOf(code), expected) << Named(code);
  }
}

TEST(CharacterNorm, AsciiOneByOne) {
  // U+0020 to U+007E; "." stands for a blank, "^" for nothing.
  static constexpr std::string_view kNorms =
      "...#..&^...+....0123456789.......ABCDEFGHIJKLMNOPQRSTUVWXYZ^.^..."
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ.^..";
  ASSERT_EQ(kNorms.size(), 0x7FU - 0x20U);
  for (std::uint32_t code = 0; code < 0x80; ++code) {
    const char norm = code < 0x20 || code == 0x7F ? '^' : kNorms[code - 0x20];
    const std::string expected = norm == '.' ? " " : norm == '^' ? "" : std::string(1, norm);
    EXPECT_EQ(NormOf(code), expected) << Named(code);
  }
}

TEST(CharacterNorm, UnassignedCharactersHaveNone) {
  for (std::uint32_t code : {0x0220U, 0x03F4U, 0x1700U, 0x2060U, 0x038BU, 0x03A2U, 0xFFFFU}) {
    EXPECT_EQ(NormOf(code), "") << Named(code);
  }
  EXPECT_EQ(Norm("\xF0\x9D\x84\x9E"), "") << "beyond the plane";
}

TEST(CharacterNorm, KeepsWhatItIsToldToKeep) {
  EXPECT_EQ(Norm("@", true), "@");
  EXPECT_EQ(Norm("\x1F", false, true), "\x1F");
  EXPECT_EQ(Norm("\x1F", true, false), "");
  EXPECT_EQ(Norm("ab"), "A") << "one character only";
  EXPECT_EQ(Norm(""), "");
}

TEST(Utf8Norm, Texts) {
  struct Case {
    std::string_view text;
    std::string_view trimmed;
    std::string_view untrimmed;
  };
  static constexpr Case kCases[] = {
      {"", "", ""},
      {"Piano, violin (2)", "PIANO VIOLIN 2", "PIANO VIOLIN 2 "},
      {" - (a) - ", "A", " A "},
      {"...", "", " "},
      {"O'Neil", "ONEIL", "ONEIL"},
      {"A+", "A+", "A+"},
      {"[sound recording]", "SOUND RECORDING", "SOUND RECORDING"},
      {"Saint-Sae\u0308ns", "SAINT SAENS", "SAINT SAENS"},
      {"Saint-Sa\u00EBns", "SAINT SANS", "SAINT SANS"},
      {"Dvor\u030Ca\u0301k ; \u0160", "DVORAK S", "DVORAK S"},
      {"a \u00A9 \u0301 b", "A B", "A B"},
      {"\u0410\u0439\u0432\u0430\u0437", "\u0410\u0418\u0412\u0410\u0417",
       "\u0410\u0418\u0412\u0410\u0417"},
      {"stra\u00DFe", "STRASSE", "STRASSE"},
      {"x\xC2\x98The \xC2\x9Cy", "XTHE Y", "XTHE Y"},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(TextNorm(c.text, true), c.trimmed) << c.text;
    EXPECT_EQ(TextNorm(c.text, false), c.untrimmed) << c.text;
  }
}

TEST(Utf8Norm, AppendsWithoutTouchingWhatStandsThere) {
  std::string out = "A ";
  AppendUtf8Norm(" b ", true, false, out);
  EXPECT_EQ(out, "A B");
  AppendUtf8Norm("...", true, false, out);
  EXPECT_EQ(out, "A B");
  out = "A ";
  AppendUtf8Norm(" b ", false, false, out);
  EXPECT_EQ(out, "A  B ");
}

TEST(Utf8Norm, ChoosesWhatIsKept) {
  std::string out;
  AppendUtf8Norm("a,b-c@d\x1Fx", true, NormKeeps{.comma = true, .hyphen = true}, out);
  EXPECT_EQ(out, "A,B-C DX");
  out.clear();
  AppendUtf8Norm("a,b-c@d\x1Fx", true, NormKeeps{.delimiter = true, .at_sign = true}, out);
  EXPECT_EQ(out, "A B C@D\x1FX");
}

// What AppendUtf8Norm must come to, one step after the other.
std::string SlowTextNorm(std::string_view text, bool trim) {
  std::string norm;
  for (std::size_t i = 0; i < text.size(); i += Utf8AnnouncedOctets(text[i])) {
    norm += Norm(Utf8CharAt(text, i));
  }
  for (std::size_t place; (place = norm.find("  ")) != std::string::npos;) norm.erase(place, 1);
  if (trim && norm.starts_with(' ')) norm.erase(0, 1);
  if (trim && norm.ends_with(' ')) norm.pop_back();
  return norm;
}

// Texts of any octets, each in memory of its exact size so that a sanitizer sees
// every octet read beyond the end.
TEST(Utf8Norm, AnyOctetsGoByTheirCharacters) {
  static constexpr std::string_view kOctets =
      "aZ ,-  \x1F\x7F\x80\xBF\xC0\xC2\xC3\xA9\xCC\x81\xD0\xE2\x80\x99\xE4\xB8\xED\xA0\xF0\xF8\xFF";
  std::mt19937 random(382);
  for (int i = 0; i < 20'000; ++i) {
    std::vector<char> text(random() % 12);
    for (char& c : text) c = kOctets[random() % kOctets.size()];
    const std::string_view view(text.data(), text.size());
    for (bool trim : {true, false}) {
      ASSERT_EQ(TextNorm(view, trim), SlowTextNorm(view, trim)) << testing::PrintToString(text);
    }
  }
}

TEST(Utf8Norm, MalformedCharactersGoByTheirOctetValue) {
  EXPECT_EQ(TextNorm("a\xC3"), "A") << "cut short";
  EXPECT_EQ(TextNorm("a\xE4\xB8"), "A");
  EXPECT_EQ(TextNorm("\x80\xBFz"), "Z") << "stray continuation octets";
  EXPECT_EQ(TextNorm("\xC0\xAFz"), "Z") << "overlong";
  EXPECT_EQ(TextNorm("x\xE5  y"), "X\xE5 Y") << "inside the ideographs: as it is, but squeezed";
}

}  // namespace
}  // namespace cantorel
