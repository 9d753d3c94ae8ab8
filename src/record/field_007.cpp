#include "record/field_007.h"

#include <algorithm>
#include <cstddef>

#include "charset/marc_control.h"
#include "charset/octet_text.h"

namespace cantorel {

namespace {

struct CategoryLength {
  char category;
  int length;
};

constexpr CategoryLength kLengths[] = {
    {'a', 8}, {'c', 14}, {'d', 16}, {'f', 10}, {'g', 10}, {'h', 13}, {'k', 6}, {'m', 23},
    {'o', 2}, {'q', 2},  {'r', 11}, {'s', 14}, {'t', 2},  {'v', 9},  {'z', 2},
};

// Where a code's text stands (from 0), for the categories listed.
struct CodePosition {
  char code;
  std::size_t position;
  std::string_view categories;
};

constexpr CodePosition kPositions[] = {
    {'b', 1, "acdfghkmoqrstuv"},
    {'d', 3, "acdfghkmrsv"},
    {'e', 4, "acdghkmrsv"},
    {'e', 5, "f"},
    {'f', 5, "acdghkmrsv"},
    {'f', 6, "f"},
    {'g', 6, "acgmrsv"},
    {'g', 9, "fh"},
    {'h', 7, "agmrsv"},
    {'h', 9, "c"},
    {'h', 10, "h"},
    {'i', 8, "gmrsv"},
    {'i', 10, "c"},
    {'i', 11, "h"},
    {'j', 9, "mrs"},
    {'j', 11, "c"},
    {'j', 12, "h"},
    {'k', 10, "ms"},
    {'k', 12, "c"},
    {'l', 11, "ms"},
    {'l', 13, "c"},
    {'m', 12, "ms"},
    {'n', 13, "ms"},
    {'o', 14, "m"},
    {'p', 15, "m"},
    {'q', 16, "m"},
    {'4', 17, "m"},
};

const CodePosition* FindPosition(char code, char category) {
  const auto* found =
      std::find_if(std::begin(kPositions), std::end(kPositions), [&](const auto& p) {
        return p.code == code && p.categories.find(category) != std::string_view::npos;
      });
  return found == std::end(kPositions) ? nullptr : found;
}

// Lays `piece` over `text`; what would reach past the end is cut.
void LayOver(std::string& text, std::size_t position, std::string_view piece) {
  if (position >= text.size()) return;
  piece = piece.substr(0, text.size() - position);
  text.replace(position, piece.size(), piece);
}

}  // namespace

int Length007(char category) {
  const auto* found = std::find_if(std::begin(kLengths), std::end(kLengths),
                                   [&](const auto& l) { return l.category == category; });
  return found == std::end(kLengths) ? 0 : found->length;
}

std::string RebuildSubfielded007(std::string_view text) {
  if (text.substr(0, 1) == std::string_view(&kDelimiter, 1)) text = From(text, 2);
  const int length = text.empty() ? 0 : Length007(text[0]);
  if (length == 0) {
    std::string filled(text);
    std::replace(filled.begin(), filled.end(), kDelimiter, kFill);
    return filled;
  }
  const char category = text[0];
  std::string out(static_cast<std::size_t>(length), kFill);
  out[0] = category;
  for (std::size_t i = text.find(kDelimiter); i != std::string_view::npos;) {
    const std::size_t end = text.find(kDelimiter, i + 1);
    const std::string_view piece =
        text.substr(i + 1, end == std::string_view::npos ? end : end - i - 1);
    const CodePosition* place = piece.empty() ? nullptr : FindPosition(piece[0], category);
    if (place != nullptr) LayOver(out, place->position, piece.substr(1));
    i = end;
  }
  return out;
}

}  // namespace cantorel
