#include <gtest/gtest.h>

#include "record/marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

using TextPair = std::pair<std::string_view, std::string_view>;

TEST(PlaceNamesTest, AbbreviatesAndExpands) {
  Utf8MarcRecordClass record;
  const TextPair abbreviations[] = {
      {"new york (State)", "N.Y."},
      {"Virgin Islands", "Virgin Islands"},
      {"Korea (North)", "Korea"},
      {"United States", "U.S."},
      {"Que\xCC\x81\x62\x65\x63 (Province)", "Que\xCC\x81\x62\x65\x63"},
      {"Ohio", "Ohio"},
      {"", ""},
  };
  for (const auto& [name, expected] : abbreviations) {
    EXPECT_EQ(record.AbbreviatePlaceName(name), expected) << name;
  }
  const TextPair expansions[] = {
      {"N.S.W.", "New South Wales/Australia"},
      {"N. S. W.", "New South Wales/Australia"},
      {"W. Va.", "West Virginia/United States"},
      {"Que\xCC\x81\x62\x65\x63", "Qu\\'ebec (Province)/Canada"},
      {"U.S.", "UNITED STATES/"},
      {"Ohio", "/"},
      {"", "/"},
  };
  for (const auto& [abbreviation, expected] : expansions) {
    std::string name = "before", qualifier = "before";
    record.ExpandPlaceAbbreviation(abbreviation, name, qualifier);
    EXPECT_EQ(name + "/" + qualifier, expected) << abbreviation;
  }
}

TEST(PlaceNamesTest, SubdividesIndirectly) {
  Utf8MarcRecordClass record;
  const TextPair cases[] = {
      {"$3v. 1$aBoston (Mass.)$xHistory", "$zMassachusetts$zBoston"},
      {"Champlain (N.Y. : Town)", "$zNew York (State)$zChamplain (Town)"},
      {"Geneva (Lake : Wis.)", "$zWisconsin$zGeneva (Lake)"},
      {"Boston (Mass. : Suffolk County)", "$zBoston (Mass. : Suffolk County)"},
      {"$aPrussia (Grand Duchy)", "$aPrussia (Grand Duchy)"},
      {"$aParis (France)", "$zParis (France)"},
      {"Boston (Mass.", "$zMassachusetts$zBoston"},
      {"(", "$z("},
      {"", "$z"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(Readable(record.IndirectSubdivisionForm(Text(text))), expected);
  }
}

}  // namespace
}  // namespace cantorel
