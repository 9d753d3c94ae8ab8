// The comparison form of the current character of Utf8CharClass.

#include "charset/utf8_char_class.h"
#include "normalize/character_norm.h"

namespace cantorel {

// Two schemes take part: the argument decides on "@", the property on the
// delimiter.
std::string Utf8CharClass::Utf8CharNorm(std::string_view scheme) const {
  std::string norm;
  AppendCharacterNorm(Utf8Char(), scheme == "P", NormalizationScheme() == "P", norm);
  return norm;
}

}  // namespace cantorel
