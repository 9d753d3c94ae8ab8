#include "platform/new_file.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace cantorel {
namespace {

// Unlike any other's, of this program and of others that run.
std::string NameBeside(const std::string& target) {
  static std::atomic<unsigned> count = 0;
  return target + "." + std::to_string(::getpid()) + "-" + std::to_string(++count) + ".new";
}

}  // namespace

NewFile::NewFile(std::string target)
    : target_(std::move(target)),
      name_(NameBeside(target_)),
      file_(std::fopen(name_.c_str(), "wb")) {}

NewFile::~NewFile() {
  if (file_ == nullptr) return;
  std::fclose(file_);
  std::remove(name_.c_str());
}

bool NewFile::Write(std::string_view content) {
  if (file_ == nullptr) return false;
  sound_ = std::fwrite(content.data(), 1, content.size(), file_) == content.size() && sound_;
  return sound_;
}

bool NewFile::Complete() {
  if (file_ == nullptr) return false;
  const bool closed = std::fclose(file_) == 0;  // writes what is still on its way
  file_ = nullptr;
  std::error_code error;
  if (closed && sound_) {
    std::filesystem::rename(name_, target_, error);
    if (!error) return true;
  }
  const int why = error ? error.value() : errno;
  std::remove(name_.c_str());
  errno = why;
  return false;
}

}  // namespace cantorel
