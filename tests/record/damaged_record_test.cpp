// Records at their limits and damaged ones: a defined answer for every octet.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using testing::ElementsAreArray;

// Asks a record for all it has, forwards and backwards.
void ReadAll(Utf8MarcRecordClass& record) {
  std::string seen;
  for (record.FldMoveTop(); record.FldMoveNext(false);) {
    seen += record.FldTagTrue() + record.FldInd1() + record.FldInd2() + record.FldDirectory();
    seen += record.FldNorm() + record.FldNormNaco() + record.FldTextNormalizable();
    for (record.SfdMoveTop(); record.SfdMoveNext(true);) {
      seen += record.SfdCode() + record.SfdText() + record.SfdNorm() + record.SfdNormNaco();
    }
  }
  for (record.FldMoveBottom(); record.FldMovePrev(true);) {
    for (record.SfdMoveBottom(); record.SfdMovePrev(true);) seen += record.SfdCode();
  }
  seen += record.Get008Value(0, 40) + record.GetLeaderValue(0, 24);
  ASSERT_GE(seen.size(), record.FieldCount());
}

// A record without any 0x1E inside its fields, and without a control field that
// begins like a data field, is the same when it is written and read again.
bool ComesBackTheSame(const std::vector<std::string>& fields) {
  for (const std::string& field : fields) {
    if (field.find('\x1E') != std::string::npos) return false;
    if (field.starts_with("00") && field.substr(3, 1) == "$") return false;
  }
  return true;
}

std::vector<std::string> WithText(std::vector<std::string> fields) {
  std::erase_if(fields,
                [](const std::string& f) { return f.size() <= (f.starts_with("00") ? 3u : 5u); });
  return fields;
}

std::string Mutated(std::string image, std::mt19937& random) {
  static constexpr std::string_view kFavourites = "\x1D\x1E\x1F\x1B 0459aZ$\xCA\xBE\xE2\xFF";
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random()) % n; };
  for (std::size_t changes = 1 + below(6); changes > 0; --changes) {
    const std::size_t place = below(image.size());
    switch (below(6)) {
      case 0:
        image.insert(place, image.substr(below(image.size()), below(20)));
        break;
      case 1:
        image.erase(place, below(4));
        break;
      case 2:
        image[place] = static_cast<char>(below(256));
        break;
      case 3:  // a digit of the directory
        image[24 + below(std::min<std::size_t>(image.size() - 24, 84))] =
            static_cast<char>('0' + below(10));
        break;
      default:
        image[place] = kFavourites[below(kFavourites.size())];
        break;
    }
    if (image.size() < 60) break;
  }
  if (below(8) == 0) return image;  // with the frame as it fell
  image.back() = '\x1D';
  image[image.size() - 2] = '\x1E';
  image.replace(0, 5, Digits(image.size(), 5));
  const std::size_t base = image.find('\x1E', 24);
  image.replace(12, 5, Digits(base + 1, 5));
  return image;
}

TEST(DamagedRecord, MutatedImagesHaveDefinedAnswers) {
  const std::string good = Image(
      {"001ocm1", "007$am$bB$4Z", "008850101s1984    ncuuua         n  | eng d", "010  $a  85001 ",
       "035  $a(OCoLC)12345", "24514$6880-01$aThe \u02BEalif /$cx", "88014$6245-01/r$a\u05D0",
       "650 0$aSonatas (Flute and piano)$vScores", "7001 $aBach, J. S.,$d1685-1750"});
  std::mt19937 random(20090401);
  Utf8MarcRecordClass record;
  record.TestSubfieldOrder(false);
  record.DisableUtf8Decomposition(true);
  Utf8MarcRecordClass with_defaults;
  int compared = 0;
  for (int i = 0; i < 4000; ++i) {
    const std::string image = Mutated(good, random);
    with_defaults.MarcRecordIn(image);
    ReadAll(with_defaults);
    (void)with_defaults.MarcRecordOut();

    record.MarcRecordIn(image);
    ReadAll(record);
    const std::vector<std::string> held = WithText(Fields(record));
    const std::string leader = record.Leader();
    const std::string out = record.MarcRecordOut();
    if (held.empty() || leader.substr(9, 1) != "a" || leader.substr(20, 2) != "45") continue;
    if (!ComesBackTheSame(held) || out.size() < 50) continue;
    ++compared;
    record.MarcRecordIn(out);
    ASSERT_THAT(Fields(record), ElementsAreArray(held)) << i << ": " << Readable(image);
    ASSERT_EQ(record.MarcRecordOut(), out) << i;
  }
  EXPECT_GT(compared, 1000);
}

TEST(DamagedRecord, EveryOctetAsCodeIndicatorAndText) {
  Utf8MarcRecordClass record;
  record.DisableUtf8Decomposition(true);
  record.TestSubfieldOrder(false);
  for (int octet = 0; octet < 256; ++octet) {
    const std::string c(1, static_cast<char>(octet));
    if (c == "\x1E" || c == "$") continue;
    record.MarcRecordIn(Image({"001" + c + "y", "500" + c + c + "$ax" + c + "y$" + c + "text"}));
    ReadAll(record);
    const std::vector<std::string> held = Fields(record);
    ASSERT_EQ(held.size(), 2u) << octet;
    const bool usable = octet > ' ';
    EXPECT_EQ(held[1].find(usable ? "$" + c + "text" : "$9text") != std::string::npos,
              octet != '\x1F')
        << octet;
    record.MarcRecordIn(record.MarcRecordOut());
    if (octet == '\x1F') continue;
    EXPECT_THAT(Fields(record), ElementsAreArray(held)) << octet;
  }
}

TEST(DamagedRecord, TableHolds32767Fields) {
  Utf8MarcRecordClass record;
  record.NewRecord("c", "m");
  for (int i = 0; i < 32'800; ++i) record.FldAdd("500", "  ", "x");
  EXPECT_EQ(record.FieldCount(), 32'767);
  EXPECT_EQ(record.FldPointer(), 32'766);
  record.FldInsertAfter("500", "  ", "y");
  record.FldText("a new text");
  EXPECT_EQ(record.FieldCount(), 32'767);
  EXPECT_EQ(Readable(record.FldText()), "$aa new text") << "a full table rebuilds in place";
  record.FldTag("501");
  EXPECT_EQ(record.FldTag(), "501");
  std::int32_t count = 0;
  for (record.FldMoveTop(); record.FldMoveNext(true);) ++count;
  EXPECT_EQ(count, 32'767);
  record.MarcRecordIn(record.MarcRecordOut());
  record.NewRecord("c", "m");
  EXPECT_EQ(record.FieldCount(), 2);
}

TEST(DamagedRecord, FieldHolds32767Subfields) {
  Utf8MarcRecordClass record;
  record.NewRecord("c", "m");
  std::string text;
  for (int i = 0; i < 32'800; ++i)
    text +=
        "\x1F"
        "ax";
  record.FldAdd("505", "  ", text);
  record.SfdMoveLast(true);
  EXPECT_EQ(record.SfdPointer(), 32'766);
  EXPECT_EQ(record.FldText().size(), 3u * 32'767u);
  record.SfdAdd("a", "one too many");
  EXPECT_EQ(record.FldText().size(), 3u * 32'767u);
  record.FldAdd("500", "  ", "x");
  for (int i = 1; i < 32'800; ++i) record.SfdAdd("a", "y");
  EXPECT_EQ(record.FldText().size(), 3u * 32'767u);
  EXPECT_FALSE(record.SfdMoveNext(true));
}

// A field without subfields has no current one, wherever the cursor stood.
TEST(DamagedRecord, CursorDoesNotReachIntoForeignRows) {
  Utf8MarcRecordClass record;
  record.NewRecord("c", "m");
  record.FldAdd("505", "  ", Text("$aa$bb$cc$dd"));
  record.SfdMoveLast(true);
  for (std::string_view tag : {"500", "003", "500"}) {
    record.FldAdd(tag, "  ", "");
    EXPECT_EQ(record.SfdPointer(), -1);
    EXPECT_EQ(record.SfdText() + record.SfdNorm() + record.SfdCode(), "");
    EXPECT_TRUE(record.SfdDeleted());
    EXPECT_FALSE(record.SfdWasFound());
    record.SfdDelete();
    record.SfdChange("a", "x");
    record.SfdShiftLeft();
    EXPECT_EQ(record.FldText(), "");
  }
  record.SfdInsertAfter("a", "x");
  EXPECT_EQ(Readable(record.FldText()), "$ax");
  record.FldFindFirst("505", "");
  EXPECT_EQ(Readable(record.FldText()), "$aa$bb$cc$dd");
}

}  // namespace
}  // namespace cantorel
