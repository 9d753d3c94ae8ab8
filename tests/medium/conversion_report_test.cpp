#include "medium/conversion_report.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace cantorel {
namespace {

constexpr std::string_view kHeading =
    "\x1F"
    "aWaltzes\x1F"
    "zAustria\x1F"
    "vScores";

// One message in each band but the third, which has two.
void FillEveryBand(ConversionReport& report) {
  report.AddNonProductive382("650", kHeading);
  report.AddMessage("ocm1", "Unrecognized instrument ZITHERS", "650",
                    "\x1F"
                    "aZithers");
  report.AddNonProductive655("651",
                             "\x1F"
                             "aMusic");
  report.AddNonProductive655("650", kHeading);
  report.CountUnrecognizedInstrument("ZITHER", "ocm1",
                                     "\x1F"
                                     "aZither music");
  report.CountUnrecognizedInstrument("ZITHER", "ocm2",
                                     "\x1F"
                                     "aZither duets");
  report.CountUnrecognizedPlace("zGrazzGraz (Austria)z", "ocm3");
}

struct Expected {
  std::int32_t type;
  std::string_view type_name;
  std::string_view text;
  std::string_view terms;
  std::string_view record_ids;
  std::int32_t total;
};

TEST(ConversionReport, ReadsFiveBandsAsOneList) {
  ConversionReport report;
  FillEveryBand(report);
  constexpr Expected kExpected[] = {
      {0, "Unknown", "", "", "", 0},
      {1, "382 non-productive", "",
       "\x1F"
       "aWalt$zes\x1F"
       "$zAustria\x1F"
       "vScores",
       "", 0},
      {2, "655 general message", "Unrecognized instrument ZITHERS",
       "650 \x1F"
       "aZithers",
       "ocm1", 0},
      {3, "655 non-productive", "",
       "\x1F"
       "aMusic",
       "", 0},
      {3, "655 non-productive", "",
       "\x1F"
       "aWalt$zes\x1F"
       "$zAustria\x1F"
       "vScores",
       "", 0},
      {4, "Unrecognized instrument", "ZITHER", "$aZither music//$aZither duets", "ocm1 ocm2", 2},
      {5, "Unrecognized place", "", "$zGra$z$zGra$z (Austria)", "ocm3", 1},
      {0, "Unknown", "", "", "", 0},
  };
  EXPECT_EQ(report.MessageCount(), 6);
  EXPECT_EQ(report.MessageIndex(), 0);
  for (std::int32_t i = 0; i < 8; ++i) {
    report.MessageIndex(i);
    const Expected& expected = kExpected[i];
    EXPECT_EQ(report.MessageIndex(), expected.type == 0 ? 0 : i);
    EXPECT_EQ(report.MessageType(), expected.type) << i;
    EXPECT_EQ(report.MessageTypeName(), expected.type_name) << i;
    EXPECT_EQ(report.MessageText(), expected.text) << i;
    EXPECT_EQ(report.MessageTerms(), expected.terms) << i;
    EXPECT_EQ(report.MessageRecordIds(), expected.record_ids) << i;
    EXPECT_EQ(report.MessageTotal(), expected.total) << i;
  }
  for (const std::int32_t outside : {-1, 7, 2147483647, -2147483647}) {
    report.MessageIndex(outside);
    EXPECT_EQ(report.MessageType(), 0) << outside;
  }
}

TEST(ConversionReport, ReadsSafelyOutOfTurn) {
  ConversionReport report;
  FillEveryBand(report);
  report.MessageIndex(1);  // the bands were not laid out
  EXPECT_EQ(report.MessageType(), 0);

  report.MessageCount();
  report.MessageIndex(2);
  report.GeneralMessageIndex(0);  // takes the message from under the index
  EXPECT_EQ(report.MessageType(), 2);
  EXPECT_EQ(report.MessageText(), "");
  EXPECT_EQ(report.MessageTerms(), "");

  report.MessageIndex(6);
  report.ClearCounts();
  EXPECT_EQ(report.MessageType(), 0);
  EXPECT_EQ(report.MessageTerms(), "");
  EXPECT_EQ(report.UnrecognizedPlaceTerm(), "");
  report.MessageIndex(1);
  EXPECT_EQ(report.MessageType(), 0);
  EXPECT_EQ(report.MessageCount(), 0);
}

TEST(ConversionReport, GivesOneListByItsOwnIndex) {
  ConversionReport report;
  report.AddMessage("", "No 370 for $z", "650", "$aSongs");
  report.AddMessage("", "No 370 for $z", "650", "$aSongs");
  EXPECT_EQ(report.GeneralMessageCount(), 2);
  report.GeneralMessageIndex(2);
  EXPECT_EQ(report.GeneralMessageItem(), "\tNo 370 for $z\t650\t$aSongs");
  report.GeneralMessageIndex(3);
  EXPECT_EQ(report.GeneralMessageIndex(), 0);
  EXPECT_EQ(report.GeneralMessageItem(), "");
  report.AddNonProductive655("650",
                             "\x1F"
                             "aSongs");
  report.NonProductive655Index(1);
  EXPECT_EQ(report.NonProductive655Item(),
            "650\x1F"
            "aSongs");
}

TEST(ConversionReport, TakesAnInstrumentIndexOnlyOnceTheTotalWasRead) {
  ConversionReport report;
  report.CountUnrecognizedInstrument("ZITHER", "1", "a");
  report.UnrecognizedInstrumentIndex(1);
  EXPECT_EQ(report.UnrecognizedInstrumentIndex(), -1);
  EXPECT_EQ(report.UnrecognizedInstrumentName(), "");
  EXPECT_EQ(report.UnrecognizedInstrumentTotal(), 1);
  report.UnrecognizedInstrumentIndex(1);
  EXPECT_EQ(report.UnrecognizedInstrumentName(), "ZITHER");
  report.UnrecognizedInstrumentIndex(2);
  EXPECT_EQ(report.UnrecognizedInstrumentIndex(), -1);
}

TEST(ConversionReport, KeepsTenIdentifiersOfATermAndCountsOn) {
  ConversionReport report;
  for (int i = 1; i <= 12; ++i) {
    report.CountUnrecognizedInstrument("ZITHER", std::to_string(i), i % 2 == 0 ? "a" : "b");
  }
  report.UnrecognizedInstrumentTotal();
  report.UnrecognizedInstrumentIndex(1);
  EXPECT_EQ(report.UnrecognizedInstrumentCount(), 12);
  EXPECT_EQ(report.UnrecognizedInstrumentRecordIds(), "1 2 3 4 5 6 7 8 9 10");
  EXPECT_EQ(report.UnrecognizedInstrumentTerms(), "b//a");
}

std::string Written(ConversionReport& report) {
  std::FILE* file = std::tmpfile();
  bool done = false;
  report.WriteUnrecognizedItems(file, done);
  EXPECT_TRUE(done);
  std::rewind(file);
  std::string text;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) text += static_cast<char>(c);
  std::fclose(file);
  return text;
}

TEST(ConversionReport, WritesItemsNotUnderstoodWithTheirRecords) {
  ConversionReport report;
  report.CountUnrecognizedItem("ZITHER", "1");
  report.CountUnrecognizedItem("ZITHER", "1");
  report.CountUnrecognizedItem("NOSE FLUTE", "");
  report.ClearCounts();  // per record; these stay through the run
  EXPECT_EQ(Written(report), "ZITHER\t2\t1 1\nNOSE FLUTE\t1\t\n");
  EXPECT_EQ(Written(report), "ZITHER\t2\t\nNOSE FLUTE\t1\t\n");
  report.ClearAll();
  EXPECT_EQ(Written(report), "");
  bool done = true;
  report.WriteUnrecognizedItems(nullptr, done);
  EXPECT_FALSE(done);
}

TEST(ConversionReport, CutsLongListsOfRecords) {
  struct Case {
    std::vector<std::size_t> id_lengths;
    std::size_t kept;
    std::string_view ending;
  };
  const Case cases[] = {
      {{100, 154}, 255, ""},           // exactly 255: whole
      {{239, 100}, 239, " ..."},       // a blank at position 240
      {{238, 100}, 240, "..."},        // the blank at 239 is too early
      {{100, 150, 100}, 251, " ..."},  // the first blank behind 240
      {{300}, 240, "..."},             // no blank at all
      {{300, 10, 10}, 300, " ..."},    // the blank far behind
  };
  for (const Case& c : cases) {
    ConversionReport report;
    std::string list;
    for (const std::size_t length : c.id_lengths) {
      const std::string id(length, 'x');
      if (!list.empty()) list += ' ';
      list += id;
      report.CountUnrecognizedItem("Q", id);
    }
    // What comes behind the cut does not change it.
    if (!c.ending.empty() && c.ending[0] == ' ') {
      for (int i = 0; i < 1000; ++i) report.CountUnrecognizedItem("Q", "y");
    }
    const std::string written = Written(report);
    EXPECT_EQ(written.substr(written.rfind('\t') + 1),
              list.substr(0, c.kept) + std::string(c.ending) + "\n");
  }
}

}  // namespace
}  // namespace cantorel
