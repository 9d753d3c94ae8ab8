// cantorel show: prints records for people to read.

#ifndef CANTOREL_CLI_SHOW_COMMAND_H_
#define CANTOREL_CLI_SHOW_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddShowCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_SHOW_COMMAND_H_
