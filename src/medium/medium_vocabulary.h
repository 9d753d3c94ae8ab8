// Instruments and ensembles: every word of a heading that names a performer is
// looked up here, and a field takes the preferred term of the file
// "MusicMedium.Lcmpt.txt" (national medium of performance thesaurus, source
// code lcmpt).
//
// The file has two sections, "Instruments" and "Ensembles"; an ensemble stands
// in both.  Keys are comparison forms with blanks as "_", values the preferred
// term, optionally a tab and a note:
//
//   [Instruments]
//   DOUBLE_BASS=double bass
//   STRING_ORCHESTRA=string orchestra
//   [Ensembles]
//   STRING_ORCHESTRA=string orchestra
//
// It is consulted one key at a time and each answer found is kept, so that a
// run over many records asks the file once for a distinct term.  A missing file
// is no error: nothing is found.

#ifndef CANTOREL_MEDIUM_MEDIUM_VOCABULARY_H_
#define CANTOREL_MEDIUM_MEDIUM_VOCABULARY_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "medium/configuration_files.h"
#include "medium/conversion_report.h"
#include "medium/music_session.h"
#include "medium/string_map.h"

namespace cantorel {

class Utf8MarcRecordClass;

class MediumVocabulary {
 public:
  MediumVocabulary(MusicSession& session, ConversionReport& report)
      : session_(session), report_(report) {}

  // Full path of the vocabulary file; setting it marks it as named and not
  // prepared.
  std::string InstrumentFile() const { return instrument_file_; }
  void InstrumentFile(std::string_view path);
  // A second file name.  Nothing in Cantorel sets it.
  std::string EnsembleFile() const { return ensemble_file_; }
  void EnsembleFile(std::string_view path);

  // Makes the vocabularies ready when they are named; 0 when all is well, -2
  // when no instrument file was named, -3 when an ensemble file was named and
  // is not there.
  std::int32_t Prepare();

  // Looks up an instrument.  `term` is a comparison form ("DOUBLE BASS"); on
  // true `preferred` receives the term of the file, otherwise it is as it was.
  // A final S may be missing or too many.  A term not found is not kept: it
  // leaves a message that names the current field of `record` each time.
  bool FindInstrument(Utf8MarcRecordClass& record, std::string_view term, std::string& preferred);

  // True when the term (comparison form) is listed among the ensembles, with
  // its preferred term; otherwise `preferred` is as it was.  Singular and plural
  // are two terms here.
  bool FindEnsemble(Utf8MarcRecordClass& record, std::string_view term, std::string& preferred);
  bool IsEnsembleName(Utf8MarcRecordClass& record, std::string_view term);

  // Looks up a term of a title field (text as it stands in the title) in the
  // file under the record's FldOrderFolder; nothing is kept and nothing
  // reported.  On false `preferred` is as it was and `is_ensemble` false.
  bool VerifyMediumTerm(std::string_view term, std::string& preferred, bool& is_ensemble,
                        Utf8MarcRecordClass& record);

  // Forgets every instrument answer.  Ensemble answers stay with the session.
  void ClearInstrumentCache() { instruments_.RemoveAll(); }

  // The heading under work, for the report of an unknown term.
  void CurrentHeading(std::string_view text) { heading_ = text; }

 private:
  const std::string* EnsembleTerm(Utf8MarcRecordClass& record, std::string_view term);
  bool SeekEnsembleFile();
  void KeyOf(std::string_view term);
  bool ReadTerm(std::string_view file, std::string_view section);
  bool ReadInstrument(std::string_view file);

  MusicSession& session_;
  ConversionReport& report_;
  std::string instrument_file_;
  std::string ensemble_file_;
  bool instruments_prepared_ = false;
  bool ensembles_prepared_ = false;
  // Comparison form to preferred term; an empty term marks one that is known to
  // be unrecognised.
  StringMap<std::string> instruments_;
  std::string heading_;
  // Reused by the look-ups.
  std::string key_;
  std::string value_;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MEDIUM_VOCABULARY_H_
