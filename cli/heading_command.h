// cantorel heading: what one subject heading gives.

#ifndef CANTOREL_CLI_HEADING_COMMAND_H_
#define CANTOREL_CLI_HEADING_COMMAND_H_

#include <string>
#include <string_view>

#include "cli/exit_status.h"
#include "cli/options.h"

namespace cantorel {
class CantorelClass;
}

namespace cantorel::cli {

ExitStatus RunHeading(CantorelClass& cantorel, const Options& options);

// Field text of a heading as people write it: "$" and a code begin a subfield,
// blanks around it counting for nothing; what stands ahead of the first is $a.
//   Operas $v Vocal scores with piano
std::string HeadingFieldText(std::string_view heading);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_HEADING_COMMAND_H_
