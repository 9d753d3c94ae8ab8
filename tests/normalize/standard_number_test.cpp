// Standard numbers: comparison forms, check digits and the two forms of ISBN.

#include "normalize/standard_number.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using Record = Utf8MarcRecordClass;

TEST(StandardNumber, ComparisonFormByTag) {
  const Record record;
  const struct {
    std::string_view tag;
    std::string_view text;
    std::string_view form;
  } cases[] = {
      {"010", "  85-001234 /MN ", "85001234 MN"},
      {"010", "n  79021425", "N 79021425"},
      {"020", "0-306-40615-2 (pbk.)", "0306406152 PBK"},
      {"020", " - x - y - ", "X Y"},
      {"020", "\xC3\xA9", ""},
      {"022", "0317-8471", "0317 8471"},
      {"022", "-0317--847x.", "0317 847X"},
      {"022", "---", ""},
      {"035", "(OCoLC)12345", "12345"},
      {"035", " (OCoLC) ocm 1-2 ", "OCM 1-2"},
      {"035", "x(OCoLC)1", "X(OCOLC)1"},
      {"035", "(OCoLC 12", "(OCOLC 12"},
      {"035", "(a)(b)c", "(B)C"},
      {"035", "()", ""},
      {"024", " m-570 ", "m-570"},
      {"", "", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(record.NormalizeStandardNumber(c.tag, c.text), c.form) << c.tag << " " << c.text;
  }
}

TEST(StandardNumber, CheckDigits) {
  for (std::string_view right :
       {"0-306-40615-2", "080442957X", "0-8044-2957-x", "9780306406157", "978-3-16-148410-0",
        "979-10-90636-07-1", "979-0-2600-0043-8", "0317-8471", "2434-561x", "0378-5955", "00000000",
        "8-5-3-5-9-0-2-7-7-5"}) {
    EXPECT_TRUE(Record::CheckISXN(right)) << right;
  }
  for (std::string_view wrong : {"", "-", "0306406153", "030640615", "03064061522", "9780306406158",
                                 "978030640615X", "0317-8472", "X0000000", "030640615Y",
                                 "03064 6152", "0306406152 ", "97803064061570", "O306406152",
                                 "\xC2\xB2"
                                 "306406152",
                                 "M", "MMMMMMMM"}) {
    EXPECT_FALSE(Record::CheckISXN(wrong)) << wrong;
  }
}

TEST(StandardNumber, OneWrongDigitIsAlwaysFound) {
  for (std::string_view number : {"0306406152", "9780306406157", "03178471"}) {
    for (std::size_t i = 0; i < number.size(); ++i) {
      for (char digit = '0'; digit <= '9'; ++digit) {
        std::string changed(number);
        changed[i] = digit;
        EXPECT_EQ(Record::CheckISXN(changed), changed == number) << changed;
      }
    }
  }
}

// The "M" counts 3 and not 9: the digits behind it must make up for that.
TEST(StandardNumber, IsmnBeginsWithThree) {
  EXPECT_FALSE(Record::CheckISXN("M-2306-7118-7")) << "a published number";
  EXPECT_TRUE(Record::CheckISXN("M-2306-7118-3"));
  EXPECT_TRUE(Record::CheckISXN("m230671183"));
  EXPECT_TRUE(Record::CheckISXN("M230671183xyz")) << "of 13, positions 2 to 10 are read";
  EXPECT_TRUE(Record::CheckISXN("M7000000")) << "of 8, what there is";
  EXPECT_FALSE(Record::CheckISXN("M23067118X"));
}

TEST(StandardNumber, Isbn13To10) {
  const struct {
    std::string_view from;
    std::string_view to;
  } cases[] = {
      {"978-0-306-40615-7", "0306406152"},
      {"9780804429573", "080442957X"},
      {"9780306406157 (pbk. : v. 1-2)", "0306406152 (pbk. : v. 12)"},
      {"9780306406157x", "0306406152x"},
      {"97803064061579", "0306406152"},
      {"9780000000002", "00000000011"},  // a check of 11 stays in two digits
      {"9791090636071", ""},
      {"978030640615", ""},
      {"978 0306406157", ""},
      {"978X306406157", ""},
      {"", ""},
      {"---", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Record::ConvertISBN13To10(c.from), c.to) << c.from;
}

TEST(StandardNumber, Isbn10To13) {
  const struct {
    std::string_view from;
    std::string_view to;
  } cases[] = {
      {"0-306-40615-2", "9780306406157"},
      {"080442957X", "9780804429573"},
      {"030640615", "9780306406157"},
      {"0-306-40615-2 (pbk.)", "9780306406157 (pbk.)"},
      {"978-0-306-40615-7 (pbk.)", "9780306406157 (pbk.)"},
      {"9780306406150", "9780306406157"},
      {"978030640615", "9780306406157"},
      {"9783161484100", "9789783161481"},  // only "9780" is known as a 13-digit number
      {"9780306", ""},
      {"03064061", ""},
      {"0306X061522", ""},
      {"x306406152", ""},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Record::ConvertISBN10To13(c.from), c.to) << c.from;
}

TEST(StandardNumber, BothFormsComeBack) {
  for (std::string_view isbn : {"0306406152", "080442957X", "0198163347", "0333608003"}) {
    ASSERT_TRUE(Record::CheckISXN(isbn)) << isbn;
    const std::string long_form = Record::ConvertISBN10To13(isbn);
    EXPECT_TRUE(Record::CheckISXN(long_form)) << long_form;
    EXPECT_EQ(Record::ConvertISBN13To10(long_form), isbn);
  }
}

}  // namespace
}  // namespace cantorel
