// The comparison form of text in the 8-bit sets.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/utf8.h"
#include "normalize/character_norm.h"
#include "normalize/squeezing_writer.h"
#include "normalize/tables/octet_norms.h"

namespace cantorel {
namespace {

// The form of one octet: up to two octets, '\0' for nothing.
struct OctetNorm {
  char first = '\0';
  char second = '\0';
};
using OctetNorms = std::array<OctetNorm, 256>;

constexpr bool CountsUp(char norm) {
  return (norm >= '0' && norm <= '9') || (norm >= 'A' && norm <= 'Z');
}

template <std::size_t kRows>
constexpr void FillIn(const OctetNormRow (&rows)[kRows], OctetNorms& norms) {
  for (const OctetNormRow& row : rows) {
    for (unsigned octet = row.first; octet <= row.last; ++octet) {
      const unsigned step = CountsUp(row.norm[0]) ? octet - row.first : 0;
      norms[octet].first = static_cast<char>(row.norm[0] + static_cast<char>(step));
      norms[octet].second = row.norm.size() > 1 ? row.norm[1] : '\0';
    }
  }
}

template <std::size_t kRows>
constexpr OctetNorms CommonAnd(const OctetNormRow (&rows)[kRows]) {
  OctetNorms norms{};
  FillIn(kCommonOctetNorms, norms);
  FillIn(rows, norms);
  return norms;
}

constexpr OctetNorms kNormsOfV = CommonAnd(kOctetNormsOfV);
constexpr OctetNorms kNormsOfM = CommonAnd(kOctetNormsOfM);

// Takes in the escape at `position` and gives the position behind it.  Only the
// Greek symbols, opened by escape "g" and closed by the next escape, mean
// anything; any other escape is two octets long, whatever its set, so that the
// final of a longer sequence counts as text ("(B" leaves a "B").
std::size_t TakeEscape(std::string_view text, std::size_t position, SqueezingWriter& writer) {
  std::size_t i = position + 2;
  if (position + 1 >= text.size() || text[position + 1] != 'g') return i;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == kEscape) return i + 2;
    if (c == kDelimiter) return i;
    if (c >= 'a' && c <= 'c') writer.Put(kGreekSymbolNorms[c - 'a']);
  }
  return i;
}

}  // namespace

void AppendOctetNorm(std::string_view text, bool trim, char set, std::string& out) {
  if (set != 'V' && set != 'M' && set != 'O') return;
  const OctetNorms& norms = set == 'V' ? kNormsOfV : kNormsOfM;
  SqueezingWriter writer(out, 2 * text.size(), trim);
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i];
    if (c == kEscape) {
      i = TakeEscape(text, i, writer);
      if (set == 'V') break;  // deliberate: set "V" ends at the first escape
    } else if (c == kDelimiter) {
      writer.Put(' ');
      i += 2;
    } else {
      const OctetNorm norm = norms[Octet(c)];
      writer.Put(norm.first, norm.first != '\0');
      writer.Put(norm.second, norm.second != '\0');
      ++i;
    }
  }
  writer.Finish();
}

}  // namespace cantorel
