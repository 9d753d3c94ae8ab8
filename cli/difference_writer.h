// Shows what would change in a record.

#ifndef CANTOREL_CLI_DIFFERENCE_WRITER_H_
#define CANTOREL_CLI_DIFFERENCE_WRITER_H_

#include <string>
#include <vector>

#include "cli/answer.h"
#include "cli/record_editor.h"
#include "cli/utf8_fields.h"

namespace cantorel::cli {

// Appends a line with the place of the record, its control number and title, a
// line for each field that goes ("-") and comes ("+"), a blank line.  `record` is
// open at the image that is changed.
void AppendDifferences(const RecordAnswer& answer, const std::vector<RecordEditor::Change>& changes,
                       Utf8Fields& record, bool colours, std::string& out);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_DIFFERENCE_WRITER_H_
