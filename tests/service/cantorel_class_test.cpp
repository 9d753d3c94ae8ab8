#include "service/cantorel_class.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "platform/file_layer.h"
#include "service/service_fixture.h"
#include "service/service_objects.h"

namespace cantorel {
namespace {

using ::testing::MatchesRegex;

const SampleField kNumber = {"001", "", "ocm382"};
const SampleField kTitle = {"245", "10", "$aSonata"};

using CantorelSettings = ServiceTest;

TEST_F(CantorelSettings, TheConfigurationFolderEndsInABackslash) {
  const std::pair<std::string, std::string> cases[] = {
      {"C:\\config", "C:\\config\\"},
      {"C:\\config\\", "C:\\config\\"},
      {"/etc/config/", "/etc/config/\\"},
      {"me too", "me too\\"},
      {"", ""},
  };
  for (const auto& [set, read] : cases) {
    cantorel_.ConfigurationPath(set);
    EXPECT_EQ(cantorel_.ConfigurationPath(), read);
    EXPECT_EQ(TheOptionsForm().Folder(), read);
  }
  for (const std::string_view me : {"me", "ME", " Me. "}) {
    cantorel_.ConfigurationPath(me);
    EXPECT_EQ(cantorel_.ConfigurationPath(), ProgramFolder() + "\\") << me;
  }
  EXPECT_EQ(TheServiceState().ini_file_name, ProgramFolder() + "\\Cantorel.INI");
  EXPECT_EQ(TheSecondRecord().FldOrderFolder(), ProgramFolder() + "\\");
}

TEST_F(CantorelSettings, AFolderSetLaterIsReadAfresh) {
  const std::string image =
      SampleImage('c', {kNumber, {"650", " 0", "$aSonatas (Zither and piano)"}});
  EXPECT_EQ(cantorel_.AddFields(image, 1), 0);
  WriteFile(folder_ + "MusicMedium.Lcmpt.txt", "[Instruments]\nZITHER=zither\nPIANO=pianoforte\n");
  cantorel_.ConfigurationPath(folder_);
  EXPECT_EQ(cantorel_.AddFields(image, 1), 1);
  EXPECT_EQ(Readable(cantorel_.ReturnedFields())[0],
            "0 382 01 $azither$n1$apianoforte$n1$s2$2lcmpt");
}

TEST_F(CantorelSettings, ReadBackAsTheyAreKept) {
  const std::pair<std::int32_t, std::int32_t> modes[] = {{0, 0}, {1, 1}, {2, 2}, {3, 0}, {-1, 0}};
  for (const auto& [set, read] : modes) {
    cantorel_.MusicClassOperatingMode(set);
    EXPECT_EQ(cantorel_.MusicClassOperatingMode(), read);
  }
  EXPECT_THAT(cantorel_.MusicClassDateTimeStamp(), MatchesRegex("20......\\.......")) << "now";
  cantorel_.MusicClassDateTimeStamp("20150930");
  EXPECT_EQ(cantorel_.MusicClassDateTimeStamp(), "20150930.000000");
  cantorel_.MusicClassDateTimeStamp("20160101.121314");
  EXPECT_EQ(cantorel_.MusicClassDateTimeStamp(), "20150930.000000");
  cantorel_.MusicClassDateTimeStamp("now");
  EXPECT_NE(cantorel_.MusicClassDateTimeStamp(), "20150930.000000");

  for (const std::string_view path : {"C:\\r", "C:\\r\\"}) {
    cantorel_.MusicClassReportFilePath(path);
    EXPECT_EQ(cantorel_.MusicClassReportFilePath(), "C:\\r\\");
  }
  cantorel_.MusicClassReportFilePath("");
  EXPECT_EQ(cantorel_.MusicClassReportFilePath(), "");

  const std::pair<std::string_view, std::string_view> tags[] = {
      {"382 655", "382 655"}, {"", ""}, {"*", ""}};
  for (const auto& [set, read] : tags) {
    cantorel_.AddTerminalPunctuationTo(set);
    EXPECT_EQ(cantorel_.AddTerminalPunctuationTo(), read);
  }
}

using CantorelResults = ServiceTest;

TEST_F(CantorelResults, AreEmptyBeforeTheFirstRecord) {
  ReleaseServiceObjects();
  CantorelClass cantorel;
  cantorel.Reset();
  EXPECT_EQ(cantorel.ConfigurationPath(), "");
  EXPECT_EQ(cantorel.ReturnedFields(), "");
  EXPECT_EQ(cantorel.Returned001Field(), "");
  EXPECT_EQ(cantorel.ReturnedCandidateFields(), "");
  EXPECT_EQ(cantorel.ReturnedNonProductiveFields(), "");
  EXPECT_EQ(cantorel.ReturnedFieldsExcludedForExcerpts(), "");
  EXPECT_EQ(cantorel.ReturnedMessageCount(), 0);
  cantorel.ReturnedMessageIndex(1);
  EXPECT_EQ(cantorel.ReturnedMessageType(), 0);
  EXPECT_EQ(cantorel.ReturnedMessageTypeName(), "Unknown");
  EXPECT_EQ(cantorel.ReturnedMessageInstances(), 0);
  EXPECT_EQ(cantorel.ReturnedUnrecognizedInstrumentTotal(), 0);
  cantorel.ReturnedUnrecognizedInstrumentIndex(1);
  EXPECT_EQ(cantorel.ReturnedUnrecognizedInstrumentIndex(), -1);
  EXPECT_EQ(cantorel.ReturnedUnrecognizedPlaceTotal(), 0);
  EXPECT_EQ(cantorel.Z_AddFields_20170805("cm", true, 1), 0);
}

TEST_F(CantorelResults, MessagesAreThoseOfTheLastRecord) {
  const SampleField nothing = {"650", " 0", "$aBlitzkrieg$zPoland"};
  const SampleField unknown = {"650", " 0", "$aSonatas (Zither and piano)"};
  ASSERT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, nothing, unknown}), 1), 0);
  ASSERT_EQ(cantorel_.ReturnedMessageCount(), 3);
  EXPECT_EQ(cantorel_.ReturnedMessageIndex(), 0);
  cantorel_.ReturnedMessageIndex(1);
  EXPECT_EQ(cantorel_.ReturnedMessageType(), 1);
  EXPECT_EQ(cantorel_.ReturnedMessageTerms(),
            Delimited("$aBlit") + "$zkrieg" + Delimited("$") + "$zPoland");
  cantorel_.ReturnedMessageIndex(2);
  EXPECT_EQ(cantorel_.ReturnedMessageTypeName(), "382 non-productive");
  cantorel_.ReturnedMessageIndex(3);
  EXPECT_EQ(cantorel_.ReturnedMessageTypeName(), "655 general message");
  EXPECT_EQ(cantorel_.ReturnedMessageText(), "Unrecognized instrument ZITHER");
  EXPECT_EQ(cantorel_.ReturnedMessageRecordIds(), "ocm382");
  EXPECT_EQ(cantorel_.ReturnedMessageTerms(), "650 " + Delimited("$aSonatas (Zither and piano)"));

  ASSERT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kTitle}), 1), 0);
  EXPECT_EQ(cantorel_.ReturnedMessageCount(), 0);
}

// An unknown instrument is told each time, and is no entry of the fourth band.
TEST_F(CantorelResults, AnUnknownInstrumentIsToldForEachHeading) {
  const std::vector<SampleField> fields(12, {"650", " 0", "$aSonatas (Zither and piano)"});
  ASSERT_EQ(cantorel_.AddFields(SampleImage('c', fields), 1), 0);
  const std::int32_t count = cantorel_.ReturnedMessageCount();
  int told = 0;
  for (std::int32_t i = 1; i <= count; ++i) {
    cantorel_.ReturnedMessageIndex(i);
    EXPECT_LE(cantorel_.ReturnedMessageType(), 2);
    if (cantorel_.ReturnedMessageText() == "Unrecognized instrument ZITHER") ++told;
  }
  EXPECT_EQ(told, 12);
  EXPECT_EQ(cantorel_.ReturnedUnrecognizedInstrumentTotal(), 0);
}

// Objects of one thread share everything; another thread has its own.
TEST_F(CantorelResults, BelongToTheThread) {
  CantorelClass second;
  EXPECT_EQ(second.ConfigurationPath(), cantorel_.ConfigurationPath());
  std::string folder = "not asked";
  std::thread other([&folder] {
    CantorelClass cantorel;
    folder = cantorel.ConfigurationPath();
    cantorel.ConfigurationPath("elsewhere");
    ReleaseServiceObjects();
  });
  other.join();
  EXPECT_EQ(folder, "");
  EXPECT_EQ(cantorel_.ConfigurationPath(), folder_ + "\\");
}

}  // namespace
}  // namespace cantorel
