#include <string>
#include <string_view>

#include "cli/pages/pages.h"

namespace cantorel::cli {
namespace {

constexpr std::string_view kOtherSections =
    ".SH ENVIRONMENT\n"
    ".TP\n"
    ".B NO_COLOR\n"
    "With any text in it, nothing is shown in colours.\n"
    ".TP\n"
    ".BR https_proxy \", \" no_proxy\n"
    "Proxies for looking up places and nationalities.\n";

// Text that roff takes as it stands: the dash of an option stays one that can be
// copied, and no line begins a request.
std::string Plain(std::string_view text) {
  std::string plain;
  bool line_start = true;
  for (const char character : text) {
    if (line_start && (character == '.' || character == '\'')) plain += "\\&";
    if (character == '\\') {
      plain += "\\e";
    } else if (character == '-') {
      plain += "\\-";
    } else if (character == '\'') {
      plain += "\\(aq";
    } else if (character == '^') {
      plain += "\\(ha";
    } else if (character == '~') {
      plain += "\\(ti";
    } else if (character == '`') {
      plain += "\\(ga";
    } else {
      plain += character;
    }
    line_start = character == '\n';
  }
  return plain;
}

std::string Bold(std::string_view text) {
  return "\\fB" + Plain(text) + "\\fR";
}
std::string Italic(std::string_view text) {
  return "\\fI" + Plain(text) + "\\fR";
}

// Words to choose from are typed as they stand, a name stands for something.
std::string Value(const OptionDescription& option) {
  if (option.value.empty()) return {};
  return " " + (WordsOf(option).empty() ? Italic(option.value) : Bold(option.value));
}

std::string NamesOf(const OptionDescription& option) {
  std::string names;
  for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + Bold(name);
  return names + Value(option);
}

std::string HelpOf(const OptionDescription& option) {
  if (option.default_value.empty()) return Plain(option.help);
  return Plain(option.help + " (" + option.default_value + " unless given)");
}

void AppendOptions(const CommandDescription& command, std::string& page) {
  std::string_view group = "Options";
  for (const OptionDescription& option : command.options) {
    if (option.names.back() == "--help") continue;  // told of once, in OPTIONS
    if (option.group != group) {
      group = option.group;
      page += ".PP\n" + Plain(group) + ":\n";
    }
    page += ".TP\n" + NamesOf(option) + "\n" + HelpOf(option) + "\n";
  }
}

std::string ArgumentOf(const OptionDescription& argument) {
  const std::string name = Italic(argument.names[0]) + (argument.repeats ? "..." : "");
  return argument.required ? name : "[" + name + "]";
}

std::string CallOf(const CommandDescription& command) {
  std::string call = Bold(command.name);
  if (!command.options.empty()) call += " [" + Italic("OPTION") + "...]";
  for (const OptionDescription& argument : command.arguments) call += " " + ArgumentOf(argument);
  return call;
}

// Commands that have others below them are no calls themselves.
template <typename Visit>
void ForEachCall(const CommandDescription& command, const Visit& visit) {
  if (command.commands.empty()) return visit(command);
  for (const CommandDescription& below : command.commands) ForEachCall(below, visit);
}

// What stands at the end of --help is laid out already.
void AppendClosing(std::string_view closing, std::string& page) {
  if (!closing.empty()) page.append(".PP\n.nf\n").append(Plain(closing)).append("\n.fi\n");
}

void AppendCall(const CommandDescription& command, std::string& page) {
  page += ".SS " + Plain(command.name) + "\n" + CallOf(command) + "\n.PP\n";
  page += Plain(command.help) + ".\n";
  for (const OptionDescription& argument : command.arguments) {
    page += ".TP\n" + Italic(argument.names[0]) + "\n" + Plain(argument.help) + "\n";
  }
  AppendOptions(command, page);
  AppendClosing(command.closing, page);
}

}  // namespace

std::string ManualPage(const CommandDescription& cantorel, std::string_view version) {
  std::string page = ".TH CANTOREL 1 \"\" \"cantorel ";
  page.append(version).append("\" \"User commands\"\n");
  page += ".SH NAME\ncantorel \\- MARC 21 fields for music practice from subject headings\n";
  page += ".SH SYNOPSIS\n.nf\n";
  ForEachCall(cantorel, [&](const CommandDescription& call) { page += CallOf(call) + "\n"; });
  page += ".fi\n.SH DESCRIPTION\n" + Plain(cantorel.help) + "\n";
  AppendClosing(cantorel.closing, page);
  page += ".SH OPTIONS\n";
  for (const OptionDescription& option : cantorel.options) {
    page += ".TP\n" + NamesOf(option) + "\n" + HelpOf(option) + "\n";
  }
  page += ".SH COMMANDS\n";
  ForEachCall(cantorel, [&](const CommandDescription& call) { AppendCall(call, page); });
  return page.append(kOtherSections);
}

}  // namespace cantorel::cli
