#include "charset/marc8_escape.h"

#include <algorithm>

#include "charset/marc_control.h"

namespace cantorel {

namespace {

bool IsGraphic(char c) {
  return c > ' ' && c < '\x7F';
}

// The escape character and `count` graphic characters behind it.
bool HasCode(std::string_view text, std::size_t count) {
  return text.size() > count &&
         std::all_of(text.begin() + 1, text.begin() + 1 + static_cast<std::ptrdiff_t>(count),
                     IsGraphic);
}

void SetCode(std::string_view code, Marc8Escape& escape) {
  std::copy(code.begin(), code.end(), escape.code);
  escape.code_size = code.size();
}

Marc8Set PartnerOf(const Marc8Half& g0) {
  if (!g0.known) return Marc8Set::kLatin;
  if (g0.designation.set == Marc8Set::kCyrillic) return Marc8Set::kExtendedCyrillic;
  if (g0.designation.set == Marc8Set::kArabic) return Marc8Set::kExtendedArabic;
  return Marc8Set::kLatin;
}

}  // namespace

bool ReadMarc8Escape(std::string_view text, Marc8Escape& escape) {
  static constexpr std::string_view kOneCharacter = "spgb";
  static constexpr std::string_view kMoreCharacters = "()$!";
  if (!text.starts_with(kEscape) || !HasCode(text, 1)) return false;
  if (kOneCharacter.find(text[1]) != std::string_view::npos) {
    SetCode(text.substr(1, 1), escape);
    escape.is_g1 = false;
    escape.length = 2;
    return true;
  }
  if (kMoreCharacters.find(text[1]) == std::string_view::npos || !HasCode(text, 2)) return false;

  const bool multi_octet = text[1] == '$';
  const bool latin_pair = text[1] != '!' && !multi_octet && text[2] == '!';
  const bool to_g0 = multi_octet && text[2] == ',';
  const bool to_g1 = multi_octet && (text[2] == '-' || text[2] == ')');
  escape.length = latin_pair || to_g0 || to_g1 ? 4 : 3;
  if (!HasCode(text, escape.length - 1)) return false;
  SetCode(text.substr(1, escape.length - 1), escape);
  escape.is_g1 = text[1] == ')' || text[1] == '!' || to_g1;
  if (to_g0) escape = {false, 4, {'$', text[3]}, 2};
  if (to_g1) escape.code[1] = ')';
  if (escape.Code() == "(B" || escape.Code() == ")B") SetCode("s", escape);
  return true;
}

Marc8Half::Marc8Half(std::string_view code)
    : known(ReadMarc8Designation(code == "$,1" ? "$1" : code, designation)) {}

bool Marc8Half::operator==(const Marc8Half& other) const {
  return known == other.known && designation.set == other.designation.set &&
         designation.shift == other.designation.shift;
}

void Marc8Sets::Assign(Marc8Half g0, Marc8Half g1) {
  Reset();
  g0_ = last_g0_ = g0;
  g1_ = g1;
}

void Marc8Sets::Take(const Marc8Escape& escape) {
  (escape.is_g1 ? g1_ : g0_) = Marc8Half(escape.Code());
  g1_came_ = g1_came_ || escape.is_g1;
  settled_ = false;
}

void Marc8Sets::Settle() {
  if (settled_) return;
  if (!(g0_ == last_g0_) && !g1_came_) g1_ = Marc8Half(PartnerOf(g0_));
  last_g0_ = g0_;
  g1_came_ = false;
  settled_ = true;
}

}  // namespace cantorel
