#include "cli/dump_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common_options.h"
#include "cli/conversion_item.h"
#include "cli/item_reader.h"
#include "cli/output_file.h"
#include "cli/record_marcxml.h"
#include "cli/record_text.h"
#include "cli/utf8_fields.h"

namespace cantorel::cli {
namespace {

enum class Form { kMarcXml, kIso2709, kText };
const std::map<std::string, Form> kForms = {
    {"marcxml", Form::kMarcXml}, {"iso2709", Form::kIso2709}, {"text", Form::kText}};

struct DumpOptions {
  Form form = Form::kText;
  std::string output = "-";
  bool force = false;
  std::vector<std::string> files;
};

class Dump {
 public:
  explicit Dump(const DumpOptions& options) : options_(options), marcxml_(out_) {}

  ExitStatus Run() {
    if (!MayWrite(options_.output, options_.files, options_.force)) return kInputOutputFailed;
    if (!output_.Open(options_.output)) return kInputOutputFailed;
    if (options_.form == Form::kMarcXml) marcxml_.Begin();
    ItemReader reader(options_.files, false);
    for (ConversionItem item; reader.Next(item);) {
      Take(item);
      if (!Flush()) return kInputOutputFailed;
    }
    if (options_.form == Form::kMarcXml) marcxml_.End();
    if (!Flush() || !output_.Finish()) return kInputOutputFailed;
    if (options_.output != "-") {
      std::fprintf(stderr, "cantorel: %s: %" PRIu64 " records\n", options_.output.c_str(), count_);
    }
    return status_;
  }

 private:
  void Take(const ConversionItem& item) {
    if (!item.read_error.empty()) {
      std::fprintf(stderr, "cantorel: cannot read %s: %s\n", Source(item).c_str(),
                   item.read_error.c_str());
      status_ = kInputOutputFailed;
      return;
    }
    std::string_view fault = item.fault;
    const std::string_view image =
        fault.empty() ? SoundImage(item.octets, repaired_, fault) : std::string_view();
    if (image.empty()) return SayUnreadable(item, fault);
    ++count_;
    Append(item, image);
  }

  void Append(const ConversionItem& item, std::string_view image) {
    if (options_.form == Form::kIso2709) {
      out_ += image;
      return;
    }
    fields_.Open(image);
    if (options_.form == Form::kText) return AppendRecordText(fields_, out_);
    marcxml_.Append(fields_);
    SayRepairs(item);
  }

  bool Flush() {
    const bool written = output_.Write(out_);
    out_.clear();
    return written;
  }

  void SayUnreadable(const ConversionItem& item, std::string_view fault) {
    std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 ": %s\n",
                 Source(item).c_str(), item.number, item.offset, std::string(fault).c_str());
    status_ = std::max(status_, kUnreadableRecords);
  }

  void SayRepairs(const ConversionItem& item) {
    for (const Repair& repair : marcxml_.Repairs()) {
      std::fprintf(stderr, "cantorel: %s: record %" PRIu64 ": %s: %s\n", Source(item).c_str(),
                   item.number, repair.place.c_str(), repair.what.c_str());
    }
    if (marcxml_.LostField()) status_ = std::max(status_, kUnreadableRecords);
  }

  static std::string Source(const ConversionItem& item) { return std::string(item.source); }

  const DumpOptions& options_;
  OutputFile output_;
  ExitStatus status_ = kAllWell;
  std::uint64_t count_ = 0;
  Utf8Fields fields_;
  std::string repaired_;
  std::string out_;  // not yet written
  MarcXmlRecords marcxml_;
};

ExitStatus RunDump(const DumpOptions& options) {
  return Dump(options).Run();
}

}  // namespace

void AddDumpCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("dump", "Write records, ISO 2709 or MARCXML, in another form");
  const auto options = std::make_shared<DumpOptions>();
  AddChoice(*command, "--to", options->form, kForms, "Form to write");
  command
      ->add_option("--output", options->output,
                   "File to write, compressed if its name ends in .gz (default: standard output)")
      ->type_name("FILE");
  command->add_flag("--force", options->force, "Replace a file that is there already");
  AddFileArguments(*command, options->files);
  AddExamples(*command,
              {{"cantorel dump --to marcxml --output records.xml records.mrc", "as MARCXML"},
               {"cantorel dump --to iso2709 --output records.mrc records.xml", "and back"},
               {"cantorel dump records.mrc.gz | grep '^382'", "all fields of one tag"}});
  command->callback([&action, options] { action = [options] { return RunDump(*options); }; });
}

}  // namespace cantorel::cli
