// A whole record: coded data, headings, subdivisions and what is concluded at
// the end.

#include "genre/genre_fixture.h"
#include "platform/field_selection.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr TestField kCanons = {"650", " 0", "$aCanons, fugues, etc."};

class RecordPassTest : public GenreTest {};

TEST_F(RecordPassTest, ReadsCodedData) {
  struct {
    std::string_view type;
    std::string_view format;  // 008/20
    std::string_view parts;   // 008/21
    std::string_view form;    // 008/18-19
    std::string_view expected;
  } cases[] = {
      {"c", "a", " ", "  ", "655 7$aScores$2lcgft"},
      {"d", "l", " ", "  ", "655 7$aScores$2lcgft"},
      {"c", "k", " ", "  ", "655 7$aVocal scores$2lcgft"},
      {"c", "h", "d", "  ", "655 7$aChorus scores$2lcgft\n655 7$aParts (Music)$2lcgft"},
      {"c", "j", "f", "  ", "655 7$aParts (Music)$2lcgft"},
      {"c", "a", "e", "  ", "655 7$aParts (Music)$2lcgft"},
      {"c", "z", " ", "  ", "655 7$aNotated music$2lcgft"},
      {"c", "n", " ", "fg", "655 7$aFugues$2lcgft"},
      {"c", "u", " ", "sy", ""},
      {"j", "a", "d", "RP", "655 7$aRhapsodies (Music)$2lcgft"},
      {"c", "|", "|", "||", ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(std::string(test.type) + ' ' + std::string(test.format));
    Begin(test.type, test.format);
    record_.Change008Value(21, test.parts);
    record_.Change008Value(18, test.form);
    EXPECT_EQ(Derive(), test.expected);
  }
  EXPECT_EQ(DeriveFrom({{"047", "  ", "$apr$bx$acg$aco"}}),
            "655 7$aPreludes (Music)$2lcgft\n655 7$aConcerti grossi$2lcgft");
}

TEST_F(RecordPassTest, LeavesRecordsOfOtherKindsAlone) {
  DeriveFrom({{"655", " 7", "$aSuites$2lcgft"}});
  const std::string lines = existing_lines_;
  EXPECT_EQ(Readable(lines), "655 7$aSuites$2lcgft");
  record_.NewRecord("a", "m");
  Add({{"650", " 0", "$aAnthems"}});
  new_lines_ = "as it was";
  EXPECT_EQ(Derive(), "as it was");
  EXPECT_EQ(existing_lines_, lines);
}

TEST_F(RecordPassTest, LooksHeadingsUp) {
  struct {
    std::vector<TestField> fields;
    std::string_view expected;
  } cases[] = {
      {{{"650", " 0", "$aAnthems."}}, "655 7$aAnthems$2lcgft\n385  $aChoirs$2lcdgt"},
      {{{"650", " 7", "$aAnthems."}}, ""},
      {{{"600", "10", "$aAnthems."}}, ""},  // only 650 stands for itself
      {{{"650", " 0", "$3v. 1$aAnthems"}},
       "655 7$aAnthems$2lcgft$3v. 1\n385  $aChoirs$2lcdgt$3v. 1"},
      // The heading with the subdivision right behind $a, be it $v or $x.
      {{{"650", " 0", "$aFlute music$vMethods."}}, "655 7$aMethods (Music)$2lcgft"},
      {{{"610", "20", "$aFlute music$xMethods."}}, "655 7$aMethods (Music)$2lcgft"},
      {{{"650", " 0", "$aFlute music$zItaly$vMethods."}}, ""},
      // Neighbouring subdivisions, also of two headings; one alone.
      {{{"650", " 0", "$aMusic$vScores$zItaly$vParts"}}, "655 7$aPairs$2lcgft"},
      {{{"650", " 0", "$aMusic$vScores"}, {"651", " 0", "$aItaly$xParts"}}, "655 7$aPairs$2lcgft"},
      {{{"650", " 0", "$aMusic$vScores"}, {"651", " 0", "$aItaly$xHistory$xParts"}}, ""},
      {{{"600", "10", "$aBach$vBibliography."}}, "655 7$aBibliographies$2lcgft"},
      // Excerpts keep the heading from being looked up, not its subdivisions.
      {{{"650", " 0", "$aAnthems$vExcerpts$vBibliography"}}, "655 7$aBibliographies$2lcgft"},
      {{{"650", " 0", "$aAnthems$xInstrumental settings"}}, ""},
      {{{"650", " 0", "$aMotion picture music$vExcerpts, Arranged"}},
       "655 7$aMotion picture music$2lcgft"},
      {{{"610", "20", "$aFlute music$vMethods$vExcerpts"}}, ""},
      {{{"650", " 0", "$xBibliography"}}, ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.fields[0].text);
    EXPECT_EQ(DeriveFrom(test.fields), test.expected);
  }
}

TEST_F(RecordPassTest, TellsTheHostOfHeadings) {
  DeriveFrom({{"600", "10", "$aBach$xExcerpts"},
              {"650", " 0", "$aAnthems$vBibliography"},
              {"650", " 0", "$aCanzoni$vBibliography"},
              {"650", " 7", "$aWaltzes$2fast"},
              {"650", " 0", "$xNothing"}});
  EXPECT_EQ(Readable(music_.Parm_ReturnedCandidateFields()),
            "650 0$aAnthems$vBibliography\n650 0$aCanzoni$vBibliography");
  EXPECT_EQ(music_.Parm_ExcludedForExcerpts(), "BACH");
  // What a subdivision gives is not the heading's own.
  EXPECT_THAT(Messages(), ElementsAre("3 : $aBach$xExcerpts", "3 : $aCan$zoni$vBibliography"));
}

// Nothing but what is told carries over.
TEST_F(RecordPassTest, TheThreeOfTheLastHeadingStaysToTheEnd) {
  Begin("c", "a");
  Add({{"650", " 0", "$3v. 1$aCanzoni"}});
  EXPECT_EQ(Derive(), "655 7$aScores$2lcgft$3v. 1");
  Begin("c", "a");
  EXPECT_EQ(Derive(), "655 7$aScores$2lcgft");
}

TEST_F(RecordPassTest, FindsScoresAmongTheRecordsOwnGenresUnderTheMediumCode) {
  struct {
    std::string_view format;
    std::string_view genre;
    bool concluded;
  } cases[] = {
      {"a", "$aVocal scores$2lcmpt", false}, {"a", "$aNotated music$2lcmpt", false},
      {"a", "$aVocal scores$2lcgft", true},  {"m", "$aScores.$2lcmpt", false},
      {"m", "$aNotated music$2lcmpt", true}, {"m", "$aScores$2lcgft", true},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.genre);
    Begin("c", test.format);
    Add({{"655", " 7", test.genre}});
    EXPECT_EQ(!Derive().empty(), test.concluded);
  }
}

TEST_F(RecordPassTest, CanonsAndFuguesByMode) {
  EXPECT_EQ(DeriveFrom({{"650", " 7", "$aCanons, fugues, etc.$2x"}, kCanons}), "");
  EXPECT_THAT(Messages(), ElementsAre("2 Form/genre 'Canons' or 'Fugues' not assigned: "
                                      "650 $aCanons, fugues, etc.",
                                      "3 : $aCanons, fugues, etc."));
  music_.MusicClassOperatingMode(1);
  EXPECT_EQ(DeriveFrom({kCanons}), "655 7$aCanons$2lcgft\n655 7$aFugues$2lcgft");
  // Something tells already.
  EXPECT_EQ(DeriveFrom({kCanons, {"655", " 7", "$aCanons.$2lcgft"}}), "");
  EXPECT_EQ(DeriveFrom({kCanons, {"047", "  ", "$afg"}}), "655 7$aFugues$2lcgft");
  // The record before does not count.
  EXPECT_EQ(DeriveFrom({{"650", " 0", "$aCanzoni"}}), "");
}

class FixedAnswer : public FieldSelector {
 public:
  FixedAnswer(std::string selection, std::string result)
      : selection_(std::move(selection)), result_(std::move(result)) {}
  void SelectFields(SelectionRequest& request) override {
    asked = request;
    request.selection = selection_;
    request.result = result_;
  }
  SelectionRequest asked;

 private:
  std::string selection_;
  std::string result_;
};

TEST_F(RecordPassTest, AsksWhichOfCanonsAndFugues) {
  music_.MusicClassOperatingMode(2);
  music_.AddTerminalPunctuationTo("655");
  EXPECT_EQ(DeriveFrom({kCanons}), "");
  EXPECT_THAT(Fields("655"), IsEmpty()) << "nobody to ask";
  struct {
    std::string selection;
    std::string result;
    std::vector<std::string> expected;
  } cases[] = {
      {"1 2", "OK", {" 7$aCanons.$2lcgft", " 7$aFugues.$2lcgft"}},
      {" 2 ", "OK", {" 7$aFugues.$2lcgft"}},
      {"", "OK", {}},
      {"1", "CANCEL", {}},
      {"0 3 -1 99999999999 x", "OK", {}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.selection);
    FixedAnswer answer(test.selection, test.result);
    session_.field_selector = &answer;
    EXPECT_EQ(DeriveFrom({kCanons}), "");
    EXPECT_EQ(Fields("655"), test.expected);
    EXPECT_EQ(answer.asked.selection, "1 2");
    EXPECT_EQ(answer.asked.display, "655 Canons $2lcgft\n655 Fugues $2lcgft\n");
  }
}

}  // namespace
}  // namespace cantorel
