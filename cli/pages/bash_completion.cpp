#include <string>
#include <string_view>

#include "cli/pages/pages.h"

namespace cantorel::cli {
namespace {

// $command grows word by word to the command that is being typed.
constexpr std::string_view kHead =
    "# Completion of cantorel for bash.\n"
    "_cantorel() {\n"
    "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
    "  local command=cantorel word words='' files=''\n"
    "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
    "    case \"$command $word\" in\n";

constexpr std::string_view kBetween =
    "        command+=\" $word\" ;;\n"
    "    esac\n"
    "  done\n"
    "  case \"$command $previous\" in\n";

constexpr std::string_view kDefault =
    "    *)\n"
    "      case $command in\n";

constexpr std::string_view kTail =
    "      esac ;;\n"
    "  esac\n"
    "  COMPREPLY=()\n"
    "  [[ -z $words ]] || mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
    "  if [[ -n $files && $current != -* ]]; then\n"
    "    compopt -o filenames 2>/dev/null\n"
    "    local names\n"
    "    mapfile -t names < <(compgen \"$files\" -- \"$current\")\n"
    "    COMPREPLY+=(\"${names[@]}\")\n"
    "  fi\n"
    "}\n"
    "complete -F _cantorel cantorel\n";

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

// "a"|"b"|"c" of the names of all commands below one.
void AppendNames(const CommandDescription& command, std::string& names) {
  for (const CommandDescription& below : command.commands) {
    names += (names.empty() ? "" : "|") + Quoted(below.name);
    AppendNames(below, names);
  }
}

// What compgen is to list for a value of this name.
std::string_view FilesFor(std::string_view value) {
  if (value == "FILE") return "-f";
  return value == "DIR" ? "-d" : "";
}

std::string Settings(std::string_view words, std::string_view files) {
  std::string settings;
  if (!words.empty()) settings.append(" words='").append(words).append("'");
  if (!files.empty()) settings.append(" files=").append(files);
  return settings.empty() ? " :" : settings;
}

// A branch for each option that takes something: it is completed next.
void AppendValues(const CommandDescription& command, std::string& script) {
  for (const OptionDescription& option : command.options) {
    if (option.value.empty()) continue;
    std::string pattern;
    for (const std::string& name : option.names) {
      pattern += (pattern.empty() ? "" : "|") + Quoted(command.name + " " + name);
    }
    std::string words;
    for (const std::string& word : WordsOf(option)) words += (words.empty() ? "" : " ") + word;
    script += "    " + pattern + ")" + Settings(words, FilesFor(option.value)) + " ;;\n";
  }
  for (const CommandDescription& below : command.commands) AppendValues(below, script);
}

// A branch for each command: its options, and the commands or files behind it.
void AppendCommands(const CommandDescription& command, std::string& script) {
  std::string words;
  const auto add = [&words](std::string_view word) {
    words.append(words.empty() ? "" : " ").append(word);
  };
  for (const CommandDescription& below : command.commands) add(LastWord(below));
  for (const OptionDescription& option : command.options) add(option.names.back());
  std::string_view files;
  for (const OptionDescription& argument : command.arguments) files = FilesFor(argument.names[0]);
  script += "        " + Quoted(command.name) + ")" + Settings(words, files) + " ;;\n";
  for (const CommandDescription& below : command.commands) AppendCommands(below, script);
}

}  // namespace

std::string BashCompletion(const CommandDescription& cantorel) {
  std::string names;
  AppendNames(cantorel, names);
  std::string script(kHead);
  script.append("      ").append(names).append(")\n").append(kBetween);
  AppendValues(cantorel, script);
  script += kDefault;
  AppendCommands(cantorel, script);
  return script.append(kTail);
}

}  // namespace cantorel::cli
