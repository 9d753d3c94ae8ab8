// Adding, changing and marking subfields.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

class SubfieldEditing : public testing::Test {
 protected:
  // Subfields stay where they are put.
  void SetUp() override {
    record_.TestSubfieldOrder(false);
    record_.MarcRecordIn(Image({"001x", "24510$aTitle$bx /$cname", "500  $aNote of some length"}));
  }

  void Begin(std::string_view tag, std::string_view text) { record_.FldAdd(tag, "10", Text(text)); }
  void GoTo(std::string_view code) { ASSERT_TRUE(record_.SfdFindFirst(code, "")) << code; }
  std::string Field() { return Readable(record_.FldText()); }

  Utf8MarcRecordClass record_;
};

TEST_F(SubfieldEditing, Make) {
  struct Case {
    std::string_view code, text, result, code_after;
  };
  const Case cases[] = {{"a", "x", "$ax", "a"},   {"ab", "x", "$ax", "a"}, {"$ab", "x", "$ax", "a"},
                        {" a ", "x", "$ax", "a"}, {"ab", "", "", "a"},     {"", "x", "", ""},
                        {"  ", "x", "", ""},      {"a", " ", "$a ", "a"}};
  for (const Case& c : cases) {
    std::string code = Text(c.code);
    EXPECT_EQ(Readable(Utf8MarcRecordClass::SfdMake(code, std::string(c.text))), c.result);
    EXPECT_EQ(code, c.code_after);
  }
  EXPECT_EQ(Readable(Utf8MarcRecordClass::SfdDelim("abc")), "$a");
  EXPECT_EQ(Readable(Utf8MarcRecordClass::SfdDelim("")), "$");
}

TEST_F(SubfieldEditing, AddAppends) {
  Begin("500", "$aNote");
  record_.SfdAdd("b", " x ");
  EXPECT_EQ(Field(), "$aNote$bx");
  EXPECT_EQ(record_.SfdPointer(), 1);
  record_.SfdAdd("c", "");
  record_.SfdAdd("d", "  ");
  EXPECT_EQ(Field(), "$aNote$bx") << "an empty one is not added behind another";
  EXPECT_FALSE(record_.MarcRecordModified());
  record_.SfdAdd("ab", "y");
  record_.SfdAdd("", "z");
  EXPECT_EQ(Field(), "$aNote$bx$9y$9z");
  EXPECT_TRUE(record_.MarcRecordModified());
  record_.SfdAdd("6", "880-01");
  EXPECT_EQ(Field(), "$6880-01$aNote$bx$9y$9z") << "a $6 goes first";
}

TEST_F(SubfieldEditing, AddBeginsAfreshWhenAllAreDeleted) {
  Begin("500", "$aNote$bx");
  record_.FldText("");
  record_.SfdAdd("c", "new");
  EXPECT_EQ(Field(), "$cnew");
  EXPECT_EQ(record_.SfdPointer(), 0);
  EXPECT_FALSE(record_.SfdMoveNext(false));
  record_.FldText("");
  record_.SfdAdd("6", "880-01");
  EXPECT_EQ(Field(), "$6880-01");
}

TEST_F(SubfieldEditing, ControlFieldTakesNoSubfields) {
  record_.FldFindFirst("001", "");
  record_.SfdAdd("a", "y");
  record_.SfdMoveLast(true);
  record_.SfdInsertAfter("a", "y");
  record_.SfdInsertBefore("a", "y");
  record_.SfdChange("a", "y");
  EXPECT_EQ(Field(), "x");
  EXPECT_TRUE(record_.FldChanged());
  EXPECT_EQ(record_.SfdCode(), "");
}

TEST_F(SubfieldEditing, FirstRowTakesA6) {
  record_.MarcRecordIn(Image({"24510$aTitle of some length, long enough"}));
  record_.FldPointer(0);
  record_.SfdAdd("6", "880-01");
  EXPECT_EQ(Field(), "$6880-01$aTitle of some length, long enough");
}

TEST_F(SubfieldEditing, InsertGoesBesideTheCurrentOne) {
  Begin("245", "$aTitle$cname");
  GoTo("c");
  record_.SfdInsertBefore("b", " rest ");
  EXPECT_EQ(record_.SfdText(), "rest");
  record_.SfdInsertAfter("p", "x");
  record_.SfdInsertAfter("", "x");
  record_.SfdInsertAfter("q", "");
  GoTo("a");
  record_.SfdInsertBefore("k", "first");
  GoTo("c");
  record_.SfdInsertAfter("\x1F", "last");
  EXPECT_EQ(Field(), "$kfirst$aTitle$brest$px$cname$9last") << "no code breaks the field";
  record_.SfdPointer(-1);
  record_.SfdInsertAfter("b", "x");
  EXPECT_EQ(Field(), "$kfirst$aTitle$brest$px$cname$9last") << "beside none";

  Begin("010", "$a  85001 ");
  record_.SfdInsertAfter("b", "  x ");
  EXPECT_EQ(Field(), "$a  85001 $b  x ") << "blanks count in a 010";
}

TEST_F(SubfieldEditing, ChangeRebuildsTheField) {
  record_.FldFindFirst("245", "");
  GoTo("b");
  record_.SfdText(" y ");
  EXPECT_EQ(Field(), "$aTitle$by$cname");
  EXPECT_EQ(record_.SfdText(), "y");
  record_.SfdCode("n");
  EXPECT_EQ(Field(), "$aTitle$ny$cname");
  record_.SfdText(Text("$pz"));
  EXPECT_EQ(Field(), "$aTitle$pz$cname");
  record_.SfdChange("\x1F", "w");
  EXPECT_EQ(Field(), "$aTitle$9w$cname");
  record_.SfdChange("b", "");
  EXPECT_EQ(Field(), "$aTitle$cname");
  EXPECT_EQ(record_.SfdPointer(), 1);
  EXPECT_EQ(record_.SfdText(), "name") << "the cursor keeps its number";
  record_.SfdChange("c", Text("two$dthree"));
  EXPECT_EQ(Field(), "$aTitle$ctwo$dthree");
}

TEST_F(SubfieldEditing, DeletedStaysDeleted) {
  record_.FldFindFirst("245", "");
  GoTo("b");
  record_.SfdDelete();
  EXPECT_TRUE(record_.SfdDeleted());
  record_.SfdUndelete();
  EXPECT_TRUE(record_.SfdDeleted());
  EXPECT_EQ(Field(), "$aTitle$cname");
  EXPECT_TRUE(record_.FldChanged());
  GoTo("a");
  record_.SfdUndelete();
  EXPECT_EQ(Field(), "$cname") << "bringing back deletes";
}

TEST_F(SubfieldEditing, DeletingADesignationKeepsItsEnding) {
  struct Case {
    std::string_view tag, text, held;
  };
  const Case cases[] = {{"245", "$aTitle$h[sound recording] /$cname", "$aTitle /$cname"},
                        {"245", "$aTitle /$h[sound recording] /$cname", "$aTitle /$cname"},
                        {"245", "$aTitle$hmap :$bx", "$aTitle :$bx"},
                        {"245", "$aTitle$h[map]", "$aTitle."},
                        {"245", "$aTitle 2$h[map]", "$aTitle 2."},
                        {"245", "$aTitle?$h[map]", "$aTitle?"},
                        {"245", "$h[map] /$cname", "$cname"},
                        {"830", "$aSeries$h[map] ;$v1", "$aSeries$v1"},
                        {"740", "$aTitle$h[map] /", "$aTitle"}};
  for (const Case& c : cases) {
    Begin(c.tag, c.text);
    GoTo("h");
    record_.SfdDelete(true);
    EXPECT_EQ(Field(), c.held) << c.text;
    EXPECT_TRUE(record_.SfdDeleted());
  }
  Begin("245", "$aTitle$h[map] /$cname");
  GoTo("h");
  record_.SfdDelete(false);
  EXPECT_EQ(Field(), "$aTitle$cname") << "without care";
}

TEST_F(SubfieldEditing, ShiftExchangesNeighbours) {
  record_.IgnoreSfdOrder(true);
  Begin("500", "$aone$atwo$athree");
  record_.FldChanged(false);
  record_.SfdPointer(1);
  record_.SfdShiftLeft();
  EXPECT_EQ(Field(), "$atwo$aone$athree");
  record_.SfdShiftLeft();
  EXPECT_EQ(Field(), "$atwo$aone$athree") << "at the end";
  EXPECT_FALSE(record_.FldChanged()) << "a shift alone is no change";
  record_.SfdPointer(0);
  record_.SfdShiftRight();
  EXPECT_EQ(Field(), "$atwo$athree$aone");
  std::string backwards;
  for (record_.SfdMoveBottom(); record_.SfdMovePrev(true);) backwards += record_.SfdText() + ' ';
  EXPECT_EQ(backwards, "one three two ");
}

}  // namespace
}  // namespace cantorel
