#include "cli/configuration.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "genre/derivation_table_build.h"
#include "medium/configuration_files.h"
#include "platform/file_layer.h"
#include "record/utf8_marc_record_class.h"
#include "service/cantorel_class.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;

// Where the folder stands as seen from the program: installed, beside it, and
// from build/<preset>/ in a source tree.
constexpr std::string_view kPlaces[] = {"../share/cantorel/config", "config", "../config",
                                        "../../config"};

bool Refuse(const std::string& folder, const std::string& why) {
  std::fprintf(stderr, "cantorel: configuration folder %s %s\n", folder.c_str(), why.c_str());
  return false;
}

}  // namespace

std::string FolderOfProgram() {
  const fs::path program_folder = ProgramFolder();
  for (const std::string_view place : kPlaces) {
    const fs::path folder = program_folder / place;
    if (FileExists((folder / kVocabularyFileName).string()))
      return folder.lexically_normal().string();
  }
  // Where the system does not tell where the program stands.
  return FileExists((fs::path(CANTOREL_INSTALLED_CONFIG) / kVocabularyFileName).string())
             ? CANTOREL_INSTALLED_CONFIG
             : std::string();
}

bool FindFolder(std::string& folder) {
  if (folder.empty()) folder = FolderOfProgram();
  if (folder.empty()) {
    std::fprintf(stderr,
                 "cantorel: no configuration folder came with the program; "
                 "name one with --config\n");
    return false;
  }
  std::error_code error;
  const fs::path path = fs::absolute(folder, error);
  if (error || !fs::is_directory(path, error)) return Refuse(folder, "is not there");
  folder = (path / "").string();
  return true;
}

bool Configure(CantorelClass& cantorel, std::string folder) {
  if (!FindFolder(folder)) return false;
  // The whole path, because the component has a meaning of its own for "me".
  cantorel.ConfigurationPath(folder);
  if (!FileExists(folder + std::string(kVocabularyFileName))) {
    return Refuse(folder, "has no " + std::string(kVocabularyFileName));
  }
  // The component looks for the table at its first call, whatever it is given.
  if (cantorel.AddFields({}, 1) != kNoDerivationTable) return true;
  DerivationBuild build;
  BuildDerivationTable(folder, Utf8MarcRecordClass(), build);
  return Refuse(folder, "has no usable " + std::string(kDerivationTableFileName) +
                            ", and none can be made: " + WhyNotWritten(build));
}

}  // namespace cantorel::cli
