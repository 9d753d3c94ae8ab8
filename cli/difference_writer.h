// Shows what would change in a record.

#ifndef CANTOREL_CLI_DIFFERENCE_WRITER_H_
#define CANTOREL_CLI_DIFFERENCE_WRITER_H_

#include <string>
#include <vector>

#include "cli/answer.h"
#include "cli/record_editor.h"

namespace cantorel::cli {

// Appends a line with the place of the record, its control number and title, a
// line for each field that goes ("-") and comes ("+"), a blank line.
void AppendDifferences(const RecordAnswer& answer, const std::vector<RecordEditor::Change>& changes,
                       bool colours, std::string& out);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_DIFFERENCE_WRITER_H_
