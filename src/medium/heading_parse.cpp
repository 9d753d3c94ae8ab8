#include "medium/heading_parse.h"

#include <array>
#include <cstddef>

#include "charset/marc_control.h"
#include "medium/field_382.h"
#include "medium/medium_phrase.h"
#include "medium/style_qualifiers.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

// Subdivisions that say what kind of heading this is.
enum Subdivision : unsigned {
  kInstrumentalSetting = 1,
  kExcerpts = 2,
  kScore = 4,
  kWritingAboutMusic = 8,
};

struct SubdivisionPhrase {
  std::string_view text;
  Subdivision kind;
};

constexpr std::array<SubdivisionPhrase, 5> kSubdivisionPhrases = {{
    {"instrumental setting", kInstrumentalSetting},
    {"excerpts", kExcerpts},
    {"score", kScore},
    {"history and criticism", kWritingAboutMusic},
    {"analysis", kWritingAboutMusic},
}};

// The kinds of subdivision in a field, or-ed.  A phrase counts behind any
// letter "v" or "x", in practice the code of its subfield: that no delimiter is
// asked for is deliberate.
unsigned FindSubdivisions(std::string_view field) {
  unsigned found = 0;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const char code = AsciiLower(field[i]);
    if (code != 'v' && code != 'x') continue;
    for (const SubdivisionPhrase& phrase : kSubdivisionPhrases) {
      if (StartsWithNoCase(field.substr(i + 1), phrase.text)) found |= phrase.kind;
    }
  }
  return found;
}

// Judges a heading by its subdivisions; false when they rule it out.
bool SubdivisionsAllowMedium(std::string_view field, bool& of_interest) {
  const unsigned found = FindSubdivisions(field);
  if (found & kInstrumentalSetting) {
    of_interest = true;
    return false;
  }
  if (found & kExcerpts) return false;
  // A score is music, whatever else is said about it.
  if (found & kScore) {
    of_interest = true;
    return true;
  }
  return (found & kWritingAboutMusic) == 0;
}

// Passes over a $3 at the head of the field, which goes into `trailing`; false
// unless a $a then opens the field.
bool StandsOnSubfieldA(std::string_view& field, std::string& trailing) {
  if (field.size() < 2 || field[0] != kDelimiter) return false;
  if (field[1] == 'a') return true;
  if (field[1] != '3') return false;
  const std::size_t next = field.find(kDelimiter, 2);
  trailing = field;
  if (next == std::string_view::npos || field.substr(next + 1, 1) != "a") return false;
  trailing.resize(next);
  field.remove_prefix(next);
  return true;
}

// Takes the first $3 out of the rest; it goes behind what `trailing` holds.
void TakeSubfield3(HeadingParse& parse, std::string& trailing) {
  for (SubfieldScanner subfield(parse.rest); subfield.Next();) {
    if (subfield.Code() != '3') continue;
    trailing += subfield.Whole();
    parse.own_rest = parse.rest.substr(0, subfield.Start());
    parse.own_rest += parse.rest.substr(subfield.End());
    parse.rest = parse.own_rest;
    return;
  }
}

// The point that closes a heading, unless it belongs to a final "etc.".
std::string_view WithoutFinalPoint(std::string_view main) {
  if (!main.ends_with('.') || EndsWithNoCase(main, "etc.")) return main;
  return Trim(main.substr(0, main.size() - 1));
}

// Ends a heading before the phrases that say nothing of its medium.
std::string_view WithoutClosingPhrases(std::string_view main, bool& of_interest) {
  for (std::string_view phrase : {", arranged", ", unaccompanied", ", juvenile"}) {
    const std::size_t position = FindNoCase(main, phrase);
    if (position == std::string_view::npos) continue;
    of_interest = true;
    main = main.substr(0, position);
  }
  return main;
}

}  // namespace

bool PrepareHeading(HeadingParse& parse, std::string_view field_text, std::string& trailing) {
  std::string_view field = field_text;
  if (!StandsOnSubfieldA(field, trailing)) return false;
  bool& of_interest = parse.context.of_interest;
  if (!SubdivisionsAllowMedium(field, of_interest)) return false;

  parse.main = field.substr(2, field.find(kDelimiter, 2) - 2);
  parse.rest = field.substr(2 + parse.main.size());
  TakeSubfield3(parse, trailing);
  parse.main = WithoutClosingPhrases(WithoutFinalPoint(parse.main), of_interest);
  if (parse.main.find('(') != std::string_view::npos) {
    AppendWithoutStyleQualifiers(parse.main, parse.own_main);
    parse.main = parse.own_main;
  }
  parse.context.record.AppendNormString(parse.main.substr(0, parse.main.find(' ')), true,
                                        parse.first_word);
  return true;
}

std::string_view InsideParenthesis(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) return {};
  text.remove_prefix(open + 1);
  if (text.ends_with(')')) text.remove_suffix(1);
  return text;
}

const std::string& HeadingParse::HeadingNorm() {
  if (!heading_norm_made_) {
    context.record.AppendNormString(main, true, heading_norm_);
    heading_norm_made_ = true;
  }
  return heading_norm_;
}

Outcome HeadingParse::SetField(std::string_view dollar_form) {
  buffer = dollar_form;
  for (char& c : buffer) {
    if (c == '$') c = kDelimiter;
  }
  return Outcome::kField;
}

Outcome HeadingParse::SetField(std::string_view dollar_form, std::int32_t number) {
  SetField(dollar_form);
  buffer += std::to_string(number);
  return Outcome::kField;
}

Outcome HeadingParse::ReadPhrase(std::string_view phrase) {
  const std::int32_t code = ParseMediumPhrase(context, phrase, buffer, all_terms_known);
  return (code & kUnrecognized) != 0 ? Outcome::kNothing : Outcome::kField;
}

}  // namespace cantorel
