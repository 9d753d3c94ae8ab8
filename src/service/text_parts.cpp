#include "service/text_parts.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <system_error>

#include "charset/octet_text.h"

namespace cantorel {
namespace {

// The 256 pairs of digits, one behind the other.
constexpr std::array<char, 512> MakeHexPairs() {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::array<char, 512> pairs{};
  for (std::size_t octet = 0; octet < 256; ++octet) {
    pairs[octet * 2] = kDigits[octet >> 4];
    pairs[octet * 2 + 1] = kDigits[octet & 15];
  }
  return pairs;
}

constexpr std::array<char, 512> kHexPairs = MakeHexPairs();

}  // namespace

void ChopAtFirst(std::string_view& text, std::string_view& head, std::string_view delimiter) {
  const std::size_t found = text.find(delimiter);
  if (found == std::string_view::npos) {
    head = text;
    text = {};
    return;
  }
  head = text.substr(0, found);
  text.remove_prefix(found + delimiter.size());
}

void ChopAtLast(std::string_view& text, std::string_view& tail, std::string_view delimiter) {
  tail = {};
  if (text.empty() || delimiter.empty()) return;
  const std::size_t found = text.rfind(delimiter);
  if (found == std::string_view::npos) {
    tail = text;
    text = {};
    return;
  }
  tail = text.substr(found + delimiter.size());
  text = text.substr(0, found);
}

std::int32_t SignedLeadingNumber(std::string_view text) {
  text = TrimLeft(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc::result_out_of_range) return number;
  using Limits = std::numeric_limits<std::int32_t>;
  return text.front() == '-' ? Limits::min() : Limits::max();
}

std::string HexEncode(std::string_view text) {
  std::string hex;
  AppendHexEncoded(text, hex);
  return hex;
}

void AppendHexEncoded(std::string_view text, std::string& out) {
  const std::size_t start = out.size();
  out.resize(start + text.size() * 2);
  char* to = out.data() + start;
  for (const char c : text) {
    std::memcpy(to, &kHexPairs[static_cast<unsigned char>(c) * std::size_t{2}], 2);
    to += 2;
  }
}

}  // namespace cantorel
