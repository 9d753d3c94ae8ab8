#include "cli/convert_command.h"

#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <string>

#include "cli/common_options.h"
#include "cli/conversion_item.h"
#include "cli/convert_options.h"
#include "cli/item_converter.h"
#include "cli/item_reader.h"
#include "cli/result_writer.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, Format> kFormats = {{"text", Format::kText}, {"json", Format::kJson}};

ExitStatus RunConvert(const ConvertOptions& options) {
  Lookups lookups(options.conversion.lookups);
  Converter component;
  if (!lookups.Prepare() || !component.Prepare(options.conversion, lookups)) return kWrongCall;
  ItemReader reader(options.files, options.lines);
  ItemConverter converter(component.Component(), options);
  ResultWriter writer;

  ConversionItem item;
  ConversionResult result;
  while (reader.Next(item)) {
    if (item.read_error.empty()) converter.Convert(item, result);
    if (!writer.Write(item, result)) return kInputOutputFailed;
  }
  return writer.Finish() ? writer.Status() : kInputOutputFailed;
}

}  // namespace

void AddConvertCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("convert", "Read MARC records and write the fields that each should have");
  const auto options = std::make_shared<ConvertOptions>();
  AddConversionOptions(*command, options->conversion);
  AddChoice(*command, "--format", options->format, kFormats, "Form of the answers");
  command->add_flag("--lines", options->lines,
                    "Read field lines, with $ as delimiter and a blank line between records");
  AddFileArguments(*command, options->files);
  command->callback([&action, options] { action = [options] { return RunConvert(*options); }; });
}

}  // namespace cantorel::cli
