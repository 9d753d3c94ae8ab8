#include "cli/convert_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

#include "cli/common_options.h"
#include "cli/conversion_run.h"
#include "cli/convert_options.h"
#include "cli/interruption.h"
#include "cli/output.h"
#include "cli/report.h"
#include "cli/result_writer.h"
#include "service/service_objects.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, Format> kFormats = {{"text", Format::kText}, {"json", Format::kJson}};

const std::map<std::string, RecordForm> kForms = {{"iso2709", RecordForm::kIso2709},
                                                  {"marcxml", RecordForm::kMarcXml}};

// What was said on the command line and may not go together.
struct Call {
  ConvertOptions options;
  bool in_place = false;
  bool differences = false;
  bool names_format = false;
};

// Why a call is refused; null when it is sound.
const char* Objection(const Call& call) {
  const ConvertOptions& options = call.options;
  const bool writes = !options.output.empty();
  if (options.conversion.AskUser() && options.jobs > 1) {
    return "--canons ask goes with --jobs 1 only: one question at a time";
  }
  if (call.in_place) {
    return "--in-place is not done: write another file with --output, and keep this one";
  }
  if (writes && call.differences) return "--diff writes no file: leave --output out";
  if (!writes && (options.only_changed || !options.rejects.empty() ||
                  options.form != RecordForm::kAsFirstInput)) {
    return "--to, --only-changed and --rejects need --output";
  }
  const std::string& report = options.report;
  if (!writes && report.empty() && options.force) return "--force needs --output or --report";
  if (!report.empty() && !HasReportForm(report)) {
    return "--report needs a name that ends in .html, .tsv or .json";
  }
  if (options.lines && (writes || call.differences)) {
    return "--lines goes neither with --output nor with --diff: field lines are no records";
  }
  if (call.differences && call.names_format) return "--format does not go with --diff";
  if (options.output != "-") return nullptr;
  if (options.rejects.empty()) {
    return "--output - needs --rejects FILE, for records that cannot be written";
  }
  return call.names_format ? "--format does not go with --output -" : nullptr;
}

std::size_t ThreadsFor(const ConvertOptions& options) {
  if (options.conversion.AskUser()) return 1;
  if (options.jobs > 0) return options.jobs;
  return std::max(1U, std::thread::hardware_concurrency());
}

// Says what is wrong with the configuration folder before any thread or file is
// made.
bool CanConvert(const ConvertOptions& options, Lookups& lookups) {
  const bool prepared = Converter().Prepare(options.conversion, lookups);
  ReleaseServiceObjects();
  return prepared;
}

ExitStatus ConvertFiles(const ConvertOptions& options) {
  Lookups lookups(options.conversion.lookups);
  if (!lookups.Prepare() || !CanConvert(options, lookups)) return kWrongCall;
  auto writer = std::make_unique<ResultWriter>(options);
  if (!writer->Open()) return kInputOutputFailed;

  NoteInterruptions();
  ConversionRun run(options, lookups);
  const ConversionRun::End end = run.WriteAll(*writer);
  ExitStatus status = kInputOutputFailed;
  if (end != ConversionRun::End::kCannotWrite &&
      writer->Finish(end == ConversionRun::End::kInterrupted)) {
    status = writer->Status();
  }
  if (end == ConversionRun::End::kAllWritten) return status;
  writer.reset();
  // Threads may be waiting for input that never comes, and nobody needs them.
  std::_Exit(status);
}

// Without --to the name of the output may tell.
RecordForm FormToWrite(const ConvertOptions& options) {
  if (options.form != RecordForm::kAsFirstInput) return options.form;
  std::string_view name = options.output;
  if (name.ends_with(".gz")) name.remove_suffix(3);
  if (name.ends_with(".xml")) return RecordForm::kMarcXml;
  return name.ends_with(".mrc") ? RecordForm::kIso2709 : RecordForm::kAsFirstInput;
}

ExitStatus RunConvert(Call& call) {
  if (const char* const objection = Objection(call)) {
    std::fprintf(stderr, "cantorel: %s\n", objection);
    return kWrongCall;
  }
  ConvertOptions& options = call.options;
  if (!options.output.empty()) options.result = Result::kRecords;
  if (call.differences) options.result = Result::kDifferences;
  options.lists_answers = options.result == Result::kAnswers || call.names_format;
  options.form = FormToWrite(options);
  options.colours = OutputTakesColours();

  options.jobs = ThreadsFor(options);
  return ConvertFiles(options);
}

void AddOutputOptions(CLI::App& command, Call& call) {
  ConvertOptions& options = call.options;
  command
      .add_option("--output", options.output,
                  "Write the records with their new fields to a file; - is standard output, a "
                  "name in .gz is compressed")
      ->type_name("FILE");
  AddChoice(command, "--to", options.form, kForms,
            "Form of the records written (default: MARCXML for a name in .xml, ISO 2709 for "
            "one in .mrc, otherwise that of the first input)");
  command.add_flag("--only-changed", options.only_changed, "Write only the records that change");
  command.add_flag("--force", options.force, "Replace files that are there already");
  command
      .add_option("--rejects", options.rejects,
                  "Where records go that cannot be read, or not be written whole (default: the "
                  "output with .rejects behind its name)")
      ->type_name("FILE");
  command.add_flag("--diff", call.differences,
                   "Show what would change in each record, and write no file");
  command.add_flag("--in-place", call.in_place, "Refused: a file is never changed where it stands");
}

}  // namespace

void AddConvertCommand(CLI::App& app, Action& action) {
  CLI::App* const command = app.add_subcommand(
      "convert",
      "Read MARC records and write the fields that each should have, or the records "
      "with these fields");
  const auto call = std::make_shared<Call>();
  ConvertOptions& options = call->options;
  AddConversionOptions(*command, options.conversion);
  AddChoice(*command, "--format", options.format, kFormats, "Form of the answers");
  command->add_flag("--lines", options.lines,
                    "Read field lines, with $ as delimiter and a blank line between records");
  command
      ->add_option("--jobs", options.jobs,
                   "How many threads convert; the answers do not depend on it (default: one for "
                   "each core)")
      ->type_name("N")
      ->check(CLI::Range(1, 1024));
  command
      ->add_option("--report", options.report,
                   "Write a report on the whole run; its form is told by its name, .html, .tsv "
                   "or .json")
      ->type_name("FILE");
  command->add_flag("--quiet", options.quiet, "Show no progress and no totals");
  AddOutputOptions(*command, *call);
  AddFileArguments(*command, options.files);
  AddExamples(*command,
              {{"cantorel convert records.mrc", "list the fields that each record should have"},
               {"cantorel convert --diff records.mrc", "show what a load would change"},
               {"cantorel convert --output new.mrc records.mrc",
                "write the records with the new fields in their places"},
               {"cantorel convert --output changed.mrc.gz --only-changed old.xml",
                "the changed records alone, compressed"},
               {"cantorel convert --mode 382 --format json --offline < records.mrc",
                "medium of performance only, for a program, without the network"}});
  command->callback([&action, call, command] {
    call->names_format = command->count("--format") > 0;
    action = [call] { return RunConvert(*call); };
  });
}

}  // namespace cantorel::cli
