// cantorel config: builds and checks the files of the configuration folder.

#ifndef CANTOREL_CLI_CONFIG_COMMAND_H_
#define CANTOREL_CLI_CONFIG_COMMAND_H_

#include "cli/exit_status.h"
#include "cli/options.h"

namespace cantorel::cli {

// Makes the derivation table anew, whether there is one or not.
ExitStatus RunConfigBuild(const Options& options);
ExitStatus RunConfigCheck(const Options& options);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONFIG_COMMAND_H_
