// Loading and writing images: the frame, the rules that fields go in by, and
// what comes out again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr std::string_view k008 = "008850101s1984    ncuuua         n  | eng d";

std::string Sample() {
  return Image({"001abc", "24510$aA title long enough to matter"});
}

// Every fault of the frame, in the order in which they are looked for.
TEST(IsMarc, NamesTheFirstFaultOfSeveral) {
  const std::string good = Sample();
  std::string image = good;
  image.back() = 'x';
  image[image.size() - 2] = 'y';
  image[48] = 'z';  // base 49, where the directory ends
  ASSERT_EQ(good[48], '\x1E');
  image.replace(12, 5, "99999");
  image.replace(0, 5, "9999x");
  const auto fault = [](std::string_view text) {
    Utf8MarcRecordClass record;
    EXPECT_FALSE(record.IsMarc(text));
    return record.IsMarcErrorText();
  };
  EXPECT_EQ(fault(""), "Too short to be a MARC record");
  EXPECT_EQ(fault(image.substr(0, 49)), "Too short to be a MARC record");
  EXPECT_EQ(fault(image), "First 5 characters not all numeric");
  image.replace(0, 5, Digits(image.size() + 1, 5));
  EXPECT_EQ(fault(image), "Record length in leader does not match actual record length");
  image.replace(0, 5, good, 0, 5);
  EXPECT_EQ(fault(image), "Base address of data longer than record length");
  for (std::string_view below_one : {"00000", "x0049", "    x"}) {
    image.replace(12, 5, below_one);
    EXPECT_EQ(fault(image), "Base address of data unacceptable") << below_one;
  }
  image.replace(12, 5, good, 12, 5);
  EXPECT_EQ(fault(image), "Directory does not end with end-of-field character");
  image[48] = '\x1E';
  EXPECT_EQ(fault(image), "Record does not end with end-of-record character");
  image.back() = '\x1D';
  EXPECT_EQ(fault(image), "Last field does not end with end-of-field character");
  image[image.size() - 2] = '\x1E';
  Utf8MarcRecordClass record;
  EXPECT_FALSE(record.IsMarc(""));
  EXPECT_TRUE(record.IsMarc(image)) << "all mended";
  EXPECT_EQ(record.IsMarcErrorText(), "");
}

TEST(IsMarc, TextLongerThanItClaimsPassesWhenItsEndIsInOrder) {
  Utf8MarcRecordClass record;
  std::string image = Sample();
  EXPECT_FALSE(record.IsMarc(image + "0123456789"));
  EXPECT_EQ(record.IsMarcErrorText(), "Record does not end with end-of-record character");
  image.replace(0, 5, "00051");
  EXPECT_TRUE(record.IsMarc(image));
}

TEST(MarcRecordIn, FailedLoadLeavesAnEmptyRecordWithItsLeader) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Sample());
  record.MarcRecordIn(Sample().substr(0, 49));
  EXPECT_EQ(record.MarcRecordIn(), "");
  EXPECT_EQ(record.Leader(), Sample().substr(0, 24));
  EXPECT_EQ(record.Directory(), "");
  EXPECT_EQ(record.FieldCount(), 0);
  EXPECT_EQ(record.FldPointer(), -1);
  EXPECT_FALSE(record.FldMoveTop());
  EXPECT_FALSE(record.FldFindFirst("XXX", ""));
  EXPECT_EQ(record.MarcRecordOut(), "");
  EXPECT_EQ(record.IsMarcErrorText(), "Too short to be a MARC record") << "left alone";
}

TEST(MarcRecordIn, RepairsALeaderThatLostBlanks) {
  const std::string whole =
      Image({"001abc", "24510$aA title of some length"}, "00000ncm a2200000   4500");
  Utf8MarcRecordClass record;
  for (std::size_t lost = 1; lost <= 3; ++lost) {
    std::string hurt = whole;
    hurt.erase(17, lost);
    record.MarcRecordIn(hurt);
    EXPECT_EQ(record.MarcRecordIn(), whole) << lost;
    EXPECT_EQ(record.Leader(), whole.substr(0, 24)) << lost;
    EXPECT_EQ(Fields(record).size(), 2u) << lost;
  }
  std::string no_entry_map = whole;
  no_entry_map.replace(20, 4, "    ");
  record.MarcRecordIn(no_entry_map);
  EXPECT_EQ(record.MarcRecordIn(), no_entry_map) << "nothing to go by";
}

TEST(MarcRecordIn, TellsWhatItFound) {
  Utf8MarcRecordClass record;
  const std::string image =
      Image({"001abc", std::string(k008), "100  $aBach"}, "00000nz  a2200000 i 4500");
  record.MarcRecordIn(image);
  EXPECT_TRUE(record.IsAuthority());
  EXPECT_EQ(record.MarcRecordFormat(), "A");
  EXPECT_EQ(record.CharacterEncodingScheme(), "a");
  EXPECT_EQ(record.Directory(), image.substr(24, 36));
  EXPECT_EQ(record.Fld008Length(), 40);
  EXPECT_EQ(record.FldPointer(), 0) << "on the first live field";
  EXPECT_FALSE(record.FldChanged());
  EXPECT_FALSE(record.MarcRecordModified());
  ASSERT_TRUE(record.FldFindFirst("100", ""));
  EXPECT_EQ(record.FldDirectory(), image.substr(48, 12));
  record.FldAdd("400", "  ", "x");
  EXPECT_EQ(record.FldDirectory(), "");
  EXPECT_TRUE(record.FldChanged());
  record.MarcRecordIn(Sample());
  EXPECT_FALSE(record.IsAuthority());
  EXPECT_EQ(record.Fld008Length(), 0);
}

struct LoadCase {
  std::string_view what;
  std::vector<std::string> given;
  std::vector<std::string> held;
};

TEST(MarcRecordIn, TakesFieldsInByItsRules) {
  const LoadCase cases[] = {
      {"035 that repeats the 001",
       {"001ocm1", "035  $aocm1", "035  $aocm12"},
       {"001ocm1", "035  $aocm12"}},
      {"035 ahead of the 001", {"035  $aocm1", "001ocm1"}, {"035  $aocm1", "001ocm1"}},
      {"second 008",
       {std::string(k008), "008$aXX", "500  $ax"},
       {"008$aXX" + std::string(k008.substr(7)), "500  $ax"}},
      {"008 of another length", {"008850101"}, {"008850101" + std::string(34, ' ')}},
      {"control fields with subfields", {"001$axyz", "005$ax$by"}, {"001xyz", "005x$by"}},
      {"tags that are no tags", {"24a10$ax", "   10$ax", "500  $ax"}, {"500  $ax"}},
      {"indicators that are none", {"500xy$ax", "5003$$ay"}, {"500  $ax", "5003 $ay"}},
      {"text without a code", {"500  note"}, {"500  $anote"}},
      {"blanks",
       {"500  $a  x  $b y ", "010  $a  85001  $b y "},
       {"500  $ax$by", "010  $a  85001  $b y "}},
      {"empty subfields", {"500  $a$bx$c$dy", "500  $a"}, {"500  $a$bx$dy", "500  $a"}},
      {"codes that are none", {"500  $ax$ y$\ty$$z$"}, {"500  $ax$9y$9y"}},
      {"880 under the tag it stands for",
       {"24510$6245-01$aX", "24510$6246-01$aX"},
       {"88010$6245-01$aX", "24510$6246-01$aX"}},
      {"half ring", {"500  $aa\u02BEb"}, {"500  $aa\u02BCb"}},
      {"field of indicators only", {"50010", "5001", "500  $ax"}, {"50010", "5001 ", "500  $ax"}}};
  const std::string last = "999  $awhat makes the shortest record long enough";
  for (LoadCase c : cases) {
    Utf8MarcRecordClass record;
    c.given.push_back(last);
    c.held.push_back(last);
    record.MarcRecordIn(Image(c.given));
    EXPECT_THAT(Fields(record), ElementsAreArray(c.held)) << c.what;
  }
}

TEST(MarcRecordIn, UnusableCodeCountsAsAChange) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Image({"001x", "500  $ax$ y, a text of some length"}));
  EXPECT_TRUE(record.MarcRecordModified());
}

TEST(MarcRecordIn, RebuildsASubfielded007) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"$am$bB$4Z", "mB|||||||||||||||Z|||||"},
      {"$ac$br$dc$eg$fn$ga$haaa$iB$jC$kD$lE", "cr|cgna||aBCDE"},
      {"$af$bx$da$ee$fb$gg", "fx|a|eb||g"},
      {"$ah$bx$gabc$hd$ie$jf", "hx|||||||adef"},
      {"$as$ddefghijklmnop", "s||defghijklmn"},
      {"$aq$bABC", "qA"},
      {"$av$zno$b", "v||||||||"},
      {"$ax$bcd$e", "x|bcd|e"},
      {"x$b", "x|b"},
      {"$", ""}};
  for (const auto& [given, held] : cases) {
    Utf8MarcRecordClass record;
    record.MarcRecordIn(Image({"007" + std::string(given), "500  $aa note of some length"}));
    ASSERT_TRUE(record.FldFindFirst("007", "")) << given;
    EXPECT_EQ(record.FldText(), held) << given;
  }
}

// The directory and the data need not agree.
TEST(MarcRecordIn, ReadsWhatADirectoryLeavesToRead) {
  const std::string data = Text("10$aTitle\x1E  $aNote\x1E");
  const std::string good = "245001000000500000900010";
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {good, {"24510$aTitle", "500  $aNote"}},
      {good + "6500005", {"24510$aTitle", "500  $aNote"}},
      {"245001000000"
       "500999900010",
       {"24510$aTitle", "500  $aNote\x1E"}},
      {"245001000000"
       "500000990010",
       {"24510$aTitle"}},
      {"245001000000"
       "500000099999",
       {"24510$aTitle"}},
      {"245000100000"
       "500000900010",
       {"500  $aNote"}},
      {"245001x00000"
       "5000009000x0",
       {"50010$aTitl"}},
      {"245-01000000"
       "500000900010",
       {"500  $aNote"}},
      {"5000006000125000006000135000007-0001", {"500  $aNot", "500  $aote", "50010$aTi"}}};
  for (const auto& [directory, held] : cases) {
    Utf8MarcRecordClass record;
    record.MarcRecordIn(Frame(directory, data));
    EXPECT_THAT(Fields(record), ElementsAreArray(held)) << directory;
  }
}

TEST(MarcRecordIn, BaseAddressInsideTheLeaderHoldsNoField) {
  std::string image = Sample();
  image[8] = '\x1E';
  image.replace(12, 5, "00009");
  Utf8MarcRecordClass record;
  record.MarcRecordIn(image);
  EXPECT_EQ(record.IsMarcErrorText(), "");
  EXPECT_EQ(record.MarcRecordIn(), image);
  EXPECT_THAT(Fields(record), IsEmpty());
  EXPECT_EQ(record.MarcRecordOut(), "");
}

TEST(MarcRecordOut, GivesWellFormedRecordsBackOctetForOctet) {
  const std::vector<std::string> title = {"001ocm00012345", "00519990101120000.0",
                                          std::string(k008)};
  std::vector<std::vector<std::string>> records = {
      {"24510$aSonata$bfor flute", "650 0$aSonatas (Flute)$vScores."},
      {"010  $a   85012345 ", "1001 $6880-01$aDvo\u030Cr\u0301k, A.$d1841-1904",
       "24513$6880-02$aAn die Freude", "8801 $6100-01/(N$a\u0414\u0432\u043E"},
      {"500  $a" + std::string(9994, 'x'), "500  $a|\\^~{}<>&\"'\x7F\u00B6\U00010000"},
      {"500  $a", "5000 $3part$ax", "50019$5DLC"}};
  records.push_back(std::vector<std::string>(400, "650 0$aFlute music"));
  Utf8MarcRecordClass record;
  std::string again;
  for (std::vector<std::string> fields : records) {
    fields.insert(fields.begin(), title.begin(), title.end());
    const std::string image = Image(fields);
    record.MarcRecordIn(image);
    EXPECT_EQ(record.MarcRecordIn(), image);
    EXPECT_EQ(record.MarcRecordOut(), image);
    record.MarcRecordOut(again);
    EXPECT_EQ(again, image) << "into a string that is reused";
    EXPECT_FALSE(record.MarcRecordModified());
  }
}

TEST(MarcRecordOut, LeavesOutWhatIsDeletedOrEmpty) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Image({"001x", "24510$aTitle$bx", "500  $aNote", "505  $aa", "650 0$aFlute"},
                            "00000ncm a2200000 i 4599"));
  record.FldFindFirst("500", "");
  record.FldText("");
  record.FldFindFirst("505", "");
  record.FldDelete();
  record.FldFindFirst("245", "");
  record.SfdFindFirst("b", "");
  record.SfdDelete();
  record.FldAdd("700", "1 ", "");
  record.FldFindFirst("650", "");
  EXPECT_EQ(record.MarcRecordOut(), Image({"001x", "24510$aTitle", "650 0$aFlute"}))
      << "and the entry map ends in 00";
  EXPECT_EQ(record.FldTag(), "650") << "the cursor stays";
}

TEST(MarcRecordOut, BodyThatEndsInEndOfFieldGetsNoOther) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Sample());
  record.FldAdd("500", "  ", "note\x1E");
  EXPECT_EQ(record.MarcRecordOut(),
            Image({"001abc", "24510$aA title long enough to matter", "500  $anote"}));
}

TEST(MarcRecordOut, FieldsOfNoRecordGoOutUnderANewLeader) {
  Utf8MarcRecordClass record;
  record.Leader("00000ncm a2200000 i 4500");
  record.MarcRecordIn("");
  record.FldAdd("245", "10", "A title without a record");
  const std::string image = record.MarcRecordOut();
  EXPECT_TRUE(record.IsMarc(image)) << record.IsMarcErrorText();
  record.MarcRecordIn(image);
  EXPECT_THAT(Fields(record), ElementsAre("24510$aA title without a record"));
}

TEST(MarcRecordOut, NumbersThatHaveNoRoomLoseTheirHighDigits) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Sample());
  record.FldAdd("500", "  ", std::string(100'000, 'x'));
  record.FldAdd("500", "  ", "y");
  const std::string image = record.MarcRecordOut();
  EXPECT_EQ(image.substr(0, 5), Digits(image.size() % 100'000, 5));
  EXPECT_EQ(image.substr(24 + 24, 12), "500000500038") << "a length of 100,005";
  EXPECT_EQ(image.substr(24 + 36, 12), "500000600043");
}

TEST(NewRecord, HasLeaderDateAndFixedField) {
  struct Case {
    std::string_view type, level, leader_06_07, format;
    std::size_t length;
  };
  const Case cases[] = {{"c", "m", "cm", "M", 40}, {"a", "s", "as", "S", 40},
                        {"z", "m", "z ", "A", 40}, {"x", "m", "x ", "H", 32},
                        {"w", "m", "w ", "W", 40}, {"", "", "  ", "?", 40}};
  Utf8MarcRecordClass record;
  for (const Case& c : cases) {
    record.MarcRecordIn(Sample());
    record.NewRecord(c.type, c.level);
    EXPECT_EQ(record.MarcRecordIn(), "") << c.type;
    EXPECT_EQ(record.Leader(), "00000n" + std::string(c.leader_06_07) + " a2200000n  4500");
    EXPECT_EQ(record.MarcRecordFormat(), c.format);
    ASSERT_TRUE(record.FldFindFirst("005", ""));
    const std::string date = record.FldText();
    EXPECT_THAT(date, testing::MatchesRegex("[0-9]{14}\\.0"));
    if (c.format == "?") {
      EXPECT_EQ(record.FieldCount(), 2);
      continue;
    }
    ASSERT_TRUE(record.FldFindFirst("008", ""));
    EXPECT_EQ(record.FldText().size(), c.length) << c.type;
    EXPECT_EQ(record.FldText().substr(0, 6), date.substr(2, 6));
    EXPECT_EQ(record.FldText().substr(26, 6) == date.substr(2, 6), c.format == "H");
  }
}

TEST(Leader, ShortValueIsIgnoredAndAWholeOneSetsTheFormat) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Sample());
  record.Leader("00000ncm a2200000 i 450");
  EXPECT_EQ(record.Leader(), Sample().substr(0, 24));
  record.Leader("99999cas a2288888 i 4500 and more");
  EXPECT_EQ(record.Leader(), "99999cas a2288888 i 4500");
  EXPECT_EQ(record.MarcRecordFormat(), "S");
}

}  // namespace
}  // namespace cantorel
