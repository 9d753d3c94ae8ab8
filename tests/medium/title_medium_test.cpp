#include "medium/title_medium.h"

#include <gtest/gtest.h>

#include "medium/music_650_to_382_class.h"
#include "medium/small_vocabulary.h"

namespace cantorel {
namespace {

class TitleMediumTest : public testing::Test {
 protected:
  TitleMediumTest() {
    record_.FldOrderFolder(file_.Folder());
    music_.Parm_InstrumentNameConfigurationFile(file_.Path());
  }

  // The field made of a title heading; empty for result 0.
  std::string Convert(std::string_view heading) {
    std::string trailing = "left over";
    std::int32_t result = 99;
    music_.ConvertTitleMedium("c", Delimited(heading), record_, "NONE", trailing, result);
    EXPECT_EQ(trailing, "");
    EXPECT_EQ(result, music_.Return_Finished382Field().empty() ? 0 : 1) << heading;
    return Readable(music_.Return_Finished382Field());
  }

  SmallVocabulary file_;
  Utf8MarcRecordClass record_;
  MusicSession session_{&record_, {}, true, {}};
  Music650To382Class music_{session_};
};

TEST_F(TitleMediumTest, ReadsTheMedium) {
  constexpr std::string_view kString4 = "$aviolin$n1$n2$aviola$n1$acello$n1$s3$2lcmpt";
  constexpr std::string_view kString3 = "$aviolin$n1$aviola$n1$acello$n1$s3$2lcmpt";
  constexpr std::string_view kWind5 =
      "$aflute$n1$aoboe$n1$aclarinet$n1$ahorn$n1$abassoon$n1$s5$2lcmpt";
  constexpr struct {
    std::string_view heading, field, rule;
  } kCases[] = {
      {"$aSuites,$mviolin, viola, cello", kString3, "a list"},
      {"$aSuites,$mviolin,, viola , cello,$nop. 1", kString3, "up to the next delimiter"},
      {"$aBach$tSuites$mViolins, violoncello;", "$aviolin$n1$acello$n1$s2$2lcmpt",
       "preferred terms"},
      {"$aSuites$mflute$moboe", "$aflute$n1$s1$2lcmpt", "the first $m"},
      {"$aSuites", "", "no $m"},
      {"$aSuites$mflute$oarr.", "", "an arrangement"},
      {"$aSuites$m", "", "nothing in it"},
      {"$aSuites$m , .", "", "nothing in it"},
      // Indefinite media.
      {"$aSuites$mflute, keyboard acc.", "", "any case"},
      {"$aSuites$mPercussion", "", "any case"},
      {"$aSuites$mInstrumental Ensemble", "", "any case"},
      {"$aSuites$mflute, strings", "", "a family"},
      {"$aTrio no. 2$mflute, strings", "$aflute$n1$astrings$n1$s2", "a title that counts"},
      {"$aSuites$mflute, Strings", "$aflute$n1$aStrings$n1$s2", "a family in lower case only"},
      // Named forms.
      {"$aQuartets$mStrings", kString4, "needs the title"},
      {"$aQuartet,$mstrings", kString4, "singular"},
      {"$aTrios$mstrings", kString3, "needs the title"},
      {"$aSerenade$mstrings", "", "another title"},
      {"$aQuartet no. 1$mstrings", "$astrings$n1$s1", "the title as a whole"},
      {"$aQuartetss$mstrings", "$astrings$n1$s1", "the title as a whole"},
      {"$aHaydn$tQuartets$mstrings", kString4, "$t is the title"},
      {"$aQuartets$tDivertimenti$mstrings", "", "$t is the title"},
      {"$aSerenade$mstring quartet", kString4, "no title needed"},
      {"$aQuintets$mpiano, strings", "$aviolin$n1$n2$aviola$n1$acello$n1$apiano$n1$s4$2lcmpt",
       "comparison form"},
      {"$aTrios$mpiano, strings.", "$aviolin$n1$acello$n1$apiano$n1$s3$2lcmpt", "named form"},
      {"$aSerenade$mwind quintet", kWind5, "named form"},
      {"$aQuintets$mwinds", kWind5, "named form"},
      {"$aQuartets$mwoodwinds", "$aflute$n1$aoboe$n1$aclarinet$n1$abassoon$n1$s4$2lcmpt",
       "named form"},
      // Parentheses.
      {"$aSuites$mpiano, 4 hands", "", "hands outside"},
      {"$aSuites$mpiano (4 hands)", "$apiano$n1$s1$2lcmpt", "taken off"},
      {"$aSuites$mpiano (4-6 Hands).", "$apiano$n1$s1$2lcmpt", "taken off"},
      {"$aSuites$mviolins (2)", "$aviolin$n1$s1$2lcmpt", "the last number is lost"},
      {"$aSuites$mviolins (2), piano", "$aviolin$n2$apiano$n1$s3$2lcmpt", "the count"},
      {"$aSuites$mviolins (2), piano, 4 hands (2)", "$aviolin$n2$apiano$n1$a4 hands$n1$s4",
       "hands ahead of a parenthesis"},
      {"$aSuites$mpiano (4 hands left)", "$apiano$n4$s4$2lcmpt", "the word goes, the rest stays"},
      {"$aSuites$mpiano (left hand)", "$apiano (left hand)$n1$s1", "no number"},
      {"$aSuites$mflutes ((2))", "$aflutes ((2))$n1$s1", "nested"},
      {"$aSuites$mflute)", "", "no pair"},
      {"$aSuites$m(2)", "", "nothing left"},
      {"$aSuites$mflutes (99999999999), oboe", "$aflute$n1000000000$aoboe$n1$s1000000001$2lcmpt",
       "a large number"},
      // Ensembles.
      {"$aSuites$mflute, orchestra", "$bflute$n1$aorchestra$e1$2lcmpt", "soloist"},
      {"$aSuites$morchestra", "$aorchestra$e1$2lcmpt", "none"},
      {"$aSuites$mzither, orchestra", "$azither$n1$aorchestra$e1", "an unknown term is no soloist"},
      {"$aSuites$mflute, chorus", "$aflute$n1$achorus$e1$s2", "not among the instruments"},
  };
  for (const auto& c : kCases) EXPECT_EQ(Convert(c.heading), c.field) << c.heading << ' ' << c.rule;
  EXPECT_EQ(music_.Parm_MessageCount(record_), 0) << "unknown terms of titles are not reported";
}

TEST_F(TitleMediumTest, ExtractsTheTitle) {
  constexpr struct {
    std::string_view heading, trimmed, normalised;
  } kCases[] = {
      {"$aBach, J. S.$t Suites, $mflute", "Suites,", "SUITES"},
      {"$a Suites ", "Suites", "SUITES"},
      {"$aBach$t$mflute", "", ""},
      {"$mflute", "", ""},
      {"", "", ""},
  };
  std::string title;
  for (const auto& c : kCases) {
    const std::string field = Delimited(c.heading);
    music_.Convert650To382_SubfieldM_TitleExtract(field, false, record_, title);
    EXPECT_EQ(title, c.trimmed) << c.heading;
    music_.Convert650To382_SubfieldM_TitleExtract(field, true, record_, title);
    EXPECT_EQ(title, c.normalised) << c.heading;
  }
}

TEST_F(TitleMediumTest, StepsTakeOtherSubfieldsAsTheyStand) {
  std::string text = Delimited("$bflutes (3)$pOboe (2)$vnote$aband");
  music_.Convert650To382_SubfieldM_Parentheses(record_, text);
  EXPECT_EQ(Readable(text), "$bflutes$n3$pOboe (2)$vnote$aband$n1");
  std::string verified;
  music_.Convert650To382_SubfieldM_Verify(text, record_, verified);
  EXPECT_EQ(Readable(verified), "$bflute$n3$pOboe (2)$vnote$aband$n1$2lcmpt");
}

// A title gives its field only beside a heading that gives none.
TEST_F(TitleMediumTest, StandsInForHeadings) {
  const auto convert = [this](std::string_view heading) {
    record_.NewRecord("c", "m");
    record_.FldAdd("650", " 0", Delimited(heading));
    record_.FldAdd("240", "10", Delimited("$aTrios,$mflute, oboe, piano"));
    std::int32_t status = 99, outcome = 99;
    std::string added;
    music_.Convert650To382_Marc(record_, status, true, added, outcome);
    return std::to_string(status) + ' ' + Readable(added);
  };
  EXPECT_EQ(convert("$aTopeng"), "3 $aflute$n1$aoboe$n1$apiano$n1   $s3$2lcmpt");
  EXPECT_EQ(convert("$aHorn music"), "3 $ahorn$n1$s1");
}

}  // namespace
}  // namespace cantorel
