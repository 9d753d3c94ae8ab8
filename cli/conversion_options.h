// How headings are to be converted: the options of the commands that ask the
// component.

#ifndef CANTOREL_CLI_CONVERSION_OPTIONS_H_
#define CANTOREL_CLI_CONVERSION_OPTIONS_H_

#include <cstdint>
#include <memory>
#include <string>

#include "cli/lookups.h"
#include "cli/terminal_selector.h"
#include "service/cantorel_class.h"

namespace CLI {
class App;
}

namespace cantorel::cli {

struct ConversionOptions {
  std::string configuration_folder;  // empty: the one that comes with the program
  std::int32_t mode = 3;             // as AddFields takes it: 1 382, 2 655, 3 both
  std::int32_t canons = 0;           // MusicClassOperatingMode: 0 message, 1 assign, 2 ask
  LookupOptions lookups;

  bool AskUser() const { return canons == 2; }
};

// `options` must live until the line is parsed.
void AddConversionOptions(CLI::App& command, ConversionOptions& options);

// The component with what it needs from outside.
class Converter {
 public:
  // False, with a line on standard error, when there is no folder to work with
  // or nobody to ask.  `lookups` must outlive the object.
  bool Prepare(const ConversionOptions& options, Lookups& lookups);

  CantorelClass& Component() { return component_; }

  // Whether a look-up got no answer.
  bool LookupFailed() const { return client_ != nullptr && client_->HasFailed(); }
  void StopLookups();

 private:
  CantorelClass component_;
  TerminalSelector selector_;
  std::unique_ptr<Lookups::Client> client_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONVERSION_OPTIONS_H_
