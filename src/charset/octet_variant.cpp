#include "charset/octet_variant.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "charset/utf8.h"

namespace cantorel {

namespace {

struct Row {
  unsigned char octet;
  std::string_view replacement;
};

constexpr std::string_view kPairs[] = {"M2O", "M2V", "O2M", "O2V", "V2M", "V2O"};

// Rows of the tables into "V" whose use is noted on the row behind them: C5
// passes unchanged, and C6 is noted twice.  Deliberate; kept as data knows it.
constexpr unsigned char kNotedOnNext = 0xC5;

constexpr Row kM2O[] = {{0xC1, "\xBE"}};
constexpr Row kO2M[] = {{0xBE, "\xC1"}};
constexpr Row kM2V[] = {{0xC0, "\x90"}, {0xC1, "\xA0"}, {0xC2, "\x92"}, {0xC3, "\x93"},
                        {0xC4, "\x94"}, {0xC5, "\x95"}, {0xC6, "\x96"}};
constexpr Row kO2V[] = {{0xBE, "\xA0"}, {0xC0, "\x90"}, {0xC2, "\x92"}, {0xC3, "\x93"},
                        {0xC4, "\x94"}, {0xC5, "\x95"}, {0xC6, "\x96"}};

constexpr Row kSymbolsOfV[] = {{0x90, "\xC0"}, {0x92, "\xC2"}, {0x93, "\xC3"},
                               {0x94, "\xC4"}, {0x95, "\xC5"}, {0x96, "\xC6"}};
constexpr Row kScriptLToM[] = {{0xA0, "\xC1"}};
constexpr Row kScriptLToO[] = {{0xA0, "\xBE"}};
constexpr Row kGreekOfV[] = {{0xAF, "\033ga\033s"}, {0xBE, "\033gb\033s"}, {0xBF, "\033gc\033s"}};
constexpr Row kSuperscriptsOfV[] = {
    {0xC0, "\033p0\033s"}, {0xC1, "\033p1\033s"}, {0xC2, "\033p2\033s"}, {0xC3, "\033p3\033s"},
    {0xC4, "\033p4\033s"}, {0xC5, "\033p5\033s"}, {0xC6, "\033p6\033s"}, {0xC7, "\033p7\033s"},
    {0xC8, "\033p8\033s"}, {0xC9, "\033p9\033s"}, {0xCA, "\033p+\033s"}, {0xCB, "\033p-\033s"},
    {0xCC, "\033p(\033s"}, {0xCD, "\033p)\033s"}};
constexpr Row kSubscriptsOfV[] = {
    {0xD0, "\033b0\033s"}, {0xD1, "\033b1\033s"}, {0xD2, "\033b2\033s"}, {0xD3, "\033b3\033s"},
    {0xD4, "\033b4\033s"}, {0xD5, "\033b5\033s"}, {0xD6, "\033b6\033s"}, {0xD7, "\033b7\033s"},
    {0xD8, "\033b8\033s"}, {0xD9, "\033b9\033s"}, {0xDA, "\033b+\033s"}, {0xDB, "\033b-\033s"},
    {0xDC, "\033b(\033s"}, {0xDD, "\033b)\033s"}};

template <std::size_t kRows>
constexpr void Fill(OctetTable& table, const Row (&rows)[kRows]) {
  for (const Row& row : rows) table[row.octet] = {true, row.replacement};
}

template <std::size_t kRows>
constexpr OctetTable TableOf(const Row (&rows)[kRows]) {
  OctetTable table{};
  Fill(table, rows);
  return table;
}

template <std::size_t kRows>
constexpr OctetTable TableIntoV(const Row (&rows)[kRows]) {
  OctetTable table = TableOf(rows);
  table[kNotedOnNext].in_use = false;
  return table;
}

constexpr OctetTable TableFromV(const Row (&script_l)[1]) {
  OctetTable table = TableOf(kSymbolsOfV);
  Fill(table, script_l);
  Fill(table, kGreekOfV);
  Fill(table, kSuperscriptsOfV);
  Fill(table, kSubscriptsOfV);
  return table;
}

constexpr OctetTable kTables[] = {TableOf(kM2O),           TableIntoV(kM2V),
                                  TableOf(kO2M),           TableIntoV(kO2V),
                                  TableFromV(kScriptLToM), TableFromV(kScriptLToO)};

}  // namespace

const OctetTable* OctetTableOf(std::int32_t pair) {
  const bool known = pair >= 0 && pair < static_cast<std::int32_t>(std::size(kTables));
  return known ? &kTables[pair] : nullptr;
}

std::int32_t OctetPairOf(char from, char to) {
  const auto* const found = std::find_if(
      std::begin(kPairs), std::end(kPairs),
      [from, to](std::string_view pair) { return pair.front() == from && pair.back() == to; });
  return found == std::end(kPairs) ? -1 : static_cast<std::int32_t>(found - std::begin(kPairs));
}

std::string ReplaceOctets(std::string_view text, const OctetTable& table) {
  std::string replaced;
  replaced.reserve(text.size());
  for (char c : text) {
    const OctetReplacement& row = table[Octet(c)];
    if (row.in_use) {
      replaced += row.replacement;
    } else {
      replaced += c;
    }
  }
  return replaced;
}

}  // namespace cantorel
