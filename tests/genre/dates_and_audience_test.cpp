// Subdivisions that tell a time, an audience, a creator or a style.

#include "genre/fake_service.h"
#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

using ::testing::IsEmpty;

using Texts = std::vector<std::string>;

class DatesAndAudienceTest : public GenreTest {
 protected:
  DatesAndAudienceTest() {
    std::ofstream(files_.Folder() + "/Music6xxTo655.txt", std::ios::binary | std::ios::app)
        << "CATECHISMS_ITALIAN_1=x//655#7\tListed\tlcgft\n"
           "METHODS_JAZZ_1=x//655#7\tListed\tlcgft\n"
           "[LanguagesByName]\nItalian=ita\nOld_Norse=non onx\n"
           "[MusicalStyle]\nJazz=Jazz $2 lcgft\nFado=Fado [U+0301]\n";
    service_.Add("demographicTerms", "Italian%20speakers", "dg1", "Italophones");
    service_.Add("demographicTerms", "poles", "dg2", "Poles");
    service_.Add("demographicTerms", "polish", "dg3", "Poles");
  }
  // What the subdivisions of a heading give in a record of these languages.
  std::string Audience(std::string_view subdivisions, std::string_view languages = "$aitaengnon") {
    return DeriveFrom(
        {{"041", "  ", languages}, {"600", "10", "$aDante" + std::string(subdivisions)}});
  }
  Texts GeneralMessages() {
    Texts messages = Messages();
    messages.pop_back();  // that the heading itself gave nothing
    return messages;
  }

  FakeService service_{session_};
};

TEST_F(DatesAndAudienceTest, DatesOfCreation) {
  struct {
    std::string_view subdivision;
    std::string_view expected;
  } cases[] = {
      {"1800-1899", "046  $o1800$p1899$2edtf"},
      {"1800-1899.", "046  $o1800$p1899$2edtf"},
      {"800-1300,", "046  $o0800$p1300$2edtf"},
      {"1800-1899, new", ""},
      {"1800/1899", ""},
      {"18x0-1899", ""},
      {"19th century", "046  $o18"},
      {"1st century.", "046  $o00"},
      {"22ND Century", "046  $o21"},
      {"0th century", ""},
      {"th century", ""},
      {"To 19th century", ""},
      {"19th century B.C.", ""},
      {"To 1500", "046  $p1500$2edtf"},
      {"To 150", ""},
      {"To 15000", ""},
      {"", ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.subdivision);
    const std::string heading = "$aCanzoni$y" + std::string(test.subdivision);
    EXPECT_EQ(DeriveFrom({{"650", " 0", heading}}), test.expected);
    EXPECT_EQ(Messages().size(), 1) << "the heading itself gave nothing";
  }
  EXPECT_EQ(DeriveFrom({{"650", " 0", "$aCanzoni$y1800-1899$y1800-1899$yTo 1500"},
                        {"046", "  ", "$p1500"}}),
            "046  $o1800$p1899$2edtf");
}

TEST_F(DatesAndAudienceTest, Phrases) {
  struct {
    std::string_view subdivisions;
    std::string_view expected;
  } cases[] = {
      {"$vCatechisms, Italian", "655 7$aCatechisms$2lcgft"},
      {"$xCATECHISMS, Old Norse.", "655 7$aCatechisms$2lcgft"},
      {"$vCatechisms, Martian", ""},
      {"$vCatechisms", ""},
      {"$vConcordances, Italian", "655 7$aConcordances$2lcgft"},
      {"$vConversation and phrase books, Italian", "655 7$aPhrase books$2lcgft"},
      {"$vHarmonies, Italian", "655 7$aHarmonies (Reference works)$2lcgft"},
      // What was understood keeps later phrases from being read, in this heading.
      {"$vHarmonies, Italian$vConcordances, Italian$vBibliography",
       "655 7$aHarmonies (Reference works)$2lcgft"},
      {"$vBibliography$vCensus, 1990.", "655 7$aBibliographies$2lcgft\n655 7$aCensus data$2lcgft"},
      {"$vCensus, 199x$vBibliography", "655 7$aBibliographies$2lcgft"},
      {"$vCensus, 19901$vBibliography", "655 7$aBibliographies$2lcgft"},
      {"$vDictionaries, Juvenile$xItalian", "655 7$aDictionaries$2lcgft\n385 7$aChildren$2lcdgt"},
      {"$vDictionaries, Juvenile", ""},
      {"$vDictionaries, Juvenile$bItalian$xItalian", ""},
      {"$vFilms for Old Norse speakers",
       "655 7$aMotion pictures$2lcgft\n385 7$aOld norse speakers$2lcdgt"},
      {"$vFilms for Italian people", ""},
      {"$vFilms for speakers", ""},
      {"$vVideo recordings for Italian speakers",
       "655 7$aVideo recordings$2lcgft\n385 7$aItalian speakers$2lcdgt"},
      {"$vSound recordings for Italian speakers",
       "655 7$aSound recodings$2lcgft\n385 7$aItalophones$2lcdgt"},
      {"$vSound recordings for Old Norse speakers",
       "655 7$aSound recodings$2lcgft\n385 7$aOld norse speakers"},
      {"$xTextbooks for Italian speakers",
       "655 7$aTextbooks$2lcgft\n385 7$aItalian speakers$2lcdgt"},
      {"$xTextbooks for foreign speakers$xItalian$vBibliography",
       "655 7$aTextbooks$2lcgft\n385 7$aItalian speakers$2lcdgt"},
      {"$xTextbooks for foreign speakers$vBibliography", "655 7$aBibliographies$2lcgft"},
      {"$vPersonal narratives, Polish",
       "655 7$aPersonal narratives$2lcgft\n386 7$aPolish speakers$2lcdgt"},
      // A style leaves the way to the table open.
      {"$vMethods (Jazz)",
       "655 7$aMethods (Music)$2lcgft\n655 7$aJazz$2lcgft\n655 7$aListed$2lcgft"},
      {"$vmethods (Fado)$vSelf-instruction",
       "655 7$aMethods (Music)$2lcgft\n655 7$aFado \xCC\x81\n"
       "655 7$aProgrammed instructional materials$2lcgft"},
      {"$vStudies and exercises (Jazz)$vSelf-instruction",
       "655 7$aStudies (Music)$2lcgft\n655 7$aJazz$2lcgft"},
      {"$vMethods (Polka)$vSelf-instruction", ""},
      {"$vMethods (Big band)", "655 7$aPopular music$2lcgft"},
      {"$vStudies and exercises (Big band)", ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.subdivisions);
    EXPECT_EQ(Audience(test.subdivisions), test.expected);
    EXPECT_THAT(GeneralMessages(), IsEmpty());
  }
}

TEST_F(DatesAndAudienceTest, LanguagesAreLookedForInTheRecord) {
  struct {
    std::string_view languages;  // 041
    std::string_view place;      // 008/15-17
    Texts messages;
  } cases[] = {
      {"$aengonx", "   ", {}},
      {"$aeng$anon", "   ", {}},
      {"$aeng", "non", {}},
      {"$aenonx$bnon",
       "   ",
       {"2 Code onx from OLD NORSE not found in record: 600 $aDante$vHarmonies, Old Norse"}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.languages);
    Begin("c", " ");
    record_.Change008Value(15, test.place);
    record_.Change008Value(35, "onx");
    Add({{"041", "  ", test.languages}, {"600", "10", "$aDante$vHarmonies, Old Norse"}});
    EXPECT_EQ(Derive(), "655 7$aHarmonies (Reference works)$2lcgft");
    EXPECT_EQ(GeneralMessages(), test.messages);
  }
}

TEST_F(DatesAndAudienceTest, UnknownNationalities) {
  const std::string_view martian = "$vPersonal narratives, Martian";
  const Texts message = {
      "2 Nationality not found: MARTIAN: 600 $aDante$vPersonal narratives, Martian"};
  EXPECT_EQ(Audience(martian), "");
  EXPECT_EQ(GeneralMessages(), message);
  service_.up = false;
  EXPECT_EQ(Audience("$vPersonal narratives, Lunar$vBibliography"), "655 7$aBibliographies$2lcgft");
  EXPECT_EQ(Audience("$vSound recordings for Italian speakers"),
            "655 7$aSound recodings$2lcgft\n385 7$aItalian speakers");
}

}  // namespace
}  // namespace cantorel
