#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>

#include "cli/check_command.h"
#include "cli/config_command.h"
#include "cli/convert_command.h"
#include "cli/dump_command.h"
#include "cli/heading_command.h"
#include "cli/show_command.h"
#include "cli/translate_command.h"
#include "cli/version_command.h"

namespace cantorel::cli {
namespace {

// In the order in which --help lists them.
constexpr AddCommand kCommands[] = {
    AddConvertCommand, AddDumpCommand,  AddHeadingCommand, AddTranslateCommand,
    AddShowCommand,    AddCheckCommand, AddConfigCommand,  AddVersionCommand,
};

constexpr char kClosing[] =
    "'cantorel COMMAND --help' tells of one command, with examples.\n"
    "\n"
    "Exit status:\n"
    "  0  all is well\n"
    "  1  some records could not be read, or a check found something\n"
    "  2  the call was wrong, or there is no configuration folder to work with\n"
    "  3  a file could not be read or written";

}  // namespace

void DeclareCommandLine(CLI::App& app, Action& action) {
  app.name("cantorel");
  app.description("Derives MARC 21 fields for music practice from older subject headings.");
  app.footer(kClosing);
  app.require_subcommand(1);
  app.set_version_flag("--version", CANTOREL_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  for (const AddCommand add : kCommands) add(app, action);
}

bool ParseCommandLine(int argc, const char* const* argv, Action& action, int& status) {
  CLI::App app;
  DeclareCommandLine(app, action);
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
