// Tests of a whole record, authority questions and series practice.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

constexpr std::string_view kAuthority = "00000nz  a2200000n  4500";
constexpr std::string_view kHoldings = "00000nx  a2200000zn 4500";

void Load(Record& record, const std::vector<std::string>& fields,
          std::string_view leader = kMusicLeader) {
  std::vector<std::string> all = {"001abcdefgh", "005" + std::string(16, '0')};
  all.insert(all.end(), fields.begin(), fields.end());
  record.MarcRecordIn(Image(all, leader));
  ASSERT_NE(record.MarcRecordIn(), "");
}

std::string EmptySubfields(const Record& record) {
  std::string message = "left over";
  const bool found = record.TestRecordForEmptySubfields(message);
  EXPECT_EQ(found, !message.empty());
  return message;
}

std::string LeadingSubfields(const Record& record) {
  std::string message = "left over";
  const bool found = record.TestRecordForLeadingSubfield(message);
  EXPECT_EQ(found, !message.empty());
  return message;
}

std::string BlankCodes(const Record& record) {
  std::string message = "left over";
  const bool found = record.TestRecordForBlankSubfieldCodes(message);
  EXPECT_EQ(found, !message.empty());
  return message;
}

TEST(EmptySubfields, FieldsOfTheFamilyAreLookedAt) {
  const std::vector<std::string> fields = {"245  $aTitle", "500  $a", "650  $a", "700  $a"};
  for (std::string_view leader : {kMusicLeader, kAuthority, kHoldings}) {
    Record record;
    Load(record, fields, leader);
    record.FldPointer(4);
    const std::string all =
        "500 has empty subfield $a\r\n650 has empty subfield $a\r\n700 has empty subfield $a";
    EXPECT_EQ(EmptySubfields(record), all);
    const bool authority = leader == kAuthority;
    const bool holdings = leader == kHoldings;
    record.FieldsToTestForEmptySubfieldsAuth(authority ? "500" : "245");
    record.FieldsToTestForEmptySubfieldsHold(holdings ? "500" : "245");
    record.FieldsToTestForEmptySubfieldsBib(authority || holdings ? "245" : "500");
    EXPECT_EQ(EmptySubfields(record), "500 has empty subfield $a");
    for (std::string_view every : {"", "24", " "}) {
      record.FieldsToTestForEmptySubfieldsAuth(every);
      record.FieldsToTestForEmptySubfieldsHold(every);
      record.FieldsToTestForEmptySubfieldsBib(every);
      EXPECT_EQ(EmptySubfields(record), all);
    }
    EXPECT_EQ(record.FldPointer(), 4);
  }
}

TEST(EmptySubfields, DeletedAndControlFieldsAreNot) {
  Record record;
  Load(record, {"500  $a", "650  $aFugues"});
  record.FieldsToTestForEmptySubfieldsBib("6XX 500");
  EXPECT_EQ(record.FieldsToTestForEmptySubfieldsBib(), "6XX 500");
  record.FldPointer(3);
  record.FldText(Text("$a$vScores"));
  EXPECT_EQ(EmptySubfields(record), "500 has empty subfield $a\r\n650 has empty subfield $a");
  record.SfdPointer(0);
  record.SfdDelete();
  record.FldPointer(2);
  record.FldDelete();
  EXPECT_EQ(EmptySubfields(record), "");
  record.FldAdd("006", "", "");
  record.FieldsToTestForEmptySubfieldsBib("");
  EXPECT_EQ(EmptySubfields(record), "");
  EXPECT_EQ(EmptySubfields(Record()), "");
}

TEST(LeadingSubfield, OfBibliographicFields) {
  const struct {
    std::string_view field;
    std::string_view unexpected;  // the code
  } cases[] = {
      {"24500$bTitle", "b"},
      {"24500$6880-01$aTitle", ""},
      {"24500$6880-01$bTitle", "b"},
      {"24500$6880-01$81$ax", ""},
      {"24500$iNote$aTitle", "i"},
      {"7001 $iWork$aBach", ""},
      {"7001 $iWork$6880-01$tx", "t"},
      {"74002$ax", ""},
      {"740  $px", "p"},
      {"751  $px", ""},
      {"130  $tx", "t"},
      {"131  $tx", ""},
      {"222  $bx", "b"},
      {"223  $bx", ""},
      {"240  $mx", "m"},
      {"241  $mx", ""},
      {"440  $nx", "n"},
      {"490  $vx", ""},
      {"600  $tx", "t"},
      {"651  $xx", "x"},
      {"653  $bx", ""},
      {"655  $2x", "2"},
      {"830  $vx", "v"},
      {"831  $vx", ""},
      {"24500Title", ""},
      {"24500", ""},
      {"24500$6880-01", ""},
      {"24500$", " "},
      {"24500$$ax", " "},
      {"24500$Ax", "A"},
  };
  for (const auto& c : cases) {
    Record record;
    Load(record, {std::string(c.field)});
    std::string expected;
    if (!c.unexpected.empty()) {
      expected.append(c.field.substr(0, 3)).append(" began with unexpected subfield $");
      expected.append(c.unexpected);
    }
    EXPECT_EQ(LeadingSubfields(record), expected) << c.field;
  }
}

TEST(LeadingSubfield, OfAuthorityFields) {
  const struct {
    std::string_view field;
    std::string_view unexpected;
  } cases[] = {
      {"1001 $aBach", ""},
      {"1001 $tBach", "t"},
      {"4001 $wnne$iOld$aBach", ""},
      {"5001 $81$6880-01$ax", ""},
      {"5001 $0x$ax", "0"},
      {"180  $xScores", ""},
      {"180  $aScores", "a"},
      {"181  $zRome", ""},
      {"182  $y1700", ""},
      {"185  $vScores", ""},
      {"485  $wnne$vScores", ""},
      {"585  $xScores", "x"},
      {"183  $aX", ""},
      {"245  $bx", ""},
      {"670  $bx", ""},
      {"700  $tx", ""},
      {"4001 $wnne", ""},
  };
  for (const auto& c : cases) {
    Record record;
    Load(record, {std::string(c.field)}, kAuthority);
    std::string expected;
    if (!c.unexpected.empty()) {
      expected.append(c.field.substr(0, 3)).append(" began with unexpected subfield $");
      expected.append(c.unexpected);
    }
    EXPECT_EQ(LeadingSubfields(record), expected) << c.field;
  }
}

TEST(LeadingSubfield, LooksAtTheImageAndNotAtTheTable) {
  Record record;
  record.NewRecord("c", "m");
  record.FldAdd("245", "00", Text("$bTitle"));
  EXPECT_EQ(LeadingSubfields(record), "");
  EXPECT_EQ(BlankCodes(record), "");
  Load(record, {"24500$bx", "650 0$xy"});
  record.FldPointer(2);
  record.FldText(Text("$ax"));
  EXPECT_EQ(LeadingSubfields(record),
            "245 began with unexpected subfield $b\r\n650 began with unexpected subfield $x");
  Load(record, {"24500$bx"}, kHoldings);
  EXPECT_EQ(LeadingSubfields(record), "") << "holdings are not tested";
}

TEST(BlankSubfieldCodes, OncePerFieldOfTheImage) {
  Record record;
  Load(record, {"24500$aTitle$ x$ y", "500  $a$ ", "650 0$aFugues$", "700  $$ax", "710  $ax"});
  EXPECT_EQ(BlankCodes(record),
            "245 has 'blank' subfield\r\n500 has 'blank' subfield\r\n"
            "650 has 'blank' subfield\r\n700 has 'blank' subfield");
}

// --- Authority questions -----------------------------------------------------

TEST(NationalAuthority, ByNumberAndInstitution) {
  const struct {
    std::string_view field;
    bool national;
    std::string_view reason;
  } cases[] = {
      {"010  $an  79021425 ", true, "010: $an  79021425 "},
      {"035  $a(DLC)123", true, "035: (DLC)123"},
      {"035  $a(CMalG-V)55", true, "035: (CMalG-V)55"},
      {"035  $a(DNLM)D1", true, "035: (DNLM)D1"},
      {"035  $an 79021425", true, "035: n 79021425"},
      {"035  $anr 92001234", true, "035: nr 92001234"},
      {"035  $ash 85001", true, "035: sh 85001"},
      {"035  $ans", true, "035: ns"},
      {"035  $an79021425", false, ""},
      {"035  $ash85001", false, ""},
      {"035  $a(OCoLC)1", false, ""},
      {"035  $z(DLC)123", false, ""},
      {"040  $aDNLM$cDNLM", true, ""},
      {"040  $aDLC$cDNLM", false, ""},
      {"110  $aDNLM", false, ""},
  };
  for (const auto& c : cases) {
    Record record;
    Load(record, {std::string(c.field)}, kAuthority);
    std::string reason = "left over";
    EXPECT_EQ(record.NationalAuthorityRecord(reason), c.national) << c.field;
    EXPECT_EQ(Readable(reason), c.reason) << c.field;
    EXPECT_EQ(record.FldPointer(), 0) << c.field;
    Load(record, {std::string(c.field)});
    EXPECT_FALSE(record.NationalAuthorityRecord(reason)) << "no authority record";
  }
}

TEST(NationalAuthority, InstitutionsCanBeChosen) {
  Record record;
  std::string reason;
  record.NationalAuthorityInstitutions("  Uk-x   De-101 - ");
  Load(record, {"035  $a(DLC)1", "035  $a(DE-101)5"}, kAuthority);
  EXPECT_TRUE(record.NationalAuthorityRecord(reason));
  EXPECT_EQ(reason, "035: (DE-101)5");
  record.FldPointer(3);
  record.FldDelete();
  EXPECT_FALSE(record.NationalAuthorityRecord(reason)) << "a deleted field says nothing";
}

TEST(Rda, BySourceAndForAuthoritiesByRules) {
  const std::string z008 = "008850101n| azannaabn          |n ana     d";
  const std::string c008 = "008850101n| acannaabn          |n ana     d";
  const struct {
    std::vector<std::string> fields;
    std::string_view leader;
    bool rda;
  } cases[] = {
      {{"040  $aDLC$erda"}, kMusicLeader, true},
      {{"040  $aDLC$eisbd$eRDA."}, kMusicLeader, true},
      {{"040  $aDLC$erdaa"}, kMusicLeader, false},
      {{"040  $aDLC$crda"}, kMusicLeader, false},
      {{"245  $aTitle"}, kMusicLeader, false},
      {{z008, "040  $aDLC$erda"}, kAuthority, true},
      {{c008, "040  $aDLC$erda"}, kAuthority, false},
      {{z008, "040  $aDLC"}, kAuthority, false},
      {{"040  $aDLC$erda"}, kAuthority, false},
  };
  for (const auto& c : cases) {
    Record record;
    Load(record, c.fields, c.leader);
    record.FldPointer(2);
    record.SfdPointer(0);
    EXPECT_EQ(record.RdaRecord(), c.rda) << c.fields.back();
    EXPECT_EQ(record.FldPointer(), 2);
    EXPECT_EQ(record.SfdPointer(), 0);
  }
}

TEST(References, FormerHeadingsAndSuppressedOnes) {
  const struct {
    std::string_view field;
    bool former;
    bool suppressed;
  } cases[] = {
      {"4001 $wnne$aBach", true, false},   {"4001 $wnnea$aBach", true, true},
      {"5001 $wnnna$aBach", false, true},  {"5001 $wa$aBach", false, false},
      {"4001 $w$aBach", false, false},     {"4001 $aBach", false, false},
      {"4001 $aBach$wnna", true, false},   {"1001 $wnnea$aBach", false, false},
      {"7001 $wnnea$aBach", false, false}, {"4001 $wnn|$aBach", true, false},
  };
  for (const auto& c : cases) {
    Record record;
    Load(record, {std::string(c.field)}, kAuthority);
    record.FldPointer(2);
    const std::int16_t subfield = record.SfdPointer();
    EXPECT_EQ(record.FldIsFormerHeading(), c.former) << c.field;
    EXPECT_EQ(record.FldIsSuppressedReference(), c.suppressed) << c.field;
    const std::string text = Text(c.field.substr(5));
    EXPECT_EQ(record.FldFormerHeading(c.field.substr(0, 3), text), c.former) << c.field;
    EXPECT_EQ(record.SfdPointer(), subfield) << "no test moves the cursor";
    record.FldPointer(-1);
    EXPECT_FALSE(record.FldIsFormerHeading() || record.FldIsSuppressedReference());
    Load(record, {std::string(c.field)});
    record.FldPointer(2);
    EXPECT_FALSE(record.FldIsFormerHeading()) << "no authority record";
    EXPECT_FALSE(record.FldFormerHeading("400", text));
  }
}

TEST(SeriesPolicy, ByInstitution) {
  Record record;
  const std::vector<std::string> fields = {
      "130 0$aMusic of the past",
      "642  $av. 1$5DPCC$5DLC",
      "642  $aBd. 1$5IaU",
      "644  $an$5Uk",
      "644  $af$5DLC",
      "644  $ap$5DLC",
      "645  $at$5DPCC",
      "645  $an$5Ia U",
      "645  $5DLC$at",
      "646  $as$5DPCC",
      "646  $ac",
      "646  $5IaU",
  };
  Load(record, fields, kAuthority);
  EXPECT_EQ(record.SeriesNumberingPatternDlc(), "v. 1");
  EXPECT_EQ(record.SeriesNumberingPatternDpcc(), "v. 1");
  EXPECT_EQ(record.SeriesNumberingPatternLocal(), "") << "no local institution set";
  EXPECT_EQ(record.SeriesAnalysisPolicyDlc(), "f") << "the first counts";
  EXPECT_EQ(record.SeriesAnalysisPolicyDpcc(), "");
  EXPECT_EQ(record.SeriesTracingPolicyDlc(), "t");
  EXPECT_EQ(record.SeriesTracingPolicyDpcc(), "t");
  EXPECT_EQ(record.SeriesClassificationPolicyDlc(), "");
  EXPECT_EQ(record.SeriesClassificationPolicyDpcc(), "s");
  record.Nuc("IaU");
  EXPECT_EQ(record.SeriesNumberingPatternLocal(), "Bd. 1");
  EXPECT_EQ(record.SeriesAnalysisPolicyLocal(), "");
  EXPECT_EQ(record.SeriesClassificationPolicyLocal(), "") << "a field without $a";
  record.Nuc("Ia  U");
  EXPECT_EQ(record.SeriesTracingPolicyLocal(), "n");
  record.Nuc("IAU");
  EXPECT_EQ(record.SeriesNumberingPatternLocal(), "Bd. 1") << "in any case of letters";
  Load(record, fields);
  EXPECT_EQ(record.SeriesTracingPolicyDpcc(), "") << "no authority record";
}

}  // namespace
}  // namespace cantorel
