// A file to read, compressed or not: its content tells.

#ifndef CANTOREL_CLI_INPUT_FILE_H_
#define CANTOREL_CLI_INPUT_FILE_H_

#include <memory>
#include <string>

#include "cli/gzip.h"
#include "cli/input_buffer.h"

namespace cantorel::cli {

class InputFile : public OctetSource {
 public:
  // "-" is standard input.
  explicit InputFile(const std::string& name);

  std::size_t Read(char* to, std::size_t size) override;
  // Why opening or reading failed; empty when neither did.  A file of no octets
  // is a failure too, for it is what an export that broke off leaves; standard
  // input may be empty.
  const std::string& Error() const;

 private:
  FileSource file_;
  InputBuffer octets_;  // of the file as it is
  bool opened_ = false;
  const bool may_be_empty_;
  std::string empty_error_;
  std::unique_ptr<GzipSource> gzip_;  // null when the file is not compressed
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_INPUT_FILE_H_
