// The command line.

#ifndef CANTOREL_CLI_OPTIONS_H_
#define CANTOREL_CLI_OPTIONS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "cli/answer_writers.h"

namespace cantorel::cli {

enum class Command { kConvert, kHeading, kConfigBuild, kConfigCheck };

struct Options {
  Command command = Command::kConvert;
  std::string configuration_folder;  // empty: the one that comes with the program
  std::int32_t mode = 3;             // as AddFields takes it: 1 382, 2 655, 3 both
  std::int32_t canons = 0;           // MusicClassOperatingMode: 0 message, 1 assign, 2 ask
  Format format = Format::kText;
  bool lines = false;
  std::vector<std::string> files;  // "-" is standard input; never empty
  std::string heading;
};

// Reads the command line.  True when there is something to do; otherwise the
// program is to end with `status`, help or an error having been written.
bool ParseOptions(int argc, const char* const* argv, Options& options, int& status);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_OPTIONS_H_
