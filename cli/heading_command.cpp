#include "cli/heading_command.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/answer.h"
#include "cli/ask.h"
#include "cli/output.h"
#include "service/cantorel_class.h"

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\x1F';
// A printed score of one work, with an LC subject heading.
constexpr std::string_view kRecordLines = "cm\n650 0";

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

void AppendSubfield(char code, std::string_view text, std::string& out) {
  if (text.empty()) return;
  out += kDelimiter;
  out += code;
  out += text;
}

}  // namespace

std::string HeadingFieldText(std::string_view heading) {
  std::string line(Trimmed(heading));
  // The component reads lines: a heading is one.
  std::replace(line.begin(), line.end(), '\n', ' ');
  std::replace(line.begin(), line.end(), '\t', ' ');

  std::string text;
  std::string_view rest = line;
  char code = 'a';
  while (true) {
    const std::size_t dollar = rest.find('$');
    AppendSubfield(code, Trimmed(rest.substr(0, dollar)), text);
    if (dollar == rest.npos || dollar + 1 == rest.size()) return text;
    code = rest[dollar + 1];
    rest.remove_prefix(dollar + 2);
  }
}

ExitStatus RunHeading(CantorelClass& cantorel, const Options& options) {
  const std::string field_text = HeadingFieldText(options.heading);
  RecordAnswer answer;
  AskAboutRecord(cantorel, std::string(kRecordLines) + field_text, options.mode, answer);
  answer.source = "heading";
  answer.record = 1;
  answer.title = Trimmed(options.heading);

  std::string out;
  AppendAnswer(options.format, answer, out);
  return WriteOutput(out) && FinishOutput() ? kAllWell : kInputOutputFailed;
}

}  // namespace cantorel::cli
