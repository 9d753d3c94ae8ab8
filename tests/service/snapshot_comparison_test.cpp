#include "service/snapshot_comparison.h"

#include <gtest/gtest.h>

#include <random>

#include "service/chamber_music.h"

namespace cantorel {
namespace {

FieldSnapshot& Add(SnapshotList& list, std::string_view tag, std::string_view text,
                   std::string_view key = {}, std::int32_t id = 0) {
  FieldSnapshot& field = list.Append();
  field.tag = tag;
  field.indicators = "01";
  field.text = text;
  field.compare_key = key;
  field.field_id = id;
  return field;
}

// The comparison entry by entry, without any index.
void SettleOneByOne(const SnapshotList& before, SnapshotList& after) {
  for (const FieldSnapshot& old : before) {
    for (FieldSnapshot& field : after) {
      if (old.compare_key != field.compare_key) continue;
      if (old.text == field.text) {
        field.tag.clear();
      } else {
        field.field_id = old.field_id;
        field.has_subfield9 = old.has_subfield9;
        field.identifier_subfields = old.identifier_subfields;
      }
    }
  }
}

TEST(SnapshotComparison, GivesWhatAComparisonOneByOneGives) {
  std::mt19937 random(382);
  auto any_of = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int run = 0; run < 2000; ++run) {
    SnapshotList before;
    SnapshotList after;
    const int before_count = any_of(7);
    for (int i = 0; i < before_count; ++i) {
      FieldSnapshot& field = Add(before, "382", std::to_string(any_of(3)),
                                 std::string(1, static_cast<char>('A' + any_of(3))), i - 1);
      field.has_subfield9 = any_of(2) == 0;
      field.identifier_subfields = "id" + std::to_string(i);
    }
    const int after_count = any_of(7);
    for (int i = 0; i < after_count; ++i) {
      Add(after, "382", std::to_string(any_of(3)),
          std::string(1, static_cast<char>('A' + any_of(3))));
    }
    SnapshotList expected = after;
    SettleOneByOne(before, expected);
    SettleAgainst(before, after);
    std::string lines;
    std::string expected_lines;
    AppendReturnedLines(after, lines);
    AppendReturnedLines(expected, expected_lines);
    ASSERT_EQ(lines, expected_lines) << run;
  }
}

TEST(SnapshotComparison, TellsReplacementsBeforeAdditionsAndNothingNegative) {
  SnapshotList after;
  Add(after, "655", "new", "", 0);
  Add(after, "382", "old", "", 12).identifier_subfields =
      "\x1F"
      "0x";
  Add(after, "", "settled", "", 0);
  Add(after, "385", "negative", "", -4);
  Add(after, "386", "\xC3\xA9", "", 2147483647);
  std::string lines;
  AppendReturnedLines(after, lines);
  EXPECT_EQ(lines,
            "12\t382016F6C641F3078\n"
            "2147483647\t38601C3A9\n"
            "0\t655016E6577");
}

struct ChamberCase {
  std::string_view text_of_382;
  bool added;
};

TEST(ChamberMusic, IsForTwoToTwentyFivePerformersWithoutEnsemble) {
  constexpr ChamberCase kCases[] = {
      {"\x1F"
       "aflute\x1F"
       "n1\x1F"
       "s1",
       false},
      {"\x1F"
       "aflute\x1F"
       "n2\x1F"
       "s2",
       true},
      {"\x1F"
       "aflute\x1F"
       "n25\x1F"
       "s25\x1F"
       "2lcmpt",
       true},
      {"\x1F"
       "aflute\x1F"
       "n26\x1F"
       "s26",
       false},
      {"\x1F"
       "aflute\x1F"
       "n2",
       false},
      {"\x1F"
       "aflute\x1F"
       "s",
       false},
      {"\x1F"
       "aflute\x1F"
       "s 3 players",
       true},
      {"\x1F"
       "aflute\x1F"
       "s1\x1F"
       "s5",
       false},  // the first $s counts
      {"\x1F"
       "aorchestra\x1F"
       "e1\x1F"
       "s4",
       false},
      {"\x1F"
       "aflute\x1F"
       "s4\x1F"
       "t1",
       false},
      {"\x1F"
       "aflute\x1F"
       "s99999999999999999999",
       false},
      {"", false},
  };
  for (const ChamberCase& c : kCases) {
    for (const bool in_before : {true, false}) {
      SnapshotList before;
      SnapshotList after;
      Add(in_before ? before : after, "382", c.text_of_382);
      const std::size_t count = after.Count();
      AddChamberMusicGenre(before, after, "");
      EXPECT_EQ(after.Count() > count, c.added) << c.text_of_382;
    }
  }
}

TEST(ChamberMusic, IsAddedWithItsSourceAndPoint) {
  for (const std::string_view punctuated : {"", "382 655", "382"}) {
    SnapshotList before;
    SnapshotList after;
    Add(before, "382",
        "\x1F"
        "s2");
    AddChamberMusicGenre(before, after, punctuated);
    ASSERT_EQ(after.Count(), 1u);
    std::string lines;
    AppendReturnedLines(after, lines);
    const std::string point = punctuated == "382 655" ? "2E" : "";
    EXPECT_EQ(lines, "0\t655 71F614368616D626572206D75736963" + point + "1F326C63676674");
  }
}

// The two lists are searched for different words: with the blank after the
// conversion, without it before.
TEST(ChamberMusic, IsNotAddedWhereTheGenreStands) {
  const std::tuple<bool, std::string_view, std::string_view, bool> cases[] = {
      {true, "655",
       "\x1F"
       "aChamber music",
       true},
      {true, "655",
       "\x1F"
       "aChambermusic",
       false},
      {false, "655",
       "\x1F"
       "aChamber music.",
       false},
      {false, "655",
       "\x1F"
       "aCHAMBER MUSIC",
       false},
      {false, "655",
       "\x1F"
       "aChambermusic",
       true},
      {false, "655",
       "\x1F"
       "xChamber music",
       true},
      {false, "650",
       "\x1F"
       "aChamber music",
       true},
  };
  for (const auto& [in_before, tag, text, added] : cases) {
    SnapshotList before;
    SnapshotList after;
    Add(after, "382",
        "\x1F"
        "s2");
    Add(in_before ? before : after, tag, text);
    const std::size_t count = after.Count();
    AddChamberMusicGenre(before, after, "");
    EXPECT_EQ(after.Count() > count, added) << tag << text;
  }
}

}  // namespace
}  // namespace cantorel
