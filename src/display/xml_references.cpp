#include "display/xml_references.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "charset/utf8_code_point.h"
#include "display/tables/html_entities.h"
#include "display/xml_characters.h"

namespace cantorel {
namespace {

// The longest reference that is looked at, between "&" and ";".
constexpr std::size_t kLongestReference = 32;

// Names that stand for a text, not for a code point.  "apos" belongs to XML and
// not to HTML.  "ang" gives the digits of its number, not the angle sign: that
// is deliberate, since records made so far hold it so.
struct TextEntity {
  std::string_view name;
  std::string_view text;
};
constexpr TextEntity kTextEntities[] = {{"ang", "8736"}, {"apos", "'"}};

constexpr bool HoldsRecordTogether(std::uint32_t code) {
  return code == 0 || (code >= 29 && code <= 31);
}

// References to what XML forbids stay references.
bool IsReferable(std::uint32_t code) {
  return IsXmlCharacter(code) || HoldsRecordTogether(code);
}

// The code point of "#193" or "#xC1"; kNoCodePoint for what is none.
std::uint32_t CodeOfNumber(std::string_view reference) {
  reference.remove_prefix(1);
  int base = 10;
  if (!reference.empty() && (reference.front() == 'x' || reference.front() == 'X')) {
    reference.remove_prefix(1);
    base = 16;
  }
  std::uint32_t code = 0;
  const char* const end = reference.data() + reference.size();
  const auto [stop, error] = std::from_chars(reference.data(), end, code, base);
  return error == std::errc() && stop == end && IsReferable(code) ? code : kNoCodePoint;
}

// The code point of "aacute"; kNoCodePoint for a name that HTML does not know.
std::uint32_t CodeOfName(std::string_view name) {
  const auto* place = std::lower_bound(
      std::begin(kHtmlEntities), std::end(kHtmlEntities), name,
      [](const HtmlEntity& entity, std::string_view wanted) { return entity.name < wanted; });
  return place != std::end(kHtmlEntities) && place->name == name ? place->code_point : kNoCodePoint;
}

// Appends a code point as the set wants it.  The 8-bit sets take ASCII as it is
// and the rest as the token for what they lack.
void AppendCodePoint(std::uint32_t code, bool utf8, std::string& out) {
  if (utf8 || code < 0x80) return AppendUtf8(code, out);
  char digits[8];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), code, 16);
  std::transform(digits, end, digits, [](char c) { return c >= 'a' ? c - 32 : c; });
  out.append("&#x").append(digits, end).push_back(';');
}

// Appends what a reference stands for; false when it stands for nothing.
bool AppendReference(std::string_view reference, bool utf8, std::string& out) {
  for (const TextEntity& entity : kTextEntities) {
    if (entity.name != reference) continue;
    out.append(entity.text);
    return true;
  }
  const std::uint32_t code =
      reference.front() == '#' ? CodeOfNumber(reference) : CodeOfName(reference);
  if (code == kNoCodePoint) return false;
  if (!HoldsRecordTogether(code)) AppendCodePoint(code, utf8, out);
  return true;
}

// What stands between the "&" at the start of `text` and the next ";"; empty
// when no reference begins here.
std::string_view ReferenceAt(std::string_view text) {
  const std::string_view near = text.substr(1, kLongestReference + 1);
  const std::size_t end = near.find_first_of(";&");
  if (end == std::string_view::npos || near[end] == '&') return {};
  return near.substr(0, end);
}

}  // namespace

void AppendUnreferenced(std::string_view text, bool utf8, std::string& out) {
  while (true) {
    const std::size_t start = std::min(text.find('&'), text.size());
    out.append(text.substr(0, start));
    text.remove_prefix(start);
    if (text.empty()) return;
    const std::string_view reference = ReferenceAt(text);
    if (!reference.empty() && AppendReference(reference, utf8, out)) {
      text.remove_prefix(reference.size() + 2);
    } else {
      out.push_back('&');
      text.remove_prefix(1);
    }
  }
}

}  // namespace cantorel
