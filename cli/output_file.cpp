#include "cli/output_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "cli/output.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPartial = ".partial";

bool AreOneFile(const std::string& name, const std::string& other) {
  std::error_code error;
  return fs::is_regular_file(name, error) && fs::equivalent(name, other, error);
}

bool IsNoInput(const std::string& name, const std::vector<std::string>& inputs) {
  const bool is_input = std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) {
    return AreOneFile(name, input);
  });
  if (is_input) {
    std::fprintf(stderr, "cantorel: %s is one of the files to read; name another\n", name.c_str());
  }
  return !is_input;
}

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
  if (name.ends_with(".gz")) gzip_.emplace();
  if (name == "-") return true;
  if (IsDevice(name)) {
    device_ = std::fopen(name.c_str(), "wb");
    return device_ != nullptr || Fail();
  }
  new_file_.emplace(BehindLinks(name));
  return new_file_->IsOpen() || Fail();
}

bool OutputFile::Write(std::string_view text) {
  return WriteOctets(gzip_ ? gzip_->Compress(text) : text);
}

bool OutputFile::WriteOctets(std::string_view octets) {
  if (new_file_) return new_file_->Write(octets) || Fail();
  if (device_ == nullptr) return WriteOutput(octets);
  return std::fwrite(octets.data(), 1, octets.size(), device_) == octets.size() || Fail();
}

bool OutputFile::Finish() {
  if (gzip_ && !WriteOctets(gzip_->Finish())) return false;
  if (new_file_) return new_file_->Complete() || Fail();
  if (device_ == nullptr) return FinishOutput();
  std::FILE* const device = device_;
  device_ = nullptr;
  return std::fclose(device) == 0 || Fail();
}

bool OutputFile::FinishPartial() {
  if (new_file_) {
    new_file_->AddToTarget(kPartial);
    name_ += kPartial;
  }
  return Finish();
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

bool MayWrite(const std::string& name, const std::vector<std::string>& inputs, bool force) {
  if (!IsNoInput(name, inputs)) return false;
  std::error_code error;
  if (force || name == "-" || !fs::exists(name, error) || IsDevice(name)) return true;
  std::fprintf(stderr, "cantorel: %s is there already; --force replaces it\n", name.c_str());
  return false;
}

}  // namespace cantorel::cli
