#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "service/service_fixture.h"
#include "service/service_objects.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kFlutePiano = "$aflute$n1$apiano$n1$s2$2lcmpt";
const SampleField kNumber = {"001", "", "ocm382"};
const SampleField kTitle = {"245", "10", "$aSonata"};
const SampleField kSonata = {"650", " 0", "$aSonatas (Flute and piano)"};

// --- Results -------------------------------------------------------------------

using AddFieldsResults = ServiceTest;

TEST_F(AddFieldsResults, NoIncomingData) {
  EXPECT_EQ(cantorel_.AddFields("", 1), -1);
}

TEST_F(AddFieldsResults, FirstLineTooShort) {
  for (const std::string_view data : {"c", "\n", "c\n650 0xx", "\ncm\n", "\x1D"}) {
    EXPECT_EQ(cantorel_.AddFields(data, 1), -2) << data;
  }
}

TEST_F(AddFieldsResults, NotMusic) {
  for (const char type : {'a', 'e', 'C', ' ', 'z'}) {
    EXPECT_EQ(cantorel_.AddFields(SampleImage(type, {kNumber, kSonata}), 1), -3) << type;
  }
  EXPECT_EQ(cantorel_.AddFields("am\n650 0\x1F"
                                "aSonatas (Flute and piano)",
                                1),
            -3);
  for (const char type : {'c', 'd', 'j'}) {
    EXPECT_EQ(cantorel_.AddFields(SampleImage(type, {kNumber, kSonata}), 1), 1) << type;
  }
}

TEST_F(AddFieldsResults, NoConfigurationFolder) {
  cantorel_.ConfigurationPath("");
  EXPECT_EQ(cantorel_.ConfigurationPath(), "");
  EXPECT_EQ(cantorel_.AddFields("", 1), -5);
  ReleaseServiceObjects();
  EXPECT_EQ(CantorelClass().AddFields(SampleImage('c', {kNumber}), 1), -5);
}

// A table without its signature is no table.  It is complained of once an
// object, and is not overwritten.
TEST_F(AddFieldsResults, NoDerivationTable) {
  const std::string table = folder_ + "Music6xxTo655.txt";
  WriteFile(table, "[List12]\nFILEPRESENT=True\n");
  EXPECT_EQ(cantorel_.AddFields("", 1), -6);
  EXPECT_EQ(cantorel_.AddFields("", 1), -1);
  EXPECT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kSonata}), 1), 1);
  EXPECT_EQ(CantorelClass().AddFields("", 1), -6);
  EXPECT_EQ(ReadFile(table), "[List12]\nFILEPRESENT=True\n");
  std::filesystem::remove(table);
  EXPECT_EQ(CantorelClass().AddFields("", 1), -6);
  EXPECT_FALSE(std::filesystem::exists(table));
}

// The table is made from its workbook at the first call, and only then.
TEST_F(AddFieldsResults, DerivationTableFromItsWorkbook) {
  const std::string table = folder_ + "Music6xxTo655.txt";
  const std::string workbook = folder_ + "Deriving bibliographic 655 etc.xlsx";
  std::filesystem::copy(CANTOREL_TEST_DATA "/workbooks/derivation.xlsx", workbook);
  EXPECT_EQ(cantorel_.AddFields("", 2), -1);
  EXPECT_THAT(ReadFile(table), ::testing::Not(::testing::HasSubstr("[List3]")));
  std::filesystem::remove(table);
  CantorelClass cantorel;
  if (cantorel.AddFields("", 2) == -6) GTEST_SKIP() << "no reader of workbooks";
  cantorel.AddFields(SampleImage('c', {kNumber, {"650", " 0", "$aChildren's songs"}}), 2);
  EXPECT_THAT(Readable(cantorel.ReturnedFields()),
              ::testing::UnorderedElementsAre("0 655  7 $aChildren's songs$2lcgft",
                                              "0 385    $aChildren$2lcdgt"));
}

TEST_F(AddFieldsResults, NothingToReturn) {
  EXPECT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kTitle}), 1), 0);
  EXPECT_EQ(cantorel_.ReturnedFields(), "");
}

// --- Added, replaced and unchanged fields ------------------------------------------

using AddFields = ServiceTest;

TEST_F(AddFields, ReturnsANewFieldAsALine) {
  EXPECT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kTitle, kSonata}), 1), 1);
  // Chamber music follows from the two performers.
  EXPECT_THAT(
      Readable(cantorel_.ReturnedFields()),
      ElementsAre("0 382 01 " + std::string(kFlutePiano), "0 655  7 $aChamber music$2lcgft"));
  EXPECT_TRUE(cantorel_.ReturnedFields().starts_with("0\t382011F61666C757465"));
  EXPECT_EQ(cantorel_.Returned001Field(), "ocm382");
}

TEST_F(AddFields, DoesNotReturnWhatTheRecordHas) {
  const SampleField genre = {"655", " 7", "$aChamber music$2lcgft"};
  EXPECT_THAT(Lines({kNumber, {"382", "01", kFlutePiano}, kSonata, genre}), IsEmpty());
  // Neither $0 nor the order of a $9 matters.
  EXPECT_THAT(
      Lines(
          {kNumber, {"382", "01", "$96$0(local)1$aflute$n1$apiano$n1$s2$2lcmpt"}, kSonata, genre}),
      IsEmpty());
}

// A field equal but for case and punctuation is replaced, and keeps its $0 and
// $1.  Its identifier is its place in the record.
TEST_F(AddFields, ReplacesAFieldThatReadsDifferently) {
  const SampleField genre = {"655", " 7", "$aChamber music$2lcgft"};
  EXPECT_THAT(Lines({kNumber,
                     kTitle,
                     {"382", "01", "$aFlute,$n1$aPiano$n1$s2$2lcmpt$0(x)1$1http://x/2"},
                     kSonata,
                     genre}),
              ElementsAre("2 382 01 " + std::string(kFlutePiano) + "$0(x)1$1http://x/2"));
}

TEST_F(AddFields, TakesTheIdentifierFromSubfield9) {
  const SampleField genre = {"655", " 7", "$aChamber music$2lcgft"};
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"$9417", "417 "},       // any number
      {"$9417$9 12 ", "12 "},  // the last one counts
      {"$9x", "0 "},           // no number: a field to add
  };
  for (const auto& [ninth, id] : cases) {
    const std::string old = std::string("$aFLUTE$n1$aPiano$n1$s2$2lcmpt") + std::string(ninth);
    EXPECT_THAT(Lines({kNumber, {"382", "01", old}, kSonata, genre}),
                ElementsAre(std::string(id) + "382 01 " + std::string(kFlutePiano)))
        << ninth;
  }
  // Below 0: never returned.
  EXPECT_THAT(Lines({kNumber, {"382", "01", "$aFLUTE$n1$aPiano$n1$s2$2lcmpt$9-5"}, kSonata, genre}),
              IsEmpty());
}

TEST_F(AddFields, LeavesOutWhatItDoesNotDerive) {
  // A 382 that no heading gives is taken out of the working record, but the
  // host keeps its own: nothing is said of it.
  EXPECT_THAT(Lines({kNumber, {"382", "01", "$aorchestra$e1$t1$2lcmpt"}, kTitle}), IsEmpty());
  // Headings of other systems are not read.
  EXPECT_THAT(Lines({kNumber, {"650", " 7", "$aSonatas (Flute and piano)$2x"}}), IsEmpty());
}

TEST_F(AddFields, ConvertsNothingInOtherModesButConcludesChamberMusic) {
  const std::vector<SampleField> fields = {kNumber, {"382", "01", kFlutePiano}, kSonata};
  for (const std::int32_t mode : {0, 4, -1}) {
    EXPECT_THAT(Lines(fields, mode), ElementsAre("0 655  7 $aChamber music$2lcgft")) << mode;
    EXPECT_THAT(Lines({kNumber, kSonata}, mode), IsEmpty()) << mode;
  }
  cantorel_.AddTerminalPunctuationTo("655");
  EXPECT_THAT(Lines(fields, 0), ElementsAre("0 655  7 $aChamber music.$2lcgft"));
}

// Genres that the record has stay in the record under work: one that reads
// differently is replaced where it stands, one that reads the same is passed
// over in silence, and so are those that nothing stands for.
TEST_F(AddFields, ComparesGenresWithThoseOfTheRecord) {
  const SampleField kPieces = {"008", "", "850101s1985    xxusypd f              n eng d"};
  struct {
    std::string_view genre;
    std::vector<std::string> expected;
  } cases[] = {
      {"$aPiano scores$2lcgft", {}},
      {"$aPiano scores.$2lcgft$0x$926", {"26 655  7 $aPiano scores$2lcgft$0x"}},
      {"$aPiano scores.$2lcgft", {"3 655  7 $aPiano scores$2lcgft"}},
      {"$aPiano scores$2gsafd", {"0 655  7 $aPiano scores$2lcgft"}},
      {"$2lcgft$aPiano scores", {}},
  };
  for (const auto& test : cases) {
    std::vector<std::string> expected = test.expected;
    expected.push_back("0 655  7 $aPreludes (Music)$2lcgft");
    expected.push_back("0 655  7 $aParts (Music)$2lcgft");
    EXPECT_THAT(
        Lines({kNumber, kPieces, kTitle, {"655", " 7", test.genre}, {"047", "  ", "$apr"}}, 2),
        ::testing::UnorderedElementsAreArray(expected))
        << test.genre;
  }
}

TEST_F(AddFields, KeepsTheLinesBeforeWhenACallIsRefused) {
  ASSERT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kSonata}), 1), 1);
  const std::string lines = cantorel_.ReturnedFields();
  EXPECT_EQ(cantorel_.AddFields("", 1), -1);
  EXPECT_EQ(cantorel_.ReturnedFields(), lines);
  EXPECT_EQ(cantorel_.Returned001Field(), "");
  EXPECT_EQ(cantorel_.AddFields(SampleImage('a', {kNumber, kTitle}), 1), -3);
  EXPECT_EQ(cantorel_.ReturnedFields(), lines);
  EXPECT_EQ(cantorel_.Returned001Field(), "ocm382");
  EXPECT_EQ(cantorel_.AddFields(SampleImage('c', {kNumber, kTitle}), 1), 0);
  EXPECT_EQ(cantorel_.ReturnedFields(), "");
}

// --- Field lines -------------------------------------------------------------------

using FieldLines = ServiceTest;

TEST_F(FieldLines, TypeLevelAndPiecesOfThe008) {
  struct Case {
    std::string_view first_line;
    std::string_view place, form, format, parts;
  };
  ASSERT_EQ(cantorel_.AddFields("cm\n", 1), 0);
  Utf8MarcRecordClass& record = TheMarcRecord();
  const std::string place = record.Get008Value(15, 3);
  const std::string form = record.Get008Value(18, 2);
  const std::string format = record.Get008Value(20, 1);
  const std::string parts = record.Get008Value(21, 1);
  const Case cases[] = {
      {"cm", place, form, format, parts},
      {"cmnyuadsn and more", "nyu", "sn", "a", "d"},
      {"cmgw", "gw ", "  ", " ", " "},  // padded with blanks
      {"jmau a", "au ", "  ", "a", " "},
  };
  for (const Case& c : cases) {
    ASSERT_EQ(cantorel_.AddFields(c.first_line, 1), 0) << c.first_line;
    EXPECT_EQ(record.GetLeaderValue(6, 1), c.first_line.substr(0, 1));
    EXPECT_EQ(record.GetLeaderValue(7, 1), c.first_line.substr(1, 1));
    EXPECT_EQ(record.Get008Value(15, 3), c.place) << c.first_line;
    EXPECT_EQ(record.Get008Value(18, 2), c.form) << c.first_line;
    EXPECT_EQ(record.Get008Value(20, 1), c.format) << c.first_line;
    EXPECT_EQ(record.Get008Value(21, 1), c.parts) << c.first_line;
  }
}

TEST_F(FieldLines, FieldsAndTheirIdentifiers) {
  const std::string lines = Delimited(
      "cm\n"
      "001  ocm5\n"
      "38201$aflute$n1$aPIANO$n1$s2$2lcmpt\t77\n"
      "650 0$aSonatas (Flute and piano)\t78\n"
      "655 7$aChamber music$2lcgft\t79");
  EXPECT_EQ(cantorel_.AddFields(lines, 1), 1);
  EXPECT_THAT(Readable(cantorel_.ReturnedFields()),
              ElementsAre("77 382 01 " + std::string(kFlutePiano)));
  EXPECT_EQ(cantorel_.Returned001Field(), "ocm5");
}

TEST_F(FieldLines, ALineThatIsNoFieldLeavesTheOthersAlone) {
  const std::string lines = Delimited(
      "cm\n\n"
      "650 0$aSonatas (Flute and piano)\t9\n"
      "\t10\n"
      "65\t11\n"
      "abc  $ax\t12\n"
      "655\n"
      "655 7\n"
      "655 7$aChamber music$2lcgft\t13\n\n");
  EXPECT_EQ(cantorel_.AddFields(lines, 1), 1);
  EXPECT_THAT(Readable(cantorel_.ReturnedFields()),
              ElementsAre("0 382 01 " + std::string(kFlutePiano)));
  Utf8MarcRecordClass& record = TheMarcRecord();
  ASSERT_TRUE(record.FldFindFirst("650", ""));
  EXPECT_EQ(record.FldText(), Delimited("$aSonatas (Flute and piano)$99"));
  ASSERT_TRUE(record.FldFindFirst("245", ""));
  EXPECT_EQ(record.FldText(), Delimited("$aFrammis"));
}

// --- Large and hostile records ---------------------------------------------------------

using HostileRecords = ServiceTest;

// 30,000 fields of one key, each to be compared with 30,000: in one list all
// the same, in the other each with its own text.
TEST_F(HostileRecords, ThirtyThousandFields) {
  std::string same = "cm";
  std::string different = "cm";
  for (int i = 0; i < 30'000; ++i) {
    same +=
        "\n655 7\x1F"
        "aSonatas\t5";
    different +=
        "\n655 7\x1F"
        "aSonatas" +
        std::string(static_cast<std::size_t>(i % 40), '.') + "\t" + std::to_string(i);
  }
  EXPECT_EQ(cantorel_.AddFields(same, 1), 0);
  EXPECT_EQ(cantorel_.AddFields(different, 1), 0);
  EXPECT_EQ(TheMarcRecord().FieldCount(), 30'003);
}

TEST_F(HostileRecords, FieldsToDeriveBeyondTheRoomOfAnImage) {
  std::string lines =
      "cm\n650 0\x1F"
      "aSonatas (Flute and piano)";
  for (int i = 0; i < 30'000; ++i)
    lines +=
        "\n38201\x1F"
        "aflute\x1F"
        "n1";
  EXPECT_EQ(cantorel_.AddFields(lines, 3), 1);
  for (int i = 0; i < 10'000; ++i)
    lines +=
        "\n655 7\x1F"
        "aMusic of some length";
  cantorel_.AddFields(lines, 3);
}

TEST_F(HostileRecords, AnyOctets) {
  const std::string image = SampleImage('c', {kNumber,
                                              kTitle,
                                              {"382", "01", kFlutePiano},
                                              kSonata,
                                              {"650", " 0", "$aViolin music$zAustria"},
                                              {"655", " 7", "$aChamber music$91"}});
  const std::string lines =
      Delimited("cmnyuads\n38201$aflute$n1\t7\n650 0$aSonatas (Flute and piano)\t8\n");
  std::mt19937 random(650);
  for (int run = 0; run < 3000; ++run) {
    std::string data = run % 2 == 0 ? image : lines;
    for (unsigned change = random() % 6; change > 0; --change) {
      data[random() % data.size()] = static_cast<char>(random() % 256);
    }
    if (random() % 4 == 0) data.resize(random() % data.size());
    const std::int32_t result = cantorel_.AddFields(data, static_cast<std::int32_t>(run % 5));
    EXPECT_LE(result, 1);
    EXPECT_GE(result, -3);
    const std::int32_t messages = cantorel_.ReturnedMessageCount();
    for (std::int32_t i = 0; i <= messages; ++i) {
      cantorel_.ReturnedMessageIndex(i);
      cantorel_.ReturnedMessageText();
      cantorel_.ReturnedMessageTerms();
      cantorel_.ReturnedMessageRecordIds();
    }
  }
  // The service is as it was.
  EXPECT_THAT(Lines({kNumber, {"382", "01", kFlutePiano}, kSonata}),
              ElementsAre("0 655  7 $aChamber music$2lcgft"));
}

}  // namespace
}  // namespace cantorel
