// cantorel check: says what is wrong with records.

#ifndef CANTOREL_CLI_CHECK_COMMAND_H_
#define CANTOREL_CLI_CHECK_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddCheckCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CHECK_COMMAND_H_
