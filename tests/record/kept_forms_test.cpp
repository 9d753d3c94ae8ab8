// What the record keeps for speed answers as if it were made afresh: comparison
// forms made when first asked for are those of the time of adding, and a field
// text kept whole is that of its subfields.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "marc_text.h"
#include "record/marc_class_error.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

std::string RecordImage() {
  return Image({"001ocm1", "008850101s1984    ncuuua         n  | eng d", "010  $a  85001 ",
                "1001 $aBach, J. S.,$d1685-", "24514$6880-01$aThe sea$hold /$cby, X",
                "440 4$aThe series, new", "500  $aa@b-c, d$ba@b, c", "650 0$aFlute music"});
}

// The comparison forms of all subfields, deleted ones included.
std::string Norms(Record& record) {
  std::string norms;
  for (std::int16_t row = 0; row < record.FieldCount(); ++row) {
    record.FldPointer(row);
    for (std::int16_t subfield = 0;; ++subfield) {
      record.SfdPointer(subfield);
      if (!record.SfdWasFound()) break;
      norms += record.SfdNorm() + '|' + record.SfdNormNaco() + '\n';
    }
  }
  return norms;
}

// Asks for all comparison forms and goes back to where the cursors stood.
void MakeAllNorms(Record& record) {
  const std::int16_t field = record.FldPointer();
  const std::int16_t subfield = record.SfdPointer();
  Norms(record);
  record.FldPointer(field);
  record.SfdPointer(subfield);
}

// A field text put together from its subfields, without the class's short cut.
std::string TextOfSubfields(Record& record) {
  std::string text;
  for (bool found = record.SfdMoveFirst(true); found; found = record.SfdMoveNext(true)) {
    text += record.SfdCode().empty() ? "" : '\x1F' + record.SfdCode();
    text += record.SfdText();
  }
  return text;
}

using Edit = std::function<void(Record&)>;

// One edit of any kind, the same for every record that it is applied to.
Edit RandomEdit(std::mt19937& random) {
  static constexpr std::string_view kTexts[] = {"The sea, the storm",
                                                "a@b-c",
                                                "Bach, J. S., Sir",
                                                "1900-",
                                                "x",
                                                "",
                                                "  ",
                                                "880-01",
                                                "[map] :",
                                                "Dvo\u030Cr\u0301k",
                                                "\xA1\xB2, \xFF"};
  static constexpr std::string_view kFieldTexts[] = {
      "$aThe sea, new", "$6880-02$aA, b$bc@d", "plain, text", "", "$aX$h[map] /$cname", "$a$bx",
      "$a y $ z"};
  static constexpr std::string_view kTags[] = {"100", "245", "440", "500", "650", "003", "24"};
  static constexpr std::string_view kCodes[] = {"a", "b", "6", "h", "d", "", "ab"};
  const auto pick = [&](const auto& list) { return list[random() % std::size(list)]; };
  const std::string_view tag = pick(kTags);
  const std::string_view code = pick(kCodes);
  const std::string_view text = pick(kTexts);
  const std::string field_text = Text(pick(kFieldTexts));
  const std::string_view indicators = random() % 2 == 0 ? "14" : " 0";
  const bool flag = random() % 2 == 0;
  switch (random() % 22) {
    case 0:
      return [=](Record& r) { r.FldAdd(tag, indicators, field_text, flag); };
    case 1:
      return [=](Record& r) { r.FldInsertAfter(tag, indicators, field_text); };
    case 2:
      return [=](Record& r) { r.FldInsertBefore(tag, indicators, field_text); };
    case 3:
      return [=](Record& r) { r.FldText(field_text); };
    case 4:
      return [=](Record& r) { r.FldInd(indicators); };
    case 5:
      return [=](Record& r) { r.FldTag(tag); };
    case 6:
      return [=](Record& r) { r.FldChange(tag, indicators, field_text); };
    case 7:
      return [](Record& r) { r.FldDelete(); };
    case 8:
    case 9:
      return [=](Record& r) { r.SfdAdd(code, text); };
    case 10:
      return [=](Record& r) { r.SfdInsertAfter(code, text); };
    case 11:
      return [=](Record& r) { r.SfdInsertBefore(code, text); };
    case 12:
      return [=](Record& r) { r.SfdChange(code, text); };
    case 13:
      return [=](Record& r) { r.SfdDelete(flag); };
    case 14:
      return [=](Record& r) { flag ? r.SfdShiftLeft() : r.SfdShiftRight(); };
    case 15:
      return [=](Record& r) { r.FldInsertSubfieldH(text); };
    case 16:
      return [=](Record& r) { r.ChangeLeaderValue(7, flag ? "s" : "m"); };
    case 17:
      return [=](Record& r) {
        r.Leader(flag ? "00000nam a2200000 i 4500" : "00000nz  a2200000 i 4500");
      };
    case 18:
      return [=](Record& r) { r.Change008Value(3, text); };
    case 19:
      return [=](Record& r) { r.NormalizationScheme(flag ? "P" : "V"); };
    case 20:
      return [=](Record& r) {
        try {
          flag ? r.FldShiftUp() : r.FldShiftDown();
        } catch (const MarcClassError&) {
        }
      };
    default:
      return [=](Record& r) {
        r.SetFormatCode(flag ? "z" : "c");
        r.ForceInvalidIndicatorValues(flag);
      };
  }
}

TEST(KeptForms, StayRightThroughEditsOfEveryKind) {
  std::mt19937 random(1685);
  for (int round = 0; round < 60; ++round) {
    Record eager;
    Record lazy;
    for (Record* record : {&eager, &lazy}) record->MarcRecordIn(RecordImage());
    for (int step = 0; step < 40; ++step) {
      const Edit edit = RandomEdit(random);
      const auto row =
          static_cast<std::int16_t>(random() % static_cast<unsigned>(lazy.FieldCount()));
      const auto subfield = static_cast<std::int16_t>(random() % 3);
      const bool move = random() % 3 != 0;
      for (Record* record : {&eager, &lazy}) {
        if (move) {
          record->FldPointer(row);
          record->SfdPointer(subfield);
        }
        edit(*record);
      }
      MakeAllNorms(eager);
      ASSERT_EQ(eager.FldPointer(), lazy.FldPointer());
      ASSERT_EQ(eager.SfdPointer(), lazy.SfdPointer());

      const std::int16_t here = eager.FldPointer();
      const std::int16_t there = eager.SfdPointer();
      for (eager.FldMoveTop(); eager.FldMoveNext(true);) {
        if (eager.FldPointer() == 0) continue;  // whose subfields cannot be stepped
        if (eager.FldIsControl()) continue;
        ASSERT_EQ(Readable(eager.FldText()), Readable(TextOfSubfields(eager)))
            << round << ' ' << step << ' ' << eager.FldTag();
      }
      eager.FldPointer(here);
      eager.SfdPointer(there);
    }
    ASSERT_EQ(Norms(eager), Norms(lazy)) << round;
    ASSERT_EQ(eager.MarcRecordOut(), lazy.MarcRecordOut()) << round;
  }
}

TEST(KeptForms, NormsAreThoseOfTheTimeOfAdding) {
  const Edit changes[] = {[](Record& r) { r.Leader("00000nz  a2200000 i 4500"); },
                          [](Record& r) { r.ChangeLeaderValue(6, "a"); },
                          [](Record& r) { r.ChangeLeaderValue(7, "s"); },
                          [](Record& r) { r.SetFormatCode("z"); },
                          [](Record& r) { r.NormalizationScheme("P"); },
                          [](Record& r) { r.ForceInvalidIndicatorValues(false); },
                          [](Record& r) { r.Change008Value(0, "99"); }};
  for (std::size_t i = 0; i < std::size(changes); ++i) {
    Record asked_before;
    Record asked_behind;
    for (Record* record : {&asked_before, &asked_behind}) record->MarcRecordIn(RecordImage());
    const std::string norms = Norms(asked_before);
    changes[i](asked_before);
    changes[i](asked_behind);
    EXPECT_EQ(Norms(asked_before), norms) << i;
    EXPECT_EQ(Norms(asked_behind), norms) << i;
  }
}

}  // namespace
}  // namespace cantorel
