// What a call of cantorel convert asks for.

#ifndef CANTOREL_CLI_CONVERT_OPTIONS_H_
#define CANTOREL_CLI_CONVERT_OPTIONS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "cli/answer_writers.h"
#include "cli/conversion_options.h"

namespace cantorel::cli {

// What becomes of an answer.
enum class Result {
  kAnswers,      // the answers themselves are listed
  kRecords,      // the records are written with the answers applied
  kDifferences,  // what would change is shown
};

// How records are written.
enum class RecordForm { kAsFirstInput, kIso2709, kMarcXml };

struct ConvertOptions {
  ConversionOptions conversion;
  Result result = Result::kAnswers;
  Format format = Format::kText;
  bool lists_answers = true;
  bool colours = false;  // of the differences
  bool lines = false;
  std::size_t jobs = 0;  // threads that convert; 0: as many as the machine has cores
  std::string output;
  RecordForm form = RecordForm::kAsFirstInput;
  std::string rejects;  // empty: a name made of that of the output
  std::string report;   // its name tells the form
  bool quiet = false;   // no progress, no totals
  bool only_changed = false;
  bool force = false;
  std::vector<std::string> files;

  bool WritesMarcXml(bool begins_with_marcxml) const {
    return form == RecordForm::kMarcXml ||
           (form == RecordForm::kAsFirstInput && begins_with_marcxml);
  }
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERT_OPTIONS_H_
