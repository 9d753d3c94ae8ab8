// The cantorel command.

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>

#include "cli/config_command.h"
#include "cli/configuration.h"
#include "cli/convert_command.h"
#include "cli/exit_status.h"
#include "cli/heading_command.h"
#include "cli/options.h"
#include "cli/terminal_selector.h"
#include "service/cantorel_class.h"

namespace cantorel::cli {
namespace {

// The value of MusicClassOperatingMode by which the user is asked.
constexpr std::int32_t kAsk = 2;

int Run(int argc, const char* const* argv) {
  Options options;
  int status = kAllWell;
  if (!ParseOptions(argc, argv, options, status)) return status;
  if (options.command == Command::kConfigBuild) return RunConfigBuild(options);
  if (options.command == Command::kConfigCheck) return RunConfigCheck(options);
  CantorelClass cantorel;
  if (!Configure(cantorel, options.configuration_folder)) return kWrongCall;
  TerminalSelector selector;
  if (options.canons == kAsk && !selector.HasTerminal()) {
    std::fprintf(stderr, "cantorel: --canons ask needs a terminal to ask in, and there is none\n");
    return kWrongCall;
  }
  cantorel.MusicClassOperatingMode(options.canons);
  cantorel.SelectFieldsWith(&selector);
  return options.command == Command::kHeading ? RunHeading(cantorel, options)
                                              : RunConvert(cantorel, options);
}

}  // namespace
}  // namespace cantorel::cli

int main(int argc, char** argv) {
#ifdef SIGPIPE
  // A reader that goes away shows as a failed write, not as a sudden end.
  std::signal(SIGPIPE, SIG_IGN);
#endif
  std::ios::sync_with_stdio(false);
  try {
    return cantorel::cli::Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "cantorel: %s\n", error.what());
    return cantorel::cli::kInputOutputFailed;
  }
}
