#include "genre/closing_passes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "genre/canons_choice.h"

namespace cantorel {
namespace {

constexpr std::string_view kCanonsHeading = "CANONS FUGUES ETC";

// Score terms among the lines of new fields, by their beginning.
constexpr std::array<std::string_view, 5> kNewScoreTerms = {
    "aChorus scores", "aVocal scores", "aPiano scores", "aScores", "aParts (Music"};
// Score terms among the record's own 655, in comparison form.  The last one is
// nothing against "Notated music" itself.
constexpr std::array<std::string_view, 6> kScoreTerms = {
    "CHORUS SCORES", "PIANO SCORES", "VOCAL SCORES", "SCORES", "PARTS MUSIC", "NOTATED MUSIC"};
constexpr std::span<const std::string_view> kAllScoreTerms = kScoreTerms;
constexpr std::span<const std::string_view> kNotatedMusicTerms = kAllScoreTerms.first(5);
constexpr std::array<std::string_view, 1> kJazz = {"JAZZ"};

bool Contains(std::string_view text, std::string_view sought) {
  return text.find(sought) != std::string_view::npos;
}

// Whether the record has a 655 of the source ($2) with one of the terms ($a),
// both in comparison form.
bool HasGenre(Utf8MarcRecordClass& record, std::string_view source,
              std::span<const std::string_view> terms) {
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    if (record.FldTagView() != "655") continue;
    if (!record.SfdFindFirst("2", {}) || record.SfdNormView() != source) continue;
    if (!record.SfdFindFirst("a", {})) continue;
    if (std::find(terms.begin(), terms.end(), record.SfdNormView()) != terms.end()) return true;
  }
  return false;
}

bool HasNewScoreTerm(std::string_view new_lines) {
  return std::any_of(kNewScoreTerms.begin(), kNewScoreTerms.end(),
                     [new_lines](std::string_view term) { return Contains(new_lines, term); });
}

// Methods for big band are of popular music unless they are of jazz.
void ConcludePopularMusic(GenreContext& context) {
  if (!context.state.big_band_method_seen) return;
  if (HasGenre(context.record, "LCGFT", kJazz)) {
    context.state.big_band_method_seen = false;
  } else if (!Contains(context.new_lines,
                       "655 7\x1F"
                       "aJazz")) {
    context.AddGenre("Popular music");
  }
}

// Deliberate, here and for scores: the record's own terms are sought under the
// source of the medium thesaurus, lcmpt, and not under lcgft.
void ConcludeNotatedMusic(GenreContext& context) {
  if (!context.state.notated_music_wanted || HasNewScoreTerm(context.new_lines)) return;
  if (HasGenre(context.record, "LCMPT", kNotatedMusicTerms)) {
    context.state.notated_music_wanted = false;
  } else {
    context.AddGenre("Notated music");
  }
}

void ConcludeScores(GenreContext& context) {
  if (!context.state.scores_wanted || HasNewScoreTerm(context.new_lines)) return;
  if (!HasGenre(context.record, "LCMPT", kAllScoreTerms)) context.AddGenre("Scores");
}

// Stands on the first LC heading of canons and fugues; false without one.
bool FindCanonsHeading(Utf8MarcRecordClass& record) {
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    if (record.FldTagView() != "650" || !record.FldIndView().ends_with('0')) continue;
    if (record.FldNorm().starts_with(kCanonsHeading)) return true;
  }
  return false;
}

void ReportCanons(GenreContext& context) {
  if (FindCanonsHeading(context.record)) {
    context.music.Private_655_AddMessage("Form/genre 'Canons' or 'Fugues' not assigned", "650",
                                         context.record.FldText());
  } else {
    context.music.Private_655_AddMessage("'Canons' or 'Fugues' not assigned", "650",
                                         "\x1F"
                                         "aCanons, fugues, etc. ...");
  }
}

void SettleCanons(GenreContext& context, std::int32_t canons_mode, FieldSelector* selector) {
  if (!context.state.canons_fugues_heading_seen) return;
  if (context.state.canons_or_fugues_assigned) return;
  switch (canons_mode) {
    case kCanonsMessage:
      return ReportCanons(context);
    case kCanonsAssign:
      context.AddGenre("Canons");
      return context.AddGenre("Fugues");
    case kCanonsAsk:
      return ChooseCanons(context, selector);
    default:
      return;
  }
}

}  // namespace

void ConcludeRecord(GenreContext& context, std::int32_t canons_mode, FieldSelector* selector) {
  ConcludePopularMusic(context);
  ConcludeNotatedMusic(context);
  SettleCanons(context, canons_mode, selector);
  ConcludeScores(context);
}

}  // namespace cantorel
