// cantorel convert: answers every record of its inputs.

#ifndef CANTOREL_CLI_CONVERT_COMMAND_H_
#define CANTOREL_CLI_CONVERT_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddConvertCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERT_COMMAND_H_
