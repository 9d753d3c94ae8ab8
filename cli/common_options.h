// Options that more than one command takes.

#ifndef CANTOREL_CLI_COMMON_OPTIONS_H_
#define CANTOREL_CLI_COMMON_OPTIONS_H_

#include <CLI/CLI.hpp>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace cantorel::cli {

// An option that takes one of some words; `value` comes with its default.
template <typename Value>
void AddChoice(CLI::App& command, const std::string& name, Value& value,
               const std::map<std::string, Value>& choices, const std::string& help) {
  CLI::Option* const option = command.add_option_function<std::string>(
      name, [&value, &choices](const std::string& word) { value = choices.at(word); }, help);
  std::string words;
  for (const auto& [word, choice] : choices) {
    words += words.empty() ? word : "|" + word;
    if (choice == value) option->default_str(word);
  }
  option->type_name(words)->check([&choices, words](const std::string& word) {
    return choices.contains(word) ? std::string() : word + " is none of " + words;
  });
}

// --config: `folder` stays empty when the one that comes with the program is
// meant.
inline void AddFolderOption(CLI::App& command, std::string& folder) {
  command
      .add_option("--config", folder,
                  "Configuration folder (default: the one that comes with the program)")
      ->type_name("DIR");
}

// The names of the files to read, never none: "-" is standard input.
inline void AddFileArguments(CLI::App& command, std::vector<std::string>& files) {
  files = {"-"};
  command.add_option("FILE", files, "Files to read; - or none: standard input")->type_name("");
}

// What --help of a command ends with: calls that can be typed as they stand, and
// what each is for.
struct Example {
  const char* call;
  const char* purpose;
};

inline void AddExamples(CLI::App& command, std::initializer_list<Example> examples) {
  std::string text = "Examples:";
  for (const Example& example : examples) {
    text.append("\n  ").append(example.call).append("\n      ").append(example.purpose);
  }
  command.footer(text);
}

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_COMMON_OPTIONS_H_
