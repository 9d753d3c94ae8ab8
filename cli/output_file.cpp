#include "cli/output_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "cli/output.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;

// Something other than a file that could be replaced by one.
bool IsDevice(const std::string& name) {
  std::error_code error;
  const fs::file_status status = fs::status(name, error);
  return fs::exists(status) && !fs::is_regular_file(status);
}

// The file that a link stands for, so that the link stays one.
std::string BehindLinks(const std::string& name) {
  std::error_code error;
  const fs::path path = fs::canonical(name, error);
  return error ? name : path.string();
}

}  // namespace

bool OutputFile::Open(const std::string& name) {
  name_ = name;
  if (name == "-") return true;
  if (IsDevice(name)) {
    device_ = std::fopen(name.c_str(), "wb");
    return device_ != nullptr || Fail();
  }
  new_file_.emplace(BehindLinks(name));
  return new_file_->IsOpen() || Fail();
}

bool OutputFile::Write(std::string_view text) {
  if (new_file_) return new_file_->Write(text) || Fail();
  if (device_ == nullptr) return WriteOutput(text);
  return std::fwrite(text.data(), 1, text.size(), device_) == text.size() || Fail();
}

bool OutputFile::Finish() {
  if (new_file_) return new_file_->Complete() || Fail();
  if (device_ == nullptr) return FinishOutput();
  std::FILE* const device = device_;
  device_ = nullptr;
  return std::fclose(device) == 0 || Fail();
}

void OutputFile::Discard() {
  new_file_.reset();
  if (device_ != nullptr) std::fclose(device_);
  device_ = nullptr;
}

bool OutputFile::Fail() {
  std::fprintf(stderr, "cantorel: cannot write %s: %s\n", name_.c_str(), std::strerror(errno));
  return false;
}

}  // namespace cantorel::cli
