// Cantatas and choruses: "Choruses, Sacred (Mixed voices, 4 parts) with organ".

#include <array>
#include <cstddef>
#include <string>

#include "charset/marc_control.h"
#include "medium/field_382.h"
#include "medium/heading_branches.h"
#include "medium/medium_phrase.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

// The parts of a chorus heading.
struct ChorusHeading {
  std::string_view parenthesis;    // from its "(" up to its ")", that excluded
  std::string_view accompaniment;  // empty without one
};

ChorusHeading SplitChorusHeading(std::string_view main) {
  ChorusHeading heading;
  const std::size_t open = main.find('(');
  if (open == std::string_view::npos) {
    const std::size_t with = FindNoCase(main, " with");
    // Six characters on, whatever the sixth is: "without" counts as well.
    if (with != std::string_view::npos && with + 6 < main.size()) {
      heading.accompaniment = Trim(main.substr(with + 6));
    }
    return heading;
  }
  const std::size_t close = main.find(')', open);
  heading.parenthesis = main.substr(open, close - open);
  if (close == std::string_view::npos) return heading;
  heading.accompaniment = Trim(main.substr(close + 1));
  if (StartsWithNoCase(heading.accompaniment, "with ")) {
    heading.accompaniment = Trim(heading.accompaniment.substr(5));
  }
  return heading;
}

struct VoiceForm {
  std::string_view literal;  // lower case
  std::string_view field;    // "$" for the delimiter
};

// Tried in this order.
constexpr std::array<VoiceForm, 5> kVoiceForms = {{
    {"high voice", "$ahigh voice"},
    {"medium voice", "$amedium voice"},
    // Deliberate: the literal lacks its "l", so that a low voice falls through
    // to the singer.
    {"(ow voice", "$alow voice"},
    {"vocal ensemble", "$avocal ensemble"},
    {"unison", "$achorus$n1$vunison"},
}};

// "Mixed voices" makes a mixed chorus.  A chorus that the vocabulary does not
// list keeps its name, but the field then takes no $2.
void SetChorusOfVoices(HeadingParse& parse, std::string_view kind) {
  if (EqualsNoCase(kind, "equal")) {
    parse.SetField("$aequal voices");
    return;
  }
  MediumContext& context = parse.context;
  const std::string name = kind.empty() ? "chorus" : context.record.SafeLCase(kind) + " chorus";
  parse.SetField("$a");
  parse.buffer += name;
  if (!context.vocabulary.IsEnsembleName(context.record, context.Norm(name))) {
    parse.all_terms_known = false;
  }
}

void SetSingers(HeadingParse& parse, std::string_view parenthesis) {
  const std::size_t voices = FindNoCase(parenthesis, "voices");
  if (voices != std::string_view::npos) {
    SetChorusOfVoices(parse, Trim(parenthesis.substr(1, voices - 1)));
    return;
  }
  for (const VoiceForm& form : kVoiceForms) {
    if (!ContainsNoCase(parenthesis, form.literal)) continue;
    parse.SetField(form.field);
    return;
  }
  parse.SetField("$asinger$n1");
}

// "4 parts" gives a count and says in a note that it counts parts.  Only the
// first character must be a digit: "4-8" is taken as it stands.
void AppendParts(HeadingParse& parse, std::string_view parenthesis) {
  const std::size_t parts = FindNoCase(parenthesis, "parts");
  if (parts == std::string_view::npos) return;
  const std::string_view count = LastWord(parenthesis.substr(1, parts - 1));
  if (!BeginsWithCount(count)) return;
  AppendSubfield(parse.buffer, 'n', count);
  AppendSubfield(parse.buffer, 'v', TidyNote(parse.context, std::string(count) + " parts"));
}

}  // namespace

Outcome ReadChorus(HeadingParse& parse, const HeadingBranch&) {
  const ChorusHeading heading = SplitChorusHeading(parse.main);
  parse.SetField("$achorus");
  if (!heading.parenthesis.empty()) {
    SetSingers(parse, heading.parenthesis);
    AppendParts(parse, heading.parenthesis);
  }
  if (!HasSubfield(parse.buffer, 'n') && !HasSubfield(parse.buffer, 'e')) {
    AppendSubfield(parse.buffer, 'n', "1");
  }
  if (heading.accompaniment.empty()) return Outcome::kField;
  MakeSoloists(parse.buffer);
  return parse.ReadPhrase(heading.accompaniment);
}

}  // namespace cantorel
