#include "medium/style_qualifiers.h"

#include <algorithm>
#include <cstddef>

#include "medium/text_find.h"

namespace cantorel {
namespace {

constexpr std::size_t kLongestName =
    std::max_element(kStyleQualifiers.begin(), kStyleQualifiers.end(),
                     [](const StyleQualifier& a, const StyleQualifier& b) {
                       return a.name.size() < b.name.size();
                     })
        ->name.size();

// Length of the qualifier, parentheses included, that `text` begins with; 0
// when it begins with none.
std::size_t QualifierLength(std::string_view text) {
  if (text[0] != '(') return 0;
  const std::size_t close = text.substr(0, kLongestName + 2).find(')');
  if (close == std::string_view::npos) return 0;
  const std::string_view name = text.substr(1, close - 1);
  const bool known = std::any_of(
      kStyleQualifiers.begin(), kStyleQualifiers.end(),
      [name](const StyleQualifier& qualifier) { return EqualsNoCase(name, qualifier.name); });
  return known ? close + 1 : 0;
}

}  // namespace

void AppendWithoutStyleQualifiers(std::string_view heading, std::string& out) {
  const std::size_t start = out.size();
  for (std::size_t i = 0; i < heading.size();) {
    const std::size_t length = QualifierLength(heading.substr(i));
    if (length > 0) {
      i += length;
      continue;
    }
    const char c = heading[i++];
    const bool repeated_blank = c == ' ' && (out.size() == start || out.back() == ' ');
    if (!repeated_blank) out += c;
  }
  if (out.size() > start && out.back() == ' ') out.pop_back();
}

}  // namespace cantorel
