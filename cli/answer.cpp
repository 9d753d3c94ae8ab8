#include "cli/answer.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\x1F';

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

bool DecodeHex(std::string_view digits, std::string& octets) {
  octets.clear();
  if (digits.size() % 2 != 0) return false;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const int high = HexDigit(digits[i]);
    const int low = HexDigit(digits[i + 1]);
    if (high < 0 || low < 0) return false;
    octets += static_cast<char>(high * 16 + low);
  }
  return true;
}

// Identifier, tab, tag (3), indicators (2), text in hexadecimal.
bool ParseReturnedField(std::string_view line, FieldAnswer& field) {
  const std::size_t tab = line.find('\t');
  if (tab == line.npos || line.size() < tab + 6) return false;
  const char* const id_end = line.data() + tab;
  if (std::from_chars(line.data(), id_end, field.id).ptr != id_end) return false;
  field.tag = line.substr(tab + 1, 3);
  field.indicators = line.substr(tab + 4, 2);
  return DecodeHex(line.substr(tab + 6), field.text);
}

}  // namespace

std::vector<FieldAnswer> ParseReturnedFields(std::string_view lines) {
  std::vector<FieldAnswer> fields;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    FieldAnswer field;
    if (ParseReturnedField(lines.substr(0, end), field)) fields.push_back(std::move(field));
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return fields;
}

std::vector<Subfield> SplitSubfields(std::string_view text) {
  std::vector<Subfield> subfields;
  std::size_t start = text.find(kDelimiter);
  while (start != text.npos) {
    const std::size_t next = text.find(kDelimiter, start + 1);
    const std::string_view subfield = text.substr(start + 1, next - start - 1);
    subfields.push_back(
        {subfield.substr(0, 1), subfield.substr(std::min<std::size_t>(1, subfield.size()))});
    start = next;
  }
  return subfields;
}

}  // namespace cantorel::cli
