#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// Tag, indicators and text of each field, a line each, with $ as delimiter.
std::string Fields(Utf8MarcRecordClass& record) {
  std::string lines;
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    lines += record.FldTag() + record.FldInd() + record.FldText() + "\n";
  }
  for (char& c : lines) c = c == '\x1F' ? '$' : c;
  return lines;
}

TEST(XmlRecordIn, ReadsRecordsWithEachPrefix) {
  for (const std::string p : {"", "marc:", "marcxml:"}) {
    std::string xml =
        "<?xml version='1.0'?><@collection xmlns='x'><!-- <@leader>no</@leader> --><@record>\r\n"
        "<@leader>00714cjm a2200205Mu 4500</@leader>\n"
        "<@datafield tag='245' ind1=\"1\" ind2='0'><@subfield code='a'>Caf&#xE9; &amp;\n"
        " &#x1D11E;</@subfield><@subfield\tcode = \"c\">x&#31;ay<![CDATA[<&amp;>]]></@subfield>\n"
        "</@datafield><@controlfield tag=\"001\">a&lt;1</@controlfield>\n"
        "<@controlfield tag='005'>20200101000000.0</@controlfield>"
        "<@controlfield tag='008'>830712s1970    xxumun                 eng d</@controlfield>"
        "<@datafield tag='880' ind1='1' ind2=' '><@subfield code='6'>245-01</@subfield>"
        "<@subfield code='a'>\xD0\xAF</@subfield></@datafield>"
        "<@datafield tag='500'/><@datafield tag='5'><@subfield code='a'>no</@subfield></@datafield>"
        "</@record><@record><@datafield tag='999'><@subfield code='a'>next</@subfield>"
        "</@datafield></@record></@collection>";
    for (std::size_t i = 0; (i = xml.find('@', i)) != xml.npos;) xml.replace(i, 1, p);
    Utf8MarcRecordClass record;
    record.XmlRecordIn(xml);
    EXPECT_EQ(record.Leader(), "00000njm a2200000Mu 4500");
    EXPECT_EQ(Fields(record),
              "00520200101000000.0\n"
              "008830712s1970    xxumun                 eng d\n"
              "001a<1\n"
              "24510$aCaf\xC3\xA9 & \xF0\x9D\x84\x9E$cxay<&amp;>\n"
              "8801 $6245-01$a\xD0\xAF\n")
        << p;
  }
}

TEST(XmlRecordIn, LeavesWhatCouldBeRead) {
  const std::string leader = "<leader>00000nam a2200000 a 4500</leader>";
  const struct {
    const char* xml;
    const char* fields;  // behind 005 and 008
  } cases[] = {
      {"<controlfield tag=\"001\">1", "0011\n"},
      {"<controlfield>1</controlfield><controlfield tag=\"003\"/>", "003\n"},
      {"<datafield tag=\"500\"><subfield code=\"a\">x</datafield><datafield tag=\"501\">"
       "<subfield code=\"\">y</subfield><subfield>y</subfield><subfield code='b'>z < 1",
       "500  $ax\n501  $bz < 1\n"},
      {"<subfield code='a'>stray</subfield><datafield tag='500' ind1='", ""},
      {"<datafield tag='500' ind1='1' ind2='&lt;'><subfield code='a'><i>x</i></subfield>",
       "5001 $a<i>x</i>\n"},
  };
  for (const auto& c : cases) {
    Utf8MarcRecordClass record;
    record.XmlRecordIn(leader + c.xml);
    std::string fields = Fields(record);
    for (int i = 0; i < 2; ++i) fields.erase(0, fields.find('\n') + 1);
    EXPECT_EQ(fields, c.fields) << c.xml;
  }
  for (const char* xml :
       {"", "<record>", "<leader", "<x:leader>00000nam a2200000 a 4500</x:leader>"}) {
    Utf8MarcRecordClass record;
    record.NewRecord("a", "m");
    record.XmlRecordIn(xml);
    EXPECT_EQ(record.FieldCount(), 0) << xml;
  }
}

// Every beginning of a text, and the text with each octet spoilt.
TEST(XmlRecordIn, StandsAnyDamage) {
  const std::string xml =
      "<leader>00000nam a2200000 a 4500</leader><!--c--><datafield tag='500' ind1=\" \">"
      "<subfield code='a'>x<![CDATA[y]]>&amp;</subfield></datafield></record>";
  Utf8MarcRecordClass record;
  for (std::size_t i = 0; i < xml.size(); ++i) {
    record.XmlRecordIn(xml.substr(0, i));
    EXPECT_LE(record.FieldCount(), 3);
    for (const char c : {'<', '>', '"', '&', '\0', '\x1F', '\xFF'}) {
      std::string spoilt = xml;
      spoilt[i] = c;
      record.XmlRecordIn(spoilt);
      EXPECT_LE(record.FieldCount(), 3);
      const std::string image = record.MarcRecordOut();
      EXPECT_TRUE(image.empty() || record.IsMarc(image)) << spoilt;
    }
  }
}

TEST(XmlRecordOut, WritesWhatXmlRecordInReads) {
  Utf8MarcRecordClass record;
  record.NewRecord("c", "m");
  record.FldAdd("245", "10",
                "\x1F"
                "aA <b> & \"c\" 'd' e\xCC\x81\x1F"
                "c\xFF\x01z");
  record.FldAdd("880", "1 ",
                "\x1F"
                "6245-01\x1F"
                "a\xD0\xAF");
  record.FldFindFirst("245", "");
  record.SfdFindFirst("c", "");
  const std::string xml = record.XMLRecordOut(0);
  EXPECT_EQ(record.SfdCode(), "c");
  EXPECT_THAT(xml, testing::HasSubstr("a2200000n  4500</marc:leader>\r\n"));
  EXPECT_THAT(xml, testing::HasSubstr("<marc:datafield tag=\"245\" ind1=\"1\" ind2=\"0\">\t\t"
                                      "<marc:subfield code=\"a\">A &lt;b&gt; &amp; &quot;c&quot; "
                                      "&apos;d&apos; e\xCC\x81</marc:subfield>\r\n"
                                      "\t\t<marc:subfield code=\"c\">\xEF\xBF\xBDz<"));
  const std::string before = Fields(record);
  record.XmlRecordIn(xml);
  std::string after = before;
  after.replace(after.find("\xFF\x01"), 2, "\xEF\xBF\xBD");
  EXPECT_EQ(Fields(record), after);
  for (const std::int16_t mode : {-1, 1, 5, 6}) EXPECT_EQ(record.XMLRecordOut(mode), "");
}

TEST(XmlRecordOut, LeavesARecordInItsCharacterSet) {
  Utf8MarcRecordClass record;
  record.CharacterSetOut("M");
  record.NewRecord("c", "m");
  record.CharacterSetIn("M");
  record.FldAdd("500", "  ",
                "\x1F"
                "aCaf\xE2"
                "e");
  EXPECT_THAT(record.XMLRecordOut(0), testing::HasSubstr("Cafe\xCC\x81<"));
  EXPECT_EQ(record.CharacterSetOut(), "M");
  record.FldFindFirst("500", "");
  EXPECT_EQ(record.FldText(),
            "\x1F"
            "aCaf\xE2"
            "e");
}

TEST(XmlText, IsTaggedAndQuoted) {
  EXPECT_EQ(Utf8MarcRecordClass::XmlConditionText("<a&b>'\"\xFF"),
            "&lt;a&amp;b&gt;&apos;&quot;\xFF");
  EXPECT_EQ(Utf8MarcRecordClass::XmlTags("x y=1", "t"), "<x y=1>t</x>");
  EXPECT_EQ(Utf8MarcRecordClass::AddQuotes("a"), "\"a\"");
}

}  // namespace
}  // namespace cantorel
