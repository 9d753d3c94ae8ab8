// Standard output, with a word on whether writing succeeded.

#ifndef CANTOREL_CLI_OUTPUT_H_
#define CANTOREL_CLI_OUTPUT_H_

#include <string_view>

namespace cantorel::cli {

// Both answer false, and say so on standard error, when standard output takes no
// more: it is closed, its reader has gone, the disk is full.
bool WriteOutput(std::string_view text);
// To be called at the end: what was written may still be on its way.
bool FinishOutput();

// Whether standard output is a terminal whose user wants colours: the variable
// NO_COLOR (no-color.org) says that he does not.
bool OutputTakesColours();

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_OUTPUT_H_
