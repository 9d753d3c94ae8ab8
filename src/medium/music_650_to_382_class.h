// Music650To382Class: the conversions of one record.
//
// Subject headings give 382 fields (medium of performance); with the genre side
// also 655, 046, 370, 385 and 386.  The class keeps the vocabulary, the caches
// and the reports through a run of records; a record is handed to each call.
//
// The marked form of a produced 382 is its text with an optional prefix: one
// character and ":" give the first indicator (the second is "1"), two
// characters and ":" give both; without a prefix they are "0" and "1".

#ifndef CANTOREL_MEDIUM_MUSIC_650_TO_382_CLASS_H_
#define CANTOREL_MEDIUM_MUSIC_650_TO_382_CLASS_H_

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "medium/conversion_report.h"
#include "medium/genre_state.h"
#include "medium/medium_vocabulary.h"
#include "medium/music_session.h"
#include "medium/string_map.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

class Music650To382Class {
 public:
  explicit Music650To382Class(MusicSession& session);
  Music650To382Class(const Music650To382Class&) = delete;
  Music650To382Class& operator=(const Music650To382Class&) = delete;

  // Clears the lists of the record under work; with `rebuild` also every cache.
  void Reset(bool rebuild);

  // --- Settings --------------------------------------------------------------

  // Source code of the vocabulary, for $2; empty leaves $2 out.
  std::string Parm_Subfield2Code() const { return subfield_2_code_; }
  void Parm_Subfield2Code(std::string_view code);
  std::string Parm_InstrumentNameConfigurationFile() const { return vocabulary_.InstrumentFile(); }
  void Parm_InstrumentNameConfigurationFile(std::string_view path) { vocabulary_.InstrumentFile(path); }
  std::string Parm_EnsembleNameConfigurationFile() const { return vocabulary_.EnsembleFile(); }
  void Parm_EnsembleNameConfigurationFile(std::string_view path) { vocabulary_.EnsembleFile(path); }
  std::string Parm_Bibliographic655Spreadsheet() const { return spreadsheet_; }
  void Parm_Bibliographic655Spreadsheet(std::string_view path) { spreadsheet_ = path; }
  // Tags whose fields end in a point; an empty value is kept as "*" and reads
  // back empty.
  std::string AddTerminalPunctuationTo() const;
  void AddTerminalPunctuationTo(std::string_view tags);
  // 0, 1 or 2; any other value is 0.
  std::int32_t MusicClassOperatingMode() const { return operating_mode_; }
  void MusicClassOperatingMode(std::int32_t mode);
  std::string MusicClassDateTimeStamp() const { return date_time_stamp_; }
  void MusicClassDateTimeStamp(std::string_view stamp);
  std::string MusicClassReportFilePath() const { return report_file_path_; }
  void MusicClassReportFilePath(std::string_view path);

  // --- Conversions -----------------------------------------------------------

  // Subject headings of a record into 382 fields.  `status`: 0 no heading
  // examined, 1 none productive, 2 some, 3 all, -2 no vocabulary.  New fields
  // go into the record when `add_to_record` is true, and in any case into
  // `added_fields` in marked form, one a line.  `outcome` is a sum: 1 fields
  // were added, 2 all existing 382s were dealt with, 4 some were not.
  void Convert650To382_Marc(Utf8MarcRecordClass& record, std::int32_t& status, bool add_to_record,
                            std::string& added_fields, std::int32_t& outcome);

  // One heading into the buffer that Return_Finished382Field reads.  `result`:
  // 1 a field was made, 0 none, -1 no candidate, -2 and -3 no vocabulary.
  void Convert650To382_Text(std::string_view leader_type, std::string_view field_text,
                            Utf8MarcRecordClass& record, std::string_view record_id,
                            std::string& trailing, std::int32_t& result);

  // The medium in the $m of a title heading; protocol as above.
  void ConvertTitleMedium(std::string_view leader_type, std::string_view field_text,
                          Utf8MarcRecordClass& record, std::string_view record_id,
                          std::string& trailing, std::int32_t& result);

  std::string Return_Finished382Field() const { return buffer_; }
  bool Return_HeadingWasOfInterest() const { return heading_was_of_interest_; }

  // Totals and $e of the current field of the record, when it is a 382.
  void CorrectRecord382(Utf8MarcRecordClass& record);

  // Subject headings and fixed fields into 655, 046, 370, 385 and 386.
  void Convert6xxTo655_Marc(Utf8MarcRecordClass& record, Utf8MarcRecordClass& scratch_record,
                            Utf8CharClass& char_object, std::string& existing_lines,
                            std::string& new_lines, std::string& spare);
  // Style words that headings carry in parentheses, such as "(jazz)".
  void InitializeStyleQualifiers();
  // Builds "Music6xxTo655.txt" from its workbook when one is named.
  void Private_655_Initialize(Utf8MarcRecordClass& record, Utf8CharClass& char_object, bool& ok);

  // --- Messages and reports ----------------------------------------------------

  ConversionReport& Report() { return report_; }
  std::int32_t Parm_MessageCount(Utf8MarcRecordClass&) { return report_.MessageCount(); }
  std::int32_t Parm_MessageIndex() const { return report_.MessageIndex(); }
  void Parm_MessageIndex(std::int32_t index) { report_.MessageIndex(index); }
  std::int32_t Parm_MessageType() const { return report_.MessageType(); }
  std::string Parm_MessageTypeName() const { return report_.MessageTypeName(); }
  std::string Parm_MessageText() const { return report_.MessageText(); }
  std::string Parm_MessageTerms(Utf8MarcRecordClass&) const { return report_.MessageTerms(); }
  std::string Parm_MessageRecordIDs() const { return report_.MessageRecordIds(); }
  std::int32_t Parm_MessageTotal() const { return report_.MessageTotal(); }

  std::int32_t Parm_Bibliographic655NonCount() const { return report_.NonProductive655Count(); }
  std::int32_t Parm_Bibliographic655NonIndex() const { return report_.NonProductive655Index(); }
  void Parm_Bibliographic655NonIndex(std::int32_t index) { report_.NonProductive655Index(index); }
  std::string Parm_Bibliographic655NonMessage() const { return report_.NonProductive655Item(); }

  std::int32_t Parm_UnrecognizedInstrumentTotal() { return report_.UnrecognizedInstrumentTotal(); }
  std::int32_t Parm_UnrecognizedInstrumentIndex() const {
    return report_.UnrecognizedInstrumentIndex();
  }
  void Parm_UnrecognizedInstrumentIndex(std::int32_t index) {
    report_.UnrecognizedInstrumentIndex(index);
  }
  std::string Parm_UnrecognizedInstrumentName() const {
    return report_.UnrecognizedInstrumentName();
  }
  std::int32_t Parm_UnrecognizedInstrumentCount() const {
    return report_.UnrecognizedInstrumentCount();
  }
  std::string Parm_UnrecognizedInstrumentRecordIDs() const {
    return report_.UnrecognizedInstrumentRecordIds();
  }
  std::string Parm_UnrecognizedInstrumentTerms() const {
    return report_.UnrecognizedInstrumentTerms();
  }

  std::int32_t Parm_UnrecognizedPlaceTotal() const { return report_.UnrecognizedPlaceTotal(); }
  std::int32_t Parm_UnrecognizedPlaceIndex() const { return report_.UnrecognizedPlaceIndex(); }
  void Parm_UnrecognizedPlaceIndex(std::int32_t index) { report_.UnrecognizedPlaceIndex(index); }
  std::string Parm_UnrecognizedPlaceTerm() const { return report_.UnrecognizedPlaceTerm(); }
  std::int32_t Parm_UnrecognizedPlaceCounter() const { return report_.UnrecognizedPlaceCount(); }
  std::string Parm_UnrecognizedPlaceRecordIDs() const {
    return report_.UnrecognizedPlaceRecordIds();
  }

  // Tag, indicators and text of each heading that the genre side looked at, and
  // comparison forms of those that it left out as excerpts; one a line.
  std::string Parm_ReturnedCandidateFields() const { return genre_.candidate_fields; }
  std::string Parm_ExcludedForExcerpts() const { return genre_.excluded_for_excerpts; }

  // Writes the items of medium phrases that were not understood, one a line, to
  // an open text file.  `done` is false when the file did not take them all.
  void Return_ListUnrecognizedInstruments(std::FILE* file, bool& done) {
    report_.WriteUnrecognizedItems(file, done);
  }

 private:
  MusicSession& session_;
  ConversionReport report_;
  MediumVocabulary vocabulary_;
  std::string subfield_2_code_;
  std::string subfield_2_;  // delimiter, "2" and the code, or empty
  std::string spreadsheet_;
  std::string configuration_folder_;
  std::string terminal_punctuation_ = "*";
  std::int32_t operating_mode_ = 0;
  std::string date_time_stamp_;
  std::string report_file_path_;
  std::string buffer_;
  bool heading_was_of_interest_ = false;
  StringMap<std::int16_t> existing_382_fields_;
  StringMap<std::string> new_382_fields_;
  GenreState genre_;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MUSIC_650_TO_382_CLASS_H_
