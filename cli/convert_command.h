// cantorel convert: answers every record of its inputs.

#ifndef CANTOREL_CLI_CONVERT_COMMAND_H_
#define CANTOREL_CLI_CONVERT_COMMAND_H_

#include "cli/exit_status.h"
#include "cli/options.h"

namespace cantorel {
class CantorelClass;
}

namespace cantorel::cli {

ExitStatus RunConvert(CantorelClass& cantorel, const Options& options);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERT_COMMAND_H_
