// cantorel dump: writes records in another form.

#ifndef CANTOREL_CLI_DUMP_COMMAND_H_
#define CANTOREL_CLI_DUMP_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddDumpCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_DUMP_COMMAND_H_
