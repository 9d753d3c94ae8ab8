// A window on an input that may be of any length: look ahead as far as needed,
// then skip what has been dealt with.

#ifndef CANTOREL_CLI_INPUT_BUFFER_H_
#define CANTOREL_CLI_INPUT_BUFFER_H_

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace cantorel::cli {

// Where octets come from.
class OctetSource {
 public:
  virtual ~OctetSource() = default;
  // Puts 1 to `size` octets at `to`, as many as are at hand without waiting for
  // more; 0 at the end, and when reading failed.
  virtual std::size_t Read(char* to, std::size_t size) = 0;
};

// A file, or standard input for the name "-".
class FileSource : public OctetSource {
 public:
  explicit FileSource(const std::string& name);

  std::size_t Read(char* to, std::size_t size) override;
  // Why opening or reading failed; empty when neither did.
  const std::string& Error() const { return error_; }

 private:
  std::vector<char> file_octets_;
  std::filebuf file_;
  std::streambuf* octets_;  // file_, or the buffer of standard input
  std::string error_;
};

class InputBuffer {
 public:
  explicit InputBuffer(OctetSource& source) : source_(source) {}

  // All octets at hand, and at least `wanted` unless the input ends before.  The
  // view is good until the next Peek.
  std::string_view Peek(std::size_t wanted);
  // Drops `count` octets, which a Peek must have shown.
  void Skip(std::size_t count);
  // How many octets were skipped, which is the offset of the next one.
  std::uint64_t Offset() const { return offset_; }

 private:
  OctetSource& source_;
  std::vector<char> octets_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::uint64_t offset_ = 0;
  bool at_end_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_INPUT_BUFFER_H_
