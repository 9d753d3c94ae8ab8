// A record as people read it.

#ifndef CANTOREL_CLI_RECORD_TEXT_H_
#define CANTOREL_CLI_RECORD_TEXT_H_

#include <string>

#include "cli/utf8_fields.h"

namespace cantorel::cli {

// Appends a line for the leader and one for each field, and a blank line.  Blank
// indicators show as "_".
//
//   LDR 00714cjm a2200205Mu 4500
//   001 ocm51987213
//   245 10 $a Canon in D / $c Pachelbel.
void AppendRecordText(Utf8Fields& record, std::string& out, bool colours = false);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_TEXT_H_
