#include "normalize/character_norm.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "charset/marc_control.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "normalize/squeezing_writer.h"
#include "normalize/tables/norm_pages.h"

namespace cantorel {
namespace {

constexpr std::size_t kAsciiCount = 0x80;

// The form of each ASCII character, '\0' for nothing: none has more than one
// octet.
using AsciiNorms = std::array<char, kAsciiCount>;

constexpr AsciiNorms AsciiNormsKeeping(const NormKeeps& keeps) {
  AsciiNorms norms{};
  for (std::size_t code = 0; code < kAsciiCount; ++code) {
    const std::uint16_t norm = kNormPages[kNormPageOf[code >> 6]][code & 0x3F];
    if (norm != kNormNothing) norms[code] = static_cast<char>(norm == kNormItself ? code : norm);
  }
  if (keeps.delimiter) norms[Octet(kDelimiter)] = kDelimiter;
  if (keeps.at_sign) norms['@'] = '@';
  if (keeps.comma) norms[','] = ',';
  if (keeps.hyphen) norms['-'] = '-';
  return norms;
}

// One table for each of the sixteen choices, made when the program is compiled.
constexpr std::array<AsciiNorms, 16> MakeAsciiNormTables() {
  std::array<AsciiNorms, 16> tables{};
  for (unsigned i = 0; i < tables.size(); ++i) {
    tables[i] = AsciiNormsKeeping({(i & 1) != 0, (i & 2) != 0, (i & 4) != 0, (i & 8) != 0});
  }
  return tables;
}
constexpr std::array<AsciiNorms, 16> kAsciiNormTables = MakeAsciiNormTables();

const AsciiNorms& AsciiNormsFor(const NormKeeps& keeps) {
  return kAsciiNormTables[(keeps.delimiter ? 1U : 0U) | (keeps.at_sign ? 2U : 0U) |
                          (keeps.comma ? 4U : 0U) | (keeps.hyphen ? 8U : 0U)];
}

// The code point of a well-formed character of two or three octets; 0 for
// everything else: truncated, overlong or longer characters and stray
// continuation octets.
std::uint32_t CodePointInPages(std::string_view character) {
  const auto bits = [&](std::size_t i) { return Octet(character[i]) & 0x3FU; };
  if (character.size() == 2 && IsUtf8Continuation(character[1])) {
    const std::uint32_t code = (Octet(character[0]) & 0x1FU) << 6 | bits(1);
    return code >= 0x80 ? code : 0;
  }
  if (character.size() == 3 && IsUtf8Continuation(character[1]) &&
      IsUtf8Continuation(character[2])) {
    const std::uint32_t code = (Octet(character[0]) & 0x0FU) << 12 | bits(1) << 6 | bits(2);
    return code >= 0x800 ? code : 0;
  }
  return 0;
}

// A malformed character has no row in a table of characters; its category alone
// decides.
std::string_view MalformedNorm(std::string_view character) {
  switch (CategoryOf(character)) {
    case Category::kNone:
    case Category::kCc:
    case Category::kCf:
    case Category::kCs:
    case Category::kCo:
    case Category::kLm:
    case Category::kMn:
    case Category::kLl:
    case Category::kLu:
    case Category::kZZ:
      return {};
    case Category::kZs:
    case Category::kSc:
    case Category::kSm:
      return " ";
    default:
      return character;
  }
}

// The form of a character of more than one octet, as octets: of `character`
// itself, of a table, or of `buffer`.
std::string_view WideNorm(std::string_view character, std::array<char, 3>& buffer) {
  const std::uint32_t code = CodePointInPages(character);
  if (code == 0) return MalformedNorm(character);
  const std::uint16_t norm = kNormPages[kNormPageOf[code >> 6]][code & 0x3F];
  if (norm == kNormNothing) return {};
  if (norm == kNormItself) return character;
  if (norm < kFirstNormCode) return kNormTexts[norm];
  if (norm < 0x80) {
    buffer[0] = static_cast<char>(norm);
    return {buffer.data(), 1};
  }
  if (norm < 0x800) {
    buffer[0] = static_cast<char>(0xC0 | norm >> 6);
    buffer[1] = static_cast<char>(0x80 | (norm & 0x3F));
    return {buffer.data(), 2};
  }
  buffer[0] = static_cast<char>(0xE0 | norm >> 12);
  buffer[1] = static_cast<char>(0x80 | (norm >> 6 & 0x3F));
  buffer[2] = static_cast<char>(0x80 | (norm & 0x3F));
  return {buffer.data(), 3};
}

}  // namespace

void AppendCharacterNorm(std::string_view character, bool keep_at_sign, bool keep_delimiter,
                         std::string& out) {
  if (character.empty()) return;
  const unsigned first = Octet(character[0]);
  if (first < kAsciiCount) {
    const char norm = AsciiNormsFor({.delimiter = keep_delimiter, .at_sign = keep_at_sign})[first];
    if (norm != '\0') out += norm;
    return;
  }
  std::array<char, 3> buffer;
  out += WideNorm(Utf8CharAt(character, 0), buffer);
}

void AppendUtf8Norm(std::string_view text, bool trim, const NormKeeps& keeps, std::string& out) {
  const AsciiNorms& ascii = AsciiNormsFor(keeps);
  // No form is longer than its character.
  SqueezingWriter writer(out, text.size(), trim);
  std::array<char, 3> buffer;
  for (std::size_t i = 0; i < text.size();) {
    const unsigned octet = Octet(text[i]);
    if (octet < kAsciiCount) {
      writer.Put(ascii[octet], ascii[octet] != '\0');
      ++i;
      continue;
    }
    const std::string_view character = Utf8CharAt(text, i);
    writer.PutAll(WideNorm(character, buffer));
    i += character.size();
  }
  writer.Finish();
}

void AppendUtf8Norm(std::string_view text, bool trim, bool keep_delimiter, std::string& out) {
  AppendUtf8Norm(text, trim, NormKeeps{.delimiter = keep_delimiter}, out);
}

}  // namespace cantorel
