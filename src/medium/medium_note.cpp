#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"
#include "medium/medium_phrase.h"
#include "record/safe_text.h"

namespace cantorel {

namespace {

bool IsPositiveNumber(std::string_view word) {
  return LeadingNumber(word) > 0 && std::all_of(word.begin(), word.end(), IsAsciiDigit);
}

// "piano 4 hands" becomes "piano, 4 hands".
void SetCommaBeforeHands(std::string& note) {
  const std::size_t hands = note.find(" hand");
  if (hands == std::string::npos || hands == 0) return;
  const std::size_t blank = note.rfind(' ', hands - 1);
  if (blank == std::string::npos) return;
  const std::string_view text = note;
  const std::string_view word = text.substr(blank + 1, hands - blank - 1);
  if (IsPositiveNumber(word)) note.insert(blank, 1, ',');
}

}  // namespace

std::string TidyNote(MediumContext& context, std::string_view text) {
  std::string note = context.record.SafeLCase(text);
  const bool has_comma = note.find(", ") != std::string::npos;
  if (!has_comma) std::erase_if(note, [](char c) { return c == '(' || c == ')'; });
  SqueezeBlanks(note);
  if (!has_comma) SetCommaBeforeHands(note);
  if (note.ends_with(')') && note.find('(') == std::string::npos) note.pop_back();
  return note;
}

}  // namespace cantorel
