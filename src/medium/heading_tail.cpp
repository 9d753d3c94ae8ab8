#include "medium/heading_tail.h"

#include <cstddef>
#include <string>
#include <utility>

#include "charset/marc_control.h"
#include "medium/field_382.h"
#include "medium/medium_phrase.h"
#include "medium/score_phrases.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

constexpr std::string_view kOpenA = "\037a";
constexpr std::string_view kOpenB = "\037b";
constexpr std::string_view kOpenN = "\037n";

// "Piano scores (4 hands)" is read on as if it were "Solo with piano (4 hands)".
FoundPhrase RewritePianoScores(HeadingParse& parse, const FoundPhrase& piano) {
  constexpr std::string_view kOpening = "\037v";
  constexpr std::string_view kSolo = "solo with ";
  std::string rewritten(kOpening);
  rewritten += kSolo;
  rewritten += "piano ";
  // One character behind the phrase, a blank, is passed over.
  rewritten += parse.rest.substr(piano.behind + 1);
  parse.own_rest = std::move(rewritten);
  parse.rest = parse.own_rest;
  return {ScoreKind::kSolo, kOpening.size(), kOpening.size() + kSolo.size()};
}

// The medium behind the phrase.
std::string_view MediumBehind(std::string_view rest, std::size_t position) {
  const std::string_view phrase = Trim(TextUpToDelimiter(rest, position));
  if (!StartsWithNoCase(phrase, "solo with")) return phrase;
  return phrase.substr(0, FindNoCase(phrase, ", arranged"));
}

enum class TailStep {
  kSettle,  // go on to the soloists and the $2
  kEnd,     // the field is as it will be
};

// The score is for piano, whatever the heading is for: all that stood in the
// field goes, a prefix for the indicators included.
TailStep EndWithPianos(HeadingParse& parse, std::string_view dollar_form) {
  parse.SetField(dollar_form);
  parse.buffer += parse.settings.subfield_2;
  return TailStep::kEnd;
}

// True when the parenthesis behind "music" was of a kind whose count, and whose
// note if it had one, go to the part that a subdivision brings.
bool PatternIsCounted(const HeadingParse& parse) {
  return parse.pattern_code == kSingleMedium || parse.pattern_code == kMediumWithNote;
}

void AppendPatternCount(HeadingParse& parse) {
  if (PatternIsCounted(parse)) AppendSubfield(parse.buffer, 'n', parse.pattern_count);
}

void AppendPatternNote(HeadingParse& parse, std::string_view phrase) {
  if (parse.pattern_code != kMediumWithNote) return;
  AppendSubfield(parse.buffer, 'v', TidyNote(parse.context, phrase));
}

void AppendPart(HeadingParse& parse, std::string_view new_part, std::string_view phrase) {
  if (PatternIsCounted(parse)) parse.buffer += kOpenA;
  parse.buffer += new_part;
  AppendPatternCount(parse);
  AppendPatternNote(parse, phrase);
}

// The last medium of the heading gives way to the new part.
TailStep ReplaceLastMedium(HeadingParse& parse, std::string_view new_part,
                           std::string_view phrase) {
  const std::size_t last = parse.buffer.rfind(kOpenA);
  if (last == std::string::npos) return TailStep::kSettle;
  std::string tail = parse.buffer.substr(last + kOpenA.size());
  // A last medium without a count is given up only if it is an orchestra.
  const std::size_t delimiter = tail.find(kDelimiter);
  if (delimiter == std::string::npos && tail != "orchestra") return TailStep::kEnd;
  tail.erase(0, delimiter);
  if (tail.starts_with(kOpenN)) tail.erase(0, tail.find(kDelimiter, 1));

  parse.buffer.resize(last);
  parse.buffer += new_part;
  AppendPatternCount(parse);
  parse.buffer += tail;
  AppendPatternNote(parse, phrase);
  return TailStep::kSettle;
}

TailStep JoinPart(HeadingParse& parse, ScoreKind kind, std::string_view new_part,
                  std::string_view phrase) {
  if (kind == ScoreKind::kSolo) return ReplaceLastMedium(parse, new_part, phrase);
  AppendPart(parse, new_part, phrase);
  return TailStep::kSettle;
}

// The singers become soloists and the accompaniment of the heading gives way to
// that of the score.
TailStep JoinVocalScore(HeadingParse& parse, std::string_view new_part, std::string_view phrase) {
  if (!HasSubfield(parse.buffer, 'a')) {
    // Deliberate: such a field receives the new part twice.
    parse.buffer += new_part;
    return JoinPart(parse, ScoreKind::kVocal, new_part, phrase);
  }
  if (HasSubfield(parse.buffer, 'b')) {
    StripAccompaniment(parse.buffer);
  } else {
    MakeSoloists(parse.buffer);
  }
  parse.buffer += new_part;
  return TailStep::kSettle;
}

TailStep ReadMediumOfScore(HeadingParse& parse, ScoreKind kind, std::string_view phrase) {
  const bool vocal = kind == ScoreKind::kVocal;
  // "Vocal scores without accompaniment" matches "Vocal scores with" as well,
  // and leaves "out accompaniment".
  if (vocal && phrase.find("out accompaniment") != std::string_view::npos) {
    const bool has_both = HasSubfield(parse.buffer, 'a') && HasSubfield(parse.buffer, 'b');
    if (has_both) StripAccompaniment(parse.buffer);
    return JoinPart(parse, kind, {}, phrase);
  }
  const std::string old_buffer = std::exchange(parse.buffer, {});
  // Deliberate: what was read of a part that is not understood, if anything,
  // stands as the field, and the field of the heading itself is lost.
  if (parse.ReadPhrase(phrase) == Outcome::kNothing) return TailStep::kEnd;
  const std::string new_part = std::exchange(parse.buffer, old_buffer);
  if (vocal) return JoinVocalScore(parse, new_part, phrase);
  return JoinPart(parse, kind, new_part, phrase);
}

TailStep ReadSubdivisions(HeadingParse& parse) {
  if (SaysTwoPianoScores(parse.rest)) return EndWithPianos(parse, "$apiano$n2");
  FoundPhrase found = FindScorePhrase(parse.rest);
  if (found.kind == ScoreKind::kNone) return TailStep::kSettle;
  if (found.kind == ScoreKind::kPiano) {
    const std::string_view text = TextUpToDelimiter(parse.rest, found.behind);
    if (parse.context.Norm(text).empty()) return EndWithPianos(parse, "$apiano$n1");
    found = RewritePianoScores(parse, found);
  }
  return ReadMediumOfScore(parse, found.kind, MediumBehind(parse.rest, found.behind));
}

}  // namespace

HeadingResult FinishHeading(HeadingParse& parse) {
  if (!parse.rest.empty() && ReadSubdivisions(parse) == TailStep::kEnd) return kHeadingGaveField;
  if (parse.buffer.empty()) return kHeadingGaveNothing;
  SettleSoloists(parse.context, parse.buffer);
  if (parse.all_terms_known) parse.buffer += parse.settings.subfield_2;
  return kHeadingGaveField;
}

void StripAccompaniment(std::string& text) {
  for (std::size_t a = text.rfind(kOpenA); a != std::string::npos;) {
    const std::size_t b = text.find(kOpenB, a);
    if (b == std::string::npos) {
      text.resize(a);
    } else {
      // Deliberate: the delimiter of the $b goes as well, and its code stays
      // behind as the letter "b".
      text.erase(a, b + 1 - a);
    }
    if (a == 0) return;
    a = text.rfind(kOpenA, a - 1);
  }
}

}  // namespace cantorel
