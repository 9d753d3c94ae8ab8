// Branches for headings that name instruments by group, family or concerto.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "charset/marc_control.h"
#include "medium/group_words.h"
#include "medium/heading_branches.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

// The words behind the first of a heading: the second, and the text behind it.
struct SecondWord {
  explicit SecondWord(const HeadingParse& parse) : behind(parse.main) {
    TakeWord(behind);
    const std::string_view raw = TakeWord(behind);
    missing = raw.empty();
    word = parse.context.Norm(raw);
    number = NumberFromGroupWord(word, is_group);
  }

  std::string_view behind;  // trimmed
  std::string word;         // comparison form
  bool missing = true;
  bool is_group = false;
  std::int32_t number = 0;
};

constexpr std::array<std::string_view, 4> kOrchestras = {"CHAMBER ORCHESTRA", "ORCHESTRA",
                                                         "STRING ORCHESTRA", "BAND"};

}  // namespace

Outcome ReadGroup(HeadingParse& parse, const HeadingBranch& branch) {
  std::string_view behind = parse.main;
  TakeWord(behind);
  if (!behind.empty()) {
    if (!behind.starts_with('(')) return Outcome::kNothing;
    return parse.ReadPhrase(InsideParenthesis(behind));
  }
  if (branch.literal == "2") return Outcome::kNothing;
  parse.SetField("$ainstrument");
  // Deliberate: the count has no subfield code, the digit stands as the code.
  parse.buffer += kDelimiter;
  parse.buffer += branch.literal;
  return Outcome::kField;
}

Outcome ReadConcertos(HeadingParse& parse, const HeadingBranch&) {
  const std::size_t open = parse.main.find('(');
  if (open == std::string_view::npos) return Outcome::kNothing;
  if (parse.context.Norm(parse.main.substr(0, open)) != "CONCERTOS") return Outcome::kNothing;

  const std::string_view inside = InsideParenthesis(parse.main);
  const std::string norm = parse.context.Norm(inside);
  const bool names_orchestra =
      std::find(kOrchestras.begin(), kOrchestras.end(), norm) != kOrchestras.end() ||
      inside.find(" with ") != std::string_view::npos;
  if (names_orchestra) return parse.ReadPhrase(inside);
  return parse.ReadPhrase(std::string(inside) + " with orchestra");
}

Outcome ReadFamily(HeadingParse& parse, const HeadingBranch& branch) {
  const SecondWord second(parse);
  if (!second.is_group) return Outcome::kGeneral;
  if (second.behind.empty()) {
    return parse.SetField("$a" + std::string(branch.literal) + "$n", second.number);
  }
  if (!second.behind.starts_with('(') || !second.behind.ends_with(')')) return Outcome::kGeneral;
  const Outcome outcome = parse.ReadPhrase(InsideParenthesis(second.behind));
  return parse.buffer.empty() ? Outcome::kGeneral : outcome;
}

Outcome ReadPiano(HeadingParse& parse, const HeadingBranch&) {
  const SecondWord second(parse);
  std::string_view combination;
  if (second.word == "TRIOS") combination = StandardCombination("PIANO TRIOS");
  if (second.word == "QUARTETS") combination = StandardCombination("PIANO QUARTETS");
  if (second.word == "QUINTETS") combination = StandardCombination("PIANO QUINTETS");
  if (combination.empty()) return Outcome::kGeneral;
  return parse.SetField(combination);
}

Outcome ReadPlucked(HeadingParse& parse, const HeadingBranch&) {
  if (!StartsWithNoCase(parse.main, "plucked instrument")) return Outcome::kNothing;
  const std::string norm = parse.context.Norm(parse.main.substr(0, parse.main.find('(')));
  bool is_group = false;
  const std::int32_t number = NumberFromGroupWord(LastWord(norm), is_group);
  if (!is_group) return Outcome::kGeneral;

  const std::string_view inside = InsideParenthesis(parse.main);
  if (inside.empty()) return parse.SetField("$aplucked instrument$n", number);
  const Outcome outcome = parse.ReadPhrase(inside);
  // Only here does an unknown instrument send the heading on.
  return outcome == Outcome::kNothing ? Outcome::kGeneral : outcome;
}

Outcome ReadString(HeadingParse& parse, const HeadingBranch&) {
  const SecondWord second(parse);
  if (!second.is_group) return Outcome::kGeneral;
  if (!second.behind.empty()) {
    if (!second.behind.starts_with('(')) return Outcome::kGeneral;
    return parse.ReadPhrase(InsideParenthesis(second.behind));
  }
  if (second.number == 4) return parse.SetField(StandardCombination("STRING QUARTETS"));
  if (second.number == 3) return parse.SetField(StandardCombination("STRING TRIOS"));
  return parse.SetField("$abowed string instrument$n", second.number);
}

}  // namespace cantorel
