// The style words of headings, and the genre terms that they stand for.

#include <string>

#include "medium/music_650_to_382_class.h"
#include "medium/style_qualifiers.h"
#include "medium/text_find.h"
#include "normalize/character_norm.h"

namespace cantorel {
namespace {

std::string LowerCaseNorm(std::string_view name) {
  std::string key;
  AppendUtf8Norm(name, true, false, key);
  for (char& c : key) c = AsciiLower(c);
  return key;
}

}  // namespace

void Music650To382Class::InitializeStyleQualifiers() {
  // The words never change, so that what stands is right; the terms may have
  // been added to by look-ups, which stay.
  if (!genre_.style_qualifiers.empty()) return;
  for (const StyleQualifier& qualifier : kStyleQualifiers) {
    genre_.style_qualifiers.push_back("(" + std::string(qualifier.name) + ")");
    if (qualifier.term.empty()) continue;
    genre_.style_terms.Add(LowerCaseNorm(qualifier.name), std::string(qualifier.term));
  }
}

}  // namespace cantorel
