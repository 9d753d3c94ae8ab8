// Geographic subdivisions: what the service is asked, in order, and what follows.

#include "genre/fake_service.h"
#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;

using Texts = std::vector<std::string>;

class PlacesTest : public GenreTest {
 protected:
  PlacesTest() {
    service_.Add("names", "germany", "n80125931", "Germany");
    service_.Add("names", "boston%20mass", "n79045553", "Boston (Mass.)");
    service_.Add("subjects", "charles%20river%20mass%20watertown", "sh85022765",
                 "Charles River (Mass. : Watertown)");
    service_.Add("names", "sydney%20n%20s%20w", "n79007182", "Sydney (N.S.W.)");
    service_.Add("names", "trinidad", "n80043321", "Trinidad");
    service_.Add("names", "bavaria%20kingdom", "n90000001", "Bavaria (Kingdom)");
    service_.Add("names", "cote%20d%27ivoire", "n79006721", "Co&#x302;te d'Ivoire");
    service_.Add("subjects", "africa", "sh85001531", "Africa");
    service_.Add("names", "tbilisi%20georgia", "n79064964", "Tbilisi (Georgia)");
  }

  // The 370 of a heading with these subdivisions.
  std::string Place(std::string_view subdivisions) {
    service_.requests.clear();
    return DeriveFrom({{"650", " 0", "$aCanzoni" + std::string(subdivisions)}});
  }
  // General messages.
  Texts PlaceMessages() {
    Texts messages = Messages();
    messages.pop_back();  // that the heading itself gave nothing
    return messages;
  }

  FakeService service_{session_};
};

struct PlaceCase {
  std::string_view subdivisions;
  std::string key;
  std::string_view requests;
  std::string_view expected;  // empty: not found
};

const PlaceCase kCases[] = {
    {"$zGermany.", "zGERMANYz", "n germany / n80125931 / ", "370  $gGermany$2naf"},
    {"$zMassachusetts$zBoston.", "zMASSACHUSETTSzBOSTON", "n boston%20mass / n79045553 / ",
     "370  $gBoston (Mass.)$2naf"},
    {"$zMassachusetts$zBoston (Suffolk County)", "zMASSACHUSETTSzBOSTON SUFFOLK COUNTY",
     "n boston%20mass%20suffolk%20county / s boston%20mass%20suffolk%20county / n "
     "boston%20suffolk%20county%20mass / s boston%20suffolk%20county%20mass / ",
     ""},
    {"$zMassachusetts$zCharles River (Watertown)", "zMASSACHUSETTSzCHARLES RIVER WATERTOWN",
     "n charles%20river%20mass%20watertown / s charles%20river%20mass%20watertown / sh85022765 / ",
     "370  $gCharles River (Mass. : Watertown)$2lcsh"},
    {"$zAustralia$zSydney (N.S.W.)", "zAUSTRALIAzSYDNEY N S W",
     "n sydney%20n%20s%20w / n79007182 / ", "370  $gSydney (N.S.W.)$2naf"},
    {"$zTrinidad and Tobago$zTrinidad", "zTRINIDAD AND TOBAGOzTRINIDAD",
     "n trinidad%20trinidad%20and%20tobago / s trinidad%20trinidad%20and%20tobago / n trinidad / "
     "n80043321 / ",
     "370  $gTrinidad$2naf"},
    // The second subdivision says all: a former state, or its own qualifier.
    {"$zGermany$zBavaria (Kingdom)", "zGERMANYzBAVARIA KINGDOM",
     "n bavaria%20kingdom / n90000001 / ", "370  $gBavaria (Kingdom)$2naf"},
    {"$zMassachusetts$zBoston (Mass.)", "zMASSACHUSETTSzBOSTON MASS",
     "n boston%20mass / n79045553 / ", "370  $gBoston (Mass.)$2naf"},
    // The qualifier of the larger place, kept, lost in its abbreviation, left out.
    {"$zNew York (State)$zUtica", "zNEW YORK STATEzUTICA",
     "n utica%20n%20y / s utica%20n%20y / n utica%20n%20y / s utica%20n%20y / ", ""},
    {"$zGeorgia (Republic)$zTbilisi", "zGEORGIA REPUBLICzTBILISI",
     "n tbilisi%20georgia%20republic / s tbilisi%20georgia%20republic / n tbilisi%20georgia / "
     "n79064964 / ",
     "370  $gTbilisi (Georgia)$2naf"},
    {"$zGeorgia (Republic)$zGori (Old)", "zGEORGIA REPUBLICzGORI OLD",
     "n gori%20georgia%20republic%20old / s gori%20georgia%20republic%20old / n "
     "gori%20old%20georgia%20republic / s gori%20old%20georgia%20republic / n gori%20old%20georgia "
     "/ s gori%20old%20georgia / n gori%20georgia%20old / s gori%20georgia%20old / ",
     ""},
    // Part of a place: by its own name, then by that of the place.
    {"$zMassachusetts$zBoston Metropolitan Area", "zMASSACHUSETTSzBOSTON METROPOLITAN AREA",
     "n boston%20metropolitan%20area%20mass / s boston%20metropolitan%20area%20mass / n "
     "boston%20mass / n79045553 / ",
     "370  $gBoston Metropolitan Area (Mass.)"},
    {"$zKentucky$zOhio Valley (Upper)", "zKENTUCKYzOHIO VALLEY UPPER",
     "n ohio%20valley%20ky%20upper / s ohio%20valley%20ky%20upper / n ohio%20valley%20upper%20ky / "
     "s ohio%20valley%20upper%20ky / n ky%20upper%20ohio / s ky%20upper%20ohio / n "
     "upper%20ohio%20ky / s upper%20ohio%20ky / ",
     ""},
    {"$zAfrica, Southern", "zAFRICA SOUTHERNz",
     "n africa%20southern / s africa%20southern / n africa / s africa / sh85001531 / ",
     "370  $gAfrica$2lcsh"},
    {"$zRegion", "zREGIONz", "n region / s region / ", ""},
    {"$zCo\xCC\x82te d'Ivoire", "zCOTE DIVOIREz", "n cote%20d%27ivoire / n79006721 / ",
     "370  $gCo\xCC\x82te d'Ivoire$2naf"},
    // Nothing to ask for.
    {"$z.", "zz", "", ""},
};

TEST_F(PlacesTest, AsksInOrder) {
  for (const PlaceCase& test : kCases) {
    SCOPED_TRACE(test.subdivisions);
    EXPECT_EQ(Place(test.subdivisions), test.expected);
    EXPECT_EQ(service_.requests, test.requests);
    if (test.expected.empty()) {
      EXPECT_THAT(PlaceMessages(),
                  ElementsAre("2 Reconstructed $z not found: 6XX " + test.key,
                              "2 No 370 for $z: 650 $aCanzoni" + std::string(test.subdivisions)));
    } else {
      EXPECT_THAT(PlaceMessages(), ElementsAre("2 Place found: 6XX " + test.key));
    }
  }
}

TEST_F(PlacesTest, IsDoneWithoutTheService) {
  EXPECT_EQ(Place("$zGermany"), "370  $gGermany$2naf");
  service_.up = false;
  std::string requests;
  for (const PlaceCase& test : kCases) {
    SCOPED_TRACE(test.subdivisions);
    const bool known = test.key == "zGERMANYz";
    EXPECT_EQ(Place(test.subdivisions), known ? test.expected : "");
    EXPECT_EQ(PlaceMessages().size(), known ? 1 : 2);
    requests += service_.requests;
  }
  EXPECT_EQ(requests, "n boston%20mass / ") << "the first that fails is the last";
  service_.up = true;
  EXPECT_EQ(Place("$zMassachusetts$zBoston"), "");
}

TEST_F(PlacesTest, AsksOncePerPair) {
  service_.requests.clear();
  EXPECT_EQ(DeriveFrom({{"650", " 0", "$aAnthems$zMassachusetts$zBoston$xHistory$zGermany"},
                        {"651", " 0", "$aItaly$zMassachusetts$zBoston."},
                        {"650", " 0", "$aCanzoni$zMassachusetts$zBoston$zGermany"}}),
            "655 7$aAnthems$2lcgft\n385  $aChoirs$2lcdgt\n370  $gBoston (Mass.)$2naf\n"
            "370  $gGermany$2naf");
  EXPECT_EQ(service_.requests, "n boston%20mass / n79045553 / n germany / n80125931 / ");
  EXPECT_EQ(PlaceMessages().size(), 6) << "five places found, a heading without a field";
  Place("$zMassachusetts$zBoston");
  EXPECT_EQ(service_.requests, "");
  music_.Reset(true);
  Place("$zMassachusetts$zBoston");
  EXPECT_EQ(service_.requests, "n boston%20mass / n79045553 / ");
}

TEST_F(PlacesTest, KnowsThePlaceThatTheRecordHas) {
  const std::string canzoni = "$aCanzoni$zMassachusetts$zBoston";
  EXPECT_EQ(DeriveFrom({{"650", " 0", canzoni}, {"370", "  ", "$gBoston (Mass.)$2naf"}}), "");
  EXPECT_EQ(DeriveFrom({{"650", " 0", canzoni}, {"370", "  ", "$cBoston (Mass.)$2naf"}}),
            "370  $gBoston (Mass.)$2naf");
}

}  // namespace
}  // namespace cantorel
