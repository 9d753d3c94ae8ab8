// cantorel config init: a configuration folder of one's own.

#ifndef CANTOREL_CLI_CONFIG_INIT_H_
#define CANTOREL_CLI_CONFIG_INIT_H_

#include <string>

#include "cli/exit_status.h"

namespace cantorel::cli {

// Copies the files of the folder that comes with the program into `target`, which
// is made when it is not there.  A folder that holds anything is left alone unless
// `replace`: then the files that the program brings take the place of those of the
// same name, and all others stay.
ExitStatus RunConfigInit(const std::string& target, bool replace);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONFIG_INIT_H_
