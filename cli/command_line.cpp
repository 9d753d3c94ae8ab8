#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>

#include "cli/config_command.h"
#include "cli/convert_command.h"
#include "cli/dump_command.h"
#include "cli/heading_command.h"

namespace cantorel::cli {
namespace {

// In the order in which --help lists them.
constexpr AddCommand kCommands[] = {
    AddConvertCommand,
    AddDumpCommand,
    AddHeadingCommand,
    AddConfigCommand,
};

}  // namespace

bool ParseCommandLine(int argc, const char* const* argv, Action& action, int& status) {
  CLI::App app("Derives MARC 21 fields for music practice from older subject headings.",
               "cantorel");
  app.require_subcommand(1);
  app.set_version_flag("--version", CANTOREL_VERSION);
  for (const AddCommand add : kCommands) add(app, action);

  try {
    app.parse(argc, argv);
    return true;
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {  // --help, --version
      status = app.exit(error);
    } else {
      std::fprintf(stderr, "cantorel: %s (see cantorel --help)\n", error.what());
      status = kWrongCall;
    }
    return false;
  }
}

}  // namespace cantorel::cli
