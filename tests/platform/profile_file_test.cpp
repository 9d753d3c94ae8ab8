#include "platform/profile_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_layer.h"

namespace cantorel {
namespace {

using std::string_literals::operator""s;

// A folder that lives for one test.
class ProfileFileTest : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::path(testing::TempDir()) / ("profile_" + std::string(test->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    file_ = (folder_ / "a.ini").string();
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void Write(std::string_view text) { ASSERT_TRUE(WriteWholeFile(file_, text)); }
  std::string Read() {
    std::string text;
    ReadWholeFile(file_, text);
    return text;
  }
  std::string Value(std::string_view key) { return GetIniValue(file_, "S", key, 1000); }

  std::filesystem::path folder_;
  std::string file_;
};

TEST_F(ProfileFileTest, ReadsWhatThePlatformCallReads) {
  Write(
      "\xEF\xBB\xBF[S] what follows counts for nothing\r\n"
      "stray=before\n"
      "  Two Words \t=  a value \t\r\n"
      "; commented=no\n"
      "  ;indented=no\n"
      "#HASH=yes\n"
      "//SLASHES=yes\n"
      "STRAY=second\n"
      "EQUALS=a=b\n"
      "DOUBLE=\"  kept \"\n"
      "SINGLE='it''s'\n"
      "ODD=\"half\n"
      "LONE=\"\n"
      "EMPTY=\n"
      "NUL=ab\0cd\n"
      "TAB=cello\tnote\n"
      "SENTINEL=NO9!9!9!9NE\n"
      "no equals sign\n"
      "=no key\n"
      "[ other ]\n"
      "K=other\n"
      "[s]\n"
      "STRAY=third\nLATE=no\n"
      "[unclosed\n"
      "[X=1\n"
      "LAST=at the end"s);
  const struct {
    const char* section;
    const char* key;
    const char* value;
  } cases[] = {
      {"S", "STRAY", "before"},
      {"s", "two words", "a value"},
      {"S", "; commented", ""},
      {"S", "commented", ""},
      {"S", ";indented", ""},
      {"S", "#hash", "yes"},
      {"S", "//slashes", "yes"},
      {"S", "EQUALS", "a=b"},
      {"S", "DOUBLE", "  kept "},
      {"S", "SINGLE", "it''s"},
      {"S", "ODD", "\"half"},
      {"S", "LONE", "\""},
      {"S", "EMPTY", ""},
      {"S", "NUL", "ab"},
      {"S", "TAB", "cello\tnote"},
      {"S", "SENTINEL", ""},
      {"S", "no equals sign", ""},
      {"S", "", ""},
      {"OTHER", "k", "other"},
      {" other ", " k ", "other"},
      {"S", "LATE", ""},  // a second section of the same name is not looked at
      {"", "K", ""},
      {"missing", "K", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GetIniValue(file_, c.section, c.key, 1000), c.value) << c.section << '/' << c.key;
  }
  EXPECT_EQ(GetIniRaw(file_, "S", "SENTINEL", "x", 50), "NO9!9!9!9NE");
}

TEST_F(ProfileFileTest, CutsValuesAtTheLengthGiven) {
  Write("[S]\nK=0123456789ABCDEFGHIJ\nSENTINEL=NO9!9!9!9NE and more\n");
  EXPECT_EQ(GetIniRaw(file_, "S", "K", "", 5), "01234");
  EXPECT_EQ(GetIniRaw(file_, "S", "missing", "default", 3), "def");
  EXPECT_EQ(GetIniRaw(file_, "S", "K", "", 0), "");
  EXPECT_EQ(GetIniRaw(file_, "S", "K", "", -7), "");
  EXPECT_EQ(GetIniValue(file_, "S", "K", 15), "0123456789ABCDE");
  EXPECT_EQ(GetIniValue(file_, "S", "K", 1), "0123456789ABCD");  // room for the default
  EXPECT_EQ(GetIniValue(file_, "S", "SENTINEL", 1), "NO9!9!9!9NE an");
}

TEST_F(ProfileFileTest, NoticesThatAFileComesChangesAndGoes) {
  EXPECT_EQ(Value("K"), "");
  Write("[S]\nK=one\n");
  EXPECT_EQ(Value("K"), "one");
  Write("[S]\nK=two\n");  // the same size, within one tick of the clock
  EXPECT_EQ(Value("K"), "two");
  std::filesystem::remove(file_);
  EXPECT_EQ(Value("K"), "");
}

TEST_F(ProfileFileTest, BackslashesSeparateFolders) {
  Write("[S]\nK=v\n");
  EXPECT_EQ(GetIniValue(folder_.string() + "\\a.ini", "S", "K", 20), "v");
  EXPECT_TRUE(FileExists(folder_.string() + "\\.\\a.ini"));
}

TEST_F(ProfileFileTest, WhatIsNoPlainFileHasNoKeys) {
  EXPECT_EQ(GetIniValue(folder_.string(), "S", "K", 20), "");
  EXPECT_EQ(GetIniValue("/dev/zero", "S", "K", 20), "");
  EXPECT_EQ(GetIniValue("", "S", "K", 20), "");
}

TEST_F(ProfileFileTest, SurvivesAnyOctets) {
  std::string noise;
  std::uint32_t state = 1;
  for (int i = 0; i < 200'000; ++i) {
    state = state * 1664525 + 1013904223;
    noise.push_back(static_cast<char>(state >> 24));
    if (state % 97 == 0) noise.append("\n[S]=");
  }
  Write(noise);
  GetIniSection(file_, "S", 32000);
  EXPECT_EQ(Value("K"), "");
  Write("[S]\nK=" + std::string(20'000'000, 'x') + "\0\xFF"s);
  EXPECT_EQ(Value("K").size(), 1000u);
  Write("[S]\r");
  EXPECT_EQ(Value("K"), "");
}

TEST_F(ProfileFileTest, ListsTheLinesOfASection) {
  Write("[A]\nK=1\n[S]\r\n ; no\r\n b = \"2\" \r\n\r\nword\na=3\n[Z]\nz=1\n");
  EXPECT_EQ(GetIniSection(file_, "s", 32000), "b = \"2\"\0word\0a=3\0"s);
  EXPECT_EQ(GetIniSection(file_, "S", 18), "b = \"2\"\0word\0a=3\0"s.substr(0, 18));
  EXPECT_EQ(GetIniSection(file_, "S", 10), "b = \"2\"\0w\0"s);
  EXPECT_EQ(GetIniSection(file_, "S", 0), "");
  EXPECT_EQ(GetIniSection(file_, "missing", 100), "");
  EXPECT_EQ(GetIniSection(file_, "Z", 100), "z=1\0"s);
}

TEST_F(ProfileFileTest, PutsAValueWhereItBelongs) {
  const struct {
    const char* what;
    std::string before;
    std::string after;
  } cases[] = {
      {"a new file", "", "[S]\r\nK=v\r\n"},
      {"a new section", "[A]\nx=1", "[A]\nx=1\n[S]\nK=v\n"},
      {"a new key", "[S]\r\nx=1\r\n\r\n[Z]\r\nK=z\r\n", "[S]\r\nx=1\r\nK=v\r\n\r\n[Z]\r\nK=z\r\n"},
      {"a key to replace", "[s]\r\n k = old\r\nk=2\r\n", "[s]\r\nK=v\r\nk=2\r\n"},
      {"a section at the very end", "[A]\n[S]", "[A]\n[S]\nK=v\n"},
  };
  for (const auto& c : cases) {
    Write(c.before);
    EXPECT_TRUE(PutIniValue(file_, "S", "K", "v")) << c.what;
    EXPECT_EQ(Read(), c.after) << c.what;
    EXPECT_EQ(Value("K"), "v") << c.what;
  }
}

TEST_F(ProfileFileTest, RefusesWhatCouldNotBeReadBack) {
  Write("[S]\n");
  EXPECT_FALSE(PutIniValue(file_, "", "K", "v"));
  EXPECT_FALSE(PutIniValue(file_, "S", "", "v"));
  EXPECT_FALSE(PutIniValue(file_, "S", ";K", "v"));
  EXPECT_FALSE(PutIniValue(file_, "S", "a=b", "v"));
  EXPECT_FALSE(PutIniValue(file_, "S]", "K", "v"));
  EXPECT_FALSE(PutIniValue(file_, "S", "K", "v\nL=w"));
  EXPECT_FALSE(PutIniValue(folder_.string(), "S", "K", "v"));
  EXPECT_EQ(Read(), "[S]\n");
}

TEST_F(ProfileFileTest, TracesWhatItPuts) {
  std::FILE* trace = std::tmpfile();
  ASSERT_NE(trace, nullptr);
  PutIniValue(file_, "S", "K", "v", trace);
  PutIniValue(folder_.string() + "/none/b.ini", "S", "K", "v", trace);
  std::rewind(trace);
  std::string text(1000, '\0');
  text.resize(std::fread(text.data(), 1, text.size(), trace));
  std::fclose(trace);
  EXPECT_EQ(text, "File: " + file_ + "\n   [S]\n   K=v\n   Returns: 1\n" +
                      "File: " + folder_.string() + "/none/b.ini\n   [S]\n   K=v\n   Returns: 0\n");
}

TEST_F(ProfileFileTest, ThreadsShareOneIndexWhileTheFileChanges) {
  Write("[S]\nK=1\nL=1\n");
  std::atomic<bool> stop = false;
  std::atomic<int> wrong = 0;
  std::vector<std::thread> readers;
  for (int i = 0; i < 4; ++i) {
    readers.emplace_back([&] {
      while (!stop) wrong += GetIniValue(file_, "S", "K", 20).empty() ? 1 : 0;
    });
  }
  for (int i = 0; i < 200; ++i) PutIniValue(file_, "S", "K", std::to_string(i));
  stop = true;
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(Value("K"), "199");
}

TEST(ProgramFolder, HoldsThisProgram) {
  EXPECT_TRUE(FileExists(ProgramFolder() + "\\platform_tests"));
}

TEST(IsIniLineSkippable, KnowsTheLinesOfAnOrderFile) {
  for (const char* line : {"", "no equals", ";a=1", " a=1", "[S]=", "=1", "\xC3\xA9=1", "#a=1"}) {
    std::int32_t position = 99;
    EXPECT_TRUE(IsIniLineSkippable(line, position)) << line;
    EXPECT_EQ(position, 99) << line;
  }
  for (const char* line : {"a=1", "Z=", "_=a=b", "|=1", "0=x"}) {
    std::int32_t position = 0;
    EXPECT_FALSE(IsIniLineSkippable(line, position)) << line;
    EXPECT_EQ(position, 2) << line;
  }
}

}  // namespace
}  // namespace cantorel
