// The order of the fields: tables, keys, pairing of 880 fields, order files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "record/field_order_key.h"
#include "record/marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;

const std::string kNumber = "001cantorel-0000000001";
constexpr std::string_view kAuthorityLeader = "00000nz  a2200000n  4500";
constexpr std::string_view kHoldingsLeader = "00000nx  a2200000zn 4500";
constexpr std::string_view kClassificationLeader = "00000nw  a2200000n  4500";

// The record is loaded in the order given; the result is the order it gets.
Lines Ordered(Utf8MarcRecordClass& record, const Lines& fields,
              std::string_view leader = kMusicLeader) {
  record.MarcRecordIn(Image(fields, leader));
  return Fields(record);
}

// --- Tables ------------------------------------------------------------------

TEST(FieldOrder, NewObjectKeepsAnyDirectoryOrder) {
  const Lines fields = {"900  $az", "650 7$ax$2mesh", "24510$at",
                        "650 0$aw", "010  $a1",       "880  $ay"};
  for (const std::string_view leader :
       {kMusicLeader, kAuthorityLeader, kHoldingsLeader, kClassificationLeader}) {
    Utf8MarcRecordClass record;
    EXPECT_THAT(Ordered(record, fields, leader), ElementsAreArray(fields)) << leader;
    EXPECT_FALSE(record.FldsOutOfOrder());
    EXPECT_FALSE(record.FldOrderChanged());
    EXPECT_FALSE(record.MarcRecordModified());
  }
}

TEST(FieldOrder, SummaryTellsTheRowsAndTheClosingOne) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderHold();
  const std::string rows = "001-852 by tag\r\n853-869 in generic order\r\n870-999 by tag\r\n";
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("H"), rows);
  record.MarcRecordIn(Image({kNumber}, kHoldingsLeader));
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("H"), rows + "001-999 in generic order\r\n");
  for (const std::string_view code : {"X", "", "M", "h", "BB"}) {
    EXPECT_EQ(record.SummarizeFieldOrderInstructions(code), "") << code;
  }
  record.MarcRecordIn("");
  record.ClearFldOrder("B");
  for (const std::int16_t kind : {1, 3, 4, 5, 11, 99}) record.SetFldOrder("M", "100", "199", kind);
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("B"),
            "100-199 by LCRI 21.30J\r\n100-199 by second indicator\r\n"
            "100-199 local $5 comes first\r\n100-199 in reference order\r\n"
            "100-199 by first indicator\r\n100-199 in generic order\r\n");
}

TEST(FieldOrder, NothingIsSetWhileARecordIsHeld) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  record.MarcRecordIn(Image({kNumber}));
  const std::string before = record.SummarizeFieldOrderInstructions("B");
  record.ClearFldOrder("B");
  record.SetFldOrder("B", "001", "999", 6);
  record.SetDefaultFldOrderBib();
  record.FldOrderFolder("nowhere");
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("B"), before);
  EXPECT_EQ(record.FldOrderFolder(), "");
}

TEST(FieldOrder, EmptyFamiliesGetTheirDefaultWhicheverCameBefore) {
  Utf8MarcRecordClass record;
  for (const std::string_view family : {"A", "B", "H"}) record.ClearFldOrder(family);
  EXPECT_THAT(Ordered(record, {"24510$ab", "100  $aa"}), ElementsAre("100  $aa", "24510$ab"));
  EXPECT_THAT(Ordered(record, {"670  $ab", "100  $aa"}, kAuthorityLeader),
              ElementsAre("100  $aa", "670  $ab"));
  record.NewRecord("x", "");
  record.FldAdd("900", "", "a");
  record.FldAdd("852", "", "b");
  EXPECT_EQ(record.FldPrevTag(), "008");
}

// A record without any order table does not fail.
TEST(FieldOrder, FieldsAreAddedInTurnWithoutATable) {
  for (const std::string_view family : {"B", "X"}) {
    Utf8MarcRecordClass record;
    record.ClearFldOrder(family);
    record.FldAdd("500", "", "a");
    record.FldAdd("100", "", "b");
    EXPECT_EQ(Fields(record).size(), 2U);
  }
}

// --- Kinds -------------------------------------------------------------------

struct KindCase {
  std::int16_t kind;
  Lines given;
  Lines wanted;
};

TEST(FieldOrder, KindsOrderInsideTheirRange) {
  const KindCase cases[] = {
      {1, {"7001 $ab$tt", "7001 $aa"}, {"7001 $aa", "7001 $ab$tt"}},
      {2, {"510  $a1", "500  $a2", "490  $a3"}, {"490  $a3", "510  $a1", "500  $a2"}},
      {99, {"510  $a1", "500  $a2"}, {"510  $a1", "500  $a2"}},
      {3,
       {"650  $a1", "653  $a0", "650 7$a2$2local", "650 7$a3$2rvm", "650 7$a4$2mesh", "650 0$a5",
        "650 7$a6$2lcsh"},
       {"653  $a0", "650 0$a5", "650 7$a6$2lcsh", "650 7$a4$2mesh", "650 7$a3$2rvm",
        "650 7$a2$2local", "650  $a1"}},
      {6, {"651  $a1", "650  $a2", "650  $a1"}, {"650  $a2", "650  $a1", "651  $a1"}},
      {7,
       {"863  $812.1$a1", "863  $8200$a2", "863  $81.2$a3", "863  $87$a4", "863  $a5"},
       {"863  $a5", "863  $81.2$a3", "863  $87$a4", "863  $812.1$a1", "863  $8200$a2"}},
      {9, {"651  $a1", "650  $a2"}, {"651  $a1", "650  $a2"}},
      {11, {"3001 $a1", "2000 $a2"}, {"2000 $a2", "3001 $a1"}},
      {12,
       {"338  $3B side$a1", "336  $3b side$a2", "337  $3A$a3"},
       {"337  $3A$a3", "336  $3b side$a2", "338  $3B side$a1"}},
      {13, {"500  $c2", "500  $a1", "500  $c1"}, {"500  $a1", "500  $c1", "500  $c2"}},
  };
  for (const KindCase& c : cases) {
    Utf8MarcRecordClass record;
    record.ClearFldOrder("B");
    record.SetFldOrder("B", "001", "999", c.kind);
    record.IgnoreSfdOrder(true);
    EXPECT_THAT(Ordered(record, c.given), ElementsAreArray(c.wanted)) << c.kind;
    EXPECT_EQ(record.FldOrderChanged(), c.given != c.wanted) << c.kind;
    EXPECT_EQ(record.MarcRecordModified(), c.given != c.wanted) << c.kind;
  }
}

TEST(FieldOrder, UncontrolledTermsSortByTheirProperty) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  record.SortingIndicatorFor653Field("5");
  EXPECT_THAT(Ordered(record, {"653  $aa", "650 7$ab$2x", "650 0$ac"}),
              ElementsAre("650 0$ac", "653  $aa", "650 7$ab$2x"));
}

TEST(FieldOrder, ReferencesStandByRelationshipAndHeading) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderAuth();
  EXPECT_THAT(Ordered(record,
                      {"430 0$aZ$5DLC", "4100 $aEtudes", "4500 $ae\xCC\x81-tude", "4500 $wb$aB",
                       "5500 $wg$aA", "4500 $wnne$aD", "5501 $aA"},
                      kAuthorityLeader),
              ElementsAre("4500 $wb$aB", "4500 $wnne$aD", "4500 $ae\xCC\x81-tude", "4100 $aEtudes",
                          "430 0$aZ$5DLC", "5500 $wg$aA", "5501 $aA"));
  EXPECT_EQ(ReferenceHeading(Text("$wg$aA$bB$5X$cC")), " A B");
  EXPECT_EQ(ReferenceHeading(Text("$aA$wg$bB")), " A");
  EXPECT_EQ(ReferenceHeading(Text("$wg")), "");
  EXPECT_EQ(ReferenceRelationship(Text("$aA$w$bB")), 'n');
}

TEST(FieldOrder, OwnNotesComeFirst) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderAuth();
  record.Nuc("MH-Mu");
  const Lines fields = {"642  $ax$5DLC", "642  $ay", "642  $az$5MH", "642  $aw$5MH-Mu"};
  EXPECT_THAT(Ordered(record, fields, kAuthorityLeader),
              ElementsAre("642  $aw$5MH-Mu", "642  $az$5MH", "642  $ax$5DLC", "642  $ay"));
  // One that becomes an own note goes up under a new row.
  record.FldFindFirst("642", "y");
  record.SfdAdd("5", "DLC");
  EXPECT_EQ(record.FieldCount(), 4);
  record.SfdAdd("5", "MH-Mu");
  EXPECT_EQ(record.FieldCount(), 5);
  EXPECT_EQ(Fields(record)[1], "642  $ay$5DLC$5MH-Mu");
  EXPECT_EQ(RateLocal5(Text("$ax$5"), "MH"), '9');
  EXPECT_EQ(RateLocal5(Text("$ax$5DLC$5MH"), ""), '9');
}

// --- Defaults ----------------------------------------------------------------

// Tags 652 to 655 are in two ranges, of which the first counts.
TEST(FieldOrder, BibliographicDefault) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  EXPECT_THAT(
      Ordered(record, {"9  x", "830  $ai", "7102 $ah", "7001 $ag$tT", "7001 $ag", "655 7$af$2lcgft",
                       "650 7$ae$2mesh", "650 0$ad", "5050 $ac", "500  $ab", "24510$aa", kNumber}),
      ElementsAre(kNumber, "24510$aa", "5050 $ac", "500  $ab", "650 0$ad", "650 7$ae$2mesh",
                  "655 7$af$2lcgft", "7001 $ag", "7001 $ag$tT", "7102 $ah", "830  $ai"));
  EXPECT_TRUE(record.FldOrderChanged());
  record.FldAdd("650", " 0", "new");
  EXPECT_EQ(record.FldPrevTag(), "650");
  EXPECT_EQ(record.FldNextTag(), "650");
  record.FldAdd("650", " 0", "top", true);
  EXPECT_EQ(record.FldPrevTag(), "500");
}

// --- Reporting instead of moving ---------------------------------------------

TEST(FieldOrder, ReportsInsteadOfMoving) {
  const Lines fields = {"24510$a1", "100  $a2", "650 0$a3", "500  $a4"};
  for (const bool no_change : {false, true}) {
    Utf8MarcRecordClass record;
    record.SetDefaultFldOrderBib();
    record.TestFieldOrder(no_change);
    record.MakeNoChange(no_change);
    EXPECT_THAT(Ordered(record, fields), ElementsAreArray(fields));
    EXPECT_TRUE(record.FldsOutOfOrder());
    EXPECT_FALSE(record.FldOrderChanged());
    EXPECT_FALSE(record.MarcRecordModified());
    EXPECT_EQ(record.MarcRecordOut(), Image(fields));
  }
}

// --- Pairing -----------------------------------------------------------------

TEST(FieldOrder, An880StandsBehindItsPartner) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  const Lines wanted = {"1001 $6880-01$aA", "8801 $6100-01/(3$aB",
                        "24510$6880-02$aC", "88010$6245-02/(3$aD",
                        "650 0$aE",         "880  $6500-00/(3$aF"};
  EXPECT_THAT(Ordered(record, {wanted[0], wanted[2], wanted[4], wanted[3], wanted[1]}),
              ElementsAre(wanted[0], wanted[1], wanted[2], wanted[3], wanted[4]));
  EXPECT_TRUE(record.MarcRecordModified());
  EXPECT_THAT(Ordered(record, {wanted[0], wanted[1], wanted[2], wanted[3], wanted[4]}),
              ElementsAre(wanted[0], wanted[1], wanted[2], wanted[3], wanted[4]));
  EXPECT_FALSE(record.MarcRecordModified());
  // Without a partner it stands among the fields of the tag it is linked to.
  record.FldAdd("880", "  ", Text("$6500-00/(3$aF"));
  EXPECT_EQ(record.FldNextTag(), "650");
  EXPECT_EQ(record.FldPrevTag(), "880");
}

TEST(FieldOrder, LinkParts) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"880-01", "$6001"},   {"880-12/$1", "$6012"}, {"880-1234", "$6234"}, {"880-00", "$600"},
      {"880-1000", "$6000"}, {"880-x", "$600"},      {"880", ""},           {"", ""},
      {"880 7", "$6007"},
  };
  for (const auto& [subfield6, link] : cases) {
    std::string key;
    AppendLinkPart(subfield6, false, key);
    EXPECT_EQ(Readable(key), link) << subfield6;
    if (link.empty()) continue;
    AppendLinkPart(subfield6, true, key);
    EXPECT_EQ(Readable(key), std::string(link) + std::string(link) + " G") << subfield6;
  }
}

// The flag of LC lets an 880 of a heading with second indicator 4 stand with 0.
TEST(FieldOrder, PairingAfterLcPractice) {
  for (const bool lc : {false, true}) {
    Utf8MarcRecordClass record;
    record.SetDefaultFldOrderBib();
    if (lc) record.SetFldOrder("B", "880", "880", 10);
    const Lines fields = Ordered(record, {"650 0$6880-01$aA", "650 2$aB", "880 4$6650-01$aC"});
    EXPECT_EQ(fields[lc ? 1 : 2], "880 4$6650-01$aC");
  }
}

// Holdings and the other formats share their pairing, which only "H" turns off.
TEST(FieldOrder, SharedPairing) {
  const Lines given = {"153  $6880-01$a1", "753  $a2", "880  $6153-01$a3"};
  for (const bool clear : {false, true}) {
    Utf8MarcRecordClass record;
    record.SetFldOrder("H", "880", "880", 8);
    record.ClearFldOrder("X");
    record.SetFldOrder("X", "001", "999", 6);
    if (clear) record.ClearFldOrder("H");
    EXPECT_EQ(Ordered(record, given, kClassificationLeader)[clear ? 2 : 1], given[2]);
  }
}

TEST(FieldOrder, DamagedLinksAreHarmless) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  record.IgnoreSfdOrder(true);
  const Lines fields =
      Ordered(record, {"880  $6", "880  $6xyz-01$aa", "24510$6$aa", "880  $aa", "880  $624",
                       "100  $6880-99999999999999999999$ab", "880  $6"});
  EXPECT_EQ(fields.size(), 7U);
  EXPECT_EQ(fields[0], "100  $6880-99999999999999999999$ab");
}

// --- Order files -------------------------------------------------------------

class OrderFiles : public ::testing::Test {
 protected:
  OrderFiles() {
    folder_ = std::filesystem::temp_directory_path() /
              ("cantorel-order-" + std::to_string(std::random_device()()));
    std::filesystem::create_directory(folder_);
  }
  ~OrderFiles() override { std::filesystem::remove_all(folder_); }

  void Write(std::string_view name, std::string_view text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  std::string Folder() const { return folder_.string(); }

  std::filesystem::path folder_;
};

TEST_F(OrderFiles, StarterFilesAreTheDefaults) {
  Utf8MarcRecordClass from_files;
  from_files.FldOrderFolder(CANTOREL_CONFIG);
  EXPECT_EQ(from_files.FldOrderFolder(), std::string(CANTOREL_CONFIG) + "\\");
  Utf8MarcRecordClass defaults;
  defaults.SetDefaultFldOrderAuth();
  defaults.SetDefaultFldOrderBib();
  defaults.SetDefaultFldOrderHold();
  const Lines fields = {
      "880  $6245-01$aA",       "9  $a",         "650 7$a1$2rvm", "650 0$a2$xb$vc",
      "24510$cc$6880-01$bb$aa", "642  $ab$5DLC", "4500 $ay$wnne", "4001 $ax",
      "863  $82.1$a1",          "863  $81.1$a1", "853  $82$a1",   "7001 $at$tu$d1900-"};
  for (const std::string_view leader : {kMusicLeader, kAuthorityLeader, kHoldingsLeader}) {
    EXPECT_EQ(Ordered(from_files, fields, leader), Ordered(defaults, fields, leader));
  }
  for (const std::string_view family : {"A", "B", "H"}) {
    EXPECT_EQ(from_files.SummarizeFieldOrderInstructions(family),
              defaults.SummarizeFieldOrderInstructions(family));
  }
  EXPECT_EQ(from_files.SfdMax(), 169);
  EXPECT_EQ(defaults.SfdMax(), 169);
}

TEST_F(OrderFiles, MissingFilesLeaveTheClosingRow) {
  Utf8MarcRecordClass record;
  record.SetDefaultFldOrderBib();
  record.FldOrderFolder("");
  EXPECT_EQ(record.FldOrderFolder(), "");
  record.FldOrderFolder(Folder());
  for (const std::string_view family : {"A", "B", "H"}) {
    EXPECT_EQ(record.SummarizeFieldOrderInstructions(family), "001-999 in generic order\r\n");
  }
  EXPECT_EQ(record.SfdMax(), 0);
  record.MarcRecordIn(Image({kNumber, "24510$bb$aa"}));
  EXPECT_EQ(record.SfdMax(), 169);
}

TEST_F(OrderFiles, RangesAndHundreds) {
  Write("bibsup.cfg",
        "[extendedfieldorder]\r\n; a comment\r\nz=100-199 Ind2\r\nz=245 tag\r\n#=300 Tag\r\n"
        "empty=\r\n1=700-799  7 \r\n2=880 plc\r\n[FieldOrder]\r\n1=Tag\r\n");
  Write("holdsup.cfg", "[FieldOrder]\n0=Generic\n8xx=SFD8\nx=Tag\n9=pair lc\n");
  Utf8MarcRecordClass record;
  record.FldOrderFolder(Folder());
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("B"),
            "100-199 by second indicator\r\n245-245 by tag\r\n- in generic order\r\n"
            "700-799 by LCRI 21.30J\r\n001-999 in generic order\r\n");
  EXPECT_EQ(record.SummarizeFieldOrderInstructions("H"),
            "001-009 by tag\r\n010-099 in generic order\r\n800-899 in generic order\r\n"
            "900-999 in generic order\r\n001-999 in generic order\r\n");
}

TEST_F(OrderFiles, SubfieldSectionAndItsDebugText) {
  Write("authsup.cfg", "[SubfieldOrder]\n100=6ab\n10=x\n2450=x\nXXX=ab\n");
  Write("bibsup.cfg", "[SubfieldOrder]\n245=6ba\n");
  Utf8MarcRecordClass record;
  record.DebugOn(true);
  record.DebugFilePath(Folder() + "/");
  record.FldOrderFolder(Folder());
  EXPECT_EQ(record.SfdMax(), 1);
  EXPECT_EQ(Ordered(record, {kNumber, "24510$aa$bb"})[1], "24510$bb$aa");
  EXPECT_THAT(Ordered(record, {"100  $bb$aa", "200  $bb$aa"}, kAuthorityLeader),
              ElementsAre("100  $aa$bb", "200  $aa$bb"));
  std::ifstream debug(folder_ / "MarcRecordDebug.SetSfdOrderFromFile.001.txt", std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(debug)), {});
  EXPECT_EQ(text, "****************************\r\nRead section SubfieldOrder from " + Folder() +
                      "\\bibsup.cfg\r\nReceived:\r\n245=6ba\r\n");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "MarcRecordDebug.SetSfdOrderFromFile.003.txt"));
}

}  // namespace
}  // namespace cantorel
