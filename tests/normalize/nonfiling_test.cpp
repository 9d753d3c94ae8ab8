// What is left out in filing: counted by an indicator, or between markers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

void ReplaceAll(std::string& text, std::string_view sought, std::string_view replacement) {
  for (std::size_t i = 0; (i = text.find(sought, i)) != std::string::npos;) {
    text.replace(i, sought.size(), replacement);
    i += replacement.size();
  }
}

// "<" and ">" stand for the markers, "$" for the delimiter.
std::string Written(std::string_view readable, bool utf8) {
  std::string text(readable);
  ReplaceAll(text, "<", utf8 ? "\xC2\x98" : "\x88");
  ReplaceAll(text, ">", utf8 ? "\xC2\x9C" : "\x89");
  ReplaceAll(text, "$", "\x1F");
  return text;
}

struct ZoneCase {
  std::string_view text;
  std::string_view expected;
  bool found;
};

TEST(NonfilingZone, GoesWithItsMarkers) {
  static constexpr ZoneCase kCases[] = {
      {"", "", false},
      {"the sea", "the sea", false},
      {"<the >sea", "Sea", true},
      {"$a<the >sea", "$aSea", true},
      {"$aBy <the >sea", "$aBy sea", true},
      {"$a<the >sea$b<a >storm", "$aSea$bstorm", true},
      {"by <b> c <d> e", "by  c  e", true},
      {"by <b <c> d> e", "by  e", true},
      {"a <b>c", "A c", true},  // a marker at position 3, whatever is before it
      // Without an end the zone reaches to the end of the subfield.
      {"$aBy <the sea", "$aBy ", true},
      {"$aBy <the$bsea", "$aBy $bsea", true},
      {"<<", "", true},
      {"by<<a>b", "By", true},
      // A second end for one begin stays.
      {"x<a>b>c", "xb>c", true},
      // An end without a begin takes what is before it in its subfield, and
      // counts as a zone only at the start of a text without delimiter.
      {"the >sea", "Sea", true},
      {"a >b >sea", "Sea", true},
      {"$athe >sea", "$aSea", false},
      {"$ax$bthe >sea$cend", "$ax$bSea$cend", false},
      {"$athe >sea <x>side", "$aSea side", true},
      {">", "", true},
      {"$", "$", false},
      {"$>", "$>", false},
  };
  for (bool utf8 : {true, false}) {
    Utf8MarcRecordClass record;
    if (!utf8) record.CharacterSetOut("M");
    for (const ZoneCase& c : kCases) {
      if (!utf8 && c.text == "$>") continue;  // one octet, hence a subfield code
      std::string text = Written(c.text, utf8);
      bool found = !c.found;
      record.RemoveNonfilingZone(text, found);
      EXPECT_EQ(text, Written(c.expected, utf8)) << c.text << (utf8 ? " UTF-8" : " MARC-8");
      EXPECT_EQ(found, c.found) << c.text;
    }
  }
}

TEST(NonfilingZone, ManyMarkersTakeNoLongerThanTheirNumber) {
  const Utf8MarcRecordClass record;
  std::string text = Written("<", true);
  for (int i = 0; i < 200'000; ++i) text += i % 2 == 0 ? Written("x>", true) : Written("<<", true);
  bool found = false;
  record.RemoveNonfilingZone(text, found);
  EXPECT_TRUE(found);
}

struct CountCase {
  std::string_view format;
  std::string_view tag;
  std::string_view indicators;
  std::string_view text;
  std::string_view expected;
  std::string_view indicators_after;
};

TEST(NonfilingCharacters, CountedByTheIndicator) {
  static constexpr CountCase kCases[] = {
      {"B", "245", "14", "$athe sea$bthe end", "$aSea$bthe end", "10"},
      {"B", "245", "14", "$6880-01$athe sea", "$6880-01$aSea", "10"},
      {"B", "245", "14", "the sea", "Sea", "10"},
      {"B", "245", "14", "The ", "", "10"},
      {"B", "245", "19", "The", "", "10"},
      {"B", "245", "10", "the sea", "the sea", "10"},
      {"B", "245", "1 ", "the sea", "the sea", "10"},
      {"B", "245", "1x", "the sea", "the sea", "10"},
      {"B", "245", "", "the sea", "the sea", "0"},
      {"B", "130", "4 ", "the sea", "Sea", "0 "},
      {"B", "740", "42", "the sea", "Sea", "02"},
      {"B", "650", "44", "the sea", "the sea", "44"},
      {"A", "130", " 4", "the sea", "Sea", " 0"},
      {"A", "245", " 4", "the sea", "the sea", " 4"},
      {"Q", "830", " 4", "the sea", "the sea", " 4"},
      {"Q", "245", " 4", "the sea", "Sea", " 0"},
      {"H", "245", " 4", "the sea", "the sea", " 4"},
      {"", "245", " 4", "the sea", "the sea", " 4"},
      {"H", "Sup", " 4", "the sea", "the sea", " 4"},
      // A zone comes first; it clears a count that is there.
      {"B", "245", "14", "<the >sea", "Sea", "10"},
      {"B", "245", "1 ", "<the >sea", "Sea", "1 "},
      {"B", "650", "14", "<the >sea", "Sea", "14"},
      // An end without a begin in a subfield is no zone: the count goes on.
      {"B", "245", "12", "$ax>the sea", "$aE sea", "10"},
  };
  const Utf8MarcRecordClass record;
  for (const CountCase& c : kCases) {
    std::string indicators(c.indicators);
    EXPECT_EQ(
        record.RemoveNonfilingCharacters(c.format, c.tag, indicators, Written(c.text, true), true),
        Written(c.expected, true))
        << c.format << c.tag << c.indicators << c.text;
    EXPECT_EQ(indicators, c.indicators_after) << c.format << c.tag << c.indicators << c.text;
  }
}

TEST(NonfilingCharacters, CountsCharactersOrOctets) {
  Utf8MarcRecordClass record;
  std::string indicators = "03";
  EXPECT_EQ(record.RemoveNonfilingCharacters("B", "245", indicators, "\u00C9\u00C9 x", false), "x");
  indicators = "09";
  EXPECT_EQ(record.RemoveNonfilingCharacters("B", "245", indicators, "ab\xE2\x80", false), "");
  record.CharacterSetOut("M");
  indicators = "03";
  EXPECT_EQ(record.RemoveNonfilingCharacters("B", "245", indicators,
                                             "\xE2"
                                             "e x",
                                             false),
            "x");
}

}  // namespace
}  // namespace cantorel
