// One call of AddFields: load the record, remember its fields, convert, and
// tell the host the difference.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "medium/configuration_files.h"
#include "platform/profile_file.h"
#include "service/answer.h"
#include "service/cantorel_class.h"
#include "service/chamber_music.h"
#include "service/configuration_folder.h"
#include "service/incoming_record.h"
#include "service/service_objects.h"
#include "service/snapshot_comparison.h"
#include "service/text_parts.h"

namespace cantorel {
namespace {

// The last entry is longer than a tag and so never met: existing 388 and 655
// fields stay in the record under work, which is deliberate, for the genre side
// reads them.
constexpr std::array<std::string_view, 6> kTagsToDerive = {"046", "370", "382",
                                                           "385", "386", "388 655"};

bool TableHasSignature() {
  constexpr std::int32_t kSignatureLength = 15;
  const std::string table =
      TheServiceState().configuration_folder + std::string(kDerivationTableFileName);
  return !GetIniValue(table, "FileSignature", "FilePresent", kSignatureLength).empty();
}

// Makes sure that the derivation table can be used, building it from its
// workbook if it is not there.
bool PrepareDerivationTable() {
  if (TableHasSignature()) {
    TheMusicClass().InitializeStyleQualifiers();
    return true;
  }
  NameConfigurationFiles();
  bool built = false;
  TheMusicClass().Private_655_Initialize(TheMarcRecord(), TheCharClass(), built);
  // What counts is whether the table can be read now.
  return TableHasSignature();
}

bool IsMusic(const Utf8MarcRecordClass& record) {
  const std::string type = record.GetLeaderValue(6, 1);
  return type == "c" || type == "d" || type == "j";
}

bool IsToBeDerived(std::string_view tag) {
  for (const std::string_view derived : kTagsToDerive) {
    if (tag == derived) return true;
  }
  return false;
}

// Takes the fields that the conversions make out of the record, which is then
// read anew so that it has no deleted rows.
void DeleteDerivedFields(Utf8MarcRecordClass& record, std::string& image) {
  bool deleted = false;
  record.FldMoveTop();
  while (record.FldMoveNext(true)) {
    if (!IsToBeDerived(record.FldTagView())) continue;
    record.FldDelete();
    deleted = true;
  }
  if (!deleted) return;
  record.MarcRecordOut(image);
  record.MarcRecordIn(image);
}

void DeriveMedium(Utf8MarcRecordClass& record) {
  std::int32_t status = 0;
  std::int32_t outcome = 0;
  std::string added_fields;
  TheMusicClass().Convert650To382_Marc(record, status, true, added_fields, outcome);
}

void DeriveGenre(Utf8MarcRecordClass& record) {
  std::string existing_lines;
  std::string new_lines;
  std::string spare;
  TheMusicClass().Convert6xxTo655_Marc(record, TheSecondRecord(), TheCharClass(), existing_lines,
                                       new_lines, spare);
  std::string_view rest = new_lines;
  while (!rest.empty()) {
    std::string_view line;
    ChopAtFirst(rest, line, "\n");
    if (line.size() < 5) continue;
    record.FldAdd(line.substr(0, 3), line.substr(3, 2), line.substr(5));
  }
}

bool WantsMedium(std::int32_t performance_mode) {
  return performance_mode == 1 || performance_mode == 3;
}

bool WantsGenre(std::int32_t performance_mode) {
  return performance_mode == 2 || performance_mode == 3;
}

// From a loaded record of music to the lines for the host.
AddFieldsResult DeriveFields(Utf8MarcRecordClass& record, std::int32_t performance_mode) {
  ServiceState& state = TheServiceState();
  std::string& control_number = TheMusicSession().returned_001_text;

  TheMusicClass().Reset(false);
  SnapshotFields(record, false, state.before, control_number);
  DeleteDerivedFields(record, state.image);
  if (WantsMedium(performance_mode)) DeriveMedium(record);
  if (WantsGenre(performance_mode)) DeriveGenre(record);
  SnapshotFields(record, true, state.after, control_number);

  AddChamberMusicGenre(state.before, state.after, TheMusicClass().AddTerminalPunctuationTo());
  SettleAgainst(state.before, state.after);
  state.returned_fields_text.clear();
  AppendReturnedLines(state.after, state.returned_fields_text);
  return state.returned_fields_text.empty() ? kNothingToReturn : kFieldsReturned;
}

AddFieldsResult AddFieldsUnguarded(std::string_view incoming_data, std::int32_t performance_mode,
                                   bool& first_call_done) {
  std::string& control_number = TheMusicSession().returned_001_text;
  control_number.clear();
  if (TheServiceState().configuration_folder.empty()) return kNoConfigurationFolder;
  if (!first_call_done) {
    // Set first: a table that is not there is complained of once.
    first_call_done = true;
    if (!PrepareDerivationTable()) return kNoDerivationTable;
  }
  if (incoming_data.empty()) return kNoIncomingData;
  Utf8MarcRecordClass& record = TheMarcRecord();
  if (!LoadIncomingRecord(incoming_data, record, control_number)) return kFirstLineTooShort;
  if (!IsMusic(record)) return kNotMusic;
  return DeriveFields(record, performance_mode);
}

}  // namespace

std::int32_t CantorelClass::AddFields(std::string_view incoming_data,
                                      std::int32_t performance_mode) noexcept {
  reports_read_ = false;
  try {
    return AddFieldsUnguarded(incoming_data, performance_mode, first_call_done_);
  } catch (...) {
    // Memory ran out.  No half answer is left behind.
    Answer([] { TheServiceState().returned_fields_text.clear(); });
    return kNothingToReturn;
  }
}

}  // namespace cantorel
