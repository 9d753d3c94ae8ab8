#include "cli/config_command.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common_options.h"
#include "cli/config_init.h"
#include "cli/configuration.h"
#include "cli/output.h"
#include "genre/configuration_check.h"
#include "genre/derivation_table_build.h"
#include "medium/configuration_files.h"
#include "platform/file_layer.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {
namespace {

// "List 3        12 keys     20 fields"
std::string CountLine(const SheetCount& count) {
  char line[80];
  const int length = std::snprintf(line, sizeof line, "  %-8s %6zu keys %6zu fields\n",
                                   std::string(count.sheet).c_str(), count.keys, count.fields);
  return std::string(line, static_cast<std::size_t>(length));
}

// Makes the derivation table anew, whether there is one or not.
ExitStatus RunConfigBuild(std::string folder) {
  if (!FindFolder(folder)) return kWrongCall;
  const std::string table = folder + std::string(kDerivationTableFileName);
  DerivationBuild build;
  BuildDerivationTable(folder, Utf8MarcRecordClass(), build);
  if (!build.written) {
    std::fprintf(stderr, "cantorel: %s was not built: %s\n", table.c_str(),
                 WhyNotWritten(build).c_str());
    return kInputOutputFailed;
  }
  std::string text = table + "\n";
  for (const SheetCount& count : build.sheets) text += CountLine(count);
  for (const std::string_view sheet : build.missing_sheets) {
    text += "  there is no sheet " + std::string(sheet) + "\n";
  }
  for (const LeftOutRow& row : build.left_out) text += "  " + Describe(row) + "\n";
  return WriteOutput(text) && FinishOutput() ? kAllWell : kInputOutputFailed;
}

ExitStatus RunConfigCheck(std::string folder) {
  if (!FindFolder(folder)) return kWrongCall;
  std::string vocabulary;
  std::string table;
  if (!ReadWholeFile(folder + std::string(kVocabularyFileName), vocabulary)) {
    std::fprintf(stderr, "cantorel: configuration folder %s has no %s\n", folder.c_str(),
                 kVocabularyFileName.data());
    return kWrongCall;
  }
  ReadWholeFile(folder + std::string(kDerivationTableFileName), table);
  ConfigurationCheck check;
  check.ReadVocabulary(vocabulary);
  check.ReadTable(table);
  std::vector<std::string> findings = check.Findings();
  CheckWorkbook(folder, Utf8MarcRecordClass(), table, findings);

  std::string text;
  for (const std::string& finding : findings) text += finding + "\n";
  if (!WriteOutput(text) || !FinishOutput()) return kInputOutputFailed;
  return findings.empty() ? kAllWell : kSomethingFound;
}

// A command below "config" that works on a configuration folder.
void AddFolderCommand(CLI::App& config, const std::string& name, const std::string& help,
                      const Example& example, ExitStatus (*run)(std::string folder),
                      Action& action) {
  CLI::App* const command = config.add_subcommand(name, help);
  const auto folder = std::make_shared<std::string>();
  AddFolderOption(*command, *folder);
  AddExamples(*command, {example});
  command->callback([&action, run, folder] { action = [run, folder] { return run(*folder); }; });
}

void AddInitCommand(CLI::App& config, Action& action) {
  CLI::App* const command = config.add_subcommand(
      "init", "Copy the configuration folder that comes with the program to one of your own");
  struct Call {
    std::string folder;
    bool replace = false;
  };
  const auto call = std::make_shared<Call>();
  command->add_option("DIR", call->folder, "Folder to make, or an empty one")
      ->type_name("")
      ->required();
  command->add_flag("--force", call->replace,
                    "Also when DIR is not empty: replace the files that the program brings");
  AddExamples(*command, {{"cantorel config init ~/music-tables", "tables of one's own to change"}});
  command->callback(
      [&action, call] { action = [call] { return RunConfigInit(call->folder, call->replace); }; });
}

}  // namespace

void AddConfigCommand(CLI::App& app, Action& action) {
  CLI::App* const config =
      app.add_subcommand("config", "Make, build and check a configuration folder");
  config->require_subcommand(1);
  AddInitCommand(*config, action);
  AddFolderCommand(
      *config, "build", "Make the derivation table from its workbook, and say what each sheet gave",
      {"cantorel config build --config ~/music-tables", "after a change of the workbook"},
      RunConfigBuild, action);
  AddFolderCommand(
      *config, "check", "List what a maintainer of vocabulary, table and workbook should look at",
      {"cantorel config check --config ~/music-tables", "status 1 when there is something"},
      RunConfigCheck, action);
}

}  // namespace cantorel::cli
