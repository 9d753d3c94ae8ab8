// Safe strings: positions out of range, characters and octets, case.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

class SafeStrings : public testing::Test {
 protected:
  void SetUp() override { marc8_.CharacterSetOut("M"); }

  Record utf8_;
  Record marc8_;
};

TEST_F(SafeStrings, LengthCountsCharactersOfUtf8Only) {
  for (std::string_view text :
       {"", "abc", "\u00E9a", "\u20AC", "\U0001D11E", "\xA9\xA9", "a\xE2"}) {
    EXPECT_EQ(utf8_.LengthInCharacters(text), utf8_.SafeLen(text)) << text;
    EXPECT_EQ(marc8_.SafeLen(text), static_cast<std::int32_t>(text.size()));
  }
  EXPECT_EQ(utf8_.SafeLen("\u00E9a"), 2);
  EXPECT_EQ(utf8_.SafeLen("\xA9\xA9"), 2) << "a lone continuation octet is a character";
  EXPECT_EQ(utf8_.SafeLen("a\xE2"), 2) << "cut off at the end";
}

TEST_F(SafeStrings, Mid) {
  const std::string text = "a\u00E9\u20ACb";
  struct Case {
    std::int32_t start, length;
    std::string_view utf8, marc8;
  };
  const Case cases[] = {{1, -1, text, text},
                        {2, 1, "\u00E9", "\xC3"},
                        {3, 2, "\u20ACb", "\xA9\xE2"},
                        {4, -1, "b", "\u20ACb"},
                        {5, 1, "", "\x82"},
                        {0, 2, "a\u00E9", "a\xC3"},
                        {kMin, 1, "a", "a"},
                        {1, 0, "", ""},
                        {1, -2, "", ""},
                        {kMax, -1, "", ""},
                        {2, kMax, text.c_str() + 1, text.c_str() + 1}};
  for (const Case& c : cases) {
    EXPECT_EQ(utf8_.SafeMid(text, c.start, c.length), c.utf8) << c.start << ',' << c.length;
    EXPECT_EQ(marc8_.SafeMid(text, c.start, c.length), c.marc8) << c.start << ',' << c.length;
  }
  EXPECT_EQ(utf8_.SafeMid(text, 4, 1, false), "\u20AC") << "an octet position";
  EXPECT_EQ(utf8_.SafeMid("", 1, -1), "");
}

TEST_F(SafeStrings, Right) {
  const std::string text = "a\u00E9\u20AC";
  EXPECT_EQ(utf8_.SafeRight(text, 1), "\u20AC");
  EXPECT_EQ(utf8_.SafeRight(text, 2), "\u00E9\u20AC");
  EXPECT_EQ(utf8_.SafeRight(text, 9), text);
  EXPECT_EQ(utf8_.SafeRight("\xA9\xA9", 1), "\xA9\xA9") << "no character begins here";
  EXPECT_EQ(marc8_.SafeRight(text, 2), "\x82\xAC");
  for (std::int32_t length : {0, -1, kMin}) {
    EXPECT_EQ(utf8_.SafeRight(text, length) + marc8_.SafeRight(text, length), "");
  }
}

TEST_F(SafeStrings, Stuff) {
  struct Case {
    std::string_view text;
    std::int32_t position, length;
    std::string_view result;
  };
  const Case cases[] = {{"abc", 2, 0, "axbc"},

                        {"abc", 9, 0, "abcx"},

                        {"abc", 1, 0, "xabc"},      {"abc", 0, -1, "xabc"}, {"", 3, 2, "x"},

                        {"abc", 0, 2, "xabc"},

                        {"abc", 1, 2, "xc"},        {"abc", 1, kMax, "x"},  {"abc", 2, 1, "axc"},
                        {"abc", 3, kMax, "abx"},    {"abc", 9, 2, "abcx"},

                        {"abc", kMax, kMin, "abcx"}};
  for (const Case& c : cases) {
    EXPECT_EQ(Record::SafeStuff(c.text, c.position, c.length, "x"), c.result)
        << c.text << ' ' << c.position << ' ' << c.length;
  }
}

TEST_F(SafeStrings, LastOccurrence) {
  EXPECT_EQ(Record::Rat("1450 45", "45"), 6);
  EXPECT_EQ(Record::Rat("aaa", "aa"), 2) << "occurrences may overlap";
  EXPECT_EQ(Record::Rat("aA", "a"), 1);
  EXPECT_EQ(Record::Rat("", "a") + Record::Rat("a", "") + Record::Rat("a", "aa"), 0);
  EXPECT_EQ(Record::RatExtended("a,b;c", ",;", 1), 4);
  EXPECT_EQ(Record::RatExtended("a,b,", ",;", 1), 2) << "the last place goes unseen";
  EXPECT_EQ(Record::RatExtended("a,b;c", ",;", 2), 0) << "the plain search";
  EXPECT_EQ(Record::RatExtended(",", ",;", 1) + Record::RatExtended("a", "", 1), 0);
}

TEST_F(SafeStrings, Replacing) {
  EXPECT_EQ(Record::ReplaceCharacters("aaa", "aa", "b"), "ab");
  EXPECT_EQ(Record::ReplaceCharacters("aab", "ab", "b"), "b") << "what came in is seen from before";
  EXPECT_EQ(Record::ReplaceCharacters("a.b", ".", ".."), "a..b");
  EXPECT_EQ(Record::ReplaceCharacters("a.-b", ".-", " . "), "a . b");
  EXPECT_EQ(Record::ReplaceCharacters("a--b", "-", " ", true), "a b");
  EXPECT_EQ(Record::ReplaceCharacters("a  b", "-", " ", true), "a b");
  EXPECT_EQ(Record::ReplaceCharacters("a  b", "-", "", true), "a  b");
  EXPECT_EQ(Record::ReplaceCharacters("a  b", " ", " ", true), "a  b");
  EXPECT_EQ(Record::ReplaceCharacters("a  b", "", " ", true), "a  b");
  EXPECT_EQ(Record::RemoveRepeatedCharacters("a   b  ", " "), "a b ");
  EXPECT_EQ(Record::RemoveRepeatedCharacters("ababxabab", "ab"), "abxab");
  EXPECT_EQ(Record::RemoveRepeatedCharacters("aaaaa", "aa"), "aaa");
  EXPECT_EQ(Record::RemoveRepeatedCharacters("abc", ""), "abc");
  EXPECT_EQ(Record::RemoveSpaces("  a b\tc "), "ab\tc");
}

TEST_F(SafeStrings, SpacesAroundDelimiters) {
  struct Case {
    std::string_view closed, open, closed_again;
  };
  const Case cases[] = {{"$ax$by", "$a x $b y", "$ax$by"},
                        {"x$by", "x $b y", "x$by"},
                        {"x $b  y ", "x  $b   y ", "x$by"},
                        {"$a$b", "$a  $b ", "$a$b"},
                        {"x$", "x$", "x$"},
                        {"x", "x", "x"},
                        {"", "", ""},
                        {"$ ", "$  ", "$ "}};
  for (const Case& c : cases) {
    const std::string open = Record::AddSpacesAroundDelimiters(Text(c.closed));
    EXPECT_EQ(Readable(open), c.open) << c.closed;
    EXPECT_EQ(Readable(Record::RemoveSpacesAroundDelimiters(open)), c.closed_again) << c.closed;
  }
}

TEST_F(SafeStrings, Case) {
  EXPECT_EQ(Readable(utf8_.SafeUCase(Text("$aab\u00E9$z\u03B1"))), "$aAB\u00C9$z\u0391");
  EXPECT_EQ(Readable(utf8_.SafeLCase(Text("$AAB\u00C9$Z\u0416"))), "$Aab\u00E9$Z\u0436");
  EXPECT_EQ(Readable(marc8_.SafeLCase(Text("$AA\xA1\x8A\xAD"))), "$Aa\xB1\x9A\xBD");
  EXPECT_EQ(Readable(marc8_.SafeUCase(Text("$aa\xB1\x9A\xBD$"))), "$aA\xB1\x9A\xBD$")
      << "special letters are not raised";
  EXPECT_EQ(utf8_.SafeUCase("a\xC3"), "A\xC3") << "a cut-off character stays";
}

TEST_F(SafeStrings, FirstWord) {
  struct Case {
    std::string_view text, raised, lowered;
  };
  const Case in_utf8[] = {{"$aabc", "$aAbc", "$aabc"},
                          {"$aABC", "$aABC", "$aaBC"},
                          {"\"-[\u00E9t\u00E9", "\"-[\u00C9t\u00E9", "\"-[\u00E9t\u00E9"},
                          {"\u00C9t\u00E9", "\u00C9t\u00E9", "\u00E9t\u00E9"},
                          {"4 Hands", "4 Hands", "4 Hands"},
                          {"+a", "+a", "+a"},
                          {"$a--$bxY", "$a--$bXY", "$a--$bxY"},
                          {"$a..$BXY", "$a..$BXY", "$a..$BxY"},
                          {"", "", ""}};
  for (const Case& c : in_utf8) {
    EXPECT_EQ(Readable(utf8_.UCaseFirstWord(Text(c.text))), c.raised) << c.text;
    EXPECT_EQ(Readable(utf8_.LCaseFirstWord(Text(c.text))), c.lowered) << c.text;
  }
  const Case in_marc8[] = {{"\"abc", "\"Abc", "\"abc"},
                           {"\xA1"
                            "b",
                            "\xA1"
                            "b",
                            "\xB1"
                            "b"},
                           {"\xB1"
                            "b",
                            "\xA1"
                            "b",
                            "\xB1"
                            "b"},
                           {"-b", "-B", "-b"},
                           {"-B", "-B", "-B"},
                           {"=b", "=b", "=b"},
                           {"\xB9"
                            "b",
                            "\xB9"
                            "b",
                            "\xB9"
                            "b"},
                           {"5B", "5B", "5B"}};
  for (const Case& c : in_marc8) {
    EXPECT_EQ(marc8_.UCaseFirstWord(c.text), c.raised) << c.text;
    EXPECT_EQ(marc8_.LCaseFirstWord(c.text), c.lowered) << c.text;
  }
  EXPECT_EQ(Readable(utf8_.UCaseFirstWord(Text("$6abc$bdef"), true)), "$6abc$bDef");
  EXPECT_EQ(Readable(utf8_.UCaseFirstWord(Text("$6abc$bdef"), false)), "$6Abc$bdef");
  EXPECT_EQ(Readable(utf8_.UCaseFirstWord(Text("$6abc"), true)), "$6abc");
  EXPECT_EQ(Readable(utf8_.UCaseFirstWord(Text("$6abc$"), true)), "$6abc$");
}

TEST_F(SafeStrings, TitleAndSentence) {
  EXPECT_EQ(utf8_.SafeTitleCase("THE ART OF D'ARCY", "*OF*"), "The Art of D'Arcy");
  EXPECT_EQ(Readable(utf8_.SafeTitleCase(Text("$aTHE SEA$bA STORM"), "*A*")), "$aThe Sea$ba Storm");
  EXPECT_EQ(utf8_.SafeTitleCase(" a  b ", "*B*"), " A  b ");
  EXPECT_EQ(utf8_.SafeTitleCase("Of", ""), "Of") << "two characters stay";
  EXPECT_EQ(utf8_.SafeTitleCase("\u00E9\u00E9", ""), "\u00E9\u00E9");
  EXPECT_EQ(utf8_.SafeSentenceCase(" THE SEA.  A STORM. 2 X "), " The sea. A storm. 2 x ");
  EXPECT_EQ(utf8_.SafeSentenceCase(""), "");
  EXPECT_EQ(utf8_.SafeSentenceCase(" "), " ");
}

TEST_F(SafeStrings, FirstDifference) {
  EXPECT_EQ(utf8_.CLCL("\u00E9ab", "\u00E9ac"), 3);
  EXPECT_EQ(marc8_.CLCL("\u00E9ab", "\u00E9ac"), 4);
  EXPECT_EQ(utf8_.CLCL("\u00E9", "\u00E8"), 1) << "characters differ as a whole";
  EXPECT_EQ(utf8_.CLCL("abc", "ab"), 0);
  EXPECT_EQ(utf8_.CLCL("", "a"), 1);
  EXPECT_EQ(utf8_.CLCL("", ""), 0);
}

TEST_F(SafeStrings, PaddingAndTruth) {
  EXPECT_EQ(Record::LeftPad("12345", 3, "0"), "345");
  EXPECT_EQ(Record::LeftPad("7", 3, "0"), "007");
  EXPECT_EQ(Record::LeftPad("7", 0, "0") + Record::LeftPad("7", -1, "0"), "");
  EXPECT_EQ(Record::LeftPadNumber(42, 5, " "), "   42");
  for (std::string_view text : {"TRUE", "yes", " y ", "t", "1", "-1"})
    EXPECT_TRUE(utf8_.IsTrue(text));
  for (std::string_view text : {"", "0", "no", "truer", "11"}) EXPECT_FALSE(utf8_.IsTrue(text));
}

}  // namespace
}  // namespace cantorel
