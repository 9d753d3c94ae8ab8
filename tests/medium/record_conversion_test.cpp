#include <gtest/gtest.h>

#include <vector>

#include "medium/music_650_to_382_class.h"
#include "medium/small_vocabulary.h"

namespace cantorel {
namespace {

class RecordConversionTest : public testing::Test {
 protected:
  RecordConversionTest() {
    music_.Parm_Subfield2Code("lcmpt");
    music_.Parm_InstrumentNameConfigurationFile(file_.Path());
    music_.Reset(true);
  }

  // Converts a score that holds an 001, if `id` has text, and these fields: tag,
  // indicators, text.
  void Convert(const std::vector<std::string_view>& fields, std::string_view id = "id1",
               bool add_to_record = true) {
    record_.NewRecord("c", "m");
    if (!id.empty()) record_.FldAdd("001", "", id);
    for (std::string_view field : fields) {
      record_.FldAdd(field.substr(0, 3), field.substr(3, 2), Delimited(field.substr(5)));
    }
    music_.Reset(false);
    music_.Convert650To382_Marc(record_, status_, add_to_record, added_, outcome_);
    added_ = Readable(added_);
  }

  // The 382 fields of the record, one a line.
  std::string Fields382() {
    std::string lines;
    for (record_.FldMoveTop(); record_.FldMoveNext(true);) {
      if (record_.FldTag() != "382") continue;
      if (!lines.empty()) lines += '\n';
      lines += record_.FldInd() + Readable(record_.FldText());
    }
    return lines;
  }

  SmallVocabulary file_;
  Utf8MarcRecordClass second_record_;
  MusicSession session_{&second_record_, {}, true, {}};
  Utf8MarcRecordClass record_;
  Music650To382Class music_{session_};
  std::int32_t status_ = 99;
  std::int32_t outcome_ = 99;
  std::string added_;
};

TEST_F(RecordConversionTest, AddsTheFieldsOfHeadings) {
  Convert({"650 0$aSonatas (Flute and piano)", "650 0$aConcertos (Violin)", "650 0$aFolk songs"});
  EXPECT_EQ(status_, 3);
  EXPECT_EQ(outcome_, 5) << "without an existing field the outcome is 5";
  EXPECT_EQ(added_,
            "$aflute$n1$apiano$n1$s2$2lcmpt\n"
            "$bviolin$n1$aorchestra$e1$r1$t1$2lcmpt\n"
            "1:$asinger$2lcmpt");
  EXPECT_EQ(Fields382(),
            "01$aflute$n1$apiano$n1$s2$2lcmpt\n"
            "01$bviolin$n1$aorchestra$e1$r1$t1$2lcmpt\n"
            "11$asinger$2lcmpt");

  Convert({"650 0$3First work$aFlute music", "650 0$aSolo cantatas (High voice)"}, "id1", false);
  EXPECT_EQ(added_, "$aflute$n1$s1$2lcmpt$3First work\n10:$ahigh voice$2lcmpt");
  EXPECT_EQ(Fields382(), "");
}

TEST_F(RecordConversionTest, ExaminesSubjectHeadingsOnly) {
  // Other second indicators, other tags.
  Convert({"650 2$aFlute music", "650 7$aFlute music", "655 0$aFlute music", "245 0$aFlute music",
           "652 0$aFlute music"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(outcome_, 0);
  EXPECT_EQ(music_.Parm_MessageCount(record_), 0);

  // Every tag from 600 to 651 goes to the grammar.
  Convert({"60010$aFlute music", "630 0$aOboe music", "648 0$aGuitar music", "651 0$aIceland"});
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(added_, "$aflute$n1$s1$2lcmpt\n$aoboe$n1$s1$2lcmpt\n$aguitar$n1$s1$2lcmpt");
  ASSERT_EQ(music_.Parm_MessageCount(record_), 1);
  music_.Parm_MessageIndex(1);
  EXPECT_EQ(music_.Parm_MessageTypeName(), "382 non-productive");

  // A title alone gives nothing.
  Convert({"7001 $aBach$tSuites$mflute"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(outcome_, 0);
}

TEST_F(RecordConversionTest, LeavesOtherRecordsAlone) {
  record_.NewRecord("a", "m");
  record_.FldAdd("650", " 0", Delimited("$aFlute music"));
  added_ = "left over";
  music_.Convert650To382_Marc(record_, status_, true, added_, outcome_);
  EXPECT_EQ(status_, 99);
  EXPECT_EQ(outcome_, 0);
  EXPECT_EQ(added_, "");
}

TEST_F(RecordConversionTest, StopsWithoutVocabulary) {
  Music650To382Class bare(session_);
  record_.NewRecord("d", "m");
  record_.FldAdd("650", " 0", Delimited("$aFlute music"));
  bare.Convert650To382_Marc(record_, status_, true, added_, outcome_);
  EXPECT_EQ(status_, -2);
  EXPECT_EQ(outcome_, 0);
  EXPECT_EQ(Fields382(), "");
}

TEST_F(RecordConversionTest, KnowsTheRecordByIts001) {
  Convert({"650 0$aZither music"});
  EXPECT_EQ(session_.returned_001_text, "id1");
  EXPECT_EQ(status_, 1);

  Convert({"650 0$aTrios (Zither)"}, "");
  EXPECT_EQ(session_.returned_001_text, "");
  std::FILE* file = std::tmpfile();
  ASSERT_NE(file, nullptr);
  bool done = false;
  music_.Return_ListUnrecognizedInstruments(file, done);
  std::rewind(file);
  char line[80] = {};
  EXPECT_NE(std::fgets(line, sizeof line, file), nullptr);
  EXPECT_STREQ(line, "ZITHER\t1\tNONE\n");
  std::fclose(file);
}

TEST_F(RecordConversionTest, DropsResultsThatSayLess) {
  // The same medium with a count, behind and ahead of the one without.
  Convert({"650 0$aSongs", "650 0$aVocal duets"});
  EXPECT_EQ(added_, "$asinger$n2$s2$2lcmpt");
  Convert({"650 0$aVocal duets", "650 0$aSongs"});
  EXPECT_EQ(added_, "$asinger$n2$s2$2lcmpt");
  // Two counts that differ both stay; the same field comes once.
  Convert({"650 0$aVocal duets", "650 0$aVocal trios", "650 0$aSinger music (2)",
           "650 0$aVocal duets$zIceland"});
  EXPECT_EQ(added_, "$asinger$n2$s2$2lcmpt\n$asinger$n3$s3$2lcmpt");
}

TEST_F(RecordConversionTest, RewritesExistingFields) {
  // The same field in another form: rewritten in place, its indicators kept.
  Convert({"38211$aFlute$n1", "650 0$aFlute music"});
  EXPECT_EQ(Fields382(), "11$aflute$n1$s1$2lcmpt");
  EXPECT_EQ(added_, "");
  EXPECT_EQ(outcome_, 2);
  // A marked result brings indicators of its own.
  Convert({"38200$aSinger", "650 0$aFolk songs"});
  EXPECT_EQ(Fields382(), "11$asinger$2lcmpt");

  // One that the headings do not speak of is left.
  Convert({"38201$aoboe$n1", "650 0$aFlute music"});
  EXPECT_EQ(Fields382(), "01$aoboe$n1\n01$aflute$n1$s1$2lcmpt");
  EXPECT_EQ(outcome_, 5);
  Convert({"38201$aoboe$n1", "650 0$aTopeng"});
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(outcome_, 0);
}

TEST_F(RecordConversionTest, WeighsCountsAgainstExistingFields) {
  // An existing field without counts gives way to a result that has them...
  Convert({"38201$aflute$2local", "650 0$aFlute music", "650 0$aOboe music"});
  EXPECT_EQ(Fields382(), "01$aflute$n1$s1$2lcmpt\n01$aoboe$n1$s1$2lcmpt");
  EXPECT_EQ(outcome_, 3);
  // ... but the last result has no turn of its own.
  Convert({"38201$aflute", "650 0$aFlute music"});
  EXPECT_EQ(Fields382(), "01$aflute\n01$aflute$n1$s1$2lcmpt");
  EXPECT_EQ(outcome_, 5);
  // A result without counts gives way to an existing field that has them.
  Convert({"38201$asinger$n5", "650 0$aSongs", "650 0$aOboe music"});
  EXPECT_EQ(added_, "$aoboe$n1$s1$2lcmpt");

  // Only the first of several existing fields is rewritten.
  Convert(
      {"38201$aflute$vfirst", "38201$aflute$vsecond", "650 0$aFlute music", "650 0$aOboe music"});
  EXPECT_EQ(Fields382(), "01$aflute$n1$s1$2lcmpt\n01$aflute$vsecond\n01$aoboe$n1$s1$2lcmpt");
  EXPECT_EQ(outcome_, 3);
  // A field handed to one result goes on to the next, and the first is lost.
  Convert({"38201$asinger", "650 0$aVocal duets", "650 0$aVocal trios", "650 0$aOboe music"});
  EXPECT_EQ(Fields382(), "01$asinger$n3$s3$2lcmpt\n01$aoboe$n1$s1$2lcmpt");
}

TEST_F(RecordConversionTest, TakesAnyNumberOfHeadingsAndFields) {
  std::vector<std::string> texts;
  for (int i = 0; i < 6'000; ++i) {
    texts.push_back("650 0$aPianos (" + std::to_string(i + 1) + ") with flute");
    texts.push_back("650 0$aSonatas (Pianos (" + std::to_string(i + 1) + "))");
    texts.push_back("38201$apiano$v" + std::to_string(i));
  }
  Convert({texts.begin(), texts.end()});
  EXPECT_EQ(status_, 3);
  EXPECT_EQ(outcome_, 3);
}

TEST_F(RecordConversionTest, KeepsItsSettings) {
  music_.AddTerminalPunctuationTo("");
  EXPECT_EQ(music_.AddTerminalPunctuationTo(), "");
  music_.AddTerminalPunctuationTo("655 385");
  EXPECT_EQ(music_.AddTerminalPunctuationTo(), "655 385");
  for (const auto& [set, read] : {std::pair{2, 2}, {3, 0}, {1, 1}, {-1, 0}}) {
    music_.MusicClassOperatingMode(set);
    EXPECT_EQ(music_.MusicClassOperatingMode(), read);
  }
  music_.MusicClassReportFilePath("C:\\reports");
  EXPECT_EQ(music_.MusicClassReportFilePath(), "C:\\reports\\");
  music_.MusicClassReportFilePath("");
  EXPECT_EQ(music_.MusicClassReportFilePath(), "");

  music_.MusicClassDateTimeStamp("20150930");
  music_.MusicClassDateTimeStamp("20160101.120000");
  EXPECT_EQ(music_.MusicClassDateTimeStamp(), "20150930.000000");
  music_.MusicClassDateTimeStamp("x");
  EXPECT_EQ(music_.MusicClassDateTimeStamp().size(), 15u);
  EXPECT_EQ(music_.MusicClassDateTimeStamp()[8], '.');

  // Without a source code no field has a $2.
  music_.Parm_Subfield2Code("");
  Convert({"650 0$aFlute music"});
  EXPECT_EQ(added_, "$aflute$n1$s1");
}

}  // namespace
}  // namespace cantorel
