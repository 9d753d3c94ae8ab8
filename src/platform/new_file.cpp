#include "platform/new_file.h"

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <system_error>

#include "platform/file_layer.h"

namespace cantorel {
namespace {

// Unlike any other's, of this program and of others that run.
std::string NameBeside(const std::string& target) {
  static std::atomic<unsigned> count = 0;
  return target + "." + std::to_string(::getpid()) + "-" + std::to_string(++count) + ".new";
}

}  // namespace

NewFile::NewFile(std::string_view target)
    : target_(NativePath(target)),
      name_(NameBeside(target_)),
      file_(std::fopen(name_.c_str(), "wb")) {}

NewFile::~NewFile() {
  if (file_ == nullptr) return;
  std::fclose(file_);
  std::remove(name_.c_str());
}

bool NewFile::Complete(std::string_view content) {
  if (file_ == nullptr) return false;
  bool sound = std::fwrite(content.data(), 1, content.size(), file_) == content.size();
  sound = std::fclose(file_) == 0 && sound;  // closing writes what is still on its way
  file_ = nullptr;
  std::error_code error;
  if (sound) std::filesystem::rename(name_, target_, error);
  if (sound && !error) return true;
  std::remove(name_.c_str());
  return false;
}

}  // namespace cantorel
