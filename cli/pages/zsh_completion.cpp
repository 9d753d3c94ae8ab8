#include <algorithm>
#include <string>
#include <string_view>

#include "cli/pages/pages.h"

namespace cantorel::cli {
namespace {

// A text inside single quotes, as _arguments and _describe take it,
// where colons and brackets part the pieces.
std::string Quoted(std::string_view text) {
  std::string quoted;
  for (const char character : text) {
    if (character == '\'') {
      quoted += "'\\''";
      continue;
    }
    if (std::string_view(":[]\\").find(character) != std::string_view::npos) quoted += '\\';
    quoted += character;
  }
  return quoted;
}

std::string FunctionName(const CommandDescription& command) {
  std::string name = "_" + command.name;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

// What completes a value: words, files, folders, or nothing but its name.
std::string ActionFor(const OptionDescription& option, std::string_view name) {
  const std::vector<std::string> words = WordsOf(option);
  if (!words.empty()) {
    std::string list;
    for (const std::string& word : words) list += (list.empty() ? "" : " ") + word;
    return "(" + list + ")";
  }
  if (name == "FILE") return "_files";
  return name == "DIR" ? "_files -/" : " ";
}

std::string OptionLine(const std::string& name, const OptionDescription& option) {
  std::string line = "'" + name + "[" + Quoted(option.help) + "]";
  if (!option.value.empty()) {
    line += ":" + Quoted(option.value) + ":" + ActionFor(option, option.value);
  }
  return line + "'";
}

std::string ArgumentLine(const OptionDescription& argument) {
  const std::string& name = argument.names[0];
  return (argument.repeats ? "'*:" : "':") + Quoted(name) + ":" + ActionFor(argument, name) + "'";
}

// The commands below this one, to be told apart by the first argument.
void AppendChoice(const CommandDescription& command, std::string& script) {
  script += "  case $state in\n    command)\n      local -a commands=(\n";
  for (const CommandDescription& below : command.commands) {
    script += "        '" + LastWord(below) + ":" + Quoted(below.help) + "'\n";
  }
  script +=
      "      )\n      _describe command commands ;;\n    arguments)\n      case $line[1] in\n";
  for (const CommandDescription& below : command.commands) {
    script += "        " + LastWord(below) + ") " + FunctionName(below) + " ;;\n";
  }
  script += "      esac ;;\n  esac\n";
}

void AppendFunction(const CommandDescription& command, std::string& script) {
  const bool chooses = !command.commands.empty();
  script += FunctionName(command) + "() {\n  local line state\n  _arguments -C";
  for (const OptionDescription& option : command.options) {
    for (const std::string& name : option.names) script += " \\\n    " + OptionLine(name, option);
  }
  for (const OptionDescription& argument : command.arguments) {
    script += " \\\n    " + ArgumentLine(argument);
  }
  if (chooses) script += " \\\n    '1:command:->command' \\\n    '*::argument:->arguments'";
  script += "\n";
  if (chooses) AppendChoice(command, script);
  script += "}\n\n";
  for (const CommandDescription& below : command.commands) AppendFunction(below, script);
}

}  // namespace

std::string ZshCompletion(const CommandDescription& cantorel) {
  std::string script = "#compdef cantorel\n\n";
  AppendFunction(cantorel, script);
  return script + "_cantorel \"$@\"\n";
}

}  // namespace cantorel::cli
