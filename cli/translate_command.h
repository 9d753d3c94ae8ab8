// cantorel translate: writes records in another character set.

#ifndef CANTOREL_CLI_TRANSLATE_COMMAND_H_
#define CANTOREL_CLI_TRANSLATE_COMMAND_H_

#include "cli/command_line.h"

namespace cantorel::cli {

void AddTranslateCommand(CLI::App& app, Action& action);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_TRANSLATE_COMMAND_H_
