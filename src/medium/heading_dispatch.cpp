#include "medium/heading_dispatch.h"

#include <algorithm>
#include <array>

#include "medium/heading_branches.h"

namespace cantorel {
namespace {

// Sorted by first word.
constexpr std::array<HeadingBranch, 56> kBranches = {{
    {"BALLADS", ReadBallads},
    {"BALLETS", ReadPianoScores},
    {"BRASS", ReadFamily, "brass instrument"},
    {"CANONS", ReadParenthetical, "canons, fugues, etc. ("},
    {"CANTATAS", ReadChorus},
    {"CAROLS", ReadFixed, "", "$avocal ensemble"},
    {"CHACONNES", ReadParenthetical, "chaconnes ("},
    {"CHAMBER", ReadChamber},
    {"CHORALE", ReadParentheticalOrBare, "chorale preludes (", "$aorgan"},
    {"CHORUSES", ReadChorus},
    {"CONCERTOS", ReadConcertos},
    {"DUETS", ReadGroup, "2"},
    {"FIDDLE", ReadWholeOrGeneral, "FIDDLE TUNES", "$afiddle"},
    {"FOLK", ReadOpening, "folk songs", "1:$asinger"},
    {"HYMNS", ReadFixed, "", "$avocal ensemble"},
    {"INCIDENTAL", ReadIncidentalMusic},
    {"INSTRUMENTAL", ReadWholeOrGeneral, "INSTRUMENTAL ENSEMBLES", "$ainstrumental ensemble$e1"},
    {"INTABULATIONS", ReadParenthetical, "intabulations ("},
    {"LULLABIES", ReadFixed, "", "$asinger"},
    {"MADRIGALS", ReadFixed, "", "$avocal ensemble"},
    {"MARCHES", ReadParenthetical, "marches ("},
    {"MIXED", ReadWholeOrGeneral, "MIXED MEDIA MUSIC", "$amixed media"},
    {"MONOLOGUES", ReadMonologues},
    {"NONETS", ReadGroup, "9"},
    {"OCTETS", ReadGroup, "8"},
    {"ORCHESTRAL", ReadOrchestralMusic},
    {"OVERTURES", ReadParentheticalOrBare, "overtures (", "$aorchestra$e1"},
    {"PART", ReadOpening, "part songs", "$avocal ensemble"},
    {"PASSACAGLIAS", ReadParenthetical, "passacaglias ("},
    {"PIANO", ReadPiano},
    {"PLUCKED", ReadPlucked},
    {"POTPOURRIS", ReadParenthetical, "potpourris ("},
    {"QUARTETS", ReadGroup, "4"},
    {"QUINTETS", ReadGroup, "5"},
    {"RONDOS", ReadParenthetical, "rondos ("},
    {"SACRED", ReadSacred},
    {"SCHERZOS", ReadParenthetical, "scherzos ("},
    {"SCHOOL", ReadOpening, "school songbooks", "$avocal ensemble$n1"},
    {"SEPTETS", ReadGroup, "7"},
    {"SEXTETS", ReadGroup, "6"},
    {"SOLO", ReadSoloCantatas},
    {"SONATAS", ReadParenthetical, "sonatas ("},
    {"SONGBOOKS", ReadFixed, "", "$avocal ensemble$n1"},
    {"SONGS", ReadSongs},
    {"STRING", ReadString},
    // Deliberate: suites alone leave the interest flag as it was.
    {"SUITES", ReadParenthetical, "suites (", "", false},
    {"SYMPHONIC", ReadSymphonicPoems},
    {"SYMPHONIES", ReadParentheticalOrBare, "symphonies (", "$aorchestra$n1"},
    {"TRIO", ReadParenthetical, "trio sonatas ("},
    {"TRIOS", ReadGroup, "3"},
    {"VARIATIONS", ReadParenthetical, "variations ("},
    {"VOCAL", ReadVocal},
    {"VOCALISES", ReadSongs},
    {"WALTZES", ReadParenthetical, "waltzes ("},
    {"WIND", ReadFamily, "wind instrument"},
    {"WOODWIND", ReadFamily, "woodwind instrument"},
}};

constexpr bool ByFirstWord(const HeadingBranch& a, const HeadingBranch& b) {
  return a.first_word < b.first_word;
}
static_assert(std::is_sorted(kBranches.begin(), kBranches.end(), ByFirstWord));

const HeadingBranch* FindBranch(std::string_view first_word) {
  const auto it = std::lower_bound(
      kBranches.begin(), kBranches.end(), first_word,
      [](const HeadingBranch& branch, std::string_view word) { return branch.first_word < word; });
  return it != kBranches.end() && it->first_word == first_word ? &*it : nullptr;
}

}  // namespace

Outcome ReadByFirstWord(HeadingParse& parse) {
  const HeadingBranch* branch = FindBranch(parse.first_word);
  if (branch == nullptr) return Outcome::kGeneral;
  const Outcome outcome = branch->read(parse, *branch);
  if (outcome != Outcome::kGeneral && branch->marks_interest) parse.context.of_interest = true;
  return outcome;
}

}  // namespace cantorel
