#include "normalize/character_norm.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "charset/marc_control.h"
#include "charset/two_stage_table.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "normalize/squeezing_writer.h"
#include "normalize/tables/norm_table.h"

namespace cantorel {
namespace {

// What a number in the table of forms means.  From kFirstCodePoint on it is the
// code point of the form, below it one of these or an index into kTexts.
constexpr std::uint16_t kNothing = 0;
constexpr std::uint16_t kItself = 1;
constexpr std::uint16_t kFirstCodePoint = 32;
constexpr std::string_view kTexts[] = {"", "", "AE", "NG", "OE", "OI", "SS", "TH", "YR"};

constexpr std::uint16_t NormOf(std::uint32_t code_point) {
  return TwoStageLookUp(kNormPages, kNormValues, code_point);
}

constexpr std::size_t kAsciiCount = 0x80;

// The form of each ASCII character, '\0' for nothing: none has more than one
// octet.
using AsciiNorms = std::array<char, kAsciiCount>;

constexpr AsciiNorms AsciiNormsKeeping(const NormKeeps& keeps) {
  AsciiNorms norms{};
  for (std::uint32_t code = 0; code < kAsciiCount; ++code) {
    const std::uint16_t norm = NormOf(code);
    if (norm != kNothing) norms[code] = static_cast<char>(norm == kItself ? code : norm);
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

// The form of a character beyond ASCII, as octets: of `character` itself, of a
// text, or of `buffer`.
std::string_view WideNorm(std::string_view character, std::array<char, 3>& buffer) {
  const std::uint32_t code_point = Utf8CodePoint(character);
  if (code_point == kNoCodePoint) return MalformedNorm(character);
  if (code_point > kLastTableCodePoint) return {};
  const std::uint16_t norm = NormOf(code_point);
  if (norm == kNothing) return {};
  if (norm == kItself) return character;
  if (norm < kFirstCodePoint) return kTexts[norm];
  std::size_t size = 0;
  const std::uint32_t octets = OctetValueOfCodePoint(norm);
  if (octets > 0xFFFF) buffer[size++] = static_cast<char>(octets >> 16);
  if (octets > 0xFF) buffer[size++] = static_cast<char>(octets >> 8 & 0xFF);
  buffer[size++] = static_cast<char>(octets & 0xFF);
  return {buffer.data(), size};
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
