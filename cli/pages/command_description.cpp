#include "cli/pages/command_description.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <utility>

#include "cli/command_line.h"

namespace cantorel::cli {
namespace {

// "DAYS" of "DAYS:INT in [0 - 36500]": the rest is what CLI11 says of the range.
std::string ValueOf(const CLI::Option& option) {
  if (option.get_type_size() == 0) return {};
  const std::string type = option.get_type_name();
  return type.substr(0, type.find(':'));
}

OptionDescription Describe(const CLI::Option& option) {
  OptionDescription description;
  for (const std::string& name : option.get_snames()) description.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) description.names.push_back("--" + name);
  if (option.get_positional()) description.names = {option.get_name(true)};
  description.value = ValueOf(option);
  description.default_value = option.get_default_str();
  description.help = option.get_description();
  description.group = option.get_group();
  description.required = option.get_required();
  description.repeats = option.get_expected_max() == CLI::detail::expected_max_vector_size;
  return description;
}

CommandDescription Describe(const CLI::App& command, std::string name) {
  CommandDescription description;
  description.help = command.get_description();
  description.closing = command.get_footer();
  for (const CLI::Option* const option : command.get_options({})) {
    auto& list = option->get_positional() ? description.arguments : description.options;
    list.push_back(Describe(*option));
  }
  // As in --help: the options without a heading of their own first.
  std::stable_partition(description.options.begin(), description.options.end(),
                        [](const OptionDescription& option) { return option.group == "Options"; });
  for (const CLI::App* const below : command.get_subcommands({})) {
    description.commands.push_back(Describe(*below, name + " " + below->get_name()));
  }
  description.name = std::move(name);
  return description;
}

}  // namespace

CommandDescription DescribeCommandLine() {
  CLI::App app;
  Action action;
  DeclareCommandLine(app, action);
  return Describe(std::as_const(app), app.get_name());
}

std::vector<std::string> WordsOf(const OptionDescription& option) {
  std::vector<std::string> words;
  if (option.value.find('|') == option.value.npos) return words;
  std::size_t start = 0;
  for (std::size_t bar = 0; bar != option.value.npos; start = bar + 1) {
    bar = option.value.find('|', start);
    words.push_back(option.value.substr(start, bar - start));
  }
  return words;
}

std::string LastWord(const CommandDescription& command) {
  return command.name.substr(command.name.rfind(' ') + 1);
}

}  // namespace cantorel::cli
