// Cuts an input into records.
//
// A reader judges nothing: whatever is no record comes out as a piece of its
// own, so that the caller can name it.  Every octet of the input is in some
// piece, but for line ends, blanks and padding between records.

#ifndef CANTOREL_CLI_RECORD_READER_H_
#define CANTOREL_CLI_RECORD_READER_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "cli/input_buffer.h"

namespace cantorel::cli {

// What stands where a record is expected.
struct Piece {
  std::string_view octets;        // good until the next one is asked for
  std::uint64_t number = 0;       // of the piece in its input, from 1
  std::uint64_t offset = 0;       // of its first octet, from 0
  std::string_view fault;         // why it cannot be a record, where the reader knows; good as long
  std::string_view element = {};  // of MARCXML: what the input has for it; good as long
};

// A record of more octets than this is cut there and the rest passed over, so
// that an input without record ends cannot fill the memory.
inline constexpr std::size_t kMostOctets = 16 * 1024 * 1024;

class RecordReader {
 public:
  virtual ~RecordReader() = default;
  // The next piece; false at the end of the input.
  virtual bool Next(Piece& piece) = 0;
  // The form of the input.
  virtual bool ReadsMarcXml() const { return false; }
};

// Reads ISO 2709.  A record ends where its leader says, if a record terminator
// stands there.  If not, it ends at the next terminator; and when a whole record
// stands at the end of that stretch, as happens behind a truncated one or behind
// rubbish, what stands ahead of it is a piece of its own.
class Iso2709Reader : public RecordReader {
 public:
  explicit Iso2709Reader(OctetSource& source) : input_(source) {}
  explicit Iso2709Reader(InputBuffer&& input) : input_(std::move(input)) {}
  bool Next(Piece& piece) override;

 private:
  void SkipFiller();
  void SkipRestOfLongRecord();
  std::size_t MeasurePiece();
  std::size_t LengthByLeader();
  std::size_t LengthByTerminator();

  InputBuffer input_;
  std::uint64_t count_ = 0;
  std::size_t piece_length_ = 0;
  bool rest_to_skip_ = false;
};

// Reads field lines: for each record a line with its type and level, then one
// line a field, then a blank line or the end.  "$" stands for the subfield
// delimiter, and comes out as such.
class LineReader : public RecordReader {
 public:
  explicit LineReader(OctetSource& source) : input_(source) {}
  bool Next(Piece& piece) override;

 private:
  bool ReadLine(std::string& line);

  InputBuffer input_;
  std::uint64_t count_ = 0;
  std::string record_;
  std::string line_;
};

// The reader for what an input holds: MARCXML when its first octet other than
// blanks is "<", otherwise ISO 2709.
std::unique_ptr<RecordReader> OpenRecordReader(OctetSource& source);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_READER_H_
