// Branches for songs, sacred and vocal music and spoken parts.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "medium/group_words.h"
#include "medium/heading_branches.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

// What stands behind " with " in a heading, and the heading before it.
struct Accompaniment {
  explicit Accompaniment(std::string_view main) : before(main) {
    constexpr std::string_view kWith = " with ";
    const std::size_t with = FindNoCase(main, kWith);
    if (with == std::string_view::npos) return;
    before = main.substr(0, with);
    text = Trim(main.substr(with + kWith.size()));
  }

  std::string_view before;
  std::string_view text;  // empty without one
};

struct SongVoice {
  std::string_view opening;  // of the parenthesis, lower case
  std::string_view term;
  bool takes_prefix;  // of a solo cantata; deliberately not for an ensemble
};

// Tried in this order.
constexpr std::array<SongVoice, 4> kSongVoices = {{
    {"(high voice", "high voice", true},
    {"(medium voice", "medium voice", true},
    {"(low voice", "low voice", true},
    {"(vocal ensemble", "vocal ensemble", false},
}};

// A single voice or an ensemble: read with its accompaniment, or alone, then
// behind the prefix that a solo cantata sets.
Outcome ReadSongVoice(HeadingParse& parse, std::string_view term, std::string_view accompaniment,
                      std::string_view prefix) {
  if (!accompaniment.empty()) {
    return parse.ReadPhrase(std::string(term) + " with " + std::string(accompaniment));
  }
  return parse.SetField(std::string(prefix) + "$a" + std::string(term));
}

// "Songs, 2 (voices)": the number stands ahead of the word.
Outcome ReadSongVoices(HeadingParse& parse, std::string_view before_voices,
                       std::string_view accompaniment) {
  const std::string_view count = LastWord(before_voices);
  const bool is_number =
      BeginsWithCount(count) && count.find_first_not_of("0123456789") == std::string_view::npos;
  if (!is_number) return Outcome::kNothing;
  const std::string number(count);
  if (accompaniment.empty()) return parse.SetField("$asinger$n" + number);
  return parse.ReadPhrase("singers (" + number + ") with " + std::string(accompaniment));
}

Outcome ReadSong(HeadingParse& parse, std::string_view main, bool solo_cantata) {
  const Accompaniment accompaniment(main);
  const std::string_view before = accompaniment.before;
  for (const SongVoice& voice : kSongVoices) {
    if (!ContainsNoCase(before, voice.opening)) continue;
    const bool prefixed = solo_cantata && voice.takes_prefix;
    return ReadSongVoice(parse, voice.term, accompaniment.text, prefixed ? "10:" : "");
  }
  const std::size_t voices = FindNoCase(before, "(voices");
  if (voices != std::string_view::npos) {
    return ReadSongVoices(parse, before.substr(0, voices), accompaniment.text);
  }
  if (before.find('(') != std::string_view::npos) return Outcome::kNothing;
  return ReadSongVoice(parse, "singer", accompaniment.text, "");
}

// "Vocal trio, piano" becomes "singers (3), , piano"; empty when "vocal" is
// followed by no group word.  An empty item does no harm to the phrase parser.
std::string SingersOutOfVocalGroup(const HeadingParse& parse, std::string_view phrase,
                                   std::size_t vocal) {
  constexpr std::string_view kVocal = "vocal";
  const std::string_view behind = phrase.substr(vocal + kVocal.size());
  const std::size_t first = std::min(behind.find_first_not_of(' '), behind.size());
  const std::size_t last = std::min(behind.find_first_of(" ,", first), behind.size());
  bool is_group = false;
  const std::int32_t number =
      NumberFromGroupWord(parse.context.Norm(behind.substr(first, last - first)), is_group);
  if (!is_group) return {};
  std::string singers = "singers (" + std::to_string(number) + "), ";
  singers += phrase.substr(0, vocal);
  singers += behind.substr(last);
  return singers;
}

// The performers beside a speaker.
Outcome ReadSpeaker(HeadingParse& parse) {
  std::string phrase(InsideParenthesis(parse.main));
  const std::size_t vocal = FindNoCase(phrase, "vocal");
  if (vocal != std::string::npos) {
    phrase = SingersOutOfVocalGroup(parse, phrase, vocal);
    if (phrase.empty()) return Outcome::kNothing;
  }
  const std::string_view speaker =
      ContainsNoCase(phrase, " with") ? "speaker with " : "speaker and ";
  return parse.ReadPhrase(std::string(speaker) + phrase);
}

Outcome ReadSacredVocalEnsemble(HeadingParse& parse) {
  const Accompaniment accompaniment(parse.main);
  if (accompaniment.text.empty()) return parse.SetField("$asolo vocal ensemble$n1");
  parse.SetField("$bsolo vocal ensemble$n1");
  return parse.ReadPhrase(accompaniment.text);
}

// "Sacred vocal trios with organ"; `behind` is what follows "Sacred vocal".
Outcome ReadSacredVocalGroup(HeadingParse& parse, std::string_view behind) {
  bool is_group = false;
  const std::string word = parse.context.Norm(TakeWord(behind));
  const std::int32_t number = NumberFromGroupWord(word, is_group);
  if (!is_group) return Outcome::kNothing;
  if (behind.empty()) return parse.SetField("$asinger$n", number);
  if (!StartsWithNoCase(behind, "with ")) return Outcome::kNothing;
  parse.SetField("$bsinger$n", number);
  return parse.ReadPhrase(behind.substr(5));
}

}  // namespace

Outcome ReadMonologues(HeadingParse& parse, const HeadingBranch&) {
  if (StartsWithNoCase(parse.main, "monologues with music (")) return ReadSpeaker(parse);
  if (!StartsWithNoCase(parse.main, "monologues with music")) return Outcome::kNothing;
  return parse.SetField("1:$bspeaker$n1");
}

Outcome ReadSacred(HeadingParse& parse, const HeadingBranch&) {
  const std::string_view main = parse.main;
  if (StartsWithNoCase(main, "sacred songs"))
    return ReadSong(parse, main.substr(0, main.find(',')), false);
  if (StartsWithNoCase(main, "sacred vocal ensemble")) return ReadSacredVocalEnsemble(parse);
  constexpr std::string_view kVocal = "sacred vocal ";
  if (StartsWithNoCase(main, kVocal))
    return ReadSacredVocalGroup(parse, main.substr(kVocal.size()));
  if (StartsWithNoCase(main, "sacred monologues with music (")) return ReadSpeaker(parse);
  if (!StartsWithNoCase(main, "sacred monologues with music")) return Outcome::kNothing;
  return parse.SetField("$aspeaker$n1");
}

Outcome ReadSoloCantatas(HeadingParse& parse, const HeadingBranch&) {
  if (!StartsWithNoCase(parse.main, "solo cantatas")) return Outcome::kNothing;
  return ReadSong(parse, parse.main, true);
}

Outcome ReadSongs(HeadingParse& parse, const HeadingBranch&) {
  return ReadSong(parse, parse.main, false);
}

Outcome ReadVocal(HeadingParse& parse, const HeadingBranch&) {
  std::string_view behind = parse.main;
  TakeWord(behind);
  const std::string_view raw = TakeWord(behind);
  if (raw.empty()) return Outcome::kNothing;
  const std::string word = parse.context.Norm(raw);
  bool is_group = false;
  const std::int32_t number = NumberFromGroupWord(word, is_group);
  if (is_group) {
    parse.SetField("$asinger$n", number);
  } else if (word == "ENSEMBLES") {
    parse.SetField("$asolo vocal ensemble");
  } else {
    return Outcome::kGeneral;
  }
  constexpr std::string_view kWith = " with";
  const std::size_t with = FindNoCase(parse.main, kWith);
  if (with == std::string_view::npos) return Outcome::kField;
  MakeSoloists(parse.buffer);
  return parse.ReadPhrase(Trim(parse.main.substr(with + kWith.size())));
}

}  // namespace cantorel
