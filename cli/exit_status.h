// Exit statuses of the command, for scripts to test.

#ifndef CANTOREL_CLI_EXIT_STATUS_H_
#define CANTOREL_CLI_EXIT_STATUS_H_

namespace cantorel::cli {

enum ExitStatus : int {
  kAllWell = 0,
  kUnreadableRecords = 1,  // some records could not be read; the others were answered
  kSomethingFound = 1,     // a check found what should be looked at
  kWrongCall = 2,          // wrong options, or no configuration folder to work with
  kInputOutputFailed = 3,  // reading a file or writing the answers failed
  kInterrupted = 130,      // by Ctrl-C or a request to end; what was done is kept
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_EXIT_STATUS_H_
