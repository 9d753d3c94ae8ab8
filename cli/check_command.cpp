#include "cli/check_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common_options.h"
#include "cli/conversion_item.h"
#include "cli/item_reader.h"
#include "cli/output.h"
#include "cli/record_check.h"

namespace cantorel::cli {
namespace {

class Check {
 public:
  bool Take(const ConversionItem& item) {
    lines_.clear();
    if (!item.read_error.empty()) {
      SayUnreadable(item);
    } else {
      AppendFindings(item);
    }
    return WriteOutput(lines_);
  }

  ExitStatus Finish() const {
    if (!FinishOutput()) return kInputOutputFailed;
    std::fprintf(stderr,
                 "cantorel: %" PRIu64 " records, %" PRIu64 " of them with findings; %" PRIu64
                 " findings\n",
                 records_, faulty_records_, findings_);
    return status_;
  }

 private:
  void SayUnreadable(const ConversionItem& item) {
    std::fprintf(stderr, "cantorel: cannot read %s: %s\n", std::string(item.source).c_str(),
                 item.read_error.c_str());
    status_ = kInputOutputFailed;
  }

  void AppendFindings(const ConversionItem& item) {
    ++records_;
    if (!item.fault.empty()) {
      Append(item, {}, {item.fault});
    } else {
      for (const RecordFinding& finding : check_.Check(item.octets)) {
        Append(item, check_.ControlNumber(), finding);
      }
    }
    if (lines_.empty()) return;
    ++faulty_records_;
    status_ = std::max(status_, kSomethingFound);
  }

  void Append(const ConversionItem& item, std::string_view control_number,
              const RecordFinding& finding) {
    ++findings_;
    lines_.append(item.source).append(": record ").append(std::to_string(item.number));
    lines_.append(" at offset ").append(std::to_string(item.offset)).append(": ");
    if (!control_number.empty()) lines_.append(control_number).append(": ");
    lines_ += finding.text;
    if (finding.octet > 0) {
      lines_ += finding.field < 0 ? " (" : " (field " + std::to_string(finding.field) + ", ";
      lines_ += "octet " + std::to_string(finding.octet) + ")";
    }
    lines_ += '\n';
  }

  RecordCheck check_;
  ExitStatus status_ = kAllWell;
  std::uint64_t records_ = 0;
  std::uint64_t faulty_records_ = 0;
  std::uint64_t findings_ = 0;
  std::string lines_;  // of one record
};

ExitStatus RunCheck(const std::vector<std::string>& files) {
  ItemReader reader(files, false);
  Check check;
  for (ConversionItem item; reader.Next(item);) {
    if (!check.Take(item)) return kInputOutputFailed;
  }
  return check.Finish();
}

}  // namespace

void AddCheckCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("check", "List what is wrong with records, and where");
  const auto files = std::make_shared<std::vector<std::string>>();
  AddFileArguments(*command, *files);
  AddExamples(*command, {{"cantorel check records.mrc",
                          "a line for each finding; status 1 when there is any"},
                         {"cantorel check *.mrc > findings.txt", "the sums alone are shown"}});
  command->callback([&action, files] { action = [files] { return RunCheck(*files); }; });
}

}  // namespace cantorel::cli
