#include "genre/configuration_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace cantorel {
namespace {

using ::testing::ElementsAre;

TEST(ConfigurationCheck, FindsWhatAMaintainerShouldSee) {
  ConfigurationCheck check;
  check.ReadVocabulary(
      "[Instruments]\nFLUTE=flute\nFlute=flutes\nHARP=harpa\xCC\x81\tnote\nEMPTY=\n"
      "[Ensembles]\nFLUTE=flute\nBAND=band\n");
  check.ReadTable(
      "; comment\n[FileSignature]\nFilePresent=True\n"
      "[List3]\nOPERAS_1=655#7\tOperas\tlcgft\nOperas_1=655#7\tOperas\tlcgft\n"
      "NONE_1=655#7\tNone\t\nTAG_1=665#7\tTag\tlcgft\n"
      "[List5]\nOPERAS_1=655#7\tOperas\tlcgft\n"
      "[List6]\nX_1=a//385##\tX\tlcdgt\nY_1=655//380##\tY\tlcdgt\n"
      "[List12]\nA=harpa[U+0301]\x1F"
      "n1\x1F"
      "aband\x1F"
      "e1\x1F"
      "vany\nB=tuba\x1F"
      "bflut\n"
      "[MusicalStyle]\nS=" +
      std::string(201, 'x') + "\n[List2]\nL_1=655#7\t" + std::string(200, 'x') + "\tlcgft\n");
  EXPECT_THAT(
      check.Findings(),
      ElementsAre("MusicMedium.Lcmpt.txt:3: Flute repeats a key; the first one counts",
                  "MusicMedium.Lcmpt.txt:5: EMPTY has no value",
                  "MusicMedium.Lcmpt.txt:8: BAND has a term that no instrument has: band",
                  "Music6xxTo655.txt:6: Operas_1 repeats a key; the first one counts",
                  "Music6xxTo655.txt:7: NONE_1 has no source",
                  "Music6xxTo655.txt:8: TAG_1 has the unknown tag 665",
                  "Music6xxTo655.txt:13: Y_1 has the unknown tag 380",
                  "Music6xxTo655.txt:16: B has a term that the vocabulary does not prefer: tuba",
                  "Music6xxTo655.txt:16: B has a term that the vocabulary does not prefer: flut",
                  "Music6xxTo655.txt:20: L_1 is longer than 200 octets and will be cut"));
}

TEST(ConfigurationCheck, ATableNeedsItsSignature) {
  ConfigurationCheck check;
  check.ReadTable("[List10]\nFilePresent=True\n");
  EXPECT_THAT(check.Findings(),
              ElementsAre("Music6xxTo655.txt: is not there, or has no [FileSignature]"));
}

}  // namespace
}  // namespace cantorel
