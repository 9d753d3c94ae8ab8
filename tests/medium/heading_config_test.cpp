// Well-known headings over the configuration that comes with the program.  The
// totals ($r, $s, $t) are no matter of the grammar.

#include "heading_reader.h"

namespace cantorel {
namespace {

TEST(HeadingsOfTheStarterConfiguration, GiveTheirFields) {
  HeadingReader reader(CANTOREL_CONFIG);
  ExpectFields(
      reader,
      {
          {"Quartets", "$ainstrument$4$2lcmpt", "the digit stands as subfield code"},
          {"Duets", "", "two of anything say nothing"},
          {"Piano trios", "$aviolin$n1$acello$n1$apiano$n1$2lcmpt", "fixed combination"},
          {"Flute music", "$aflute$n1$2lcmpt", "\"... music\""},
          {"Baritone music", "$abaritone horn$n1$2lcmpt", "the brass instrument"},
          {"Violin and piano music", "$aviolin$n1$apiano$n1$2lcmpt", "two known instruments"},
          {"Concertos (Violin)", "$bviolin$n1$aorchestra$e1$2lcmpt",
           "read as \"violin with orchestra\""},
          {"Sonatas (Flute and piano)", "$aflute$n1$apiano$n1$2lcmpt", "parenthesis"},
          {"Songs (High voice) with piano", "$ahigh voice$n1$apiano$n1$2lcmpt",
           "without an ensemble there is no soloist"},
          {"Cantatas", "$achorus$e1$2lcmpt", "the vocabulary lists the chorus as ensemble"},
          {"Suites", "", "the parenthesis is demanded"},
          {"Choruses, Sacred (Mixed voices) with organ", "$amixed chorus$e1$aorgan$n1$2lcmpt",
           "voices make a chorus, no soloist"},
          {"Trio sonatas (Oboes (2), continuo)", "$aoboe$n2$acontinuo$2lcmpt",
           "continuo takes no count"},
          {"String quartets", "$aviolin$n2$aviola$n1$acello$n1$2lcmpt", "fixed combination"},
          {"Wind quintets (Bassoon, clarinet, flute, horn, oboe)",
           "$abassoon$n1$aclarinet$n1$aflute$n1$ahorn$n1$aoboe$n1$2lcmpt",
           "the parenthesis tells more than the number"},
          {"Concertos (Pianos (3) with string orchestra)", "$bpiano$n3$astring orchestra$e1$2lcmpt",
           "accompaniment named"},
          {"Saxophone with jazz ensemble", "$bsaxophone$n1$ainstrumental ensemble$e1$2lcmpt",
           "\" with \"; the preferred term of the ensemble"},
          {"Piano music (4 hands)", "$apiano$n2$v4 hands, piano$2lcmpt", "hands make players"},
          {"$aOperas$vVocal scores with piano", "", "operas tell no performers"},
          {"Choruses, Secular (Men's voices, 4 parts)", "$amen's chorus$e4$v4 parts$2lcmpt",
           "parts are counted, with a note"},
      });
  EXPECT_EQ(reader.Read("$aSymphonies$vExcerpts").result, kHeadingIsNoCandidate);
}

}  // namespace
}  // namespace cantorel
