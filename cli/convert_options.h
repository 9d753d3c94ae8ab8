// What a call of cantorel convert asks for.

#ifndef CANTOREL_CLI_CONVERT_OPTIONS_H_
#define CANTOREL_CLI_CONVERT_OPTIONS_H_

#include <string>
#include <vector>

#include "cli/answer_writers.h"
#include "cli/conversion_options.h"

namespace cantorel::cli {

struct ConvertOptions {
  ConversionOptions conversion;
  Format format = Format::kText;
  bool lines = false;
  std::vector<std::string> files;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERT_OPTIONS_H_
