#include "medium/group_words.h"

#include <gtest/gtest.h>

namespace cantorel {
namespace {

TEST(GroupWordsTest, OnlyTheListedSpellingsCount) {
  struct Case {
    std::string_view word;
    std::int32_t number;
  };
  for (const Case& c : {Case{"DUET", 2},
                        {"TRIOS", 3},
                        {"SEXTETS", 6},
                        {"NONET", 9},
                        {"SEXTETTE", 0},
                        {"TRIOSS", 0},
                        {"trio", 0},
                        {"S", 0},
                        {"", 0}}) {
    bool is_group = c.number == 0;
    EXPECT_EQ(NumberFromGroupWord(c.word, is_group), c.number) << c.word;
    EXPECT_EQ(is_group, c.number != 0) << c.word;
  }
}

TEST(GroupWordsTest, HandsMakePlayers) {
  EXPECT_EQ(HalfRoundedUp("1"), "1");
  EXPECT_EQ(HalfRoundedUp("3"), "2");
  EXPECT_EQ(HalfRoundedUp(" 4 hands"), "2");
  EXPECT_EQ(HalfRoundedUp("12"), "6");
  EXPECT_EQ(HalfRoundedUp("hands"), "0");
  EXPECT_EQ(HalfRoundedUp("99999999999999999999"), "500000000");
}

TEST(GroupWordsTest, BaritoneIsAHornAmongBrassOnly) {
  for (std::string_view heading :
       {"\x1F"
        "aSextets (Baritone, TUBAS (2))",
        "Baritone music", "Baritone and piano music", "Concertos (Baritone, cornet)"}) {
    std::string term = "baritone";
    EXPECT_TRUE(BaritoneMeansHorn(heading, term)) << heading;
    EXPECT_EQ(term, "baritone horn");
  }
  std::string term = "baritone";
  EXPECT_FALSE(BaritoneMeansHorn("Trios (Baritone, flute, piano)", term));
  EXPECT_EQ(term, "baritone");
}

TEST(GroupWordsTest, CombinationsTakeSingularAndPlural) {
  EXPECT_EQ(StandardCombination("VOCAL NONET"), "\037asinger\037n9");
  EXPECT_EQ(StandardCombination("PIANO TRIOS"), StandardCombination("PIANO TRIO"));
  EXPECT_EQ(StandardCombination("WOODWIND QUINTET"), "");
  EXPECT_EQ(StandardCombination("A PIANO TRIO"), "");
}

}  // namespace
}  // namespace cantorel
