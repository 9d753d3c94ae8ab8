// Writing in other scripts than Latin, in UTF-8 and in MARC-8.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

struct ScriptCase {
  std::string_view text;
  bool vernacular;
  std::string_view scripts;
};

void ExpectScripts(Utf8MarcRecordClass& record, const ScriptCase& c) {
  record.NewRecord("c", "m");
  record.FldAdd("245", "00",
                std::string("\x1F"
                            "a")
                    .append(c.text));
  EXPECT_EQ(record.FldContainsVernacularData(), c.vernacular) << c.text;
  EXPECT_EQ(record.SfdContainsVernacularData(), c.vernacular) << c.text;
  EXPECT_EQ(record.VernacularDataPresent(), c.vernacular) << c.text;
  EXPECT_EQ(record.FldCharacterizeVernacularData(), c.scripts) << c.text;
  record.FldDelete();
  EXPECT_FALSE(record.VernacularDataPresent()) << "a deleted field";
  record.FldPointer(-1);
  EXPECT_FALSE(record.FldContainsVernacularData() || record.SfdContainsVernacularData());
}

TEST(VernacularData, ByScriptInUtf8) {
  Utf8MarcRecordClass record;
  for (const ScriptCase& c : {
           ScriptCase{"Plain", false, ""}, ScriptCase{"Dvo\xC5\x99\xC3\xA1k, \xC4\xB0z", false, ""},
           ScriptCase{"Vi\xE1\xBB\x87t", false, ""},                         // U+1EC7
           ScriptCase{"\xE2\x84\x93 \xE2\x99\xAF \xE2\x80\x9C", false, ""},  // script l, sharp
           ScriptCase{"o\xEF\xB8\xA0o\xEF\xB8\xA1", false, ""},              // ligature halves
           ScriptCase{"\xD0\x96 \xCE\xA9", true, "GC"}, ScriptCase{"\xD7\x90\xD8\xA7", true, "HA"},
           ScriptCase{"\xE6\xBC\xA2\xE3\x81\x82\xEA\xB0\x80", true, "KIJ"},
           ScriptCase{"\xE0\xB8\x81", true, ""},  // Thai has no letter
           ScriptCase{"\xD5\xA1", true, ""},      // nor Armenian
           ScriptCase{"\xE6\xBC", false, ""},     // cut short
       }) {
    ExpectScripts(record, c);
  }
}

TEST(VernacularData, ByDesignationInMarc8) {
  Utf8MarcRecordClass record;
  record.CharacterSetOut("M");
  for (const ScriptCase& c : {
           ScriptCase{"Dvo\xE9rak \xD0\x96", false, ""},
           ScriptCase{"H\x1B"
                      "b2\x1B"
                      "sO \x1B"
                      "(B \x1B"
                      ")!E",
                      false, ""},
           ScriptCase{"\x1B(NABC\x1B(B", true, "C"},
           ScriptCase{"\x1B$1!0!\x1B(B \x1B(3x", true, "AI"},
           ScriptCase{"\x1B)2x\x1B,4y\x1B-Sz", true, "GHA"},
           ScriptCase{"\x1B", false, ""},
           ScriptCase{"\x1B(", false, ""},
           ScriptCase{"\x1B"
                      "1",
                      false, ""},
       }) {
    ExpectScripts(record, c);
  }
}

}  // namespace
}  // namespace cantorel
