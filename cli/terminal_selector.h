// Choosing fields in the terminal.

#ifndef CANTOREL_CLI_TERMINAL_SELECTOR_H_
#define CANTOREL_CLI_TERMINAL_SELECTOR_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/field_selection.h"
#include "platform/terminal.h"

namespace cantorel::cli {

class TerminalSelector : public FieldSelector {
 public:
  bool HasTerminal() const { return terminal_.IsOpen(); }

  // Asks until the answer can be understood.  The end of input cancels.
  void SelectFields(SelectionRequest& request) override;

 private:
  Terminal terminal_;
};

// Reads an answer: line numbers up to `count` with blanks or commas between;
// "none" or 0 for no line; nothing at all leaves `selection` as it is.  False,
// changing nothing, for any other answer.
bool ReadSelection(std::string_view answer, std::size_t count, std::string& selection);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_TERMINAL_SELECTOR_H_
