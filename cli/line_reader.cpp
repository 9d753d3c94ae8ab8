#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "charset/decomposition.h"
#include "cli/record_reader.h"

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\x1F';

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(" \t") == line.npos;
}

}  // namespace

bool LineReader::Next(Piece& piece) {
  record_.clear();
  while (true) {
    const std::uint64_t line_offset = input_.Offset();
    if (!ReadLine(line_)) break;
    if (IsBlank(line_)) {
      if (record_.empty()) continue;
      break;
    }
    if (record_.empty()) {
      piece.offset = line_offset;
    } else {
      record_ += '\n';
    }
    // A record that passes all measure loses its further fields, not the memory.
    if (record_.size() < kMostOctets) record_ += line_;
  }
  if (record_.empty()) return false;
  std::replace(record_.begin(), record_.end(), '$', kDelimiter);
  // Lines come as they were typed, records hold letters and marks apart.
  std::string apart;
  if (DecomposeText(record_, apart)) record_.swap(apart);
  piece.octets = record_;
  piece.number = ++count_;
  return true;
}

// One line without its end (LF or CR LF); false when the input is at its end.
bool LineReader::ReadLine(std::string& line) {
  line.clear();
  std::string_view text = input_.Peek(1);
  if (text.empty()) return false;
  for (; !text.empty(); text = input_.Peek(1)) {
    const std::size_t end = text.find('\n');
    if (line.size() < kMostOctets) line += text.substr(0, end);
    if (end != text.npos) {
      input_.Skip(end + 1);
      break;
    }
    input_.Skip(text.size());
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace cantorel::cli
