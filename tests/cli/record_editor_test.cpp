#include "cli/record_editor.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "cli/record_layout.h"
#include "record/record_image.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {
namespace {

struct Field {
  std::string tag;
  std::string text;  // "$" is the delimiter
};

std::string WithDelimiters(std::string text) {
  for (char& c : text) {
    if (c == '$') c = '\037';
  }
  return text;
}

std::string Digits(std::size_t number, std::size_t width) {
  std::string digits(width, '0');
  WriteDigits(number, width, digits.data());
  return digits;
}

std::string Image(const std::vector<Field>& fields, char character_set = 'a') {
  std::string directory, data;
  for (const Field& field : fields) {
    const std::string text = WithDelimiters(field.text) + '\036';
    directory += field.tag + Digits(text.size(), 4) + Digits(data.size(), 5);
    data += text;
  }
  const std::size_t base = 25 + directory.size();
  return Digits(base + data.size() + 1, 5) + "ccm " + character_set + "22" + Digits(base, 5) +
         "ki 4500" + directory + '\036' + data + '\035';
}

// Every field that the directory of an image tells, and the rest of the image.
std::string Shown(std::string_view image) {
  RecordLayout layout;
  layout.Read(image, true);
  std::string shown;
  for (const FieldEntry& entry : layout.Entries()) {
    shown += std::string(entry.Tag()) + ' ' + std::string(entry.text) + '\n';
  }
  for (char& c : shown) {
    if (c == '\037') c = '$';
  }
  return shown;
}

FieldAnswer Answer(std::int32_t id, const std::string& tag, const std::string& text) {
  return {id, tag, text.substr(0, 2), WithDelimiters(text.substr(2))};
}

class RecordEditorTest : public testing::Test {
 protected:
  RecordEditorTest() { record_.SetDefaultFldOrderBib(); }

  std::string Apply(const std::string& image, const std::vector<FieldAnswer>& fields) {
    // The format of the record decides which order counts.
    record_.MarcRecordIn(image);
    std::string edited, fault;
    if (!RecordEditor(record_).Apply(image, fields, edited, fault)) return fault;
    EXPECT_EQ(MarcFrameFault(edited), "");
    EXPECT_EQ(edited.substr(0, 5), Digits(edited.size(), 5));
    EXPECT_EQ(edited.substr(5, 7) + edited.substr(17, 7), image.substr(5, 7) + image.substr(17, 7));
    return edited;
  }

  Utf8MarcRecordClass record_;
};

TEST_F(RecordEditorTest, PutsNewFieldsWhereTheyBelong) {
  const std::string flute = "01$aflute$2lcmpt", sonatas = " 7$aSonatas$2lcgft";
  struct Case {
    std::vector<Field> before;
    std::vector<FieldAnswer> answer;
    std::vector<Field> after;
  };
  const Case kCases[] = {
      // Between tags; among equal tags the last; genres by thesaurus.
      {{{"001", "x"}, {"245", "00$aA"}, {"382", "01$aoboe"}, {"650", " 0$aB"}, {"700", "1 $aC"}},
       {Answer(0, "655", sonatas), Answer(0, "382", flute), Answer(0, "046", "  $k1800")},
       {{"001", "x"},
        {"046", "  $k1800"},
        {"245", "00$aA"},
        {"382", "01$aoboe"},
        {"382", flute},
        {"650", " 0$aB"},
        {"655", sonatas},
        {"700", "1 $aC"}}},
      // What is out of order stays there and misleads nobody.
      {{{"001", "x"},
        {"245", "00$aA"},
        {"650", " 0$aB"},
        {"700", "1 $aC"},
        {"949", "  $aD"},
        {"596", "  $a1"},
        {"CAT", "  $aE"}},
       {Answer(0, "655", sonatas), Answer(0, "382", flute)},
       {{"001", "x"},
        {"245", "00$aA"},
        {"382", flute},
        {"650", " 0$aB"},
        {"655", sonatas},
        {"700", "1 $aC"},
        {"949", "  $aD"},
        {"596", "  $a1"},
        {"CAT", "  $aE"}}},
      // An 880 beside its partner is not parted from it; those at the end do not
      // draw anything there.
      {{{"001", "x"},
        {"245", "00$6880-01$aA"},
        {"880", "00$6245-01$aB"},
        {"700", "1 $aC"},
        {"880", "1 $6700-02$aD"}},
       {Answer(0, "382", flute)},
       {{"001", "x"},
        {"245", "00$6880-01$aA"},
        {"880", "00$6245-01$aB"},
        {"382", flute},
        {"700", "1 $aC"},
        {"880", "1 $6700-02$aD"}}},
      {{{"700", "1 $aA long enough record without a number"}},
       {Answer(0, "382", flute)},
       {{"382", flute}, {"700", "1 $aA long enough record without a number"}}},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(Apply(Image(c.before), c.answer), Image(c.after)) << Shown(Image(c.after));
  }
}

TEST_F(RecordEditorTest, ReplacesTheFieldThatIsNamed) {
  const std::string heading = " 7$aSonatas$2lcgft";
  struct Case {
    std::vector<Field> before;
    std::vector<FieldAnswer> answer;
    std::vector<Field> after;
  };
  const Case kCases[] = {
      // By row: the 035 that repeats the 001, the second 008, the tag that is
      // none and the empty field have no row.
      {{{"001", "x12"},
        {"008", "1"},
        {"035", "  $ax12"},
        {"008", "2"},
        {"LKR", "  $aA"},
        {"500", ""},
        {"655", " 7$aSonata"},
        {"655", " 7$asonatas"}},
       {Answer(3, "655", heading)},
       {{"001", "x12"},
        {"008", "1"},
        {"035", "  $ax12"},
        {"008", "2"},
        {"LKR", "  $aA"},
        {"500", ""},
        {"655", " 7$aSonata"},
        {"655", heading}}},
      // By $9, which stays; with a new field beside it.
      {{{"001", "x"}, {"655", " 7$asonatas$9 77 $9 78"}, {"700", "1 $aC"}},
       {Answer(78, "655", heading + "$0(DLC)1"), Answer(0, "655", heading)},
       {{"001", "x"},
        {"655", heading + "$0(DLC)1$9 77 $9 78"},
        {"655", heading},
        {"700", "1 $aC"}}},
      // A $9 that is the row of another field: the words decide.
      {{{"001", "x"}, {"655", " 7$aSONATAS$2lcgft"}, {"655", " 7$aDuets$2lcgft$91"}},
       {Answer(1, "655", heading)},
       {{"001", "x"}, {"655", heading}, {"655", " 7$aDuets$2lcgft$91"}}},
      {{{"001", "x"}, {"655", " 7$aDuets$2lcgft"}, {"655", " 7$aSONATAS$2lcgft$91"}},
       {Answer(1, "655", heading)},
       {{"001", "x"}, {"655", " 7$aDuets$2lcgft"}, {"655", heading + "$91"}}},
      // Of two for one field the later one.
      {{{"001", "x"}, {"382", "01$aFlutes and so on"}},
       {Answer(1, "382", "01$aoboe"), Answer(1, "382", "01$aflute")},
       {{"001", "x"}, {"382", "01$aflute"}}},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(Apply(Image(c.before), c.answer), Image(c.after)) << Shown(Image(c.after));
  }
}

// The directory of the image, with the rest as it is.
std::string WithEntries(std::string image, const std::string& entries) {
  return image.replace(24, entries.size(), entries);
}

TEST_F(RecordEditorTest, KeepsWhatADamagedDirectoryTells) {
  // Data: the 001 at 0, the 245 at 2, the 382 at 11, the 700 at 20, 33 in all.
  const std::string image =
      Image({{"001", "x"}, {"245", "00$aTitl"}, {"382", "01$aOboe"}, {"700", "1 $aBach, JS"}});
  const std::string done = "382 01$aoboe d'amore\n655  7$aSuites\n700 1 $aBach, JS\n";
  const struct {
    std::string directory;
    std::int32_t row;  // of the 382
    std::string after;
  } kCases[] = {
      {"001000200000245000900002382000900011700001300020", 2, "001 x\n245 00$aTitl\n" + done},
      // The last field overruns the data.
      {"001000200000245000900002382000900011700004000020", 2, "001 x\n245 00$aTitl\n" + done},
      // Two fields on the same octets.
      {"001000200000245001800002382000900011700001300020", 2,
       "001 x\n245 00$aTitl\036" + std::string("01$aOboe\n") + done},
      // A start that is no number is read as far as it is one.
      {"00100020000024500090000x382000900011700001300020", 2,
       "001 x\n245 x\036" + std::string("00$aTi\n") + done},
      // An entry that points behind the data.
      {"001000200000245000999990382000900011700001300020", 1, "001 x\n245 \n" + done},
      // Data in another order than the directory.
      {"001000200000382000900011245000900002700001300020", 1,
       "001 x\n382 01$aoboe d'amore\n245 00$aTitl\n655  7$aSuites\n700 1 $aBach, JS\n"},
  };
  for (const auto& [directory, row, after] : kCases) {
    EXPECT_EQ(Shown(Apply(WithEntries(image, directory), {Answer(row, "382", "01$aoboe d'amore"),
                                                          Answer(0, "655", " 7$aSuites")})),
              after);
  }
}

TEST_F(RecordEditorTest, RefusesWhatCannotBeWrittenWhole) {
  const std::string image = Image({{"001", "x"}, {"500", "  $a" + std::string(9000, 'x')}});
  const std::string most = "  $a" + std::string(9994, 'y');
  EXPECT_EQ(MarcFrameFault(Apply(image, {Answer(0, "655", most)})), "");
  EXPECT_EQ(Apply(image, {Answer(0, "655", most + "y")}),
            "Field 655 would be longer than 9999 octets");
  EXPECT_EQ(Apply(image, std::vector<FieldAnswer>(10, Answer(0, "655", most))),
            "The record would be longer than 99999 octets");
  EXPECT_EQ(Apply(image, {Answer(7, "655", "  $aSuites")}),
            "Field 655 to replace (7) is not there");
  EXPECT_EQ(Apply(image, {Answer(0, "655", "  $aSui\035tes")}),
            "Field 655 would hold the end of a field or record");
}

TEST_F(RecordEditorTest, WritesInTheCharacterSetOfTheRecord) {
  const std::vector<FieldAnswer> answer = {
      Answer(0, "370", "  $gDvo\u0159\u00e1k$gDvor\u030ca\u0301k"),
      Answer(0, "655", " 7$a\u0411\u0430\u0445")};
  const std::string latin =
      "370   $gDvo\xE9r\xE2"
      "ak$gDvo\xE9r\xE2"
      "ak\n";
  const std::string cyrillic = "655  7$a\x1B(NbAH\x1B(B\n";
  const std::vector<Field> fields = {{"001", "x"}, {"245", "00$aTitle"}};
  EXPECT_EQ(Shown(Apply(Image(fields, 'a'), answer)),
            "001 x\n245 00$aTitle\n370   $gDvo\u0159\u00e1k$gDvor\u030ca\u0301k\n"
            "655  7$a\u0411\u0430\u0445\n");
  EXPECT_EQ(Shown(Apply(Image(fields, ' '), answer)),
            "001 x\n066   $c(N\n245 00$aTitle\n" + latin + cyrillic);
  // A 066 that is there gets what it lacks, and is left alone when it lacks
  // nothing.
  const std::string kScripts[][2] = {{"  $c(3", "  $c(3$c(N"}, {"  $c(N$c(3", "  $c(N$c(3"}};
  for (const auto& [before, after] : kScripts) {
    EXPECT_EQ(
        Shown(Apply(Image({{"001", "x"}, {"066", before}, {"245", "00$aTitle"}}, ' '), answer)),
        "001 x\n066 " + after + "\n245 00$aTitle\n" + latin + cyrillic);
  }
}

// The rows that loading gives are those that the layout counts.
TEST(RecordLayoutTest, NumbersRowsAsLoadingDoes) {
  const std::string image = Image({{"001", "ab"},
                                   {"00X", "c"},
                                   {"008", "d"},
                                   {"008", "e"},
                                   {"035", "  $aab"},
                                   {"035", "  $aabc"},
                                   {"5AB", "  $65AB-01$af"},
                                   {"X00", "  $ag"},
                                   {"245", ""},
                                   {"246", "x"},
                                   {"   ", "  $ah"},
                                   {"007", "$as$bd"},
                                   {"880", "  $6245-01$ai"}});
  Utf8MarcRecordClass record;
  record.MarcRecordIn(image);
  RecordLayout layout;
  layout.Read(image, true);
  std::int16_t rows = 0;
  for (const FieldEntry& entry : layout.Entries()) {
    if (entry.row < 0) continue;
    record.FldPointer(rows);
    EXPECT_EQ(entry.row, rows++);
    EXPECT_EQ(record.FldDirectory(), entry.whole);
  }
  EXPECT_EQ(record.FieldCount(), rows);
}

}  // namespace
}  // namespace cantorel::cli
