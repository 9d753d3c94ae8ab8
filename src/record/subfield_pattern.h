// The language that says in which order the subfields of a field stand.
//
//   6a{#bcdgq}{eu4}{!tfgklnp}
//
// A pattern is a row of rules, each for one or more codes.  A character by
// itself is a rule for one code; braces hold a rule for several:
//
//   {eu4}    in the order written
//   {#bcd}   in any order
//   {!tfg}   in any order, but the first code leads the group
//   {^xvy}   in any order, the first code noted as a trigger
//   {@abc}   in any order
//
// There are no errors.  A group that is not closed ends where the pattern ends
// or where another group opens, and a wrong bracket is a code like any other.

#ifndef CANTOREL_RECORD_SUBFIELD_PATTERN_H_
#define CANTOREL_RECORD_SUBFIELD_PATTERN_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel {

enum class SubfieldRuleKind : std::int16_t {
  kAsWritten = 0,
  kAnyOrder = 1,     // {#...}
  kLeaderFirst = 2,  // {!...}
  kTrigger = 3,      // {^...}
  kMarked = 4,       // {@...}
  kMarkedLast = 5,   // the last {@...} that holds the first code of one
};

struct SubfieldRule {
  SubfieldRuleKind kind;
  std::string codes;

  bool operator==(const SubfieldRule&) const = default;
};

struct SubfieldPattern {
  std::vector<SubfieldRule> rules;
  std::string repeated_codes;  // that stand in more than one rule
  std::string trigger_codes;   // the first of each {!...} and {^...}
};

SubfieldPattern ParseSubfieldPattern(std::string_view pattern);

}  // namespace cantorel

#endif  // CANTOREL_RECORD_SUBFIELD_PATTERN_H_
