#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "medium/music_650_to_382_class.h"
#include "medium/small_vocabulary.h"

namespace cantorel {
namespace {

class HeadingListsTest : public testing::Test {
 protected:
  HeadingListsTest() {
    std::ofstream(std::filesystem::path(file_.Folder()) / "Music6xxTo655.txt", std::ios::binary)
        << "[MusicalStyle]\nska=Ska (Music) $2 local\ntango=Tangos (Music)\npolka_2=Polkas\n"
           "fado=Fados [U+0300]\n"
           "[LanguagesByName]\nenglish=eng\nold_norse=non\n"
           "[FileSignature]\nFilePresent=True\n"
           "[List3]\nMASSES_1=655#7\tMasses\tlcgft\n";
    music_.Parm_InstrumentNameConfigurationFile(file_.Path());
    music_.InitializeStyleQualifiers();
  }

  // What a heading gave: "+" when it is done with, else "-", then the terms; of
  // a field other than 655 with source lcgft the whole line.
  std::string Test(std::string_view heading) {
    record_.NewRecord("c", "m");
    record_.FldAdd("650", " 0", Delimited("$a") + std::string(heading) + Delimited("$vScores"));
    record_.FldAdd("655", " 7", Delimited("$aMarches$2lcgft"));
    record_.FldFindFirst("650", {});
    record_.SfdFindFirst("a", {});
    music_.Reset(false);
    std::string lines;
    bool found = false;
    music_.Private_655_TestHeading(heading, record_, lines, false, found);
    EXPECT_EQ(record_.FldTag() + record_.SfdCode(), "650a") << heading;

    std::string answer(1, found ? '+' : '-');
    lines = Readable(lines);
    for (std::string_view rest = lines; !rest.empty();) {
      std::string_view line = rest.substr(0, rest.find('\n'));
      rest.remove_prefix(std::min(line.size() + 1, rest.size()));
      if (line.starts_with("655 7$a") && line.ends_with("$2lcgft")) {
        line = line.substr(7, line.size() - 14);
      }
      if (answer.size() > 1) answer += "; ";
      answer += line;
    }
    return answer;
  }

  struct Case {
    std::string_view heading, answer;
  };
  void Expect(const std::vector<Case>& cases) {
    for (const Case& c : cases) EXPECT_EQ(Test(c.heading), c.answer) << c.heading;
  }
  // The messages that a heading leaves, one a line.
  std::string Messages(std::string_view heading) {
    Test(heading);
    std::string texts;
    const std::int32_t count = music_.Parm_MessageCount(record_);
    for (std::int32_t i = 1; i <= count; ++i) {
      music_.Parm_MessageIndex(i);
      texts += music_.Parm_MessageText() + '\n';
    }
    return texts;
  }

  SmallVocabulary file_;
  Utf8MarcRecordClass record_;
  MusicSession session_;
  Music650To382Class music_{session_};
};

TEST_F(HeadingListsTest, ReadsFirstWords) {
  Expect({
      {"String quartets", "+Chamber music"},
      {"String quartet music", "-"},
      {"String quartets with piano", "-"},
      {"String quartets (Sacred)", "+Chamber music"},
      {"String quartets with piano (Sacred)", "+Chamber music"},
      {"String orchestra music", "-"},
      {"Piano trios", "+Chamber music"},
      {"Piano trios with orchestra", "+Chamber music"},
      {"Piano duets", "-"},
      {"Brass septet", "+Chamber music"},
      {"Plucked instrument nonets", "+Chamber music"},
      {"Wind octets", "+Chamber music"},
      {"Woodwind sextets", "+Chamber music"},
      {"Woodwinds", "-"},
      {"Vocal trios", "-"},
      {"Vocalises with orchestra", "+Vocalises"},
      {"Sacred quartets", "+Sacred music"},
      {"Sacred duets", "-"},
      {"Sacred vocal trios", "+Sacred music; Chamber music"},
      {"Sacred vocal duets with piano", "-"},
      {"Sacred vocal ensembles", "-"},
      {"Sacred vocal ensembles with Band", "+Sacred music"},
      {"Sacred songs with piano", "+Songs; Sacred music; Chamber music"},
      {"Songs with piano", "+Songs; Chamber music"},
      {"Songs with orchestra", "+Songs"},
      {"Songs With flute with oboe and chamber orchestra", "+Songs"},
      {"Songs with flute with string orchestra, ", "-"},
      {"Songs with band instruments and orchestras", "+Songs; Chamber music"},
      {"Songs without words", "-"},
  });
}

TEST_F(HeadingListsTest, ReadsLastWords) {
  Expect({
      {"Flute and piano music", "+Chamber music"},
      {"Flute and piano", "-"},
      {"Flute music", "-"},
      {"Flute and oboe and piano music", "-"},
      {"Flute and music", "-"},
      {"Recorder ensembles", "+Chamber music"},
      {"Zither ensembles", "-"},
      {"Guitar ensemble", "-"},
      {"Flute with guitar ensemble", "+Chamber music"},
      {"Zither with guitar ensemble", "-"},
      {"Flute with jazz ensemble", "+Jazz"},
      {"Flute with oboe with jazz ensemble", "-"},
  });
  // Each instrument is asked for in turn, up to the first that is unknown.
  EXPECT_EQ(Messages("Zither and banjo music"), "Unrecognized instrument ZITHER\n");
  EXPECT_EQ(Messages("Flute and banjo music"), "Unrecognized instrument BANJO\n");
  EXPECT_EQ(Messages("Zither music (Banjos (2))"),
            "Unrecognized instrument ZITHER\nUnrecognized instrument BANJOS\n");
}

TEST_F(HeadingListsTest, ReadsQualifiersBehindCommas) {
  Expect({
      {"Hymns, English", "+Hymns"},
      {"Hymns, Old Norse", "+Hymns"},
      {"Hymns, Klingon", "-"},
      {"Hymns", "-"},
      {"Lullabies, English", "-"},
      {"Ballads, English", "+Ballads"},
      {"Songs, English", "+Songs"},
      {"Buddhist hymns, English", "+Hymns; 385  $aBuddhists$2lcdgt; 386  $aBuddhists$2lcdgt"},
      {"Children's songs, English", "+Songs; 386  $aChildren$2lcdgt"},
      {"School songbooks, English", "+Songbooks; 385  $aSchool children$2lcdgt"},
      {"Yaks\u0323aga\u0304na plays, English", "+Yaks\u0323aga\u0304na plays"},
      // A comma alone keeps a heading from being read for its wording.
      {"Piano trios, English", "-"},
      {"Violin and piano music, Arranged", "+Arrangements (Music); Chamber music"},
      {"Songs with piano, Arranged", "+Arrangements (Music); Songs; Chamber music"},
      {"Vocal trios, Arranged", "-Arrangements (Music)"},
      {"Masses, Arranged", "+Arrangements (Music); Masses"},
      {"Masses, Sacred", "+Masses; Sacred music"},
      {"String trios, Sacred", "-Chamber music"},
      {"Masses, Unaccompanied", "+Masses"},
      {"String trios, Unaccompanied", "+Chamber music"},
      {"Violin and piano music, Unaccompanied", "-"},
      {"Masses, Unaccompanied, Arranged", "+Arrangements (Music); Masses"},
  });
  record_.CharacterSetOut("M");
  Expect({{"Yaksagana plays, English",
           "+Yaks\xF2"
           "aga\xE5na plays"}});
}

TEST_F(HeadingListsTest, ReadsParentheses) {
  Expect({
      {"Canons, fugues, etc. (Organ)", "+Art music"},
      {"Choruses, Sacred (Mixed voices)", "+Sacred music"},
      {"Quartets (Flute)", "+Chamber music"},
      {"Sonatas (Flute and piano)", "+Sonatas"},
      {"Trio sonatas (Flutes (2), continuo)", "+Sonatas; Chamber music"},
      {"Trio sonatas", "-"},
      {"Waltzes (Piano)", "+Waltzes (Music)"},
      {"Piano music (4 Hands)", "+Chamber music"},
      {"Piano music (Pianos (3))", "+Chamber music"},
      {"Horn music (Horns (2))", "+Chamber music"},
      {"Horn music (Horns (3))", "-"},
      {"Horn music (Zithers (2))", "-"},
      {"Horns (Horns (2))", "-"},
      {"Songs (High voice)", "+Songs"},
      {"Songs (High voice) with piano", "+Songs; Chamber music"},
      {"Songs (High voice) with orchestra", "+Songs"},
      {"Sacred songs (Low voice) with flute and band", "+Songs; Sacred music"},
      {"Solo cantatas, Sacred (High voice)", "+Cantatas; Sacred music"},
      // Both.
      {"Songs (High voice), English", "+Songs"},
      {"Concertos (Flute), Arranged", "+Arrangements (Music); Concertos"},
      {"Zither (Alto), Arranged", "-Arrangements (Music)"},
  });
}

TEST_F(HeadingListsTest, ReadsStyles) {
  Expect({
      // The style does not settle the heading.
      {"Piano music (Jazz)", "-Jazz"},
      {"Flute music (Blues-rock)", "-Blues-rock music"},
      {"Zither music (Jazz)", "-"},
      {"Pianos (Jazz)", "-"},
      {"Flute music (Tango)", "-Tangos (Music)"},
      {"Flute music (Ska)", "-655 7$aSka (Music)$2local"},
      {"Oboe music (Ska)", "-655 7$aSka (Music)$2local"},
      {"Flute music (Fado)", "-Fados \u0300"},
      {"Flute music (Polka 2)", "-"},
      {"Flute music (Polka)", "-"},
  });
}

TEST_F(HeadingListsTest, TakesTextOfAnyShape) {
  Expect({{"", "-"},
          {",", "-"},
          {"(", "-"},
          {")", "-"},
          {"()", "-"},
          {"(2)", "-"},
          {"((2))", "-"},
          {"Songs )(", "-"},
          {"Songs (a) (b", "-"},
          {" music (Jazz)", "-"},
          {",,,()", "-"}});
  std::string deep = "Piano trios";
  for (int i = 0; i < 5'000; ++i) deep += ", Arranged";
  EXPECT_EQ(Test(deep), "-Arrangements (Music)");
}

TEST_F(HeadingListsTest, FindsTheLastGroup) {
  for (const auto& [text, position] : {std::pair{"a (b) c", 3},
                                       {"a (b (c))", 3},
                                       {"(a) (b)", 5},
                                       {"(a", 0},
                                       {"a)", 0},
                                       {")(", 0},
                                       {"(a) (b", 0},
                                       {"", 0}}) {
    EXPECT_EQ(Music650To382Class::Private_655_FindOpenParenthesis(text), position) << text;
  }
}

}  // namespace
}  // namespace cantorel
