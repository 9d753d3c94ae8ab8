#include "cli/output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/terminal.h"

namespace cantorel::cli {
namespace {

bool SayThatOutputFailed() {
  std::fprintf(stderr, "cantorel: cannot write to standard output: %s\n", std::strerror(errno));
  return false;
}

}  // namespace

bool WriteOutput(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size()) return true;
  return SayThatOutputFailed();
}

bool FinishOutput() {
  return std::fflush(stdout) == 0 || SayThatOutputFailed();
}

bool OutputTakesColours() {
  const char* const no_colour = std::getenv("NO_COLOR");
  return IsTerminal(stdout) && (no_colour == nullptr || *no_colour == '\0');
}

}  // namespace cantorel::cli
