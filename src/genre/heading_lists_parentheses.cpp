// Headings with a medium or a style in parentheses.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "genre/heading_lists.h"
#include "genre/heading_lists_parentheses_table.h"
#include "medium/text_find.h"
#include "platform/profile_file.h"
#include "record/safe_text.h"

namespace cantorel {
namespace {

constexpr std::string_view kStyles = "MusicalStyle";
constexpr std::int32_t kLongestValue = 200;
constexpr char kSourceSubfield[] = {kDelimiter, '2', '\0'};

const MediumHeading* FindMediumHeading(std::string_view heading) {
  const auto* row =
      std::lower_bound(std::begin(kMediumHeadings), std::end(kMediumHeadings), heading,
                       [](const MediumHeading& r, std::string_view h) { return r.heading < h; });
  return row != std::end(kMediumHeadings) && row->heading == heading ? row : nullptr;
}

}  // namespace

bool HeadingLists::TestParentheses(std::string_view base_text, std::string_view parenthetical) {
  const std::string base = Norm(base_text);
  if (base == "PIANO MUSIC" &&
      (ContainsNoCase(parenthetical, "hands") || ContainsNoCase(parenthetical, "pianos"))) {
    return AddChamberMusic();
  }
  const MediumHeading* row = FindMediumHeading(base);
  if (row == nullptr) {
    if (IsMusicOfInstrument(base)) AddStyle(parenthetical);
    return IsPairOfInstruments(base, parenthetical) && AddChamberMusic();
  }

  context_.AddGenre(row->genre);
  if (!row->second_genre.empty()) context_.AddGenre(row->second_genre);
  const std::size_t with = FindNoCase(parenthetical, " with ");
  if (row->scans_performers && with != std::string_view::npos) {
    AddUnlessLargeEnsemble(Trim(parenthetical.substr(with + 6)), " and", " with");
  }
  return true;
}

// "Trumpet music (Trumpets (2))".
bool HeadingLists::IsPairOfInstruments(std::string_view base, std::string_view parenthetical) {
  if (parenthetical.size() < 2 || !parenthetical.ends_with(')')) return false;
  const std::string_view inner = parenthetical.substr(1, parenthetical.size() - 2);
  const std::size_t open = FindLastGroup(inner);
  return open != std::string_view::npos && inner.substr(open) == "(2)" &&
         IsInstrument(Norm(inner.substr(0, open))) && IsMusicOfInstrument(base);
}

// --- Style words -------------------------------------------------------------------

void HeadingLists::AddStyle(std::string_view parenthetical) {
  const std::string style = LowerCase(Norm(parenthetical));
  if (style.ends_with(" 2")) return;  // a pair of instruments
  const std::string* found = FindStyle(style);
  if (found == nullptr || found->empty()) return;

  const std::string_view value = *found;
  const std::size_t source = value.find(kSourceSubfield);
  if (source == std::string_view::npos) {
    context_.AddGenre(value);
  } else {
    context_.music.Private_655_AddField(context_.record, "655", " 7", "a", value.substr(0, source),
                                        value.substr(source + 2), context_.new_lines);
  }
}

// The term of a style word (comparison form in lower case), with its source when
// it came from the table; null for an unknown word.  What the table answers is
// kept.
const std::string* HeadingLists::FindStyle(const std::string& style) {
  StringMap<std::string>& terms = context_.state.style_terms;
  if (const std::string* known = terms.Find(style)) return known;
  std::string value;
  if (!FindIniValue(derivation_table_, kStyles, TableKey(style), kLongestValue, value)) {
    return nullptr;
  }
  value = context_.music.Private_655_DecodeEscapes(value);
  std::replace(value.begin(), value.end(), '$', kDelimiter);
  terms.Add(style, RemoveSpacesAroundDelimiters(value));
  return terms.Find(style);
}

}  // namespace cantorel
