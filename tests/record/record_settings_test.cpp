// The settings kept in a file, and the character sets of a record.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

class RecordSettings : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::path(testing::TempDir()) / ("record_" + std::string(test->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void Write(std::string_view text) {
    std::ofstream(folder_ / "MarcRecordClass.INI", std::ios::binary) << text;
  }
  std::string Read() {
    std::ifstream file(folder_ / "MarcRecordClass.INI", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Folder() const { return folder_.string() + "/"; }
  // The five values, "T" or "F".
  static std::string Values(const Utf8MarcRecordClass& r) {
    std::string values;
    for (bool value : {r.RemoveDuplicateOclcNumbers(), r.RemoveDuplicative035Fields(),
                       r.RemoveOclcAlphabeticPrefix(), r.OclcNumbersHaveLeadingZeroes(),
                       r.RdaReCast502Fields()}) {
      values += value ? 'T' : 'F';
    }
    return values;
  }

  std::filesystem::path folder_;
};

TEST_F(RecordSettings, AreReadFromTheFolder) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(Values(record), "FTFFF");
  record.IniFilePath(Folder());
  EXPECT_EQ(Values(record), "FTFFF") << "no file";
  Write(
      "[Booleans]\nRemoveDuplicateOclcNumbers=yes\nremoveduplicate035fields=0\n"
      "RemoveOclcAlphabeticPrefix=-1\nOclcNumbersHaveLeadingZeroes=\n"
      "RdaReCast502fields=T              and more\n[Other]\nRemoveDuplicate035Fields=1\n");
  record.IniFilePath(Folder());
  EXPECT_EQ(Values(record), "TFTFT") << "fifteen characters of a value count";
  EXPECT_EQ(record.IniFilePath(), Folder());
}

TEST_F(RecordSettings, AreWrittenAndReadBack) {
  Utf8MarcRecordClass record;
  Write("[Booleans]\r\nOther=kept\r\n");
  record.IniFilePath(Folder());
  record.RemoveDuplicateOclcNumbers(true);
  record.RemoveDuplicative035Fields(false);
  record.RemoveOclcAlphabeticPrefix(true);
  record.OclcNumbersHaveLeadingZeroes(true);
  record.RdaReCast502Fields(true);
  Utf8MarcRecordClass other;
  other.IniFilePath(Folder());
  EXPECT_EQ(Values(other), "TFTTT");
  EXPECT_NE(Read().find("Other=kept"), std::string::npos);
  other.RemoveDuplicative035Fields(true);
  record.IniFilePath(Folder());
  EXPECT_EQ(Values(record), "TTTTT");
}

TEST_F(RecordSettings, DecideWhatBecomesOfA035) {
  Utf8MarcRecordClass record;
  record.IniFilePath(Folder());
  const std::string image = Image(
      {"001ocm1", "035  $aocm1", "035  $a(OCoLC)ocm00012", "035  $a(OCoLC)12", "035  $b(OCoLC)12"});
  record.RemoveDuplicative035Fields(false);
  record.MarcRecordIn(image);
  EXPECT_EQ(Fields(record).size(), 5u);
  record.RemoveOclcAlphabeticPrefix(true);
  record.RemoveDuplicateOclcNumbers(true);
  record.MarcRecordIn(image);
  EXPECT_THAT(Fields(record), testing::ElementsAre("001ocm1", "035  $a(OCoLC)1", "035  $a(OCoLC)12",
                                                   "035  $b(OCoLC)12"))
      << "a number that is there already";
}

TEST(CharacterSets, RefuseUnknownLetters) {
  Utf8MarcRecordClass record;
  const auto error_of = [](auto set) {
    try {
      set();
    } catch (const MarcClassError& error) {
      return std::to_string(error.Number()) + ' ' + error.Source() + ' ' + error.what();
    }
    return std::string("none");
  };
  for (std::string_view letter : {"u", "Y", "X", "", " U"}) {
    EXPECT_EQ(error_of([&] { record.CharacterSetIn(letter); }),
              "380 MarcClass Invalid value for CharacterSetIn property");
  }
  EXPECT_EQ(record.CharacterSetIn(), "U");
  for (std::string_view letter : {"X", "", "  ", " q "}) {
    EXPECT_EQ(error_of([&] { record.CharacterSetOut(letter); }),
              "380 MarcClass Invalid value for CharacterSetOut property: " + std::string(letter));
  }
  EXPECT_EQ(record.CharacterSetOut(), "U");
  for (std::string_view letter : {"V", "O", "M", "L", "U", "Oclc"}) {
    record.CharacterSetIn(letter);
    EXPECT_EQ(record.CharacterSetIn(), letter.substr(0, 1));
  }
  for (std::string_view letter : {" v", "o", "M", "l", "ulc", "ULC"}) {
    record.CharacterSetOut(letter);
    EXPECT_EQ(record.CharacterSetOut()[0] | 32, letter.substr(letter[0] == ' ')[0] | 32);
  }
  record.CharacterSetOut("y");
  EXPECT_EQ(record.CharacterSetOut(), "M");
}

TEST(CharacterizeCharacterSet, GoesByTheOctetsBehindTheLeader) {
  struct Case {
    std::string_view octets, answer;
  };
  const Case cases[] = {{"", "M"},
                        {"\xE2\x65\xA1\xFE", "M"},
                        {"\x1B", "M"},
                        {"\xC1", "Y"},
                        {"\xC0\x1B", "O"},
                        {"\xC6\x90", "V"},
                        {"\xC6\x90\x1B", "O"},
                        {"\xBE", "X"},
                        {"\xBE\x1B", "O"},
                        {"\xBE\xD0", "V"},
                        {"\xBE\xD0\x1B", "V"},
                        {"\xAF", "V"},
                        {"\xAF\x1B", "X"},
                        {"\xBB", "V"},
                        {"\xCD", "V"},
                        {"\xCE", "M Illegal character(s): 206"},
                        {"\x01\x7F\xFF\x1C\x91\xC7", "V Illegal character(s): 1 28 127 145 255"},
                        {"\x8F\x90\xDE\xDD", "V Illegal character(s): 143 222"}};
  const Utf8MarcRecordClass record;
  for (const Case& c : cases) {
    const std::string data = "   " + std::string(c.octets) + "\x1E";
    EXPECT_EQ(record.CharacterizeCharacterSet(Frame("", data, "00000ncm  2200000 i 4500")),
              c.answer);
    EXPECT_EQ(record.CharacterizeCharacterSet(Frame("", data)), "U") << "the leader says so";
  }
  EXPECT_EQ(record.CharacterizeCharacterSet("\xC1"), "M") << "no more than a leader";
}

TEST(CharacterizeCharacterSet, WithoutAnImageJudgesTheRecordHeld) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.CharacterizeCharacterSet(""), "M");
  record.CharacterSetOut("M");
  record.MarcRecordIn(
      Image({"001x", "24510$aA title \xC1 with a script l"}, "00000ncm  2200000 i 4500"));
  EXPECT_EQ(record.CharacterizeCharacterSet(""), "Y");
  EXPECT_EQ(record.CharacterEncodingScheme(), " ");
  EXPECT_EQ(Fields(record)[1], "24510$aA title \xC1 with a script l") << "MARC-8 to MARC-8";
  record.MarcRecordIn(Image({"001x", "24510$aA title with nothing at all"}));
  EXPECT_EQ(record.CharacterizeCharacterSet(""), "U");
}

}  // namespace
}  // namespace cantorel
