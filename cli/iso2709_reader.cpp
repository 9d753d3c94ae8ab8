#include <cstddef>
#include <string_view>

#include "cli/record_reader.h"

namespace cantorel::cli {
namespace {

constexpr char kEndOfRecord = '\x1D';
constexpr char kEndOfField = '\x1E';
constexpr std::string_view kFiller{" \r\n\0\x1A", 5};
constexpr std::string_view kUtf8Signature = "\xEF\xBB\xBF";
constexpr std::size_t kLeaderLength = 24;
constexpr std::size_t kSearchStep = 4096;

// The number in five digits at `position`; 0 when they are not all digits.
std::size_t FiveDigits(std::string_view text, std::size_t position) {
  if (text.size() < position + 5) return 0;
  std::size_t number = 0;
  for (const char digit : text.substr(position, 5)) {
    if (digit < '0' || digit > '9') return 0;
    number = number * 10 + static_cast<std::size_t>(digit - '0');
  }
  return number;
}

// A leader with its length and its base address, wherever they point.
bool BeginsWithLeader(std::string_view text) {
  return text.size() >= kLeaderLength && FiveDigits(text, 0) != 0 && FiveDigits(text, 12) != 0;
}

// A leader whose numbers agree with what follows: the text is as long as it
// says, and the directory ends ahead of the base address.
bool IsWholeRecord(std::string_view text) {
  if (!BeginsWithLeader(text) || FiveDigits(text, 0) != text.size()) return false;
  const std::size_t base = FiveDigits(text, 12);
  return base > kLeaderLength && base < text.size() && text[base - 1] == kEndOfField;
}

// Where a whole record begins that ends with the text; the text's length when
// there is none behind the first position.
std::size_t FindRecordAtEnd(std::string_view text) {
  for (std::size_t start = 1; start + kLeaderLength < text.size(); ++start) {
    if (IsWholeRecord(text.substr(start))) return start;
  }
  return text.size();
}

}  // namespace

bool Iso2709Reader::Next(Piece& piece) {
  // The piece handed out last is in use until now.
  input_.Skip(piece_length_);
  if (rest_to_skip_) SkipRestOfLongRecord();
  SkipFiller();
  piece_length_ = MeasurePiece();
  if (piece_length_ == 0) return false;
  piece = {input_.Peek(piece_length_).substr(0, piece_length_), ++count_, input_.Offset(), {}};
  return true;
}

void Iso2709Reader::SkipFiller() {
  if (input_.Offset() == 0 && input_.Peek(3).substr(0, 3) == kUtf8Signature) input_.Skip(3);
  for (std::string_view next = input_.Peek(1); !next.empty(); next = input_.Peek(1)) {
    const std::size_t filler = next.find_first_not_of(kFiller);
    input_.Skip(filler == std::string_view::npos ? next.size() : filler);
    if (filler != std::string_view::npos) return;
  }
}

void Iso2709Reader::SkipRestOfLongRecord() {
  rest_to_skip_ = false;
  for (std::string_view next = input_.Peek(kSearchStep); !next.empty();
       next = input_.Peek(kSearchStep)) {
    const std::size_t end = next.find(kEndOfRecord);
    if (end != std::string_view::npos) {
      input_.Skip(end + 1);
      return;
    }
    input_.Skip(next.size());
  }
}

std::size_t Iso2709Reader::MeasurePiece() {
  const std::size_t by_leader = LengthByLeader();
  if (by_leader != 0) return by_leader;
  const std::size_t by_terminator = LengthByTerminator();
  return FindRecordAtEnd(input_.Peek(0).substr(0, by_terminator));
}

// The length that the leader claims, if the octets bear it out; otherwise 0.
std::size_t Iso2709Reader::LengthByLeader() {
  const std::size_t claimed = FiveDigits(input_.Peek(5), 0);
  if (claimed <= kLeaderLength) return 0;
  const std::string_view text = input_.Peek(claimed);
  if (text.size() < claimed || text[claimed - 1] != kEndOfRecord) return 0;

  const std::size_t first_end = text.find(kEndOfRecord);
  if (first_end == claimed - 1) return claimed;
  // A terminator inside: either a stray one, or the claim spans several records.
  std::string_view behind = text.substr(first_end + 1, claimed - first_end - 1);
  behind.remove_prefix(std::min(behind.find_first_not_of(kFiller), behind.size()));
  return BeginsWithLeader(behind) ? 0 : claimed;
}

// Up to and with the next terminator, or all that is left.
std::size_t Iso2709Reader::LengthByTerminator() {
  std::size_t searched = 0;
  while (true) {
    const std::string_view text = input_.Peek(searched + kSearchStep);
    const std::size_t end = text.find(kEndOfRecord, searched);
    if (end < kMostOctets) return end + 1;
    if (text.size() >= kMostOctets) {
      rest_to_skip_ = true;
      return kMostOctets;
    }
    if (text.size() < searched + kSearchStep) return text.size();
    searched = text.size();
  }
}

}  // namespace cantorel::cli
