// Branches for stage and orchestral works, whose medium is told, if at all, by
// the score in hand: "Ballets -- Piano scores".

#include <cstddef>
#include <string>

#include "medium/field_382.h"
#include "medium/group_words.h"
#include "medium/heading_branches.h"
#include "medium/medium_phrase.h"
#include "medium/score_phrases.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

// "(4 hands)" behind "Piano scores": a count, then a word that begins "HAND".
Outcome ReadHands(HeadingParse& parse, std::string_view text) {
  const std::string norm = parse.context.Norm(text);
  std::string_view behind = norm;
  const std::string_view count = TakeWord(behind);
  if (!BeginsWithCount(count) || !behind.starts_with("HAND")) return Outcome::kNothing;
  parse.SetField("$apiano");
  AppendSubfield(parse.buffer, 'n', HalfRoundedUp(count));
  AppendSubfield(parse.buffer, 'v', TidyNote(parse.context, "piano " + std::string(text)));
  return Outcome::kField;
}

bool IsFullScoreOrPart(std::string_view rest) {
  for (std::string_view literal : {"vscore", "xscore", "vpart", "xpart"}) {
    if (ContainsNoCase(rest, literal)) return true;
  }
  return false;
}

}  // namespace

Outcome ReadPianoScores(HeadingParse& parse, const HeadingBranch&) {
  if (SaysTwoPianoScores(parse.rest)) {
    parse.rest = {};
    return parse.SetField("$apiano$n2");
  }
  const std::size_t position = FindNoCase(parse.rest, kPianoScores);
  if (!OpensSubdivision(parse.rest, position)) return Outcome::kNothing;
  const std::string_view text = Trim(TextUpToDelimiter(parse.rest, position + kPianoScores.size()));
  if (parse.context.Norm(text).empty()) return parse.SetField("$apiano$n1");
  return ReadHands(parse, text);
}

Outcome ReadIncidentalMusic(HeadingParse& parse, const HeadingBranch& branch) {
  if (parse.HeadingNorm() != "INCIDENTAL MUSIC") return Outcome::kNothing;
  return ReadPianoScores(parse, branch);
}

Outcome ReadOrchestralMusic(HeadingParse& parse, const HeadingBranch& branch) {
  if (parse.HeadingNorm() != "ORCHESTRAL MUSIC") return Outcome::kNothing;
  const bool has_subdivision = HasSubfield(parse.rest, 'v') || HasSubfield(parse.rest, 'x');
  if (!has_subdivision || IsFullScoreOrPart(parse.rest)) {
    return parse.SetField("$aorchestra$n1");
  }
  return ReadPianoScores(parse, branch);
}

}  // namespace cantorel
