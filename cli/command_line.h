// The command line: which command was called, and with which options.

#ifndef CANTOREL_CLI_COMMAND_LINE_H_
#define CANTOREL_CLI_COMMAND_LINE_H_

#include <functional>

#include "cli/exit_status.h"

namespace CLI {
class App;
}

namespace cantorel::cli {

// What a call asks for.  It may be carried out any time later.
using Action = std::function<ExitStatus()>;

// Declares a command and its options, and sees that a call of it sets `action`,
// which must live until the line is parsed.  Each command has such a function in
// the file that carries it out; command_line.cpp lists them.
using AddCommand = void (*)(CLI::App& app, Action& action);

// Declares the whole command line on a fresh App.
void DeclareCommandLine(CLI::App& app, Action& action);

// Reads the command line.  True when there is something to do; otherwise the
// program is to end with `status`, help or an error having been written.
bool ParseCommandLine(int argc, const char* const* argv, Action& action, int& status);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_COMMAND_LINE_H_
