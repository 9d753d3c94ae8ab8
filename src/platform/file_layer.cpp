#include "platform/file_layer.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

namespace cantorel {
namespace {

// Systems keep file times by a clock that ticks every 1 to 10 milliseconds.
constexpr std::int64_t kClockStepNs = 20'000'000;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

std::int64_t NowNs() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

}  // namespace

std::string NativePath(std::string_view path) {
  std::string native(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

FileStamp StampOf(const std::string& native_path) {
  struct stat status;
  if (::stat(native_path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  FileStamp stamp;
  stamp.exists = true;
  stamp.size = status.st_size;
  stamp.modified_ns = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
  stamp.inode = status.st_ino;
  return stamp;
}

bool StampMayRepeat(const FileStamp& stamp) {
  if (!stamp.exists) return false;
  const std::int64_t age = NowNs() - stamp.modified_ns;
  return age > -kClockStepNs && age < kClockStepNs;  // a time far ahead was set by hand
}

bool FileExists(std::string_view path) {
  return StampOf(NativePath(path)).exists;
}

bool ReadWholeFile(std::string_view path, std::string& content) {
  content.clear();
  const std::string native = NativePath(path);
  const FileStamp stamp = StampOf(native);
  if (!stamp.exists) return false;
  const OpenFile file(std::fopen(native.c_str(), "rb"));
  if (!file) return false;

  // One octet more than the file has: a first short read is then its end.
  content.resize(static_cast<std::size_t>(stamp.size) + 1);
  std::size_t have = 0;
  while (const std::size_t got =
             std::fread(content.data() + have, 1, content.size() - have, file.get())) {
    have += got;
    if (have == content.size()) content.resize(have * 2);  // the file has grown meanwhile
  }
  content.resize(have);
  if (!std::ferror(file.get())) return true;
  content.clear();
  return false;
}

bool WriteWholeFile(std::string_view path, std::string_view content) {
  OpenFile file(std::fopen(NativePath(path).c_str(), "wb"));
  if (!file) return false;
  const bool written = std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
  // Closing may fail too: what is still in the buffer is written then.
  return std::fclose(file.release()) == 0 && written;
}

std::string ProgramFolder() {
  char path[4096];
  const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
  if (length <= 0 || static_cast<std::size_t>(length) == sizeof path) return {};
  const std::string_view program(path, static_cast<std::size_t>(length));
  return std::string(program.substr(0, program.rfind('/')));
}

}  // namespace cantorel
