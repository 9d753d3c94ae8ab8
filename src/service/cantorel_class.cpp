#include "service/cantorel_class.h"

#include "genre/linked_data.h"
#include "service/answer.h"
#include "service/configuration_folder.h"
#include "service/service_objects.h"

namespace cantorel {
CantorelClass::CantorelClass() noexcept {
  Answer([] {
    TheServiceState().ini_file_name = kSettingsFileName;
    TheMusicSession().ensembles_take_e = true;
    TheMusicClass().Parm_Subfield2Code("lcmpt");
    TheOptionsRecord().MarcRecordIn("");
    TheOptionsRecord().CharacterSetIn("U");
    TheOptionsRecord().CharacterSetOut("U");
    // No date of its own: the present moment.
    TheMusicClass().MusicClassDateTimeStamp("x");
  });
}

std::int32_t CantorelClass::Z_AddFields_20170805(std::string_view /*incoming_data*/,
                                                 bool /*options_show*/,
                                                 std::int32_t /*performance_mode*/) noexcept {
  return 0;
}

std::string CantorelClass::ConfigurationPath() const noexcept {
  return Answer([] { return TheServiceState().configuration_folder; });
}

void CantorelClass::ConfigurationPath(std::string_view path) noexcept {
  Answer([path] { SetConfigurationFolder(path); });
}

// --- Settings ------------------------------------------------------------------

std::string CantorelClass::AddTerminalPunctuationTo() const noexcept {
  return Answer([] { return TheMusicClass().AddTerminalPunctuationTo(); });
}

void CantorelClass::AddTerminalPunctuationTo(std::string_view tags) noexcept {
  Answer([tags] { TheMusicClass().AddTerminalPunctuationTo(tags); });
}

std::int32_t CantorelClass::MusicClassOperatingMode() const noexcept {
  return Answer([] { return TheMusicClass().MusicClassOperatingMode(); });
}

void CantorelClass::MusicClassOperatingMode(std::int32_t mode) noexcept {
  Answer([mode] { TheMusicClass().MusicClassOperatingMode(mode); });
}

void CantorelClass::SelectFieldsWith(FieldSelector* selector) noexcept {
  Answer([selector] { TheMusicSession().field_selector = selector; });
}

void CantorelClass::LookUpWith(HttpGet* client) noexcept {
  Answer([client] { TheMusicSession().http_get = client; });
}

std::string CantorelClass::LinkedDataUrl() const noexcept {
  return Answer([] { return std::string(cantorel::LinkedDataUrl(TheMusicSession())); });
}

void CantorelClass::LinkedDataUrl(std::string_view url) noexcept {
  Answer([url] { TheMusicSession().linked_data_url = url; });
}

std::string CantorelClass::PermalinkUrl() const noexcept {
  return Answer([] { return std::string(cantorel::PermalinkUrl(TheMusicSession())); });
}

void CantorelClass::PermalinkUrl(std::string_view url) noexcept {
  Answer([url] { TheMusicSession().permalink_url = url; });
}

std::string CantorelClass::MusicClassDateTimeStamp() const noexcept {
  return Answer([] { return TheMusicClass().MusicClassDateTimeStamp(); });
}

void CantorelClass::MusicClassDateTimeStamp(std::string_view stamp) noexcept {
  Answer([stamp] { TheMusicClass().MusicClassDateTimeStamp(stamp); });
}

std::string CantorelClass::MusicClassReportFilePath() const noexcept {
  return Answer([] { return TheMusicClass().MusicClassReportFilePath(); });
}

void CantorelClass::MusicClassReportFilePath(std::string_view path) noexcept {
  Answer([path] { TheMusicClass().MusicClassReportFilePath(path); });
}

// --- Results -------------------------------------------------------------------

std::string CantorelClass::ReturnedFields() const noexcept {
  return Answer([] { return TheServiceState().returned_fields_text; });
}

std::string CantorelClass::Returned001Field() const noexcept {
  return Answer([] { return TheMusicSession().returned_001_text; });
}

std::string CantorelClass::ReturnedCandidateFields() const noexcept {
  return Answer([] { return TheMusicClass().Parm_ReturnedCandidateFields(); });
}

std::string CantorelClass::ReturnedNonProductiveFields() const noexcept {
  reports_read_ = true;
  return {};
}

std::string CantorelClass::ReturnedFieldsExcludedForExcerpts() const noexcept {
  reports_read_ = true;
  return {};
}

// --- Messages --------------------------------------------------------------------

std::int32_t CantorelClass::ReturnedMessageCount() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageCount(TheSecondRecord()); });
}

std::int32_t CantorelClass::ReturnedMessageIndex() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageIndex(); });
}

void CantorelClass::ReturnedMessageIndex(std::int32_t index) noexcept {
  Answer([index] { TheMusicClass().Parm_MessageIndex(index); });
}

std::int32_t CantorelClass::ReturnedMessageType() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageType(); });
}

std::string CantorelClass::ReturnedMessageTypeName() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageTypeName(); });
}

std::string CantorelClass::ReturnedMessageText() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageText(); });
}

std::string CantorelClass::ReturnedMessageTerms() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageTerms(TheSecondRecord()); });
}

std::string CantorelClass::ReturnedMessageRecordIds() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageRecordIDs(); });
}

std::int32_t CantorelClass::ReturnedMessageInstances() const noexcept {
  return Answer([] { return TheMusicClass().Parm_MessageTotal(); });
}

// --- Instruments and places not recognised -----------------------------------------

std::int32_t CantorelClass::ReturnedUnrecognizedInstrumentTotal() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentTotal(); });
}

std::int32_t CantorelClass::ReturnedUnrecognizedInstrumentIndex() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentIndex(); });
}

void CantorelClass::ReturnedUnrecognizedInstrumentIndex(std::int32_t index) noexcept {
  Answer([index] { TheMusicClass().Parm_UnrecognizedInstrumentIndex(index); });
}

std::string CantorelClass::ReturnedUnrecognizedInstrumentName() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentName(); });
}

std::int32_t CantorelClass::ReturnedUnrecognizedInstrumentCount() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentCount(); });
}

std::string CantorelClass::ReturnedUnrecognizedInstrumentRecordIDs() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentRecordIDs(); });
}

std::string CantorelClass::ReturnedUnrecognizedInstrumentTerms() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedInstrumentTerms(); });
}

std::int32_t CantorelClass::ReturnedUnrecognizedPlaceTotal() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedPlaceTotal(); });
}

std::int32_t CantorelClass::ReturnedUnrecognizedPlaceIndex() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedPlaceIndex(); });
}

void CantorelClass::ReturnedUnrecognizedPlaceIndex(std::int32_t index) noexcept {
  Answer([index] { TheMusicClass().Parm_UnrecognizedPlaceIndex(index); });
}

std::string CantorelClass::ReturnedUnrecognizedPlaceTerm() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedPlaceTerm(); });
}

std::int32_t CantorelClass::ReturnedUnrecognizedPlaceCount() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedPlaceCounter(); });
}

std::string CantorelClass::ReturnedUnrecognizedPlaceRecordIDs() const noexcept {
  return Answer([] { return TheMusicClass().Parm_UnrecognizedPlaceRecordIDs(); });
}

}  // namespace cantorel
