// Branches that read a heading in the plain ways.

#include "medium/heading_branches.h"

#include "medium/text_find.h"

namespace cantorel {

Outcome ReadFixed(HeadingParse& parse, const HeadingBranch& branch) {
  return parse.SetField(branch.field);
}

Outcome ReadOpening(HeadingParse& parse, const HeadingBranch& branch) {
  if (!StartsWithNoCase(parse.main, branch.literal)) return Outcome::kNothing;
  return parse.SetField(branch.field);
}

Outcome ReadWholeOrGeneral(HeadingParse& parse, const HeadingBranch& branch) {
  if (parse.HeadingNorm() != branch.literal) return Outcome::kGeneral;
  return parse.SetField(branch.field);
}

Outcome ReadParenthetical(HeadingParse& parse, const HeadingBranch& branch) {
  if (!StartsWithNoCase(parse.main, branch.literal)) return Outcome::kNothing;
  return parse.ReadPhrase(InsideParenthesis(parse.main));
}

Outcome ReadParentheticalOrBare(HeadingParse& parse, const HeadingBranch& branch) {
  if (StartsWithNoCase(parse.main, branch.literal)) return ReadParenthetical(parse, branch);
  const std::string_view bare = branch.literal.substr(0, branch.literal.size() - 2);
  if (!EqualsNoCase(parse.HeadingNorm(), bare)) return Outcome::kNothing;
  return parse.SetField(branch.field);
}

Outcome ReadBallads(HeadingParse& parse, const HeadingBranch&) {
  const bool one_word = parse.main.find(' ') == std::string_view::npos;
  if (!one_word && !ContainsNoCase(parse.main, "ballads, ")) return Outcome::kNothing;
  return parse.SetField("$asinger");
}

Outcome ReadChamber(HeadingParse& parse, const HeadingBranch&) {
  constexpr std::string_view kOpening = "chamber music";
  if (!StartsWithNoCase(parse.main, kOpening)) return Outcome::kGeneral;
  if (!parse.context.Norm(parse.main.substr(kOpening.size())).empty()) return Outcome::kGeneral;
  return parse.SetField("$ainstrumental ensemble$n1");
}

Outcome ReadSymphonicPoems(HeadingParse& parse, const HeadingBranch&) {
  if (!StartsWithNoCase(parse.main, "symphonic poems")) return Outcome::kNothing;
  if (!StartsWithNoCase(parse.main, "symphonic poems (")) return parse.SetField("$aorchestra$n1");
  return parse.ReadPhrase(InsideParenthesis(parse.main));
}

}  // namespace cantorel
