// Leader, 006, 007 and 008 by position, formats and default 008 texts.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

constexpr std::string_view k008 = "850101s1984    ncuuua         n  | eng d";

Record& Load(Record& record, std::string_view leader = kMusicLeader) {
  record.MarcRecordIn(Image({"001abc", "008" + std::string(k008), "24510$aTitle"}, leader));
  return record;
}

TEST(Leader, StretchesThatCanBeRead) {
  Record record;
  EXPECT_EQ(record.GetLeaderValue(0, 1), "") << "no record";
  Load(record);
  const struct {
    std::int16_t position;
    std::int16_t length;
    std::string_view value;
  } cases[] = {
      {5, 4, "ncm "}, {23, 1, "0"}, {22, 2, "00"}, {23, 2, ""}, {24, 1, ""},
      {20, 5, ""},    {-1, 2, ""},  {5, 0, ""},    {5, -3, ""}, {32767, 32767, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(record.GetLeaderValue(c.position, c.length), c.value) << c.position;
  }
  EXPECT_EQ(record.GetLeaderValue(0, 24), record.Leader());
}

TEST(Leader, TypeStaysInItsKind) {
  const std::string_view bibliographic = "acdefgijkmoprt";
  const std::string_view holdings = "uvxy";
  const std::string_view types = " abcdefghijklmnopqrstuvwxyz?";
  for (char from : types) {
    for (char to : types) {
      Record record;
      record.NewRecord(std::string_view(&from, 1), "m");
      record.ChangeLeaderValue(6, std::string_view(&to, 1));
      const auto in = [](std::string_view kind, char c) { return kind.find(c) != kind.npos; };
      bool changes = !in("zqw", from);
      if (in(bibliographic, from)) changes = in(bibliographic, to);
      if (in(holdings, from)) changes = in(holdings, to);
      EXPECT_EQ(record.Leader()[6], changes ? to : from) << from << " to " << to;
      EXPECT_EQ(record.MarcRecordFormat(), record.SetFormatCode({})) << from << " to " << to;
    }
  }
}

TEST(Leader, ChangesThatAreRefusedAndTaken) {
  Record record;
  Load(record);
  const std::string before = record.Leader();
  record.ChangeLeaderValue(5, "");
  record.ChangeLeaderValue(24, "x");
  record.ChangeLeaderValue(23, "xx");
  record.ChangeLeaderValue(-1, "x");
  record.ChangeLeaderValue(0, std::string(25, 'x'));
  record.ChangeLeaderValue(6, "z");
  EXPECT_EQ(record.Leader(), before);
  record.ChangeLeaderValue(23, "9");
  record.ChangeLeaderValue(17, "7a");
  EXPECT_EQ(record.GetLeaderValue(17, 7), "7a 4509");
  record.ChangeLeaderValue(6, "a");
  EXPECT_EQ(record.MarcRecordFormat(), "B");
  record.ChangeLeaderValue(7, "s");
  EXPECT_EQ(record.MarcRecordFormat(), "S");
  EXPECT_EQ(record.Leader().size(), 24u);
}

TEST(Leader, CodingSchemeSwitchesTheOutputSet) {
  Record record;
  Load(record);
  ASSERT_EQ(record.CharacterSetOut(), "U");
  record.ChangeLeaderValue(9, "a");
  EXPECT_EQ(record.CharacterSetOut(), "U");
  record.ChangeLeaderValue(9, "x");
  EXPECT_EQ(record.GetLeaderValue(9, 1), " ");
  EXPECT_EQ(record.CharacterSetOut(), "V");
  record.CharacterSetOut("M");
  record.ChangeLeaderValue(9, " ");
  EXPECT_EQ(record.CharacterSetOut(), "M") << "the same value switches nothing";
  record.ChangeLeaderValue(9, "a");
  EXPECT_EQ(record.CharacterSetOut(), "U");
  EXPECT_EQ(record.GetLeaderValue(9, 1), "a");
}

TEST(Field008, PositionsReadAndWritten) {
  Record record;
  EXPECT_EQ(record.Get008Value(0, 1), "");
  record.Change008Value(0, "x");
  Load(record);
  const struct {
    std::int16_t position;
    std::int16_t length;
    std::string_view value;
  } reads[] = {
      {7, 4, "1984"}, {35, 3, "eng"}, {0, 40, k008}, {39, 1, "d"}, {39, 2, ""},
      {40, 1, ""},    {0, 41, ""},    {-1, 1, ""},   {0, 0, ""},   {1, 32767, ""},
  };
  for (const auto& c : reads) {
    EXPECT_EQ(record.Get008Value(c.position, c.length), c.value) << c.position << "/" << c.length;
  }
  for (const auto& [position, value] :
       {std::pair<int, std::string_view>{38, "eng"}, {40, "x"}, {-1, "x"}, {7, ""}, {32767, "x"}}) {
    record.Change008Value(static_cast<std::int16_t>(position), value);
    EXPECT_EQ(record.Get008Value(0, 40), k008) << position;
  }
  record.Change008Value(38, "en");
  EXPECT_EQ(record.Get008Value(0, 40), std::string(k008.substr(0, 38)) + "en");
  record.FldPointer(1);
  EXPECT_TRUE(record.FldChanged());
}

TEST(Field008, ChangeLeavesTheComparisonForm) {
  Record record;
  Load(record);
  record.Change008Value(35, "ger");
  ASSERT_TRUE(record.FldFindFirst("008", ""));
  EXPECT_NE(record.FldText().find("ger"), std::string::npos);
  EXPECT_NE(record.SfdNorm().find("ENG"), std::string::npos);
}

TEST(FixedField, OnlyTheThreeTagsCanBeAskedAndChanged) {
  Record record;
  record.MarcRecordIn(Image({"001abcdef", "006" + std::string(18, 'x'), "007sd fsngnnmmned",
                             "008" + std::string(k008), "24510$aTitle"}));
  for (std::int16_t row = 0; row < 5; ++row) {
    record.FldPointer(row);
    const std::string before = record.FldText();
    record.ChangeFixedField(1, 2, "QQ");
    const bool fixed = row >= 1 && row <= 3;
    EXPECT_EQ(record.FldText() != before, fixed) << record.FldTag();
    EXPECT_EQ(record.GetFixedField(1, 2), fixed ? "QQ" : "") << record.FldTag();
    EXPECT_EQ(record.FldChanged(), fixed) << record.FldTag();
  }
  record.FldPointer(2);
  const std::string before = record.FldText();
  record.ChangeFixedField(13, 2, "xx");
  record.ChangeFixedField(-1, 1, "x");
  record.ChangeFixedField(0, 0, "x");
  record.ChangeFixedField(32767, 32767, "x");
  EXPECT_EQ(record.FldText(), before) << "a stretch past the end";
  record.ChangeFixedField(13, 1, "x");
  EXPECT_EQ(record.GetFixedField(12, 5), "ex") << "a reading past the end is cut";
  EXPECT_EQ(record.GetFixedField(14, 1) + record.GetFixedField(-1, 1), "");
}

TEST(FixedField, EmptyFieldsAreMadeUpFirst) {
  const struct {
    char category;
    std::size_t length;
  } lengths[] = {{'a', 8}, {'c', 14}, {'d', 6}, {'f', 10}, {'g', 9},  {'h', 13},
                 {'k', 6}, {'m', 23}, {'o', 2}, {'q', 2},  {'r', 15}, {'s', 14},
                 {'t', 2}, {'v', 9},  {'z', 2}, {'?', 14}};
  for (const auto& c : lengths) {
    Record record;
    record.NewRecord("j", "m");
    record.FldAdd("007", "", "");
    record.ChangeFixedField(0, 1, std::string_view(&c.category, 1));
    const bool filled = c.category == 'm' || c.category == 'r';
    std::string expected(c.length, ' ');
    expected[0] = c.category;
    if (filled) expected.replace(c.length - 6, 6, "||||||");
    EXPECT_EQ(record.FldText(), expected);
  }
  Record record;
  record.NewRecord("j", "m");
  record.FldAdd("006", "", "");
  record.ChangeFixedField(17, 2, "ab");
  EXPECT_EQ(record.FldText(), "") << "not written where it does not fit";
  record.ChangeFixedField(17, 1, "a");
  EXPECT_EQ(record.FldText(), std::string(17, ' ') + "a");
}

TEST(Format, OfALeaderOrItsType) {
  const struct {
    std::string_view types;
    std::string_view format;
  } cases[] = {{"at", "B"}, {"cdij", "M"}, {"ef", "P"},    {"gkor", "F"},
               {"m", "D"},  {"bp", "U"},   {"vxyu", "H"},  {"z", "A"},
               {"q", "Q"},  {"w", "W"},    {" lns9|", "?"}};
  Record record;
  for (const auto& c : cases) {
    for (char type : c.types) {
      EXPECT_EQ(record.SetFormatCode(std::string_view(&type, 1)), c.format) << type;
      std::string leader(kMusicLeader);
      leader[6] = type;
      EXPECT_EQ(record.SetFormatCode(leader), c.format) << type;
    }
  }
  EXPECT_EQ(record.SetFormatCode("as"), "S");
  EXPECT_EQ(record.SetFormatCode("am"), "B");
  EXPECT_EQ(record.SetFormatCode("00000nas"), "?") << "short of a leader: its first character";
  EXPECT_EQ(record.SetFormatCode("00000nas a2200000 i 4500"), "S");
  EXPECT_EQ(record.MarcRecordFormat(), "S") << "an argument sets the code";
}

TEST(Format, SerialsByTypeAndLevel) {
  Record record;
  const struct {
    std::string_view leader;
    bool serial;
  } cases[] = {{"as", true},       {"ab", true},        {"ai", true},   {"am", false},
               {"cs", false},      {"a", false},        {"asx", false}, {"00000na", false},
               {"00000nas", true}, {"00000nam", false}, {"", false}};
  for (const auto& c : cases) {
    EXPECT_EQ(record.SerialBibliographicRecord(c.leader), c.serial) << c.leader;
  }
  Load(record, "00000nai a2200000 i 4500");
  EXPECT_TRUE(record.SerialBibliographicRecord()) << "the record's own leader";
  EXPECT_EQ(record.MarcRecordFormat(), "S");
}

TEST(Default008, TemplateOfEachFormatBehindTheDate) {
  const struct {
    std::string_view format;
    std::string_view behind_date;
  } cases[] = {
      {"A", "n| aaannaabn          |n ana     d"},
      {"B", "n                      000 0     d"},
      {"D", "n                   |   000 0    d"},
      {"F", "n           |||            |     d"},
      {"H", "0u    8   1001uu   0000000"},
      {"M", "n           |||                  d"},
      {"P", "n                  |     0       d"},
      {"Q", "aaaaaaaa"},
      {"S", "n            |         0         d"},
      {"U", "0u    0   1001aa   0000000"},
      {"W", "uuuuuuunk"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Record::Default008(c.format, "260728"), "260728" + std::string(c.behind_date));
    const std::string with_today = Record::Default008(c.format, "2607");
    EXPECT_EQ(with_today.size(), c.behind_date.size() + 8) << "two characters too many";
    EXPECT_TRUE(with_today.ends_with(c.behind_date));
  }
  for (std::string_view none : {"", "X", "?", "b"}) {
    EXPECT_EQ(Record::Default008(none, "260728"), "") << none;
  }
}

}  // namespace
}  // namespace cantorel
