#include "cli/image_translator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "record/record_image.h"

namespace cantorel::cli {
namespace {

struct Field {
  std::string tag;
  std::string text;  // "$" is the delimiter, "^" the escape
};

std::string Digits(std::size_t number, std::size_t width) {
  std::string digits(width, '0');
  WriteDigits(number, width, digits.data());
  return digits;
}

// The data lie in the order of the fields; with `reversed` the directory does not.
std::string Image(const std::vector<Field>& fields, char scheme, bool reversed = false) {
  std::string directory, data;
  for (const Field& field : fields) {
    std::string text = field.text + '\036';
    std::replace(text.begin(), text.end(), '$', '\037');
    std::replace(text.begin(), text.end(), '^', '\033');
    const std::string entry = field.tag + Digits(text.size(), 4) + Digits(data.size(), 5);
    directory = reversed ? entry + directory : directory + entry;
    data += text;
  }
  const std::size_t base = 25 + directory.size();
  return Digits(base + data.size() + 1, 5) + "ccm " + scheme + "22" + Digits(base, 5) + "ki 4500" +
         directory + '\036' + data + '\035';
}

std::string Translate(ImageTranslator& translator, const std::string& image) {
  std::string translated, fault;
  return translator.Translate(image, translated, fault) ? translated : fault;
}

TEST(ImageTranslator, TranslatesTheFieldsAndLeavesTheRest) {
  // A second 008, a tag that is none, fields out of order: all stay where they are.
  const std::vector<Field> marc8 = {
      {"001", "x1"},
      {"066", "  $c(N"},
      {"700", "1 $aDvo\xE9r\xE2\x61k"},
      {"008", "one"},
      {"008", "two"},
      {"24x", "10$aplain  $b"},
      {"880", "10$6245-01/(N$a^(NaBW^(B."},
  };
  std::vector<Field> utf8 = marc8;
  utf8.erase(utf8.begin() + 1);
  utf8[1].text = "1 $aDvor\xCC\x8C\x61\xCC\x81k";
  utf8.back().text = "10$6245-01/(N$a\xD0\x90\xD0\xB1\xD0\xB2.";
  std::vector<Field> back = marc8;
  back.back().text = "10$6245-01/(N$a^(NaBW.^(B";
  for (const bool reversed : {false, true}) {
    ImageTranslator in('\0', 'U');
    EXPECT_EQ(Translate(in, Image(marc8, ' ', reversed)), Image(utf8, 'a', reversed));
    EXPECT_TRUE(in.Stands().empty());
  }
  ImageTranslator out('\0', 'M');
  EXPECT_EQ(Translate(out, Image(utf8, 'a')), Image(back, ' '));
}

TEST(ImageTranslator, KeepsWhatMarc8HasAndTakesApartWhatItLacks) {
  // U+0439 has a form of its own; U+00E9, and a quotation mark in Latin, have none.
  ImageTranslator out('\0', 'M');
  const std::string image = Image({{"245", "00$a\xD0\xB9 \xC3\xA9 \xE2\x80\x9Cx"}}, 'a');
  EXPECT_EQ(Translate(out, image),
            Image({{"066", "  $c(N"}, {"245", "00$a^(NJ ^(B\xE2\x65 \"x"}}, ' '));
  EXPECT_EQ(out.Replaced(), (std::map<std::uint32_t, std::int64_t>{{0x201C, 1}}));
}

TEST(ImageTranslator, NamesWhatTheOtherSetLacks) {
  struct Case {
    char to;
    std::string text;
    std::string token;
  };
  const Case cases[] = {
      {'U', "00$a\x99", "[MARC+99]"},
      {'U', "00$a[MARC+99] \xA9[MARC+9]", ""},
      {'U', "0\xB2$a\xA9", "the octet itself (indicator or subfield code)"},
      {'M', "00$a\xE2\x98\x83", "&#x2603;"},
      {'M', "00$a&#x2603; \xC2\xA9", ""},
      {'M', "00$a\xFF", "&#x00ff;"},
  };
  for (const Case& c : cases) {
    ImageTranslator translator(c.to == 'U' ? 'M' : 'U', c.to);
    Translate(translator, Image({{"001", "x"}, {"245", c.text}}, ' '));
    std::string tokens;
    for (const Stand& stand : translator.Stands()) {
      tokens += stand.token;
      EXPECT_EQ(stand.tag, "245");
      EXPECT_EQ(stand.offset, 24u + 2 * 12 + 1 + 2);
    }
    EXPECT_EQ(tokens, c.token) << c.text;
  }
}

TEST(ImageTranslator, TellsTheSetAndWhetherTheOctetsBearItOut) {
  struct Case {
    char from;
    char scheme;
    std::string text;
    char set;
    bool disagrees;
  };
  const Case cases[] = {
      {'\0', ' ', "plain", 'M', false},   {'\0', ' ', "\xC3\xA9", 'M', true},
      {'\0', 'a', "\xE2\x65", 'U', true}, {'\0', ' ', "\xC7", 'V', false},
      {'M', 'a', "\xE2\x65", 'M', false}, {'U', ' ', "\xC3\xA9", 'U', false},
  };
  for (const Case& c : cases) {
    ImageTranslator translator(c.from, 'U');
    Translate(translator, Image({{"245", "00$a" + c.text}}, c.scheme));
    EXPECT_EQ(translator.SetIn(), c.set) << c.text;
    EXPECT_EQ(translator.OctetsDisagree(), c.disagrees) << c.text;
  }
}

TEST(ImageTranslator, RefusesWhatHasNoCertainPlaceOrNoRoom) {
  ImageTranslator in('\0', 'U');
  std::string shared = Image({{"500", "  $a\xE2\x65"}, {"500", "  $aabc"}}, ' ');
  shared.replace(24 + 12 + 7, 5, "00003");
  EXPECT_EQ(Translate(in, shared), "Its directory and its data do not agree");
  // U+0110 has two octets instead of one.
  const std::vector<Field> wide = {{"500", "  $a" + std::string(6000, '\xA3')}};
  EXPECT_EQ(Translate(in, Image(wide, ' ')), "Field 500 would be longer than 9999 octets");
  const std::vector<Field> many(10, {"500", "  $a" + std::string(4993, '\xA3')});
  EXPECT_EQ(Translate(in, Image(many, ' ')), "The record would be longer than 99999 octets");
}

}  // namespace
}  // namespace cantorel::cli
