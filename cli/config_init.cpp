#include "cli/config_init.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "cli/configuration.h"
#include "cli/output.h"
#include "platform/file_layer.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;

ExitStatus Refuse(const fs::path& path, const char* why, ExitStatus status) {
  std::fprintf(stderr, "cantorel: %s %s\n", path.string().c_str(), why);
  return status;
}

// The folder that the copies are to stand in, empty or to be filled again.
ExitStatus PrepareFolder(const fs::path& folder, const fs::path& source, bool replace) {
  std::error_code error;
  if (fs::exists(folder, error) && !fs::is_directory(folder, error)) {
    return Refuse(folder, "is no folder", kWrongCall);
  }
  if (fs::equivalent(folder, source, error)) {
    return Refuse(folder, "is the folder that comes with the program", kWrongCall);
  }
  fs::create_directories(folder, error);
  if (error) return Refuse(folder, "cannot be made", kInputOutputFailed);
  const bool empty = fs::is_empty(folder, error);
  if (error) return Refuse(folder, "cannot be read", kInputOutputFailed);
  if (empty || replace) return kAllWell;
  return Refuse(folder, "is not empty; --force replaces the files that the program brings",
                kWrongCall);
}

// The plain files of a folder, by name.
std::vector<fs::path> FilesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (auto entry = fs::directory_iterator(folder, error);
       !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (FileExists(entry->path().string())) files.push_back(entry->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// The copy is new in every way: whoever may read the file may change the copy.
bool Copy(const fs::path& file, const fs::path& copy) {
  std::string content;
  return ReadWholeFile(file.string(), content) && WriteWholeFile(copy.string(), content);
}

}  // namespace

ExitStatus RunConfigInit(const std::string& target, bool replace) {
  std::string source;
  if (!FindFolder(source)) return kWrongCall;
  const fs::path folder = target;
  const ExitStatus prepared = PrepareFolder(folder, source, replace);
  if (prepared != kAllWell) return prepared;
  const std::vector<fs::path> files = FilesOf(source);
  if (files.empty()) return Refuse(source, "cannot be read", kInputOutputFailed);
  std::string text;
  for (const fs::path& file : files) {
    const fs::path copy = folder / file.filename();
    if (!Copy(file, copy)) return Refuse(copy, "could not be written", kInputOutputFailed);
    text += copy.string() + "\n";
  }
  return WriteOutput(text) && FinishOutput() ? kAllWell : kInputOutputFailed;
}

}  // namespace cantorel::cli
