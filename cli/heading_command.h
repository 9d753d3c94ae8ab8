// cantorel heading: what one subject heading gives.

#ifndef CANTOREL_CLI_HEADING_COMMAND_H_
#define CANTOREL_CLI_HEADING_COMMAND_H_

#include <string>
#include <string_view>

#include "cli/command_line.h"

namespace cantorel::cli {

void AddHeadingCommand(CLI::App& app, Action& action);

// Field text of a heading as people write it: "$" and a code begin a subfield,
// blanks around it counting for nothing; what stands ahead of the first is $a.
//   Operas $v Vocal scores with piano
std::string HeadingFieldText(std::string_view heading);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_HEADING_COMMAND_H_
