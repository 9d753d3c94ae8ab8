#include "service/configuration_folder.h"

#include <string>

#include "platform/file_layer.h"
#include "service/service_objects.h"

namespace cantorel {
namespace {

std::string InFolder(std::string_view name) {
  return TheServiceState().configuration_folder + std::string(name);
}

void NameVocabulary() {
  TheMusicClass().Parm_InstrumentNameConfigurationFile(InFolder(kVocabularyFileName));
}

// Any value asks for the table of derivations to be built when it is missing.
// The workbook has a fixed name, so that this one stands for nothing.
void NameWorkbook() {
  TheMusicClass().Parm_Bibliographic655Spreadsheet(InFolder("x"));
}

void PointRecordAtFolder(Utf8MarcRecordClass& record) {
  record.MarcRecordIn("");
  record.FldOrderFolder(TheServiceState().configuration_folder);
}

}  // namespace

void SetConfigurationFolder(std::string_view path) {
  ServiceState& state = TheServiceState();
  const bool own_folder = TheMarcRecord().NormString(path, true, "V") == "ME";
  state.configuration_folder = own_folder ? ProgramFolder() : std::string(path);
  if (!state.configuration_folder.empty()) {
    if (!state.configuration_folder.ends_with('\\')) state.configuration_folder += '\\';
    state.ini_file_name = InFolder(kSettingsFileName);
    PointRecordAtFolder(TheMarcRecord());
    PointRecordAtFolder(TheSecondRecord());
    NameVocabulary();
    TheMusicClass().Reset(true);
    NameWorkbook();
  }
  TheOptionsForm().Folder(state.configuration_folder);
}

void NameConfigurationFiles() {
  NameVocabulary();
  NameWorkbook();
}

}  // namespace cantorel
