// What happens to a heading before its first word is looked at, and what bad
// input gets.

#include <random>

#include "heading_reader.h"
#include "medium/style_qualifiers.h"

namespace cantorel {
namespace {

TEST(HeadingPreparation, AsksForAVocabulary) {
  HeadingReader reader;
  reader.Vocabulary().InstrumentFile("");
  EXPECT_EQ(reader.Read("Flute music").result, kNoInstrumentVocabulary);
}

TEST(HeadingPreparation, TakesOnlyHeadingsWithAnAAtTheirHead) {
  HeadingReader reader;
  const std::vector<std::pair<std::string_view, std::string_view>> cases = {
      {"", ""},
      {"$", ""},
      {"a", ""},
      {"Flute music", ""},
      {"$2lcsh$aFlute music", ""},
      {"$vScores$aFlute music", ""},
      {"$3", "$3"},
      {"$3Piece 1", "$3Piece 1"},
      {"$3Piece 1$vScores", "$3Piece 1$vScores"},
      {"$3Piece 1$", "$3Piece 1$"},
  };
  for (const auto& [text, trailing] : cases) {
    const HeadingAnswer answer = reader.ReadRaw(Delimited(text));
    EXPECT_EQ(answer.result, kHeadingIsNoCandidate) << text;
    EXPECT_EQ(answer.field, "") << text;
    EXPECT_EQ(answer.trailing, trailing) << text;
  }
}

TEST(HeadingPreparation, HandsOutSubfield3) {
  HeadingReader reader;
  for (std::string_view heading : {"$3Piece 1$aSuites (Flute)", "$aSuites (Flute)$3Piece 1",
                                   "$aSuites (Flute)$3Piece 1$vScores"}) {
    const HeadingAnswer answer = reader.Read(heading);
    EXPECT_EQ(answer.field, "$aflute$n1$2lcmpt") << heading;
    EXPECT_EQ(answer.trailing, "$3Piece 1") << heading;
  }
  const HeadingAnswer both = reader.Read("$3x$aConcertos (Violin)$zParis$3y$vSolo with piano");
  EXPECT_EQ(both.trailing, "$3x$3y");
  EXPECT_EQ(both.field, "$aviolin$n1$apiano$n1$2lcmpt");
}

TEST(HeadingPreparation, SubdivisionsRuleHeadingsOut) {
  struct Case {
    std::string_view heading;
    std::int32_t result;
    bool of_interest;
  };
  const std::vector<Case> cases = {
      {"Suites (Flute)$vInstrumental settings", -1, true},
      {"Suites (Flute)$xInstrumental settings$vScores", -1, true},
      {"Suites (Flute)$vExcerpts", -1, false},
      {"Suites (Flute)$xEXCERPTS$vScores", -1, false},
      {"Suites (Flute)$xHistory and criticism", -1, false},
      {"Suites (Flute)$vAnalysis, appreciation", -1, false},
      {"Suites (Flute)$vScores and parts", 1, true},
      // A score is music, whatever else the heading says.
      {"Suites (Flute)$xHistory and criticism$vScores", 1, true},
      {"Suites (Flute)$zExcerpts", 1, false},
      // Any letter "v" or "x" counts as a code.
      {"Suites (Flute)$zVexcerpts", -1, false},
  };
  HeadingReader reader;
  for (const Case& c : cases) {
    const HeadingAnswer answer = reader.Read(c.heading);
    EXPECT_EQ(answer.result, c.result) << c.heading;
    EXPECT_EQ(answer.of_interest, c.of_interest) << c.heading;
  }
}

TEST(HeadingPreparation, CleansTheHeading) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Flute music.", "$aflute$n1$2lcmpt", "final point"},
          {"Flute music .", "$aflute$n1$2lcmpt", "trimmed behind it"},
          {"Canons, fugues, etc. (Flute)", "$aflute$n1$2lcmpt", "inner points stay"},
          {"Canons, fugues, Etc.", "", "the point of \"etc.\" stays; no parenthesis"},
          {"Flute music, Arranged", "$aflute$n1$2lcmpt", "cut"},
          {"Flute music, Juvenile.", "$aflute$n1$2lcmpt", "cut"},
          {"Flute music, Unaccompanied, Arranged", "$aflute$n1$2lcmpt", "cut"},
          {"Flute music (Jazz)", "$aflute$n1$2lcmpt", "style qualifier"},
          {"Flute (JAZZ) music (Rhythm and blues)", "$aflute$n1$2lcmpt", "in any place and case"},
          {"(Jazz) Flute music", "$aflute$n1$2lcmpt", "before the first word is taken"},
          {"Flute music (Jazz, Swing)", "", "only a qualifier alone in its parenthesis"},
          {"Suites  (Flute)", "$aflute$n1$2lcmpt", "repeated blanks reduced"},
      });
  EXPECT_TRUE(reader.Read("Cooking, Juvenile").of_interest);
  for (const StyleQualifier& qualifier : kStyleQualifiers) {
    const std::string heading = "Flute music (" + std::string(qualifier.name) + ")";
    EXPECT_EQ(reader.Read(heading).field, "$aflute$n1$2lcmpt") << heading;
  }
}

TEST(HeadingPreparation, ForgetsTheHeadingBefore) {
  HeadingReader reader;
  EXPECT_EQ(reader.Read("$aSuites (Flute)$3x$vScores").trailing, "$3x");
  const HeadingAnswer answer = reader.Read("Cooking");
  EXPECT_EQ(answer.trailing, "");
  EXPECT_EQ(answer.field, "");
  EXPECT_FALSE(answer.of_interest);
}

// Pieces of headings, and octets that no heading should hold, parted by "|".
std::vector<std::string> Pieces() {
  using namespace std::string_view_literals;
  std::string_view list =
      "(|)|,| |$|$a|$v|$3|.|2|\xC3|\xE2\x80|\xFF|\0| with | with| and | music| music (|voices|"
      "parts|4 hands|vocal|Piano scores|vocal scores with |solo with |out accompaniment|piano|"
      "Orchestra|Concertos|Choruses|Sacred vocal |Sacred songs|Songs |Monologues with music (|"
      "Wind |String |Plucked instrument |quartets|Trios|Ballets|Orchestral music|etc.|, arranged|"
      "(jazz)|"sv;
  std::vector<std::string> pieces;
  for (std::size_t bar; (bar = list.find('|')) != std::string_view::npos;) {
    pieces.emplace_back(list.substr(0, bar));
    list.remove_prefix(bar + 1);
  }
  return pieces;
}

// Damaged text: some answer, whatever it is, and no octet read out of bounds.
TEST(HeadingPreparation, SurvivesAnyOctets) {
  HeadingReader reader;
  const std::vector<std::string> pieces = Pieces();
  std::minstd_rand random(382);
  for (int i = 0; i < 20000; ++i) {
    std::string text = i % 5 == 0 ? "" : "$a";
    for (std::size_t n = random() % 12; n > 0; --n) text += pieces[random() % pieces.size()];
    const HeadingAnswer answer = reader.ReadRaw(Delimited(text));
    ASSERT_GE(answer.result, kHeadingIsNoCandidate);
    if (answer.result != kHeadingGaveField) {
      ASSERT_EQ(answer.field, "");
    }
  }
  for (const std::string& piece : pieces) {
    std::string text = "Sonatas (";
    while (text.size() < 10000) text += piece;
    EXPECT_LE(reader.Read(text).result, kHeadingGaveField) << piece;
    EXPECT_LE(reader.Read("$aSymphonies$v" + text).result, kHeadingGaveField) << piece;
  }
}

}  // namespace
}  // namespace cantorel
