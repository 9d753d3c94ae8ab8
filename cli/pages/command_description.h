// What the command line offers, as plain data: the manual page and the shells'
// completions are made from it.

#ifndef CANTOREL_CLI_PAGES_COMMAND_DESCRIPTION_H_
#define CANTOREL_CLI_PAGES_COMMAND_DESCRIPTION_H_

#include <string>
#include <vector>

namespace cantorel::cli {

struct OptionDescription {
  std::vector<std::string>
      names;                  // with their dashes, short ones first; of an argument its one name
  std::string value;          // what it takes, words with "|" between or a name; may be empty
  std::string default_value;  // empty when there is none to tell
  std::string help;
  std::string group;      // heading under which --help lists it
  bool required = false;  // of an argument
  bool repeats = false;   // of an argument
};

struct CommandDescription {
  std::string name;  // as it is typed, such as "cantorel config init"
  std::string help;
  std::vector<OptionDescription> options;
  std::vector<OptionDescription> arguments;
  std::vector<CommandDescription> commands;  // below this one
  std::string closing;                       // what --help ends with: examples, exit statuses
};

// The whole command line, from "cantorel" down.
CommandDescription DescribeCommandLine();

// The words that an option may take; none when it takes any text.
std::vector<std::string> WordsOf(const OptionDescription& option);

// The last word of a command's name.
std::string LastWord(const CommandDescription& command);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_PAGES_COMMAND_DESCRIPTION_H_
