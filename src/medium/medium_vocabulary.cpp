#include "medium/medium_vocabulary.h"

#include <algorithm>
#include <utility>

#include "platform/file_layer.h"
#include "platform/profile_file.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::string_view kInstruments = "Instruments";
constexpr std::string_view kEnsembles = "Ensembles";
constexpr std::int32_t kLongestValue = 1000;

constexpr std::int32_t kReady = 0;
constexpr std::int32_t kNoInstrumentFile = -2;
constexpr std::int32_t kNoEnsembleFile = -3;

}  // namespace

void MediumVocabulary::InstrumentFile(std::string_view path) {
  instrument_file_ = path;
  instruments_prepared_ = false;
}

void MediumVocabulary::EnsembleFile(std::string_view path) {
  ensemble_file_ = path;
  ensembles_prepared_ = false;
}

std::int32_t MediumVocabulary::Prepare() {
  if (!instruments_prepared_) {
    if (instrument_file_.empty()) return kNoInstrumentFile;
    instruments_prepared_ = true;
  }
  if (!ensemble_file_.empty() && !ensembles_prepared_) {
    if (!FileExists(ensemble_file_)) return kNoEnsembleFile;
    ensembles_prepared_ = true;
  }
  return kReady;
}

// --- Reading the file ----------------------------------------------------------

// Puts the key of a term into key_.
void MediumVocabulary::KeyOf(std::string_view term) {
  key_ = term;
  std::replace(key_.begin(), key_.end(), ' ', '_');
}

// Reads the term under key_ into value_, without the note behind it; false when
// there is none.
bool MediumVocabulary::ReadTerm(std::string_view file, std::string_view section) {
  if (!FindIniValue(file, section, key_, kLongestValue, value_)) return false;
  value_.resize(std::min(value_.find('\t'), value_.size()));
  return !value_.empty();
}

// Reads the instrument under key_ into value_.  One retry in one direction: a
// final S goes, or, when there was none, comes.  key_ is then the key that was
// tried last.
bool MediumVocabulary::ReadInstrument(std::string_view file) {
  if (ReadTerm(file, kInstruments)) return true;
  if (!key_.empty() && key_.back() == 'S') {
    key_.pop_back();
  } else {
    key_.push_back('S');
  }
  return ReadTerm(file, kInstruments);
}

// --- Instruments ---------------------------------------------------------------

bool MediumVocabulary::FindInstrument(Utf8MarcRecordClass& record, std::string_view term,
                                      std::string& preferred) {
  if (const std::string* known = instruments_.Find(term)) {
    if (!known->empty()) {
      preferred = *known;
      return true;
    }
    // Stands ready and unused: nothing enters an empty term at present, so that
    // an unknown instrument always reaches the host as a general message.
    report_.CountUnrecognizedInstrument(term, session_.returned_001_text, heading_);
    return false;
  }
  if (instrument_file_.empty()) return false;
  KeyOf(term);
  if (!ReadInstrument(instrument_file_)) {
    report_.AddMessage(session_.returned_001_text, "Unrecognized instrument " + std::string(term),
                       record.FldTag(), record.FldText());
    return false;
  }
  preferred = record.XmlUnconditionText(value_);
  instruments_.Add(term, preferred);
  return true;
}

// --- Ensembles -----------------------------------------------------------------

// True when the file of ensembles is known.  It is sought once: the file that
// is named at that time stays, and if none was there will be none.
bool MediumVocabulary::SeekEnsembleFile() {
  EnsembleCache& cache = session_.ensembles;
  if (cache.path_found) return true;
  if (cache.path_sought) return false;
  cache.path_sought = true;
  // A bare name tells no folder.
  if (instrument_file_.find_first_of("\\/") == std::string::npos) return false;
  cache.path = instrument_file_;
  cache.path_found = true;
  return true;
}

// The preferred term of an ensemble; null for what is none.
const std::string* MediumVocabulary::EnsembleTerm(Utf8MarcRecordClass& record,
                                                  std::string_view term) {
  EnsembleCache& cache = session_.ensembles;
  KeyOf(term);
  const std::string* known = cache.terms.Find(key_);
  if (known == nullptr) {
    if (!SeekEnsembleFile()) return nullptr;
    std::string preferred;
    bool changed = false;
    if (ReadTerm(cache.path, kEnsembles)) {
      preferred = record.DecomposeUnicodeCharactersInString(value_, changed);
    }
    cache.terms.Add(key_, std::move(preferred));
    known = cache.terms.Find(key_);
  }
  return known->empty() ? nullptr : known;
}

bool MediumVocabulary::FindEnsemble(Utf8MarcRecordClass& record, std::string_view term,
                                    std::string& preferred) {
  const std::string* found = EnsembleTerm(record, term);
  if (found != nullptr) preferred = *found;
  return found != nullptr;
}

bool MediumVocabulary::IsEnsembleName(Utf8MarcRecordClass& record, std::string_view term) {
  return EnsembleTerm(record, term) != nullptr;
}

// --- Terms of title fields -------------------------------------------------------

bool MediumVocabulary::VerifyMediumTerm(std::string_view term, std::string& preferred,
                                        bool& is_ensemble, Utf8MarcRecordClass& record) {
  is_ensemble = false;
  const std::string folder = record.FldOrderFolder();
  if (folder.empty()) return false;
  const std::string file = folder + std::string(kVocabularyFileName);
  KeyOf(record.NormString(term, true, "V"));
  if (!ReadInstrument(file)) return false;
  bool changed = false;
  std::string found = record.DecomposeUnicodeCharactersInString(value_, changed);
  is_ensemble = ReadTerm(file, kEnsembles);
  preferred = std::move(found);
  return true;
}

}  // namespace cantorel
