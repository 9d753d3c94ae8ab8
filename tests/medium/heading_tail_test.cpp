// The general patterns, and what score subdivisions make of a field.

#include "medium/heading_tail.h"

#include "heading_reader.h"

namespace cantorel {
namespace {

TEST(HeadingPatterns, MusicForAMedium) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Flute music", "$aflute$n1$2lcmpt", "instrument"},
          {"Violoncello music", "$acello$n1$2lcmpt", "preferred term"},
          {"Percussion music", "$apercussion$n1$2lcmpt", "counted here, whatever the term"},
          {"Ophicleide music", "", "unknown"},
          {"Baritone music", "$abaritone horn$n1$2lcmpt", "the brass instrument"},
          {"Baritone and piano music", "$abaritone horn$n1$apiano$n1$2lcmpt", "the same"},
          {"Violin and piano music", "$aviolin$n1$apiano$n1$2lcmpt", "two instruments"},
          {"Violin and ophicleide music", "", "both must be known"},
          {"Violin and flute and piano music", "", "no more than two"},
          {"Drum and bugle corps music", "$adrum and bugle corps$n1$2lcmpt", "one term"},
          {"Fife and drum corps music", "$afife and drum corps$n1$2lcmpt", "one term"},
          {"Flute choir music", "$aflute choir$e1$2lcmpt", "ensemble of the vocabulary"},
          {"Saxophone ensemble music", "$asaxophone ensemble$e1", "made by rule: no $2"},
          {"Piano music (4 hands)", "$apiano$n2$v4 hands, piano$2lcmpt", "hands form"},
          {"Piano music (Piano (4 hands))", "$apiano$n2$vpiano (4 hands), piano$2lcmpt", "note"},
          {"Piano music (Pianos (2))", "$apiano$n2$2lcmpt", "one medium"},
          {"Piano music (Pianos (2), 8 hands)", "$apiano$n4$vpianos (2), 8 hands$2lcmpt",
           "read by the phrase parser"},
          {"Flute music (Flute and piano)", "$aflute$n1$apiano$n1$2lcmpt", "phrase"},
          {"Flute music (Ophicleide)", "", "unknown item"},
          {"Ophicleide music (Flute)", "", "unknown instrument, no other pattern fits"},
          {"Saxophone with jazz ensemble", "$bsaxophone$n1$ajazz ensemble$e1$2lcmpt", "with"},
          {"Ophicleide with orchestra", "", "unknown item"},
      });
}

TEST(HeadingPatterns, ListedHeadingsAndHymns) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Tone poems", "$aorchestra$2lcmpt", "listed"},
          {"Tone-poems", "$aorchestra$2lcmpt", "by comparison form"},
          {"Guqin tunes",
           "$agu\xCC\x82qin [u+0041][U+110000]\xF0\x9D\x84\x9E[U+D800][U+][U+00e9$2lcmpt",
           "escapes decoded, what is none stays"},
          {"Hymnals", "", "not listed"},
          {"buddhist hymns, English", "$avocal ensemble$2lcmpt", "small letter; one $2 only"},
          {"Buddhist hymns, English", "", "case counts"},
          {"Prayers$vHymns", "$avocal ensemble$2lcmpt", "subdivision"},
          {"Prayers$vhymns", "", "case counts"},
      });
}

TEST(HeadingTail, PianoScoresReplaceTheField) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Symphonies$vPiano scores", "$apiano$n1$2lcmpt", "one piano"},
          {"Symphonies$vPiano scores.", "$apiano$n1$2lcmpt", "nothing normalisable behind"},
          {"Symphonies$v2-piano scores", "$apiano$n2$2lcmpt", "two pianos"},
          {"Choruses (Changing voices)$v2 piano scores", "$apiano$n2$2lcmpt",
           "$2 although the chorus was unknown"},
          {"Solo cantatas (High voice)$vPiano scores", "$apiano$n1$2lcmpt", "the prefix goes too"},
          {"Symphonies$vPiano scores (4 hands)", "$apiano$n2$vpiano, 4 hands$2lcmpt",
           "read as a solo with piano"},
          {"Symphonies$vOld piano scores", "$aorchestra$e1$2lcmpt", "not at the code"},
          {"Symphonies$zPiano scores", "$aorchestra$e1$2lcmpt", "neither $v nor $x"},
      });
}

TEST(HeadingTail, VocalScoresBringTheirAccompaniment) {
  HeadingReader reader;
  ExpectFields(reader,
               {
                   {"Choruses (Mixed voices)$vVocal scores with piano",
                    "$amixed chorus$e1$apiano$n1$2lcmpt", "$a only: singers, then the piano"},
                   {"Choruses (Mixed voices) with orchestra$vVocal scores with piano.",
                    "$amixed chorus$e1$apiano$n1$2lcmpt", "$a and $b: the orchestra gives way"},
                   {"Songs (High voice) with orchestra$xChorus scores with piano",
                    "$ahigh voice$n1$apiano$n1$2lcmpt", "the same"},
                   {"Songs (High voice)$vVocal score with piano (4 hands)",
                    "$ahigh voice$apiano$n2$vpiano, 4 hands$2lcmpt", "the note of the item"},
                   {"Monologues with music$vVocal scores with piano",
                    "1:$aspeaker$n1$apiano$n1$apiano$n1$2lcmpt", "no $a: the new part comes twice"},
                   {"Choruses (Mixed voices) with orchestra$vVocal scores without accompaniment",
                    "$amixed chorus$e1$2lcmpt", "the accompaniment goes"},
                   {"Choruses (Mixed voices)$vVocal scores without accompaniment",
                    "$amixed chorus$e1$2lcmpt", "nothing to take away"},
                   {"Piano music (Pianos (2))$vVocal scores without accompaniment",
                    "$apiano$n2$a$n2$2lcmpt", "an empty part with the count of the parenthesis"},
                   {"Choruses (Mixed voices)$vVocal scores with flute, ophicleide", "$aflute$n1",
                    "the call ends with what was read"},
                   {"Choruses (Mixed voices)$vVocal scores with saxophone ensemble",
                    "$amixed chorus$e1$asaxophone ensemble$e1", "made by rule: no $2"},
                   {"Symphonies$vAbridged vocal scores with piano", "$aorchestra$e1$2lcmpt",
                    "not at the code"},
               });
  const HeadingAnswer empty = reader.Read("Choruses (Mixed voices)$vVocal scores with ophicleide");
  EXPECT_EQ(empty.result, kHeadingGaveField) << "an empty field, as nothing was read";
  EXPECT_EQ(empty.field, "");
}

TEST(HeadingTail, SoloPartsReplaceTheLastMedium) {
  HeadingReader reader;
  ExpectFields(
      reader,
      {
          {"Concertos (Violin)$vSolo with piano", "$aviolin$n1$apiano$n1$2lcmpt", "with its count"},
          {"Concertos (Violins (2))$vSolos with piano", "$aviolin$n2$apiano$n1$2lcmpt", "solos"},
          {"Tone poems$vSolo with piano", "$apiano$n1$2lcmpt", "an orchestra without a count"},
          {"Carols$vSolo with piano", "$avocal ensemble", "no count, no orchestra: ends as it is"},
          {"Monologues with music$vSolo with piano", "1:$aspeaker$n1$2lcmpt", "no $a"},
          {"Choruses (Unison)$vSolo with piano", "$apiano$n1$vunison$2lcmpt", "the note stays"},
          {"Piano music (Pianos (2))$vSolo with flute", "$aflute$n1$n2$2lcmpt",
           "the count of the parenthesis behind the part"},
          {"Piano music (Piano (4 hands))$vSolo with flute",
           "$aflute$n1$n2$vpiano (4 hands), piano$vflute$2lcmpt", "count and note"},
      });
}

TEST(HeadingTail, StripAccompaniment) {
  const std::vector<std::pair<std::string_view, std::string_view>> cases = {
      {"$bviolin$n1$aorchestra$e1", "$bviolin$n1"},
      {"$aviolin$bpiano$n1", "bpiano$n1"},
      {"1:$ax$by$az", "1:by"},
      {"$bx", "$bx"},
      {"$a", ""},
      {"", ""},
  };
  for (const auto& [text, stripped] : cases) {
    std::string field = Delimited(text);
    StripAccompaniment(field);
    EXPECT_EQ(Readable(field), stripped) << text;
  }
}

TEST(Soloists, Settle) {
  HeadingReader reader;
  const std::vector<std::pair<std::string_view, std::string_view>> cases = {
      {"$bviolin$n1$apiano$n1", "$aviolin$n1$apiano$n1"},
      {"$bviolin$n1$aorchestra$n1", "$bviolin$n1$aorchestra$e1"},
      {"$bband$n1$bflute$n1", "$aband$e1$bflute$n1"},
      {"$abrass ensemble$v$n1", "$abrass ensemble$v$n1"},
      {"10:$borchestra$n2$", "10:$aorchestra$e2$"},
      {"", ""},
  };
  for (const auto& [text, settled] : cases) {
    std::string field = Delimited(text);
    SettleSoloists(reader.Context(), field);
    EXPECT_EQ(Readable(field), settled) << text;
  }
}

}  // namespace
}  // namespace cantorel
