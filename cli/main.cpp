// The cantorel command.

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "cli/exit_status.h"

namespace cantorel::cli {
namespace {

int Run(int argc, const char* const* argv) {
  Action action;
  int status = kAllWell;
  return ParseCommandLine(argc, argv, action, status) ? action() : status;
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
