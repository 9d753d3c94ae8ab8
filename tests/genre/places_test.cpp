// Geographic subdivisions: what the service is asked, in order, and what follows.

#include "genre/fake_service.h"
#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
  Texts requests;
  std::string_view expected;  // empty: not found
};

const PlaceCase kCases[] = {
    {"$zGermany.", "zGERMANYz", {"names: germany", "n80125931"}, "370  $gGermany$2naf"},
    {"$zMassachusetts$zBoston.",
     "zMASSACHUSETTSzBOSTON",
     {"names: boston%20mass", "n79045553"},
     "370  $gBoston (Mass.)$2naf"},
    {"$zMassachusetts$zBoston (Suffolk County)",
     "zMASSACHUSETTSzBOSTON SUFFOLK COUNTY",
     {"names: boston%20mass%20suffolk%20county", "subjects: boston%20mass%20suffolk%20county",
      "names: boston%20suffolk%20county%20mass", "subjects: boston%20suffolk%20county%20mass"},
     ""},
    {"$zMassachusetts$zCharles River (Watertown)",
     "zMASSACHUSETTSzCHARLES RIVER WATERTOWN",
     {"names: charles%20river%20mass%20watertown", "subjects: charles%20river%20mass%20watertown",
      "sh85022765"},
     "370  $gCharles River (Mass. : Watertown)$2lcsh"},
    {"$zAustralia$zSydney (N.S.W.)",
     "zAUSTRALIAzSYDNEY N S W",
     {"names: sydney%20n%20s%20w", "n79007182"},
     "370  $gSydney (N.S.W.)$2naf"},
    {"$zTrinidad and Tobago$zTrinidad",
     "zTRINIDAD AND TOBAGOzTRINIDAD",
     {"names: trinidad%20trinidad%20and%20tobago", "subjects: trinidad%20trinidad%20and%20tobago",
      "names: trinidad", "n80043321"},
     "370  $gTrinidad$2naf"},
    // The second subdivision says all: a former state, or its own qualifier.
    {"$zGermany$zBavaria (Kingdom)",
     "zGERMANYzBAVARIA KINGDOM",
     {"names: bavaria%20kingdom", "n90000001"},
     "370  $gBavaria (Kingdom)$2naf"},
    {"$zMassachusetts$zBoston (Mass.)",
     "zMASSACHUSETTSzBOSTON MASS",
     {"names: boston%20mass", "n79045553"},
     "370  $gBoston (Mass.)$2naf"},
    // The qualifier of the larger place, kept, lost in its abbreviation, left out.
    {"$zNew York (State)$zUtica",
     "zNEW YORK STATEzUTICA",
     {"names: utica%20n%20y", "subjects: utica%20n%20y", "names: utica%20n%20y",
      "subjects: utica%20n%20y"},
     ""},
    {"$zGeorgia (Republic)$zTbilisi",
     "zGEORGIA REPUBLICzTBILISI",
     {"names: tbilisi%20georgia%20republic", "subjects: tbilisi%20georgia%20republic",
      "names: tbilisi%20georgia", "n79064964"},
     "370  $gTbilisi (Georgia)$2naf"},
    {"$zGeorgia (Republic)$zGori (Old)",
     "zGEORGIA REPUBLICzGORI OLD",
     {"names: gori%20georgia%20republic%20old", "subjects: gori%20georgia%20republic%20old",
      "names: gori%20old%20georgia%20republic", "subjects: gori%20old%20georgia%20republic",
      "names: gori%20old%20georgia", "subjects: gori%20old%20georgia",
      "names: gori%20georgia%20old", "subjects: gori%20georgia%20old"},
     ""},
    // Part of a place: by its own name, then by that of the place.
    {"$zMassachusetts$zBoston Metropolitan Area",
     "zMASSACHUSETTSzBOSTON METROPOLITAN AREA",
     {"names: boston%20metropolitan%20area%20mass", "subjects: boston%20metropolitan%20area%20mass",
      "names: boston%20mass", "n79045553"},
     "370  $gBoston Metropolitan Area (Mass.)"},
    {"$zKentucky$zOhio Valley (Upper)",
     "zKENTUCKYzOHIO VALLEY UPPER",
     {"names: ohio%20valley%20ky%20upper", "subjects: ohio%20valley%20ky%20upper",
      "names: ohio%20valley%20upper%20ky", "subjects: ohio%20valley%20upper%20ky",
      "names: ky%20upper%20ohio", "subjects: ky%20upper%20ohio", "names: upper%20ohio%20ky",
      "subjects: upper%20ohio%20ky"},
     ""},
    {"$zAfrica, Southern",
     "zAFRICA SOUTHERNz",
     {"names: africa%20southern", "subjects: africa%20southern", "names: africa",
      "subjects: africa", "sh85001531"},
     "370  $gAfrica$2lcsh"},
    {"$zRegion", "zREGIONz", {"names: region", "subjects: region"}, ""},
    {"$zCo\xCC\x82te d'Ivoire",
     "zCOTE DIVOIREz",
     {"names: cote%20d%27ivoire", "n79006721"},
     "370  $gCo\xCC\x82te d'Ivoire$2naf"},
    // Nothing to ask for.
    {"$z.", "zz", {}, ""},
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
  std::size_t requests = 0;
  for (const PlaceCase& test : kCases) {
    SCOPED_TRACE(test.subdivisions);
    const bool known = test.key == "zGERMANYz";
    EXPECT_EQ(Place(test.subdivisions), known ? test.expected : "");
    EXPECT_EQ(PlaceMessages().size(), known ? 1 : 2);
    requests += service_.requests.size();
  }
  EXPECT_EQ(requests, 1) << "the first that fails is the last";
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
  EXPECT_THAT(service_.requests,
              ElementsAre("names: boston%20mass", "n79045553", "names: germany", "n80125931"));
  EXPECT_EQ(PlaceMessages().size(), 6) << "five places found, a heading without a field";
  Place("$zMassachusetts$zBoston");
  EXPECT_THAT(service_.requests, IsEmpty());
  music_.Reset(true);
  Place("$zMassachusetts$zBoston");
  EXPECT_THAT(service_.requests, ElementsAre("names: boston%20mass", "n79045553"));
}

TEST_F(PlacesTest, KnowsThePlaceThatTheRecordHas) {
  const std::string canzoni = "$aCanzoni$zMassachusetts$zBoston";
  EXPECT_EQ(DeriveFrom({{"650", " 0", canzoni}, {"370", "  ", "$gBoston (Mass.)$2naf"}}), "");
  EXPECT_EQ(DeriveFrom({{"650", " 0", canzoni}, {"370", "  ", "$cBoston (Mass.)$2naf"}}),
            "370  $gBoston (Mass.)$2naf");
}

}  // namespace
}  // namespace cantorel
