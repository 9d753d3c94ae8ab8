// Ctrl-C, and the request of the system to end.

#ifndef CANTOREL_CLI_INTERRUPTION_H_
#define CANTOREL_CLI_INTERRUPTION_H_

namespace cantorel::cli {

// From now on SIGINT and SIGTERM are noted; a second one ends the program at
// once.  A signal that the caller of the program has it ignore stays ignored.
void NoteInterruptions();
bool WasInterrupted();

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_INTERRUPTION_H_
