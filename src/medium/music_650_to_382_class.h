// Music650To382Class: the conversions of one record.
//
// Subject headings give 382 fields (medium of performance); with the genre side
// also 655, 046, 370, 385 and 386.  The class keeps the vocabulary, the caches
// and the reports through a run of records; a record is handed to each call.
//
//   MusicSession session;
//   Music650To382Class music(session);
//   music.Parm_Subfield2Code("lcmpt");
//   music.Parm_InstrumentNameConfigurationFile("config\\MusicMedium.Lcmpt.txt");
//   music.Convert650To382_Marc(record, status, true, added_fields, outcome);
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
#include "medium/lesser_results.h"
#include "medium/medium_vocabulary.h"
#include "medium/music_session.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

class Music650To382Class {
 public:
  // `session` must outlive the object.
  explicit Music650To382Class(MusicSession& session);
  Music650To382Class(const Music650To382Class&) = delete;
  Music650To382Class& operator=(const Music650To382Class&) = delete;

  // Clears the lists of the record under work; with `rebuild` also every cache
  // but that of the ensembles, which belongs to the session.  Settles the folder
  // of the derivation table: that of the vocabulary file, else that of the
  // spreadsheet, else the session's.
  void Reset(bool rebuild);

  // --- Settings --------------------------------------------------------------

  // Source code of the vocabulary, for $2; empty leaves $2 out.
  std::string Parm_Subfield2Code() const { return subfield_2_code_; }
  void Parm_Subfield2Code(std::string_view code);
  // Full path of the vocabulary file.
  std::string Parm_InstrumentNameConfigurationFile() const { return vocabulary_.InstrumentFile(); }
  void Parm_InstrumentNameConfigurationFile(std::string_view path) {
    vocabulary_.InstrumentFile(path);
  }
  std::string Parm_EnsembleNameConfigurationFile() const { return vocabulary_.EnsembleFile(); }
  void Parm_EnsembleNameConfigurationFile(std::string_view path) { vocabulary_.EnsembleFile(path); }
  // Any value asks for the derivation table to be built when it is missing.
  std::string Parm_Bibliographic655Spreadsheet() const { return spreadsheet_; }
  void Parm_Bibliographic655Spreadsheet(std::string_view path) { spreadsheet_ = path; }
  // Tags whose fields end in a point; an empty value is kept as "*", and "*"
  // reads back empty.
  std::string AddTerminalPunctuationTo() const;
  void AddTerminalPunctuationTo(std::string_view tags);
  // What becomes of "Canons, fugues, etc.": 0 a message, 1 both genres, 2 the
  // user chooses (the session's selector).  Any other value is 0.
  std::int32_t MusicClassOperatingMode() const { return operating_mode_; }
  void MusicClassOperatingMode(std::int32_t mode);
  // "yyyymmdd.hhnnss".  Writing 8 characters adds ".000000"; 15 characters
  // change nothing, so that a full stamp cannot be set, which is deliberate; any
  // other value stands for the present moment.
  std::string MusicClassDateTimeStamp() const { return date_time_stamp_; }
  void MusicClassDateTimeStamp(std::string_view stamp);
  // Ends in a backslash unless empty.
  std::string MusicClassReportFilePath() const { return report_file_path_; }
  void MusicClassReportFilePath(std::string_view path);

  // --- Vocabulary ------------------------------------------------------------

  // Looks up an instrument by its comparison form.
  void Private_ReadInstrumentObjectAndFile(Utf8MarcRecordClass& record, std::string_view term,
                                           std::string& preferred, bool& found) {
    found = vocabulary_.FindInstrument(record, term, preferred);
  }
  // Whether a term in comparison form is listed among the ensembles.
  bool IsEnsembleName(Utf8MarcRecordClass& record, std::string_view term) {
    return vocabulary_.IsEnsembleName(record, term);
  }
  // Looks up a term as a title field has it, in the folder of the record.
  bool VerifyMediumTerm(std::string_view term, std::string& preferred, bool& is_ensemble,
                        Utf8MarcRecordClass& record) {
    return vocabulary_.VerifyMediumTerm(term, preferred, is_ensemble, record);
  }

  // --- 382 -------------------------------------------------------------------

  // Subject headings (600 to 651 with second indicator "0") of a record into 382
  // fields.  Moves the record's cursors.
  //   status         0 no heading was examined, 1 none was productive, 2 some
  //                  were, 3 all were, -2 there is no vocabulary; left alone for
  //                  a record that is not music (leader/06 other than c, d, j)
  //   add_to_record  whether new fields go into the record; existing 382 fields
  //                  are corrected in any case
  //   added_fields   the new fields in marked form, one a line
  //   outcome        sum of 1 fields were added, 2 all existing 382 fields were
  //                  dealt with, 4 some were not
  // A record without a subject heading gets nothing from its titles either.
  void Convert650To382_Marc(Utf8MarcRecordClass& record, std::int32_t& status, bool add_to_record,
                            std::string& added_fields, std::int32_t& outcome);

  // One heading (field text) into the buffer that Return_Finished382Field reads.
  //   leader_type  leader/06 of its record
  //   record_id    001 of its record, for the reports
  //   trailing     a $3 of the heading, which the caller appends
  //   result       1 a field was made, 0 none, -1 the heading is no candidate,
  //                -2 and -3 there is no vocabulary
  void Convert650To382_Text(std::string_view leader_type, std::string_view field_text,
                            Utf8MarcRecordClass& record, std::string_view record_id,
                            std::string& trailing, std::int32_t& result);

  // The medium in the $m of a title heading; arguments as above.
  void ConvertTitleMedium(std::string_view leader_type, std::string_view field_text,
                          Utf8MarcRecordClass& record, std::string_view record_id,
                          std::string& trailing, std::int32_t& result);
  // Its three steps that can be asked for alone.  The title of a heading: its $t,
  // or without one its $a, in comparison form or trimmed.
  static void Convert650To382_SubfieldM_TitleExtract(std::string_view field_text, bool normalised,
                                                     const Utf8MarcRecordClass& record,
                                                     std::string& title);
  // Adds counts to the performers of `text`, which is changed in place.
  static void Convert650To382_SubfieldM_Parentheses(const Utf8MarcRecordClass& record,
                                                    std::string& text);
  // Checks every performer of `text` against the vocabulary, and writes the text
  // with the preferred terms to `result`.
  void Convert650To382_SubfieldM_Verify(std::string_view text, Utf8MarcRecordClass& record,
                                        std::string& result);

  // The field finished last, in marked form.
  std::string Return_Finished382Field() const { return buffer_; }
  // Whether the heading read last is of a kind that carries a medium.
  bool Return_HeadingWasOfInterest() const { return heading_was_of_interest_; }

  // Makes $s and $e of the record's current field anew, when it is a 382.  A
  // field in which a performer has no count keeps its total.
  void CorrectRecord382(Utf8MarcRecordClass& record);

  // --- 655 and companions ----------------------------------------------------
  //
  // `new_lines` is everywhere the fields found so far, one a line: tag (3
  // characters), indicators (2), text.  A Norm is the comparison form of a text.

  // Subject headings and fixed fields into 655, 046, 370, 385 and 386.  Existing
  // fields that equal a derived one are rewritten in `record`; new ones are only
  // told.  A record that is not music (leader/06 other than c, d, j) gets none.
  //   scratch_record  overwritten by look-ups
  //   existing_lines  receives the existing fields of these kinds, as rewritten
  //   new_lines       receives the fields to add
  //   spare           no effect
  void Convert6xxTo655_Marc(Utf8MarcRecordClass& record, Utf8MarcRecordClass& scratch_record,
                            Utf8CharClass& char_object, std::string& existing_lines,
                            std::string& new_lines, std::string& spare);
  std::string Parm_ReturnedCandidateFields() const { return genre_.candidate_fields; }
  std::string Parm_ExcludedForExcerpts() const { return genre_.excluded_for_excerpts; }

  // The steps of the conversion.  They work on the record's current field.
  void Private_655_CollectExistingFields(Utf8MarcRecordClass& record);
  void Private_655_ProcessRecord(Utf8MarcRecordClass& record, Utf8MarcRecordClass& scratch_record,
                                 std::string& new_lines, std::string& spare);
  // Whether the heading is of excerpts, from which no genre may be concluded.
  bool Private_655_TestExcerpts(Utf8MarcRecordClass& record);
  // A form of composition (008/18-19 or 047 $a, two letters).
  void Private_655_TestCompositionCode(std::string_view code, Utf8MarcRecordClass& record,
                                       std::string& new_lines);
  // Adds a field of one subfield, with $2 unless `source` is empty, and with the
  // $3 of the heading under work; or rewrites the existing field that it equals.
  void Private_655_AddField(Utf8MarcRecordClass& record, std::string_view tag,
                            std::string_view indicators, std::string_view code,
                            std::string_view text, std::string_view source, std::string& new_lines);

  // The heading lists (genre/heading_lists.cpp).  The current subfield is the $a
  // that `text` was taken from.
  //   strip_arranged  a final "ARRANGED" of the Norm is not looked at
  void Private_655_TestHeading(std::string_view text, Utf8MarcRecordClass& record,
                               std::string& new_lines, bool strip_arranged, bool& found);
  // `key` and `value` receive the key looked up and what it gave.
  void Private_655_List1_Comma(Utf8MarcRecordClass& record, std::string_view after_comma,
                               std::string& key, std::string& value, std::string& new_lines,
                               bool& found, std::string_view before_comma,
                               std::string_view before_comma_norm);
  void Private_655_List1_Parentheses(Utf8MarcRecordClass& record, std::string_view base_norm,
                                     std::string_view parenthetical, std::string& new_lines,
                                     bool& found);
  // Position (from 1) of the "(" of the last complete group; 0 without one.
  static std::int32_t Private_655_FindOpenParenthesis(std::string_view text);

  // The derivation table (genre/derivation_table.cpp).  `list` is a section name
  // such as "List3"; each numbered line of the key becomes a field.
  void Private_655_TestAndAdd(std::string_view list, std::string_view key,
                              Utf8MarcRecordClass& record, std::string& new_lines);
  // Style words that headings carry in parentheses, such as "(jazz)".
  void InitializeStyleQualifiers();
  // Builds "Music6xxTo655.txt" from its workbook when one is named.
  void Private_655_Initialize(Utf8MarcRecordClass& record, Utf8CharClass& char_object, bool& ok);
  // "[U+0301]" into characters as a table is read: digits 0 to 9 only, which is
  // deliberate; the first escape with a letter ends the decoding.
  std::string Private_655_DecodeEscapes(std::string_view text) const;
  // The same into and out of the table as it is built, with digits 0 to F.
  std::string Private_655_Initialize_Translate(std::string_view text) const;
  std::string Private_655_Initialize_TranslateBack(std::string_view text) const;
  std::string Private_655_Initialize_CleanText(std::string_view text) const;
  // Does nothing: no file for it is ever opened.
  void Private_655_Initialize_ReportProblems(std::string_view /*list*/, std::int32_t /*row*/,
                                             std::string_view /*text*/, std::int32_t /*file*/) {}

  // Dates of creation (genre/dates.cpp): the current subfield is a $y.
  void Private_655_AddDates(Utf8MarcRecordClass& record, std::string& new_lines);

  // Places (genre/places.cpp): a $z and the $z right behind it, or empty.  Adds the
  // 370 of the place, or leaves a message.
  //   spare  no effect
  void Private_655_AddPlace(Utf8MarcRecordClass& record, Utf8MarcRecordClass& scratch_record,
                            std::string_view first_z, std::string_view second_z,
                            std::string& new_lines, std::string& spare, bool& found);
  // The authorized name that the two stand for, looked up once until Reset, and
  // the file it is in: "naf", "lcsh", or "none" for part of a place that is in
  // one.  Both are empty when it is not found.  Leaves a message either way.
  void Private_655_ReconstructPlace(std::string_view first_z, std::string_view second_z,
                                    std::string& name, std::string& source,
                                    Utf8MarcRecordClass& scratch_record, bool& found);
  // Whether `text` names part of a place, such as "Mekong River Delta"; `remainder`
  // is then the place, otherwise empty.
  void Private_655_TestRegionName(std::string_view text, std::string& remainder,
                                  Utf8MarcRecordClass& scratch_record, bool& found);
  // "Massachusetts" as "Mass."; a name that is not abbreviated comes back as it is.
  std::string Private_655_AbbreviatePlaceName(std::string_view text,
                                              Utf8MarcRecordClass& scratch_record);

  // Phrases of the current $v or $x (genre/audience.cpp); sets
  // `subdivision_consumed` of the state for one that was understood.
  void Private_655_TestSubdivisionPhrases(Utf8MarcRecordClass& record,
                                          Utf8MarcRecordClass& scratch_record,
                                          std::string& new_lines, std::string& spare);
  // Languages (genre/language_codes.cpp): leaves a message when none of `codes`,
  // three letters each with blanks between, stands in the record.
  void Private_655_TestLanguageCode(std::string_view codes, std::string_view language_name,
                                    Utf8MarcRecordClass& record);

  // Look-ups at the linked-data service (genre/linked_data.cpp).  They load what
  // they find into `scratch_record`.
  //
  // Whether `label` is an authorized heading of a vocabulary: "afset", "lcdgt",
  // "lcgft", "lcmpt", "lcsh" or "naf"; any other has none.
  //   authorized_form  the heading as its authority record has it, or empty
  // After one request that failed nothing is found, and nothing asked, as long as
  // the object lives.
  void Private_655_LookUpTerm(std::string_view vocabulary, std::string_view label,
                              std::string& authorized_form, Utf8MarcRecordClass& scratch_record,
                              bool& found);
  // Whether `label` names a nationality or an ethnic group.
  //   form   its authorized name, or empty
  //   spare  no effect
  // Asks again after a request that failed.
  void Private_655_LookUpNationality(Utf8MarcRecordClass& record,
                                     Utf8MarcRecordClass& scratch_record, std::string_view label,
                                     std::string& form, std::string& spare, bool& found);
  // Loads the authority record of an identifier, such as "dg2015060001" of the
  // path "authorities/demographicTerms".
  //   found  whether the service answered, whatever its answer holds
  void Private_655_FetchAuthorityRecord(std::string_view identifier,
                                        std::string_view collection_path,
                                        Utf8MarcRecordClass& scratch_record, bool& found);

  // --- Messages and reports (indexes from 1) -----------------------------------

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

  std::int32_t Parm_Bibliographic655NonCount() const { return report_.NonProductive655Count(); }
  std::int32_t Parm_Bibliographic655NonIndex() const { return report_.NonProductive655Index(); }
  void Parm_Bibliographic655NonIndex(std::int32_t index) { report_.NonProductive655Index(index); }
  std::string Parm_Bibliographic655NonMessage() const { return report_.NonProductive655Item(); }

  // Adds a general message about the record under work.
  void Private_655_AddMessage(std::string_view text, std::string_view detail1,
                              std::string_view detail2) {
    report_.AddMessage(session_.returned_001_text, text, detail1, detail2);
  }
  // Writes the items of medium phrases that were not understood to an open text
  // file.
  void Return_ListUnrecognizedInstruments(std::FILE* file, bool& done) {
    report_.WriteUnrecognizedItems(file, done);
  }

 private:
  // What the walks over a record found.
  struct HeadingCounts {
    std::int32_t headings = 0;
    std::int32_t productive = 0;
    bool has_382_information = false;
  };

  void SettleConfigurationFolder();

  void NoteRecordId(Utf8MarcRecordClass& record);
  void NoteExisting382(Utf8MarcRecordClass& record);
  std::int32_t ReadHeadings(Utf8MarcRecordClass& record, std::string_view leader_type,
                            HeadingCounts& counts);
  bool ReadSubjectHeadings(Utf8MarcRecordClass& record, std::string_view leader_type,
                           HeadingCounts& counts);
  bool ReadTitleMedia(Utf8MarcRecordClass& record, std::string_view leader_type,
                      HeadingCounts& counts);
  void KeepFinishedField(Utf8MarcRecordClass& record);
  bool DeliverFields(Utf8MarcRecordClass& record, bool add_to_record, std::string& added_fields);
  std::int32_t OutcomeOf(bool added) const;

  MusicSession& session_;
  ConversionReport report_;
  MediumVocabulary vocabulary_;
  GenreState genre_;

  std::string subfield_2_code_;
  std::string subfield_2_;  // delimiter, "2" and the code, or empty
  std::string spreadsheet_;
  std::string terminal_punctuation_ = "*";
  std::int32_t operating_mode_ = 0;
  std::string date_time_stamp_;
  std::string report_file_path_;
  std::string configuration_folder_;  // ends in a backslash; empty if there is none
  std::string derivation_table_;      // full path, or empty

  // Of the record under work.
  std::string record_id_;
  std::string heading_text_;
  std::string trailing_;
  std::string comparison_form_;
  Existing382Map existing_382_fields_;
  New382Map new_382_fields_;

  // Of the heading read last.
  std::string buffer_;
  bool heading_was_of_interest_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MUSIC_650_TO_382_CLASS_H_
