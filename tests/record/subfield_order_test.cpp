// The order of the subfields: the pattern language, rules, and what loading and
// adding make of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "record/default_subfield_orders.h"
#include "record/marc_text.h"
#include "record/subfield_order_table.h"
#include "record/subfield_pattern.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

const std::string kNumber = "001cantorel-0000000001";
constexpr std::string_view kNameTitle = "6a{#bcdgq}{eu4}{!tfgklnp}";

// --- The pattern language ----------------------------------------------------

// Rules as "kind:codes", blank-separated.
std::string Rules(const SubfieldPattern& pattern) {
  std::string text;
  for (const SubfieldRule& rule : pattern.rules) {
    if (!text.empty()) text += ' ';
    text += std::to_string(static_cast<int>(rule.kind)) + ':' + rule.codes;
  }
  return text;
}

TEST(SubfieldPattern, Parses) {
  struct Case {
    std::string_view pattern, rules, repeated, triggers;
  };
  const Case cases[] = {
      {"", "", "", ""},
      {"6az", "0:6 0:a 0:z", "", ""},
      {kNameTitle, "0:6 0:a 1:bcdgq 0:eu4 2:tfgklnp", "g", "t"},
      {"{6}{w}{#bc}", "0:6 0:w 1:bc", "", ""},
      {"6w{^xvy}", "0:6 0:w 3:xvy", "", "x"},
      // Groups that are not closed, are opened twice, or hold nothing.
      {"a{#bc", "0:a 1:bc", "", ""},
      {"a{#bc{!de}f", "0:a 1:bc 2:de 0:f", "", "d"},
      {"a}{}{#}{!}b{", "0:a 0:b", "", ""},
      // Wrong brackets are codes, and the group runs on.
      {"68wa{#vxyz)205", "0:6 0:8 0:w 0:a 1:vxyz)205", "", ""},
      {"9{638}{abc]", "0:9 0:638 0:abc]", "", ""},
      // Marks inside a group, or outside of one, are codes.
      {"#{a#}", "0:# 0:a#", "#", ""},
      // The last marked group that holds the first code of one.
      {"{@ab}{@ac}{@da}", "4:ab 4:ac 5:da", "a", ""},
      {"{@ab}{@cd}", "5:ab 5:cd", "", ""},
      {"aba", "0:a 0:b 0:a", "a", ""},
  };
  for (const Case& c : cases) {
    const SubfieldPattern pattern = ParseSubfieldPattern(c.pattern);
    EXPECT_EQ(Rules(pattern), c.rules) << c.pattern;
    EXPECT_EQ(pattern.repeated_codes, c.repeated) << c.pattern;
    EXPECT_EQ(pattern.trigger_codes, c.triggers) << c.pattern;
  }
}

TEST(SubfieldPattern, DefaultsAreAllThereAndKeepTheirSlips) {
  EXPECT_EQ(std::size(kAuthoritySubfieldOrders), 67U);
  EXPECT_EQ(std::size(kBibliographicSubfieldOrders), 168U);
  std::string slips;
  for (const auto& [tag, pattern] : kAuthoritySubfieldOrders) {
    if (pattern.find(')') != std::string_view::npos) slips += std::string(tag) + ' ';
  }
  EXPECT_EQ(slips, "150 450 550 750 ");
  EXPECT_EQ(kBibliographicSubfieldOrders[167].pattern, "9{638}{abcdefghijklmnouvwxyz]");
}

// --- Comparison --------------------------------------------------------------

// An order of one pattern: '<' for left, '>' for right, '=' for staying.
char Move(std::string_view pattern, char own, char prev, char next, bool after_title = false) {
  switch (SubfieldOrder(pattern).Compare(own, prev, next, after_title)) {
    case SubfieldMove::kLeft:
      return '<';
    case SubfieldMove::kRight:
      return '>';
    case SubfieldMove::kNone:
      break;
  }
  return '=';
}

TEST(SubfieldOrder, ComparesWithItsNeighbours) {
  struct Case {
    std::string_view pattern;
    char own, prev, next;
    bool after_title;
    char wanted;
  };
  const Case cases[] = {
      {"6a{#bc}", 'a', 'b', '\0', false, '<'},
      {"6a{#bc}", 'b', 'c', '\0', false, '='},  // any order
      {"6a{#bc}", 'c', 'a', 'b', false, '='},
      {"6a{#bc}", 'b', '\0', 'a', false, '>'},
      {"6a{#bc}", 'x', 'a', 'b', false, '>'},  // not named: behind all others
      {"6a{#bc}", 'x', 'b', 'y', false, '='},
      {"6{eu4}", 'e', 'u', '\0', false, '<'},  // as written
      {"6{eu4}", '4', '\0', 'u', false, '>'},
      {"6{eu4}", 'u', 'u', 'u', false, '='},
      {"{eu4}a", 'e', 'u', '\0', false, '='},  // the first rule never compares inside itself
      {"6{!tfg}", 't', 'f', '\0', false, '<'},
      {"6{!tfg}", 'f', 'g', '\0', false, '='},
      {"6{!tfg}", 'f', '\0', 't', false, '>'},
      {"6{!tfg}", 't', 't', '\0', false, '='},
      {"6{^xvy}", 'x', 'v', '\0', false, '='},
      {"6{@xvy}", 'x', 'v', '\0', false, '='},
      // A code of name and title belongs to the title behind a $t.
      {kNameTitle, 'g', 't', '\0', true, '='},
      {kNameTitle, 'g', 't', '\0', false, '<'},
      {kNameTitle, 'g', 'e', '\0', true, '='},
      // A repeated code that no rule with "t" holds is left to the last rule.
      {"6{#ab}{#bc}{!td}", 'b', 'd', '\0', true, '='},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Move(c.pattern, c.own, c.prev, c.next, c.after_title), c.wanted)
        << c.pattern << ' ' << c.own << " behind " << c.prev << " before " << c.next;
  }
}

TEST(SubfieldOrder, AnyOctetHasAPlace) {
  const SubfieldOrder order("6a\xC3{#b\xFF}");
  for (int code = 0; code < 256; ++code) {
    order.Compare(static_cast<char>(code), 'a', '\xFF', true);
    order.Compare('a', static_cast<char>(code), static_cast<char>(code), false);
  }
  EXPECT_EQ(order.Pattern().rules.back().codes, "abcdefghijklmnopqrstuvwxyz0123456789");
}

// A rule for all codes closes a pattern once.
TEST(SubfieldOrderTable, FindsClosesAndCounts) {
  SubfieldOrderTable table;
  EXPECT_EQ(Rules(table.Find("245").Pattern()), "1:abcdefghijklmnopqrstuvwxyz0123456789");
  EXPECT_TRUE(table.Empty());
  table.Set("245", "{#abcdefghijklmnopqrstuvwxyz0123456789}");
  table.Set("100", "x");
  EXPECT_EQ(Rules(table.Find("245").Pattern()), "1:abcdefghijklmnopqrstuvwxyz0123456789");
  EXPECT_EQ(table.Count(), 2);
  table.Finish();
  EXPECT_EQ(table.Count(), 3);
  table.Set("245", "ab");
  EXPECT_EQ(Rules(table.Find("245").Pattern()), "0:a 0:b 1:abcdefghijklmnopqrstuvwxyz0123456789");
  EXPECT_EQ(table.Count(), 3);
  table.Set("XXX", "z");
  EXPECT_EQ(table.Find("999").Pattern().rules[0].codes, "z");
  EXPECT_EQ(table.Find("100").Pattern().rules[0].codes, "x");
  EXPECT_EQ(table.Count(), 3);
}

// --- Records -----------------------------------------------------------------

std::string Loaded(Utf8MarcRecordClass& record, const std::string& field) {
  record.MarcRecordIn(Image({kNumber, field}));
  return Fields(record)[1];
}

TEST(SubfieldOrderOfRecords, LoadMovesByThePattern) {
  struct Case {
    std::string_view pattern, given, wanted;
  };
  const Case cases[] = {
      {"6a{#bc}", "$cc$bb", "$cc$bb"},
      {"6a{#bc}", "$bb$aa", "$aa$bb"},
      {"6a{#bc}", "$xx$bb$aa$66", "$66$aa$bb$xx"},
      // A code of the name goes ahead of the $t, but not of a code that the name
      // has too.
      {kNameTitle, "$aa$tt$bb", "$aa$bb$tt"},
      {kNameTitle, "$aa$tt$gg$bb", "$aa$tt$gg$bb"},
      {kNameTitle, "$aa$gg$tt", "$aa$gg$tt"},
      {kNameTitle, "$aa$ff$tt$gg$ee", "$aa$tt$ff$gg$ee"},
      {kNameTitle, "$gg$tt$gh$t2$gi$aa", "$aa$gg$tt$gh$t2$gi"},
      {"6{eu4}", "$44$uu$ee$66", "$66$ee$uu$44"},
      {"{ba}c", "$aa$bb$cc$ba", "$aa$bb$ba$cc"},
      // An empty subfield is dropped, and is no title either.
      {kNameTitle, "$aa$t$gg$bb", "$aa$gg$bb"},
  };
  for (const Case& c : cases) {
    Utf8MarcRecordClass record;
    record.SetSfdOrder("B", "245", c.pattern);
    const std::string given = "24510" + std::string(c.given);
    EXPECT_EQ(Loaded(record, given), "24510" + std::string(c.wanted)) << c.pattern;
    const bool moved = c.given.find("$t$") == std::string_view::npos && c.given != c.wanted;
    EXPECT_EQ(record.SfdOrderChanged(), moved) << c.given;
    EXPECT_EQ(record.MarcRecordModified(), moved) << c.given;
    EXPECT_EQ(record.FldsWithSfdsOutOfOrder(), moved ? "245" : "") << c.given;
    EXPECT_FALSE(record.SubfieldsOutOfOrder());
  }
}

TEST(SubfieldOrderOfRecords, NewObjectOrdersByTheDefaults) {
  Utf8MarcRecordClass record;
  EXPECT_EQ(record.SfdMax(), 0);
  EXPECT_EQ(Loaded(record, "24510$bb$aa"), "24510$aa$bb");
  EXPECT_EQ(Loaded(record, "382 1$bb$aa"), "382 1$bb$aa");  // no pattern
  EXPECT_EQ(record.SfdMax(), 169);
  record.MarcRecordIn(Image({kNumber, "100  $bb$aa"}, "00000nz  a2200000n  4500"));
  EXPECT_EQ(Fields(record)[1], "100  $aa$bb");
}

// A new record asks for no subfield order, and does not keep the next load from
// having it.
TEST(SubfieldOrderOfRecords, NewRecordLeavesSubfieldsAlone) {
  Utf8MarcRecordClass record;
  record.NewRecord("c", "m");
  record.FldAdd("245", "10", Text("$bb$aa"));
  EXPECT_EQ(Readable(record.FldText()), "$bb$aa");
  EXPECT_EQ(Loaded(record, "24510$bb$aa"), "24510$aa$bb");
}

TEST(SubfieldOrderOfRecords, ReportsInsteadOfMoving) {
  for (const bool no_change : {false, true}) {
    Utf8MarcRecordClass record;
    record.TestSubfieldOrder(no_change);
    record.MakeNoChange(no_change);
    const std::string image = Image({kNumber, "24510$bb$aa$bb$aa", "4500 $aa$ww", "24510$bb$aa"});
    record.MarcRecordIn(image);
    EXPECT_TRUE(record.SubfieldsOutOfOrder());
    EXPECT_FALSE(record.SfdOrderChanged());
    EXPECT_EQ(record.FldsWithSfdsOutOfOrder(), "245");
    EXPECT_EQ(record.MarcRecordOut(), image);
  }
}

TEST(SubfieldOrderOfRecords, IgnoringOrderReportsNothing) {
  Utf8MarcRecordClass record;
  record.IgnoreSfdOrder(true);
  EXPECT_EQ(Loaded(record, "24510$bb$aa"), "24510$bb$aa");
  record.FldFindFirst("245", "");
  record.SfdAdd("6", "880-01");
  record.SfdAdd("a", "z");
  EXPECT_EQ(Readable(record.FldText()), "$6880-01$bb$aa$az");
  EXPECT_FALSE(record.SubfieldsOutOfOrder() || record.SfdOrderChanged());
}

// A $w moves without being told.
TEST(SubfieldOrderOfRecords, MovingSubfieldWIsNotRecorded) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(Image({kNumber, "4500 $aa$wnne"}, "00000nz  a2200000n  4500"));
  EXPECT_EQ(Fields(record)[1], "4500 $wnne$aa");
  EXPECT_FALSE(record.SfdOrderChanged());
  EXPECT_EQ(record.FldsWithSfdsOutOfOrder(), "");
  EXPECT_TRUE(record.MarcRecordModified());
}

TEST(SubfieldOrderOfRecords, AddedSubfieldsWalkIntoPlace) {
  Utf8MarcRecordClass record;
  record.SetSfdOrder("B", "245", kNameTitle);
  Loaded(record, "24510$aa$tt$ff");
  record.FldFindFirst("245", "");
  record.SfdAdd("e", "e");
  EXPECT_EQ(Readable(record.FldText()), "$aa$ee$tt$ff");
  EXPECT_EQ(record.SfdText(), "e");
  record.SfdAdd("g", "g");  // of the title
  record.SfdFindFirst("a", "");
  record.SfdInsertAfter("g", "h");  // of the name
  EXPECT_EQ(Readable(record.FldText()), "$aa$gh$ee$tt$ff$gg");
  record.SfdFindFirst("f", "");
  record.SfdInsertBefore("b", "b");
  EXPECT_EQ(Readable(record.FldText()), "$aa$gh$bb$ee$tt$ff$gg");
  record.SfdFindFirst("a", "");
  record.SfdShiftRight();
  EXPECT_EQ(Readable(record.FldText()), "$gh$aa$bb$ee$tt$ff$gg");
  record.SfdShiftRight();  // no further than one place, which is too far already
  EXPECT_EQ(Readable(record.FldText()), "$gh$bb$aa$ee$tt$ff$gg");
}

// A $6 stands first even where the pattern has it elsewhere.
TEST(SubfieldOrderOfRecords, AnAddedLinkStandsFirst) {
  Utf8MarcRecordClass record;
  Loaded(record, "654  $aa$bb$2x");
  record.FldFindFirst("654", "");
  record.SfdAdd("6", "880-01");
  EXPECT_EQ(Readable(record.FldText()), "$6880-01$aa$bb$2x");
}

TEST(SubfieldOrderOfRecords, SettingWaitsUntilNoRecordIsHeld) {
  Utf8MarcRecordClass record;
  record.SetSfdOrder("M", "245", "ba");
  EXPECT_EQ(Loaded(record, "24510$aa$bb"), "24510$bb$aa");
  record.SetSfdOrder("B", "245", "ab");
  record.SetSfdOrder("B", "246", "ab");
  EXPECT_EQ(Loaded(record, "24510$aa$bb"), "24510$bb$aa");
  EXPECT_EQ(record.SfdMax(), 2);
  record.ClearSfdOrder("B");
  EXPECT_EQ(record.SfdMax(), 0);
}

// Each $a walks over all $b, which are behind the $t by then.
TEST(SubfieldOrderOfRecords, LongFieldsAreOrdered) {
  std::string given = "500  $tt";
  std::string wanted = "500  ";
  for (int i = 0; i < 1200; ++i) given += "$bb";
  for (int i = 0; i < 1200; ++i) given += "$aa", wanted += "$aa";
  for (int i = 0; i < 1200; ++i) wanted += "$bb";
  Utf8MarcRecordClass record;
  record.SetSfdOrder("B", "500", "6a{#bcdgq}{!tg}");
  EXPECT_EQ(Loaded(record, given), wanted + "$tt");
}

}  // namespace
}  // namespace cantorel
