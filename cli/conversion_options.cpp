#include "cli/conversion_options.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>
#include <string>

#include "cli/common_options.h"
#include "cli/configuration.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, std::int32_t> kModes = {{"382", 1}, {"655", 2}, {"all", 3}};
const std::map<std::string, std::int32_t> kCanons = {{"message", 0}, {"assign", 1}, {"ask", 2}};

}  // namespace

void AddConversionOptions(CLI::App& command, ConversionOptions& options) {
  AddFolderOption(command, options.configuration_folder);
  AddChoice(command, "--mode", options.mode, kModes,
            "Fields to derive: 382, 655 and companions, or all");
  AddChoice(command, "--canons", options.canons, kCanons,
            "When 'Canons, fugues, etc.' may mean either: leave a message, assign both, or ask "
            "in the terminal");
  AddLookupOptions(command, options.lookups);
}

bool Converter::Prepare(const ConversionOptions& options, Lookups& lookups) {
  if (!Configure(component_, options.configuration_folder)) return false;
  if (options.AskUser() && !selector_.HasTerminal()) {
    std::fprintf(stderr, "cantorel: --canons ask needs a terminal to ask in, and there is none\n");
    return false;
  }
  component_.MusicClassOperatingMode(options.canons);
  component_.SelectFieldsWith(&selector_);
  client_ = lookups.MakeClient();
  component_.LookUpWith(client_.get());
  component_.LinkedDataUrl(options.lookups.linked_data_url);
  component_.PermalinkUrl(options.lookups.permalink_url);
  return true;
}

void Converter::StopLookups() {
  component_.LookUpWith(nullptr);
  client_.reset();
}

}  // namespace cantorel::cli
