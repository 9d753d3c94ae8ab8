#include "genre/fixed_field_genres.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace cantorel {
namespace {

struct CodedGenre {
  std::string_view code;
  std::string_view genre;
};

// 008/20: what the notation is laid out for.
constexpr CodedGenre kMusicFormats[] = {
    {"d", "Vocal scores"}, {"h", "Chorus scores"}, {"j", "Parts (Music)"},
    {"k", "Vocal scores"}, {"p", "Piano scores"},
};
// Scores of one kind or another: "Scores" unless something closer is found.
constexpr std::string_view kScoreFormats = "abcegil";
// Several kinds, or another kind.
constexpr std::string_view kOtherFormats = "mz";
// 008/21: parts are there.
constexpr std::string_view kPartsCodes = "def";

constexpr CodedGenre kCompositions[] = {
    {"CC", "Chants"},           {"CG", "Concerti grossi"}, {"CP", "Polyphonic chansons"},
    {"CZ", "Art music"},        {"DV", "Art music"},       {"FG", "Fugues"},
    {"FT", "Art music"},        {"NC", "Art music"},       {"PM", "Lenten music"},
    {"PR", "Preludes (Music)"}, {"RI", "Art music"},       {"RP", "Rhapsodies (Music)"},
};

template <typename Table>
std::string_view GenreOf(const Table& table, std::string_view code) {
  const auto* row = std::find_if(std::begin(table), std::end(table),
                                 [code](const CodedGenre& coded) { return coded.code == code; });
  return row == std::end(table) ? std::string_view() : row->genre;
}

bool IsOneOf(std::string_view code, std::string_view codes) {
  return !code.empty() && codes.find(code) != std::string_view::npos;
}

}  // namespace

void DeriveFromMusicFormat(GenreContext& context) {
  const std::string format = context.record.Get008Value(20, 1);
  if (IsOneOf(format, kScoreFormats)) context.state.scores_wanted = true;
  if (IsOneOf(format, kOtherFormats)) context.state.notated_music_wanted = true;
  const std::string_view genre = GenreOf(kMusicFormats, format);
  if (!genre.empty()) context.AddGenre(genre);

  if (IsOneOf(context.record.Get008Value(21, 1), kPartsCodes)) context.AddGenre("Parts (Music)");
}

std::string_view GenreOfComposition(std::string_view code) {
  return GenreOf(kCompositions, code);
}

void Music650To382Class::Private_655_TestCompositionCode(std::string_view code,
                                                         Utf8MarcRecordClass& record,
                                                         std::string& new_lines) {
  GenreContext context{*this, genre_, record, new_lines};
  const std::string norm = record.NormString(code, true, "V");
  const std::string_view genre = GenreOfComposition(norm);
  if (genre.empty()) return;
  context.AddGenre(genre);
  if (norm == "FG") genre_.canons_or_fugues_assigned = true;
}

}  // namespace cantorel
