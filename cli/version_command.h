// cantorel version: which program this is, and what it was built with.

#ifndef CANTOREL_CLI_VERSION_COMMAND_H_
#define CANTOREL_CLI_VERSION_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddVersionCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_VERSION_COMMAND_H_
