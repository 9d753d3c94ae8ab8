// Each first word of the dispatch table and each rule behind one.

#include "heading_reader.h"

namespace cantorel {
namespace {

TEST(HeadingBranches, PlainWords) {
  HeadingReader reader;
  ExpectFields(reader,
               {
                   {"Ballads", "$asinger$2lcmpt", "one word"},
                   {"Ballads, English", "$asinger$2lcmpt", "holds \"ballads, \""},
                   {"Ballads in opera", "", "neither"},
                   {"Carols", "$avocal ensemble$2lcmpt", "the word alone decides"},
                   {"Carols, English", "$avocal ensemble$2lcmpt", "whatever follows"},
                   {"Chamber music", "$ainstrumental ensemble$e1$2lcmpt", "an ensemble takes $e"},
                   {"Chamber music.", "$ainstrumental ensemble$e1$2lcmpt", "final point dropped"},
                   {"Chamber orchestra music", "", "not \"chamber music\": general patterns"},
                   {"Fiddle tunes", "$afiddle$2lcmpt", "whole heading"},
                   {"Fiddle", "", "general, and not listed"},
                   {"Folk songs, English", "1:$asinger$2lcmpt", "first indicator 1"},
                   {"Folk music", "", "\"folk songs\" is demanded, \"... music\" is not tried"},
                   {"Hymns, English", "$avocal ensemble$2lcmpt", "the word alone decides"},
                   {"Instrumental ensembles", "$ainstrumental ensemble$e1$2lcmpt", "whole heading"},
                   {"Lullabies, French", "$asinger$2lcmpt", "the word alone decides"},
                   {"Madrigals, Italian", "$avocal ensemble$2lcmpt", "the word alone decides"},
                   {"Mixed media music", "$amixed media$2lcmpt", "whole heading"},
                   {"Mixed choirs", "", "general, and not listed"},
                   {"Part songs, English", "$avocal ensemble$2lcmpt", "opening"},
                   {"Part books", "", "opening missing"},
                   {"School songbooks", "$avocal ensemble$e1$2lcmpt", "opening"},
                   {"School music", "", "opening missing"},
                   {"Songbooks, English", "$avocal ensemble$e1$2lcmpt", "the word alone decides"},
                   {"Symphonic poems", "$aorchestra$e1$2lcmpt", "no parenthesis"},
                   {"Symphonic poems (Band)", "$aband$e1$2lcmpt", "the parenthesis is read"},
                   {"Symphonic music", "", "opening missing"},
               });
}

TEST(HeadingBranches, Parentheticals) {
  HeadingReader reader;
  for (std::string_view word :
       {"Canons, fugues, etc.", "Chaconnes", "Chorale preludes", "Intabulations", "Marches",
        "Overtures", "Passacaglias", "Potpourris", "Rondos", "Scherzos", "Sonatas", "Suites",
        "Symphonic poems", "Symphonies", "Trio sonatas", "Variations", "Waltzes"}) {
    const std::string heading(word);
    EXPECT_EQ(reader.Read(heading + " (Violin and piano)").field, "$aviolin$n1$apiano$n1$2lcmpt")
        << word;
    EXPECT_EQ(reader.Read(heading + " (Ophicleide)").result, kHeadingGaveNothing) << word;
  }
  ExpectFields(reader,
               {
                   {"Sonatas", "", "the parenthesis is demanded"},
                   {"Suites", "", "the parenthesis is demanded"},
                   {"Sonatas, Baroque (Flute)", "", "the literal must open the heading"},
                   {"Chorale preludes", "$aorgan$2lcmpt", "bare form"},
                   {"Overtures", "$aorchestra$e1$2lcmpt", "bare form"},
                   {"Symphonies", "$aorchestra$e1$2lcmpt", "bare form, ensemble takes $e"},
                   {"Symphonies, Choral", "", "neither"},
                   {"SONATAS (FLUTE)", "$aflute$n1$2lcmpt", "case does not count"},
                   {"Sonatas (Flutes (2))", "$aflute$n2$2lcmpt", "only the final \")\" goes"},
                   {"Sonatas (Flute", "$aflute$n1$2lcmpt", "a missing \")\" is no harm"},
                   {"Sonatas ()", "", "nothing to read leaves the field empty"},
                   {"Trio sonatas (Oboes (2), continuo)", "$aoboe$n2$acontinuo$2lcmpt",
                    "continuo takes no count"},
               });
}

TEST(HeadingBranches, InstrumentGroups) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Duets", "", "two of anything say nothing"},
          {"Duets (Flute, piano)", "$aflute$n1$apiano$n1$2lcmpt", "parenthesis"},
          {"Trios", "$ainstrument$3$2lcmpt", "the digit stands as subfield code"},
          {"Quartets", "$ainstrument$4$2lcmpt", "the same"},
          {"Quintets", "$ainstrument$5$2lcmpt", "the same"},
          {"Sextets", "$ainstrument$6$2lcmpt", "the same"},
          {"Septets", "$ainstrument$7$2lcmpt", "the same"},
          {"Octets", "$ainstrument$8$2lcmpt", "the same"},
          {"Nonets", "$ainstrument$9$2lcmpt", "the same"},
          {"Trios (Piano, flute, cello)", "$apiano$n1$aflute$n1$acello$n1$2lcmpt", "parenthesis"},
          {"Trios for winds", "", "more words must be a parenthesis"},
          {"Trios (Piano, ophicleide)", "", "unknown item"},
          {"Concertos (Violin)", "$bviolin$n1$aorchestra$e1$2lcmpt", "orchestra is understood"},
          {"Concertos (Orchestra)", "$aorchestra$e1$2lcmpt", "no second orchestra"},
          {"Concertos (Pianos (3) with string orchestra)", "$bpiano$n3$astring orchestra$e1$2lcmpt",
           "accompaniment named"},
          {"Concertos", "", "the parenthesis is demanded"},
          {"Concertos, Baroque (Violin)", "", "only \"Concertos\" may stand before it"},
          {"Brass quintets", "$abrass instrument$n5$2lcmpt", "family and number"},
          {"Woodwind trios", "$awoodwind instrument$n3$2lcmpt", "family and number"},
          {"Wind quintets (Bassoon, clarinet, flute, horn, oboe)",
           "$abassoon$n1$aclarinet$n1$aflute$n1$ahorn$n1$aoboe$n1$2lcmpt", "parenthesis"},
          {"Wind quintets (Ophicleide)", "", "general patterns do no better"},
          {"Wind trios (Oboe, ophicleide)", "", "unknown item behind a known one"},
          {"Brass bands", "$aband$e1$2lcmpt", "no group word: listed heading"},
          {"Brass", "", "no second word"},
          {"Piano trios", "$aviolin$n1$acello$n1$apiano$n1$2lcmpt", "fixed combination"},
          {"Piano quartets", "$aviolin$n1$aviola$n1$acello$n1$apiano$n1$2lcmpt", "the same"},
          {"Piano quintets", "$aviolin$n2$aviola$n1$acello$n1$apiano$n1$2lcmpt", "the same"},
          {"Piano sextets", "", "no fixed combination, not listed"},
          {"Plucked instrument quartets", "$aplucked instrument$n4$2lcmpt", "family and number"},
          {"Plucked instrument quartets (Guitar, mandolins (3))", "$aguitar$n1$amandolin$n3$2lcmpt",
           "parenthesis"},
          {"Plucked instrument quartets (Guitar, ophicleide)", "", "general patterns: nothing"},
          {"Plucked instruments", "", "no group word"},
          {"Plucked strings", "", "opening missing"},
          {"String quartets", "$aviolin$n2$aviola$n1$acello$n1$2lcmpt", "fixed combination"},
          {"String trios", "$aviolin$n1$aviola$n1$acello$n1$2lcmpt", "fixed combination"},
          {"String sextets", "$abowed string instrument$n6$2lcmpt", "other numbers"},
          {"String trios (Violins (2), viola)", "$aviolin$n2$aviola$n1$2lcmpt", "parenthesis"},
          {"String quartets with orchestra", "$bviolin$n2$bviola$n1$bcello$n1$aorchestra$e1$2lcmpt",
           "no parenthesis: general, where the phrase parser knows string quartets"},
      });
}

TEST(HeadingBranches, Choruses) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Cantatas", "$achorus$e1$2lcmpt", "a chorus is an ensemble"},
          {"Choruses with orchestra", "$achorus$e1$aorchestra$e1$2lcmpt", "no parenthesis"},
          {"Choruses without orchestra", "", "six characters behind \" with\" begins no item"},
          {"Choruses, Sacred (Mixed voices) with organ", "$amixed chorus$e1$aorgan$n1$2lcmpt",
           "an ensemble is no soloist"},
          {"Choruses, Secular (Women's voices, 4 parts) with flute, piano, 4 hands",
           "$awomen's chorus$e4$v4 parts$aflute$n1$apiano$n2$vpiano, 4 hands$2lcmpt",
           "parts are the count, with a note"},
          {"Choruses (Mixed voices, 4-8 parts)", "$amixed chorus$e4-8$v4-8 parts$2lcmpt",
           "only the first character must be a digit"},
          {"Choruses (Mixed voices, many parts)", "$amixed chorus$e1$2lcmpt", "no number"},
          {"Choruses (Changing voices)", "$achanging chorus$n1", "not in the vocabulary: no $2"},
          {"Choruses (Equal voices, 3 parts)", "$aequal voices$n3$v3 parts$2lcmpt", "equal"},
          {"Choruses (High voice)", "$ahigh voice$n1$2lcmpt", "single voices"},
          {"Choruses (Medium voice)", "$amedium voice$n1$2lcmpt", "single voices"},
          {"Choruses (Low voice)", "$asinger$n1$2lcmpt", "the literal misses its \"l\""},
          {"Choruses (ow voice)", "$alow voice$n1$2lcmpt", "the literal misses its \"l\""},
          {"Choruses (Vocal ensemble)", "$avocal ensemble$e1$2lcmpt", "ensemble"},
          {"Choruses (Unison)", "$achorus$e1$vunison$2lcmpt", "unison"},
          {"Cantatas (Soprano)", "$asinger$n1$2lcmpt", "anything else is a singer"},
          {"Choruses (Mixed voices) with ophicleide", "", "unknown item"},
      });
}

TEST(HeadingBranches, SongsAndVocalMusic) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Songs, English", "$asinger$2lcmpt", "no parenthesis"},
          {"Songs (High voice)", "$ahigh voice$2lcmpt", "no accompaniment, no count"},
          {"Songs (High voice) with piano", "$ahigh voice$n1$apiano$n1$2lcmpt",
           "without an ensemble there is no soloist"},
          {"Songs (Medium voice) with orchestra", "$bmedium voice$n1$aorchestra$e1$2lcmpt",
           "with an ensemble there is"},
          {"Songs (Low voice) with piano", "$alow voice$n1$apiano$n1$2lcmpt", "low voice"},
          {"Songs (Vocal ensemble) with piano", "$avocal ensemble$e1$apiano$n1$2lcmpt", "ensemble"},
          {"Songs with guitar", "$asinger$n1$aguitar$n1$2lcmpt", "accompaniment alone"},
          {"Songs (Tenor)", "", "a parenthesis of another kind"},
          {"Songs, 2 (voices)", "$asinger$n2$2lcmpt", "the number stands ahead"},
          {"Songs, 2 (voices) with piano", "$asinger$n2$apiano$n1$2lcmpt", "number and piano"},
          {"Songs (Voices (2))", "", "no number ahead"},
          {"Solo cantatas (High voice)", "10:$ahigh voice$2lcmpt", "both indicators set"},
          {"Solo cantatas, Sacred (Vocal ensemble)", "$avocal ensemble$2lcmpt", "voices only"},
          {"Solo cantatas", "$asinger$2lcmpt", "voices only"},
          {"Solo cantatas (High voice) with continuo", "$ahigh voice$n1$acontinuo$2lcmpt",
           "no prefix with an accompaniment"},
          {"Solo singing", "", "opening missing"},
          {"Vocalises (High voice) with piano", "$ahigh voice$n1$apiano$n1$2lcmpt", "as songs"},
          {"Vocal trios", "$asinger$n3$2lcmpt", "group word"},
          {"Vocal duets with piano", "$asinger$n2$apiano$n1$2lcmpt", "group and accompaniment"},
          {"Vocal trios with orchestra", "$bsinger$n3$aorchestra$e1$2lcmpt", "soloists"},
          {"Vocal ensembles", "$asolo vocal ensemble$2lcmpt", "ensembles"},
          {"Vocal ensembles with band", "$asolo vocal ensemble$aband$e1$2lcmpt", "no soloist"},
          {"Vocal trios with ophicleide", "", "unknown item"},
          {"Vocal", "", "no second word"},
          {"Vocal music", "", "general, where \"vocal\" is no instrument"},
      });
}

TEST(HeadingBranches, SacredMusicAndSpeakers) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Sacred songs (High voice) with organ", "$ahigh voice$n1$aorgan$n1$2lcmpt", "song"},
          {"Sacred songs, English (Tenor)", "$asinger$2lcmpt", "cut at the comma first"},
          {"Sacred vocal ensembles", "$asolo vocal ensemble$e1$2lcmpt", "ensemble"},
          {"Sacred vocal ensembles with organ", "$asolo vocal ensemble$e1$aorgan$n1$2lcmpt",
           "ensemble with accompaniment"},
          {"Sacred vocal duets", "$asinger$n2$2lcmpt", "group word"},
          {"Sacred vocal trios with orchestra", "$bsinger$n3$aorchestra$e1$2lcmpt", "soloists"},
          {"Sacred vocal trios, English", "", "only \"with\" may follow"},
          {"Sacred vocal music", "", "no group word"},
          {"Sacred music", "", "no opening of the rule"},
          {"Sacred monologues with music", "$aspeaker$n1$2lcmpt", "no prefix here"},
          {"Sacred monologues with music (Organ)", "$aspeaker$n1$aorgan$n1$2lcmpt", "speaker"},
          {"Monologues with music", "1:$aspeaker$n1$2lcmpt", "first indicator 1"},
          {"Monologues with music (Flute , piano)", "$aspeaker$n1$aflute$n1$apiano$n1$2lcmpt",
           "speaker and others"},
          {"Monologues with music (Flute with orchestra)",
           "$bspeaker$n1$aflute$n1$aorchestra$e1$2lcmpt", "speaker with others"},
          {"Monologues with music (Vocal quartet, piano)",
           "$aspeaker$n1$asinger$n4$apiano$n1$2lcmpt", "singers in front"},
          {"Monologues with music (Flute, vocal trio with orchestra)",
           "$bspeaker$n1$asinger$n3$aflute$n1$aorchestra$e1$2lcmpt", "singers in front"},
          {"Monologues with music (Vocal ensemble)", "", "no group word"},
          {"Monologues", "", "opening missing"},
      });
}

TEST(HeadingBranches, ScoreRule) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Ballets", "", "no score, no medium"},
          {"Ballets$vScores", "", "a full score says nothing here"},
          {"Ballets$vPiano scores", "$apiano$n1$2lcmpt", "one piano"},
          {"Ballets$v2-piano scores", "$apiano$n2$2lcmpt", "two pianos"},
          {"Ballets$x2 piano scores", "$apiano$n2$2lcmpt", "two pianos"},
          {"Ballets$vPiano scores (4 hands)", "$apiano$n2$vpiano, 4 hands$vpiano, 4 hands$2lcmpt",
           "the score is read by the rule and once more at the end, where only the count goes"},
          {"Ballets$vPiano scores (Reduced)", "", "no count"},
          {"Ballets$vPiano scores (4 players)", "", "no hands"},
          {"Ballets$vOld piano scores", "", "not at the head of the subdivision"},
          {"Incidental music$vPiano scores", "$apiano$n1$2lcmpt", "whole heading"},
          {"Incidental music, English$vPiano scores", "", "whole heading"},
          {"Orchestral music", "$aorchestra$e1$2lcmpt", "no subdivision"},
          {"Orchestral music$zFrance", "$aorchestra$e1$2lcmpt", "no $v or $x"},
          {"Orchestral music$vParts", "$aorchestra$e1$2lcmpt", "parts"},
          {"Orchestral music$xScores and parts", "$aorchestra$e1$2lcmpt", "scores"},
          {"Orchestral music$vPiano scores", "$apiano$n1$2lcmpt", "score rule"},
          {"Orchestral music$vBibliography", "", "score rule"},
          {"Orchestral music, Arranged$vBibliography", "", "score rule"},
          {"Orchestral suites", "", "whole heading"},
      });
}

TEST(HeadingBranches, TellWhetherAHeadingIsOfInterest) {
  HeadingReader reader;
  const std::vector<std::pair<std::string_view, bool>> cases = {
      {"Sonatas", true},               // the word has a branch
      {"Ballads in opera", true},      // although it gives nothing
      {"Suites", false},               // suites leave the flag as it was
      {"Suites (Flute)", false},       // even when a field comes of it
      {"Suites$vScores", true},        // the subdivision had set it
      {"Fiddle bows", false},          // left to the general patterns
      {"Chamber orchestras", false},   // the same
      {"Brass sculpture", false},      // the same
      {"Piano makers", false},         // the same
      {"Ophicleide music", true},      // "... music"
      {"Ophicleide with tuba", true},  // " with "
      {"Cooking", false},
      {"Tone poems", true},  // listed
      {"Prayers$vHymns", true},
  };
  for (const auto& [heading, of_interest] : cases) {
    EXPECT_EQ(reader.Read(heading).of_interest, of_interest) << heading;
  }
}

}  // namespace
}  // namespace cantorel
