// Settings and reset of the class; its conversions stand in files of their own.

#include "medium/music_650_to_382_class.h"

#include <cstddef>

#include "charset/marc_control.h"
#include "medium/configuration_files.h"
#include "platform/clock.h"

namespace cantorel {

namespace {

// The folder of a path with its backslash; empty for a bare file name.
std::string_view FolderOf(std::string_view path) {
  const std::size_t backslash = path.rfind('\\');
  return backslash == std::string_view::npos ? std::string_view() : path.substr(0, backslash + 1);
}

}  // namespace

Music650To382Class::Music650To382Class(MusicSession& session)
    : session_(session), vocabulary_(session, report_) {
  Reset(true);
}

void Music650To382Class::Reset(bool rebuild) {
  report_.ClearCounts();
  genre_.ClearRecord();
  if (rebuild) {
    vocabulary_.ClearInstrumentCache();
    report_.ClearAll();
    existing_382_fields_.RemoveAll();
    new_382_fields_.RemoveAll();
    genre_.ClearDictionaries();
  }
  SettleConfigurationFolder();
  InitializeStyleQualifiers();
}

void Music650To382Class::SettleConfigurationFolder() {
  configuration_folder_ = FolderOf(vocabulary_.InstrumentFile());
  if (configuration_folder_.empty()) configuration_folder_ = FolderOf(spreadsheet_);
  if (configuration_folder_.empty() && session_.second_record != nullptr) {
    configuration_folder_ = session_.second_record->FldOrderFolder();
  }
  derivation_table_ = configuration_folder_;
  if (!derivation_table_.empty()) derivation_table_ += kDerivationTableFileName;
}

void Music650To382Class::Parm_Subfield2Code(std::string_view code) {
  subfield_2_code_ = code;
  subfield_2_.clear();
  if (code.empty()) return;
  subfield_2_ += kDelimiter;
  subfield_2_ += '2';
  subfield_2_ += code;
}

std::string Music650To382Class::AddTerminalPunctuationTo() const {
  return terminal_punctuation_ == "*" ? std::string() : terminal_punctuation_;
}

void Music650To382Class::AddTerminalPunctuationTo(std::string_view tags) {
  terminal_punctuation_ = tags.empty() ? "*" : tags;
}

void Music650To382Class::MusicClassOperatingMode(std::int32_t mode) {
  operating_mode_ = mode >= 0 && mode <= 2 ? mode : 0;
}

void Music650To382Class::MusicClassDateTimeStamp(std::string_view stamp) {
  constexpr std::size_t kDateLength = 8;
  constexpr std::size_t kFullLength = 15;
  if (stamp.size() == kFullLength) return;
  if (stamp.size() == kDateLength) {
    date_time_stamp_ = stamp;
    date_time_stamp_ += ".000000";
    return;
  }
  date_time_stamp_ = CurrentDateTime();
  date_time_stamp_.insert(kDateLength, 1, '.');
}

void Music650To382Class::MusicClassReportFilePath(std::string_view path) {
  report_file_path_ = path;
  if (!path.empty() && !path.ends_with('\\')) report_file_path_ += '\\';
}

}  // namespace cantorel
