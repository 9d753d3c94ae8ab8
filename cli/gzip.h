// Compressed files (RFC 1952), read and written by zlib.

#ifndef CANTOREL_CLI_GZIP_H_
#define CANTOREL_CLI_GZIP_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "cli/input_buffer.h"

namespace cantorel::cli {

// True for octets that begin as a compressed file does.
bool BeginsAsGzip(std::string_view octets);

// The octets behind a compressed source.  Compressed files one behind the other
// are one, as gzip has it; NULs behind the last one are padding.
class GzipSource : public OctetSource {
 public:
  explicit GzipSource(InputBuffer& compressed);
  ~GzipSource() override;

  std::size_t Read(char* to, std::size_t size) override;
  // What is wrong with the compressed octets; empty when nothing is.
  const std::string& Error() const { return error_; }

 private:
  struct Stream;

  bool BeginNextMember();
  std::size_t Fail(const std::string& why);

  InputBuffer& compressed_;
  std::unique_ptr<Stream> stream_;
  bool at_end_ = false;
  std::string error_;
};

// Compresses what is to be written.
class GzipCompressor {
 public:
  GzipCompressor();
  ~GzipCompressor();

  // The compressed octets that are ready; the view is good until the next call.
  std::string_view Compress(std::string_view text);
  // The last of them.
  std::string_view Finish();

 private:
  struct Stream;

  std::string_view Run(std::string_view text, int flush);

  std::unique_ptr<Stream> stream_;
  std::string out_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_GZIP_H_
