// Derived fields against those that the record has.

#include "genre/genre_fixture.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DerivedField : public GenreTest {
 protected:
  void Collect(const std::vector<TestField>& fields) {
    Begin("c", " ");
    Add(fields);
    new_lines_.clear();
    music_.Private_655_CollectExistingFields(record_);
  }
  std::string NewLines() const { return Readable(new_lines_); }
};

TEST_F(DerivedField, NewOnesStandOnceInTheOrderOfTheirSubfields) {
  Collect({});
  AddDerived("655", "a", "  Sonatas ", "lcgft");
  AddDerived("655", "a", "SONATAS.", "lcgft");
  AddDerived("046", "o", "1800$p1899", "edtf");
  AddDerived("046", "o", "17", "");
  EXPECT_EQ(NewLines(), "655 7$aSonatas$2lcgft\n046 7$o1800$p1899$2edtf\n046 7$o17");
}

TEST_F(DerivedField, RewritesAnExistingOneOnce) {
  Collect({{"655", "04", "$2lcgft$3part 1$aSonatas."}, {"655", " 7", "$aSuites$2LCGFT"}});
  AddDerived("655", "a", "Sonatas", "lcgft");
  EXPECT_THAT(Fields("655"), ElementsAre(" 7$2lcgft$3part 1$aSonatas", " 7$aSuites$2LCGFT"));
  AddDerived("655", "a", "SONATAS", "lcgft");
  AddDerived("655", "a", "Suites", "lcgft");  // the code of an existing one counts with its case
  EXPECT_THAT(Fields("655"), ElementsAre(" 7$2lcgft$3part 1$aSonatas", " 7$aSuites$2LCGFT"));
  EXPECT_EQ(NewLines(), "655 7$aSuites$2lcgft");
}

// The heading that is being read stays current, although the field moves.
TEST_F(DerivedField, KeepsItsPlaceInTheHeading) {
  Collect({{"650", " 0", "$aSonatas$vScores"}, {"655", "04", "$aSonatas.$2lcgft"}});
  record_.FldFindFirst("650", {});
  record_.SfdFindFirst("v", {});
  AddDerived("655", "a", "Sonatas", "lcgft");
  EXPECT_EQ(record_.FldTag() + record_.SfdText(), "650Scores");
}

TEST_F(DerivedField, TellsAudiencesApartByTheirSource) {
  // Existing field, then what "Children" from lcdgt adds.
  struct {
    TestField existing;
    std::string_view expected;
  } cases[] = {
      {{"385", "  ", "$aChildren.$2lcdgt"}, ""},
      {{"385", "  ", "$aChildren$2lcsh"}, ""},  // known without its source
      {{"385", "  ", "$aChildren"}, "385 7$aChildren$2lcdgt"},
      {{"385", "  ", "$aChildren$2local"}, "385 7$aChildren$2lcdgt"},
      {{"386", "  ", "$aChildren$2lcdgt"}, "385 7$aChildren$2lcdgt"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.existing.text);
    Collect({test.existing});
    AddDerived("385", "a", "Children", "lcdgt");
    EXPECT_EQ(NewLines(), test.expected);
  }
  Collect({cases[2].existing});
  AddDerived("385", "a", "Children", "");
  EXPECT_EQ(NewLines(), "");
}

TEST_F(DerivedField, DatesAreNeverRewritten) {
  Collect({{"046", "  ", "$o17"}, {"046", "  ", "$o1800$p1899$2edtf"}});
  AddDerived("046", "o", "17", "");
  AddDerived("046", "o", "1800$p1899", "edtf");  // unlike the key of the existing range
  EXPECT_EQ(NewLines(), "046 7$o1800$p1899$2edtf");
  EXPECT_THAT(Fields("046"), ElementsAre("  $o17", "  $o1800$p1899$2edtf"));
}

TEST_F(DerivedField, EndsInAPointWhereWanted) {
  music_.AddTerminalPunctuationTo("655 385");
  Collect({{"655", " 7", "$aSuites$2lcgft"}});
  AddDerived("655", "a", "Suites", "lcgft");
  AddDerived("655", "a", "Parts (Music)", "lcgft");
  AddDerived("655", "a", "Sonatas", "lcgft");
  AddDerived("385", "a", "Children", "lcdgt");
  EXPECT_THAT(Fields("655"), ElementsAre(" 7$aSuites.$2lcgft"));
  EXPECT_EQ(NewLines(),
            "655 7$aParts (Music)$2lcgft\n655 7$aSonatas.$2lcgft\n385 7$aChildren$2lcdgt");
}

TEST_F(DerivedField, SplitsPlaces) {
  Collect({{"370", "  ", "$0x$gVienna (Austria)$fGraz (Austria)$gVienna (Austria)$2naf"},
           {"370", "  ", "$gBonn (Germany)$2naf"},
           {"370", "  ", "$gRome (Italy)$gPisa (Italy)$2NAF"}});
  EXPECT_THAT(Fields("370"), ::testing::UnorderedElementsAre(
                                 "  $gVienna (Austria)$0x$2naf", "  $gVienna (Austria)$0x$2naf",
                                 "  $fGraz (Austria)$0x$2naf", "  $gBonn (Germany)$2naf",
                                 "  $gRome (Italy)$gPisa (Italy)$2NAF"));
  AddDerived("370", "g", "Vienna (Austria)", "lcsh");
  AddDerived("370", "g", "Pisa (Italy)", "naf");
  EXPECT_EQ(NewLines(), "370 7$gPisa (Italy)$2naf");
  EXPECT_EQ(Fields("370").size(), 5U);
}

// No field is mistaken for another one in a record of very many.
TEST_F(DerivedField, LeavesFieldsBehindRow500Alone) {
  Begin("c", " ");
  for (int i = 0; i < 1700; ++i) {
    const std::string text = "$aNote " + std::to_string(i);
    Add({{"500", "  ", text}});
    if (i % 400 == 399) {
      const std::string genre = "$aGenre " + std::to_string(i) + ".$2lcgft";
      Add({{"655", " 7", genre}});
    }
  }
  music_.Private_655_CollectExistingFields(record_);
  for (const int i : {399, 799, 1199, 1599}) {
    AddDerived("655", "a", "Genre " + std::to_string(i), "lcgft");
  }
  EXPECT_THAT(Fields("655"), ElementsAre(" 7$aGenre 399$2lcgft", " 7$aGenre 799.$2lcgft",
                                         " 7$aGenre 1199.$2lcgft", " 7$aGenre 1599.$2lcgft"));
  EXPECT_EQ(Fields("500").size(), 1700U);
  EXPECT_EQ(Fields("500")[1], "  $aNote 1");
  EXPECT_THAT(NewLines(), IsEmpty());
}

}  // namespace
}  // namespace cantorel
