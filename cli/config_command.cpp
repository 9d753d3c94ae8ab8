#include "cli/config_command.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

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

}  // namespace

ExitStatus RunConfigBuild(const Options& options) {
  std::string folder = options.configuration_folder;
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

ExitStatus RunConfigCheck(const Options& options) {
  std::string folder = options.configuration_folder;
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

}  // namespace cantorel::cli
