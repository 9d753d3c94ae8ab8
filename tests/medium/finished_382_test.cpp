#include "medium/finished_382.h"

#include <gtest/gtest.h>

#include "medium/music_650_to_382_class.h"
#include "medium/small_vocabulary.h"

namespace cantorel {
namespace {

class Finished382Test : public testing::Test {
 protected:
  Finished382Test() { music_.Parm_InstrumentNameConfigurationFile(file_.Path()); }

  std::string Corrected(std::string_view field, bool ensembles_take_e = true) {
    MusicSession session;
    ConversionReport report;
    MediumVocabulary vocabulary(session, report);
    vocabulary.InstrumentFile(file_.Path());
    std::string text = Delimited(field);
    CorrectFinished382(record_, vocabulary, ensembles_take_e, text);
    return Readable(text);
  }

  // The field after the correction in its record.
  std::string CorrectedInRecord(std::string_view tag, std::string_view field) {
    record_.NewRecord("c", "m");
    record_.FldAdd(tag, "01", Delimited(field));
    EXPECT_TRUE(record_.FldFindFirst(tag, {}));
    music_.CorrectRecord382(record_);
    return Readable(record_.FldText());
  }

  SmallVocabulary file_;
  Utf8MarcRecordClass record_;
  MusicSession session_;
  Music650To382Class music_{session_};
};

TEST_F(Finished382Test, ReadsTheMarkedForm) {
  struct Case {
    std::string_view field;
    std::string_view indicators;
    std::string_view text;
  };
  for (const Case& c : {Case{"1:$asinger", "11", "$asinger"},
                        {"10:$asinger", "10", "$asinger"},
                        {"$asinger: alto", "01", "$asinger: alto"},
                        {":$asinger", "01", ":$asinger"},
                        {"1:", "11", ""},
                        {"1", "01", "1"},
                        {"", "01", ""}}) {
    const MarkedForm form = ReadMarkedForm(c.field);
    EXPECT_EQ(form.Indicators(), c.indicators) << c.field;
    EXPECT_EQ(form.text, c.text) << c.field;
  }
}

TEST_F(Finished382Test, ComparesBySelectedSubfields) {
  const auto form = [this](std::string_view field, std::string_view codes) {
    std::string made = "left over";
    Comparison382Form(record_, Delimited(field), codes, made);
    return made;
  };
  EXPECT_EQ(form("10:$aFlute.$n2$vAlto$s2$2lcmpt", kWholeMediumCodes), "FLUTE 2 ALTO");
  EXPECT_EQ(form("$aflute$n2$aoboe$n1", kMediumWithoutCountCodes), "FLUTE OBOE");
  // Codes do not enter the form.
  EXPECT_EQ(form("$bband$e1", kWholeMediumCodes), form("$aband$n1", kWholeMediumCodes));
  EXPECT_EQ(form("$", kWholeMediumCodes), "");
  EXPECT_EQ(form("", kWholeMediumCodes), "");
}

TEST_F(Finished382Test, MakesTotals) {
  struct Case {
    std::string_view field;
    std::string_view corrected;
  };
  const Case cases[] = {
      // No ensemble: the performers, ahead of the source or at the end.
      {"$aflute$n1$aviolin$n2$2lcmpt", "$aflute$n1$aviolin$n2$s3$2lcmpt"},
      {"1:$asinger$n2", "1:$asinger$n2$s2"},
      {"$aflute$n1$2lcmpt$3First work", "$aflute$n1$s1$2lcmpt$3First work"},
      // Doublings and alternatives are nobody new.
      {"$aflute$n2$doboe$n1$pviolin$n1$s4", "$aflute$n2$doboe$n1$pviolin$n1$s2"},
      // Ensembles are counted apart, with soloists beside them or without.
      {"$aorchestra$n1", "$aorchestra$e1$t1"},
      {"$bviolin$n2$aorchestra$n1$2lcmpt", "$bviolin$n2$aorchestra$e1$r2$t1$2lcmpt"},
      {"$aviolin$n2$aorchestra$n1", "$aviolin$n2$aorchestra$e1$t1"},
      {"$arecorder ensemble$e2", "$arecorder ensemble$e2$t2"},
      {"$aorchestra$nseveral", "$aorchestra$eseveral"},
      // A performer without a count: no totals at all.
      {"$aflute$n1$acontinuo$2lcmpt", "$aflute$n1$acontinuo$2lcmpt"},
      {"$aviolin$valto$n1", "$aviolin$valto$n1"},
      {"$acontinuo$aflute$n1", "$acontinuo$aflute$n1"},
      {"$aorchestra$n1$aflute$", "$aorchestra$e1$aflute$"},
      // Nothing to count.
      {"$asinger$2lcmpt", "$asinger$2lcmpt"},
      {"$ainstrument$4", "$ainstrument$4"},
      {"", ""},
      // Old totals go; one amid the field leaves blanks.
      {"$aflute$n1$s7", "$aflute$n1$s1"},
      {"$aflute$n1$s7$2lcmpt", "$aflute$n1   $s1$2lcmpt"},
      {"$bflute$n1$aorchestra$e1$r9$t9", "$bflute$n1$aorchestra$e1   $r1$t1"},
      // Numbers too large to be true.
      {"$aflute$n99999999999$aoboe$n99999999999",
       "$aflute$n99999999999$aoboe$n99999999999$s2000000000"},
  };
  for (const Case& c : cases) EXPECT_EQ(Corrected(c.field), c.corrected) << c.field;

  EXPECT_EQ(Corrected("$bflute$n1$aorchestra$n1", false), "$bflute$n1$aorchestra$n1");
}

TEST_F(Finished382Test, CorrectsAFieldOfTheRecord) {
  struct Case {
    std::string_view field;
    std::string_view corrected;
  };
  const Case cases[] = {
      {"$aflute$n1$doboe$n1$aviolin$n2", "$aflute$n1$doboe$n1$aviolin$n2$s3"},
      {"$aflute$n1$s5$s6$2lcmpt", "$aflute$n1$2lcmpt$s1"},
      {"$bviolin$n1$aString orchestra.$n1$s2", "$bviolin$n1$aString orchestra.$e1"},
      {"$asinger$n4$e1", "$asinger$n4$e1"},
      // Only three names and " ensemble" are known here, whatever the vocabulary.
      {"$achorus$n1", "$achorus$n1$s1"},
      // A performer without a count leaves the total alone.
      {"$aflute$n1$acontinuo$s5", "$aflute$n1$acontinuo$s5"},
      {"$aflute$n1$s5$aoboe", "$aflute$n1$s5$aoboe"},
  };
  for (const Case& c : cases) EXPECT_EQ(CorrectedInRecord("382", c.field), c.corrected) << c.field;
  EXPECT_EQ(CorrectedInRecord("383", "$aflute$n1$s5"), "$aflute$n1$s5");

  session_.ensembles_take_e = false;
  EXPECT_EQ(CorrectedInRecord("382", "$aband$n1"), "$aband$n1");
}

}  // namespace
}  // namespace cantorel
