#include "genre/region_names.h"

#include <array>
#include <cstddef>

#include "charset/octet_text.h"
#include "medium/text_find.h"

namespace cantorel {
namespace {

struct RegionWord {
  std::string_view text;
  int words;
};

constexpr std::array<RegionWord, 12> kRegionWords = {{
    {"REGION", 1},
    {"VALLEY", 1},
    {"WATERSHED", 1},
    {"DELTA", 1},
    {"ESTUARY", 1},
    {"EASTERN", 1},
    {"WESTERN", 1},
    {"NORTHERN", 1},
    {"SOUTHERN", 1},
    {"CENTRAL", 1},
    {"METROPOLITAN AREA", 2},
    {"SUBURBAN AREA", 2},
}};

const RegionWord* RegionWordOf(std::string_view name) {
  for (const RegionWord& word : kRegionWords) {
    if (EndsWithNoCase(name, word.text)) return &word;
  }
  return nullptr;
}

// The whole last word goes, also when only its end is one of the above.
std::string_view WithoutLastWord(std::string_view text) {
  const std::size_t blank = text.rfind(' ');
  return blank == std::string_view::npos ? std::string_view() : TrimRight(text.substr(0, blank));
}

std::string_view WithoutComma(std::string_view text) {
  if (text.ends_with(',')) text.remove_suffix(1);
  return text;
}

}  // namespace

bool SplitRegionName(std::string_view text, std::string& place) {
  place.clear();
  const std::size_t open = text.find('(');
  std::string_view name = Trim(text.substr(0, open));
  const RegionWord* const region = RegionWordOf(name);
  if (region == nullptr) return false;
  for (int word = 0; word < region->words; ++word) name = WithoutLastWord(name);
  if (open != std::string_view::npos) {
    // Deliberate: the qualifier comes back ahead of the name.
    place = text.substr(open);
    place += ' ';
  }
  place += WithoutComma(name);
  return true;
}

}  // namespace cantorel
