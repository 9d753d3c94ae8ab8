#include "cli/marcxml_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/record_reader.h"
#include "slow_source.h"

namespace cantorel::cli {
namespace {

// A line a piece: offset, then the fault, or the data of the image with "^" for
// the ends of fields and "$" for delimiters.
std::string Read(std::string_view xml, std::size_t step) {
  SlowSource source(xml, step);
  const auto reader = OpenRecordReader(source);
  std::string lines;
  for (Piece piece; reader->Next(piece);) {
    lines += std::to_string(piece.offset) + " ";
    if (!piece.fault.empty()) {
      lines.append(piece.fault).append("\n");
      continue;
    }
    std::string data(piece.octets.substr(piece.octets.find('\x1E') + 1));
    std::replace(data.begin(), data.end(), '\x1E', '^');
    std::replace(data.begin(), data.end(), '\x1F', '$');
    data.back() = '\n';
    lines += data;
  }
  return lines;
}

const std::string kLeader = "<leader>00000nam a2200000 a 4500</leader>";

TEST(MarcXmlReader, CutsAnInputIntoRecords) {
  const struct {
    std::string xml;
    std::string pieces;
  } cases[] = {
      // What stands around records, and looks like one, is passed over.
      {"\xEF\xBB\xBF <?xml version='1.0' encoding='utf-8'?><!DOCTYPE x><collection>\n<!-- <record> "
       "-->"
       "<record>" +
           kLeader +
           "<controlfield tag='001'>1</controlfield><!-- </record> -->"
           "<datafield tag='245' ind1='1' ind2='é'><subfield code='a'>A "
           "&gt;&#65;<![CDATA[</record>]]>\r\n"
           "</subfield></datafield></record></collection><!-- end",
       "84 1^1 $aA >A</record>^\n"},
      // Wrappers of another make; each prefix; names that only end alike.
      {"<r><record><header/><marc:record><marc:leader>x</marc:leader><marc:controlfield "
       "tag=\"001\"/>"
       "</marc:record></record><zs:record><recordData><record>" +
           kLeader +
           "</record></recordData>"
           "</zs:record><marcxml:record><marcxml:leader>x</marcxml:leader></marcxml:record></r>",
       "20 ^\n137 \n220 \n"},
      {"<collection><record>" + kLeader + "<record>" + kLeader + "</record>",
       "12 Record element does not end\n61 \n119 Input ends inside its collection\n"},
      {"<record>" + kLeader + "<datafield", "0 Record element does not end\n"},
      {"<html>no</html>", "15 No MARCXML record found\n"},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><record>" + kLeader + "</record>",
       "0 MARCXML in ISO-8859-1 is not read, only UTF-8\n"},
      {std::string("\xFF\xFE<\0?\0", 6), "0 MARCXML in UTF-16 is not read, only UTF-8\n"},
      {"<record><datafield tag='500'>" + kLeader + "<subfield code='a'>x</subfield></record>",
       "0 A subfield stands outside of any field\n"},
      // What ISO 2709 has no form for.
      {"<record></record><record>" + kLeader + "<datafield tag='50'/></record><record>" + kLeader +
           "<datafield tag='500'><subfield code='ab'>x</subfield></datafield></record><record>" +
           kLeader + "<controlfield tag='003'>" + std::string(9999, 'x') +
           "</controlfield></record>",
       "0 Record has no leader\n17 A field has \"50\" for its tag\n"
       "96 A subfield of 500 has \"ab\" for its code\n"
       "219 Field 003 of 10000 octets is too long for ISO 2709\n"},
  };
  for (const auto& c : cases) {
    for (const std::size_t step : {1, 7, 1 << 20}) EXPECT_EQ(Read(c.xml, step), c.pieces);
  }
}

TEST(MarcXmlReader, KeepsLeaderAndOrder) {
  const std::string xml =
      "<record><datafield tag='650' ind2='0'><subfield code='&lt;'>\xC3\xA9&#x1F;</subfield>"
      "</datafield><leader>     cjm  22      a 45  </leader><controlfield "
      "tag='008'>8</controlfield>"
      "<controlfield tag='008'/></record>";
  SlowSource source(xml, xml.size());
  const auto reader = OpenRecordReader(source);
  Piece piece;
  ASSERT_TRUE(reader->Next(piece));
  EXPECT_EQ(piece.octets,
            "00072cjm a2200061 a 4500650000700000008000200007008000100009\x1E 0\x1F<\xC3\xA9\x1E"
            "8\x1E\x1E\x1D");
}

// Every beginning of an input, and the input with each octet spoilt.
TEST(MarcXmlReader, StandsAnyDamage) {
  const std::string xml =
      "<collection><!--c--><marc:record><marc:leader>00000nam a2200000 a 4500"
      "</marc:leader><marc:controlfield tag=\"001\">1<![CDATA[x]]>&amp;"
      "</marc:controlfield></marc:record></collection>";
  for (std::size_t i = 1; i < xml.size(); ++i) {
    EXPECT_FALSE(Read(xml.substr(0, i), 5).empty()) << i;
    for (const char c : {'<', '>', '"', '&', '!', '\0', '\x1D', '\xFF'}) {
      std::string spoilt = xml;
      spoilt[i] = c;
      EXPECT_FALSE(Read(spoilt, 64).empty()) << spoilt;
    }
  }
}

}  // namespace
}  // namespace cantorel::cli
