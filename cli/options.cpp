#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "cli/exit_status.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, std::int32_t> kModes = {{"382", 1}, {"655", 2}, {"all", 3}};
const std::map<std::string, std::int32_t> kCanons = {{"message", 0}, {"assign", 1}, {"ask", 2}};
const std::map<std::string, Format> kFormats = {{"text", Format::kText}, {"json", Format::kJson}};

template <typename Value>
void AddChoice(CLI::App& command, const std::string& name, std::string& choice,
               const std::map<std::string, Value>& choices, const std::string& help) {
  command.add_option(name, choice, help)->check(CLI::IsMember(&choices))->capture_default_str();
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += text.empty() ? word : ' ' + word;
  return text;
}

}  // namespace

bool ParseOptions(int argc, const char* const* argv, Options& options, int& status) {
  CLI::App app("Derives MARC 21 fields for music practice from older subject headings.",
               "cantorel");
  app.require_subcommand(1);
  app.set_version_flag("--version", CANTOREL_VERSION);

  std::string mode = "all";
  std::string canons = "message";
  std::string format = "text";
  bool json = false;
  std::vector<std::string> words;

  CLI::App* const convert =
      app.add_subcommand("convert", "Read MARC records and write the fields that each should have");
  CLI::App* const heading = app.add_subcommand(
      "heading", "Show what one subject heading gives; $v, $x and so on may follow it");
  CLI::App* const config =
      app.add_subcommand("config", "Build and check the files of the configuration folder");
  config->require_subcommand(1);
  CLI::App* const build = config->add_subcommand(
      "build", "Make the derivation table from its workbook, and say what each sheet gave");
  CLI::App* const check = config->add_subcommand(
      "check", "List what a maintainer of vocabulary, table and workbook should look at");
  for (CLI::App* const command : {convert, heading, build, check}) {
    command
        ->add_option("--config", options.configuration_folder,
                     "Configuration folder (default: the one that comes with the program)")
        ->type_name("DIR");
  }
  for (CLI::App* const command : {convert, heading}) {
    AddChoice(*command, "--mode", mode, kModes,
              "Fields to derive: 382, 655 and companions, or all");
    AddChoice(*command, "--canons", canons, kCanons,
              "When 'Canons, fugues, etc.' may mean either: leave a message, assign both, or ask "
              "in the terminal");
  }
  AddChoice(*convert, "--format", format, kFormats, "Form of the answers");
  convert->add_flag("--lines", options.lines,
                    "Read field lines, with $ as delimiter and a blank line between records");
  convert->add_option("FILE", options.files, "Files to read; - or none: standard input");
  heading->add_flag("--json", json, "Write the answer as JSON");
  heading->add_option("HEADING", words, "Text of the heading")->required();

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {  // --help, --version
      status = app.exit(error);
    } else {
      std::fprintf(stderr, "cantorel: %s (see cantorel --help)\n", error.what());
      status = kWrongCall;
    }
    return false;
  }

  options.command = heading->parsed() ? Command::kHeading
                    : build->parsed() ? Command::kConfigBuild
                    : check->parsed() ? Command::kConfigCheck
                                      : Command::kConvert;
  options.mode = kModes.at(mode);
  options.canons = kCanons.at(canons);
  options.format = json ? Format::kJson : kFormats.at(format);
  if (options.files.empty()) options.files = {"-"};
  options.heading = Joined(words);
  return true;
}

}  // namespace cantorel::cli
