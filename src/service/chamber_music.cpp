#include "service/chamber_music.h"

#include <cstdint>

#include "charset/octet_text.h"
#include "medium/text_find.h"
#include "service/text_parts.h"

namespace cantorel {
namespace {

constexpr std::string_view kEnsembles =
    "\x1F"
    "e";
constexpr std::string_view kEnsembleTotal =
    "\x1F"
    "t";
constexpr std::string_view kPerformerTotal =
    "\x1F"
    "s";
constexpr std::string_view kDelimiterText = "\x1F";

constexpr std::int32_t kFewestPerformers = 2;
constexpr std::int32_t kMostPerformers = 25;

// The genre among the fields before the conversion and after it.  The first is
// written without its blank, which is deliberate: a record that already has the
// 655 in its usual form is known by the second list, where it still stands.
constexpr std::string_view kGenreBefore = "achambermusic";
constexpr std::string_view kGenreAfter = "achamber music";

bool Contains(std::string_view text, std::string_view sought) {
  return text.find(sought) != std::string_view::npos;
}

bool IsForFewPerformers(std::string_view text_of_382) {
  if (Contains(text_of_382, kEnsembles) || Contains(text_of_382, kEnsembleTotal)) return false;
  const std::size_t total = text_of_382.find(kPerformerTotal);
  if (total == std::string_view::npos) return false;
  std::string_view rest = text_of_382.substr(total + kPerformerTotal.size());
  std::string_view number;
  ChopAtFirst(rest, number, kDelimiterText);
  const std::int32_t performers = LeadingNumber(number);
  return performers >= kFewestPerformers && performers <= kMostPerformers;
}

// Sets `few_performers` when a 382 of the list says so; false when the list
// has the genre already.
bool LacksGenre(const SnapshotList& list, std::string_view genre, bool& few_performers) {
  for (const FieldSnapshot& field : list) {
    if (field.tag == "382" && IsForFewPerformers(field.text)) few_performers = true;
    if (field.tag == "655" && ContainsNoCase(field.text, genre)) return false;
  }
  return true;
}

}  // namespace

void AddChamberMusicGenre(const SnapshotList& before, SnapshotList& after,
                          std::string_view punctuated_tags) {
  bool few_performers = false;
  if (!LacksGenre(before, kGenreBefore, few_performers)) return;
  if (!LacksGenre(after, kGenreAfter, few_performers)) return;
  if (!few_performers) return;

  FieldSnapshot& genre = after.Append();
  genre.tag = "655";
  genre.indicators = " 7";
  genre.text =
      "\x1F"
      "aChamber music";
  if (Contains(punctuated_tags, "655")) genre.text += '.';
  genre.compare_key = "CHAMBER MUSIC";
  genre.identifier_subfields =
      "\x1F"
      "2lcgft";
}

}  // namespace cantorel
