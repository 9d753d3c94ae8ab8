// The comparison forms of texts and fields as the record class gives them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// Field text as it is written here: "$" for the delimiter.
std::string Text(std::string_view readable) {
  std::string text(readable);
  for (char& c : text) {
    if (c == '$') c = '\x1F';
  }
  return text;
}

std::string Readable(std::string text) {
  for (char& c : text) {
    if (c == '\x1F') c = '$';
  }
  return text;
}

TEST(NormString, SchemeIsNotLookedAt) {
  const Utf8MarcRecordClass record;
  for (std::string_view scheme : {"V", "P", "", "x"}) {
    EXPECT_EQ(record.NormString("O'Neil, a@b", true, scheme), "ONEIL A B");
  }
  EXPECT_EQ(record.NormString(" a. ", false, "V"), " A ");
}

TEST(NormString, DelimiterGoesByTheSchemeInForce) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.NormString("a\x1F"
                              "b",
                              true, "P"),
            "AB");
  record.NormalizationScheme("P");
  EXPECT_EQ(record.NormString("a\x1F"
                              "b",
                              true, "V"),
            "A\x1F"
            "B");
}

TEST(NormString, EachOutputSetHasItsPath) {
  Utf8MarcRecordClass record;
  record.CharacterSetOut("V");
  EXPECT_EQ(record.NormString("a\x1F"
                              "b\xC1",
                              false, "V"),
            "A 1");
  record.CharacterSetOut("M");
  EXPECT_EQ(record.NormString("a\x1F"
                              "b\xC1",
                              false, "V"),
            "A L");
  record.CharacterSetOut("L");
  EXPECT_EQ(record.NormString("abc", false, "V"), "") << "no path";
}

TEST(NormalizationScheme, RefusesUnknownLettersAfterStoringThem) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.NormalizationScheme(), "V");
  record.NormalizationScheme("  plain");
  EXPECT_EQ(record.NormalizationScheme(), "P");
  EXPECT_EQ(record.CharClass().NormalizationScheme(), "P");
  for (std::string_view bad : {"q", "", "  "}) {
    try {
      record.NormalizationScheme(bad);
      FAIL() << bad;
    } catch (const MarcClassError& error) {
      EXPECT_EQ(error.Number(), 380);
      EXPECT_STREQ(error.Source(), "MarcClass");
      EXPECT_STREQ(error.what(), "Invalid value for NormalizationScheme property");
    }
    EXPECT_EQ(record.NormalizationScheme(), bad == "q" ? "Q" : "");
    EXPECT_EQ(record.CharClass().NormalizationScheme(), "V") << "knows only P and V";
  }
}

TEST(Utf8CharNorm, ArgumentAndPropertyDecideOnDifferentCharacters) {
  Utf8CharClass character;
  character.Utf8Char("@");
  EXPECT_EQ(character.Utf8CharNorm("P"), "@");
  EXPECT_EQ(character.Utf8CharNorm("V"), " ");
  character.Utf8Char("\x1F");
  EXPECT_EQ(character.Utf8CharNorm("P"), "");
  character.NormalizationScheme("P");
  EXPECT_EQ(character.Utf8CharNorm("V"), "\x1F");
  character.Utf8Char("\xC2\x98");
  EXPECT_EQ(character.Utf8CharNorm("V"), "");
}

TEST(NormStringNaco, KeepsCommasAndHyphensOfNames) {
  struct Case {
    std::string_view text;
    std::string_view scheme;
    std::string_view format;
    std::string_view tag;
    std::string_view code;
    std::string_view expected;
  };
  static constexpr Case kCases[] = {
      {"Smith, John,", "P", "B", "100", "a", "SMITH, JOHN"},
      {"Smith, John, Sir", "P", "B", "100", "a", "SMITH, JOHN, SIR"},
      {"Smith, John ,", "P", "B", "100", "a", "SMITH, JOHN"},
      {"Smith, John,,", "P", "B", "100", "a", "SMITH, JOHN,"},
      {"Smith, John,", "V", "B", "100", "a", "SMITH JOHN"},
      {"Smith, John", "P", "B", "300", "a", "SMITH JOHN"},
      {"Smith, John", "P", "B", "500", "a", "SMITH JOHN"},
      {"Smith, John", "P", "A", "500", "a", "SMITH, JOHN"},
      {"Smith, John", "P", "A", "700", "a", "SMITH JOHN"},
      {"Smith, John", "P", "M", "100", "a", "SMITH JOHN"},  // only "A" and "B" know names
      {"Smith, John", "P", "B", "100", "b", "SMITH JOHN"},
      {"Smith, John", "P", "B", "", "a", "SMITH JOHN"},
      {"1900-1950", "P", "B", "100", "d", "1900 1950"},
      {"1900 - 1950", "P", "B", "100", "d", "1900 1950"},
      {"1900-", "P", "B", "100", "d", "1900-"},
      {"-1950", "P", "B", "700", "d", "-1950"},
      {"1900-,", "P", "B", "100", "d", "1900-"},
      {"1900-", "P", "B", "110", "d", "1900"},
      {"1900-", "V", "B", "100", "d", "1900"},
      {"a@b", "P", "B", "856", "u", "A@B"},
      {"a@b", "V", "B", "856", "u", "A B"},
      {"a@b", "Q", "B", "856", "u", "A B"},
      {"", "P", "B", "100", "a", ""},
      {",", "P", "B", "100", "a", ""},
      {"-", "P", "B", "100", "d", "-"},
  };
  Utf8MarcRecordClass record;
  for (const Case& c : kCases) {
    EXPECT_EQ(record.NormStringNaco(c.text, true, c.scheme, c.format, c.tag, c.code), c.expected)
        << c.text << ' ' << c.scheme << c.format << c.tag << c.code;
  }
  EXPECT_EQ(record.NormStringNaco(" 1900- ", false, "P", "B", "100", "d"), "1900")
      << "blanks left at the ends make it a closed date";
  record.CharacterSetOut("M");
  EXPECT_EQ(record.NormStringNaco("Smith, John,", false, "P", "B", "100", "a"), "SMITH JOHN");
}

TEST(RemoveDiacritics, DropsMarksAndKeepsTheRest) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.RemoveDiacritics("Dvor\u030Ca\u0301k, \u00E9 \u02BBx"), "Dvorak, \u00E9 x");
  EXPECT_EQ(record.RemoveDiacritics("a\xCC"), "a\xCC") << "cut short";
  record.CharacterSetOut("M");
  EXPECT_EQ(record.RemoveDiacritics("Dvo\xE9r\xE4"
                                    "ak \xB1"),
            "Dvorak \xB1");
}

TEST(ListSubfields, ByFormatAndTag) {
  struct Case {
    std::string_view format;
    std::string_view tag;
    std::string_view expected;
  };
  static constexpr std::string_view kAll = "abcdefghijklmnopqrstuvwxyz";
  static constexpr Case kCases[] = {
      {"A", "100", "vxyzabcdfgklmnoprsqt"},
      {"A", "711", "vxyzabcdefgklnpsqt"},
      {"A", "551", "vxyza"},
      {"A", "785", "vxyz"},
      {"A", "183", kAll},
      {"A", "600", kAll},
      {"B", "100", "abcdfgklmnoprsqt"},
      {"M", "600", "vxyzabcdfgklmnoprsqt"},
      {"S", "490", "adfgklmnoprst"},
      {"B", "245", "abnp"},
      {"B", "650", "vxyzabcd"},
      {"B", "655", "vxyzab"},
      {"B", "653", "vxyzabcdefghijklmnopqrstuvwxyz"},
      {"B", "500", "abcdfgklmnoprsqt"},
      {"B", "505", kAll},
      {"B", "0 4", kAll},
      {"H", "650", kAll},
      {"", "650", kAll},
      {"B", "", kAll},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(Utf8MarcRecordClass::ListSubfieldsForNormalization(c.format, c.tag), c.expected)
        << c.format << ' ' << c.tag;
  }
}

struct FieldCase {
  std::string_view scheme;
  std::string_view format;
  std::string_view tag;
  std::string_view indicators;
  std::string_view text;
  std::string_view norm;
  std::string_view cleaned;
};

TEST(NormalizeWholeField, JoinsTheSubfieldsOfTheScheme) {
  static constexpr FieldCase kCases[] = {
      // Plain: subfields of the list, without marks.
      {"V", "B", "650", " 0", "$aSonatas (Flute)$vScores.$2lcsh", "SONATAS FLUTE SCORES",
       "$aSonatas (Flute)$vScores."},
      {"V", "B", "650", " 0", "$6880-01$a Flute music $0x", "FLUTE MUSIC", "$aFlute music"},
      // Without a $a the first piece counts as one, unless a code opens the text.
      {"V", "B", "650", " 0", "Flute$vScores", "FLUTE SCORES", "$aFlute$vScores"},
      {"V", "B", "650", " 0", "$bFlute$vScores", "FLUTE SCORES", "$bFlute$vScores"},
      {"V", "B", "650", " 0", "$a$b$cx$", "X", "$cx"},
      {"V", "B", "650", " 0", "$a   $bx", "X", "$bx"},
      {"V", "B", "650", " 0", "", "", ""},
      // The nonfiling part goes, once.
      {"V", "B", "245", "04", "$aThe sea$aThe end", "SEA THE END", "$aSea$aThe end"},
      {"V", "B", "245", "04", "$aThe ", "", "$a"},
      {"V", "B", "830", " 4", "$aThe sea", "SEA", "$aSea"},
      // NACO: marks, inverted names, dates.
      {"P", "B", "100", "1 ", "$aBach, J. S.,$d1685-1750$eauthor", "$aBACH, J S$d1685 1750",
       "$aBach, J. S.,$d1685-1750"},
      {"P", "B", "100", "1 ", "$aBach, J. S., Sir", "$aBACH, J S SIR", "$aBach, J. S., Sir"},
      {"P", "B", "100", "0 ", "$aPlato,", "$aPLATO", "$aPlato,"},
      {"P", "B", "650", " 0", "$aDance, Modern", "$aDANCE, MODERN", "$aDance, Modern"},
      // Almost: a comma counts in personal names only, and a date goes closed.
      {"Q", "B", "650", " 0", "$aDance, Modern", "$aDANCE MODERN", "$aDance, Modern"},
      {"Q", "B", "700", "1 ", "$aBach, J.$d1685-", "$aBACH, J$d1685", "$aBach, J.$d1685-"},
      {"Q", "A", "110", "2 ", "$aA, B", "$aA B", "$aA, B"},
      {"Q", "A", "400", "1 ", "$aA, B", "$aA, B", "$aA, B"},
      {"Q", "H", "110", "2 ", "$aA, B", "$aA, B", "$aA, B"},  // neither A nor bibliographic
      // A control subfield never reaches an authority form.
      {"P", "A", "999", "  ", "$aX$wnne$0abc", "$aX", "$aX$wnne"},
      {"P", "B", "999", "  ", "$aX$wnne", "$aX$wNNE", "$aX$wnne"},
  };
  Utf8MarcRecordClass record;
  for (const FieldCase& c : kCases) {
    std::string cleaned = "before";
    const std::string norm =
        record.NormalizeWholeField(c.scheme, c.format, c.tag, c.indicators, Text(c.text), cleaned);
    EXPECT_EQ(Readable(norm), c.norm) << c.scheme << c.format << c.tag << c.text;
    EXPECT_EQ(Readable(cleaned), c.cleaned) << c.scheme << c.format << c.tag << c.text;
    EXPECT_EQ(record.NormalizationScheme(), "V");
  }
}

TEST(NormalizeWholeField, TakesItsTextFromTheStringItCleans) {
  Utf8MarcRecordClass record;
  std::string text = Text("$aFlute music.");
  EXPECT_EQ(record.NormalizeWholeField("V", "B", "650", " 0", text, text), "FLUTE MUSIC");
  EXPECT_EQ(Readable(text), "$aFlute music.");
}

TEST(GenerateNacoForm, BeginsAnewWithEveryA) {
  const Utf8MarcRecordClass record;
  const auto form = [&](std::string_view tag, std::string_view text) {
    return Readable(record.GenerateNacoFormFromRaw(tag, Text(text)));
  };
  EXPECT_EQ(form("100", "$aBach, J. S.,$d1685-1750$wnne$0x"), "$aBACH, J S$d1685 1750");
  EXPECT_EQ(form("100", "$aBach,$d1685-"), "$aBACH$d1685-");
  EXPECT_EQ(form("100", "Bach, J.$qJohann"), "$aBACH, J$qJOHANN");
  EXPECT_EQ(form("100", "$bII$aBach"), "$aBACH");
  EXPECT_EQ(form("100", ""), "");
  EXPECT_EQ(form("100", "$"), "");
}

class CurrentFieldNorm : public testing::Test {
 protected:
  void SetUp() override { record_.NewRecord("c", "m"); }

  Utf8MarcRecordClass record_;
};

TEST_F(CurrentFieldNorm, NothingWithoutAField) {
  record_.FldPointer(-1);
  EXPECT_EQ(record_.FldNorm(), "");
  EXPECT_EQ(record_.FldNormNaco(), "");
  EXPECT_EQ(record_.FldNormNacoAlmost(), "");
  EXPECT_EQ(record_.FldTextNormalizable(), "");
  EXPECT_EQ(record_.SfdNorm(), "");
  EXPECT_EQ(record_.SfdNormNaco(), "");
}

TEST_F(CurrentFieldNorm, ThreeForms) {
  record_.FldAdd("650", " 0", Text("$aDance, Modern$vScores.$2lcsh"));
  EXPECT_EQ(record_.FldNorm(), "DANCE MODERN SCORES");
  EXPECT_EQ(Readable(record_.FldNormNaco()), "$aDANCE, MODERN$vSCORES");
  EXPECT_EQ(Readable(record_.FldNormNacoAlmost()), "$aDANCE MODERN$vSCORES");
  std::string tag;
  std::string indicators;
  std::string text;
  record_.FldLoadInfoNormalizable(tag, indicators, text);
  EXPECT_EQ(tag + indicators + Readable(text), "650 0$aDance, Modern$vScores.");
  record_.SfdFindFirst("v", "");
  record_.SfdDelete();
  EXPECT_EQ(Readable(record_.FldTextNormalizable()), "$aDance, Modern");
}

TEST_F(CurrentFieldNorm, ControlFieldIsWhole) {
  ASSERT_TRUE(record_.FldFindFirst("008", ""));
  EXPECT_EQ(record_.FldTextNormalizable(), record_.FldText());
  EXPECT_EQ(record_.FldNorm(), record_.NormString(record_.FldText(), true, "V"));
}

}  // namespace
}  // namespace cantorel
