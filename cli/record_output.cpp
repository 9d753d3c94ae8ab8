#include "cli/record_output.h"

#include <filesystem>
#include <system_error>

namespace cantorel::cli {

namespace fs = std::filesystem;

bool RecordOutput::Open(const Names& names) {
  rejects_name_ = names.rejects;
  if (rejects_name_.empty() && names.output != "-") rejects_name_ = names.output + ".rejects";
  for (const std::string& name : {names.output, rejects_name_}) {
    if (name.empty()) continue;
    if (!MayWrite(name, names.inputs, names.force)) return false;
  }
  return output_.Open(names.output);
}

bool RecordOutput::Reject(std::string_view octets) {
  if (rejects_name_.empty()) return true;
  if (!has_rejects_ && !rejects_.Open(rejects_name_)) return false;
  has_rejects_ = true;
  return rejects_.Write(octets);
}

bool RecordOutput::Finish() {
  // The rejects first: records that are in neither file would be lost.
  if (has_rejects_) return rejects_.Finish() && output_.Finish();
  std::error_code error;
  if (fs::is_regular_file(rejects_name_, error)) fs::remove(rejects_name_, error);
  return output_.Finish();
}

bool RecordOutput::FinishPartial() {
  if (has_rejects_ && !rejects_.FinishPartial()) return false;
  return output_.FinishPartial();
}

}  // namespace cantorel::cli
