#include <gtest/gtest.h>

#include "record/marc_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

TEST(PlaceNamesTest, Abbreviates) {
  struct {
    std::string_view name;
    std::string_view expected;
  } cases[] = {
      {"Alabama", "Ala."},
      {"new york (State)", "N.Y."},
      {"Russian S.F.S.R.", "Russia"},
      {"Yukon Territory", "Yukon"},
      {"Virginia", "Va."},
      {"Virgin Islands", "Virgin Islands"},
      {"Korea (North)", "Korea"},
      {"United States", "U.S."},
      {"Que\xCC\x81"
       "bec (Province)",
       "Que\xCC\x81"
       "bec"},
      {"Ohio", "Ohio"},
      {"Virgin", "Virgin"},
      {"", ""},
  };
  Utf8MarcRecordClass record;
  for (const auto& test : cases) {
    EXPECT_EQ(record.AbbreviatePlaceName(test.name), test.expected) << test.name;
  }
}

TEST(PlaceNamesTest, Expands) {
  struct {
    std::string_view abbreviation;
    std::string_view name;
    std::string_view qualifier;
  } cases[] = {
      {"N.S.W.", "New South Wales", "Australia"},
      {"N. S. W.", "New South Wales", "Australia"},
      {"W.A.", "Western Australia", "Australia"},
      {"W. Va.", "West Virginia", "United States"},
      {"N.Y.", "New York (State)", "United States"},
      {"Que\xCC\x81"
       "bec",
       "Qu\\'ebec (Province)", "Canada"},
      {"U.S.", "UNITED STATES", ""},
      {"Russia", "Russia (Federation)", ""},
      {"Congo", "", ""},
      {"", "", ""},
  };
  Utf8MarcRecordClass record;
  for (const auto& test : cases) {
    SCOPED_TRACE(test.abbreviation);
    std::string name = "before", qualifier = "before";
    record.ExpandPlaceAbbreviation(test.abbreviation, name, qualifier);
    EXPECT_EQ(name, test.name);
    EXPECT_EQ(qualifier, test.qualifier);
  }
}

TEST(PlaceNamesTest, SubdividesIndirectly) {
  struct {
    std::string_view text;
    std::string_view expected;
  } cases[] = {
      {"Boston (Mass.)", "$zMassachusetts$zBoston"},
      {"$3v. 1$aBoston (Mass.)$xHistory", "$zMassachusetts$zBoston"},
      {"Champlain (N.Y. : Town)", "$zNew York (State)$zChamplain (Town)"},
      {"Geneva (Lake : Wis.)", "$zWisconsin$zGeneva (Lake)"},
      {"Boston (Mass. : Suffolk County)", "$zBoston (Mass. : Suffolk County)"},
      {"Hannover (Electorate : Kingdom)", "$zHannover (Electorate : Kingdom)"},
      {"$aPrussia (Grand Duchy)", "$aPrussia (Grand Duchy)"},
      {"$aParis (France)", "$zParis (France)"},
      {"Germany", "$zGermany"},
      {"Boston (Mass.", "$zMassachusetts$zBoston"},
      {"(", "$z("},
      {"", "$z"},
  };
  Utf8MarcRecordClass record;
  for (const auto& test : cases) {
    EXPECT_EQ(Readable(record.IndirectSubdivisionForm(Text(test.text))), test.expected);
  }
}

}  // namespace
}  // namespace cantorel
