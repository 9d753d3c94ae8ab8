#include "medium/heading_patterns.h"

#include <cstddef>
#include <optional>
#include <string>

#include "medium/code_point_escapes.h"
#include "medium/field_382.h"
#include "medium/medium_phrase.h"
#include "medium/text_find.h"
#include "platform/profile_file.h"

namespace cantorel {
namespace {

// Looks up an instrument; "baritone" before "music" is the brass instrument.
bool FindHeadingInstrument(HeadingParse& parse, std::string_view norm, std::string& term) {
  if (norm == "BARITONE") norm = "BARITONE HORN";
  return parse.context.vocabulary.FindInstrument(parse.context.record, norm, term);
}

// --- "... music (...)" ---------------------------------------------------------

Outcome ReadMusicParenthesis(HeadingParse& parse, std::string_view instrument,
                             std::string_view inside) {
  std::string term, note;
  const std::int32_t code = ParseMediumItem(parse.context, inside, term, parse.pattern_count, note,
                                            parse.all_terms_known);
  if (code != kHandsForm && code != kMediumWithNote) {
    const std::int32_t phrase_code =
        ParseMediumPhrase(parse.context, inside, parse.buffer, parse.all_terms_known);
    parse.pattern_code = phrase_code;
    return (phrase_code & kUnrecognized) != 0 ? Outcome::kNothing : Outcome::kField;
  }
  parse.pattern_code = code;
  std::string remark(inside);
  remark += ", ";
  remark += instrument;
  AppendSubfield(parse.buffer, 'a', instrument);
  AppendSubfield(parse.buffer, 'n', parse.pattern_count);
  AppendSubfield(parse.buffer, 'v', TidyNote(parse.context, remark));
  return Outcome::kField;
}

// No outcome when the pattern does not fit or the instrument is unknown.
std::optional<Outcome> ReadMusicWithParenthesis(HeadingParse& parse) {
  constexpr std::string_view kPattern = " music (";
  const std::size_t position = FindNoCase(parse.main, kPattern);
  if (position == std::string_view::npos) return std::nullopt;
  parse.context.of_interest = true;
  std::string instrument;
  const std::string norm = parse.context.Norm(parse.main.substr(0, position));
  if (!FindHeadingInstrument(parse, norm, instrument)) return std::nullopt;
  std::string_view inside = parse.main.substr(position + kPattern.size());
  if (inside.ends_with(')')) inside.remove_suffix(1);
  return ReadMusicParenthesis(parse, instrument, Trim(inside));
}

// --- "... music" -------------------------------------------------------------------

// One instrument or ensemble.
Outcome ReadOneMedium(HeadingParse& parse, std::string_view norm) {
  std::string term;
  std::string count = "1";
  if (!FindHeadingInstrument(parse, norm, term)) {
    const bool resolved =
        ResolveEnsembleItem(parse.context, norm, term, count, parse.all_terms_known) == 1;
    if (!resolved) return Outcome::kNothing;
  }
  AppendSubfield(parse.buffer, 'a', term);
  AppendSubfield(parse.buffer, 'n', count);
  return Outcome::kField;
}

// Terms joined by "and", each known.
Outcome ReadKnownInstruments(HeadingParse& parse, std::initializer_list<std::string_view> norms) {
  for (std::string_view norm : norms) {
    std::string term;
    if (!FindHeadingInstrument(parse, norm, term)) return Outcome::kNothing;
    AppendSubfield(parse.buffer, 'a', term);
    AppendSubfield(parse.buffer, 'n', "1");
  }
  return Outcome::kField;
}

Outcome ReadMusicAtEnd(HeadingParse& parse, std::string_view medium) {
  constexpr std::string_view kAnd = " AND ";
  parse.context.of_interest = true;
  const std::string norm = parse.context.Norm(medium);
  const std::size_t position = norm.find(kAnd);
  if (position == std::string::npos) return ReadOneMedium(parse, norm);
  if (norm == "DRUM AND BUGLE CORPS" || norm == "FIFE AND DRUM CORPS") {
    return ReadKnownInstruments(parse, {norm});
  }
  const std::string_view both = norm;
  return ReadKnownInstruments(parse,
                              {both.substr(0, position), both.substr(position + kAnd.size())});
}

// --- Listed headings and hymns -------------------------------------------------

// Hymn headings of other faiths, and of none.  Deliberate: the case counts, so
// that these meet only headings that begin with a small letter.
bool BeginsAsHymns(std::string_view main) {
  for (std::string_view opening : {"buddhist hymns,", "hindu hymns,", "sikh hymns,", "hymns,"}) {
    if (main.starts_with(opening)) return true;
  }
  return false;
}

// The field text that the derivation table lists for the whole heading.
bool FindListedHeading(HeadingParse& parse, std::string& value) {
  std::string key = parse.HeadingNorm();
  for (char& c : key) {
    if (c == ' ') c = '_';
  }
  constexpr std::int32_t kLongestValue = 200;
  return FindIniValue(parse.settings.derivation_table, "List12", key, kLongestValue, value);
}

Outcome ReadListedHeading(HeadingParse& parse) {
  bool& of_interest = parse.context.of_interest;
  std::string value;
  if (FindListedHeading(parse, value)) {
    of_interest = true;
    AppendSubfield(parse.buffer, 'a', DecodeCodePointEscapes(value));
    return Outcome::kField;
  }
  if (BeginsAsHymns(parse.main)) {
    of_interest = true;
    parse.SetField("$avocal ensemble");
    parse.buffer += parse.settings.subfield_2;
    return Outcome::kFinished;
  }
  const bool hymns_subdivision = parse.rest.find("vHymns") != std::string_view::npos ||
                                 parse.rest.find("xHymns") != std::string_view::npos;
  if (!hymns_subdivision) return Outcome::kNothing;
  of_interest = true;
  return parse.SetField("$avocal ensemble");
}

}  // namespace

Outcome ReadByPattern(HeadingParse& parse) {
  if (const auto outcome = ReadMusicWithParenthesis(parse)) return *outcome;
  constexpr std::string_view kMusic = " music";
  if (EndsWithNoCase(parse.main, kMusic)) {
    return ReadMusicAtEnd(parse, parse.main.substr(0, parse.main.size() - kMusic.size()));
  }
  if (parse.main.find(" with ") == std::string_view::npos) return ReadListedHeading(parse);
  parse.context.of_interest = true;
  return parse.ReadPhrase(parse.main);
}

}  // namespace cantorel
