#include "medium/medium_phrase.h"

#include <gtest/gtest.h>

#include "medium/small_vocabulary.h"

namespace cantorel {
namespace {

class MediumPhraseTest : public testing::Test {
 protected:
  MediumPhraseTest() {
    vocabulary_.InstrumentFile(file_.Path());
    EXPECT_EQ(vocabulary_.Prepare(), 0);
  }

  // Reads a phrase behind what the buffer holds already.
  std::string Read(std::string_view phrase, std::string_view buffer = "") {
    std::string field = Delimited(buffer);
    all_terms_known_ = true;
    result_ = ParseMediumPhrase(context_, phrase, field, all_terms_known_);
    return Readable(field);
  }

  SmallVocabulary file_;
  Utf8MarcRecordClass record_;
  MusicSession session_;
  ConversionReport report_;
  MediumVocabulary vocabulary_{session_, report_};
  MediumContext context_{record_, vocabulary_, report_, "Heading", "id1"};
  std::int32_t result_ = 0;
  bool all_terms_known_ = true;
};

TEST_F(MediumPhraseTest, GivesTheSubfieldsOfAPhrase) {
  struct Case {
    std::string_view phrase;
    std::string_view field;
    std::int32_t codes;
  };
  const Case cases[] = {
      // Lists: comma, "and" in any case, an opening parenthesis, empty items.
      {"Flute, violin and continuo", "$aflute$n1$aviolin$n1$acontinuo", 2},
      {"(Flute AND oboe", "$aflute$n1$aoboe$n1", 2},
      {" , ;, Flute,, and and oboe ,", "$aflute$n1$aoboe$n1", 2},
      {"", "", 0},
      // "and" inside a name, at any place, and only in front of its other half.
      {"Drum and bugle corps", "$adrum and bugle corps$n1", 2},
      {"Piano and drum and Bugle corps and flute", "$apiano$n1$adrum and bugle corps$n1$aflute$n1",
       2},
      {"Fife and drum corps", "$afife and drum corps$n1", 2},
      // Counts and notes.
      {"Pianos (2)", "$apiano$n2", 2},
      {"2 pianos", "$apiano$n2", 2},
      {"Percussion, percussion (3)", "$apercussion$apercussion$n3", 2},
      {"Piano (4 hands)", "$apiano$n2$vpiano, 4 hands", 18},
      {"Piano (1 hand)", "$apiano$n1$vpiano, 1 hand", 18},
      {"Flute, Piano, 4 hands, oboe", "$aflute$n1$apiano$n2$vpiano, 4 hands$aoboe$n1", 10},
      // Hands need a count at the very end of the field.
      {"4 hands", "", 0},
      {"Piano, continuo, 4 hands, oboe", "$apiano$n1$acontinuo", 2},
      {"Piano, 3 hands, 4 hands", "$apiano$n2$vpiano, 3 hands", 10},
      // Combinations; the vocabulary wins over the table.
      {"String trios", "$aviolin$n1$aviola$n1$acello$n1", 4},
      {"Piano trio", "$apiano trio$n1", 2},
      // Accompaniment: always $a, the performers ahead of it $b.
      {"Violin with orchestra", "$bviolin$n1$aorchestra$n1", 2},
      {"String trio with flute and piano with oboe",
       "$bviolin$n1$bviola$n1$bcello$n1$aflute$n1$apiano$n1$aoboe$n1", 6},
      {"Flute WITH orchestra", "", 1},
      // In an accompaniment "and" counts by exact case and never joins a name.
      {"Flute with oboe AND piano", "$bflute$n1", 3},
      // Electronics are counted alone in an accompaniment, not with a note.
      {"Electronics with electronics", "$belectronics$aelectronics$n1", 2},
      {"Continuo with continuo, percussion", "$bcontinuo$acontinuo$apercussion", 2},
      // Ensembles by rule.
      {"Recorder ensembles", "$arecorder ensemble$n1", 2},
      {"Guitar choir with piano", "$bguitar ensemble$n1$apiano$n1", 2},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Read(c.phrase), c.field) << c.phrase;
    EXPECT_EQ(result_, c.codes) << c.phrase;
  }
}

TEST_F(MediumPhraseTest, AppendsToWhatIsThere) {
  EXPECT_EQ(Read("4 hands", "$apiano$n1"), "$apiano$n2$v, 4 hands");
  EXPECT_EQ(Read("flute", "1:$bspeaker$n1"), "1:$bspeaker$n1$aflute$n1");
}

TEST_F(MediumPhraseTest, AnUnknownItemEndsTheWork) {
  EXPECT_EQ(Read("Flute, zither of glass, oboe with piano"), "$bflute$n1");
  EXPECT_EQ(result_, kSingleMedium | kUnrecognized);
  EXPECT_EQ(Read("Flute with zither, oboe"), "$bflute$n1");
  // The note of the item that failed is written all the same.
  EXPECT_EQ(Read("Flute, Zither (4 hands)"), "$aflute$n1$vzither, 4 hands");
  EXPECT_EQ(result_, kSingleMedium | kUnrecognized);
}

TEST_F(MediumPhraseTest, OddItemsAreUnrecognized) {
  for (std::string_view item : {"Flute (soprano)", "Pianos (2 grand)", "Flute ()", "(2)", "2",
                                "0 flutes", "Flute (0)", "Flute \xFF(", "Baritone", "Ensemble"}) {
    EXPECT_EQ(Read(item), "") << item;
    EXPECT_EQ(result_, kUnrecognized) << item;
  }
}

TEST_F(MediumPhraseTest, ItemsWithoutLettersAreNone) {
  for (std::string_view item : {"(((((", ")", "\xC3", "\x1F", "-, -"}) {
    EXPECT_EQ(Read(item), "") << item;
    EXPECT_EQ(result_, 0) << item;
  }
}

TEST_F(MediumPhraseTest, BaritoneGoesByTheHeading) {
  context_.heading_text = "Quartets (Baritone, horn, trombone, trumpet)";
  EXPECT_EQ(Read("Baritone, baritones (2)"), "$abaritone horn$n1$abaritone horn$n2");
}

TEST_F(MediumPhraseTest, ATermMadeByRuleIsTold) {
  EXPECT_EQ(Read("Oboe orchestra"), "$aoboe orchestra$n1");
  EXPECT_FALSE(all_terms_known_);
  EXPECT_TRUE(context_.of_interest);
  // A listed ensemble of another kind is a term of the vocabulary.
  EXPECT_EQ(Read("Guitar orchestras (2)"), "$aguitar ensemble$n1");
  EXPECT_TRUE(all_terms_known_);
}

TEST_F(MediumPhraseTest, TidiesNotes) {
  EXPECT_EQ(TidyNote(context_, "Piano (4  hands)"), "piano, 4 hands");
  EXPECT_EQ(TidyNote(context_, "Organ (Two hands)"), "organ two hands");
  EXPECT_EQ(TidyNote(context_, "4 hands"), "4 hands");
  EXPECT_EQ(TidyNote(context_, "Piano,  4  Hands"), "piano, 4 hands");
  EXPECT_EQ(TidyNote(context_, "Piano, 4 hands)"), "piano, 4 hands");
  EXPECT_EQ(TidyNote(context_, "Piano, (4 hands)"), "piano, (4 hands)");
  EXPECT_EQ(TidyNote(context_, " hand"), " hand");
  EXPECT_EQ(TidyNote(context_, ""), "");
}

TEST_F(MediumPhraseTest, LongPhrasesStayCheap) {
  std::string phrase;
  for (int i = 0; i < 20'000; ++i) phrase += "flute and drum and ";
  EXPECT_EQ(Read(phrase), "$aflute$n1");
  std::string blanks(100'000, ' ');
  EXPECT_EQ(Read(blanks + "," + blanks), "");
}

}  // namespace
}  // namespace cantorel
