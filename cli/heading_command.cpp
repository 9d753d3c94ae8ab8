#include "cli/heading_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "charset/decomposition.h"
#include "cli/answer.h"
#include "cli/answer_writers.h"
#include "cli/ask.h"
#include "cli/common_options.h"
#include "cli/conversion_options.h"
#include "cli/output.h"

namespace cantorel::cli {
namespace {

constexpr char kDelimiter = '\x1F';
// A printed score of one work, with an LC subject heading.
constexpr std::string_view kRecordLines = "cm\n650 0";

struct HeadingOptions {
  ConversionOptions conversion;
  bool json = false;
  std::vector<std::string> words;  // of the heading
};

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

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += text.empty() ? word : ' ' + word;
  return text;
}

ExitStatus RunHeading(const HeadingOptions& options) {
  Lookups lookups(options.conversion.lookups);
  Converter converter;
  if (!lookups.Prepare() || !converter.Prepare(options.conversion, lookups)) return kWrongCall;
  const std::string heading = Joined(options.words);
  RecordAnswer answer;
  AskAboutRecord(converter.Component(), std::string(kRecordLines) + HeadingFieldText(heading),
                 options.conversion.mode, answer);
  answer.source = "heading";
  answer.record = 1;
  answer.title = Trimmed(heading);

  std::string out;
  AppendAnswer(options.json ? Format::kJson : Format::kText, answer, out);
  return WriteOutput(out) && FinishOutput() ? kAllWell : kInputOutputFailed;
}

}  // namespace

std::string HeadingFieldText(std::string_view heading) {
  std::string line;
  // A keyboard writes precomposed letters, records hold them apart.
  if (!DecomposeText(Trimmed(heading), line)) line = Trimmed(heading);
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

void AddHeadingCommand(CLI::App& app, Action& action) {
  CLI::App* const command = app.add_subcommand(
      "heading", "Show what one subject heading gives; $v, $x and so on may follow it");
  const auto options = std::make_shared<HeadingOptions>();
  AddConversionOptions(*command, options->conversion);
  command->add_flag("--json", options->json, "Write the answer as JSON");
  command->add_option("HEADING", options->words, "Text of the heading")->type_name("")->required();
  AddExamples(*command, {{"cantorel heading 'Sonatas (Flute and piano)'", "one heading"},
                         {"cantorel heading 'Concertos (Violin) $v Solo with piano'",
                          "with a subdivision; the quotes keep $ from the shell"},
                         {"cantorel heading --json 'Wind quintets'", "for a program"}});
  command->callback([&action, options] { action = [options] { return RunHeading(*options); }; });
}

}  // namespace cantorel::cli
