// Where records are written: a file or standard output.

#ifndef CANTOREL_CLI_OUTPUT_FILE_H_
#define CANTOREL_CLI_OUTPUT_FILE_H_

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/gzip.h"
#include "platform/new_file.h"

namespace cantorel::cli {

// A file stands under its name only when it is whole: until then what was
// written lies beside it under another name, and a run that fails leaves behind
// what stood there.  A device or a pipe is written straight away.  A file whose
// name ends in ".gz" is compressed.
//
// Every call that answers false has said why on standard error.
class OutputFile {
 public:
  OutputFile() = default;
  // A file that was not finished is discarded.
  ~OutputFile() { Discard(); }
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Once for each object.  "-" is standard output.
  bool Open(const std::string& name);
  bool Write(std::string_view text);
  // To be called once at the end: puts the file under its name.
  bool Finish();
  // The same for a file that is not whole, under its name with ".partial" behind
  // it, in place of what has that name.
  bool FinishPartial();
  const std::string& Name() const { return name_; }
  // Drops what was written to a file; the name has what it had before.
  void Discard();

 private:
  bool WriteOctets(std::string_view octets);
  bool Fail();

  std::string name_;
  std::optional<GzipCompressor> gzip_;
  std::optional<NewFile> new_file_;
  std::FILE* device_ = nullptr;
};

// Whether a call that reads `inputs` may write a file of this name: it is none of
// these, and there is none yet, or only something that is no file, or it is to be
// replaced (`force`).  If not, says so on standard error.
bool MayWrite(const std::string& name, const std::vector<std::string>& inputs, bool force);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_OUTPUT_FILE_H_
