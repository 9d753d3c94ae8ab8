#include "medium/medium_vocabulary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/file_layer.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

class MediumVocabularyTest : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        std::filesystem::path(testing::TempDir()) / ("vocabulary_" + std::string(test->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    Write(
        "[Instruments]\n"
        "DOUBLE_BASS=double bass\tthe string instrument\n"
        "KETTLEDRUMS=timpani\n"
        "VIOLIN=violin\n"
        "NAY=na\xCC\x84y &lpar;&amp;&#39;flute&#39;\n"
        "STRING_ORCHESTRA=string orchestra\n"
        "ORCHESTRAS=orchestra\n"
        "[Ensembles]\n"
        "STRING_ORCHESTRA=string orchestra\tnote\n"
        "ORCHESTRAS=orchestra\n");
    vocabulary_.InstrumentFile(folder_.string() + "\\MusicMedium.Lcmpt.txt");
    record_.NewRecord("c", "m");
    record_.FldAdd("650", " 0",
                   "\x1F"
                   "aBanjo music.",
                   true);
    session_.returned_001_text = "rec1";
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void Write(std::string_view text) {
    ASSERT_TRUE(WriteWholeFile((folder_ / "MusicMedium.Lcmpt.txt").string(), text));
  }
  std::string Instrument(std::string_view term) {
    std::string preferred = "unchanged";
    const bool found = vocabulary_.FindInstrument(record_, term, preferred);
    EXPECT_EQ(found, preferred != "unchanged") << term;
    return found ? preferred : "";
  }

  std::filesystem::path folder_;
  MusicSession session_;
  ConversionReport report_;
  MediumVocabulary vocabulary_{session_, report_};
  Utf8MarcRecordClass record_;
};

TEST_F(MediumVocabularyTest, FindsInstrumentsByTermWithOneRetry) {
  const struct {
    const char* term;
    const char* preferred;
  } cases[] = {
      {"DOUBLE BASS", "double bass"},  // without the note
      {"VIOLIN", "violin"},
      {"VIOLINS", "violin"},
      {"KETTLEDRUM", "timpani"},
      {"KETTLEDRUMSS", "timpani"},
      {"VIOLINSS", ""},  // one S only
      {"DOUBLE BASSES", ""},
      {"NAY", "na\xCC\x84y &lpar;&'flute'"},
      {"S", ""},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Instrument(c.term), c.preferred) << c.term;
}

TEST_F(MediumVocabularyTest, KeepsWhatItFoundAndReportsWhatItDidNot) {
  EXPECT_EQ(Instrument("VIOLINS"), "violin");
  EXPECT_EQ(Instrument("BANJO"), "");
  EXPECT_EQ(Instrument("BANJO"), "");
  ASSERT_EQ(report_.MessageCount(), 2);
  report_.MessageIndex(2);
  EXPECT_EQ(report_.MessageType(), kGeneralMessage);
  EXPECT_EQ(report_.MessageText(), "Unrecognized instrument BANJO");
  EXPECT_EQ(report_.MessageRecordIds(), "rec1");
  EXPECT_EQ(report_.UnrecognizedInstrumentTotal(), 0);

  Write("[Instruments]\nVIOLINS=fiddle\nBANJO=banjo\n");
  EXPECT_EQ(Instrument("BANJO"), "banjo");
  EXPECT_EQ(Instrument("VIOLINS"), "violin");
  vocabulary_.ClearInstrumentCache();
  EXPECT_EQ(Instrument("VIOLINS"), "fiddle");
}

TEST_F(MediumVocabularyTest, WithoutAFileNameFindsNothingAndSaysNothing) {
  vocabulary_.InstrumentFile("");
  EXPECT_EQ(Instrument("VIOLIN"), "");
  EXPECT_EQ(report_.MessageCount(), 0);
}

TEST_F(MediumVocabularyTest, EnsembleAnswersOutliveTheFolder) {
  EXPECT_TRUE(vocabulary_.IsEnsembleName(record_, "STRING ORCHESTRA"));
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, "ORCHESTRA"));  // no retry here
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, "BAND"));
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, ""));
  std::string preferred;
  EXPECT_TRUE(vocabulary_.FindEnsemble(record_, "STRING ORCHESTRA", preferred));
  EXPECT_EQ(preferred, "string orchestra");

  Write("[Ensembles]\nBAND=band\nCHORUS=chorus\n");
  vocabulary_.InstrumentFile("\\nowhere\\MusicMedium.Lcmpt.txt");
  vocabulary_.ClearInstrumentCache();
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, "BAND"));
  EXPECT_TRUE(vocabulary_.IsEnsembleName(record_, "STRING ORCHESTRA"));
  EXPECT_TRUE(vocabulary_.IsEnsembleName(record_, "CHORUS"));  // the first file, read anew
}

TEST_F(MediumVocabularyTest, TheEnsembleFileIsSoughtOnce) {
  vocabulary_.InstrumentFile("");
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, "STRING ORCHESTRA"));
  vocabulary_.InstrumentFile((folder_ / "MusicMedium.Lcmpt.txt").string());
  EXPECT_FALSE(vocabulary_.IsEnsembleName(record_, "STRING ORCHESTRA"));
  MusicSession fresh;
  MediumVocabulary other(fresh, report_);
  other.InstrumentFile((folder_ / "MusicMedium.Lcmpt.txt").string());
  EXPECT_TRUE(other.IsEnsembleName(record_, "STRING ORCHESTRA"));
}

TEST_F(MediumVocabularyTest, TellsWhetherItIsReady) {
  EXPECT_EQ(vocabulary_.Prepare(), 0);
  vocabulary_.EnsembleFile(folder_.string() + "\\none.txt");
  EXPECT_EQ(vocabulary_.Prepare(), -3);
  vocabulary_.EnsembleFile(folder_.string() + "\\MusicMedium.Lcmpt.txt");
  EXPECT_EQ(vocabulary_.Prepare(), 0);
  vocabulary_.InstrumentFile("");
  EXPECT_EQ(vocabulary_.Prepare(), -2);
  vocabulary_.InstrumentFile("a name is enough");
  EXPECT_EQ(vocabulary_.Prepare(), 0);
}

TEST_F(MediumVocabularyTest, VerifiesTermsOfTitles) {
  Utf8MarcRecordClass record;
  std::string preferred = "unchanged";
  bool is_ensemble = true;
  EXPECT_FALSE(vocabulary_.VerifyMediumTerm("violin", preferred, is_ensemble, record));
  EXPECT_FALSE(is_ensemble);
  record.FldOrderFolder(folder_.string());
  const struct {
    const char* term;
    const char* preferred;
    bool is_ensemble;
  } cases[] = {
      {"Double-bass.", "double bass", false},
      {"violins", "violin", false},
      {"string orchestra", "string orchestra", true},
      {"String orchestras", "string orchestra", true},
      {"orchestra", "orchestra", true},  // the key that was found counts for both
      {"banjo", "unchanged", false},
  };
  for (const auto& c : cases) {
    preferred = "unchanged";
    const bool found = vocabulary_.VerifyMediumTerm(c.term, preferred, is_ensemble, record);
    EXPECT_EQ(found, preferred != "unchanged") << c.term;
    EXPECT_EQ(preferred, c.preferred) << c.term;
    EXPECT_EQ(is_ensemble, c.is_ensemble) << c.term;
  }
  EXPECT_EQ(report_.MessageCount(), 0);
}

}  // namespace
}  // namespace cantorel
