// The forms in which an answer is written.

#ifndef CANTOREL_CLI_ANSWER_WRITERS_H_
#define CANTOREL_CLI_ANSWER_WRITERS_H_

#include <string>

#include "cli/answer.h"

namespace cantorel::cli {

enum class Format { kText, kJson };

// Both append to `out`.
//
// Text: a line with control number and title, one line for each field and each
// message, a blank line.  Octets are written as they are.
void AppendText(const RecordAnswer& answer, std::string& out);
// JSON: one object on one line, valid whatever octets the record holds; an octet
// that is not UTF-8 becomes U+FFFD.
void AppendJson(const RecordAnswer& answer, std::string& out);

inline void AppendAnswer(Format format, const RecordAnswer& answer, std::string& out) {
  format == Format::kJson ? AppendJson(answer, out) : AppendText(answer, out);
}

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ANSWER_WRITERS_H_
