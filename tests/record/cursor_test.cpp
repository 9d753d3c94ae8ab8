// The field and subfield cursors: where they stand at the ends, what searches
// find in both directions, and that tests move nothing.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

// Rows 0 to 5; row 2 is deleted.
void LoadSample(Record& record) {
  record.MarcRecordIn(Image({"001abc", "24510$aTitle", "500  $aGone", "650 0$aFugues$vScores",
                             "650 0$aCanons$y$xHistory$y1700", "70012$aBach, J. S.$tWerke"}));
  record.FldPointer(2);
  record.FldDelete();
}

void DeleteAll(Record& record) {
  for (std::int16_t row = 0; row < record.FieldCount(); ++row) {
    record.FldPointer(row);
    record.FldDelete();
  }
}

std::string Flags(const Record& record) {
  std::string flags;
  flags += record.FldAtTop() ? 'T' : '-';
  flags += record.FldAtBottom() ? 'B' : '-';
  flags += record.SfdAtTop() ? 't' : '-';
  flags += record.SfdAtBottom() ? 'b' : '-';
  return flags;
}

void ExpectField(const Record& record, std::int16_t row, std::string_view what) {
  EXPECT_EQ(record.FldPointer(), row) << what;
  EXPECT_EQ(record.FldWasFound(), row != -1) << what;
}

void ExpectSubfield(const Record& record, std::int16_t row, std::string_view what) {
  EXPECT_EQ(record.SfdPointer(), row) << what;
  EXPECT_EQ(record.SfdWasFound(), row != -1) << what;
}

TEST(FieldCursor, WalksBothWaysAndStaysOffTheEnds) {
  Record record;
  LoadSample(record);
  EXPECT_TRUE(record.FldMoveFirst(false));
  for (std::int16_t row = 1; row <= 5; ++row) {
    EXPECT_TRUE(record.FldMoveNext(false));
    ExpectField(record, row, "deleted rows too");
  }
  for (int again = 0; again < 2; ++again) {
    EXPECT_FALSE(record.FldMoveNext(true));
    ExpectField(record, -1, "past the end");
    EXPECT_FALSE(record.FldMovePrev(true));
    ExpectField(record, -1, "no way back");
  }
  EXPECT_TRUE(record.FldMoveLast(true));
  for (const std::int16_t row : {4, 3, 1, 0}) {
    EXPECT_TRUE(record.FldMovePrev(true));
    ExpectField(record, row, "live rows only");
  }
  EXPECT_FALSE(record.FldMovePrev(true));
  EXPECT_FALSE(record.FldMovePrev(true));
  ExpectField(record, -1, "before the start");
  EXPECT_EQ(record.FldNextTag() + record.FldPrevTag() + record.FldTag(), "");
}

TEST(FieldCursor, TopAndBottomDeliverTheirFieldAgain) {
  Record record;
  LoadSample(record);
  EXPECT_TRUE(record.FldMoveTop());
  ExpectField(record, 0, "top");
  EXPECT_EQ(Flags(record), "T---");
  EXPECT_EQ(record.FldTag(), "001") << "a field at the top can be read";
  EXPECT_TRUE(record.FldMoveNext(true));
  ExpectField(record, 0, "delivered");
  EXPECT_EQ(Flags(record), "----");
  EXPECT_TRUE(record.FldMoveBottom());
  EXPECT_EQ(Flags(record), "-B--");
  EXPECT_TRUE(record.FldMovePrev(true));
  ExpectField(record, 5, "delivered");
  record.FldMoveTop();
  EXPECT_FALSE(record.FldMovePrev(true)) << "only FldMoveNext delivers the top";
  record.FldMoveTop();
  record.FldPointer(4);
  EXPECT_EQ(Flags(record), "T---") << "a pointer write leaves the flags";
  EXPECT_TRUE(record.FldMoveNext(true));
  ExpectField(record, 0, "from the top after all");
}

TEST(FieldCursor, FindsNothingWhereNothingIs) {
  Record empty;
  Record gone;
  LoadSample(gone);
  DeleteAll(gone);
  for (Record* record : {&empty, &gone}) {
    const auto nothing = [&](bool found, std::string_view what) {
      EXPECT_FALSE(found) << what;
      ExpectField(*record, -1, what);
      EXPECT_EQ(Flags(*record), "----") << what;
    };
    nothing(record->FldMoveFirst(true), "first");
    nothing(record->FldMoveLast(true), "last");
    nothing(record->FldMoveNext(true), "next");
    nothing(record->FldMovePrev(true), "prev");
    nothing(record->FldMoveTop(), "top");
    nothing(record->FldMoveBottom(), "bottom");
    nothing(record->FldFindFirst("650", ""), "find first");
    nothing(record->FldFindLast("XXX", ""), "find last");
    nothing(record->FldFindNext("650"), "find next");
    nothing(record->FldFindPrev("650"), "find previous");
  }
  EXPECT_TRUE(gone.FldMoveFirst(false)) << "deleted rows can be walked";
  for (const std::int16_t row : {-1, 6, 32767, -32768}) {
    gone.FldPointer(row);
    ExpectField(gone, -1, "no such row");
  }
  gone.FldPointer(2);
  ExpectField(gone, 2, "a pointer does not ask whether its row is deleted");
}

TEST(FieldCursor, SearchesBothWaysWithWhatTheyRemember) {
  Record record;
  LoadSample(record);
  EXPECT_TRUE(record.FldFindFirst("6xx  7XX", "")) << "lists are put in upper case";
  ExpectField(record, 3, "first");
  EXPECT_TRUE(record.FldFindNext());
  EXPECT_TRUE(record.FldFindNext());
  ExpectField(record, 5, "third");
  EXPECT_FALSE(record.FldFindNext());
  ExpectField(record, -1, "no fourth");
  EXPECT_FALSE(record.FldFindPrev()) << "nothing goes on from not found";
  EXPECT_TRUE(record.FldFindLast("", "")) << "an empty list repeats the last";
  ExpectField(record, 5, "last");
  EXPECT_TRUE(record.FldFindPrev("650"));
  ExpectField(record, 4, "last 650");
  EXPECT_TRUE(record.FldFindPrev("", "fug"));
  ExpectField(record, 3, "by the beginning of the comparison form");
  EXPECT_FALSE(record.FldFindNext()) << "the text is remembered";
  EXPECT_TRUE(record.FldFindFirst("650", "")) << "a first search takes an empty text as given";
  ExpectField(record, 3, "any text");
  EXPECT_FALSE(record.FldFindFirst("650", "fugues and"));
  EXPECT_FALSE(record.FldFindFirst("500", "")) << "a deleted field is not found";
  record.MarcRecordIn(Image({"001abc", "24510$aTitle that is long enough"}));
  EXPECT_FALSE(record.FldFindFirst("", "")) << "a load forgets the list";
  ExpectField(record, -1, "no list at all");
}

TEST(FieldCursor, FindNextFromTheTopGoesToTheSecondField) {
  Record record;
  LoadSample(record);
  record.FldMoveTop();
  EXPECT_TRUE(record.FldFindNext("XXX"));
  ExpectField(record, 1, "the flag is cleared first");
}

TEST(FieldCursor, TestsLookWithoutMoving) {
  Record record;
  LoadSample(record);
  ASSERT_TRUE(record.FldFindFirst("650", ""));
  record.SfdMoveLast(true);
  EXPECT_TRUE(record.FldTestNext("650"));
  EXPECT_FALSE(record.FldTestNext("245"));
  EXPECT_TRUE(record.FldTestPrev("245"));
  EXPECT_FALSE(record.FldTestPrev("7"));
  EXPECT_TRUE(record.FldTestFirst("7"));
  EXPECT_TRUE(record.FldTestLast("001"));
  EXPECT_FALSE(record.FldTestLast("500"));
  ExpectField(record, 3, "unmoved");
  EXPECT_EQ(record.SfdPointer(), 1) << "the subfield neither";
  EXPECT_TRUE(record.FldFindNext());
  ExpectField(record, 4, "the earlier search goes on");
  record.FldMoveNext(true);
  record.FldMoveNext(true);
  EXPECT_TRUE(record.FldTestFirst("245"));
  ExpectField(record, -1, "not found stays not found");
}

TEST(FieldCursor, TestNextKeepsTheTextOfTheSearch) {
  Record record;
  LoadSample(record);
  ASSERT_TRUE(record.FldFindFirst("650", "f"));
  EXPECT_FALSE(record.FldTestNext("650")) << "Canons does not begin so";
  EXPECT_TRUE(record.FldTestFirst("650"));
  EXPECT_TRUE(record.FldTestNext("650")) << "a first search has dropped the text";
}

TEST(TagCompare, PatternsAgreeAsFarAsTheyGo) {
  const struct {
    std::string_view list;
    std::string_view tag;
    bool agrees;
  } cases[] = {
      {"1XX", "100", true},         {"1XX 7", "700", true}, {"6", "655", true},
      {"X50", "650", true},         {"X50", "651", false},  {"", "100", false},
      {"   ", "100", false},        {"  100", "100", true}, {"100 110 130", "130", true},
      {"100 110 130", "13", false}, {"1xx", "100", false},  {"650", "6X0", true},
      {"6500", "650", false},       {"XXX", "", false},     {"245", "2450", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Record::TagCompare(c.list, c.tag), c.agrees) << c.list << " / " << c.tag;
  }
}

TEST(CurrentField, NeighboursIndicatorsAndMarks) {
  Record record;
  LoadSample(record);
  record.FldPointer(3);
  EXPECT_EQ(record.FldNextTag(), "650");
  EXPECT_EQ(record.FldPrevTag(), "500") << "a deleted neighbour is one";
  record.FldInd1("27");
  record.FldInd2("");
  EXPECT_EQ(record.FldInd(), "2 ");
  EXPECT_EQ(record.FldInd1() + record.FldInd2(), "2 ");
  EXPECT_EQ(Readable(record.FldText()), "$aFugues$vScores");
  record.FldPointer(0);
  record.FldInd1("1");
  EXPECT_EQ(record.FldInd() + record.FldInd1() + record.FldInd2(), "");
  EXPECT_TRUE(record.FldIsControl());
  EXPECT_EQ(record.FldText(), "abc");
  record.FldBoolean1(true);
  EXPECT_TRUE(record.FldBoolean1());
  EXPECT_FALSE(record.FldBoolean2());
  record.FldPointer(-1);
  record.FldBoolean1(true);
  record.FldInd1("1");
  EXPECT_FALSE(record.FldBoolean1() || record.FldIsControl() || record.FldDeleted());
}

TEST(CurrentField, TagOfAnAlternateGraphicRepresentation) {
  Record record;
  record.MarcRecordIn(
      Image({"001abc", "880  $6245-01/$1$aX", "880  $aY", "880  $624", "24510$6880-01$aX"}));
  const std::string_view expected[] = {"001", "245", "880", "24", "245"};
  record.FldMoveTop();
  for (std::string_view tag : expected) {
    ASSERT_TRUE(record.FldMoveNext(true));
    EXPECT_EQ(record.FldTagTrue(), tag);
  }
  record.FldPointer(-1);
  EXPECT_EQ(record.FldTagTrue(), "");
}

// --- Subfields ---------------------------------------------------------------

TEST(SubfieldCursor, WalksBothWaysAndStaysOffTheEnds) {
  Record record;
  LoadSample(record);
  record.FldPointer(4);
  record.SfdPointer(1);
  ASSERT_EQ(record.SfdCode(), "x");
  record.SfdDelete();
  EXPECT_TRUE(record.SfdMoveFirst(true));
  EXPECT_EQ(record.SfdText(), "Canons");
  EXPECT_TRUE(record.SfdMoveNext(true));
  EXPECT_EQ(record.SfdText(), "1700") << "past the deleted one";
  EXPECT_TRUE(record.SfdMovePrev(false));
  EXPECT_TRUE(record.SfdDeleted());
  EXPECT_TRUE(record.SfdMoveLast(true));
  EXPECT_TRUE(record.SfdMovePrev(true));
  EXPECT_EQ(record.SfdText(), "Canons");
  for (int again = 0; again < 2; ++again) {
    EXPECT_FALSE(record.SfdMovePrev(true));
    ExpectSubfield(record, -1, "before the start");
    EXPECT_TRUE(record.SfdDeleted()) << "none counts as deleted";
    EXPECT_FALSE(record.SfdMoveNext(true));
    ExpectSubfield(record, -1, "no way back");
  }
}

TEST(SubfieldCursor, TopHidesItsSubfieldUntilItIsDelivered) {
  Record record;
  LoadSample(record);
  record.FldPointer(3);
  EXPECT_TRUE(record.SfdMoveTop());
  EXPECT_EQ(Flags(record), "--t-");
  EXPECT_EQ(record.SfdCode() + record.SfdText(), "");
  EXPECT_TRUE(record.SfdMoveNext(true));
  EXPECT_EQ(record.SfdCode(), "a");
  EXPECT_TRUE(record.SfdMoveBottom());
  EXPECT_EQ(Flags(record), "---b");
  EXPECT_EQ(record.SfdCode(), "v") << "the bottom does not hide it";
  EXPECT_TRUE(record.SfdMovePrev(true));
  EXPECT_EQ(record.SfdCode(), "v");
  EXPECT_EQ(Flags(record), "----");
  record.SfdDelete();
  record.SfdPointer(0);
  record.SfdMoveBottom();
  record.SfdMovePrev(true);
  EXPECT_TRUE(record.SfdDeleted()) << "from the bottom, deleted or not";
}

TEST(SubfieldCursor, RowZeroCanOnlyBeEnteredFromItsEnd) {
  Record record;
  record.FldAdd("650", " 0", Text("$aFugues$vScores"));
  record.FldPointer(0);
  const auto nothing = [&](bool found, std::string_view what) {
    EXPECT_FALSE(found) << what;
    ExpectSubfield(record, -1, what);
  };
  EXPECT_TRUE(record.SfdMoveLast(true));
  EXPECT_EQ(record.SfdCode(), "v");
  nothing(record.SfdMovePrev(true), "previous");
  nothing(record.SfdMoveFirst(true), "first");
  record.SfdPointer(0);
  ExpectSubfield(record, 0, "a pointer may be set");
  nothing(record.SfdMoveNext(true), "next");
  nothing(record.SfdMoveTop(), "top");
  EXPECT_TRUE(record.SfdMoveBottom());
  nothing(record.SfdFindFirst("a", ""), "find");
  EXPECT_TRUE(record.SfdFindLast("v", ""));
  nothing(record.SfdFindLast("a", ""), "the way to $a is barred");
}

TEST(SubfieldCursor, WithoutAFieldThereIsNone) {
  Record record;
  LoadSample(record);
  record.FldPointer(4);
  record.SfdFindFirst("a", "");
  ASSERT_TRUE(record.SfdWasFound());
  record.FldPointer(-1);
  EXPECT_FALSE(record.SfdFindFirst("", "")) << "a search by remembered codes does not run";
  EXPECT_FALSE(record.SfdFindNext("a"));
  ExpectSubfield(record, -1, "a search by codes of its own runs and finds nothing");
  for (const bool found :
       {record.SfdMoveFirst(true), record.SfdMoveLast(true), record.SfdMoveNext(true),
        record.SfdMovePrev(true), record.SfdMoveTop(), record.SfdMoveBottom()}) {
    EXPECT_FALSE(found);
  }
  record.SfdBoolean1(true);
  EXPECT_FALSE(record.SfdBoolean1() || record.Sfdboolean2());
  EXPECT_TRUE(record.SfdDeleted());
  record.FldPointer(4);
  for (const std::int16_t row : {-1, 4, 32767}) {
    record.SfdPointer(row);
    ExpectSubfield(record, -1, "no such row");
  }
}

TEST(SubfieldCursor, SearchesByCodesAndText) {
  Record record;
  LoadSample(record);
  record.FldPointer(4);
  Record fresh;
  LoadSample(fresh);
  fresh.FldPointer(4);
  EXPECT_FALSE(fresh.SfdFindFirst("", "")) << "no codes yet";
  ExpectSubfield(fresh, 0, "and nothing done");
  EXPECT_TRUE(record.SfdFindFirst("yx", ""));
  EXPECT_EQ(record.SfdCode(), "x") << "whichever stands first";
  EXPECT_TRUE(record.SfdFindNext());
  EXPECT_EQ(record.SfdCode(), "y");
  EXPECT_FALSE(record.SfdFindNext());
  ExpectSubfield(record, -1, "no third");
  EXPECT_TRUE(record.SfdFindLast("", "")) << "the codes are remembered";
  EXPECT_TRUE(record.Sfdfindprev("", "hist"));
  EXPECT_EQ(record.SfdText(), "History");
  EXPECT_FALSE(record.SfdFindFirst("xy", "18"));
  EXPECT_TRUE(record.SfdFindFirst("xy", "17"));
}

TEST(SubfieldCursor, TestsLookWithoutMoving) {
  Record record;
  LoadSample(record);
  record.FldPointer(4);
  ASSERT_TRUE(record.SfdFindFirst("x", ""));
  EXPECT_TRUE(record.SfdTestNext("y"));
  EXPECT_FALSE(record.SfdTestNext("a"));
  EXPECT_TRUE(record.SfdTestPrev("a"));
  EXPECT_TRUE(record.SfdTestFirst("y"));
  EXPECT_FALSE(record.SfdTestFirst("z"));
  ExpectSubfield(record, 1, "unmoved");
  EXPECT_FALSE(record.SfdFindNext()) << "no second $x: the codes are back";
}

TEST(ExtractSubfield, GivesTheTextAndWhereToGoOn) {
  const struct {
    std::string_view field;
    std::string_view code;
    std::int32_t start;
    std::string_view text;
    std::int32_t next;
  } cases[] = {
      {"$ax  $by", "a", 1, "x", 3},    {"$ax  $by", "b", 1, "y", 8}, {"$ax$ay", "a", 3, "y", 6},
      {"$ax$ay", "a", 6, "", 0},       {"$ax", "", 1, "", 0},        {"$ax", "b", 1, "", 0},
      {"xx: y $az", "xx:", 1, "y", 4}, {"$ax", "a", -5, "x", 3},     {"$ax", "a", 99, "", 0},
      {"$a", "a", 1, "", 3},
  };
  for (const auto& c : cases) {
    std::string text = "left over";
    EXPECT_EQ(Record::ExtractSubfield(Text(c.field), c.code, text, c.start), c.next) << c.field;
    EXPECT_EQ(text, c.text) << c.field;
  }
  std::string own = Text("$ax$by");
  EXPECT_EQ(Record::ExtractSubfield(own, "b", own, 1), 6);
  EXPECT_EQ(own, "y") << "the result may replace what is searched";
}

TEST(CertainSubfields, WantedLessRefused) {
  Record record;
  EXPECT_EQ(record.FldTextWithOnlyCertainSubfields("", ""), "");
  LoadSample(record);
  record.FldPointer(0);
  EXPECT_EQ(record.FldTextWithOnlyCertainSubfields("x", "a"), "abc") << "a control field is whole";
  record.FldPointer(4);
  const auto only = [&](std::string_view wanted, std::string_view refused) {
    return Readable(record.FldTextWithOnlyCertainSubfields(wanted, refused));
  };
  EXPECT_EQ(only("", ""), "$aCanons$xHistory$y1700");
  EXPECT_EQ(only("", "ax"), "$y1700");
  EXPECT_EQ(only("ya", "y"), "$aCanons");
  record.SfdPointer(0);
  record.SfdDelete();
  EXPECT_EQ(only("ax", ""), "$xHistory");
}

}  // namespace
}  // namespace cantorel
