#include "medium/code_point_escapes.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "charset/utf8_code_point.h"

namespace cantorel {
namespace {

constexpr std::string_view kOpen = "[U+";

bool IsScalarValue(std::uint32_t code_point) {
  const bool is_surrogate = code_point >= 0xD800 && code_point <= 0xDFFF;
  return code_point <= 0x10FFFF && !is_surrogate;
}

std::optional<std::uint32_t> ReadHex(std::string_view digits) {
  std::uint32_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
  if (error != std::errc() || stop != end || !IsScalarValue(value)) return std::nullopt;
  return value;
}

}  // namespace

std::string DecodeCodePointEscapes(std::string_view text) {
  std::string out;
  while (true) {
    const std::size_t open = text.find(kOpen);
    out += text.substr(0, open);
    if (open == std::string_view::npos) return out;
    text.remove_prefix(open + kOpen.size());
    const std::size_t close = text.find(']');
    const auto code_point = ReadHex(text.substr(0, close));
    if (close == std::string_view::npos || !code_point) {
      out += kOpen;
      continue;
    }
    AppendUtf8(*code_point, out);
    text.remove_prefix(close + 1);
  }
}

}  // namespace cantorel
