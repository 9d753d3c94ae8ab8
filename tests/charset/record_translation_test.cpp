// Records between character sets: the fields, the 066, the leader, the settings.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "record/marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using testing::ElementsAre;

constexpr std::string_view kMarc8Leader = "00000ncm  2200000 i 4500";

std::string Marc8Image() {
  return Image({"001\xC3\xB1", "005\xC3\xB1", "066  $c(N", "24514$aThe\342a b",
                "880  $6500-00/(N$a\x1B(Na\x1B(B"},
               kMarc8Leader);
}

TEST(RecordTranslation, LoadsMarc8AsUtf8) {
  Utf8MarcRecordClass record;
  record.CharacterSetIn("M");
  record.MarcRecordIn(Marc8Image());
  EXPECT_THAT(Fields(record), ElementsAre("001\u00A9\u0142", "005\xC3\xB1", "24513$aThea\u0301 b",
                                          "880  $6500-00/(N$a\u0410"));
  EXPECT_TRUE(record.MarcRecordTranslated());
  EXPECT_EQ(record.Leader().substr(9, 1), "a");
  EXPECT_EQ(record.CharacterEncodingScheme(), " ");
  EXPECT_EQ(record.CharacterSetIn(), "M");
  EXPECT_EQ(record.CharacterSetOut(), "U");
}

TEST(RecordTranslation, GoesThereAndBackUnderTheCursor) {
  Utf8MarcRecordClass record;
  record.MarcRecordIn(
      Image({"001x", "245  $a\u0410b\u05D0", "500  $aplain", "700  $a\u5203\u0491"}));
  ASSERT_TRUE(record.FldFindFirst("500", ""));
  record.CharacterSetOut("M");
  EXPECT_EQ(record.FldTag(), "500");
  EXPECT_EQ(record.Leader().substr(9, 1), " ");
  const std::vector<std::string> marc8 = Fields(record);
  EXPECT_EQ(marc8[1], "245  $a\x1B(Na\x1B(Bb\x1B(2`\x1B(B");
  ASSERT_TRUE(record.FldFindFirst("066", ""));
  EXPECT_EQ(record.FldInd() + Readable(record.FldText()), "  $c(N$c(2$c$1$c(Q")
      << "in order of use";
  record.CharacterSetOut("ULC");
  EXPECT_THAT(Fields(record),
              ElementsAre("001x", "245  $a\u0410b\u05D0", "500  $aplain", "700  $a\u5203\u0491"));
  record.CharacterSetOut("U");
  EXPECT_TRUE(record.MarcRecordTranslated()) << "nothing was to be translated";
}

TEST(RecordTranslation, MarksDirectionsOnlyWhenAskedExactly) {
  for (std::string_view letter : {"ULC", "ulc"}) {
    Utf8MarcRecordClass record;
    record.CharacterSetOut(letter);
    record.MarcRecordIn(Image({"880  $a\x1B(2`", "900  $aplain"}, kMarc8Leader));
    EXPECT_EQ(Fields(record)[0], letter == "ULC" ? "880  $a\u05D0\u200F" : "880  $a\u05D0");
  }
}

TEST(RecordTranslation, PicksTheRoutineByBothSets) {
  const struct {
    std::string_view in, out, field, translated;
  } kCases[] = {
      {"M", "O", "500  $a\xC1\xC0", "500  $a\xBE\xC0"},
      {"M", "V", "500  $a\xC5\xC6", "500  $a\xC5\x96"},
      {"V", "M", "500  $a\xC0", "500  $a\x1Bp0\x1Bs"},
      {"V", "U", "500  $a\xC0\342e", "500  $a\u2070e\u0301"},
      {"O", "U", "500  $a\xBE", "500  $a\u2113"},
      {"L", "M", "500  $a\xE9", "500  $a\342e"},
      {"L", "U", "500  $a\xE9", "500  $ae\u0301"},
      {"M", "L", "500  $a\xC1", "500  $a\xC1"},
      // An 880 is translated by pieces: the octets of other scripts stay.
      {"M", "O", "880  $a\xC1\x1B(N\xC1\x1B(B\xC1\x1B)Q\xC1$b\xC1",
       "880  $a\xBE\x1B(N\xC1\x1B(B\xBE\x1B)Q\xC1$b\xBE"},
  };
  for (const auto& c : kCases) {
    Utf8MarcRecordClass record;
    record.CharacterSetIn(c.in);
    record.CharacterSetOut(c.out);
    record.MarcRecordIn(Image({std::string(c.field), "650  $aplain"}, kMarc8Leader));
    EXPECT_EQ(Fields(record)[0], c.translated) << c.in << " to " << c.out;
    EXPECT_EQ(record.MarcRecordTranslated(), c.field != c.translated);
    EXPECT_EQ(record.CharacterSetIn(), c.in);
  }
}

TEST(RecordTranslation, JoinsDoubleMarksOfWhatIsNotTranslated) {
  Utf8MarcRecordClass record;
  record.UseDoubleWidthDiacritics(true);
  record.MarcRecordIn(Image({"500  $at\uFE20s\uFE21", "650  $aplain"}));
  EXPECT_EQ(Fields(record)[0], "500  $at\u0361s");
  record.MarcRecordIn(Image({"500  $a\xEBt\xECs", "650  $aplain"}, kMarc8Leader));
  EXPECT_EQ(Fields(record)[0], "500  $at\u0361s");
  record.CharacterSetOut("M");
  EXPECT_EQ(Fields(record)[0], "500  $a\xEBt\xECs");
}

TEST(Utf8TextContainsOnlyMarc8Characters, TakesLatinAndEastAsian) {
  EXPECT_TRUE(Utf8MarcRecordClass::Utf8TextContainsOnlyMarc8Characters("a\u0142e\u0301\u5203"));
  for (std::string_view text : {"a\u0410", "\u05D0", "\u2603", "a\xE2"}) {
    EXPECT_FALSE(Utf8MarcRecordClass::Utf8TextContainsOnlyMarc8Characters(text)) << text;
  }
}

}  // namespace
}  // namespace cantorel
