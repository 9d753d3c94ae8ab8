// Adding, rebuilding and marking fields of a record without a field order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "marc_text.h"
#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using testing::ElementsAre;

class FieldEditing : public testing::Test {
 protected:
  void SetUp() override {
    record_.MarcRecordIn(
        Image({"001x", "24510$aTitle$cJ. S. Bach.", "500  $aNote", "650 0$aFlute music"}));
  }

  void GoTo(std::string_view tag) { ASSERT_TRUE(record_.FldFindFirst(tag, "")); }
  void Add(std::string_view tag, std::string_view indicators, std::string_view text) {
    record_.FldAdd(tag, indicators, Text(text));
  }
  // The current field.
  std::string Field() { return record_.FldTag() + record_.FldInd() + Readable(record_.FldText()); }

  Utf8MarcRecordClass record_;
};

TEST_F(FieldEditing, AddRefusesTagsThatAreNone) {
  GoTo("500");
  for (std::string_view tag : {"24", "2X5", "", "2450", " 24", "24\x1F"}) {
    Add(tag, "10", "$ax");
    EXPECT_EQ(record_.FldTag(), "500") << tag << ": the cursor stays";
    EXPECT_EQ(record_.FieldCount(), 4) << tag;
    record_.FldInsertAfter(tag, "10", "x");
    EXPECT_EQ(record_.FieldCount(), 4) << tag;
  }
}

TEST_F(FieldEditing, AddSettlesIndicatorsAndText) {
  const std::pair<std::vector<std::string_view>, std::string_view> cases[] = {
      {{"650", "1", "$ax"}, "6501 $ax"},
      {{"650", "xy", "$ax"}, "650  $ax"},
      {{"650", "123", "x"}, "65012$ax"},
      {{"650", "", "x$by"}, "650  $ax$by"},
      {{"003", "12", "$aDLC"}, "003DLC"},
      {{"245", "10", "$6245-01$ax"}, "88010$6245-01$ax"},
      {{"880", "10", "$6880-01$ax"}, "88010$6880-01$ax"},
      {{"500", "  ", ""}, "500  "}};
  for (const auto& [given, held] : cases) {
    Add(given[0], given[1], given[2]);
    EXPECT_EQ(Field(), held);
    EXPECT_TRUE(record_.FldChanged());
  }
  record_.ForceInvalidIndicatorValues(false);
  Add("650", "x", "$ay");
  EXPECT_EQ(Field(), "650x $ay");
}

TEST_F(FieldEditing, ARecordHasOne008) {
  const std::string text = "850101s1984    ncuuua         n  | eng d";
  Add("008", "", text);
  const std::string other = "900101s1990    xxuuua         n  | ger d";
  GoTo("500");
  Add("008", "", other);
  EXPECT_EQ(record_.FldTag(), "500") << "nothing was added";
  record_.FldInsertAfter("008", "", "99");
  EXPECT_EQ(record_.FldTag(), "500");
  GoTo("008");
  EXPECT_EQ(record_.FldText(), "99" + other.substr(2));
  EXPECT_FALSE(record_.FldFindNext("", ""));
  EXPECT_EQ(record_.Get008Value(35, 3), "ger");

  GoTo("008");
  record_.FldDelete();
  Add("008", "", text);
  EXPECT_EQ(Field(), "008" + text) << "a deleted one is none";
  EXPECT_EQ(record_.Get008Value(35, 3), "eng");
  record_.FldText(other);
  EXPECT_EQ(record_.Get008Value(35, 3), "ger") << "rebuilt";
  record_.FldTag("500");
  EXPECT_EQ(record_.Get008Value(0, 1), "") << "there is none left";
}

TEST_F(FieldEditing, InsertGoesBesideTheCurrentField) {
  GoTo("500");
  record_.FldInsertAfter("501", "  ", "after");
  EXPECT_EQ(Field(), "501  $aafter");
  GoTo("500");
  record_.FldInsertBefore("502", "12", Text("$abefore"));
  GoTo("001");
  record_.FldInsertBefore("003", "xx", "DLC");
  GoTo("650");
  record_.FldInsertAfter("651", "", "last");
  for (std::string_view indicators : {"1", "123", "x ", "|1"}) {
    record_.FldInsertAfter("500", indicators, "refused");
  }
  record_.FldPointer(-1);
  record_.FldInsertAfter("999", "  ", "nowhere");
  EXPECT_THAT(Fields(record_), ElementsAre("003DLC", "001x", "24510$aTitle$cJ. S. Bach.",
                                           "50212$abefore", "500  $aNote", "501  $aafter",
                                           "650 0$aFlute music", "651  $alast", "999  $anowhere"));
  std::string backwards;
  for (record_.FldMoveBottom(); record_.FldMovePrev(true);) backwards += record_.FldTag() + " ";
  EXPECT_EQ(backwards, "999 651 650 501 500 502 245 001 003 ");
}

TEST_F(FieldEditing, RebuildKeepsTheRow) {
  GoTo("500");
  const std::int16_t row = record_.FldPointer();
  record_.FldText("a");
  EXPECT_EQ(Field(), "500  $aa");
  record_.FldInd("1");
  EXPECT_EQ(Field(), "5001 $aa");
  record_.FldInd2("");
  record_.FldInd1("2x");
  EXPECT_EQ(Field(), "5002 $aa");
  record_.FldTag("5");
  EXPECT_EQ(Field(), "5002 $aa") << "no tag";
  record_.FldTag("505");
  EXPECT_EQ(Field(), "5052 $aa");
  record_.FldChange("", "99", Text("$bmore"));
  EXPECT_EQ(Field(), "5052 $aa$bmore") << "without a tag the text is added to";
  record_.FldReset("001", "11", Text("$anumber"));
  EXPECT_EQ(Field(), "001number");
  EXPECT_TRUE(record_.FldIsControl());
  record_.FldReset("245", "10", "title");
  EXPECT_EQ(Field(), "24510$atitle");
  EXPECT_EQ(record_.FldPointer(), row);
  EXPECT_TRUE(record_.FldChanged());
  record_.FldChangedClearAll();
  EXPECT_FALSE(record_.FldChanged());
  record_.FldPointer(-1);
  record_.FldText("x");
  record_.FldReset("500", "", "x");
  record_.FldChanged(true);
  EXPECT_EQ(record_.FieldCount(), 4) << "without a current field nothing happens";
}

// What is handed in may be a view of the very field that is rewritten, or of
// the table that grows.
TEST_F(FieldEditing, ArgumentsMayBeViewsOfTheRecord) {
  GoTo("245");
  for (int i = 0; i < 200; ++i) {
    record_.SfdPointer(0);
    record_.FldAdd(record_.FldTagView(), record_.FldIndView(), record_.SfdTextView());
    record_.FldInsertAfter(record_.FldTagView(), record_.FldIndView(), record_.SfdTextView());
    record_.SfdAdd("b", record_.SfdTextView());
    record_.SfdChange(record_.SfdCodeView(), record_.SfdTextView());
    record_.FldReset(record_.FldTagView(), record_.FldIndView(), record_.SfdTextView());
    ASSERT_EQ(Field(), "24510$aTitle") << i;
  }
}

TEST_F(FieldEditing, PreservesLeadingNumericSubfields) {
  record_.PreserveLeadingNumericSubfields(true);
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"$ax", "$3part$6880-01$ax"},
      {"$6880-02$ax", "$3part$6880-02$ax"},
      {"$ax$3other", "$6880-01$ax$3other"}};
  record_.TestSubfieldOrder(false);
  for (const auto& [text, held] : cases) {
    Add("500", "  ", "$6880-01$3part$aold$0id");
    record_.FldText(Text(text));
    EXPECT_EQ(Readable(record_.FldText()), held);
  }
}

TEST_F(FieldEditing, DeletedStaysDeleted) {
  GoTo("500");
  record_.FldDelete();
  record_.FldUndelete();
  EXPECT_TRUE(record_.FldDeleted());
  GoTo("245");
  EXPECT_TRUE(record_.FldMoveNext(false));
  EXPECT_EQ(record_.FldTag(), "500") << "it keeps its place";
  EXPECT_FALSE(record_.FldFindFirst("500", ""));
}

TEST_F(FieldEditing, ShiftExchangesInnerNeighbours) {
  GoTo("500");
  record_.FldShiftUp();
  EXPECT_EQ(record_.FldTag(), "500");
  EXPECT_THAT(Fields(record_), ElementsAre("001x", "500  $aNote", "24510$aTitle$cJ. S. Bach.",
                                           "650 0$aFlute music"));
  const std::vector<std::string> before = Fields(record_);
  for (std::string_view tag : {"500", "650"}) {
    GoTo(tag);
    EXPECT_THROW(record_.FldShiftUp(), MarcClassError) << tag << " would go to an end";
    EXPECT_EQ(record_.FldTag(), tag);
  }
  GoTo("245");
  EXPECT_THROW(record_.FldShiftDown(), MarcClassError);
  EXPECT_EQ(record_.FldTag(), "245");
  GoTo("650");
  record_.FldShiftDown();
  GoTo("001");
  record_.FldShiftUp();
  EXPECT_EQ(Fields(record_), before);
  GoTo("500");
  record_.FldShiftDown();
  EXPECT_THAT(Fields(record_), ElementsAre("001x", "24510$aTitle$cJ. S. Bach.", "500  $aNote",
                                           "650 0$aFlute music"));
}

TEST(IdentifySubfield6Pieces, SplitsALink) {
  struct Case {
    std::string_view text, tag, occurrence, rest;
  };
  const Case cases[] = {{"245-3/$1", "245", "03", "/$1"},
                        {"880-01", "880", "01", ""},
                        {"880-123 r", "880", "123", "/r"},
                        {"880", "880", "00", ""},
                        {"88", "88", "00", ""},
                        {"", "", "00", ""},
                        {"880-/r", "880", "00", ""},
                        {"100-02/(N/r", "100", "02", "/(N/r"}};
  for (const Case& c : cases) {
    std::string tag, occurrence, rest;
    Utf8MarcRecordClass::IdentifySubfield6Pieces(c.text, tag, occurrence, rest);
    EXPECT_EQ(tag, c.tag) << c.text;
    EXPECT_EQ(occurrence, c.occurrence) << c.text;
    EXPECT_EQ(rest, c.rest) << c.text;
  }
}

TEST_F(FieldEditing, InsertsAGeneralMaterialDesignation) {
  struct Case {
    std::string_view tag, text, h, held;
  };
  const Case cases[] = {
      {"245", "$aTitle :$brest /$cname", "sound recording",
       "$aTitle$h[sound recording] :$brest /$cname"},
      {"245", "$aTitle /$cname", "[map]", "$aTitle$h[map] /$cname"},
      {"245", "$aTitle$n1,$pPart /$cname", "map", "$aTitle$n1,$pPart$h[map] /$cname"},
      {"245", "$aTitle", "map", "$aTitle$h[map]."},
      {"245", "$aTitle$bx", "map", "$aTitle$h[map]$bx"},
      {"245", "$aTitle.", "map (x)", "$aTitle$h[map (x)]."},
      {"245", "$aTitle$hold", "map", "$aTitle$hold"}};
  for (const Case& c : cases) {
    Add(c.tag, "10", c.text);
    record_.FldInsertSubfieldH(c.h);
    EXPECT_EQ(Readable(record_.FldText()), c.held);
  }
  // Rows of the subfields do not follow their order here.
  record_.TestSubfieldOrder(false);
  Add("245", "10", "$aTitle$nx$cname");
  record_.SfdFindFirst("n", "");
  record_.SfdDelete();
  record_.SfdMoveFirst(true);
  record_.SfdInsertBefore("k", "Ahead");
  record_.SfdFindFirst("c", "");
  record_.SfdInsertBefore("p", "Part :");
  record_.FldInsertSubfieldH("map");
  EXPECT_EQ(Readable(record_.FldText()), "$kAhead$aTitle$pPart$h[map] :$cname");
}

}  // namespace
}  // namespace cantorel
