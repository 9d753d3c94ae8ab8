// cantorel config: makes a configuration folder, builds and checks its files.

#ifndef CANTOREL_CLI_CONFIG_COMMAND_H_
#define CANTOREL_CLI_CONFIG_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddConfigCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONFIG_COMMAND_H_
