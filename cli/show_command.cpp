#include "cli/show_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/colours.h"
#include "cli/common_options.h"
#include "cli/conversion_item.h"
#include "cli/item_reader.h"
#include "cli/output.h"
#include "cli/record_text.h"
#include "cli/utf8_fields.h"

namespace cantorel::cli {
namespace {

struct ShowOptions {
  std::uint64_t record = 0;  // its number in each file; 0: all of them
  std::vector<std::string> files;
};

class Show {
 public:
  // Shows the records of one input.
  bool ShowFile(const std::string& file, std::uint64_t wanted) {
    const std::vector<std::string> files = {file};
    ItemReader reader(files, false);
    ConversionItem item;
    bool found = false;
    while (!found && reader.Next(item)) {
      if (!item.read_error.empty()) {
        SayUnreadable(item);
        return true;
      }
      found = item.number == wanted;
      if ((wanted == 0 || found) && !ShowRecord(item)) return false;
    }
    if (wanted != 0 && !found) SayMissing(file, item.number, wanted);
    return true;
  }

  ExitStatus Status() const { return status_; }

 private:
  bool ShowRecord(const ConversionItem& item) {
    std::string_view fault = item.fault;
    const std::string_view image =
        fault.empty() ? SoundImage(item.octets, repaired_, fault) : std::string_view();
    if (image.empty()) {
      SayFaulty(item, fault);
      return true;
    }
    text_.clear();
    AppendColoured(colours_, kGreen,
                   std::string(item.source) + ": record " + std::to_string(item.number), text_);
    text_ += '\n';
    fields_.Open(image);
    AppendRecordText(fields_, text_, colours_);
    return WriteOutput(text_);
  }

  void SayUnreadable(const ConversionItem& item) {
    std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
                 item.read_error.c_str());
    status_ = kInputOutputFailed;
  }

  void SayFaulty(const ConversionItem& item, std::string_view fault) {
    std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 ": %s\n",
                 std::string(item.source).c_str(), item.number, item.offset,
                 std::string(fault).c_str());
    status_ = std::max(status_, kUnreadableRecords);
  }

  void SayMissing(const std::string& file, std::uint64_t last, std::uint64_t wanted) {
    std::fprintf(stderr,
                 "cantorel: %s has no record %" PRIu64 ", there are %" PRIu64 " records in it\n",
                 file.c_str(), wanted, last);
    status_ = std::max(status_, kUnreadableRecords);
  }

  const bool colours_ = OutputTakesColours();
  ExitStatus status_ = kAllWell;
  Utf8Fields fields_;
  std::string repaired_;
  std::string text_;  // of one record
};

ExitStatus RunShow(const ShowOptions& options) {
  Show show;
  for (const std::string& file : options.files) {
    if (!show.ShowFile(file, options.record)) return kInputOutputFailed;
  }
  return FinishOutput() ? show.Status() : kInputOutputFailed;
}

}  // namespace

void AddShowCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("show", "Print records to be read, in UTF-8, with colours on a terminal");
  const auto options = std::make_shared<ShowOptions>();
  command->add_option("--record", options->record, "The record of this number alone, from 1")
      ->type_name("NUMBER")
      ->check([](const std::string& number) {
        return number.find_first_not_of("0") == number.npos ? "Records are counted from 1"
                                                            : std::string();
      });
  AddFileArguments(*command, options->files);
  AddExamples(*command,
              {{"cantorel show records.mrc | less", "all records of a file"},
               {"cantorel show --record 17 records.xml", "one, as check and convert count"}});
  command->callback([&action, options] { action = [options] { return RunShow(*options); }; });
}

}  // namespace cantorel::cli
