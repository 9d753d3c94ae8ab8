#include "display/xml_text.h"

#include <array>
#include <cstdint>

#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "display/xml_characters.h"

namespace cantorel {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

constexpr std::string_view EscapeOf(char c) {
  switch (c) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '&':
      return "&amp;";
    case '"':
      return "&quot;";
    case '\'':
      return "&apos;";
    default:
      return {};
  }
}

// Octets that go into XML as they are: ASCII that XML allows and that needs no
// escape.
constexpr std::array<bool, 256> kPlain = [] {
  std::array<bool, 256> plain{};
  for (unsigned c = 0; c < 0x80; ++c) {
    plain[c] = IsXmlCharacter(c) && EscapeOf(static_cast<char>(c)).empty();
  }
  return plain;
}();

std::size_t PlainLength(std::string_view text, std::size_t from) {
  std::size_t end = from;
  while (end < text.size() && kPlain[Octet(text[end])]) ++end;
  return end - from;
}

// How many octets at `position` go together in a place where no character
// begins: what could still have become one.
std::size_t DamagedLength(std::string_view text, std::size_t position) {
  const std::size_t announced = Utf8AnnouncedOctets(text[position]);
  std::size_t length = 1;
  while (length < announced && position + length < text.size() &&
         IsUtf8Continuation(text[position + length])) {
    ++length;
  }
  return length;
}

}  // namespace

void AppendXmlEscaped(std::string_view text, std::string& out) {
  for (const char c : text) {
    const std::string_view escape = EscapeOf(c);
    escape.empty() ? out += c : out += escape;
  }
}

std::size_t AppendXmlText(std::string_view text, std::string& out) {
  std::size_t repairs = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (const std::size_t plain = PlainLength(text, i); plain > 0) {
      out += text.substr(i, plain);
      i += plain;
      continue;
    }
    const std::string_view character = Utf8CharAt(text, i);
    const std::uint32_t code_point = Utf8CodePoint(character);
    if (code_point == kNoCodePoint) {
      out += kReplacement;
      ++repairs;
      i += DamagedLength(text, i);
      continue;
    }
    if (!IsXmlCharacter(code_point)) {
      ++repairs;
    } else if (const std::string_view escape = EscapeOf(character[0]); !escape.empty()) {
      out += escape;
    } else {
      out += character;
    }
    i += character.size();
  }
  return repairs;
}

}  // namespace cantorel
