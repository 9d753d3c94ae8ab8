#include "cli/input_file.h"

#include <algorithm>

namespace cantorel::cli {
namespace {

constexpr std::size_t kSignatureLength = 2;

}  // namespace

InputFile::InputFile(const std::string& name)
    : file_(name), octets_(file_), may_be_empty_(name == "-") {}

std::size_t InputFile::Read(char* to, std::size_t size) {
  if (!opened_) {
    opened_ = true;
    if (octets_.Peek(1).empty() && !may_be_empty_) empty_error_ = "The file is empty";
    if (BeginsAsGzip(octets_.Peek(kSignatureLength))) {
      gzip_ = std::make_unique<GzipSource>(octets_);
    }
  }
  if (gzip_ != nullptr) return gzip_->Read(to, size);
  const std::string_view ready = octets_.Peek(1);
  const std::size_t count = std::min(size, ready.size());
  ready.copy(to, count);
  octets_.Skip(count);
  return count;
}

const std::string& InputFile::Error() const {
  // A file that cannot be read on looks as if it ended too soon.
  if (!file_.Error().empty()) return file_.Error();
  return gzip_ == nullptr ? empty_error_ : gzip_->Error();
}

}  // namespace cantorel::cli
