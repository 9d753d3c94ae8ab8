#include "cli/version_command.h"

#include <CLI/CLI.hpp>
#include <string>

#include "cli/common_options.h"
#include "cli/configuration.h"
#include "cli/output.h"

namespace cantorel::cli {
namespace {

// What the program can do only when a library was at hand while it was built.
struct Ability {
  const char* name;
  bool is_there;
};
constexpr Ability kAbilities[] = {
    {"looking up places and nationalities", CANTOREL_HAS_HTTP != 0},
    {"keeping answers of look-ups", CANTOREL_HAS_SQLITE != 0},
    {"reading workbooks", CANTOREL_HAS_WORKBOOKS != 0},
};

ExitStatus RunVersion() {
  std::string text = "cantorel " CANTOREL_VERSION "\n";
  for (const Ability& ability : kAbilities) {
    text.append(ability.name).append(ability.is_there ? ": yes\n" : ": no\n");
  }
  const std::string folder = FolderOfProgram();
  text += "configuration folder: " + (folder.empty() ? "none" : folder) + "\n";
  return WriteOutput(text) && FinishOutput() ? kAllWell : kInputOutputFailed;
}

}  // namespace

void AddVersionCommand(CLI::App& app, Action& action) {
  CLI::App* const command = app.add_subcommand(
      "version",
      "Print the version, what the program was built with, and its configuration folder");
  AddExamples(*command, {{"cantorel version", "to be told with a fault"}});
  command->callback([&action] { action = RunVersion; });
}

}  // namespace cantorel::cli
