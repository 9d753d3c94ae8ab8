#include "medium/group_words.h"

#include "charset/octet_text.h"
#include "medium/text_find.h"

namespace cantorel {

namespace {

struct GroupWord {
  std::string_view singular;
  std::int32_t number;
};

constexpr GroupWord kGroupWords[] = {
    {"DUET", 2},   {"TRIO", 3},   {"QUARTET", 4}, {"QUINTET", 5},
    {"SEXTET", 6}, {"SEPTET", 7}, {"OCTET", 8},   {"NONET", 9},
};

struct Combination {
  std::string_view singular;
  std::string_view subfields;  // \037 is the subfield delimiter
};

constexpr Combination kCombinations[] = {
    {"PIANO TRIO", "\037aviolin\037n1\037acello\037n1\037apiano\037n1"},
    {"PIANO QUARTET", "\037aviolin\037n1\037aviola\037n1\037acello\037n1\037apiano\037n1"},
    {"PIANO QUINTET", "\037aviolin\037n2\037aviola\037n1\037acello\037n1\037apiano\037n1"},
    {"STRING TRIO", "\037aviolin\037n1\037aviola\037n1\037acello\037n1"},
    {"STRING QUARTET", "\037aviolin\037n2\037aviola\037n1\037acello\037n1"},
    {"VOCAL DUET", "\037asinger\037n2"},
    {"VOCAL TRIO", "\037asinger\037n3"},
    {"VOCAL QUARTET", "\037asinger\037n4"},
    {"VOCAL QUINTET", "\037asinger\037n5"},
    {"VOCAL SEXTET", "\037asinger\037n6"},
    {"VOCAL SEPTET", "\037asinger\037n7"},
    {"VOCAL OCTET", "\037asinger\037n8"},
    {"VOCAL NONET", "\037asinger\037n9"},
    {"WIND QUINTET",
     "\037aflute\037n1\037aoboe\037n1\037aclarinet\037n1\037ahorn\037n1\037abassoon\037n1"},
    {"WOODWIND QUARTET", "\037aflute\037n1\037aoboe\037n1\037aclarinet\037n1\037abassoon\037n1"},
};

// A heading that names one of these, or treats "baritone" as an instrument by
// itself, is about the brass instrument.
constexpr std::string_view kBrassHints[] = {
    "brass",   "cornet", "euphonium",      "horn",         "trombone",
    "trumpet", "tuba",   "baritone music", "baritone and",
};

// No singular of the tables ends in S.
std::string_view Singular(std::string_view word) {
  if (word.ends_with('S')) word.remove_suffix(1);
  return word;
}

}  // namespace

std::int32_t NumberFromGroupWord(std::string_view word, bool& is_group) {
  const std::string_view singular = Singular(word);
  for (const GroupWord& group : kGroupWords) {
    if (group.singular != singular) continue;
    is_group = true;
    return group.number;
  }
  is_group = false;
  return 0;
}

std::string HalfRoundedUp(std::string_view text) {
  return std::to_string((LeadingNumber(text) + 1) / 2);
}

bool BaritoneMeansHorn(std::string_view heading_text, std::string& term) {
  for (std::string_view hint : kBrassHints) {
    if (!ContainsNoCase(heading_text, hint)) continue;
    term = "baritone horn";
    return true;
  }
  return false;
}

bool IsCountedMedium(std::string_view term) {
  return term != "continuo" && term != "percussion" && term != "electronics";
}

bool IsCommonEnsemble(std::string_view norm) {
  return norm == "ORCHESTRA" || norm == "STRING ORCHESTRA" || norm == "BAND" ||
         norm.ends_with(" ENSEMBLE");
}

std::string_view StandardCombination(std::string_view item) {
  const std::string_view singular = Singular(item);
  for (const Combination& combination : kCombinations) {
    if (combination.singular == singular) return combination.subfields;
  }
  return {};
}

}  // namespace cantorel
